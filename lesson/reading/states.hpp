#pragma once

#include <string_view>

namespace lesson
{

// States of matter, behind a formula. All give "s", "l", "g" or "aq", and empty where there is
// none.

// What stands in brackets, "s", "(Aq.)", "solid", with any capitals and blanks at its ends.
std::string_view stateIn(std::string_view brackets);

// Takes the state off the end of a formula in every spelling: "(s)", "_{aq}", " solid", "↓", " ^".
std::string_view takeState(std::string_view& formula);

// Takes it off only where it can be nothing else, as in a formula that stands alone: "(s)",
// "_{(aq)}" or "↓". Sulfur in brackets, "(S)", is no state.
std::string_view takeSymbolOfState(std::string_view& formula);

// Without the full stop and the blanks at the end.
std::string_view withoutFullStop(std::string_view formula);

// Without such a state and the full stop behind it: "SO4^2- (aq)." -> "SO4^2-".
std::string_view withoutState(std::string_view formula);

} // namespace lesson
