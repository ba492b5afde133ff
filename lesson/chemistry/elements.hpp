#pragma once

#include <string_view>

#include "lesson/numbers/ratio.hpp"

namespace lesson
{

struct ElementRow {
    int number;      // atomic number
    int thousandths; // relative atomic mass in thousandths; of the mass number where it is in
                     // brackets
    std::string_view symbol;
    std::string_view name;     // "aluminium"
    std::string_view american; // "aluminum"; empty where that is the same
    std::string_view shown;    // mass as a data table prints it, to four figures: "16.00", "[97]"
    int period;                // row of the periodic table, 1 to 7
    int group;                 // column, 1 to 18; 0 for the lanthanides and actinides
};

// The 118 elements by atomic number, 1 to 118.
constexpr int elementCount = 118;
const ElementRow& element(int atomicNumber);

// The one with this symbol, "Cl"; null where there is none. Takes the same time for each.
const ElementRow* findElement(std::string_view symbol);

} // namespace lesson
