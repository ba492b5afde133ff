#pragma once

#include <string>
#include <string_view>

#include "lesson/numbers/ratio.hpp"

namespace lesson
{

struct ElementRow {
    int number;        // atomic number
    int thousandths;   // relative atomic mass in thousandths, of four figures
    bool isMassNumber; // of one isotope, instead of the mean of nature's mixture
    std::string_view symbol;
    int period; // row of the periodic table, 1 to 7
    int group;  // column, 1 to 18; 0 for the lanthanides and actinides
};

// The 118 elements by atomic number, 1 to 118.
constexpr int elementCount = 118;
const ElementRow& element(int atomicNumber);

// Atomic numbers of those that are spoken of by name elsewhere.
namespace elements
{

constexpr int hydrogen = 1;
constexpr int carbon = 6;
constexpr int nitrogen = 7;
constexpr int oxygen = 8;
constexpr int fluorine = 9;
constexpr int sulfur = 16;
constexpr int chlorine = 17;
constexpr int chromium = 24;
constexpr int manganese = 25;
constexpr int iron = 26;
constexpr int cobalt = 27;
constexpr int nickel = 28;
constexpr int copper = 29;
constexpr int bromine = 35;
constexpr int tin = 50;
constexpr int iodine = 53;
constexpr int lead = 82;

} // namespace elements

// The mass as a data table prints it, to four figures: "16.00", "[97]".
std::string shownMass(const ElementRow& row);

// The one with this symbol, "Cl"; null where there is none. Takes the same time for each.
const ElementRow* findElement(std::string_view symbol);

} // namespace lesson
