#include "lesson/chemistry/pairs.hpp"

#include <algorithm>
#include <iterator>

namespace lesson
{

namespace
{

// Which compounds of an anion are not asked: those of the listed cations, or all but those.
enum class Of { these, allBut };

struct NotAskedRow {
    std::string_view anion;
    Of of;
    std::string_view cations; // names, a blank between them
    std::string_view reason;
};

// clang-format off
constexpr NotAskedRow noFormula[] = {
    {"hydroxide", Of::these, "ammonium", "Ammonia solution holds ammonia and water; ammonium hydroxide cannot be obtained from it."},
    {"hydroxide", Of::these, "silver", "It falls apart into silver oxide and water."},
    {"hydroxide", Of::these, "tin(II)", "It has no simple formula: it loses some of its water at once."},
    {"oxide", Of::these, "ammonium", "It does not exist."},
    {"carbonate", Of::these, "aluminium chromium(III) iron(III)", "It does not exist: with water the hydroxide and carbon dioxide form instead."},
    {"carbonate", Of::these, "tin(II)", "It is hardly known: it falls apart into tin(II) oxide and carbon dioxide."},
    {"hydrogencarbonate", Of::allBut, "sodium potassium ammonium magnesium calcium", "It cannot be obtained as a substance."},
    {"iodide", Of::these, "iron(III)", "Iron(III) turns iodide into iodine, so that iron(II) iodide forms."},
    {"iodide", Of::these, "copper(II)", "Copper(II) turns iodide into iodine, so that copper(I) iodide forms."},
    {"nitrate", Of::these, "tin(II)", "It falls apart: nitrate oxidises tin(II)."},
    {"sulfide", Of::these, "iron(III)", "It falls apart into iron(II) sulfide and sulfur."},
    {"nitride", Of::allBut, "lithium magnesium calcium barium aluminium", "It is unknown, or too unstable or unusual for school."},
    {"phosphide", Of::allBut, "sodium potassium magnesium calcium aluminium zinc", "It is unknown, or has another formula than its ions suggest."},
    {"ethanoate", Of::these, "aluminium chromium(III) iron(III)", "What is sold under the name has another formula, with hydroxide or oxide in it."},
    {"ethanoate", Of::these, "tin(II) iron(II)", "It is oxidised by air, and is hardly met at school."},
};

// Besides the above.
constexpr NotAskedRow noSolubility[] = {
    {"oxide", Of::allBut, "", "An oxide does not just dissolve: it reacts with water to a hydroxide, or stays as it is."},
    {"nitride", Of::allBut, "", "Nitrides do not dissolve: they react with water or stay as they are."},
    {"phosphide", Of::allBut, "", "Phosphides do not dissolve: they react with water."},
    {"fluoride", Of::allBut, "", "School tables differ on fluorides."},
    {"chloride", Of::these, "tin(II)", "Tin(II) compounds react with water unless there is acid."},
    {"bromide", Of::these, "tin(II)", "Tin(II) compounds react with water unless there is acid."},
    {"iodide", Of::these, "tin(II)", "Tin(II) compounds react with water unless there is acid."},
    {"sulfide", Of::these, "tin(II)", "School tables leave out the compounds of tin(II)."},
    {"sulfate", Of::these, "tin(II)", "Tin(II) compounds react with water unless there is acid."},
    {"phosphate", Of::these, "tin(II)", "School tables leave out the compounds of tin(II)."},
    {"carbonate", Of::these, "lithium", "It dissolves a little: school tables differ."},
    {"phosphate", Of::these, "lithium", "It hardly dissolves, unlike other alkali salts: school tables differ."},
    {"hydrogencarbonate", Of::allBut, "sodium potassium ammonium", "It exists only in solution."},
    {"hydroxide", Of::these, "calcium barium", "It dissolves a little: school tables differ."},
    {"sulfate", Of::these, "calcium silver", "It dissolves a little: school tables differ."},
    {"chloride", Of::these, "lead(II)", "It dissolves in hot water, but hardly in cold water: school tables differ."},
    {"bromide", Of::these, "lead(II)", "It dissolves in hot water, but hardly in cold water: school tables differ."},
    {"ethanoate", Of::these, "silver", "It dissolves a little: school tables differ."},
    {"sulfide", Of::these, "magnesium calcium barium aluminium chromium(III)", "It reacts with water."},
    {"bromide", Of::these, "aluminium chromium(III)", "It reacts violently with water, or dissolves too slowly to tell."},
    {"iodide", Of::these, "aluminium chromium(III)", "It reacts violently with water, or dissolves too slowly to tell."},
};

constexpr SolubilityRule rules[] = {
    {"nitrate", "nitrates", true, "", "All nitrates are soluble."},
    {"ethanoate", "ethanoates", true, "", "Ethanoates are soluble."},
    {"chloride", "halides", true, "silver lead(II)", "Chlorides are soluble, except those of silver and lead."},
    {"bromide", "halides", true, "silver lead(II)", "Bromides are soluble, except those of silver and lead."},
    {"iodide", "halides", true, "silver lead(II)", "Iodides are soluble, except those of silver and lead."},
    {"sulfate", "sulfates", true, "barium lead(II)", "Sulfates are soluble, except those of barium and lead, and in part calcium and silver."},
    {"hydrogencarbonate", "hydrogencarbonates", true, "", "The hydrogencarbonates of sodium, potassium and ammonium are soluble."},
    {"hydroxide", "hydroxides", false, "lithium sodium potassium", "Hydroxides are insoluble, except those of lithium, sodium and potassium, and in part calcium and barium."},
    {"carbonate", "carbonates and phosphates", false, "sodium potassium ammonium", "Carbonates are insoluble, except those of sodium, potassium and ammonium."},
    {"phosphate", "carbonates and phosphates", false, "sodium potassium ammonium", "Phosphates are insoluble, except those of sodium, potassium and ammonium."},
    {"sulfide", "sulfides", false, "lithium sodium potassium ammonium", "Sulfides are insoluble, except those of lithium, sodium, potassium and ammonium."},
};
// clang-format on

bool isListed(std::string_view names, std::string_view wanted)
{
    while (!names.empty()) {
        const std::string_view first = names.substr(0, names.find(' '));
        if (first == wanted) {
            return true;
        }
        names.remove_prefix(std::min(names.size(), first.size() + 1));
    }
    return false;
}

bool covers(const NotAskedRow& row, const Pair& pair)
{
    return row.anion == pair.anion->name &&
           isListed(row.cations, pair.cation->name) == (row.of == Of::these);
}

template <std::size_t N>
std::string_view reasonIn(const NotAskedRow (&rows)[N], const Pair& pair)
{
    const auto* const row = std::find_if(std::begin(rows), std::end(rows),
                                         [&pair](const NotAskedRow& r) { return covers(r, pair); });
    return row == std::end(rows) ? std::string_view() : row->reason;
}

std::vector<Pair> pairsWithout(std::string_view (*reason)(const Pair&))
{
    std::vector<Pair> pairs;
    for (const IonRow* const cation : cations()) {
        for (const IonRow* const anion : anions()) {
            if (reason({cation, anion}).empty()) {
                pairs.push_back({cation, anion});
            }
        }
    }
    return pairs;
}

} // namespace

bool operator==(const Pair& a, const Pair& b)
{
    return a.cation == b.cation && a.anion == b.anion;
}

int weightOf(const Pair& pair)
{
    return pair.cation->weight * pair.anion->weight;
}

std::string_view whyFormulaIsNotAsked(const Pair& pair)
{
    return reasonIn(noFormula, pair);
}

std::string_view whySolubilityIsNotAsked(const Pair& pair)
{
    const std::string_view reason = whyFormulaIsNotAsked(pair);
    return reason.empty() ? reasonIn(noSolubility, pair) : reason;
}

const std::vector<Pair>& pairsForFormulas()
{
    static const std::vector<Pair> pairs = pairsWithout(whyFormulaIsNotAsked);
    return pairs;
}

const std::vector<Pair>& pairsForSolubility()
{
    static const std::vector<Pair> pairs = pairsWithout(whySolubilityIsNotAsked);
    return pairs;
}

const std::vector<SolubilityRule>& solubilityRules()
{
    static const std::vector<SolubilityRule> all(std::begin(rules), std::end(rules));
    return all;
}

const SolubilityRule* ruleFor(const IonRow& anion)
{
    const auto* const rule =
        std::find_if(std::begin(rules), std::end(rules),
                     [&anion](const SolubilityRule& r) { return r.anion == anion.name; });
    return rule == std::end(rules) ? nullptr : rule;
}

bool isException(const Pair& pair)
{
    return isListed(ruleFor(*pair.anion)->exceptions, pair.cation->name);
}

bool isSoluble(const Pair& pair)
{
    return ruleFor(*pair.anion)->isSoluble != isException(pair);
}

} // namespace lesson
