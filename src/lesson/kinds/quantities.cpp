#include "lesson/kinds/quantities.hpp"

#include <utility>

#include "lesson/compound.hpp"

namespace lesson
{

namespace
{

constexpr int figures = 3;

// A value that has its end at a decimal place: 5 g, 2 -> "5.00".
std::string withDecimals(Ratio value, int decimals)
{
    const Ratio lastPlaces = value * powerOfTen(decimals);
    return plainText({lastPlaces.numerator / lastPlaces.denominator, -decimals});
}

bool endsWith(std::string_view text, std::string_view end)
{
    return text.size() >= end.size() && text.substr(text.size() - end.size()) == end;
}

} // namespace

GivenQuantity givenMass(std::string_view of, Ratio grams)
{
    return {"m", std::string(of), grams, "g", withDecimals(grams, 2), "g"};
}

GivenQuantity givenMolarMass(std::string_view of)
{
    const Ratio mass = molarMassOf(of);
    return {"M", std::string(of), mass, "g/mol", shownMass(mass), "g/mol"};
}

GivenQuantity givenVolume(std::string symbol, std::string_view of, Ratio litres)
{
    const bool isShownInLitres = ratio(1) <= litres;
    return {std::move(symbol),
            std::string(of),
            litres,
            "L",
            shown(isShownInLitres ? litres : litres * ratio(1000), figures),
            isShownInLitres ? "L" : "mL"};
}

GivenQuantity givenTitre(std::string_view of, Ratio litres)
{
    return {"V", std::string(of), litres, "L", withDecimals(litres * ratio(1000), 2), "mL"};
}

GivenQuantity givenConcentration(std::string symbol, std::string_view of, Ratio molesPerLitre)
{
    return {std::move(symbol),
            std::string(of),
            molesPerLitre,
            "mol/L",
            shown(molesPerLitre, figures),
            "mol/L"};
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

Span nameOf(const SoluteRow& solute)
{
    return name(std::string(solute.name), std::string(solute.american));
}

Spans solutionOf(const SoluteRow& solute)
{
    const bool isNamedAsSolution =
        endsWith(solute.name, " acid") || endsWith(solute.name, " solution");
    return line(nameOf(solute), isNamedAsSolution ? "" : " solution");
}

GivenCompound givenCompound(const SoluteRow& solute)
{
    return {std::string(solute.formula), std::string(solute.name)};
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
    exercise.key = shown(answer.value, ask.figures) + " " + ask.unit;
    exercise.ask = std::move(ask);
    exercise.answer = std::move(answer);
    return exercise;
}

Spans keyMeasure(const Exercise& exercise)
{
    const auto* const answer = std::get_if<NumberAnswer>(&exercise.answer);
    return measure(shown(answer->value, exercise.ask.figures), exercise.ask.unit);
}

Span between(Ratio value)
{
    return number(shownBetween(value, figures + 1));
}

} // namespace lesson
