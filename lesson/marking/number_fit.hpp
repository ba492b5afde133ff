#pragma once

#include "lesson/exercise.hpp"
#include "lesson/numbers/decimal.hpp"
#include "lesson/reading/typed_number.hpp"

namespace lesson
{

// What a typed number is compared with.
struct Target {
    Ratio value;
    int figures = 0;
    bool isMolarMass = false;
};

// How a typed number stands to its target.
enum class Fit {
    none,
    correct,
    otherFigures, // right, but with more figures or with fewer, two at least
    oneFigure,    // right, with one figure and no more
};

Fit fitOf(const TypedNumber& number, const Target& target);

// Correct, or correct but for its figures.
bool isFit(Fit fit);

// So far from a value that it agrees with it to no number of figures from two on. Most mistakes
// are, and this tells so without rounding anything; the bounds need not be in lowest terms.
bool isFar(const TypedNumber& number, Ratio value);

// Within one per cent.
bool isClose(const TypedNumber& number, Ratio value);

bool isEqual(const TypedNumber& number, Decimal decimal);

bool isCorrectWithRoundedMasses(const TypedNumber& number, const NumberAnswer& answer, int figures);

// With two figures at least.
bool isRight(const TypedNumber& number, const NumberAnswer& answer, int figures);

} // namespace lesson
