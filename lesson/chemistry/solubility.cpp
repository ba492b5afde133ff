#include "lesson/chemistry/solubility.hpp"

#include <algorithm>
#include <iterator>

namespace lesson
{

namespace
{

// clang-format off
constexpr SolubilityRule rules[] = {
    {Ion::nitrate,           true,  {},                                                      "nitrates",                  "All nitrates are soluble."},
    {Ion::ethanoate,         true,  {},                                                      "ethanoates",                "Ethanoates are soluble."},
    {Ion::chloride,          true,  {Ion::silver, Ion::lead2},                               "halides",                   "Chlorides are soluble, except those of silver and lead."},
    {Ion::bromide,           true,  {Ion::silver, Ion::lead2},                               "halides",                   "Bromides are soluble, except those of silver and lead."},
    {Ion::iodide,            true,  {Ion::silver, Ion::lead2},                               "halides",                   "Iodides are soluble, except those of silver and lead."},
    {Ion::sulfate,           true,  {Ion::barium, Ion::lead2},                               "sulfates",                  "Sulfates are soluble, except those of barium and lead, and in part calcium and silver."},
    {Ion::hydrogencarbonate, true,  {},                                                      "hydrogencarbonates",        "The hydrogencarbonates of sodium, potassium and ammonium are soluble."},
    {Ion::hydroxide,         false, {Ion::lithium, Ion::sodium, Ion::potassium},             "hydroxides",                "Hydroxides are insoluble, except those of lithium, sodium and potassium, and in part calcium and barium."},
    {Ion::carbonate,         false, {Ion::sodium, Ion::potassium, Ion::ammonium},            "carbonates and phosphates", "Carbonates are insoluble, except those of sodium, potassium and ammonium."},
    {Ion::phosphate,         false, {Ion::sodium, Ion::potassium, Ion::ammonium},            "carbonates and phosphates", "Phosphates are insoluble, except those of sodium, potassium and ammonium."},
    {Ion::sulfide,           false, {Ion::lithium, Ion::sodium, Ion::potassium, Ion::ammonium}, "sulfides",               "Sulfides are insoluble, except those of lithium, sodium, potassium and ammonium."},
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
