#pragma once

#include <string>
#include <vector>

#include "data/ion.hpp"

// The compiled-in ions, whatever other tests have done to the global table.
const std::vector<Ion>& catalogueIons();
std::vector<Ion> catalogueCations();
std::vector<Ion> catalogueAnions();

// Fails the test when there is no such ion.
Ion ionCalled(const std::string& name);
