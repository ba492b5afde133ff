#include "lesson/kinds/shared/quantities.hpp"

#include <utility>

#include "lesson/chemistry/composition.hpp"
#include "lesson/words/say.hpp"

namespace lesson
{

namespace
{

// A value that has its end at a decimal place: 5 g, 2 -> "5.00".
std::string withDecimals(Ratio value, int decimals)
{
    const Ratio lastPlaces = value * powerOfTen(decimals);
    return plainText({lastPlaces.numerator / lastPlaces.denominator, -decimals});
}

} // namespace

GivenQuantity givenMass(std::string_view of, Ratio inGrams)
{
    return {"m", std::string(of), inGrams, "g", withDecimals(inGrams, 2), "g"};
}

GivenQuantity givenMolarMass(std::string_view of)
{
    const Ratio mass = toHundredths(molarMassOf(of));
    return {"M", std::string(of), mass, "g/mol", shownMass(mass), "g/mol"};
}

GivenQuantity givenVolume(std::string symbol, std::string_view of, Ratio inLitres)
{
    const bool isLarge = ratio(1) <= inLitres;
    const Ratio shownValue = isLarge ? inLitres : inLitres * ratio(1000);
    const char* const shownUnit = isLarge ? "L" : "mL";
    return {std::move(symbol), std::string(of), inLitres, "L", shown(shownValue, askedFigures),
            shownUnit};
}

GivenQuantity givenTitre(std::string_view of, Ratio inLitres)
{
    return {"V", std::string(of), inLitres, "L", withDecimals(inLitres * ratio(1000), 2), "mL"};
}

GivenQuantity givenConcentration(std::string symbol, std::string_view of, Ratio inMolesPerLitre)
{
    const std::string shownValue = shown(inMolesPerLitre, askedFigures);
    return {std::move(symbol), std::string(of), inMolesPerLitre, "mol/L", shownValue, "mol/L"};
}

GivenQuantity untold(GivenQuantity given)
{
    given.shown.clear();
    given.shownUnit.clear();
    return given;
}

Spans told(const GivenQuantity& given)
{
    return measure(given.shown, given.shownUnit);
}

Span solutionOf(const SoluteRow& solute)
{
    return solute.weighed == Weighed::comesDissolved ? name(solute.name)
                                                     : say<Sentence::solutionOfSolute>(solute.name);
}

GivenCompound givenCompound(const SoluteRow& solute)
{
    return {solute.formula, solute.name};
}

Ratio litres(int millilitres)
{
    return ratio(millilitres, 1000);
}

Ratio molesPerLitre(int tenThousandths)
{
    return ratio(tenThousandths, 10000);
}

Exercise numberExercise(const Place& place, Ask ask, NumberAnswer answer)
{
    Exercise exercise = {};
    exercise.place = place;
    exercise.key = measure(shown(answer.value, ask.figures), ask.unit);
    exercise.ask = std::move(ask);
    exercise.answer = std::move(answer);
    return exercise;
}

void addSlip(Exercise& exercise, Ratio value, Sentence sentence)
{
    addSlip(exercise, value, line(say(sentence)));
}

Span between(Ratio value)
{
    return number(shownBetween(value, askedFigures + 1));
}

std::string inMillilitres(Ratio litres)
{
    return shown(litres * ratio(1000), askedFigures);
}

} // namespace lesson
