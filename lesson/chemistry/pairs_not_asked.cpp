#include "lesson/chemistry/pairs_not_asked.hpp"

#include <algorithm>
#include <cstddef>
#include <iterator>

namespace lesson
{

namespace
{

// Which compounds of an anion are not asked: those of the listed cations, or all but those.
enum class Of { these, allBut };

struct NotAskedRow {
    Ion anion;
    Of of;
    IonSet cations;
    std::string_view reason;
};

// clang-format off
constexpr NotAskedRow noFormula[] = {
    {Ion::hydroxide,         Of::these,  {Ion::ammonium},                  "Ammonia solution holds ammonia and water; ammonium hydroxide cannot be obtained from it."},
    {Ion::hydroxide,         Of::these,  {Ion::silver},                    "It falls apart into silver oxide and water."},
    {Ion::hydroxide,         Of::these,  {Ion::tin2},                      "It has no simple formula: it loses some of its water at once."},
    {Ion::oxide,             Of::these,  {Ion::ammonium},                  "It does not exist."},
    {Ion::carbonate,         Of::these,  {Ion::aluminium, Ion::chromium3, Ion::iron3}, "It does not exist: with water the hydroxide and carbon dioxide form instead."},
    {Ion::carbonate,         Of::these,  {Ion::tin2},                      "It is hardly known: it falls apart into tin(II) oxide and carbon dioxide."},
    {Ion::hydrogencarbonate, Of::allBut, {Ion::sodium, Ion::potassium, Ion::ammonium, Ion::magnesium, Ion::calcium}, "It cannot be obtained as a substance."},
    {Ion::iodide,            Of::these,  {Ion::iron3},                     "Iron(III) turns iodide into iodine, so that iron(II) iodide forms."},
    {Ion::iodide,            Of::these,  {Ion::copper2},                   "Copper(II) turns iodide into iodine, so that copper(I) iodide forms."},
    {Ion::nitrate,           Of::these,  {Ion::tin2},                      "It falls apart: nitrate oxidises tin(II)."},
    {Ion::sulfide,           Of::these,  {Ion::iron3},                     "It falls apart into iron(II) sulfide and sulfur."},
    {Ion::nitride,           Of::allBut, {Ion::lithium, Ion::magnesium, Ion::calcium, Ion::barium, Ion::aluminium}, "It is unknown, or too unstable or unusual for school."},
    {Ion::phosphide,         Of::allBut, {Ion::sodium, Ion::potassium, Ion::magnesium, Ion::calcium, Ion::aluminium, Ion::zinc}, "It is unknown, or has another formula than its ions suggest."},
    {Ion::ethanoate,         Of::these,  {Ion::aluminium, Ion::chromium3, Ion::iron3}, "What is sold under the name has another formula, with hydroxide or oxide in it."},
    {Ion::ethanoate,         Of::these,  {Ion::tin2, Ion::iron2},          "It is oxidised by air, and is hardly met at school."},
};

// Besides the above.
constexpr NotAskedRow noSolubility[] = {
    {Ion::oxide,             Of::allBut, {},                               "An oxide does not just dissolve: it reacts with water to a hydroxide, or stays as it is."},
    {Ion::nitride,           Of::allBut, {},                               "Nitrides do not dissolve: they react with water or stay as they are."},
    {Ion::phosphide,         Of::allBut, {},                               "Phosphides do not dissolve: they react with water."},
    {Ion::fluoride,          Of::allBut, {},                               "School tables differ on fluorides."},
    {Ion::chloride,          Of::these,  {Ion::tin2},                      "Tin(II) compounds react with water unless there is acid."},
    {Ion::bromide,           Of::these,  {Ion::tin2},                      "Tin(II) compounds react with water unless there is acid."},
    {Ion::iodide,            Of::these,  {Ion::tin2},                      "Tin(II) compounds react with water unless there is acid."},
    {Ion::sulfide,           Of::these,  {Ion::tin2},                      "School tables leave out the compounds of tin(II)."},
    {Ion::sulfate,           Of::these,  {Ion::tin2},                      "Tin(II) compounds react with water unless there is acid."},
    {Ion::phosphate,         Of::these,  {Ion::tin2},                      "School tables leave out the compounds of tin(II)."},
    {Ion::carbonate,         Of::these,  {Ion::lithium},                   "It dissolves a little: school tables differ."},
    {Ion::phosphate,         Of::these,  {Ion::lithium},                   "It hardly dissolves, unlike other alkali salts: school tables differ."},
    {Ion::hydrogencarbonate, Of::allBut, {Ion::sodium, Ion::potassium, Ion::ammonium}, "It exists only in solution."},
    {Ion::hydroxide,         Of::these,  {Ion::calcium, Ion::barium},      "It dissolves a little: school tables differ."},
    {Ion::sulfate,           Of::these,  {Ion::calcium, Ion::silver},      "It dissolves a little: school tables differ."},
    {Ion::chloride,          Of::these,  {Ion::lead2},                     "It dissolves in hot water, but hardly in cold water: school tables differ."},
    {Ion::bromide,           Of::these,  {Ion::lead2},                     "It dissolves in hot water, but hardly in cold water: school tables differ."},
    {Ion::ethanoate,         Of::these,  {Ion::silver},                    "It dissolves a little: school tables differ."},
    {Ion::sulfide,           Of::these,  {Ion::magnesium, Ion::calcium, Ion::barium, Ion::aluminium, Ion::chromium3}, "It reacts with water."},
    {Ion::bromide,           Of::these,  {Ion::aluminium, Ion::chromium3}, "It reacts violently with water, or dissolves too slowly to tell."},
    {Ion::iodide,            Of::these,  {Ion::aluminium, Ion::chromium3}, "It reacts violently with water, or dissolves too slowly to tell."},
};
// clang-format on

bool covers(const NotAskedRow& row, const Pair& pair)
{
    return row.anion == pair.anion->id && row.cations.has(pair.cation->id) == (row.of == Of::these);
}

template <std::size_t N>
std::string_view reasonIn(const NotAskedRow (&rows)[N], const Pair& pair)
{
    const auto* const row = std::find_if(std::begin(rows), std::end(rows),
                                         [&pair](const NotAskedRow& r) { return covers(r, pair); });
    return row == std::end(rows) ? std::string_view() : row->reason;
}

std::vector<Pair> pairsWithout(std::string_view (*reason)(const Pair&))
{
    std::vector<Pair> pairs;
    for (const IonRow* const cation : cations()) {
        for (const IonRow* const anion : anions()) {
            if (reason({cation, anion}).empty()) {
                pairs.push_back({cation, anion});
            }
        }
    }
    return pairs;
}

} // namespace

std::string_view whyFormulaIsNotAsked(const Pair& pair)
{
    return reasonIn(noFormula, pair);
}

std::string_view whySolubilityIsNotAsked(const Pair& pair)
{
    const std::string_view reason = whyFormulaIsNotAsked(pair);
    return reason.empty() ? reasonIn(noSolubility, pair) : reason;
}

const std::vector<Pair>& pairsForFormulas()
{
    static const std::vector<Pair> pairs = pairsWithout(whyFormulaIsNotAsked);
    return pairs;
}

const std::vector<Pair>& pairsForSolubility()
{
    static const std::vector<Pair> pairs = pairsWithout(whySolubilityIsNotAsked);
    return pairs;
}

} // namespace lesson
