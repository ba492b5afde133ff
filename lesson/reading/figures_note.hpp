#pragma once

#include <string>
#include <string_view>

namespace lesson
{

// Who answers may tell how many figures there are, which are counted anyway.

// Without such a note at the end: "mol/L (3 s.f.)" -> "mol/L"; the whole text where there is none.
std::string_view withoutNote(std::string_view text);

// The same of a text that begins with the number, whose own digits no note takes; a note in
// brackets may also stand between the number and the unit.
//   "0.145 3 s.f." -> "0.145"    "0.3 s.f." as it is    "0.145 (3 s.f.) mol/L" -> "0.145 mol/L"
std::string withoutNotes(std::string_view text);

} // namespace lesson
