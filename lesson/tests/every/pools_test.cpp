// Every finite pool, walked whole at every level: each member comes once before any comes again,
// and is what the tables typed here allow.

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <numeric>
#include <set>
#include <string>
#include <vector>

#include "lesson/tests/every/chemistry.hpp"
#include "lesson/tests/every/common.hpp"

namespace
{

using Names = std::set<std::string>;

// What tells an exercise from others of its pool.
using NameOf = std::string (*)(const Json& exercise);
// What is right about one exercise alone.
using Check = void (*)(Problems& problems, const Json& exercise);

// Walks through the pool round after round on several papers; once, as it takes long, through a
// great pool, unless many papers are to be checked.
void walk(const std::string& kind, const Names& pool, NameOf nameOf, Check check)
{
    Problems problems;
    const auto size = static_cast<unsigned>(pool.size());
    const bool isShort = size < 1000 || papersToCheck() >= 10000;
    const unsigned papersToWalk = isShort ? 3 : 1;
    const unsigned rounds = isShort ? 2 : 1;
    std::set<std::vector<std::string>> orders;
    for (unsigned paper = 1; paper <= papersToWalk; ++paper) {
        for (unsigned round = 0; round < rounds; ++round) {
            Names met;
            std::vector<std::string> order;
            for (unsigned number = round * size + 1; number <= (round + 1) * size; ++number) {
                const Json exercise = exerciseAt(kind, paper, number);
                checkWhatIsShown(problems, exercise, kind, paper, number);
                check(problems, exercise);
                order.push_back(nameOf(exercise));
                problems.expect(pool.count(order.back()) == 1, "only what is in the pool is asked",
                                order.back());
                problems.expect(met.insert(order.back()).second,
                                "nothing comes again while there is something new", order.back());
            }
            orders.insert(order);
        }
    }
    EXPECT_EQ(problems.text(), "");
    EXPECT_EQ(orders.size(), std::size_t{papersToWalk} * rounds)
        << kind << " has the same order twice";
}

// ------------------------------------------------------------------------------ molar masses

std::string askedOf(const Json& exercise)
{
    return exercise["ask"]["of"];
}

void checkMolarMass(Problems& problems, const Json& exercise)
{
    problems.expect(exercise["ask"]["form"] == "number" && exercise["ask"]["quantity"] == "M" &&
                        exercise["ask"]["unit"] == "g/mol",
                    "a molar mass is asked for", exercise["ask"].dump());
    checkNumber(problems, exercise, typedMolarMass(askedOf(exercise)));
}

Names formulasWhere(const std::function<bool(const TypedPair&)>& isWanted)
{
    Names formulas;
    for (const TypedPair& pair : typedPairs()) {
        if (isWanted(pair)) {
            formulas.insert(pair.formula);
        }
    }
    return formulas;
}

bool hasBracket(const TypedPair& pair)
{
    return pair.formula.find('(') != std::string::npos;
}

TEST(PoolsTest, MolarMassOfMoleculesAndEveryCompoundWithoutABracket)
{
    Names formulas = formulasWhere([](const TypedPair& pair) { return !hasBracket(pair); });
    for (const char* molecule :
         {"H2O", "CO2", "NH3", "CH4", "SO2", "C2H5OH", "C6H12O6", "H2O2", "HNO3", "H2SO4"}) {
        formulas.insert(molecule);
    }
    walk("molar-mass:1", formulas, askedOf, checkMolarMass);
}

TEST(PoolsTest, MolarMassOfEveryCompoundWithABracket)
{
    walk("molar-mass:2", formulasWhere(hasBracket), askedOf, checkMolarMass);
}

TEST(PoolsTest, MolarMassOfEveryHydrate)
{
    walk("molar-mass:3",
         {"CuSO4.5H2O", "MgSO4.7H2O", "Na2CO3.10H2O", "CaSO4.2H2O", "FeSO4.7H2O", "ZnSO4.7H2O",
          "Na2S2O3.5H2O", "H2C2O4.2H2O", "Na2SO4.10H2O", "BaCl2.2H2O", "CoCl2.6H2O", "CaCl2.2H2O",
          "FeCl3.6H2O", "MgCl2.6H2O", "CuCl2.2H2O", "Cu(NO3)2.3H2O", "Ca(NO3)2.4H2O", "NiSO4.6H2O"},
         askedOf, checkMolarMass);
}

// --------------------------------------------------------------------------------- formulas

std::string keyOf(const Json& exercise)
{
    return exercise["key"]["text"];
}

std::vector<Json> givenIons(const Json& exercise)
{
    std::vector<Json> ions;
    for (const Json& given : exercise["given"]) {
        if (given.contains("ion")) {
            ions.push_back(given);
        }
    }
    return ions;
}

bool isIon(const Json& given, const TypedIon& ion)
{
    return given["ion"] == ion.formula && given["charge"] == std::to_string(ion.charge) &&
           given["name"] == ion.name;
}

// The pair of the ions given; null where it is none that may be asked.
const TypedPair* givenPair(const Json& exercise, const std::vector<TypedPair>& pairs)
{
    const std::vector<Json> ions = givenIons(exercise);
    const auto found = std::find_if(pairs.begin(), pairs.end(), [&](const TypedPair& pair) {
        return ions.size() == 2 && isIon(ions[0], pair.cation) && isIon(ions[1], pair.anion);
    });
    return found == pairs.end() ? nullptr : &*found;
}

void checkFormula(Problems& problems, const Json& exercise)
{
    problems.expect(exercise["ask"]["form"] == "formula", "a formula is asked for",
                    exercise["ask"].dump());
    const TypedPair* const pair = givenPair(exercise, typedPairs());
    problems.expect(pair != nullptr, "the ions given may be asked", exercise["given"].dump());
    if (pair != nullptr) {
        problems.expect(keyOf(exercise) == pair->formula, "the key is the neutral compound",
                        keyOf(exercise) + " for " + pair->formula);
        problems.expect(textOf(exercise["prompt"]).find(pair->name) != std::string::npos,
                        "the prompt names the compound", textOf(exercise["prompt"]));
    }
}

bool hasNumeral(const TypedPair& pair)
{
    return hasNumeral(pair.cation) || hasNumeral(pair.anion);
}

bool hasGroup(const TypedPair& pair)
{
    return !isOneAtom(pair.cation) || !isOneAtom(pair.anion);
}

TEST(PoolsTest, FormulaOfEveryCompoundOfSingleAtomsWithoutANumeral)
{
    walk("compound-formula:1",
         formulasWhere([](const TypedPair& pair) { return !hasGroup(pair) && !hasNumeral(pair); }),
         keyOf, checkFormula);
}

TEST(PoolsTest, FormulaOfEveryCompoundWithAGroupAndWithoutANumeral)
{
    walk("compound-formula:2",
         formulasWhere([](const TypedPair& pair) { return hasGroup(pair) && !hasNumeral(pair); }),
         keyOf, checkFormula);
}

TEST(PoolsTest, FormulaOfEveryCompoundWithANumeral)
{
    walk("compound-formula:3",
         formulasWhere([](const TypedPair& pair) { return hasNumeral(pair); }), keyOf,
         checkFormula);
}

// ------------------------------------------------------------------------------------- ions

// As a perfect learner types it: "SO4^2-", "Na^+".
std::string typedIon(const TypedIon& ion)
{
    const int size = ion.charge < 0 ? -ion.charge : ion.charge;
    return ion.formula + "^" + (size == 1 ? "" : std::to_string(size)) +
           (ion.charge < 0 ? "-" : "+");
}

Names ionsWhere(const std::function<bool(const TypedIon&)>& isWanted)
{
    Names ions;
    for (const auto* const list : {&typedCations(), &typedAnions(), &typedFurtherIons()}) {
        for (const TypedIon& ion : *list) {
            if (isWanted(ion)) {
                ions.insert(typedIon(ion));
            }
        }
    }
    return ions;
}

void checkIon(Problems& problems, const Json& exercise)
{
    problems.expect(exercise["ask"]["form"] == "ion", "an ion is asked for",
                    exercise["ask"].dump());
    const std::vector<Json> ions = givenIons(exercise);
    const Names named = ionsWhere([&](const TypedIon& ion) {
        return ions.size() == 1 && isIon(ions[0], ion) &&
               textOf(exercise["prompt"]).find(ion.name) != std::string::npos;
    });
    problems.expect(named == Names{keyOf(exercise)}, "the key is the ion given and named",
                    keyOf(exercise));
}

TEST(PoolsTest, EveryIonOfOneAtom)
{
    walk("ion-formula:1", ionsWhere(isOneAtom), keyOf, checkIon);
}

TEST(PoolsTest, EveryCommonGroup)
{
    const std::string common = " NH4 OH NO3 HCO3 CH3COO SO4 CO3 PO4 NO2 SO3 HSO4 MnO4 ";
    walk("ion-formula:2", ionsWhere([&](const TypedIon& ion) {
             return common.find(" " + ion.key + " ") != std::string::npos;
         }),
         keyOf, checkIon);
}

TEST(PoolsTest, EveryIon)
{
    walk("ion-formula:3", ionsWhere([](const TypedIon&) { return true; }), keyOf, checkIon);
}

// ------------------------------------------------------------------------------- solubility

std::string givenIonsOf(const Json& exercise)
{
    std::string names;
    for (const Json& ion : givenIons(exercise)) {
        names += ion["name"].get<std::string>() + " ";
    }
    return names;
}

void checkSolubility(Problems& problems, const Json& exercise)
{
    problems.expect(exercise["ask"]["form"] == "solubility" &&
                        exercise["ask"]["choices"] == Json::array({"yes", "no"}),
                    "yes or no is asked for", exercise["ask"].dump());
    const TypedPair* const pair = givenPair(exercise, typedSolubilityPairs());
    problems.expect(pair != nullptr, "the ions given may be asked", exercise["given"].dump());
    if (pair != nullptr) {
        problems.expect(keyOf(exercise) == (dissolves(*pair) ? "yes" : "no"),
                        "the key is what a school table says", pair->formula);
        const std::string verdict = dissolves(*pair) ? " is soluble" : " is insoluble";
        const std::string last = textOf(exercise["solution"].back()["math"]);
        problems.expect(last == pair->formula + verdict, "the last step tells the key", last);
    }
}

Names solubilityPairsWhere(const std::function<bool(const TypedPair&)>& isWanted)
{
    Names pairs;
    for (const TypedPair& pair : typedSolubilityPairs()) {
        if (isWanted(pair)) {
            pairs.insert(pair.cation.name + " " + pair.anion.name + " ");
        }
    }
    return pairs;
}

TEST(PoolsTest, SolubilityOfEveryPairThatFollowsItsRule)
{
    walk("solubility:1",
         solubilityPairsWhere([](const TypedPair& pair) { return !isAgainstTheRule(pair); }),
         givenIonsOf, checkSolubility);
}

TEST(PoolsTest, SolubilityOfEveryPair)
{
    walk("solubility:2", solubilityPairsWhere([](const TypedPair&) { return true; }), givenIonsOf,
         checkSolubility);
}

// The pair of two ions among those whose solubility is asked.
const TypedPair* findPair(const TypedIon& cation, const TypedIon& anion)
{
    const auto& pairs = typedSolubilityPairs();
    const auto found = std::find_if(pairs.begin(), pairs.end(), [&](const TypedPair& pair) {
        return pair.cation.key == cation.key && pair.anion.key == anion.key;
    });
    return found == pairs.end() ? nullptr : &*found;
}

// What falls out when two solutions are mixed: a formula, "none", or "" where it is not asked.
std::string precipitateOf(const TypedPair& first, const TypedPair& second)
{
    if (first.cation.key == second.cation.key || first.anion.key == second.anion.key ||
        !dissolves(first) || !dissolves(second)) {
        return "";
    }
    const TypedPair* const crossed = findPair(first.cation, second.anion);
    const TypedPair* const other = findPair(second.cation, first.anion);
    if (crossed == nullptr || other == nullptr || (!dissolves(*crossed) && !dissolves(*other))) {
        return "";
    }
    return dissolves(*crossed) ? dissolves(*other) ? "none" : other->formula : crossed->formula;
}

// Two salts in alphabetical order, so that either may be named first.
std::string mixtureOf(std::string first, std::string second)
{
    if (second < first) {
        std::swap(first, second);
    }
    return first + " and " + second;
}

std::map<std::string, std::string> precipitates()
{
    std::map<std::string, std::string> all;
    for (const TypedPair& first : typedSolubilityPairs()) {
        for (const TypedPair& second : typedSolubilityPairs()) {
            const std::string precipitate = precipitateOf(first, second);
            if (!precipitate.empty()) {
                all[mixtureOf(first.name, second.name)] = precipitate;
            }
        }
    }
    return all;
}

std::string mixtureGiven(const Json& exercise)
{
    const std::vector<Json> ions = givenIons(exercise);
    if (ions.size() != 4) {
        return "not four ions";
    }
    const auto salt = [&](std::size_t first) {
        return ions[first]["name"].get<std::string>() + " " +
               ions[first + 1]["name"].get<std::string>();
    };
    return mixtureOf(salt(0), salt(2));
}

void checkPrecipitate(Problems& problems, const Json& exercise)
{
    static const std::map<std::string, std::string> expected = precipitates();
    problems.expect(exercise["ask"]["form"] == "solubility", "a precipitate is asked for",
                    exercise["ask"].dump());
    const auto found = expected.find(mixtureGiven(exercise));
    problems.expect(found != expected.end() && found->second == keyOf(exercise),
                    "the key is what falls out", mixtureGiven(exercise) + ": " + keyOf(exercise));
}

TEST(PoolsTest, EveryMixtureOfTwoSolutions)
{
    Names mixtures;
    for (const auto& row : precipitates()) {
        mixtures.insert(row.first);
    }
    walk("solubility:3", mixtures, mixtureGiven, checkPrecipitate);
}

// --------------------------------------------------------------------------- neutralisations

std::string acidAndBase(const Json& exercise)
{
    std::string names;
    for (const Json& species : exercise["equation"]["left"]) {
        names += species[1].get<std::string>() + " ";
    }
    return names;
}

// 1, 2 and 3 as the levels have them.
int levelOf(const TypedReaction& reaction)
{
    if (std::max(reaction.ofAcid, reaction.ofBase) > 2) {
        return 3;
    }
    return reaction.base.find("OH") != std::string::npos ? 1 : 2;
}

Names neutralisationsOf(int level)
{
    Names names;
    for (const auto& [species, reaction] : typedNeutralisations()) {
        if (levelOf(reaction) == level) {
            names.insert(species.first + " " + species.second + " ");
        }
    }
    return names;
}

void checkNeutralisation(Problems& problems, const Json& exercise)
{
    problems.expect(exercise["ask"]["form"] == "equation", "an equation is asked for",
                    exercise["ask"].dump());
    checkEquation(problems, exercise, typedNeutralisations());
}

TEST(PoolsTest, EveryHydroxideInASimpleRatio)
{
    walk("neutralisation:1", neutralisationsOf(1), acidAndBase, checkNeutralisation);
}

TEST(PoolsTest, EveryOxideAndCarbonateInASimpleRatio)
{
    walk("neutralisation:2", neutralisationsOf(2), acidAndBase, checkNeutralisation);
}

TEST(PoolsTest, EveryNeutralisationWithAThreeOrASix)
{
    walk("neutralisation:3", neutralisationsOf(3), acidAndBase, checkNeutralisation);
}

// ------------------------------------------------------------------- the tables typed here

TEST(PoolsTest, TheTypedTablesHaveTheSizesThatWereCounted)
{
    EXPECT_EQ(typedCations().size(), 19U);
    EXPECT_EQ(typedAnions().size(), 15U);
    EXPECT_EQ(typedPairs().size(), 227U);
    EXPECT_EQ(typedSolubilityPairs().size(), 153U);
    EXPECT_EQ(typedCeilings().size(), 46U);
    EXPECT_EQ(typedTitrations().size(), 27U);
}

} // namespace
