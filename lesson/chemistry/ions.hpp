#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace lesson
{

// An ion that exercises use.
struct IonRow {
    std::string_view name;     // "copper(II)", "hydrogencarbonate"
    std::string_view american; // its American name; empty where that is the same
    std::string_view formula;  // without the charge: "Cu", "HCO3"
    int charge;                // with its sign
    bool isGroup;              // of several atoms, which takes brackets where it occurs repeatedly
    int weight = 1;            // how common it is in comparison with others, 1 to 6
};

// The 19 cations and 15 anions of which compounds are made, in the order of the table.
const std::vector<const IonRow*>& cations();
const std::vector<const IonRow*>& anions();
// Those that are asked for alone, as ions, besides these: hydrogen ion, nitrite, …, cyanide.
const std::vector<const IonRow*>& furtherIons();

// The ion with this formula and charge among all of them: "Cu", 2. Null where there is none.
const IonRow* findIon(std::string_view formula, int charge);
// The one of that name: "copper(II)", "sulfate". Null where there is none.
const IonRow* findIon(std::string_view name);

// Whether the name tells the charge by a Roman numeral.
bool hasRomanNumeral(const IonRow& ion);

// The charge as it stands behind a formula: "+", "2-".
std::string chargeText(const IonRow& ion);
// The name as the American one, "aluminum", where they differ; else empty.
std::string americanName(const IonRow& cation, const IonRow& anion);

// The neutral compound of two ions: "Al2(SO4)3", "aluminium sulfate". The cation comes first, but
// in "CH3COONa" and its like.
std::string compoundFormula(const IonRow& cation, const IonRow& anion);
std::string compoundName(const IonRow& cation, const IonRow& anion);
// How often each occurs in it.
int cationsIn(const IonRow& cation, const IonRow& anion);
int anionsIn(const IonRow& cation, const IonRow& anion);

} // namespace lesson
