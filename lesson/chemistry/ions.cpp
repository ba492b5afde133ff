#include "lesson/chemistry/ions.hpp"

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <numeric>

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
constexpr IonRow cationRows[] = {
    {"lithium",      "",         "Li",  1, atom,  1}, // dear, and hardly in a school
    {"sodium",       "",         "Na",  1, atom,  6}, // table salt, soda, lye
    {"potassium",    "",         "K",   1, atom,  6}, // fertiliser, potash
    {"ammonium",     "",         "NH4", 1, group, 6}, // the one cation that is a group
    {"silver",       "",         "Ag",  1, atom,  3}, // the test for halides
    {"magnesium",    "",         "Mg",  2, atom,  6}, // the ribbon that burns
    {"calcium",      "",         "Ca",  2, atom,  6}, // limestone, slaked lime
    {"barium",       "",         "Ba",  2, atom,  3}, // the test for sulfate
    {"manganese(II)", "",        "Mn",  2, atom,  1}, // its dioxide is met, its salts are not
    {"iron(II)",     "",         "Fe",  2, atom,  4}, // green vitriol
    {"cobalt(II)",   "",         "Co",  2, atom,  1}, // the test for water, poisonous
    {"nickel(II)",   "",         "Ni",  2, atom,  1}, // poisonous
    {"copper(II)",   "",         "Cu",  2, atom,  6}, // blue vitriol, the black oxide
    {"zinc",         "",         "Zn",  2, atom,  4}, // the metal of first experiments
    {"tin(II)",      "",         "Sn",  2, atom,  1}, // hardly in a school
    {"lead(II)",     "",         "Pb",  2, atom,  3}, // the yellow iodide; poisonous
    {"aluminium",    "aluminum", "Al",  3, atom,  6}, // the one metal of 3+ without a numeral
    {"chromium(III)", "",        "Cr",  3, atom,  1}, // hardly in a school
    {"iron(III)",    "",         "Fe",  3, atom,  4}, // rust
};
static_assert(std::size(cationRows) == 19);

constexpr IonRow anionRows[] = {
    {"fluoride",          "",                   "F",      -1, atom,  3}, // toothpaste
    {"chloride",          "",                   "Cl",     -1, atom,  6}, // table salt
    {"bromide",           "",                   "Br",     -1, atom,  4}, // like chloride
    {"iodide",            "",                   "I",      -1, atom,  4}, // like chloride
    {"hydroxide",         "",                   "OH",     -1, group, 6}, // of alkalis
    {"nitrate",           "",                   "NO3",    -1, group, 6}, // fertiliser
    {"hydrogencarbonate", "hydrogen carbonate", "HCO3",   -1, group, 4}, // baking soda
    {"ethanoate",         "acetate",            "CH3COO", -1, group, 3}, // vinegar
    {"oxide",             "",                   "O",      -2, atom,  6}, // of all that burns
    {"sulfide",           "",                   "S",      -2, atom,  4}, // ores
    {"sulfate",           "",                   "SO4",    -2, group, 6}, // the vitriols, gypsum
    {"carbonate",         "",                   "CO3",    -2, group, 6}, // limestone, soda
    {"nitride",           "",                   "N",      -3, atom,  1}, // a curiosity
    {"phosphide",         "",                   "P",      -3, atom,  1}, // a curiosity
    {"phosphate",         "",                   "PO4",    -3, group, 2}, // fertiliser, bones
};
static_assert(std::size(anionRows) == 15);

// Too rare or too unlike the others for compounds, but worth knowing as ions.
constexpr IonRow furtherRows[] = {
    {"hydrogen",            "",                     "H",     1,  atom,  6}, // of all acids
    {"nitrite",             "",                     "NO2",   -1, group, 3}, // the -ite of nitrate
    {"sulfite",             "",                     "SO3",   -2, group, 4}, // the -ite of sulfate
    {"hydrogensulfate",     "hydrogen sulfate",     "HSO4",  -1, group, 3}, // half of sulfuric acid
    {"manganate(VII)",      "permanganate",         "MnO4",  -1, group, 4}, // the purple oxidant
    {"dichromate",          "",                     "Cr2O7", -2, group, 4}, // the orange oxidant
    {"chromate",            "",                     "CrO4",  -2, group, 3}, // its yellow partner
    {"chlorate",            "",                     "ClO3",  -1, group, 3}, // weedkiller, matches
    {"thiosulfate",         "",                     "S2O3",  -2, group, 4}, // the vanishing cross
    {"hydrogensulfite",     "hydrogen sulfite",     "HSO3",  -1, group, 2}, // preservative
    {"hydrogenphosphate",   "hydrogen phosphate",   "HPO4",  -2, group, 2}, // buffers
    {"dihydrogenphosphate", "dihydrogen phosphate", "H2PO4", -1, group, 2}, // buffers
    {"cyanide",             "",                     "CN",    -1, group, 2}, // the poison
};
static_assert(std::size(furtherRows) == 13);
// clang-format on

