#pragma once

#include <vector>

#include "lesson/chemistry/solutes_and_ceilings.hpp"
#include "lesson/exercise.hpp"
#include "lesson/numbers/ratio.hpp"
#include "lesson/words/spans.hpp"

// What the pages on dilution share.
namespace lesson
{

// Of c1V1 = c2V2, with index 1 before the dilution and 2 after it, or the water that makes V1 into
// V2.
enum class AskedOfDilution { c2, V1, c1, water };

// In mol/L and L.
struct Dilution {
    const SoluteRow* solute = nullptr;
    AskedOfDilution asked = AskedOfDilution::c2;
    Ratio c1 = {};
    Ratio V1 = {};
    Ratio c2 = {};
    Ratio V2 = {};
};

// How it is worked out, `key` as the last step shows it.
std::vector<Step> dilutionSolution(const Dilution& drawn, const Spans& key);

void addDilutionSlips(Exercise& exercise, const Dilution& drawn);

} // namespace lesson
