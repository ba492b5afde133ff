#include <string>
#include <string_view>
#include <vector>

#include "lesson/kinds/shared/quantities.hpp"
#include "lesson/kinds/shared/salts.hpp"
#include "lesson/kinds/titration.hpp"

namespace lesson
{

namespace
{

// Ammonia rather than ammonia solution, where moles of it are told.
Span soluteOf(const SoluteRow& solution)
{
    return solution.kind == SoluteKind::ammonia ? name("ammonia") : nameOf(solution);
}

// What an acid and such a base make.
Spans productsOf(const Base& base)
{
    switch (kindOf(base)) {
    case BaseKind::ammonia:
        return line("An acid and ammonia make an ammonium salt and nothing else.");
    case BaseKind::hydroxide:
        return line("An acid and a hydroxide make a salt and water.");
    case BaseKind::oxide:
        return line("An acid and an oxide make a salt and water.");
    case BaseKind::carbonate:
    case BaseKind::hydrogencarbonate:
        break;
    }
    return line("An acid and a ", nameOf(*base.anion), " make a salt, water and carbon dioxide.");
}

Step equationStep(const Titration& drawn, const Equation& equation)
{
    return {line("Write the balanced equation."), spansOf(equation),
            line(productsOf(baseOf(*drawn.pair)), " How many of each does it take?")};
}

Step meanStep(const Titration& drawn, const SoluteRow& inBurette)
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
            line(quantity("V", inBurette.formula), " = ", fraction(sum, {count}), " = ",
                 between(drawn.fromBurette * ratio(1000)), unit("mL")),
            line("Which titres agree within ", measure("0.10", "mL"), "? Only these count.")};
}

// Titres have four figures, pipettes three.
constexpr int figuresOfTitre = 4;
constexpr int figuresOfPipette = 3;

Spans conversionOf(const SoluteRow& solution, Ratio volume, int figures)
{
    return line(quantity("V", solution.formula), " = ",
                measure(shown(volume * ratio(1000), figures), "mL"), " = ",
                measure(shown(volume, figures), "L"));
}

Step conversionStep(const Titration& drawn, const Solutions& solutions)
{
    const Spans flask = conversionOf(*solutions.inFlask, drawn.inFlask, figuresOfPipette);
    const Spans burette = conversionOf(*solutions.inBurette, drawn.fromBurette, figuresOfTitre);
    return {line("Convert both volumes to litres."), line(flask, ", ", burette),
            line("A concentration in ", unit("mol/L"),
                 " goes with a volume in litres. One litre is ", measure("1000", "mL"), ".")};
}

Span shownInLitres(const Titration& drawn, bool isFromBurette)
{
    return number(isFromBurette ? shown(drawn.fromBurette, figuresOfTitre)
                                : shown(drawn.inFlask, figuresOfPipette));
}

Step amountStep(const Titration& drawn, const SoluteRow& known)
{
    return {line("Amount of ", soluteOf(known), ", whose concentration is known."),
            line(quantity("n", known.formula), " = ", quantity("c"), quantity("V"), " = ",
                 number(shown(drawn.concentration, askedFigures)), " × ",
                 shownInLitres(drawn, isKnownInBurette(drawn)), " = ",
                 between(drawn.concentration * volumesOf(drawn).known), unit("mol")),
            line("Of which solution do you know both concentration and volume? Use ", quantity("n"),
                 " = ", quantity("c"), quantity("V"), ".")};
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

// Two moles of hydrochloric acid react with one mole of sodium carbonate.
Spans reactionSentence(Ratio unknownForOneKnown, const Solutions& solutions)
{
    const bool isOneOfKnown = unknownForOneKnown.denominator == 1;
    const bool isOneOfUnknown = unknownForOneKnown.numerator == 1;
    return line(isOneOfKnown ? "One mole of " : "Two moles of ", soluteOf(*solutions.known),
                isOneOfKnown ? " reacts with " : " react with ",
                isOneOfUnknown ? "one mole of " : "two moles of ", soluteOf(*solutions.unknown),
                ".");
}

Step ratioStep(const Titration& drawn, const Solutions& solutions)
{
    const Ratio moles = ratioOf(drawn);
    const Ratio amount = drawn.answer * volumesOf(drawn).unknown;
    return {reactionSentence(moles, solutions),
            line(quantity("n", solutions.unknown->formula), " = ",
                 timesRatio(moles, quantity("n", solutions.known->formula)), " = ", between(amount),
                 unit("mol")),
            line("The numbers in front of the formulas in the equation tell how many moles react "
                 "with how many.")};
}

Step divisionStep(const Titration& drawn, const SoluteRow& unknown, const Spans& key)
{
    const Ratio amount = drawn.answer * volumesOf(drawn).unknown;
    return {line("Divide the amount of ", soluteOf(unknown), " by the volume of its own solution."),
            line(quantity("c", unknown.formula), " = ", fraction({quantity("n")}, {quantity("V")}),
                 " = ",
                 fraction({between(amount)}, {shownInLitres(drawn, !isKnownInBurette(drawn))}),
                 " = ", key),
            line("Amount and volume have to be of one and the same solution. Use ", quantity("c"),
                 " = ", fraction({quantity("n")}, {quantity("V")}), ".")};
}

} // namespace

std::vector<Step> titrationSteps(const Titration& drawn, const Solutions& solutions,
                                 const Equation& equation, const Spans& key)
{
    std::vector<Step> steps;
    if (!drawn.titres.empty()) {
        steps.push_back(equationStep(drawn, equation));
        steps.push_back(meanStep(drawn, *solutions.inBurette));
    }
    steps.push_back(conversionStep(drawn, solutions));
    steps.push_back(amountStep(drawn, *solutions.known));
    steps.push_back(ratioStep(drawn, solutions));
    steps.push_back(divisionStep(drawn, *solutions.unknown, key));
    return steps;
}

} // namespace lesson
