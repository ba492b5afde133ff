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
    {Ion::lithium,             "Li",      1, atom,  1, 0, "lithium",             ""}, // dear, and hardly in a school
    {Ion::sodium,              "Na",      1, atom,  6, 0, "sodium",              ""}, // table salt, soda, lye
    {Ion::potassium,           "K",       1, atom,  6, 0, "potassium",           ""}, // fertiliser, potash
    {Ion::ammonium,            "NH4",     1, group, 6, 0, "ammonium",            ""}, // the one cation that is a group
    {Ion::silver,              "Ag",      1, atom,  3, 0, "silver",              ""}, // the test for halides
    {Ion::magnesium,           "Mg",      2, atom,  6, 0, "magnesium",           ""}, // the ribbon that burns
    {Ion::calcium,             "Ca",      2, atom,  6, 0, "calcium",             ""}, // limestone, slaked lime
    {Ion::barium,              "Ba",      2, atom,  3, 0, "barium",              ""}, // the test for sulfate
    {Ion::manganese2,          "Mn",      2, atom,  1, 2, "manganese",           ""}, // its dioxide is met, its salts are not
    {Ion::iron2,               "Fe",      2, atom,  4, 2, "iron",                ""}, // green vitriol
    {Ion::cobalt2,             "Co",      2, atom,  1, 2, "cobalt",              ""}, // the test for water, poisonous
    {Ion::nickel2,             "Ni",      2, atom,  1, 2, "nickel",              ""}, // poisonous
    {Ion::copper2,             "Cu",      2, atom,  6, 2, "copper",              ""}, // blue vitriol, the black oxide
    {Ion::zinc,                "Zn",      2, atom,  4, 0, "zinc",                ""}, // the metal of first experiments
    {Ion::tin2,                "Sn",      2, atom,  1, 2, "tin",                 ""}, // hardly in a school
    {Ion::lead2,               "Pb",      2, atom,  3, 2, "lead",                ""}, // the yellow iodide; poisonous
    {Ion::aluminium,           "Al",      3, atom,  6, 0, "aluminium",           "aluminum"}, // the one metal of 3+ without a numeral
    {Ion::chromium3,           "Cr",      3, atom,  1, 3, "chromium",            ""}, // hardly in a school
    {Ion::iron3,               "Fe",      3, atom,  4, 3, "iron",                ""}, // rust

    {Ion::fluoride,            "F",      -1, atom,  3, 0, "fluoride",            ""}, // toothpaste
    {Ion::chloride,            "Cl",     -1, atom,  6, 0, "chloride",            ""}, // table salt
    {Ion::bromide,             "Br",     -1, atom,  4, 0, "bromide",             ""}, // like chloride
    {Ion::iodide,              "I",      -1, atom,  4, 0, "iodide",              ""}, // like chloride
    {Ion::hydroxide,           "OH",     -1, group, 6, 0, "hydroxide",           ""}, // of alkalis
    {Ion::nitrate,             "NO3",    -1, group, 6, 0, "nitrate",             ""}, // fertiliser
    {Ion::hydrogencarbonate,   "HCO3",   -1, group, 4, 0, "hydrogencarbonate",   "hydrogen carbonate"}, // baking soda
    {Ion::ethanoate,           "CH3COO", -1, group, 3, 0, "ethanoate",           "acetate"}, // vinegar
    {Ion::oxide,               "O",      -2, atom,  6, 0, "oxide",               ""}, // of all that burns
    {Ion::sulfide,             "S",      -2, atom,  4, 0, "sulfide",             ""}, // ores
    {Ion::sulfate,             "SO4",    -2, group, 6, 0, "sulfate",             ""}, // the vitriols, gypsum
    {Ion::carbonate,           "CO3",    -2, group, 6, 0, "carbonate",           ""}, // limestone, soda
    {Ion::nitride,             "N",      -3, atom,  1, 0, "nitride",             ""}, // a curiosity
    {Ion::phosphide,           "P",      -3, atom,  1, 0, "phosphide",           ""}, // a curiosity
    {Ion::phosphate,           "PO4",    -3, group, 2, 0, "phosphate",           ""}, // fertiliser, bones

    // Too rare or too unlike the others for compounds, but worth knowing as ions.
    {Ion::hydrogen,            "H",       1, atom,  6, 0, "hydrogen",            ""}, // of all acids
    {Ion::nitrite,             "NO2",    -1, group, 3, 0, "nitrite",             ""}, // the -ite of nitrate
    {Ion::sulfite,             "SO3",    -2, group, 4, 0, "sulfite",             ""}, // the -ite of sulfate
    {Ion::hydrogensulfate,     "HSO4",   -1, group, 3, 0, "hydrogensulfate",     "hydrogen sulfate"}, // half of sulfuric acid
    {Ion::manganate7,          "MnO4",   -1, group, 4, 7, "manganate",           "permanganate"}, // the purple oxidant
    {Ion::dichromate,          "Cr2O7",  -2, group, 4, 0, "dichromate",          ""}, // the orange oxidant
    {Ion::chromate,            "CrO4",   -2, group, 3, 0, "chromate",            ""}, // its yellow partner
    {Ion::chlorate,            "ClO3",   -1, group, 3, 0, "chlorate",            ""}, // weedkiller, matches
    {Ion::thiosulfate,         "S2O3",   -2, group, 4, 0, "thiosulfate",         ""}, // the vanishing cross
    {Ion::hydrogensulfite,     "HSO3",   -1, group, 2, 0, "hydrogensulfite",     "hydrogen sulfite"}, // preservative
    {Ion::hydrogenphosphate,   "HPO4",   -2, group, 2, 0, "hydrogenphosphate",   "hydrogen phosphate"}, // buffers
    {Ion::dihydrogenphosphate, "H2PO4",  -1, group, 2, 0, "dihydrogenphosphate", "dihydrogen phosphate"}, // buffers
    {Ion::cyanide,             "CN",     -1, group, 2, 0, "cyanide",             ""}, // the poison

    {Ion::ethanedioate,        "C2O4",   -2, group, 1, 0, "ethanedioate",        "oxalate"}, // rust stains
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

std::string romanNumeral(int number)
{
    constexpr const char* numerals[] = {"", "I", "II", "III", "IV", "V", "VI", "VII"};
    return numerals[number];
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

const IonRow* findIon(std::string_view name)
{
    return findWhere([name](const IonRow& row) { return nameInFull(row) == name; });
}

std::string nameInFull(const IonRow& ion)
{
    const std::string name(ion.name);
    return hasRomanNumeral(ion) ? name + "(" + romanNumeral(ion.oxidationNumber) + ")" : name;
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
