#include "lesson/chemistry/ions.hpp"

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <iterator>

namespace lesson
{

namespace
{

constexpr bool group = true;
constexpr bool atom = false;

// Names are those of IUPAC as British school boards write them; the American ones stand beside them
// where a class there would write another one. Weights tell how common an ion is in lessons and
// laboratories: 6 where everyone meets it, 4 where most do, 2 where it stands for its like, 1 where
// it is rare. Beside each is what it is known by.
// clang-format off
constexpr IonRow rows[] = {
    {Ion::lithium,             "Li",      1, atom,  1, 0}, // dear, and hardly in a school
    {Ion::sodium,              "Na",      1, atom,  6, 0}, // table salt, soda, lye
    {Ion::potassium,           "K",       1, atom,  6, 0}, // fertiliser, potash
    {Ion::ammonium,            "NH4",     1, group, 6, 0}, // the one cation that is a group
    {Ion::silver,              "Ag",      1, atom,  3, 0}, // the test for halides
    {Ion::magnesium,           "Mg",      2, atom,  6, 0}, // the ribbon that burns
    {Ion::calcium,             "Ca",      2, atom,  6, 0}, // limestone, slaked lime
    {Ion::barium,              "Ba",      2, atom,  3, 0}, // the test for sulfate
    {Ion::manganese2,          "Mn",      2, atom,  1, 2}, // its dioxide is met, its salts are not
    {Ion::iron2,               "Fe",      2, atom,  4, 2}, // green vitriol
    {Ion::cobalt2,             "Co",      2, atom,  1, 2}, // the test for water, poisonous
    {Ion::nickel2,             "Ni",      2, atom,  1, 2}, // poisonous
    {Ion::copper2,             "Cu",      2, atom,  6, 2}, // blue vitriol, the black oxide
    {Ion::zinc,                "Zn",      2, atom,  4, 0}, // the metal of first experiments
    {Ion::tin2,                "Sn",      2, atom,  1, 2}, // hardly in a school
    {Ion::lead2,               "Pb",      2, atom,  3, 2}, // the yellow iodide; poisonous
    {Ion::aluminium,           "Al",      3, atom,  6, 0}, // the one metal of 3+ without a numeral
    {Ion::chromium3,           "Cr",      3, atom,  1, 3}, // hardly in a school
    {Ion::iron3,               "Fe",      3, atom,  4, 3}, // rust

    {Ion::fluoride,            "F",      -1, atom,  3, 0}, // toothpaste
    {Ion::chloride,            "Cl",     -1, atom,  6, 0}, // table salt
    {Ion::bromide,             "Br",     -1, atom,  4, 0}, // like chloride
    {Ion::iodide,              "I",      -1, atom,  4, 0}, // like chloride
    {Ion::hydroxide,           "OH",     -1, group, 6, 0}, // of alkalis
    {Ion::nitrate,             "NO3",    -1, group, 6, 0}, // fertiliser
    {Ion::hydrogencarbonate,   "HCO3",   -1, group, 4, 0}, // baking soda
    {Ion::ethanoate,           "CH3COO", -1, group, 3, 0}, // vinegar
    {Ion::oxide,               "O",      -2, atom,  6, 0}, // of all that burns
    {Ion::sulfide,             "S",      -2, atom,  4, 0}, // ores
    {Ion::sulfate,             "SO4",    -2, group, 6, 0}, // the vitriols, gypsum
    {Ion::carbonate,           "CO3",    -2, group, 6, 0}, // limestone, soda
    {Ion::nitride,             "N",      -3, atom,  1, 0}, // a curiosity
    {Ion::phosphide,           "P",      -3, atom,  1, 0}, // a curiosity
    {Ion::phosphate,           "PO4",    -3, group, 2, 0}, // fertiliser, bones

    // Too rare or too unlike the others for compounds, but worth knowing as ions.
    {Ion::hydrogen,            "H",       1, atom,  6, 0}, // of all acids
    {Ion::nitrite,             "NO2",    -1, group, 3, 0}, // the -ite of nitrate
    {Ion::sulfite,             "SO3",    -2, group, 4, 0}, // the -ite of sulfate
    {Ion::hydrogensulfate,     "HSO4",   -1, group, 3, 0}, // half of sulfuric acid
    {Ion::manganate7,          "MnO4",   -1, group, 4, 7}, // the purple oxidant
    {Ion::dichromate,          "Cr2O7",  -2, group, 4, 0}, // the orange oxidant
    {Ion::chromate,            "CrO4",   -2, group, 3, 0}, // its yellow partner
    {Ion::chlorate,            "ClO3",   -1, group, 3, 0}, // weedkiller, matches
    {Ion::thiosulfate,         "S2O3",   -2, group, 4, 0}, // the vanishing cross
    {Ion::hydrogensulfite,     "HSO3",   -1, group, 2, 0}, // preservative
    {Ion::hydrogenphosphate,   "HPO4",   -2, group, 2, 0}, // buffers
    {Ion::dihydrogenphosphate, "H2PO4",  -1, group, 2, 0}, // buffers
    {Ion::cyanide,             "CN",     -1, group, 2, 0}, // the poison

    {Ion::ethanedioate,        "C2O4",   -2, group, 1, 0}, // rust stains
};
// clang-format on

static_assert(areAtTheirPlaces(rows, &IonRow::id, Ion::ethanedioate), "every ion has its row");

// Those from one to another, with both.
std::vector<const IonRow*> ionsBetween(Ion first, Ion last)
{
    std::vector<const IonRow*> ions;
    for (const IonRow* row = &rowOf(first); row <= &rowOf(last); ++row) {
        ions.push_back(row);
    }
    return ions;
}

template <typename Wanted>
const IonRow* findWhere(Wanted wanted)
{
    const IonRow* const end = &rowOf(Ion::cyanide) + 1;
    const IonRow* const found = std::find_if(std::begin(rows), end, wanted);
    return found == end ? nullptr : found;
}

} // namespace

const IonRow& rowOf(Ion ion)
{
    return rows[static_cast<std::size_t>(ion)];
}

const std::vector<const IonRow*>& cations()
{
    static const std::vector<const IonRow*> ions = ionsBetween(Ion::lithium, Ion::iron3);
    return ions;
}

const std::vector<const IonRow*>& anions()
{
    static const std::vector<const IonRow*> ions = ionsBetween(Ion::fluoride, Ion::phosphate);
    return ions;
}

const std::vector<const IonRow*>& furtherIons()
{
    static const std::vector<const IonRow*> ions = ionsBetween(Ion::hydrogen, Ion::cyanide);
    return ions;
}

const IonRow* findIon(std::string_view formula, int charge)
{
    return findWhere([formula, charge](const IonRow& row) {
        return row.formula == formula && row.charge == charge;
    });
}

bool hasRomanNumeral(const IonRow& ion)
{
    return ion.oxidationNumber != 0;
}

const ElementRow* elementOf(const IonRow& ion)
{
    return ion.isGroup ? nullptr : findElement(ion.formula);
}

std::string chargeText(const IonRow& ion)
{
    const int size = std::abs(ion.charge);
    return (size == 1 ? "" : std::to_string(size)) + (ion.charge < 0 ? "-" : "+");
}

} // namespace lesson
