#pragma once

#include <string_view>
#include <vector>

#include "lesson/chemistry/ions.hpp"

namespace lesson
{

// What learners write for an ion: another ion, whose name or formula is like it, or a molecule.
struct Confusion {
    Ion of;
    std::string_view formula; // of the other one, without its charge
    int charge;               // of the other one; of a molecule that of the ion
    bool isGroup;             // of several atoms
    std::string_view sentence;
};

// The commoner ones first.
std::vector<const Confusion*> confusionsOf(const IonRow& ion);

// Whether the metal of an ion has compounds with this charge beside that of the ion, as lead(II)
// has some with 4+.
bool hasOtherCharge(const IonRow& cation, int charge);

namespace sentences
{

constexpr std::string_view ending = "The ending tells you whether there is oxygen.";
constexpr std::string_view moreOxygen = "Which one has more oxygen: -ite or -ate?";
constexpr std::string_view oxides = "Oxide and hydroxide are two different ions.";
constexpr std::string_view carbonates = "Carbonate and hydrogencarbonate are two different ions.";
constexpr std::string_view sulfates = "Sulfate and hydrogensulfate are two different ions.";
constexpr std::string_view ammonia = "That is ammonia. The ammonium ion has one hydrogen more.";

} // namespace sentences

} // namespace lesson
