#include "lesson/tables/ions.hpp"

#include <algorithm>
#include <cstdlib>
#include <iterator>

#include "data/ion.hpp"

namespace lesson
{

namespace
{

constexpr bool group = true;
constexpr bool atom = false;

// Names are those of IUPAC as British school boards write them; the American ones stand beside them
// where a class there would write another one. Formulas of compounds have the cation first,
// ethanoates too: NaCH3COO.
// clang-format off
constexpr IonRow cationRows[] = {
    {"lithium",      "",         "Li",  1, atom},
    {"sodium",       "",         "Na",  1, atom},
    {"potassium",    "",         "K",   1, atom},
    {"ammonium",     "",         "NH4", 1, group},
    {"silver",       "",         "Ag",  1, atom},
    {"magnesium",    "",         "Mg",  2, atom},
    {"calcium",      "",         "Ca",  2, atom},
    {"barium",       "",         "Ba",  2, atom},
    {"manganese(II)", "",        "Mn",  2, atom},
    {"iron(II)",     "",         "Fe",  2, atom},
    {"cobalt(II)",   "",         "Co",  2, atom},
    {"nickel(II)",   "",         "Ni",  2, atom},
    {"copper(II)",   "",         "Cu",  2, atom},
    {"zinc",         "",         "Zn",  2, atom},
    {"tin(II)",      "",         "Sn",  2, atom},
    {"lead(II)",     "",         "Pb",  2, atom},
    {"aluminium",    "aluminum", "Al",  3, atom},
    {"chromium(III)", "",        "Cr",  3, atom},
    {"iron(III)",    "",         "Fe",  3, atom},
};
static_assert(std::size(cationRows) == 19);

constexpr IonRow anionRows[] = {
    {"fluoride",          "",                   "F",      -1, atom},
    {"chloride",          "",                   "Cl",     -1, atom},
    {"bromide",           "",                   "Br",     -1, atom},
    {"iodide",            "",                   "I",      -1, atom},
    {"hydroxide",         "",                   "OH",     -1, group},
    {"nitrate",           "",                   "NO3",    -1, group},
    {"hydrogencarbonate", "hydrogen carbonate", "HCO3",   -1, group},
    {"ethanoate",         "acetate",            "CH3COO", -1, group},
    {"oxide",             "",                   "O",      -2, atom},
    {"sulfide",           "",                   "S",      -2, atom},
    {"sulfate",           "",                   "SO4",    -2, group},
    {"carbonate",         "",                   "CO3",    -2, group},
    {"nitride",           "",                   "N",      -3, atom},
    {"phosphide",         "",                   "P",      -3, atom},
    {"phosphate",         "",                   "PO4",    -3, group},
};
static_assert(std::size(anionRows) == 15);

// Too rare or too unlike the others for compounds, but worth knowing as ions.
constexpr IonRow furtherRows[] = {
    {"hydrogen",        "",                 "H",     1,  atom},
    {"nitrite",         "",                 "NO2",   -1, group},
    {"sulfite",         "",                 "SO3",   -2, group},
    {"hydrogensulfate", "hydrogen sulfate", "HSO4",  -1, group},
    {"manganate(VII)",  "permanganate",     "MnO4",  -1, group},
    {"dichromate",      "",                 "Cr2O7", -2, group},
};
static_assert(std::size(furtherRows) == 6);
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

short sizeOfCharge(const IonRow& row)
{
    return static_cast<short>(std::abs(row.charge));
}

Ion ionOf(const IonRow& row)
{
    return Ion(std::string(row.name), std::string(row.formula), row.charge < 0, sizeOfCharge(row),
               row.isGroup, "");
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

std::string compoundFormula(const IonRow& cation, const IonRow& anion)
{
    return makeFormula(ionOf(cation), ionOf(anion));
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
    return subscript(sizeOfCharge(cation), sizeOfCharge(anion));
}

int anionsIn(const IonRow& cation, const IonRow& anion)
{
    return subscript(sizeOfCharge(anion), sizeOfCharge(cation));
}

} // namespace lesson
