#include "lesson/tests/every/quantities.hpp"

Exact givenValue(const Json& exercise, const std::string& symbol, const std::string& of)
{
    const Json* const quantity = givenQuantity(exercise, symbol, of);
    return quantity == nullptr ? Exact(0) : volumeOf(*quantity);
}

bool isGiven(const Json& exercise, const std::string& symbol)
{
    return givenQuantity(exercise, symbol) != nullptr;
}

bool asksFor(const Json& exercise, const std::string& symbol)
{
    return exercise["ask"]["quantity"] == symbol;
}

Dilution dilutionOf(const Json& exercise)
{
    Dilution all = {givenValue(exercise, "c1"), givenValue(exercise, "V1") * 1000,
                    givenValue(exercise, "c2"), givenValue(exercise, "V2") * 1000};
    if (!isGiven(exercise, "c1")) {
        all.c1 = all.c2 * all.V2 / all.V1;
    } else if (!isGiven(exercise, "c2")) {
        all.c2 = all.c1 * all.V1 / all.V2;
    } else if (!isGiven(exercise, "V1")) {
        all.V1 = all.c2 * all.V2 / all.c1;
    } else if (!isGiven(exercise, "V2")) {
        all.V2 = all.c1 * all.V1 / all.c2;
    }
    return all;
}

namespace
{

Exact coefficientOf(const Json& left, const std::string& formula)
{
    return Exact::read(left[left[0][1] == formula ? 0 : 1][0]);
}

} // namespace

Titration titrationOf(const Json& exercise)
{
    const std::string known = (*givenQuantity(exercise, "c"))["of"];
    const std::string unknown = exercise["ask"]["of"];
    const Json& left = exercise["equation"]["left"];
    Titration titration = {givenValue(exercise, "c"),
                           givenValue(exercise, "V", known),
                           givenValue(exercise, "V", unknown),
                           coefficientOf(left, unknown) / coefficientOf(left, known),
                           {},
                           false};
    for (const std::string& of : {known, unknown}) {
        const Json& volume = *givenQuantity(exercise, "V", of);
        if (volume.contains("titres")) {
            titration.isKnownInBurette = of == known;
            for (const Json& titre : volume["titres"]) {
                titration.titres.push_back(Exact::read(titre) / 1000);
            }
        }
    }
    return titration;
}

Exact answerOf(const Titration& titration)
{
    return titration.c * titration.known * titration.r / titration.unknown;
}

Titration withTitre(const Titration& titration, const Exact& titre)
{
    Titration changed = titration;
    (titration.isKnownInBurette ? changed.known : changed.unknown) = titre;
    return changed;
}

Exact meanOf(const std::vector<Exact>& values)
{
    Exact sum;
    for (const Exact& value : values) {
        sum = sum + value;
    }
    return sum / Exact(static_cast<std::int64_t>(values.size()));
}
