#include "lesson/tests/every/chemistry.hpp"

#include <algorithm>
#include <numeric>
#include <sstream>

#include "support/atom_count.hpp"

namespace
{

std::vector<std::string> wordsIn(const std::string& text)
{
    std::istringstream stream(text);
    std::vector<std::string> words;
    for (std::string word; stream >> word;) {
        words.push_back(word);
    }
    return words;
}

bool isListed(const std::string& words, const std::string& word)
{
    return (" " + words + " ").find(" " + word + " ") != std::string::npos;
}

// clang-format off
// Relative atomic masses of the elements that the exercises have.
const std::map<std::string, std::string> masses = {
    {"H", "1.008"}, {"Li", "6.940"}, {"C", "12.01"}, {"N", "14.01"}, {"O", "16.00"},
    {"F", "19.00"}, {"Na", "22.99"}, {"Mg", "24.31"}, {"Al", "26.98"}, {"P", "30.97"},
    {"S", "32.06"}, {"Cl", "35.45"}, {"K", "39.10"}, {"Ca", "40.08"}, {"Cr", "52.00"},
    {"Mn", "54.94"}, {"Fe", "55.85"}, {"Co", "58.93"}, {"Ni", "58.69"}, {"Cu", "63.55"},
    {"Zn", "65.38"}, {"Br", "79.90"}, {"Ag", "107.9"}, {"Sn", "118.7"}, {"I", "126.9"},
    {"Ba", "137.3"}, {"Pb", "207.2"},
};

// Which compounds of an anion are left out: those of the cations, or, with "but", all others.
struct LeftOut {
    const char* anion;
    bool allBut;
    const char* cations;
};
constexpr bool but = true;
constexpr LeftOut noFormula[] = {
    {"OH", false, "NH4 Ag Sn"}, {"O", false, "NH4"}, {"CO3", false, "Al Cr Fe3 Sn"},
    {"HCO3", but, "Na K NH4 Mg Ca"}, {"I", false, "Fe3 Cu"}, {"NO3", false, "Sn"},
    {"S", false, "Fe3"}, {"N", but, "Li Mg Ca Ba Al"}, {"P", but, "Na K Mg Ca Al Zn"},
    {"CH3COO", false, "Al Cr Fe3 Sn Fe2"},
};
constexpr LeftOut noSolubility[] = {
    {"O", but, ""}, {"N", but, ""}, {"P", but, ""}, {"F", but, ""}, {"CO3", false, "Li"},
    {"PO4", false, "Li"}, {"HCO3", but, "Na K NH4"}, {"OH", false, "Ca Ba"},
    {"SO4", false, "Ca Ag"}, {"Cl", false, "Pb"}, {"Br", false, "Pb Al Cr"},
    {"CH3COO", false, "Ag"}, {"S", false, "Mg Ca Ba Al Cr"}, {"I", false, "Al Cr"},
};

// Which compounds of an anion dissolve: those of the cations, or all others.
constexpr LeftOut soluble[] = {
    {"NO3", but, ""}, {"CH3COO", but, ""}, {"HCO3", but, ""}, {"Cl", but, "Ag Pb"},
    {"Br", but, "Ag Pb"}, {"I", but, "Ag Pb"}, {"SO4", but, "Ba Pb"}, {"OH", false, "Li Na K"},
    {"CO3", false, "Na K NH4"}, {"PO4", false, "Na K NH4"}, {"S", false, "Li Na K NH4"},
};
// clang-format on

template <std::size_t N>
bool isIn(const LeftOut (&rows)[N], const TypedIon& cation, const TypedIon& anion)
{
    return std::any_of(std::begin(rows), std::end(rows), [&](const LeftOut& row) {
        return row.anion == anion.key && isListed(row.cations, cation.key) != row.allBut;
    });
}

std::string share(const TypedIon& ion, int count)
{
    const std::string number = count == 1 ? "" : std::to_string(count);
    return isOneAtom(ion) || count == 1 ? ion.formula + number : "(" + ion.formula + ")" + number;
}

std::string formulaOf(const TypedIon& cation, const TypedIon& anion)
{
    if (anion.key == "CH3COO" && isListed("Li Na K NH4 Ag", cation.key)) {
        return "CH3COO" + cation.formula;
    }
    const int charge = std::lcm(cation.charge, -anion.charge);
    return share(cation, charge / cation.charge) + share(anion, charge / -anion.charge);
}

std::vector<TypedPair> pairsWhere(bool (*isAsked)(const TypedIon&, const TypedIon&))
{
    std::vector<TypedPair> pairs;
    for (const TypedIon& cation : typedCations()) {
        for (const TypedIon& anion : typedAnions()) {
            if (isAsked(cation, anion)) {
                pairs.push_back(
                    {cation, anion, formulaOf(cation, anion), cation.name + " " + anion.name});
            }
        }
    }
    return pairs;
}

bool isFormulaAsked(const TypedIon& cation, const TypedIon& anion)
{
    return !isIn(noFormula, cation, anion);
}

bool isSolubilityAsked(const TypedIon& cation, const TypedIon& anion)
{
    return isFormulaAsked(cation, anion) && cation.key != "Sn" &&
           !isIn(noSolubility, cation, anion);
}

std::set<std::string> formulasWithout(const std::vector<TypedPair>& asked)
{
    std::set<std::string> formulas;
    for (const TypedPair& pair :
         pairsWhere([](const TypedIon&, const TypedIon&) { return true; })) {
        formulas.insert(pair.formula);
    }
    for (const TypedPair& pair : asked) {
        formulas.erase(pair.formula);
    }
    return formulas;
}

const TypedPair* findPair(const std::string& cation, const std::string& anion)
{
    const auto& pairs = typedPairs();
    const auto found = std::find_if(pairs.begin(), pairs.end(), [&](const TypedPair& pair) {
        return pair.cation.key == cation && pair.anion.key == anion;
    });
    return found == pairs.end() ? nullptr : &*found;
}

struct TypedAcid {
    const char* formula;
    const char* anion;
    int protons;
};
constexpr TypedAcid typedAcids[] = {
    {"HCl", "Cl", 1},    {"HBr", "Br", 1},    {"HNO3", "NO3", 1},
    {"H2SO4", "SO4", 2}, {"H3PO4", "PO4", 3}, {"CH3COOH", "CH3COO", 1},
};

// Adds the reaction of an acid with the base of two ions, if the base and the salt are asked.
void addReaction(TypedReactions& reactions, const std::string& acidFormula,
                 const std::string& cation, const std::string& anion)
{
    const auto* const acid =
        std::find_if(std::begin(typedAcids), std::end(typedAcids),
                     [&](const TypedAcid& a) { return a.formula == acidFormula; });
    const TypedPair* const base = findPair(cation, anion);
    const TypedPair* const salt = findPair(cation, acid->anion);
    if (base == nullptr || salt == nullptr) {
        return;
    }
    // The anions of a base take up as many protons as they carry charges, and these are as many as
    // those of its cations.
    const int anions = atomsIn(base->formula).at("O") / atomsIn(base->anion.formula).at("O");
    const int taken = anions * -base->anion.charge;
    const int protons = std::lcm(acid->protons, taken);
    reactions[{acidFormula, base->formula}] = {acidFormula,
                                               base->formula,
                                               salt->formula,
                                               true,
                                               isListed("CO3 HCO3", anion),
                                               protons / acid->protons,
                                               protons / taken};
}

void addReactions(TypedReactions& reactions, const std::string& acids, const std::string& cations,
                  const std::string& anions)
{
    for (const std::string& acid : wordsIn(acids)) {
        for (const std::string& cation : wordsIn(cations)) {
            for (const std::string& anion : wordsIn(anions)) {
                addReaction(reactions, acid, cation, anion);
            }
        }
    }
}

void addAmmonia(TypedReactions& reactions, const std::string& acid, const std::string& salt,
                int ofAmmonia)
{
    reactions[{acid, "NH3"}] = {acid, "NH3", salt, false, false, 1, ofAmmonia};
}

TypedReactions makeNeutralisations()
{
    const std::string bases = "O OH CO3";
    TypedReactions all;
    addReactions(all, "HCl HBr", "Li Na K NH4 Mg Ca Ba Mn Fe2 Co Ni Cu Zn Al Cr Fe3", bases);
    addReactions(all, "HNO3", "Li Na K NH4 Ag Mg Ca Ba Mn Co Ni Cu Zn Pb Al Cr Fe3", bases);
    addReactions(all, "H2SO4", "Li Na K NH4 Mg Ca Ba Mn Fe2 Co Ni Cu Zn Al Cr Fe3", bases);
    addReactions(all, "H3PO4", "Na K Mg Ca Al", "OH");
    addReactions(all, "H3PO4", "Mg Ca", "O");
    addReactions(all, "CH3COOH", "Li Na K Mg Ca Ba Mn Co Ni Cu Zn Pb", bases);
    addReactions(all, "HCl HNO3 H2SO4", "Na K", "HCO3");
    for (const char* acid : {"HCl", "HBr", "HNO3", "H2SO4"}) {
        all.erase({acid, "Cr2O3"});
    }
    for (const char* base : {"BaO", "BaCO3", "CaO", "CaCO3"}) {
        all.erase({"H2SO4", base});
    }
    addAmmonia(all, "HCl", "NH4Cl", 1);
    addAmmonia(all, "HBr", "NH4Br", 1);
    addAmmonia(all, "HNO3", "NH4NO3", 1);
    addAmmonia(all, "H2SO4", "(NH4)2SO4", 2);
    return all;
}

TypedReactions makeTitrations()
{
    TypedReactions all;
    addReactions(all, "HCl HNO3 H2SO4", "Li Na K", "OH");
    addReactions(all, "HCl HNO3 H2SO4", "Na K", "CO3 HCO3");
    addReactions(all, "CH3COOH", "Li Na K", "OH");
    addAmmonia(all, "HCl", "NH4Cl", 1);
    addAmmonia(all, "H2SO4", "(NH4)2SO4", 2);
    all[{"H2C2O4", "NaOH"}] = {"H2C2O4", "NaOH", "Na2C2O4", true, false, 1, 2};
    return all;
}

// "0.20 AgNO3 0.30 …": each concentration before those that it limits.
std::map<std::string, Exact> ceilingsIn(const std::string& list)
{
    std::map<std::string, Exact> ceilings;
    Exact ceiling;
    for (const std::string& word : wordsIn(list)) {
        if (word.find_first_not_of("0123456789.") == std::string::npos) {
            ceiling = Exact::read(word);
        } else {
            ceilings[word] = ceiling;
        }
    }
    return ceilings;
}

std::map<std::string, int> atomsWithWater(const std::string& formula)
{
    const std::size_t dot = formula.find('.');
    std::map<std::string, int> atoms = countAtoms(formula.substr(0, dot));
    if (dot != std::string::npos) {
        const int water = std::stoi(formula.substr(dot + 1));
        atoms["H"] += 2 * water;
        atoms["O"] += water;
    }
    return atoms;
}

} // namespace

