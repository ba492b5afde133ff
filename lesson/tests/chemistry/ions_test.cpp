#include "lesson/chemistry/ions.hpp"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "lesson/chemistry/compounds.hpp"
#include "lesson/tests/support/plain.hpp"

namespace lesson
{

namespace
{

// The ions as a data booklet lists them, charge by charge.
TEST(LessonIonsTest, NamesFormulasAndChargesAreThoseOfADataBooklet)
{
    struct Row {
        const char* name;
        const char* ion;
    };
    // clang-format off
    const Row booklet[] = {
        {"hydrogen", "H+"}, {"lithium", "Li+"}, {"sodium", "Na+"}, {"potassium", "K+"},
        {"silver", "Ag+"}, {"ammonium", "NH4+"},
        {"magnesium", "Mg2+"}, {"calcium", "Ca2+"}, {"barium", "Ba2+"}, {"zinc", "Zn2+"},
        {"copper(II)", "Cu2+"}, {"iron(II)", "Fe2+"}, {"lead(II)", "Pb2+"}, {"tin(II)", "Sn2+"},
        {"cobalt(II)", "Co2+"}, {"nickel(II)", "Ni2+"}, {"manganese(II)", "Mn2+"},
        {"aluminium", "Al3+"}, {"iron(III)", "Fe3+"}, {"chromium(III)", "Cr3+"},
        {"fluoride", "F-"}, {"chloride", "Cl-"}, {"bromide", "Br-"}, {"iodide", "I-"},
        {"hydroxide", "OH-"}, {"nitrate", "NO3-"}, {"nitrite", "NO2-"},
        {"hydrogencarbonate", "HCO3-"}, {"hydrogensulfate", "HSO4-"}, {"ethanoate", "CH3COO-"},
        {"manganate(VII)", "MnO4-"},
        {"oxide", "O2-"}, {"sulfide", "S2-"}, {"sulfate", "SO42-"}, {"sulfite", "SO32-"},
        {"carbonate", "CO32-"}, {"dichromate", "Cr2O72-"},
        {"chromate", "CrO42-"}, {"chlorate", "ClO3-"}, {"thiosulfate", "S2O32-"},
        {"hydrogensulfite", "HSO3-"}, {"hydrogenphosphate", "HPO42-"},
        {"dihydrogenphosphate", "H2PO4-"}, {"cyanide", "CN-"},
        {"nitride", "N3-"}, {"phosphide", "P3-"}, {"phosphate", "PO43-"},
    };
    // clang-format on
    for (const Row& row : booklet) {
        const IonRow* const ion = findIon(row.name);
        ASSERT_NE(ion, nullptr) << row.name;
        EXPECT_EQ(std::string(ion->formula) + chargeText(*ion), row.ion) << row.name;
        EXPECT_EQ(findIon(ion->formula, ion->charge), ion) << row.name;
    }
    EXPECT_EQ(std::size(booklet), cations().size() + anions().size() + furtherIons().size());
    EXPECT_EQ(findIon("Fe", 1), nullptr);
    EXPECT_EQ(findIon("unobtainium"), nullptr);
}

// An ion that nobody lists would stand for nothing.
TEST(LessonIonsTest, EveryIdHasARowThatIsListedOnce)
{
    std::multiset<Ion> listed = {Ion::ethanedioate};
    for (const auto* const list : {&cations(), &anions(), &furtherIons()}) {
        for (const IonRow* const ion : *list) {
            listed.insert(ion->id);
        }
    }
    EXPECT_EQ(listed.size(), ionCount);
    for (std::size_t i = 0; i < ionCount; ++i) {
        const Ion id = static_cast<Ion>(i);
        EXPECT_EQ(rowOf(id).id, id) << i;
        EXPECT_EQ(listed.count(id), 1U) << rowOf(id).formula;
    }
}

TEST(LessonIonsTest, GroupsAreWhatHasMoreThanOneAtom)
{
    for (const auto* const list : {&cations(), &anions(), &furtherIons()}) {
        for (const IonRow* const ion : *list) {
            std::size_t atoms = 0;
            for (const char c : ion->formula) {
                atoms += c >= 'A' && c <= 'Z' ? 1 : c >= '2' && c <= '9' ? 1 : 0;
            }
            EXPECT_EQ(ion->isGroup, atoms > 1) << ion->formula;
        }
    }
}

TEST(LessonIonsTest, CompoundsAreWrittenAsBoardsPrintThem)
{
    struct Row {
        const char* cation;
        const char* anion;
        const char* formula;
    };
    const Row rows[] = {
        {"sodium", "chloride", "NaCl"},          {"sodium", "ethanoate", "CH3COONa"},
        {"calcium", "ethanoate", "Ca(CH3COO)2"}, {"aluminium", "sulfate", "Al2(SO4)3"},
        {"ammonium", "phosphate", "(NH4)3PO4"},  {"magnesium", "oxide", "MgO"},
        {"iron(III)", "oxide", "Fe2O3"},         {"iron(III)", "phosphate", "FePO4"},
        {"barium", "nitride", "Ba3N2"},          {"ammonium", "nitrate", "NH4NO3"},
        {"calcium", "phosphate", "Ca3(PO4)2"},   {"lithium", "nitride", "Li3N"},
        {"aluminium", "hydroxide", "Al(OH)3"},   {"lithium", "ethanoate", "CH3COOLi"},
        {"potassium", "ethanoate", "CH3COOK"},   {"silver", "ethanoate", "CH3COOAg"},
        {"ammonium", "ethanoate", "CH3COONH4"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(compoundFormula(*findIon(row.cation), *findIon(row.anion)), row.formula);
    }
}

// The charges of the counted ions cancel, in the least numbers that do it.
TEST(LessonIonsTest, EveryCompoundIsNeutralInLowestTerms)
{
    for (const IonRow* const cation : cations()) {
        for (const IonRow* const anion : anions()) {
            const int positive = cationsIn(*cation, *anion);
            const int negative = anionsIn(*cation, *anion);
            EXPECT_EQ(positive * cation->charge + negative * anion->charge, 0)
                << british(nameOf(*cation, *anion));
            EXPECT_TRUE(positive == 1 || negative % positive != 0)
                << british(nameOf(*cation, *anion));
            EXPECT_TRUE(negative == 1 || positive % negative != 0)
                << british(nameOf(*cation, *anion));
        }
    }
}

TEST(LessonIonsTest, ChargesOfFourAreCancelledToo)
{
    IonRow lead = rowOf(Ion::lead2);
    lead.charge = 4;
    IonRow silicate = rowOf(Ion::sulfate);
    silicate.formula = "SiO4";
    silicate.charge = -4;
    EXPECT_EQ(compoundFormula(lead, *findIon("chloride")), "PbCl4");
    EXPECT_EQ(compoundFormula(lead, *findIon("oxide")), "PbO2");
    EXPECT_EQ(compoundFormula(lead, *findIon("nitride")), "Pb3N4");
    EXPECT_EQ(compoundFormula(lead, *findIon("hydroxide")), "Pb(OH)4");
    EXPECT_EQ(compoundFormula(*findIon("magnesium"), silicate), "Mg2SiO4");
    EXPECT_EQ(compoundFormula(*findIon("aluminium"), silicate), "Al4(SiO4)3");
}

TEST(LessonIonsTest, AmericanNamesStandWhereTheyDiffer)
{
    const auto americanName = [](const char* cation, const char* anion) {
        return american(nameOf(*findIon(cation), *findIon(anion)));
    };
    EXPECT_EQ(americanName("aluminium", "sulfate"), "aluminum sulfate");
    EXPECT_EQ(americanName("lead(II)", "ethanoate"), "lead(II) acetate");
    EXPECT_EQ(americanName("sodium", "sulfate"), "sodium sulfate");
}

// That of a cation is its charge; of manganate it is what its oxygens and its charge leave.
TEST(LessonIonsTest, ANumeralIsTheOxidationNumber)
{
    for (const IonRow* const cation : cations()) {
        if (hasRomanNumeral(*cation)) {
            EXPECT_EQ(cation->oxidationNumber, cation->charge) << cation->formula;
        }
    }
    EXPECT_EQ(rowOf(Ion::manganate7).oxidationNumber, 4 * 2 - 1);
    EXPECT_TRUE(hasRomanNumeral(rowOf(Ion::iron2)));
    EXPECT_FALSE(hasRomanNumeral(rowOf(Ion::zinc)));
}

} // namespace

} // namespace lesson
