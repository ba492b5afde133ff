#include "lesson/chemistry/solutes_and_ceilings.hpp"

#include <gtest/gtest.h>

#include <map>
#include <sstream>
#include <string>

#include "lesson/chemistry/composition.hpp"
#include "lesson/chemistry/pairs_not_asked.hpp"
#include "lesson/chemistry/solubility.hpp"
#include "lesson/tests/support/plain.hpp"

namespace lesson
{

namespace
{

std::string text(std::string_view view)
{
    return std::string(view);
}

// Ceilings in mol/L, each before its substances, typed apart from the table.
std::map<std::string, int> ceilingsIn(const char* list)
{
    std::map<std::string, int> ceilings;
    std::istringstream words(list);
    int hundredths = 0;
    for (std::string word; words >> word;) {
        if (word.find_first_not_of("0123456789.") == std::string::npos) {
            word.erase(word.find('.'), 1);
            hundredths = std::stoi(word);
        } else {
            EXPECT_TRUE(ceilings.emplace(word, hundredths).second) << word;
        }
    }
    return ceilings;
}

std::map<std::string, int> ceilingsOf(const std::vector<SoluteRow>& rows)
{
    std::map<std::string, int> ceilings;
    for (const SoluteRow& row : rows) {
        EXPECT_TRUE(ceilings.emplace(row.formula, row.ceiling).second) << row.formula;
    }
    return ceilings;
}

TEST(SolutesTest, CeilingsAreThoseTypedOnceMore)
{
    EXPECT_EQ(ceilingsOf(solutes()),
              ceilingsIn("4.00 LiOH NaOH KOH NaCl "
                         "3.00 NH4Cl (NH4)2SO4 NH4NO3 Cu(NO3)2 Zn(NO3)2 Ca(NO3)2 Mg(NO3)2 NaNO3 "
                         "CH3COONa K2CO3 FeCl3 CuCl2 ZnCl2 MgCl2 CaCl2 LiCl KI KCl KBr NaBr "
                         "2.00 CoCl2 MnSO4 NiSO4 KHCO3 ZnSO4 MgSO4 KNO3 "
                         "1.50 Ca(CH3COO)2 BaCl2 FeSO4 Na2CO3 "
                         "1.00 Pb(NO3)2 Fe2(SO4)3 Na2SO4 CuSO4 NaHCO3 "
                         "0.80 Al2(SO4)3 0.60 Na3PO4 0.50 K2SO4 0.30 Cu(CH3COO)2 Ba(NO3)2 "
                         "0.20 AgNO3"));
    EXPECT_EQ(ceilingsOf(acidSolutions()), ceilingsIn("3.00 H2SO4 6.00 HCl HNO3 CH3COOH"));
    EXPECT_EQ(ceilingsOf(hydrates()),
              ceilingsIn("1.00 CuSO4.5H2O 1.50 FeSO4.7H2O Na2CO3.10H2O BaCl2.2H2O "
                         "2.00 CoCl2.6H2O MgSO4.7H2O ZnSO4.7H2O"));
}

TEST(SolutesTest, SilverNitrateAloneHasAGreatestMass)
{
    for (const auto* const list : {&solutes(), &hydrates(), &acidSolutions(), &furtherTitrants()}) {
        for (const SoluteRow& row : *list) {
            EXPECT_EQ(row.greatestMass, row.formula == "AgNO3" ? 200 : 0) << row.formula;
        }
    }
}

// Each salt is a pair of ions that is asked, and is named by them.
TEST(SolutesTest, SaltsAreNamedByTheirIons)
{
    std::map<std::string, Pair> pairs;
    for (const Pair& pair : pairsForFormulas()) {
        pairs[compoundFormula(*pair.cation, *pair.anion)] = pair;
    }
    for (const SoluteRow& row : solutes()) {
        const auto found = pairs.find(text(row.formula));
        ASSERT_NE(found, pairs.end()) << row.formula;
        const Pair& pair = found->second;
        const Name name = nameOf(*pair.cation, *pair.anion);
        EXPECT_EQ(british(row.name), british(name)) << row.formula;
        EXPECT_EQ(american(row.name), american(name)) << row.formula;
    }
}

// What is dissolved does dissolve, wherever that is asked elsewhere.
TEST(SolutesTest, SaltsAreSolubleByTheRules)
{
    int asked = 0;
    for (const Pair& pair : pairsForSolubility()) {
        const SoluteRow* const row = findSolute(compoundFormula(*pair.cation, *pair.anion));
        if (row != nullptr) {
            EXPECT_TRUE(isSoluble(pair)) << row->formula;
            ++asked;
        }
    }
    EXPECT_GT(asked, 40);
}

TEST(SolutesTest, HydratesAreTheirSaltsWithWater)
{
    const std::map<int, std::string> waters = {{2, "dihydrate"},
                                               {5, "pentahydrate"},
                                               {6, "hexahydrate"},
                                               {7, "heptahydrate"},
                                               {10, "decahydrate"}};
    for (const SoluteRow& row : hydrates()) {
        const SoluteRow* const salt = findSolute(row.formula.substr(0, row.formula.find('.')));
        ASSERT_NE(salt, nullptr) << row.formula;
        const FormulaPart water = compositionOf(row.formula).parts.back();
        EXPECT_TRUE(water.isWater) << row.formula;
        EXPECT_EQ(british(row.name), british(salt->name) + " " + waters.at(water.times));
        EXPECT_EQ(american(row.name), british(row.name));
        EXPECT_EQ(row.ceiling, salt->ceiling) << row.formula;
    }
}

TEST(SolutesTest, AcidsAndAmmoniaHaveTheNamesOfASchoolBoard)
{
    const std::map<std::string, std::pair<std::string, std::string>> expected = {
        {"HCl", {"hydrochloric acid", "hydrochloric acid"}},
        {"HNO3", {"nitric acid", "nitric acid"}},
        {"H2SO4", {"sulfuric acid", "sulfuric acid"}},
        {"CH3COOH", {"ethanoic acid", "acetic acid"}},
        {"H2C2O4", {"ethanedioic acid", "oxalic acid"}},
        {"NH3", {"ammonia solution", "ammonia solution"}},
    };
    EXPECT_EQ(acidSolutions().size() + furtherTitrants().size(), expected.size());
    for (const auto& [formula, names] : expected) {
        const SoluteRow* const row = findSolute(formula);
        ASSERT_NE(row, nullptr) << formula;
        EXPECT_EQ(british(row->name), names.first);
        EXPECT_EQ(american(row->name), names.second);
    }
}

// What is weighed as a hydrate is dissolved as its salt; only solutions that are sold as such have
// a name of their own.
TEST(SolutesTest, EachIsOfItsKind)
{
    const struct {
        const char* formula;
        SoluteKind kind;
        const char* anhydrous;
        Weighed weighed;
    } rows[] = {
        {"NaCl", SoluteKind::salt, "NaCl", Weighed::asItIs},
        {"FeCl3", SoluteKind::salt, "FeCl3", Weighed::never},
        {"CuSO4", SoluteKind::salt, "CuSO4", Weighed::asAnhydrous},
        {"CuSO4.5H2O", SoluteKind::hydrate, "CuSO4", Weighed::asItIs},
        {"HCl", SoluteKind::acid, "HCl", Weighed::comesDissolved},
        {"H2C2O4", SoluteKind::acid, "H2C2O4", Weighed::never},
        {"NH3", SoluteKind::ammonia, "NH3", Weighed::comesDissolved},
    };
    for (const auto& row : rows) {
        const SoluteRow* const solute = findSolute(row.formula);
        ASSERT_NE(solute, nullptr) << row.formula;
        EXPECT_EQ(solute->kind, row.kind) << row.formula;
        EXPECT_EQ(solute->anhydrous, row.anhydrous) << row.formula;
        EXPECT_EQ(solute->weighed, row.weighed) << row.formula;
    }
}

TEST(SolutesTest, OthersAreNotFound)
{
    for (const char* formula : {"", "AgCl", "CuSO4.7H2O", "H3PO4", "nacl", "NH4OH", "NaCl "}) {
        EXPECT_EQ(findSolute(formula), nullptr) << "'" << formula << "'";
    }
}

} // namespace

} // namespace lesson
