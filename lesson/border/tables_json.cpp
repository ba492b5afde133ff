#include "lesson/border/tables_json.hpp"

#include <string_view>
#include <vector>

#include "lesson/border/json.hpp"
#include "lesson/chemistry/elements.hpp"
#include "lesson/chemistry/ions.hpp"
#include "lesson/chemistry/pairs_not_asked.hpp"
#include "lesson/chemistry/solubility.hpp"
#include "lesson/exercise.hpp"

namespace lesson
{

namespace
{

// Raised by every change of what they hold.
constexpr int tablesVersion = 1;

void add(Json& json, const ElementRow& row, const Language& language)
{
    json.object([&] {
        json.member("number", row.number);
        json.member("symbol", row.symbol);
        json.member("name", nameIn(language, nameOf(row)));
        json.member("mass", shownMass(row));
        json.member("period", row.period);
        json.member("group", row.group);
    });
}

void add(Json& json, const IonRow& ion, const Language& language)
{
    json.object([&] {
        json.member("name", nameIn(language, nameOf(ion)));
        json.member("formula", ion.formula);
        json.member("charge", ion.charge);
    });
}

std::string_view verdict(bool isSoluble)
{
    return isSoluble ? "soluble" : "insoluble";
}

void addNames(Json& json, const IonSet& ofCations, const Language& language)
{
    json.elements([&] {
        for (const IonRow* const cation : cations()) {
            if (ofCations.has(cation->id)) {
                json.text(nameIn(language, nameOf(*cation)));
            }
        }
    });
}

void add(Json& json, const SolubilityRule& rule, const Language& language)
{
    json.object([&] {
        json.member("anion", nameIn(language, nameOf(rowOf(rule.anion))));
        json.member("family", rule.family);
        json.member("verdict", verdict(rule.isSoluble));
        addNames(json.key("exceptions"), rule.exceptions, language);
        json.member("sentence", rule.sentence);
    });
}

void addVerdict(Json& json, const Pair& pair)
{
    const std::string_view whyNot = whySolubilityIsNotAsked(pair);
    json.member("verdict", whyNot.empty() ? verdict(isSoluble(pair)) : "not asked");
    json.member("reason", whyNot.empty() ? ruleFor(*pair.anion)->sentence : whyNot);
}

void add(Json& json, const Pair& pair, const Language& language)
{
    json.object([&] {
        json.member("cation", nameIn(language, nameOf(*pair.cation)));
        json.member("anion", nameIn(language, nameOf(*pair.anion)));
        if (whyFormulaIsNotAsked(pair).empty()) {
            json.member("formula", compoundFormula(*pair.cation, *pair.anion));
        }
        addVerdict(json, pair);
    });
}

void addElements(Json& json, const Language& language)
{
    json.elements([&] {
        for (int number = 1; number <= elementCount; ++number) {
            add(json, element(number), language);
        }
    });
}

void addIons(Json& json, const Language& language)
{
    json.elements([&] {
        for (const auto* const list : {&cations(), &anions(), &furtherIons()}) {
            for (const IonRow* const ion : *list) {
                add(json, *ion, language);
            }
        }
    });
}

void addPairs(Json& json, const Language& language)
{
    json.elements([&] {
        for (const IonRow* const cation : cations()) {
            for (const IonRow* const anion : anions()) {
                add(json, Pair{cation, anion}, language);
            }
        }
    });
}

} // namespace

std::string tablesJson(const Language& language)
{
    Json json;
    json.object([&] {
        json.member("version", tablesVersion);
        addElements(json.key("elements"), language);
        addIons(json.key("ions"), language);
        json.key("rules").array(solubilityRules(),
                                [&](const SolubilityRule& rule) { add(json, rule, language); });
        addPairs(json.key("pairs"), language);
    });
    return json.take();
}

} // namespace lesson
