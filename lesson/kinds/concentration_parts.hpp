#pragma once

#include <string_view>
#include <vector>

#include "lesson/chemistry/solutes_and_ceilings.hpp"
#include "lesson/exercise.hpp"
#include "lesson/numbers/ratio.hpp"
#include "lesson/words/spans.hpp"

// What the pages on mass and concentration share.
namespace lesson
{

// A solution that is made up from a weighed substance. Level 1 asks for its concentration, level 2
// for the mass to weigh, level 3 for either of a hydrate; from level 2 on the molar mass is not
// told.
struct Preparation {
    const SoluteRow* substance = nullptr;
    bool asksForMass = false;
    bool isMolarMassTold = false;
    Ratio molarMass = {}; // g/mol, to two decimals
    Ratio mass = {};      // g
    Ratio volume = {};    // L
    Ratio concentration = {};
};

bool isHydrate(const Preparation& drawn);

// The answer that another molar mass leads to.
Ratio answerFor(const Preparation& drawn, Ratio molarMass);

// How it is worked out, `key` as the last step shows it.
std::vector<Step> concentrationSolution(const Preparation& drawn, const Spans& key);

void addConcentrationSlips(Exercise& exercise, const Preparation& drawn);

} // namespace lesson
