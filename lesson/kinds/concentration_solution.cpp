#include <utility>

#include "lesson/chemistry/composition.hpp"
#include "lesson/kinds/concentration_parts.hpp"
#include "lesson/kinds/molar_mass.hpp"
#include "lesson/kinds/shared/quantities.hpp"
#include "lesson/numbers/decimal.hpp"
#include "lesson/words/say.hpp"

namespace lesson
{

namespace
{

// As the lines of mathematics show them.
struct Numbers {
    Span mass;
    Span molarMass;
    Span volume; // in litres
    Span concentration;
};

Numbers numbersOf(const Preparation& drawn)
{
    return {number(shownMass(drawn.mass)), number(shownMass(drawn.molarMass)),
            number(shown(drawn.volume, 3)), number(shown(drawn.concentration, 3))};
}

Step molarMassStep(const Preparation& drawn)
{
    const Spans math = line(quantity("M"), " = ", sumOfMasses(drawn.substance->formula), " = ",
                            measure(shownMass(drawn.molarMass), "g/mol"));
    if (isHydrate(drawn)) {
        return {{say<Sentence::concentrationMolarMassOfHydrate>()},
                math,
                {say<Sentence::hintConcentrationMolarMassOfHydrate>()}};
    }
    return {{say<Sentence::concentrationMolarMass>()},
            math,
            {say<Sentence::hintConcentrationMolarMass>()}};
}

Step volumeStep(const GivenQuantity& volume)
{
    return {{say<Sentence::convertVolume>()},
            line(quantity("V"), " = ", told(volume), " = ", measure(shown(volume.value, 3), "L")),
            {say<Sentence::hintConcentrationVolume>()}};
}

std::vector<Step> stepsToConcentration(const Preparation& drawn, const Spans& key)
{
    const Ratio amount = drawn.mass / drawn.molarMass;
    const Numbers numbers = numbersOf(drawn);
    return {
        {{say<Sentence::concentrationAmountFromMass>()},
         line(quantity("n"), " = ", fraction({quantity("m")}, {quantity("M")}), " = ",
              fraction({numbers.mass}, {numbers.molarMass}), " = ", between(amount), unit("mol")),
         {say<Sentence::hintConcentrationAmountFromMass>()}},
        {{say<Sentence::concentrationDivide>()},
         line(quantity("c"), " = ", fraction({quantity("n")}, {quantity("V")}), " = ",
              fraction({between(amount)}, {numbers.volume}), " = ", key),
         {say<Sentence::hintConcentrationDivide>()}},
    };
}

std::vector<Step> stepsToMass(const Preparation& drawn, const Spans& key)
{
    const Ratio amount = drawn.concentration * drawn.volume;
    const Numbers numbers = numbersOf(drawn);
    return {
        {{say<Sentence::concentrationAmount>()},
         line(quantity("n"), " = ", quantity("c"), quantity("V"), " = ", numbers.concentration,
              " × ", numbers.volume, " = ", between(amount), unit("mol")),
         {say<Sentence::hintConcentrationAmount>()}},
        {{say<Sentence::concentrationMassFromAmount>()},
         line(quantity("m"), " = ", quantity("n"), quantity("M"), " = ", between(amount), " × ",
              numbers.molarMass, " = ", key),
         {say<Sentence::hintConcentrationMassFromAmount>()}},
    };
}

} // namespace

bool isHydrate(const Preparation& drawn)
{
    return drawn.substance->kind == SoluteKind::hydrate;
}

std::vector<Step> concentrationSolution(const Preparation& drawn, const Spans& key)
{
    std::vector<Step> steps;
    if (!drawn.isMolarMassTold) {
        steps.push_back(molarMassStep(drawn));
    }
    if (drawn.volume < ratio(1)) {
        steps.push_back(volumeStep(givenVolume("V", drawn.substance->formula, drawn.volume)));
    }
    for (Step& step : (drawn.asksForMass ? stepsToMass : stepsToConcentration)(drawn, key)) {
        steps.push_back(std::move(step));
    }
    return steps;
}

} // namespace lesson