const std::vector<TypedIon>& typedCations()
{
    static const std::vector<TypedIon> ions = {
        {"Li", "lithium", "Li", 1},       {"Na", "sodium", "Na", 1},
        {"K", "potassium", "K", 1},       {"NH4", "ammonium", "NH4", 1},
        {"Ag", "silver", "Ag", 1},        {"Mg", "magnesium", "Mg", 2},
        {"Ca", "calcium", "Ca", 2},       {"Ba", "barium", "Ba", 2},
        {"Mn", "manganese(II)", "Mn", 2}, {"Fe2", "iron(II)", "Fe", 2},
        {"Co", "cobalt(II)", "Co", 2},    {"Ni", "nickel(II)", "Ni", 2},
        {"Cu", "copper(II)", "Cu", 2},    {"Zn", "zinc", "Zn", 2},
        {"Sn", "tin(II)", "Sn", 2},       {"Pb", "lead(II)", "Pb", 2},
        {"Al", "aluminium", "Al", 3},     {"Cr", "chromium(III)", "Cr", 3},
        {"Fe3", "iron(III)", "Fe", 3},
    };
    return ions;
}

const std::vector<TypedIon>& typedAnions()
{
    static const std::vector<TypedIon> ions = {
        {"F", "fluoride", "F", -1},
        {"Cl", "chloride", "Cl", -1},
        {"Br", "bromide", "Br", -1},
        {"I", "iodide", "I", -1},
        {"OH", "hydroxide", "OH", -1},
        {"NO3", "nitrate", "NO3", -1},
        {"HCO3", "hydrogencarbonate", "HCO3", -1},
        {"CH3COO", "ethanoate", "CH3COO", -1},
        {"O", "oxide", "O", -2},
        {"S", "sulfide", "S", -2},
        {"SO4", "sulfate", "SO4", -2},
        {"CO3", "carbonate", "CO3", -2},
        {"N", "nitride", "N", -3},
        {"P", "phosphide", "P", -3},
        {"PO4", "phosphate", "PO4", -3},
    };
    return ions;
}

