#pragma once

#include <string>

#include "questions/acid_base.hpp"
#include "support/catalogue.hpp"

// The reaction of three ions of the catalogue, by their names.
inline Neutralisation reactionOf(const std::string& acidAnion, const std::string& baseCation,
                                 const std::string& baseAnion)
{
    return neutralisationOf(ionCalled(acidAnion), ionCalled(baseCation), ionCalled(baseAnion));
}
