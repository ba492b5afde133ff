#pragma once

#include <string>
#include <string_view>

#include "lesson/exercise.hpp"
#include "lesson/reading/lookalikes.hpp"
#include "lesson/text/quotable.hpp"

namespace lesson
{

// What several forms of answers tell the learner.
namespace sentences
{

constexpr std::string_view correct = "Correct.";
constexpr std::string_view notYet =
    "Not right yet. Write down what you know, or press Show a step.";
constexpr std::string_view capitals = "Check the capitals: first letter large, second small.";

constexpr std::string_view of(Mixup mixup)
{
    switch (mixup) {
    case Mixup::largeIForSmallL:
        return "There is a large I where the small letter l should be.";
    case Mixup::oneForSmallL:
        return "There is a 1 where the small letter l should be.";
    case Mixup::zeroForLargeO:
        return "There is a zero where the letter O should be.";
    case Mixup::smallLForLargeI:
        break;
    }
    return "There is a small l where the letter I should be.";
}

// Of a symbol or a short formula.
inline std::string checkSymbol(std::string_view symbol)
{
    return "Check this symbol: " + std::string(symbol) + ".";
}

} // namespace sentences

inline Mark markOf(Verdict verdict, std::string_view sentence)
{
    return {verdict, line(std::string(sentence))};
}

// For a part that could not be read; a sentence that begins with "Type" goes on with what can be.
inline Mark unreadable(std::string_view part, std::string_view whatToType)
{
    return {Verdict::unreadable,
            line("I can't read this part: '" + quotable(part) + "'. " + std::string(whatToType))};
}

} // namespace lesson
