#include <string>
#include <string_view>
#include <vector>

#include "lesson/kinds/shared/quantities.hpp"
#include "lesson/kinds/titration.hpp"
#include "lesson/words/say.hpp"

namespace lesson
{

namespace
{

// Ammonia rather than ammonia solution, where moles of it are told.
Name soluteOf(const SoluteRow& solution)
{
    return solution.kind == SoluteKind::ammonia ? nameOf(Molecule::ammonia) : solution.name;
}

// What an acid and such a base make.
Span hintAtProducts(const Base& base)
{
    switch (kindOf(base)) {
    case BaseKind::ammonia:
        return say<Sentence::hintTitrationAmmonia>();
    case BaseKind::hydroxide:
        return say<Sentence::hintTitrationHydroxide>();
    case BaseKind::oxide:
        return say<Sentence::hintTitrationOxide>();
    case BaseKind::carbonate:
    case BaseKind::hydrogencarbonate:
        break;
    }
    return say<Sentence::hintTitrationCarbonate>(nameOf(*base.anion));
}

Step equationStep(const Titration& drawn, const Equation& equation)
{
    return {{say<Sentence::titrationWriteEquation>()},
            spansOf(equation),
            {hintAtProducts(baseOf(*drawn.pair))}};
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
    return {{say<Sentence::titrationMean>()},
            line(quantity("V", inBurette.formula), " = ", fraction(sum, {count}), " = ",
                 between(drawn.fromBurette * ratio(1000)), unit("mL")),
            {say<Sentence::hintTitrationMean>()}};
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
    return {{say<Sentence::titrationVolumes>()},
            line(flask, ", ", burette),
            {say<Sentence::hintTitrationVolumes>()}};
}

Span shownInLitres(const Titration& drawn, bool isFromBurette)
{
    return number(isFromBurette ? shown(drawn.fromBurette, figuresOfTitre)
                                : shown(drawn.inFlask, figuresOfPipette));
}

Step amountStep(const Titration& drawn, const SoluteRow& known)
{
    return {{say<Sentence::titrationAmount>(soluteOf(known))},
            line(quantity("n", known.formula), " = ", quantity("c"), quantity("V"), " = ",
                 number(shown(drawn.concentration, askedFigures)), " × ",
                 shownInLitres(drawn, isKnownInBurette(drawn)), " = ",
                 between(drawn.concentration * volumesOf(drawn).known), unit("mol")),
            {say<Sentence::hintTitrationAmount>()}};
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
Span reactionSentence(Ratio unknownForOneKnown, const Solutions& solutions)
{
    const Sentence sentence = unknownForOneKnown == ratio(1)   ? Sentence::titrationOneToOne
                              : unknownForOneKnown == ratio(2) ? Sentence::titrationOneToTwo
                                                               : Sentence::titrationTwoToOne;
    return say(sentence, soluteOf(*solutions.known), soluteOf(*solutions.unknown));
}

Step ratioStep(const Titration& drawn, const Solutions& solutions)
{
    const Ratio moles = ratioOf(drawn);
    const Ratio amount = drawn.answer * volumesOf(drawn).unknown;
    return {{reactionSentence(moles, solutions)},
            line(quantity("n", solutions.unknown->formula), " = ",
                 timesRatio(moles, quantity("n", solutions.known->formula)), " = ", between(amount),
                 unit("mol")),
            {say<Sentence::hintTitrationRatio>()}};
}

Step divisionStep(const Titration& drawn, const SoluteRow& unknown, const Spans& key)
{
    const Ratio amount = drawn.answer * volumesOf(drawn).unknown;
    const Span quotient = fraction({quantity("n")}, {quantity("V")});
    return {{say<Sentence::titrationDivide>(soluteOf(unknown))},
            line(quantity("c", unknown.formula), " = ", quotient, " = ",
                 fraction({between(amount)}, {shownInLitres(drawn, !isKnownInBurette(drawn))}),
                 " = ", key),
            {say<Sentence::hintTitrationDivide>(line(quantity("c"), " = ", quotient))}};
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
