#include "lesson/border/tables_json.hpp"

#include <optional>
#include <string_view>
#include <vector>

#include "lesson/border/json.hpp"
#include "lesson/border/spans_json.hpp"
#include "lesson/chemistry/elements.hpp"
#include "lesson/chemistry/ions.hpp"
#include "lesson/chemistry/pairs_not_asked.hpp"
#include "lesson/chemistry/solubility.hpp"
#include "lesson/exercise.hpp"
#include "lesson/kinds/shared/salts.hpp"
#include "lesson/words/render.hpp"
#include "lesson/words/say.hpp"

namespace lesson
{

namespace
{

// Raised by every change of what they hold.
constexpr int tablesVersion = 2;

void add(Json& json, const ElementRow& row, const Writing& writing)
{
    json.object([&] {
        json.member("number", row.number);
        json.member("symbol", row.symbol);
        json.member("name", nameIn(*writing.language, nameOf(row)));
        json.member("mass", shownMass(row));
        json.member("period", row.period);
        json.member("group", row.group);
    });
}

void add(Json& json, const IonRow& ion, const Writing& writing)
{
    json.object([&] {
        json.member("name", nameIn(*writing.language, nameOf(ion)));
        json.member("formula", ion.formula);
        json.member("charge", ion.charge);
    });
}

std::string_view verdict(bool isSoluble)
{
    return isSoluble ? "soluble" : "insoluble";
}

void addNames(Json& json, const IonSet& ofCations, const Writing& writing)
{
    json.elements([&] {
        for (const IonRow* const cation : cations()) {
            if (ofCations.has(cation->id)) {
                json.text(nameIn(*writing.language, nameOf(*cation)));
            }
        }
    });
}

// "halides"; of the one anion where a family has no other.
Span nameOf(Family family, const IonRow& anion)
{
    switch (family) {
    case Family::carbonatesAndPhosphates:
        return say<Sentence::familyCarbonatesAndPhosphates>();
    case Family::halides:
        return say<Sentence::familyHalides>();
    default:
        return name(nameOfFamily(anion));
    }
}

void add(Json& json, const SolubilityRule& rule, const Writing& writing)
{
    json.object([&] {
        json.member("anion", nameIn(*writing.language, nameOf(rowOf(rule.anion))));
        json.member("family", plainText(line(nameOf(rule.family, rowOf(rule.anion))), writing));
        json.member("verdict", verdict(rule.isSoluble));
        addNames(json.key("exceptions"), rule.exceptions, writing);
        add(json.key("sentence"), rendered(line(sentenceOf(rule)), writing));
    });
}

void addVerdict(Json& json, const Pair& pair, const Writing& writing)
{
    const std::optional<Sentence> whyNot = whySolubilityIsNotAsked(pair);
    json.member("verdict", whyNot ? "not asked" : verdict(isSoluble(pair)));
    const Span reason = whyNot ? say(*whyNot) : sentenceOf(*ruleFor(*pair.anion));
    add(json.key("reason"), rendered(line(reason), writing));
}

void add(Json& json, const Pair& pair, const Writing& writing)
{
    json.object([&] {
        json.member("cation", nameIn(*writing.language, nameOf(*pair.cation)));
        json.member("anion", nameIn(*writing.language, nameOf(*pair.anion)));
        if (!whyFormulaIsNotAsked(pair)) {
            json.member("formula", compoundFormula(*pair.cation, *pair.anion));
        }
        addVerdict(json, pair, writing);
    });
}

void addElements(Json& json, const Writing& writing)
{
    json.elements([&] {
        for (int number = 1; number <= elementCount; ++number) {
            add(json, element(number), writing);
        }
    });
}

void addIons(Json& json, const Writing& writing)
{
    json.elements([&] {
        for (const auto* const list : {&cations(), &anions(), &furtherIons()}) {
            for (const IonRow* const ion : *list) {
                add(json, *ion, writing);
            }
        }
    });
}

void addPairs(Json& json, const Writing& writing)
{
    json.elements([&] {
        for (const IonRow* const cation : cations()) {
            for (const IonRow* const anion : anions()) {
                add(json, Pair{cation, anion}, writing);
            }
        }
    });
}

} // namespace

std::string tablesJson(const Writing& writing)
{
    Json json;
    json.object([&] {
        json.member("version", tablesVersion);
        addElements(json.key("elements"), writing);
        addIons(json.key("ions"), writing);
        json.key("rules").array(solubilityRules(),
                                [&](const SolubilityRule& rule) { add(json, rule, writing); });
        addPairs(json.key("pairs"), writing);
    });
    return json.take();
}

} // namespace lesson
