#include <algorithm>
#include <cstddef>
#include <iterator>
#include <numeric>
#include <vector>

#include "lesson/kinds/shared/orders.hpp"
#include "lesson/kinds/shared/quantities.hpp"
#include "lesson/kinds/titration.hpp"
#include "lesson/marking/number.hpp"
#include "lesson/paper/seeds.hpp"

namespace lesson
{

namespace
{

constexpr int pipettes[] = {10, 20, 25}; // mL

// Titres, in hundredths of a millilitre.
constexpr int readable = 5; // the steps that can be read at a burette
constexpr int leastTitre = 1000;
constexpr int greatestTitre = 4000;
constexpr int concordance = 10; // by which concordant titres differ at most
constexpr int leastExcess = 30; // of the rough titre over each of the others
constexpr int greatestExcess = 100;

Ratio litresOf(int hundredths)
{
    return ratio(hundredths, 100000);
}

Ratio acidForOneBase(const TitrationRow& pair)
{
    return ratio(uptakeOf(baseOf(pair)).protons, protonsOf(rowOf(pair.acid)));
}

// What is drawn once, so that no draw that is drawn again makes it rarer: every ratio of a level as
// often as the others, whatever the number of its pairs, and how many titres count.
struct Class {
    std::vector<const TitrationRow*> pairs; // each as often as it comes
    int titres;                             // 0 where there is a single one and no rough one
};

std::vector<const TitrationRow*> drawRatio(Draws& draws, int level)
{
    const Ratio half = ratio(1, 2);
    const Ratio one = ratio(1);
    const Ratio two = ratio(2);
    const std::vector<Ratio> levels[] = {{one}, {half, two}, {half, one, two}};
    const Ratio drawn = draws.oneOf(levels[level - 1]);
    std::vector<const TitrationRow*> pairs;
    for (const TitrationRow& pair : titrations()) {
        if (acidForOneBase(pair) == drawn) {
            pairs.insert(pairs.end(), static_cast<std::size_t>(pair.times), &pair);
        }
    }
    return pairs;
}

Class drawClass(Draws& draws, int level)
{
    Class drawn = {drawRatio(draws, level), 0};
    if (level == 3) {
        drawn.titres = draws.between(2, 3);
    }
    return drawn;
}

// 0.0500 to 0.0995 mol/L in steps of 0.0005, and 0.100 to 0.500 mol/L in steps of 0.001.
Ratio drawConcentration(Draws& draws)
{
    constexpr int below = 100;
    constexpr int above = 401;
    const int drawn = draws.between(0, below + above - 1);
    return molesPerLitre(drawn < below ? 500 + 5 * drawn : 1000 + 10 * (drawn - below));
}

Indicator drawIndicator(Draws& draws, const TitrationRow& pair)
{
    constexpr Indicator both[] = {Indicator::phenolphthalein, Indicator::methylOrange};
    return pair.indicator == Indicator::either ? draws.oneOf(both) : pair.indicator;
}

bool drawAcidInBurette(Draws& draws, const TitrationRow& pair)
{
    return pair.inBurette == InBurette::either ? draws.below(2) == 0
                                               : pair.inBurette == InBurette::acid;
}

int drawTitre(Draws& draws)
{
    return readable * draws.between(leastTitre / readable, greatestTitre / readable);
}

// The rough titre, and so many others that are concordant; these may be past the greatest.
std::vector<int> drawTitres(Draws& draws, int count)
{
    std::vector<int> concordant(static_cast<std::size_t>(count));
    const int least = drawTitre(draws);
    for (int& titre : concordant) {
        titre = least + readable * draws.between(0, concordance / readable);
    }
    const auto [low, high] = std::minmax_element(concordant.begin(), concordant.end());
    const int spread = *high - *low;
    const int excess =
        readable * draws.between(leastExcess / readable, (greatestExcess - spread) / readable);
    std::vector<int> titres = {*high + excess};
    titres.insert(titres.end(), concordant.begin(), concordant.end());
    return titres;
}

template <typename Iterator>
Ratio meanOf(Iterator first, Iterator last)
{
    const int sum = std::accumulate(first, last, 0);
    return litresOf(sum) / ratio(std::distance(first, last));
}

Titration drawOnce(Draws& draws, const Class& ofClass)
{
    Titration drawn = {};
    drawn.pair = draws.oneOf(ofClass.pairs);
    drawn.indicator = drawIndicator(draws, *drawn.pair);
    drawn.isAcidInBurette = drawAcidInBurette(draws, *drawn.pair);
    drawn.isAcidKnown = draws.below(2) == 0;
    drawn.concentration = drawConcentration(draws);
    drawn.inFlask = litres(draws.oneOf(pipettes));
    if (ofClass.titres > 0) {
        drawn.titres = drawTitres(draws, ofClass.titres);
        drawn.fromBurette = meanTitre(drawn.titres);
    } else {
        drawn.fromBurette = litresOf(drawTitre(draws));
    }
    drawn.answer = workedOut(drawn);
    return drawn;
}

bool isInRange(const Titration& drawn)
{
    const bool areTitresReadable =
        std::all_of(drawn.titres.begin() + (drawn.titres.empty() ? 0 : 1), drawn.titres.end(),
                    [](int titre) { return titre <= greatestTitre; });
    return ratio(2, 100) <= drawn.answer && drawn.answer <= ratio(1) && areTitresReadable;
}

// A ratio that is left out or turned over shows by itself, since it is 2 or a half. A rough titre
// shows the least often.
bool showsMistakes(const Titration& drawn)
{
    const NumberAnswer answer = numberAnswerOf(drawn);
    const auto isShown = [&](Ratio mistake) { return isVisible(answer, askedFigures, mistake); };
    if (!drawn.titres.empty() && !isShown(answerFor(drawn, meanWithRoughTitre(drawn)))) {
        return false;
    }
    const auto [known, unknown] = volumesOf(drawn);
    const Ratio exchange = unknown / known;
    const Ratio withoutVolumes = drawn.answer * exchange;
    return isShown(drawn.concentration) && isShown(withoutVolumes) &&
           isShown(withoutVolumes * exchange);
}

Calculation calculationOf(const Titration& drawn)
{
    const Volumes volumes = volumesOf(drawn);
    return {{drawn.concentration, volumes.known}, {volumes.unknown}, {}, ratioOf(drawn)};
}

// A mean is worked out beforehand, a single titre is read.
bool bearsEveryOrder(const Titration& drawn)
{
    const CorrectAnswers correct(drawn.answer);
    const std::vector<Ratio> used = drawn.titres.empty() ? std::vector<Ratio>{drawn.fromBurette}
                                                         : roundedOrKept(drawn.fromBurette);
    return std::all_of(used.begin(), used.end(), [&](Ratio fromBurette) {
        Titration worked = drawn;
        worked.fromBurette = fromBurette;
        return correct.haveEveryOrderOf(calculationOf(worked));
    });
}

} // namespace

Titration drawTitration(const Place& place)
{
    Draws draws = drawsFor(place);
    const Class ofClass = drawClass(draws, place.level);
    for (;;) {
        Titration drawn = drawOnce(draws, ofClass);
        if (isAskable(drawn)) {
            return drawn;
        }
    }
}

bool isAskable(const Titration& titration)
{
    return isInRange(titration) && showsMistakes(titration) && bearsEveryOrder(titration);
}

Ratio meanTitre(const std::vector<int>& titres)
{
    return meanOf(titres.begin() + 1, titres.end());
}

Ratio workedOut(const Titration& titration)
{
    const auto [known, unknown] = volumesOf(titration);
    return titration.concentration * known * ratioOf(titration) / unknown;
}

bool isKnownInBurette(const Titration& drawn)
{
    return drawn.isAcidKnown == drawn.isAcidInBurette;
}

Ratio ratioOf(const Titration& drawn)
{
    const Ratio acid = acidForOneBase(*drawn.pair);
    return drawn.isAcidKnown ? ratio(1) / acid : acid;
}

Volumes volumesOf(const Titration& drawn)
{
    return isKnownInBurette(drawn) ? Volumes{drawn.fromBurette, drawn.inFlask}
                                   : Volumes{drawn.inFlask, drawn.fromBurette};
}

Ratio answerFor(const Titration& drawn, Ratio fromBurette)
{
    const Ratio change = fromBurette / drawn.fromBurette;
    return isKnownInBurette(drawn) ? drawn.answer * change : drawn.answer / change;
}

Ratio meanWithRoughTitre(const Titration& drawn)
{
    return meanOf(drawn.titres.begin(), drawn.titres.end());
}

Ratio roughTitre(const Titration& drawn)
{
    return litresOf(drawn.titres.front());
}

NumberAnswer numberAnswerOf(const Titration& drawn)
{
    return {drawn.answer, {}, false, true};
}

} // namespace lesson
