#include "grading/grading.hpp"

#include <gtest/gtest.h>

#include <cstddef>
#include <iostream>
#include <string>

#include "support/captured_output.hpp"
#include "support/catalogue.hpp"

namespace
{

// A typed answer, and what becomes of it.
struct Case {
    std::string answer;
    int result;
    std::string verdict;
};

constexpr const char* correct = "Correct.\n";

std::string closeTo(const std::string& expected)
{
    return "Close; correct answer is " + expected + "\n";
}

std::string notThe(const std::string& expected)
{
    return "Incorrect; correct answer is " + expected + "\n";
}

template <typename Grader, std::size_t count>
void expectCases(Grader grade, const Case (&cases)[count])
{
    for (const auto& [answer, result, verdict] : cases) {
        int graded = -1;
        const std::string& typed = answer;
        EXPECT_EQ(outputOf([&] { graded = grade(typed); }), verdict) << typed.substr(0, 60);
        EXPECT_EQ(graded, result) << typed.substr(0, 60);
    }
}

Ion builtIon(const std::string& formula)
{
    Ion built;
    built.formula = formula;
    return built;
}

TEST(GradingTest, FormulaOfSodiumChloride)
{
    const auto grade = [](const std::string& answer) {
        return getResponse(ionCalled("sodium"), ionCalled("chloride"), answer);
    };
    const std::string incorrect = notThe("NaCl");
    expectCases(grade, {
                           {"NaCl", 1, correct},
                           {"nacl", 0, closeTo("NaCl")},
                           {"NACL", 0, closeTo("NaCl")},
                           {"nAcL", 0, closeTo("NaCl")},
                           {"NaCl ", 0, incorrect},
                           {" NaCl", 0, incorrect},
                           {"nacl ", 0, incorrect},
                           {"NaC", 0, incorrect},
                           {"NaCl2", 0, incorrect},
                           {"ClNa", 0, incorrect},
                           {"Correct.", 0, incorrect},
                           {"", 0, incorrect},
                           {"%s%s%s%n", 0, incorrect},
                           {"N\xe4"
                            "Cl\xff",
                            0, incorrect},
                           {"NaCl\n", 0, incorrect},
                           {std::string("NaCl\0", 5), 0, incorrect},
                           {std::string("NaCl\0NaCl", 9), 0, incorrect},
                           {std::string(1000000, 'N'), 0, incorrect},
                       });
}

TEST(GradingTest, FormulaWithDigitsAndBrackets)
{
    const auto grade = [](const std::string& answer) {
        return getResponse(ionCalled("aluminium"), ionCalled("sulphate"), answer);
    };
    const std::string incorrect = notThe("Al2(SO4)3");
    expectCases(grade, {
                           {"Al2(SO4)3", 1, correct},
                           {"al2(so4)3", 0, closeTo("Al2(SO4)3")},
                           {"AL2(SO4)3", 0, closeTo("Al2(SO4)3")},
                           {"Al2[SO4]3", 0, incorrect},
                           {"Al2SO43", 0, incorrect},
                           {"Al2(SO4)2", 0, incorrect},
                           {"Al2 (SO4)3", 0, incorrect},
                       });
}

TEST(GradingTest, ChargedFormulaOfAnIon)
{
    const auto grade = [](const std::string& answer) {
        return ionCalled("sulphate").getResponse(answer);
    };
    const std::string incorrect = notThe("SO42-");
    expectCases(grade, {
                           {"SO42-", 1, correct},
                           {"so42-", 0, closeTo("SO42-")},
                           {"So42-", 0, closeTo("SO42-")},
                           {"SO4 2-", 0, incorrect},
                           {"SO42+", 0, incorrect},
                           {"SO42", 0, incorrect},
                           {"SO4-2", 0, incorrect},
                           {"SO4", 0, incorrect},
                           {"", 0, incorrect},
                           {"%n%n", 0, incorrect},
                           {"\xc2\xb2", 0, incorrect},
                           {std::string(1000000, '-'), 0, incorrect},
                       });
    EXPECT_EQ(outputOf([] { EXPECT_EQ(ionCalled("sodium").getResponse("Na+"), 1); }), correct);
    EXPECT_EQ(outputOf([] { EXPECT_EQ(ionCalled("aluminium").getResponse("AL3+"), 0); }),
              closeTo("Al3+"));
}

TEST(GradingTest, WhetherAnInsolubleCompoundDissolves)
{
    const auto grade = [](const std::string& answer) {
        return getSolResponse(ionCalled("silver"), ionCalled("chloride"), answer);
    };
    const std::string incorrect = "Incorrect; AgCl is insoluble\n";
    expectCases(grade, {
                           {"N", 1, correct},
                           {"n", 1, correct},
                           {"No", 1, correct},
                           {"nonsense", 1, correct},
                           {"Y", 0, incorrect},
                           {"yes", 0, incorrect},
                           {"", 0, incorrect},
                           {" ", 0, incorrect},
                           {" n", 0, incorrect},
                           {"insoluble", 0, incorrect},
                           {"%n", 0, incorrect},
                           {"\xee", 0, incorrect},
                           {std::string("\0n", 2), 0, incorrect},
                           {std::string(1000000, 'n'), 1, correct},
                           {std::string(1000000, 'x'), 0, incorrect},
                       });
}

TEST(GradingTest, WhetherASolubleCompoundDissolves)
{
    const auto grade = [](const std::string& answer) {
        return getSolResponse(ionCalled("sodium"), ionCalled("nitrate"), answer);
    };
    const std::string incorrect = "Incorrect; NaNO3 is soluble\n";
    expectCases(grade, {
                           {"Y", 1, correct},
                           {"y", 1, correct},
                           {"Yes", 1, correct},
                           {"yellow", 1, correct},
                           {"N", 0, incorrect},
                           {"no", 0, incorrect},
                           {"soluble", 0, incorrect},
                           {"", 0, incorrect},
                       });
}

TEST(GradingTest, BlankIsCorrectWhereNoRuleCoversTheAnion)
{
    const auto grade = [](const std::string& answer) {
        return getSolResponse(ionCalled("magnesium"), ionCalled("nitride"), answer);
    };
    const std::string incorrect = "Incorrect; Mg3N2 is <an error occurred>\n";
    expectCases(grade, {
                           {" ", 1, correct},
                           {" yes", 1, correct},
                           {"y", 0, incorrect},
                           {"n", 0, incorrect},
                           {"\t", 0, incorrect},
                           {"", 0, incorrect},
                       });
}

TEST(GradingTest, FormulasArePrintedAsTheyAre)
{
    EXPECT_EQ(outputOf([] { getResponse(builtIon("%s"), builtIon("%n"), "?"); }), notThe("%s%n"));
    EXPECT_EQ(outputOf([] { getResponse(builtIon("%s"), builtIon("%n"), "%S%N"); }),
              closeTo("%s%n"));
    EXPECT_EQ(outputOf([] { builtIon("%d").getResponse("?"); }), notThe("%d+"));
    EXPECT_EQ(outputOf([] { getSolResponse(builtIon("%s"), builtIon("%n"), "?"); }),
              "Incorrect; %s%n is <an error occurred>\n");
}

TEST(GradingTest, VerdictsAndQuestionsComeInTheOrderOfTheCalls)
{
    const Ion sodium = ionCalled("sodium");
    const Ion chloride = ionCalled("chloride");
    const Ion sulphate = ionCalled("sulphate");
    const std::string output = outputOf([&] {
        std::cout << "Formula of sodium chloride? "; // not flushed, nor are the next two
        getResponse(sodium, chloride, "NaCl");
        std::cout << "Formula of sodium sulphate? ";
        getResponse(sodium, sulphate, "na2so4");
        std::cout << "Formula of the sulphate ion? ";
        sulphate.getResponse("SO4");
        std::cout << "Does sodium chloride dissolve?\n";
        getSolResponse(sodium, chloride, "no");
        std::cout << "End." << std::endl;
    });
    EXPECT_EQ(output, "Formula of sodium chloride? Correct.\n"
                      "Formula of sodium sulphate? Close; correct answer is Na2SO4\n"
                      "Formula of the sulphate ion? Incorrect; correct answer is SO42-\n"
                      "Does sodium chloride dissolve?\n"
                      "Incorrect; NaCl is soluble\n"
                      "End.\n");
}

} // namespace
