#include <gtest/gtest.h>

#include <fstream>
#include <string>
#include <type_traits>
#include <vector>

#include "chem/balance.hpp"
#include "chem/formula.hpp"
#include "chem/solubility.hpp"
#include "console/q_and_a.hpp"
#include "console/question_type.hpp"
#include "data/tables.hpp"
#include "grading/grading.hpp"
#include "questions/quantities.hpp"
#include "questions/question.hpp"

// The global names that are promised to other programs, most of which the program calls as well.
// That this compiles and links shows that each is there with its type.

namespace
{

// A name with its type, as CONTRIBUTING.md has it, and whether its address could be taken.
struct Promise {
    std::string declaration;
    bool isKept;
};

// Looks at the address when the test runs, so that the linker has to find what it is of.
template <typename Type>
bool isThere(Type address)
{
    const volatile Type looked = address;
    return looked != nullptr;
}

// clang-format off
// NOLINTBEGIN(bugprone-macro-parentheses): the arguments are types and names
#define PROMISED_VARIABLE(type, name) \
    {#type " " #name, isThere<type*>(&name)}
#define PROMISED_FUNCTION(result, name, arguments) \
    {#result " " #name #arguments, isThere<result(*) arguments>(&name)}
#define PROMISED_MEMBER(type, record, name) \
    {#type " " #record "::" #name, isThere<type record::*>(&record::name)}
#define PROMISED_OPERATION(result, record, name, arguments) \
    {#result " " #record "::" #name #arguments, isThere<result (record::*) arguments>(&record::name)}
// NOLINTEND(bugprone-macro-parentheses)

const Promise promises[] = {
    PROMISED_VARIABLE(std::vector<atomicMass>, aMasses),
    PROMISED_VARIABLE(std::vector<Ion>, ion),
    PROMISED_VARIABLE(std::vector<Soluble>, dissolvable),
    PROMISED_VARIABLE(int, nacid),
    PROMISED_VARIABLE(int, nbase),
    PROMISED_VARIABLE(int, nsalt),
    PROMISED_VARIABLE(int, nH2O),
    PROMISED_VARIABLE(int, nCO2),
    PROMISED_MEMBER(std::string, atomicMass, symbol),
    PROMISED_MEMBER(float, atomicMass, mass),
    PROMISED_OPERATION(bool, atomicMass, operator==, (const atomicMass&) const),
    PROMISED_MEMBER(std::string, Ion, name),
    PROMISED_MEMBER(bool, Ion, negative),
    PROMISED_MEMBER(std::string, Ion, formula),
    PROMISED_MEMBER(short, Ion, charge),
    PROMISED_MEMBER(bool, Ion, polyatomic),
    PROMISED_MEMBER(std::string, Ion, acidName),
    PROMISED_OPERATION(int, Ion, getSubscript, (Ion) const),
    PROMISED_OPERATION(std::string, Ion, makeFormula, () const),
    PROMISED_OPERATION(int, Ion, getResponse, (std::string) const),
    PROMISED_MEMBER(float, Soluble, molarMass),
    PROMISED_MEMBER(std::string, Soluble, name),
    PROMISED_MEMBER(std::string, Soluble, formula),
    PROMISED_MEMBER(std::string, QandA, question),
    PROMISED_MEMBER(std::string, QandA, answer),
    PROMISED_FUNCTION(void, initMasses, ()),
    PROMISED_FUNCTION(float, getAtomicMass, (std::string)),
    PROMISED_FUNCTION(void, initIons, ()),
    PROMISED_FUNCTION(Ion, randomIon, ()),
    PROMISED_FUNCTION(Ion, randomNeg, ()),
    PROMISED_FUNCTION(Ion, randomPos, ()),
    PROMISED_FUNCTION(std::string, makeFormula, (Ion, Ion)),
    PROMISED_FUNCTION(void, initSolubles, ()),
    PROMISED_FUNCTION(Soluble, randomSoluble, ()),
    PROMISED_FUNCTION(bool, numberlike, (char)),
    PROMISED_FUNCTION(float, getNumber, (std::string&)),
    PROMISED_FUNCTION(float, calculateMM, (std::string)),
    PROMISED_FUNCTION(bool, balance, (Ion, Ion, Ion)),
    PROMISED_FUNCTION(int, hcm, (std::vector<int>)),
    PROMISED_FUNCTION(int, hcm, (int, int, int, int)),
    PROMISED_FUNCTION(int, hcm, (int, int, int, int, int)),
    PROMISED_FUNCTION(bool, lessthanall, (int, std::vector<int>)),
    PROMISED_FUNCTION(bool, alldivisible, (int, std::vector<int>)),
    PROMISED_FUNCTION(int, HonLeft, (Ion, Ion, Ion)),
    PROMISED_FUNCTION(int, HonRight, ()),
    PROMISED_FUNCTION(int, OonLeft, (Ion, Ion, Ion)),
    PROMISED_FUNCTION(int, OonRight, ()),
    PROMISED_FUNCTION(int, ConLeft, (Ion, Ion, Ion)),
    PROMISED_FUNCTION(int, ConRight, ()),
    PROMISED_FUNCTION(int, rponLeft, (Ion, Ion, Ion)),
    PROMISED_FUNCTION(int, rponRight, (Ion, Ion, Ion)),
    PROMISED_FUNCTION(int, anonLeft, ()),
    PROMISED_FUNCTION(int, anonRight, (Ion, Ion, Ion)),
    PROMISED_FUNCTION(char, isSolubleChar, (Ion, Ion)),
    PROMISED_FUNCTION(std::string, isSolubleWord, (char)),
    PROMISED_FUNCTION(char, ucase, (char)),
    PROMISED_FUNCTION(std::string, ucase, (std::string)),
    PROMISED_FUNCTION(float, random, (int, int)),
    PROMISED_FUNCTION(std::string, volumeFormat, (float, unsigned int)),
    PROMISED_FUNCTION(QandA, makeQuestion, (QuestionType)),
    PROMISED_FUNCTION(int, getResponse, (Ion, Ion, std::string)),
    PROMISED_FUNCTION(int, getSolResponse, (Ion, Ion, std::string)),
};
// clang-format on

static_assert(std::is_constructible_v<atomicMass, std::string, float>);
static_assert(std::is_default_constructible_v<Ion>);
static_assert(
    std::is_constructible_v<Ion, std::string, std::string, bool, short, bool, std::string>);
static_assert(std::is_constructible_v<Soluble, std::string, std::string>);
static_assert(!std::is_default_constructible_v<Soluble>);
static_assert(std::is_default_constructible_v<QandA>);
static_assert(std::is_same_v<std::underlying_type_t<QuestionType>, int>);

// The block of declarations in CONTRIBUTING.md.
std::string listedInTheGuide()
{
    std::ifstream guide(CONTRIBUTING);
    std::string block;
    bool inside = false;
    for (std::string line; std::getline(guide, line) && !(inside && line == "```");) {
        if (inside) {
            block += line + "\n";
        }
        inside = inside || line == "```cpp";
    }
    return block;
}

} // namespace

TEST(ExactNamesTest, EachIsThereWithItsTypeAndTheGuideListsIt)
{
    std::string list;
    for (const Promise& promise : promises) {
        EXPECT_TRUE(promise.isKept) << promise.declaration;
        list += promise.declaration + "\n";
    }
    EXPECT_EQ(listedInTheGuide(), list);
}
