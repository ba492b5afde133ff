#pragma once

#include <string>
#include <string_view>

namespace lesson
{

// With round brackets for the curly ones around a group that a number behind them counts. Those
// around one symbol, and those that lower or raise, are as they were; so are those before a "_",
// which in markup hold together what is in them.
//   "Al2{SO4}3" -> "Al2(SO4)3"    "{Na}2{SO}_{4}" as it is
std::string withRoundBraces(std::string_view plain);

// With those before a "_" too: "Ca{OH}_2" -> "Ca(OH)_2".
std::string withAllBracesRound(std::string_view plain);

} // namespace lesson