template <std::size_t N>
std::vector<const IonRow*> pointersTo(const IonRow (&rows)[N])
{
    std::vector<const IonRow*> pointers;
    for (const IonRow& row : rows) {
        pointers.push_back(&row);
    }
    return pointers;
}

template <typename Wanted>
const IonRow* findWhere(Wanted wanted)
{
    for (const auto* const list : {&cations(), &anions(), &furtherIons()}) {
        const auto found = std::find_if(list->begin(), list->end(), wanted);
        if (found != list->end()) {
            return *found;
        }
    }
    return nullptr;
}

int sizeOfCharge(const IonRow& row)
{
    return std::abs(row.charge);
}

// How often an ion stands in the neutral compound with a partner: as often as it takes to come to
// the least charge that both can make up.
int countOf(const IonRow& ion, const IonRow& partner)
{
    return std::lcm(sizeOfCharge(ion), sizeOfCharge(partner)) / sizeOfCharge(ion);
}

// An ion's share of a formula: brackets only around a group that comes more than once.
std::string shareOf(const IonRow& ion, int count)
{
    const std::string formula(ion.formula);
    if (count == 1) {
        return formula;
    }
    return (ion.isGroup ? "(" + formula + ")" : formula) + std::to_string(count);
}

std::string_view americanNameOf(const IonRow& row)
{
    return row.american.empty() ? row.name : row.american;
}

} // namespace

const std::vector<const IonRow*>& cations()
{
    static const std::vector<const IonRow*> rows = pointersTo(cationRows);
    return rows;
}

const std::vector<const IonRow*>& anions()
{
    static const std::vector<const IonRow*> rows = pointersTo(anionRows);
    return rows;
}

const std::vector<const IonRow*>& furtherIons()
{
    static const std::vector<const IonRow*> rows = pointersTo(furtherRows);
    return rows;
}

const IonRow* findIon(std::string_view formula, int charge)
{
    return findWhere([formula, charge](const IonRow* row) {
        return row->formula == formula && row->charge == charge;
    });
}

const IonRow* findIon(std::string_view name)
{
    return findWhere([name](const IonRow* row) { return row->name == name; });
}

bool hasRomanNumeral(const IonRow& ion)
{
    return ion.name.find('(') != std::string_view::npos;
}

std::string chargeText(const IonRow& ion)
{
    const std::string size = sizeOfCharge(ion) == 1 ? "" : std::to_string(sizeOfCharge(ion));
    return size + (ion.charge < 0 ? "-" : "+");
}

// CH3COONa, as boards print an ethanoate that needs no number.
std::string compoundFormula(const IonRow& cation, const IonRow& anion)
{
    if (anion.formula == "CH3COO" && cation.charge == 1) {
        return std::string(anion.formula) + std::string(cation.formula);
    }
    return shareOf(cation, cationsIn(cation, anion)) + shareOf(anion, anionsIn(cation, anion));
}

std::string compoundName(const IonRow& cation, const IonRow& anion)
{
    return std::string(cation.name) + " " + std::string(anion.name);
}

std::string americanName(const IonRow& cation, const IonRow& anion)
{
    if (cation.american.empty() && anion.american.empty()) {
        return "";
    }
    return std::string(americanNameOf(cation)) + " " + std::string(americanNameOf(anion));
}

int cationsIn(const IonRow& cation, const IonRow& anion)
{
    return countOf(cation, anion);
}

int anionsIn(const IonRow& cation, const IonRow& anion)
{
    return countOf(anion, cation);
}

} // namespace lesson
