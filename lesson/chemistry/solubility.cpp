#include "lesson/chemistry/solubility.hpp"

#include <algorithm>
#include <iterator>

namespace lesson
{

namespace
{

// clang-format off
constexpr SolubilityRule rules[] = {
    {Ion::nitrate,           true,  {},                                                           Family::nitrates,                Sentence::ruleAllSoluble},
    {Ion::ethanoate,         true,  {},                                                           Family::ethanoates,              Sentence::ruleSoluble},
    {Ion::chloride,          true,  {Ion::silver, Ion::lead2},                                    Family::halides,                 Sentence::ruleSolubleButSilverLead},
    {Ion::bromide,           true,  {Ion::silver, Ion::lead2},                                    Family::halides,                 Sentence::ruleSolubleButSilverLead},
    {Ion::iodide,            true,  {Ion::silver, Ion::lead2},                                    Family::halides,                 Sentence::ruleSolubleButSilverLead},
    {Ion::sulfate,           true,  {Ion::barium, Ion::lead2},                                    Family::sulfates,                Sentence::ruleSolubleButBariumLead},
    {Ion::hydrogencarbonate, true,  {},                                                           Family::hydrogencarbonates,      Sentence::ruleOfThreeSoluble},
    {Ion::hydroxide,         false, {Ion::lithium, Ion::sodium, Ion::potassium},                  Family::hydroxides,              Sentence::ruleInsolubleButAlkaliMetals},
    {Ion::carbonate,         false, {Ion::sodium, Ion::potassium, Ion::ammonium},                 Family::carbonatesAndPhosphates, Sentence::ruleInsolubleButThree},
    {Ion::phosphate,         false, {Ion::sodium, Ion::potassium, Ion::ammonium},                 Family::carbonatesAndPhosphates, Sentence::ruleInsolubleButThree},
    {Ion::sulfide,           false, {Ion::lithium, Ion::sodium, Ion::potassium, Ion::ammonium},   Family::sulfides,                Sentence::ruleInsolubleButFour},
};
// clang-format on

} // namespace

const std::vector<SolubilityRule>& solubilityRules()
{
    static const std::vector<SolubilityRule> all(std::begin(rules), std::end(rules));
    return all;
}

const SolubilityRule* ruleFor(const IonRow& anion)
{
    const auto* const rule =
        std::find_if(std::begin(rules), std::end(rules),
                     [&anion](const SolubilityRule& r) { return r.anion == anion.id; });
    return rule == std::end(rules) ? nullptr : rule;
}

bool isException(const Pair& pair)
{
    return ruleFor(*pair.anion)->exceptions.has(pair.cation->id);
}

bool isSoluble(const Pair& pair)
{
    return ruleFor(*pair.anion)->isSoluble != isException(pair);
}

} // namespace lesson
