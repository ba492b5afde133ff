#include <utility>

#include "lesson/chemistry/composition.hpp"
#include "lesson/kinds/concentration_parts.hpp"
#include "lesson/kinds/molar_mass.hpp"
#include "lesson/kinds/shared/quantities.hpp"
#include "lesson/numbers/decimal.hpp"

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
    const char* const say =
        isHydrate(drawn) ? "Molar mass; the water belongs to the crystal." : "Molar mass.";
    const char* const hint =
        isHydrate(drawn)
            ? "How heavy is one mole of the crystals? Count the atoms, those of the water too."
            : "How heavy is one mole? Count the atoms of each element.";
    return {line(say),
            line(quantity("M"), " = ", sumOfMasses(drawn.substance->formula), " = ",
                 measure(shownMass(drawn.molarMass), "g/mol")),
            line(hint)};
}

Step volumeStep(const GivenQuantity& volume)
{
    return {line("Convert the volume."),
            line(quantity("V"), " = ", told(volume), " = ", measure(shown(volume.value, 3), "L")),
            line("The concentration counts moles in a litre. How many litres are there here?")};
}

std::vector<Step> stepsToConcentration(const Preparation& drawn, const Spans& key)
{
    const Ratio amount = drawn.mass / drawn.molarMass;
    const Numbers numbers = numbersOf(drawn);
    return {
        {line("Amount from mass."),
         line(quantity("n"), " = ", fraction({quantity("m")}, {quantity("M")}), " = ",
              fraction({numbers.mass}, {numbers.molarMass}), " = ", between(amount), unit("mol")),
         line("One mole has the mass ", quantity("M"), ". How many moles are weighed?")},
        {line("Divide by the volume of solution."),
         line(quantity("c"), " = ", fraction({quantity("n")}, {quantity("V")}), " = ",
              fraction({between(amount)}, {numbers.volume}), " = ", key),
         line("A concentration tells how many moles there would be in one litre.")},
    };
}

std::vector<Step> stepsToMass(const Preparation& drawn, const Spans& key)
{
    const Ratio amount = drawn.concentration * drawn.volume;
    const Numbers numbers = numbersOf(drawn);
    return {
        {line("Amount from concentration."),
         line(quantity("n"), " = ", quantity("c"), quantity("V"), " = ", numbers.concentration,
              " × ", numbers.volume, " = ", between(amount), unit("mol")),
         line("The concentration tells how many moles a litre has. How many have to be in this "
              "volume?")},
        {line("Mass from amount."),
         line(quantity("m"), " = ", quantity("n"), quantity("M"), " = ", between(amount), " × ",
              numbers.molarMass, " = ", key),
         line("One mole has the mass ", quantity("M"), ". What do so many moles weigh?")},
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
