#include "lesson/marking/confusions.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "lesson/tests/support/plain.hpp"

namespace lesson
{

namespace
{

std::vector<const IonRow*> everyIon()
{
    std::vector<const IonRow*> ions = cations();
    ions.insert(ions.end(), anions().begin(), anions().end());
    ions.insert(ions.end(), furtherIons().begin(), furtherIons().end());
    return ions;
}

// A small letter or a number above 1 tells whether there is one atom: "Cl", but "OH", "NO2".
bool hasSeveralAtoms(std::string_view formula)
{
    const auto capitals =
        std::count_if(formula.begin(), formula.end(), [](char c) { return c >= 'A' && c <= 'Z'; });
    return capitals > 1 || (formula.back() >= '2' && formula.back() <= '9');
}

TEST(ConfusionsTest, WhatIsWrittenIsAGroupIfItHasSeveralAtoms)
{
    int rows = 0;
    for (const IonRow* const ion : everyIon()) {
        for (const Confusion* const other : confusionsOf(*ion)) {
            EXPECT_EQ(other->isGroup, hasSeveralAtoms(other->formula)) << other->formula;
            ++rows;
        }
    }
    EXPECT_EQ(rows, 43);
}

TEST(ConfusionsTest, AnIonOfTheTablesHasItsChargeThere)
{
    const std::vector<const IonRow*> ions = everyIon();
    for (const IonRow* const ion : ions) {
        for (const Confusion* const other : confusionsOf(*ion)) {
            const bool isInTables =
                std::any_of(ions.begin(), ions.end(), [other](const IonRow* known) {
                    return known->formula == other->formula;
                });
            EXPECT_EQ(findIon(other->formula, other->charge) != nullptr, isInTables)
                << other->formula << " for " << british(nameOf(*ion));
        }
    }
}

TEST(ConfusionsTest, MetalsOfSeveralChargesAreThoseWithNumerals)
{
    for (const IonRow* const cation : cations()) {
        bool hasOther = false;
        for (int charge = 1; charge <= 7; ++charge) {
            hasOther = hasOther || hasOtherCharge(*cation, charge);
        }
        EXPECT_EQ(hasOther, hasRomanNumeral(*cation)) << british(nameOf(*cation));
        EXPECT_FALSE(hasOtherCharge(*cation, cation->charge)) << british(nameOf(*cation));
    }
}

} // namespace

} // namespace lesson
