#include <utility>

#include "lesson/kinds/dilution_parts.hpp"
#include "lesson/kinds/shared/quantities.hpp"
#include "lesson/numbers/decimal.hpp"

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

constexpr const char* rearrange = "Rearrange; both volumes in the same unit.";

Step amountStep()
{
    return {
        line("The amount stays the same."),
        line(before("c"), before("V"), " = ", after("c"), after("V")),
        line("Water is added, but none of the dissolved substance. How is its amount worked out "
             "from ",
             quantity("c"), " and ", quantity("V"), "?")};
}

// A flask of a litre or two is told in litres, a pipette in millilitres.
Step volumeStep(const Dilution& drawn)
{
    const GivenQuantity volume = givenVolume("V2", drawn.solute->formula, drawn.V2);
    return {line("Convert the volume."),
            line(after("V"), " = ", told(volume), " = ", numbersOf(drawn).V2, unit("mL")),
            line("Both volumes need the same unit. How many millilitres are in a litre?")};
}

bool isToldInLitres(const Dilution& drawn)
{
    return drawn.asked != AskedOfDilution::water && ratio(1) <= drawn.V2;
}

Spans hintToRearrange()
{
    return line("Three of the four are known. Bring the fourth alone to one side, then put in the "
                "numbers.");
}

std::vector<Step> stepsToNewConcentration(const Numbers& numbers, const Spans& key)
{
    const auto& [c1, V1, c2, V2, factor] = numbers;
    return {
        {line(rearrange),
         line(after("c"), " = ", fraction({before("c"), before("V")}, {after("V")}), " = ",
              fraction(line(c1, " × ", V1), {V2}), " = ", key),
         hintToRearrange()},
        {line("Check: ", factor, " times the volume, so the concentration is divided by ", factor,
              "."),
         line(after("c"), " = ", fraction({c1}, {factor}), " = ", key),
         line("How many times has the volume grown? The concentration falls as many times.")},
    };
}

std::vector<Step> stepsToOriginalConcentration(const Numbers& numbers, const Spans& key)
{
    const auto& [c1, V1, c2, V2, factor] = numbers;
    return {
        {line(rearrange),
         line(before("c"), " = ", fraction({after("c"), after("V")}, {before("V")}), " = ",
              fraction(line(c2, " × ", V2), {V1}), " = ", key),
         hintToRearrange()},
        {line("Check: ", factor, " times the volume, so the concentration was ", factor,
              " times as great."),
         line(before("c"), " = ", factor, " × ", c2, " = ", key),
         line("How many times has the volume grown? The concentration has fallen as many times.")},
    };
}

std::vector<Step> stepsToOriginalVolume(const Numbers& numbers, const Spans& key)
{
    const auto& [c1, V1, c2, V2, factor] = numbers;
    return {
        {line(rearrange),
         line(before("V"), " = ", fraction({after("c"), after("V")}, {before("c")}), " = ",
              fraction(line(c2, " × ", V2), {c1}), " = ", key),
         hintToRearrange()},
        {line("Check: the concentration is divided by ", factor, ", so the volume grows ", factor,
              " times."),
         line(before("V"), " = ", fraction({V2}, {factor}), " = ", key),
         line("How many times does the concentration fall? The volume grows as many times.")},
    };
}

std::vector<Step> stepsToWater(const Numbers& numbers, const Spans& key)
{
    const auto& [c1, V1, c2, V2, factor] = numbers;
    return {
        {line("Rearrange for the volume of the whole diluted solution."),
         line(after("V"), " = ", fraction({before("c"), before("V")}, {after("c")}), " = ",
              fraction(line(c1, " × ", V1), {c2}), " = ", V2, unit("mL")),
         line("First find how large the diluted solution is as a whole.")},
        {line("Check: the concentration is divided by ", factor, ", so the volume grows ", factor,
              " times."),
         line(after("V"), " = ", factor, " × ", V1, " = ", V2, unit("mL")),
         line("How many times does the concentration fall? The volume grows as many times.")},
        {line("The water is the rest of the diluted solution."),
         line(quantity("V", "H2O"), " = ", after("V"), " − ", before("V"), " = ", V2, " − ", V1,
              " = ", key),
         line("Some of the diluted solution was there before any water.")},
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
