#pragma once

#include <optional>

#include "lesson/marking/equation_extras.hpp"

namespace lesson
{

// What is wrong with the formula of a term that was meant as this species, or is another substance
// of its kind; none where it has nothing to do with it.
std::optional<Extra> misspelt(const TermOnSide& typed, const Role& role);

// The same of a term with the right atoms, which are those of another substance or in disorder.
Extra inDisorder(const TermOnSide& typed, const Role& role);

} // namespace lesson
