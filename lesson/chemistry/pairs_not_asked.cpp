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
    Ion anion = {};
    Of of = Of::these;
    IonSet cations = {};
    Sentence reason = {};
};

// clang-format off
constexpr NotAskedRow noFormula[] = {
    {Ion::hydroxide,         Of::these,  {Ion::ammonium},                  Sentence::notAskedAmmoniumHydroxide},
    {Ion::hydroxide,         Of::these,  {Ion::silver},                    Sentence::notAskedSilverHydroxide},
    {Ion::hydroxide,         Of::these,  {Ion::tin2},                      Sentence::notAskedTinHydroxide},
    {Ion::oxide,             Of::these,  {Ion::ammonium},                  Sentence::notAskedNotThere},
    {Ion::carbonate,         Of::these,  {Ion::aluminium, Ion::chromium3, Ion::iron3}, Sentence::notAskedCarbonateInWater},
    {Ion::carbonate,         Of::these,  {Ion::tin2},                      Sentence::notAskedTinCarbonate},
    {Ion::hydrogencarbonate, Of::allBut, {Ion::sodium, Ion::potassium, Ion::ammonium, Ion::magnesium, Ion::calcium}, Sentence::notAskedNoSubstance},
    {Ion::iodide,            Of::these,  {Ion::iron3},                     Sentence::notAskedIronIodide},
    {Ion::iodide,            Of::these,  {Ion::copper2},                   Sentence::notAskedCopperIodide},
    {Ion::nitrate,           Of::these,  {Ion::tin2},                      Sentence::notAskedTinNitrate},
    {Ion::sulfide,           Of::these,  {Ion::iron3},                     Sentence::notAskedIronSulfide},
    {Ion::nitride,           Of::allBut, {Ion::lithium, Ion::magnesium, Ion::calcium, Ion::barium, Ion::aluminium}, Sentence::notAskedNitride},
    {Ion::phosphide,         Of::allBut, {Ion::sodium, Ion::potassium, Ion::magnesium, Ion::calcium, Ion::aluminium, Ion::zinc}, Sentence::notAskedPhosphide},
    {Ion::ethanoate,         Of::these,  {Ion::aluminium, Ion::chromium3, Ion::iron3}, Sentence::notAskedBasicSalt},
    {Ion::ethanoate,         Of::these,  {Ion::tin2, Ion::iron2},          Sentence::notAskedOxidisedByAir},
};

// Besides the above.
constexpr NotAskedRow noSolubility[] = {
    {Ion::oxide,             Of::allBut, {},                               Sentence::notAskedWhetherOxideDissolves},
    {Ion::nitride,           Of::allBut, {},                               Sentence::notAskedWhetherNitrideDissolves},
    {Ion::phosphide,         Of::allBut, {},                               Sentence::notAskedWhetherPhosphideDissolves},
    {Ion::fluoride,          Of::allBut, {},                               Sentence::notAskedTablesOnFluorides},
    {Ion::chloride,          Of::these,  {Ion::tin2},                      Sentence::notAskedTinWithoutAcid},
    {Ion::bromide,           Of::these,  {Ion::tin2},                      Sentence::notAskedTinWithoutAcid},
    {Ion::iodide,            Of::these,  {Ion::tin2},                      Sentence::notAskedTinWithoutAcid},
    {Ion::sulfide,           Of::these,  {Ion::tin2},                      Sentence::notAskedTablesWithoutTin},
    {Ion::sulfate,           Of::these,  {Ion::tin2},                      Sentence::notAskedTinWithoutAcid},
    {Ion::phosphate,         Of::these,  {Ion::tin2},                      Sentence::notAskedTablesWithoutTin},
    {Ion::carbonate,         Of::these,  {Ion::lithium},                   Sentence::notAskedDissolvesALittle},
    {Ion::phosphate,         Of::these,  {Ion::lithium},                   Sentence::notAskedHardlyDissolves},
    {Ion::hydrogencarbonate, Of::allBut, {Ion::sodium, Ion::potassium, Ion::ammonium}, Sentence::notAskedOnlyInSolution},
    {Ion::hydroxide,         Of::these,  {Ion::calcium, Ion::barium},      Sentence::notAskedDissolvesALittle},
    {Ion::sulfate,           Of::these,  {Ion::calcium, Ion::silver},      Sentence::notAskedDissolvesALittle},
    {Ion::chloride,          Of::these,  {Ion::lead2},                     Sentence::notAskedDissolvesInHotWater},
    {Ion::bromide,           Of::these,  {Ion::lead2},                     Sentence::notAskedDissolvesInHotWater},
    {Ion::ethanoate,         Of::these,  {Ion::silver},                    Sentence::notAskedDissolvesALittle},
    {Ion::sulfide,           Of::these,  {Ion::magnesium, Ion::calcium, Ion::barium, Ion::aluminium, Ion::chromium3}, Sentence::notAskedReactsWithWater},
    {Ion::bromide,           Of::these,  {Ion::aluminium, Ion::chromium3}, Sentence::notAskedReactsOrTooSlow},
    {Ion::iodide,            Of::these,  {Ion::aluminium, Ion::chromium3}, Sentence::notAskedReactsOrTooSlow},
};
// clang-format on

bool covers(const NotAskedRow& row, const Pair& pair)
{
    return row.anion == pair.anion->id && row.cations.has(pair.cation->id) == (row.of == Of::these);
}

template <std::size_t N>
std::optional<Sentence> reasonIn(const NotAskedRow (&rows)[N], const Pair& pair)
{
    const auto* const row = std::find_if(std::begin(rows), std::end(rows),
                                         [&pair](const NotAskedRow& r) { return covers(r, pair); });
    return row == std::end(rows) ? std::nullopt : std::optional(row->reason);
}

std::vector<Pair> pairsWithout(std::optional<Sentence> (*reason)(const Pair&))
{
    std::vector<Pair> pairs;
    for (const IonRow* const cation : cations()) {
        for (const IonRow* const anion : anions()) {
            if (!reason({cation, anion})) {
                pairs.push_back({cation, anion});
            }
        }
    }
    return pairs;
}

} // namespace

std::optional<Sentence> whyFormulaIsNotAsked(const Pair& pair)
{
    return reasonIn(noFormula, pair);
}

std::optional<Sentence> whySolubilityIsNotAsked(const Pair& pair)
{
    const std::optional<Sentence> reason = whyFormulaIsNotAsked(pair);
    return reason ? reason : reasonIn(noSolubility, pair);
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
