#include <algorithm>
#include <iterator>
#include <numeric>
#include <string>
#include <utility>
#include <vector>

#include "lesson/kinds/kinds.hpp"
#include "lesson/kinds/orders.hpp"
#include "lesson/kinds/quantities.hpp"
#include "lesson/reaction.hpp"

namespace lesson
{

namespace
{

// An acid and a base, one of them pipetted into the flask, the other one run in from the burette;
// one concentration is known, the other one is asked for. Level 1 has those that react one to one,
// level 2 the others, both with the equation; level 3 has any, without it and with several titres.
struct Titration {
    const TitrationRow* pair;
    Indicator indicator; // one of the two
    bool isAcidInBurette;
    bool isAcidKnown;
    Ratio concentration;     // of the known, mol/L
    Ratio inFlask;           // L
    Ratio fromBurette;       // L; the mean where there are several titres
    std::vector<int> titres; // these, in hundredths of a millilitre, the rough one first
};

// ---------------------------------------------------------------------------------- the draw

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
    return ratio(pair.protonsTaken, pair.protonsGiven);
}

// Every ratio of a level as often as the others, whatever the number of its pairs.
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
            pairs.push_back(&pair);
        }
    }
    return pairs;
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

// The rough titre, and two or three others that are concordant; these may be past the greatest.
std::vector<int> drawTitres(Draws& draws)
{
    std::vector<int> concordant(2 + draws.below(2));
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

Titration drawOnce(Draws& draws, const std::vector<const TitrationRow*>& pairs, bool hasTitres)
{
    Titration drawn = {};
    drawn.pair = draws.oneOf(pairs);
    drawn.indicator = drawIndicator(draws, *drawn.pair);
    drawn.isAcidInBurette = drawAcidInBurette(draws, *drawn.pair);
    drawn.isAcidKnown = draws.below(2) == 0;
    drawn.concentration = drawConcentration(draws);
    drawn.inFlask = litres(draws.oneOf(pipettes));
    if (hasTitres) {
        drawn.titres = drawTitres(draws);
        drawn.fromBurette = meanOf(drawn.titres.begin() + 1, drawn.titres.end());
    } else {
        drawn.fromBurette = litresOf(drawTitre(draws));
    }
    return drawn;
}

bool isKnownInBurette(const Titration& drawn)
{
    return drawn.isAcidKnown == drawn.isAcidInBurette;
}

// Moles of the unknown for one of the known.
Ratio ratioOf(const Titration& drawn)
{
    const Ratio acid = acidForOneBase(*drawn.pair);
    return drawn.isAcidKnown ? ratio(1) / acid : acid;
}

struct Volumes {
    Ratio known;
    Ratio unknown;
};

Volumes volumesOf(const Titration& drawn)
{
    return isKnownInBurette(drawn) ? Volumes{drawn.fromBurette, drawn.inFlask}
                                   : Volumes{drawn.inFlask, drawn.fromBurette};
}

Ratio answerOf(const Titration& drawn)
{
    const Volumes volumes = volumesOf(drawn);
    return drawn.concentration * volumes.known * ratioOf(drawn) / volumes.unknown;
}

bool isInRange(const Titration& drawn)
{
    const Ratio answer = answerOf(drawn);
    const bool areTitresReadable =
        std::all_of(drawn.titres.begin() + (drawn.titres.empty() ? 0 : 1), drawn.titres.end(),
                    [](int titre) { return titre <= greatestTitre; });
    return ratio(2, 100) <= answer && answer <= ratio(1) && areTitresReadable;
}

// One to one is no factor.
Calculation calculationOf(const Titration& drawn)
{
    const Volumes volumes = volumesOf(drawn);
    const Ratio moles = ratioOf(drawn);
    Calculation calculation = {{drawn.concentration, volumes.known}, {volumes.unknown}};
    if (moles != ratio(1)) {
        calculation.above.push_back(moles);
    }
    return calculation;
}

// A mean is worked out beforehand, a single titre is read.
bool bearsEveryOrder(const Titration& drawn)
{
    const CorrectAnswers correct(answerOf(drawn));
    const std::vector<Ratio> used = drawn.titres.empty() ? std::vector<Ratio>{drawn.fromBurette}
                                                         : roundedOrKept(drawn.fromBurette);
    return std::all_of(used.begin(), used.end(), [&](Ratio fromBurette) {
        Titration worked = drawn;
        worked.fromBurette = fromBurette;
        return correct.haveEveryOrderOf(calculationOf(worked));
    });
}

Titration draw(const Place& place)
{
    Draws draws = drawsFor(place);
    const std::vector<const TitrationRow*> pairs = drawRatio(draws, place.level);
    for (;;) {
        Titration drawn = drawOnce(draws, pairs, place.level == 3);
        if (isInRange(drawn) && bearsEveryOrder(drawn)) {
            return drawn;
        }
    }
}

// ----------------------------------------------------------------------- what it is about

Base baseOf(std::string_view formula)
{
    for (const char* const anion : {"hydroxide", "carbonate", "hydrogencarbonate"}) {
        for (const char* const cation : {"lithium", "sodium", "potassium"}) {
            const Base base = {findIon(cation), findIon(anion)};
            if (formulaOf(base) == formula) {
                return base;
            }
        }
    }
    return ammonia();
}

Equation equationOf(const Titration& drawn)
{
    return neutralisationOf(*findAcid(drawn.pair->acid), baseOf(drawn.pair->base));
}

// The two solutions by their places and by what is known of them.
struct Solutions {
    const SoluteRow* inFlask;
    const SoluteRow* inBurette;
    const SoluteRow* known;
    const SoluteRow* unknown;
};

Solutions solutionsOf(const Titration& drawn)
{
    const SoluteRow* const acid = findSolute(drawn.pair->acid);
    const SoluteRow* const base = findSolute(drawn.pair->base);
    return {drawn.isAcidInBurette ? base : acid, drawn.isAcidInBurette ? acid : base,
            drawn.isAcidKnown ? acid : base, drawn.isAcidKnown ? base : acid};
}

// As the prompt tells them.
struct Quantities {
    GivenQuantity concentration;
    GivenQuantity inFlask;
    GivenQuantity fromBurette;
};

GivenQuantity givenBurette(const Titration& drawn, std::string_view of)
{
    GivenQuantity given = givenTitre(of, drawn.fromBurette);
    given.titres = drawn.titres;
    return drawn.titres.empty() ? given : untold(given);
}

Quantities quantitiesOf(const Titration& drawn, const Solutions& solutions)
{
    return {givenConcentration("c", solutions.known->formula, drawn.concentration),
            givenVolume("V", solutions.inFlask->formula, drawn.inFlask),
            givenBurette(drawn, solutions.inBurette->formula)};
}

// -------------------------------------------------------------------------------- the prompt

// 0.105 mol/L hydrochloric acid, or its name alone.
Spans withConcentration(const SoluteRow& solution, const Solutions& solutions,
                        const GivenQuantity& concentration)
{
    return &solution == solutions.known ? line(told(concentration), " ", solutionOf(solution))
                                        : solutionOf(solution);
}

const char* nameOf(Indicator indicator)
{
    return indicator == Indicator::phenolphthalein ? "phenolphthalein" : "methyl orange";
}

// Halfway a carbonate has become a hydrogencarbonate, which other indicators show.
bool givesCarbonDioxide(const Titration& drawn)
{
    return drawn.pair->base.find("CO3") != std::string_view::npos;
}

Spans measureOfTitre(int hundredths)
{
    return measure(plainText({hundredths, -2}), "mL");
}

Spans titresSentence(const Titration& drawn)
{
    const std::vector<int>& titres = drawn.titres;
    if (titres.empty()) {
        return line("The titre is ", told(givenTitre("", drawn.fromBurette)), ".");
    }
    Spans sentence = line("The rough titre is ", measureOfTitre(titres[0]), ", and the others are ",
                          measureOfTitre(titres[1]));
    for (std::size_t i = 2; i < titres.size(); ++i) {
        const bool isLast = i + 1 == titres.size();
        append(sentence, line(isLast ? " and " : ", ", measureOfTitre(titres[i])));
    }
    append(sentence, ".");
    return sentence;
}

Spans promptOf(const Titration& drawn, const Solutions& solutions, const Quantities& quantities,
               const Equation& equation)
{
    const Spans flask = withConcentration(*solutions.inFlask, solutions, quantities.concentration);
    const Spans burette =
        withConcentration(*solutions.inBurette, solutions, quantities.concentration);
    const bool isEquationGiven = drawn.titres.empty();
    return line(told(quantities.inFlask), " of ", flask, " is titrated with ", burette,
                " from the burette, with ", nameOf(drawn.indicator), " as the indicator",
                givesCarbonDioxide(drawn) ? ", until all of it has become carbon dioxide. " : ". ",
                titresSentence(drawn),
                isEquationGiven ? line(" The equation is ", spansOf(equation), ".") : Spans(),
                " Calculate the concentration of the ", solutionOf(*solutions.unknown), " in ",
                unit("mol/L"), ".");
}

// ------------------------------------------------------------------------------ the solution

Step meanStep(const Titration& drawn, const std::string& inBurette)
{
    Spans sum;
    for (auto titre = drawn.titres.begin() + 1; titre != drawn.titres.end(); ++titre) {
        if (!sum.empty()) {
            append(sum, " + ");
        }
        append(sum, number(plainText({*titre, -2})));
    }
    const Span count = number(std::to_string(drawn.titres.size() - 1));
    return {line("Take the mean, without the rough titre."),
            line(quantity("V", inBurette), " = ", fraction(sum, {count}), " = ",
                 between(drawn.fromBurette * ratio(1000)), unit("mL"))};
}

// Titres have four figures, pipettes three.
Span shownInLitres(const Titration& drawn, bool isFromBurette)
{
    return number(isFromBurette ? shown(drawn.fromBurette, 4) : shown(drawn.inFlask, 3));
}

// n, ½ n or 2 n, as many as the ratio tells.
Spans timesRatio(Ratio moles, const Span& amount)
{
    if (moles == ratio(1)) {
        return line(amount);
    }
    const Span numerator = number(std::to_string(moles.numerator));
    const Span denominator = number(std::to_string(moles.denominator));
    return moles.denominator == 1 ? line(numerator, " ", amount)
                                  : line(fraction({numerator}, {denominator}), " ", amount);
}

std::vector<Step> workedSolution(const Titration& drawn, const Solutions& solutions,
                                 const Equation& equation, const Spans& key)
{
    const std::string known(solutions.known->formula);
    const std::string unknown(solutions.unknown->formula);
    const Ratio amountOfKnown = drawn.concentration * volumesOf(drawn).known;
    const Ratio amountOfUnknown = amountOfKnown * ratioOf(drawn);
    const Span concentration = number(shown(drawn.concentration, 3));
    std::vector<Step> steps = {{line("Write the equation."), spansOf(equation)}};
    if (!drawn.titres.empty()) {
        steps.push_back(meanStep(drawn, std::string(solutions.inBurette->formula)));
    }
    steps.push_back(
        {line("Amount of the known."), line(quantity("n", known), " = ", concentration, " × ",
                                            shownInLitres(drawn, isKnownInBurette(drawn)), " = ",
                                            between(amountOfKnown), unit("mol"))});
    steps.push_back({line("Ratio."), line(quantity("n", unknown), " = ",
                                          timesRatio(ratioOf(drawn), quantity("n", known)), " = ",
                                          between(amountOfUnknown), unit("mol"))});
    steps.push_back({line("Divide by its own volume."),
                     line(quantity("c", unknown), " = ",
                          fraction({between(amountOfUnknown)},
                                   {shownInLitres(drawn, !isKnownInBurette(drawn))}),
                          " = ", key)});
    return steps;
}

// --------------------------------------------------------------------------------- the slips

// The answer with all titres in the mean.
Ratio answerWithRoughTitre(const Titration& drawn)
{
    Titration rough = drawn;
    rough.fromBurette = meanOf(drawn.titres.begin(), drawn.titres.end());
    return answerOf(rough);
}

void addSlips(Exercise& exercise, const Titration& drawn)
{
    const Ratio answer = answerOf(drawn);
    const Ratio moles = ratioOf(drawn);
    const Ratio c = drawn.concentration;
    const auto [known, unknown] = volumesOf(drawn);
    const char* const aboutRatio =
        "Look at the numbers in the equation: how many moles react with one?";
    const char* const aboutVolumes = "Which volume belongs to which solution?";
    addSlip(exercise, answer / moles, aboutRatio);
    addSlip(exercise, answer / moles / moles, aboutRatio);
    addSlip(exercise, c * unknown * moles / known, aboutVolumes);
    addSlip(exercise, c * moles, aboutVolumes);
    addSlip(exercise, c * known * moles, "That is an amount. One step is left.");
    addSlip(exercise, c * known * moles / (known + unknown),
            "Use the volume of the unknown solution alone.");
    if (!drawn.titres.empty()) {
        addSlip(exercise, answerWithRoughTitre(drawn), "Leave the rough titre out of the mean.");
    }
}

std::vector<Given> givenOf(const Solutions& solutions, const Quantities& quantities)
{
    return {givenCompound(*solutions.inFlask), givenCompound(*solutions.inBurette),
            quantities.inFlask, quantities.fromBurette, quantities.concentration};
}

} // namespace

Exercise titrationExercise(const Place& place)
{
    const Titration drawn = draw(place);
    const Solutions solutions = solutionsOf(drawn);
    const Quantities quantities = quantitiesOf(drawn, solutions);
    const Equation equation = equationOf(drawn);
    Exercise exercise = numberExercise(
        place, {Form::number, "c", std::string(solutions.unknown->formula), "mol/L", 3, {}},
        {answerOf(drawn), {}, false, true});
    exercise.prompt = promptOf(drawn, solutions, quantities, equation);
    exercise.given = givenOf(solutions, quantities);
    exercise.equation = equation;
    exercise.solution = workedSolution(drawn, solutions, equation, keyMeasure(exercise));
    addSlips(exercise, drawn);
    return exercise;
}

} // namespace lesson
