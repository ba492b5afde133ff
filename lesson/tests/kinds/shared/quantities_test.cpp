#include "lesson/kinds/shared/quantities.hpp"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "lesson/tests/support/calculation.hpp"
#include "lesson/tests/support/plain.hpp"

namespace lesson
{

namespace
{

std::string toldText(const GivenQuantity& given)
{
    return given.quantity + "(" + given.of + ") = " + textOf(told(given));
}

TEST(QuantitiesTest, QuantitiesAreToldAsOnLabels)
{
    EXPECT_EQ(toldText(givenMass("NaCl", ratio(5))), "m(NaCl) = 5.00 g");
    EXPECT_EQ(toldText(givenMass("NaCl", ratio(10))), "m(NaCl) = 10.00 g");
    EXPECT_EQ(toldText(givenMolarMass("NaCl")), "M(NaCl) = 58.44 g/mol");
    EXPECT_EQ(toldText(givenMolarMass("NaOH")), "M(NaOH) = 40.00 g/mol");
    EXPECT_EQ(givenMolarMass("NaOH").value, ratio(40));
    EXPECT_EQ(toldText(givenVolume("V1", "HCl", litres(5))), "V1(HCl) = 5.00 mL");
    EXPECT_EQ(toldText(givenVolume("V", "HCl", litres(50))), "V(HCl) = 50.0 mL");
    EXPECT_EQ(toldText(givenVolume("V", "HCl", litres(750))), "V(HCl) = 750 mL");
    EXPECT_EQ(toldText(givenVolume("V2", "HCl", litres(1000))), "V2(HCl) = 1.00 L");
    EXPECT_EQ(toldText(givenVolume("V2", "HCl", litres(2000))), "V2(HCl) = 2.00 L");
    EXPECT_EQ(toldText(givenTitre("HCl", ratio(2, 100))), "V(HCl) = 20.00 mL");
    EXPECT_EQ(toldText(givenTitre("HCl", ratio(2175, 100000))), "V(HCl) = 21.75 mL");
    EXPECT_EQ(toldText(givenConcentration("c1", "HCl", molesPerLitre(500))),
              "c1(HCl) = 0.0500 mol/L");
    EXPECT_EQ(toldText(givenConcentration("c", "HCl", molesPerLitre(60000))),
              "c(HCl) = 6.00 mol/L");
}

TEST(QuantitiesTest, WhatIsNotToldKeepsItsValue)
{
    const GivenQuantity given = untold(givenMolarMass("NaCl"));
    EXPECT_EQ(given.shown, "");
    EXPECT_EQ(given.shownUnit, "");
    EXPECT_EQ(given.value, ratio(5844, 100));
    EXPECT_EQ(given.unit, "g/mol");
}

TEST(QuantitiesTest, ASolutionIsNamedAfterItsSolute)
{
    const char* const names[][2] = {
        {"NaCl", "sodium chloride solution"},
        {"HCl", "hydrochloric acid"},
        {"CH3COOH", "ethanoic acid"},
        {"NH3", "ammonia solution"},
        {"CH3COONa", "sodium ethanoate solution"},
        {"H2C2O4", "ethanedioic acid solution"},
    };
    for (const auto& [formula, name] : names) {
        EXPECT_EQ(textOf({solutionOf(*findSolute(formula))}), name);
    }
}

// All that an exercise says, line by line.
std::vector<Spans> linesOf(const Exercise& exercise)
{
    std::vector<Spans> lines = {exercise.prompt};
    for (const Step& step : exercise.solution) {
        lines.insert(lines.end(), {step.say, step.hint});
    }
    for (const Slip& slip : exercise.slips) {
        lines.push_back(slip.sentence);
    }
    return lines;
}

std::size_t countOf(const std::string& word, const std::string& text)
{
    std::size_t count = 0;
    for (std::size_t at = text.find(word); at != std::string::npos; at = text.find(word, at + 1)) {
        ++count;
    }
    return count;
}

TEST(QuantitiesTest, LitresInWordsAreLitersInAmerica)
{
    for (const Kind* const kind : {&concentrationKind, &dilutionKind, &titrationKind}) {
        std::size_t litres = 0;
        for (const int level : {1, 2, 3}) {
            forExercises(kind, level, 50, [&](const Exercise& exercise) {
                for (const Spans& line : linesOf(exercise)) {
                    const std::size_t count = countOf("litre", plain(line));
                    EXPECT_EQ(countOf("liter", plainAmerican(line)), count) << plain(line);
                    EXPECT_EQ(countOf("litre", plainAmerican(line)), 0U) << plain(line);
                    litres += count;
                }
            });
        }
        EXPECT_GT(litres, 0U) << kind->slug;
    }
}

} // namespace

} // namespace lesson