const std::vector<TypedIon>& typedFurtherIons()
{
    static const std::vector<TypedIon> ions = {
        {"H", "hydrogen", "H", 1},
        {"NO2", "nitrite", "NO2", -1},
        {"SO3", "sulfite", "SO3", -2},
        {"HSO4", "hydrogensulfate", "HSO4", -1},
        {"MnO4", "manganate(VII)", "MnO4", -1},
        {"Cr2O7", "dichromate", "Cr2O7", -2},
        {"CrO4", "chromate", "CrO4", -2},
        {"ClO3", "chlorate", "ClO3", -1},
        {"S2O3", "thiosulfate", "S2O3", -2},
        {"HSO3", "hydrogensulfite", "HSO3", -1},
        {"HPO4", "hydrogenphosphate", "HPO4", -2},
        {"H2PO4", "dihydrogenphosphate", "H2PO4", -1},
        {"CN", "cyanide", "CN", -1},
    };
    return ions;
}

bool isOneAtom(const TypedIon& ion)
{
    const auto& atoms = atomsIn(ion.formula);
    return atoms.size() == 1 && atoms.begin()->second == 1;
}

bool hasNumeral(const TypedIon& ion)
{
    return ion.name.find_first_of("IV") != std::string::npos;
}

const std::vector<TypedPair>& typedPairs()
{
    static const std::vector<TypedPair> pairs = pairsWhere(isFormulaAsked);
    return pairs;
}

