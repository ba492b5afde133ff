#include <utility>

#include "lesson/kinds/dilution_parts.hpp"
#include "lesson/kinds/shared/quantities.hpp"
#include "lesson/numbers/decimal.hpp"
#include "lesson/words/say.hpp"

namespace lesson
{

namespace
{

// The symbol with its index.
Span before(const char* symbol)
{
    return quantity(symbol, "", "1");
}
Span after(const char* symbol)
{
    return quantity(symbol, "", "2");
}

// As the lines of mathematics show them, volumes in millilitres.
struct Numbers {
    Span c1;
    Span V1;
    Span c2;
    Span V2;
    Span factor; // how many times the volume grows
};

Numbers numbersOf(const Dilution& drawn)
{
    const auto inMillilitres = [](Ratio litres) { return number(shown(litres * ratio(1000), 3)); };
    return {number(shown(drawn.c1, 3)), inMillilitres(drawn.V1), number(shown(drawn.c2, 3)),
            inMillilitres(drawn.V2), number(exactText(drawn.V2 / drawn.V1))};
}

Step amountStep()
{
    return {{say<Sentence::dilutionAmount>()},
            line(before("c"), before("V"), " = ", after("c"), after("V")),
            {say<Sentence::hintDilutionAmount>()}};
}

// A flask of a litre or two is told in litres, a pipette in millilitres.
Step volumeStep(const Dilution& drawn)
{
    const GivenQuantity volume = givenVolume("V2", drawn.solute->formula, drawn.V2);
    return {{say<Sentence::convertVolume>()},
            line(after("V"), " = ", told(volume), " = ", numbersOf(drawn).V2, unit("mL")),
            {say<Sentence::hintDilutionVolume>()}};
}

bool isToldInLitres(const Dilution& drawn)
{
    return drawn.asked != AskedOfDilution::water && ratio(1) <= drawn.V2;
}

Step rearrangingStep(const Spans& math)
{
    return {{say<Sentence::dilutionRearrange>()}, math, {say<Sentence::hintDilutionRearrange>()}};
}

std::vector<Step> stepsToNewConcentration(const Numbers& numbers, const Spans& key)
{
    const auto& [c1, V1, c2, V2, factor] = numbers;
    return {
        rearrangingStep(line(after("c"), " = ", fraction({before("c"), before("V")}, {after("V")}),
                             " = ", fraction(line(c1, " × ", V1), {V2}), " = ", key)),
        {{say<Sentence::dilutionCheckNewConcentration>(factor)},
         line(after("c"), " = ", fraction({c1}, {factor}), " = ", key),
         {say<Sentence::hintDilutionCheckNewConcentration>()}},
    };
}

std::vector<Step> stepsToOriginalConcentration(const Numbers& numbers, const Spans& key)
{
    const auto& [c1, V1, c2, V2, factor] = numbers;
    return {
        rearrangingStep(line(before("c"), " = ", fraction({after("c"), after("V")}, {before("V")}),
                             " = ", fraction(line(c2, " × ", V2), {V1}), " = ", key)),
        {{say<Sentence::dilutionCheckOriginalConcentration>(factor)},
         line(before("c"), " = ", factor, " × ", c2, " = ", key),
         {say<Sentence::hintDilutionCheckOriginalConcentration>()}},
    };
}

std::vector<Step> stepsToOriginalVolume(const Numbers& numbers, const Spans& key)
{
    const auto& [c1, V1, c2, V2, factor] = numbers;
    return {
        rearrangingStep(line(before("V"), " = ", fraction({after("c"), after("V")}, {before("c")}),
                             " = ", fraction(line(c2, " × ", V2), {c1}), " = ", key)),
        {{say<Sentence::dilutionCheckVolume>(factor)},
         line(before("V"), " = ", fraction({V2}, {factor}), " = ", key),
         {say<Sentence::hintDilutionCheckVolume>()}},
    };
}

std::vector<Step> stepsToWater(const Numbers& numbers, const Spans& key)
{
    const auto& [c1, V1, c2, V2, factor] = numbers;
    return {
        {{say<Sentence::dilutionRearrangeForWhole>()},
         line(after("V"), " = ", fraction({before("c"), before("V")}, {after("c")}), " = ",
              fraction(line(c1, " × ", V1), {c2}), " = ", V2, unit("mL")),
         {say<Sentence::hintDilutionRearrangeForWhole>()}},
        {{say<Sentence::dilutionCheckVolume>(factor)},
         line(after("V"), " = ", factor, " × ", V1, " = ", V2, unit("mL")),
         {say<Sentence::hintDilutionCheckVolume>()}},
        {{say<Sentence::dilutionWaterIsTheRest>()},
         line(quantity("V", "H2O"), " = ", after("V"), " − ", before("V"), " = ", V2, " − ", V1,
              " = ", key),
         {say<Sentence::hintDilutionWaterIsTheRest>()}},
    };
}

std::vector<Step> stepsOf(const Dilution& drawn, const Spans& key)
{
    const Numbers numbers = numbersOf(drawn);
    switch (drawn.asked) {
    case AskedOfDilution::c2:
        return stepsToNewConcentration(numbers, key);
    case AskedOfDilution::V1:
        return stepsToOriginalVolume(numbers, key);
    case AskedOfDilution::c1:
        return stepsToOriginalConcentration(numbers, key);
    case AskedOfDilution::water:
        break;
    }
    return stepsToWater(numbers, key);
}

} // namespace

std::vector<Step> dilutionSolution(const Dilution& drawn, const Spans& key)
{
    std::vector<Step> steps = {amountStep()};
    if (isToldInLitres(drawn)) {
        steps.push_back(volumeStep(drawn));
    }
    for (Step& step : stepsOf(drawn, key)) {
        steps.push_back(std::move(step));
    }
    return steps;
}

} // namespace lesson
