#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "lesson/exercise.hpp"
#include "lesson/paper/place.hpp"

// What names an exercise, in one of two forms.
namespace lesson
{

struct Reference {
    Place place;             // of a drawn exercise
    std::string description; // of any other one, else empty
};

// The exercise, or what is wrong with its description.
NamedExercise exerciseOf(const Reference& reference);

// The exercise that a text names: paper, number and kinds of a drawn one, which is the same only
// within one version of its kind, or a description (kinds/description.hpp).
//   "4821/3/titration:2"    "4821/3/mixed"    "dilution;substance=HCl;c1=6.00;V1=25.0;V2=500"
NamedExercise exerciseNamed(std::string_view text);

// Takes "4821/" from the front. 0 where there is no number from 1 to greatestPaper.
unsigned takePaper(std::string_view& rest);
Spans errorOfPaper();

// A whole number, as one more than `most` where it is greater; none where it is no number.
std::optional<unsigned> wholeIn(std::string_view text, unsigned most);

} // namespace lesson