const std::vector<TypedPair>& typedSolubilityPairs()
{
    static const std::vector<TypedPair> pairs = pairsWhere(isSolubilityAsked);
    return pairs;
}

const std::set<std::string>& formulasLeftOut()
{
    static const std::set<std::string> formulas = formulasWithout(typedPairs());
    return formulas;
}

const std::set<std::string>& formulasWithoutSolubility()
{
    static const std::set<std::string> formulas = formulasWithout(typedSolubilityPairs());
    return formulas;
}

bool dissolves(const TypedPair& pair)
{
    return isIn(soluble, pair.cation, pair.anion);
}

bool isAgainstTheRule(const TypedPair& pair)
{
    const bool mostDissolve = !isListed("OH CO3 PO4 S", pair.anion.key);
    return dissolves(pair) != mostDissolve;
}

const std::map<std::string, int>& atomsIn(const std::string& formula)
{
    static std::map<std::string, std::map<std::string, int>> counted;
    const auto found = counted.find(formula);
    return found != counted.end() ? found->second
                                  : counted.emplace(formula, atomsWithWater(formula)).first->second;
}

Exact typedMolarMass(const std::string& formula)
{
    Exact mass;
    for (const auto& [symbol, count] : atomsIn(formula)) {
        mass = mass + Exact(count) * Exact::read(masses.at(symbol));
    }
    return mass;
}

const TypedReactions& typedNeutralisations()
{
    static const TypedReactions reactions = makeNeutralisations();
    return reactions;
}

const TypedReactions& typedTitrations()
{
    static const TypedReactions reactions = makeTitrations();
    return reactions;
}

const std::map<std::string, Exact>& typedCeilings()
{
    static const std::map<std::string, Exact> ceilings = ceilingsIn(
        "0.20 AgNO3 0.30 Ba(NO3)2 Cu(CH3COO)2 0.50 K2SO4 0.60 Na3PO4 0.80 Al2(SO4)3 "
        "1.0 NaHCO3 CuSO4 Na2SO4 Fe2(SO4)3 Pb(NO3)2 1.5 Na2CO3 FeSO4 BaCl2 Ca(CH3COO)2 "
        "2.0 KNO3 MgSO4 ZnSO4 KHCO3 NiSO4 MnSO4 CoCl2 3.0 KCl KBr NaBr KI NaNO3 NH4Cl (NH4)2SO4 "
        "LiCl CaCl2 MgCl2 ZnCl2 CuCl2 FeCl3 K2CO3 CH3COONa Mg(NO3)2 Ca(NO3)2 Zn(NO3)2 Cu(NO3)2 "
        "NH4NO3 4.0 NaCl NaOH KOH LiOH");
    return ceilings;
}

const std::map<std::string, Exact>& typedHydrateCeilings()
{
    static const std::map<std::string, Exact> ceilings =
        ceilingsIn("1.0 CuSO4.5H2O 2.0 CoCl2.6H2O MgSO4.7H2O ZnSO4.7H2O 1.5 FeSO4.7H2O "
                   "Na2CO3.10H2O BaCl2.2H2O");
    return ceilings;
}

const std::map<std::string, Exact>& typedAcidCeilings()
{
    static const std::map<std::string, Exact> ceilings =
        ceilingsIn("6.0 HCl HNO3 CH3COOH 3.0 H2SO4");
    return ceilings;
}
