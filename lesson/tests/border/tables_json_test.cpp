#include "lesson/border/tables_json.hpp"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <cctype>
#include <map>
#include <regex>
#include <set>
#include <string>
#include <utility>

namespace lesson
{

namespace
{

using Json = nlohmann::ordered_json;

const Json& tables()
{
    static const Json parsed = Json::parse(tablesJson(Writing()));
    return parsed;
}

Json americanTables()
{
    Writing writing;
    writing.language = &americanEnglish();
    return Json::parse(tablesJson(writing));
}

// A line as one reads it.
std::string textOf(const Json& spans)
{
    std::string text;
    for (const Json& span : spans) {
        text += span.front().get<std::string>();
    }
    return text;
}

Json pair(const std::string& cation, const std::string& anion)
{
    const Json& pairs = tables()["pairs"];
    const auto found = std::find_if(pairs.begin(), pairs.end(), [&](const Json& one) {
        return one["cation"] == cation && one["anion"] == anion;
    });
    EXPECT_NE(found, pairs.end()) << cation << " " << anion;
    return *found;
}

TEST(TablesJsonTest, EveryElementHasAPlaceOfItsOwn)
{
    const Json& elements = tables()["elements"];
    ASSERT_EQ(elements.size(), 118U);
    std::set<std::pair<int, int>> places;
    int number = 0;
    int withoutGroup = 0;
    for (const Json& one : elements) {
        EXPECT_EQ(one["number"], ++number);
        EXPECT_FALSE(one["mass"].get<std::string>().empty()) << one;
        if (one["group"] == 0) {
            ++withoutGroup;
        } else {
            EXPECT_TRUE(places.emplace(one["period"], one["group"]).second) << one;
        }
    }
    EXPECT_EQ(places.size() + static_cast<std::size_t>(withoutGroup), 118U);
}

TEST(TablesJsonTest, RowsAsAFrontEndGetsThem)
{
    EXPECT_EQ(tables()["version"], 2);
    EXPECT_EQ(tables()["elements"][12].dump(), R"({"number":13,"symbol":"Al","name":"aluminium",)"
                                               R"("mass":"26.98","period":3,"group":13})");
    EXPECT_EQ(tables()["elements"][7].dump(), R"({"number":8,"symbol":"O","name":"oxygen",)"
                                              R"("mass":"16.00","period":2,"group":16})");
    EXPECT_EQ(tables()["ions"].size(), 19U + 15U + 13U);
    EXPECT_EQ(tables()["ions"][0].dump(), R"({"name":"lithium","formula":"Li","charge":1})");
    EXPECT_EQ(tables()["ions"].back().dump(), R"({"name":"cyanide","formula":"CN","charge":-1})");
    EXPECT_EQ(
        tables()["rules"][5].dump(),
        R"({"anion":"sulfate","family":"sulfates","verdict":"soluble",)"
        R"json("exceptions":["barium","lead(II)"],)json"
        R"("sentence":[{"name":"Sulfates"},{"text":" are soluble, except those of barium and lead, and in part calcium and silver."}]})");
    EXPECT_EQ(tables()["rules"][0]["exceptions"].dump(), "[]");
}

TEST(TablesJsonTest, RulesThatAreLearntAsOneAreOfOneFamily)
{
    std::map<std::string, std::string> families;
    for (const Json& rule : tables()["rules"]) {
        families[rule["anion"]] = rule["family"];
    }
    const std::map<std::string, std::string> expected = {
        {"nitrate", "nitrates"},
        {"ethanoate", "ethanoates"},
        {"chloride", "halides"},
        {"bromide", "halides"},
        {"iodide", "halides"},
        {"sulfate", "sulfates"},
        {"hydrogencarbonate", "hydrogencarbonates"},
        {"hydroxide", "hydroxides"},
        {"carbonate", "carbonates and phosphates"},
        {"phosphate", "carbonates and phosphates"},
        {"sulfide", "sulfides"},
    };
    EXPECT_EQ(families, expected);
}

// What an American reads; where nothing differs, and in what no reader sees, it is as in British
// English.
TEST(TablesJsonTest, AmericanTables)
{
    const Json american = americanTables();
    EXPECT_EQ(american["elements"][12]["name"], "aluminum");
    EXPECT_EQ(american["rules"][1]["anion"], "acetate");
    EXPECT_EQ(american["rules"][1]["family"], "acetates");
    EXPECT_EQ(textOf(american["rules"][1]["sentence"]), "Acetates are soluble.");
    EXPECT_EQ(textOf(american["rules"][6]["sentence"]),
              "The hydrogen carbonates of sodium, potassium and ammonium are soluble.");
    ASSERT_EQ(american["pairs"].size(), tables()["pairs"].size());
    std::set<std::string> reasons;
    for (std::size_t i = 0; i < american["pairs"].size(); ++i) {
        const Json& one = american["pairs"][i];
        EXPECT_EQ(one["verdict"], tables()["pairs"][i]["verdict"]) << one;
        reasons.insert(textOf(one["reason"]));
    }
    EXPECT_EQ(reasons.count("It falls apart: nitrate oxidizes tin(II)."), 1U);
    EXPECT_EQ(reasons.count("It is oxidized by air, and is hardly met at school."), 1U);
}

TEST(TablesJsonTest, EveryPairHasAVerdictAndAReason)
{
    const Json& pairs = tables()["pairs"];
    EXPECT_EQ(pairs.size(), 19U * 15U);
    int withFormula = 0;
    int asked = 0;
    for (const Json& one : pairs) {
        const std::string verdict = one["verdict"];
        EXPECT_TRUE(verdict == "soluble" || verdict == "insoluble" || verdict == "not asked")
            << one;
        EXPECT_EQ(textOf(one["reason"]).back(), '.') << one;
        EXPECT_TRUE(one.contains("formula") || verdict == "not asked") << one;
        withFormula += one.contains("formula") ? 1 : 0;
        asked += verdict != "not asked" ? 1 : 0;
    }
    EXPECT_EQ(withFormula, 227);
    EXPECT_EQ(asked, 153);
}

TEST(TablesJsonTest, VerdictsOfSomePairs)
{
    struct Case {
        const char* cation;
        const char* anion;
        const char* formula; // empty where it is not asked
        const char* verdict;
        const char* reason; // its beginning
    };
    const Case cases[] = {
        {"copper(II)", "sulfate", "CuSO4", "soluble", "Sulfates are soluble"},
        {"barium", "sulfate", "BaSO4", "insoluble", "Sulfates are soluble, except"},
        {"aluminium", "hydroxide", "Al(OH)3", "insoluble", "Hydroxides are insoluble"},
        {"lead(II)", "chloride", "PbCl2", "not asked", "It dissolves in hot water"},
        {"iron(III)", "iodide", "", "not asked", "Iron(III) turns iodide into iodine"},
    };
    for (const Case& one : cases) {
        const Json found = pair(one.cation, one.anion);
        EXPECT_EQ(found.value("formula", ""), one.formula) << found;
        EXPECT_EQ(found["verdict"], one.verdict) << found;
        EXPECT_EQ(textOf(found["reason"]).find(one.reason), 0U) << found;
    }
}

// A rule read as a learner reads it: "Sulfates are soluble, except those of barium and lead, and in
// part calcium and silver."
struct Read {
    std::string anion;
    std::string verdict;
    std::set<std::string> only; // empty: all cations
    std::set<std::string> exceptions;
    std::set<std::string> inPart; // of these nothing is asked
};

std::set<std::string> listIn(const std::string& text)
{
    static const std::regex word("[a-z]+");
    std::set<std::string> names;
    for (std::sregex_iterator one(text.begin(), text.end(), word), end; one != end; ++one) {
        if (one->str() != "and") {
            names.insert(one->str());
        }
    }
    return names;
}

std::string lowerFirst(std::string text)
{
    text.front() = static_cast<char>(std::tolower(static_cast<unsigned char>(text.front())));
    return text;
}

Read readRule(const std::string& sentence)
{
    static const std::regex few("The (\\w+)s of ([a-z, ]+) are (soluble|insoluble)\\.");
    static const std::regex most(
        "(?:All )?(\\w+)s are (soluble|insoluble)"
        "(?:, except those of ([a-z, ]+?))?(?:, and in part ([a-z ]+))?\\.");
    std::smatch found;
    if (std::regex_match(sentence, found, few)) {
        return {lowerFirst(found[1]), found[3], listIn(found[2]), {}, {}};
    }
    EXPECT_TRUE(std::regex_match(sentence, found, most)) << sentence;
    return {lowerFirst(found[1]), found[2], {}, listIn(found[3]), listIn(found[4])};
}

// "lead(II)" is "lead" in a rule.
std::string metalOf(const Json& one)
{
    const std::string cation = one["cation"];
    return cation.substr(0, cation.find('('));
}

std::string verdictBy(const Read& rule, const Json& one)
{
    const std::string metal = metalOf(one);
    if (rule.inPart.count(metal) > 0 || (!rule.only.empty() && rule.only.count(metal) == 0)) {
        return "none";
    }
    if (rule.exceptions.count(metal) == 0) {
        return rule.verdict;
    }
    return rule.verdict == "soluble" ? "insoluble" : "soluble";
}

TEST(TablesJsonTest, TheRulesAsSentencesGiveTheVerdictOfEachPairThatIsAsked)
{
    std::map<std::string, Read> rules;
    for (const Json& rule : tables()["rules"]) {
        const Read read = readRule(textOf(rule["sentence"]));
        EXPECT_TRUE(rules.emplace(read.anion, read).second) << rule;
    }
    int asked = 0;
    for (const Json& one : tables()["pairs"]) {
        const auto rule = rules.find(one["anion"]);
        if (one["verdict"] != "not asked") {
            ++asked;
            ASSERT_NE(rule, rules.end()) << one;
            EXPECT_EQ(verdictBy(rule->second, one), one["verdict"]) << one;
        } else if (rule != rules.end() && rule->second.inPart.count(metalOf(one)) > 0) {
            EXPECT_NE(textOf(one["reason"]).find("dissolves a little"), std::string::npos) << one;
        }
    }
    EXPECT_EQ(asked, 153);
}

} // namespace

} // namespace lesson
