#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "lesson/chemistry/elements.hpp"
#include "lesson/chemistry/ids.hpp"

namespace lesson
{

// The ions that exercises use, in the order of their table; a number tells the charges of a metal
// that has several apart.
enum class Ion {
    // cations of compounds
    lithium,
    sodium,
    potassium,
    ammonium,
    silver,
    magnesium,
    calcium,
    barium,
    manganese2,
    iron2,
    cobalt2,
    nickel2,
    copper2,
    zinc,
    tin2,
    lead2,
    aluminium,
    chromium3,
    iron3,
    // anions of compounds
    fluoride,
    chloride,
    bromide,
    iodide,
    hydroxide,
    nitrate,
    hydrogencarbonate,
    ethanoate,
    oxide,
    sulfide,
    sulfate,
    carbonate,
    nitride,
    phosphide,
    phosphate,
    // that are asked for alone
    hydrogen,
    nitrite,
    sulfite,
    hydrogensulfate,
    manganate7,
    dichromate,
    chromate,
    chlorate,
    thiosulfate,
    hydrogensulfite,
    hydrogenphosphate,
    dihydrogenphosphate,
    cyanide,
    // met as the anion of an acid only
    ethanedioate,
};
constexpr std::size_t ionCount = static_cast<std::size_t>(Ion::ethanedioate) + 1;

struct IonRow {
    Ion id;
    std::string_view formula; // without the charge: "Cu", "HCO3"
    int charge;               // with its sign
    bool isGroup;             // of several atoms, which takes brackets where it occurs repeatedly
    int weight;               // how common it is in comparison with others, 1 to 6
    int oxidationNumber;      // that the name tells: 2 of copper(II), 7 of manganate(VII); else 0
};
const IonRow& rowOf(Ion ion);

// The 19 cations and 15 anions of which compounds are made, in the order of the table.
const std::vector<const IonRow*>& cations();
const std::vector<const IonRow*>& anions();
// Those that are asked for alone, as ions, besides these: hydrogen ion, nitrite, …, cyanide.
const std::vector<const IonRow*>& furtherIons();

// The ion with this formula and charge among all of these: "Cu", 2. Null where there is none.
const IonRow* findIon(std::string_view formula, int charge);

// Whether its name tells an oxidation number, by a Roman numeral; of a cation that is its charge.
bool hasRomanNumeral(const IonRow& ion);

// The element of an ion of one atom; null for a group.
const ElementRow* elementOf(const IonRow& ion);

// The charge as it stands behind a formula: "+", "2-".
std::string chargeText(const IonRow& ion);

static_assert(ionCount <= 64, "a set has room for all");
using IonSet = IdSet<Ion>;

} // namespace lesson
