#include "data/ion.hpp"

#include <cstdlib>
#include <iterator>

#include "data/tables.hpp"

namespace
{

struct IonRow {
    const char* name;
    const char* formula;
    bool negative;
    short charge;
    bool polyatomic;
    const char* acidName;
};

constexpr bool anion = true;
constexpr bool cation = false;
constexpr bool group = true;
constexpr bool atom = false;

// Common ions: name, formula, sign, size of the charge, group of atoms or not, and the first word
// of the acid's name for the anions whose acids are asked about. Kept as they stand, these on
// purpose:
//   - iron and iron(II) are one ion under two names, copper and copper(II) another.
//   - copper(III) is in the list; gold has the charge 2, chromium and cobalt have one charge each.
//   - sulfide is written with f, sulphate and sulphuric with ph.
//   - The order matters: the last row is never drawn.
// clang-format off
constexpr IonRow ionRows[] = {
    {"bromide",     "Br",   anion,   1, atom,  "hydrobromic"},       // 1
    {"barium",      "Ba",   cation,  2, atom,  ""},                  // 2
    {"iodide",      "I",    anion,   1, atom,  "hydroiodic"},        // 3
    {"manganese",   "Mn",   cation,  2, atom,  ""},                  // 4
    {"iron",        "Fe",   cation,  2, atom,  ""},                  // 5
    {"iron(II)",    "Fe",   cation,  2, atom,  ""},                  // 6
    {"iron(III)",   "Fe",   cation,  3, atom,  ""},                  // 7
    {"copper",      "Cu",   cation,  2, atom,  ""},                  // 8
    {"copper(II)",  "Cu",   cation,  2, atom,  ""},                  // 9
    {"copper(III)", "Cu",   cation,  3, atom,  ""},                  // 10
    {"cobalt",      "Co",   cation,  2, atom,  ""},                  // 11
    {"nickel",      "Ni",   cation,  2, atom,  ""},                  // 12
    {"zinc",        "Zn",   cation,  2, atom,  ""},                  // 13
    {"cadmium",     "Cd",   cation,  2, atom,  ""},                  // 14
    {"tin(II)",     "Sn",   cation,  2, atom,  ""},                  // 15
    {"gold",        "Au",   cation,  2, atom,  ""},                  // 16
    {"mercury",     "Hg",   cation,  2, atom,  ""},                  // 17
    {"lead(II)",    "Pb",   cation,  2, atom,  ""},                  // 18
    {"chromium",    "Cr",   cation,  3, atom,  ""},                  // 19
    {"silver",      "Ag",   cation,  1, atom,  ""},                  // 20
    {"lithium",     "Li",   cation,  1, atom,  ""},                  // 21
    {"beryllium",   "Be",   cation,  2, atom,  ""},                  // 22
    {"nitride",     "N",    anion,   3, atom,  ""},                  // 23
    {"oxide",       "O",    anion,   2, atom,  ""},                  // 24
    {"fluoride",    "F",    anion,   1, atom,  "hydrofluoric"},      // 25
    {"sodium",      "Na",   cation,  1, atom,  ""},                  // 26
    {"magnesium",   "Mg",   cation,  2, atom,  ""},                  // 27
    {"aluminium",   "Al",   cation,  3, atom,  ""},                  // 28
    {"phosphide",   "P",    anion,   3, atom,  ""},                  // 29
    {"sulfide",     "S",    anion,   2, atom,  ""},                  // 30
    {"chloride",    "Cl",   anion,   1, atom,  "hydrochloric"},      // 31
    {"potassium",   "K",    cation,  1, atom,  ""},                  // 32
    {"nitrate",     "NO3",  anion,   1, group, "nitric"},            // 33
    {"phosphate",   "PO4",  anion,   3, group, "phosphoric"},        // 34
    {"sulphate",    "SO4",  anion,   2, group, "sulphuric"},         // 35
    {"hydroxide",   "OH",   anion,   1, group, ""},                  // 36
    {"carbonate",   "CO3",  anion,   2, group, "carbonic"},          // 37
    {"ammonium",    "NH4",  cation,  1, group, ""},                  // 38
    {"bicarbonate", "HCO3", anion,   1, group, ""},                  // 39
};
// clang-format on
static_assert(std::size(ionRows) == 39);

// The row that a draw gives. Kept: a remainder of 0 is drawn again and a remainder of 1 is the
// first row, so that the last row never comes.
const Ion& drawRow()
{
    if (ion.empty()) {
        initIons();
    }
    std::size_t row = 0;
    while (row == 0) {
        row = static_cast<std::size_t>(std::rand()) % ion.size();
    }
    return ion[row - 1];
}

// The first row of repeated draws that is wanted; no other one is copied.
template <typename Wanted>
Ion drawUntil(Wanted wanted)
{
    for (;;) {
        const Ion& drawn = drawRow();
        if (wanted(drawn)) {
            return drawn;
        }
    }
}

} // namespace

void initIons()
{
    for (const IonRow& row : ionRows) {
        ion.emplace_back(row.name, row.formula, row.negative, row.charge, row.polyatomic,
                         row.acidName);
    }
}

Ion randomIon()
{
    return drawRow();
}

Ion randomNeg()
{
    return drawUntil([](const Ion& drawn) { return drawn.negative; });
}

Ion randomNegWhere(bool (*wanted)(const Ion& anion))
{
    return drawUntil([wanted](const Ion& drawn) { return drawn.negative && wanted(drawn); });
}

Ion randomPos()
{
    return drawUntil([](const Ion& drawn) { return !drawn.negative; });
}
