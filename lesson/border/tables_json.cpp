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

void addName(Json& json, std::string_view name, std::string_view american)
{
    json.member("name", name);
    if (!american.empty()) {
        json.member("american", american);
    }
}

void add(Json& json, const ElementRow& row)
{
    json.object([&] {
        json.member("number", row.number);
        json.member("symbol", row.symbol);
        addName(json, row.name, row.american);
        json.member("mass", shownMass(row));
        json.member("period", row.period);
        json.member("group", row.group);
    });
}

void add(Json& json, const IonRow& ion)
{
    json.object([&] {
        addName(json, nameInFull(ion), ion.american);
        json.member("formula", ion.formula);
        json.member("charge", ion.charge);
    });
}

std::string_view verdict(bool isSoluble)
{
    return isSoluble ? "soluble" : "insoluble";
}

void addNames(Json& json, const IonSet& ofCations)
{
    json.elements([&] {
        for (const IonRow* const cation : cations()) {
            if (ofCations.has(cation->id)) {
                json.text(nameInFull(*cation));
            }
        }
    });
}

void add(Json& json, const SolubilityRule& rule)
{
    json.object([&] {
        json.member("anion", nameInFull(rowOf(rule.anion)));
        json.member("family", rule.family);
        json.member("verdict", verdict(rule.isSoluble));
        addNames(json.key("exceptions"), rule.exceptions);
        json.member("sentence", rule.sentence);
    });
}

void addVerdict(Json& json, const Pair& pair)
{
    const std::string_view whyNot = whySolubilityIsNotAsked(pair);
    json.member("verdict", whyNot.empty() ? verdict(isSoluble(pair)) : "not asked");
    json.member("reason", whyNot.empty() ? ruleFor(*pair.anion)->sentence : whyNot);
}

void add(Json& json, const Pair& pair)
{
    json.object([&] {
        json.member("cation", nameInFull(*pair.cation));
        json.member("anion", nameInFull(*pair.anion));
        if (whyFormulaIsNotAsked(pair).empty()) {
            json.member("formula", compoundFormula(*pair.cation, *pair.anion));
        }
        addVerdict(json, pair);
    });
}

void addElements(Json& json)
{
    json.elements([&] {
        for (int number = 1; number <= elementCount; ++number) {
            add(json, element(number));
        }
    });
}

void addIons(Json& json)
{
    json.elements([&] {
        for (const auto* const list : {&cations(), &anions(), &furtherIons()}) {
            for (const IonRow* const ion : *list) {
                add(json, *ion);
            }
        }
    });
}

void addPairs(Json& json)
{
    json.elements([&] {
        for (const IonRow* const cation : cations()) {
            for (const IonRow* const anion : anions()) {
                add(json, Pair{cation, anion});
            }
        }
    });
}

} // namespace

std::string tablesJson()
{
    Json json;
    json.object([&] {
        json.member("version", tablesVersion);
        addElements(json.key("elements"));
        addIons(json.key("ions"));
        json.key("rules").array(solubilityRules(),
                                [&](const SolubilityRule& rule) { add(json, rule); });
        addPairs(json.key("pairs"));
    });
    return json.take();
}

} // namespace lesson
