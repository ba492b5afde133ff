#pragma once

#include <vector>

#include "lesson/chemistry/acids_and_bases.hpp"

namespace lesson
{

enum class Indicator {
    phenolphthalein,
    methylOrange,
    either,
};

// What runs out of the burette; the other one is pipetted.
enum class InBurette {
    acid,
    base,
    either,
};

// An acid and a base that are titrated. They react as many moles with so many that the protons are
// as many: HCl, 1, with Na2CO3, 2, is 2 to 1.
struct TitrationRow {
    Acid acid;
    BaseKind base;
    Ion cation; // of the base
    Indicator indicator;
    InBurette inBurette;
    int times; // how often it comes, beside the others of its ratio
};
const std::vector<TitrationRow>& titrations();

Base baseOf(const TitrationRow& titration);

} // namespace lesson
