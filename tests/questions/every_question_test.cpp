// Every question that can be asked, by the draws that lead to it, read back as a learner would read
// it: each number is worked out again in double precision from the numbers of the question, with
// masses of this file's own; each equation has the same atoms on both sides.

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <numeric>
#include <set>
#include <string>
#include <vector>

#include "questions/question.hpp"
#include "support/atom_count.hpp"
#include "support/catalogue.hpp"
#include "support/compounds.hpp"
#include "support/neutral_compound.hpp"
#include "support/reader.hpp"
#include "support/scripted_draws.hpp"

namespace
{

// The masses that the learner has in a book.
const std::map<std::string, double> relativeMasses = {
    {"H", 1.008}, {"C", 12.01},  {"N", 14.01},  {"O", 16.0},   {"Na", 22.99},
    {"S", 32.06}, {"Cl", 35.45}, {"K", 39.1},   {"Ca", 40.08}, {"Fe", 55.85},
    {"I", 126.9}, {"Co", 58.93}, {"Cu", 63.55}, {"Ag", 107.9}, {"Hg", 200.6},
};

// An ion with its row in the table, from 1 on.
struct DrawnIon {
    int row;
    Ion ion;
};

// Those that can be drawn: all but the last row.
template <typename Wanted>
std::vector<DrawnIon> drawnIons(Wanted isWanted)
{
    std::vector<DrawnIon> wanted;
    const int rows = static_cast<int>(catalogueIons().size());
    for (int row = 1; row < rows; ++row) {
        const Ion& each = catalogueIons()[static_cast<std::size_t>(row - 1)];
        if (isWanted(each)) {
            wanted.push_back({row, each});
        }
    }
    return wanted;
}

using Atoms = std::map<std::string, int>;

// Formulas come again and again: the atoms of each are counted once.
const Atoms& atomsOf(const std::string& formula)
{
    static std::map<std::string, Atoms> known;
    const auto found = known.find(formula);
    return found != known.end() ? found->second
                                : known.emplace(formula, countAtoms(formula)).first->second;
}

double massOf(const std::string& formula)
{
    double mass = 0;
    for (const auto& [symbol, count] : atomsOf(formula)) {
        mass += relativeMasses.at(symbol) * count;
    }
    return mass;
}

// A dot and a count stand before the water of a hydrate.
double molarMass(const std::string& formula)
{
    const std::size_t dot = formula.find('.');
    if (dot == std::string::npos) {
        return massOf(formula);
    }
    return massOf(formula.substr(0, dot)) +
           std::stoi(formula.substr(dot + 1)) * massOf(formula.substr(dot + 2));
}

// The number is what has been worked out, as far as its digits go.
#define EXPECT_AGREES(shown, worked)                                                               \
    do {                                                                                           \
        const Shown number = (shown);                                                              \
        const Range range = (worked);                                                              \
        EXPECT_TRUE(agree(number, range))                                                          \
            << #worked << " is " << range.low << " to " << range.high << ", not " << number.value; \
    } while (false)

QandA ask(QuestionType kind, const std::vector<int>& draws)
{
    const ScriptedDraws script(draws);
    return makeQuestion(kind);
}

constexpr int below = 0;          // any threshold
constexpr int above = 2147483647; // any threshold

class EveryQuestionTest : public WithCompounds
{
protected:
    // To be called for each question that was read.
    void count(const QandA& made)
    {
        ++asked;
        ++questions[made.question];
        texts.insert(made.question + made.answer);
    }

    int asked = 0;
    std::map<std::string, int> questions; // how often each came
    std::set<std::string> texts;
};

// Mass and concentration.

struct MassAndVolume {
    Shown mass;
    Shown volume; // L
};

MassAndVolume readConcentrationFromMass(const QandA& made, const Soluble& compound)
{
    SCOPED_TRACE(made.question + made.answer);
    const auto& [molarMassInTable, name, formula] = compound;

    Reader question(made.question);
    question.expect("Calculate the concentration (in mol/L) if ");
    const Shown m = question.number(6);
    question.expect(" g of " + name + " is dissolved in ");
    const Shown V = question.volume(6);
    question.expect(" of water.\n");
    question.end();

    const Range M = exactly(molarMass(formula));
    const Range n = exactly(m) / M;
    const Range C = n / exactly(V);

    Reader answer(made.answer);
    answer.expect("m = ");
    EXPECT_AGREES(answer.number(6), exactly(m));
    answer.expect(" g   V = ");
    EXPECT_AGREES(answer.number(6), exactly(V));
    answer.expect(" L   C = ?\nFormula is " + formula + "  so M = ");
    EXPECT_AGREES(answer.number(6), M);
    answer.expect(" g/mol\nn = m/M = ");
    EXPECT_AGREES(answer.number(3), exactly(m));
    answer.expect("/");
    EXPECT_AGREES(answer.number(3), M);
    answer.expect(" = ");
    EXPECT_AGREES(answer.number(3), n);
    answer.expect(" mol\nC = n/V = ");
    EXPECT_AGREES(answer.number(3), n);
    answer.expect("/");
    EXPECT_AGREES(answer.number(3), exactly(V));
    answer.expect(" = ");
    EXPECT_AGREES(answer.number(3), C);
    answer.expect(" mol/L\n");
    answer.end();
    return {m, V};
}

// The concentration of the question is rounded to two digits, and the mass that comes out is the
// one from which it was made: both ways have to agree.
MassAndVolume readMassForConcentration(const QandA& made, const Soluble& compound)
{
    SCOPED_TRACE(made.question + made.answer);
    const auto& [molarMassInTable, name, formula] = compound;

    Reader question(made.question);
    question.expect("Calculate the mass (in g) of " + name + " needed to make up ");
    const Shown V = question.volume(6);
    question.expect(" of ");
    const Shown C = question.number(2);
    question.expect(" mol/L solution.\n");
    question.end();

    const Range M = exactly(molarMass(formula));
    const Range n = within(C) * exactly(V);

    Reader answer(made.answer);
    answer.expect("m = ?   V = ");
    EXPECT_AGREES(answer.number(6), exactly(V));
    answer.expect(" L   C = ");
    EXPECT_AGREES(answer.number(2), exactly(C));
    answer.expect(" mol/L\nn = CV = ");
    EXPECT_AGREES(answer.number(2), exactly(C));
    answer.expect("x");
    EXPECT_AGREES(answer.number(3), exactly(V));
    answer.expect(" = ");
    const Shown amount = answer.number(3);
    EXPECT_AGREES(amount, n);
    answer.expect(" mol\nFormula is " + formula + "  so M = ");
    EXPECT_AGREES(answer.number(4), M);
    answer.expect(" g/mol\nm = nM = ");
    EXPECT_AGREES(answer.number(3), exactly(amount));
    answer.expect("x");
    EXPECT_AGREES(answer.number(4), M);
    answer.expect(" = ");
    const Shown m = answer.number(3);
    EXPECT_AGREES(m, n * M);
    EXPECT_AGREES(m, within(amount) * M);
    answer.expect(" g\n");
    answer.end();

    EXPECT_AGREES(amount, exactly(m) / M);
    EXPECT_AGREES(C, exactly(m) / M / exactly(V));
    return {m, V};
}

TEST_F(EveryQuestionTest, MassAndConcentration)
{
    for (std::size_t i = 0; i < dissolvable.size(); ++i) {
        const int drawn = drawOfCompound(static_cast<int>(i) + 1);
        for (const int half : {below, above}) {
            const QandA made = ask(massConcentrationKind, {drawn, half, 0, 0});
            const auto [mass, volume] = half == below
                                            ? readConcentrationFromMass(made, dissolvable[i])
                                            : readMassForConcentration(made, dissolvable[i]);
            count(made);
            // Kept: always these quantities.
            EXPECT_EQ(mass.value, 1.0) << made.question;
            EXPECT_EQ(volume.value, 0.05) << made.question;
        }
    }
    EXPECT_EQ(asked, 20);
    EXPECT_EQ(texts.size(), 18U);
    for (const auto& [question, times] : questions) {
        // Kept: sodium chloride stands twice.
        const bool isTableSalt = question.find(" sodium chloride ") != std::string::npos;
        EXPECT_EQ(times, isTableSalt ? 2 : 1) << question;
    }
}

// Dilution.

struct Volumes {
    Shown V1;
    Shown V2;
    Shown C1;
    Shown C2;
};

Volumes readDilution(const QandA& made, const std::string& formula)
{
    SCOPED_TRACE(made.question + made.answer);
    Reader question(made.question);
    question.expect("To dilute ");
    const Shown V1 = question.volume(3);
    question.expect(" of ");
    const Shown C1 = question.number(3);
    question.expect(" mol/L " + formula + " to ");
    const Shown C2 = question.number(3);
    question.expect(" mol/L, how much water does it need to be added to?\n");
    question.end();

    const Range worked = exactly(C1) * exactly(V1) / exactly(C2);
    const Range water = worked - exactly(V1);

    Reader answer(made.answer);
    answer.expect("V1 = ");
    EXPECT_AGREES(answer.number(3), exactly(V1));
    answer.expect(" L   C1 = ");
    EXPECT_AGREES(answer.number(3), exactly(C1));
    answer.expect(" mol/L   C2 = ");
    EXPECT_AGREES(answer.number(3), exactly(C2));
    answer.expect(" mol/L   V2 = ?\nC1V1 = C2V2\nV2 = C1V1/C2 = ");
    EXPECT_AGREES(answer.number(3), exactly(C1));
    answer.expect("x");
    EXPECT_AGREES(answer.number(3), exactly(V1));
    answer.expect("/");
    EXPECT_AGREES(answer.number(3), exactly(C2));
    answer.expect(" = ");
    const Shown V2 = answer.number(3);
    EXPECT_AGREES(V2, worked);
    answer.expect(" L\nV2 - V1 = ");
    EXPECT_AGREES(answer.number(3), worked);
    answer.expect(" - ");
    EXPECT_AGREES(answer.number(3), exactly(V1));
    answer.expect(" = ");
    EXPECT_AGREES(answer.number(3), water);
    answer.expect(" L\nSo add it to ");
    EXPECT_AGREES(answer.number(3), water);
    answer.expect(" L of water\n");
    answer.end();
    return {V1, V2, C1, C2};
}

bool isHydrate(const Soluble& compound)
{
    return compound.formula.find('.') != std::string::npos;
}

TEST_F(EveryQuestionTest, Dilution)
{
    for (std::size_t i = 0; i < dissolvable.size(); ++i) {
        if (isHydrate(dissolvable[i])) {
            continue;
        }
        const int drawn = drawOfCompound(static_cast<int>(i) + 1);
        const QandA made = ask(dilutionKind, {0, drawn, 0, 0, 0, 0, above});
        const auto [V1, V2, C1, C2] = readDilution(made, dissolvable[i].formula);
        count(made);
        // Kept: always these quantities.
        EXPECT_EQ(V1.value, 0.01) << made.question;
        EXPECT_EQ(V2.value, 0.05) << made.question;
        EXPECT_EQ(C1.value, 0.1) << made.question;
        EXPECT_EQ(C2.value, 0.02) << made.question;
    }
    EXPECT_EQ(asked, 8);
    EXPECT_EQ(questions.size(), 7U); // Sodium chloride stands twice.
    EXPECT_EQ(texts.size(), 7U);
}

TEST_F(EveryQuestionTest, KeptHydratesAreNeverDiluted)
{
    for (std::size_t i = 0; i < dissolvable.size(); ++i) {
        if (isHydrate(dissolvable[i])) {
            const int drawn = drawOfCompound(static_cast<int>(i) + 1);
            const QandA made = ask(dilutionKind, {0, drawn, drawOfCompound(8), 0, 0, 0, 0, above});
            readDilution(made, "HgS");
            count(made);
        }
    }
    EXPECT_EQ(asked, 2);
    EXPECT_EQ(texts.size(), 1U);
}

// Equations.

struct Term {
    int coefficient;
    std::string formula;
};

// Digits before a formula are its coefficient; a coefficient of 1 is not written.
Term readTerm(const std::string& written)
{
    const std::size_t digits = written.find_first_not_of("0123456789");
    if (digits == 0) {
        return {1, written};
    }
    Reader reader(written);
    const int coefficient = reader.wholeNumber();
    EXPECT_GT(coefficient, 1) << written;
    return {coefficient, written.substr(digits)};
}

std::vector<Term> readSide(std::string written)
{
    std::vector<Term> terms;
    written += " + ";
    for (std::size_t plus = written.find(" + "); plus != std::string::npos;
         plus = written.find(" + ")) {
        terms.push_back(readTerm(written.substr(0, plus)));
        written.erase(0, plus + 3);
    }
    return terms;
}

Atoms atomsOf(const std::vector<Term>& side)
{
    Atoms atoms;
    for (const Term& term : side) {
        addAtoms(atoms, term.coefficient, term.formula);
    }
    return atoms;
}

struct Reaction {
    const DrawnIon& acidAnion;
    const DrawnIon& cation;
    const DrawnIon& baseAnion;
};

std::string acidName(const Reaction& reaction)
{
    return reaction.acidAnion.ion.acidName + " acid";
}

std::string baseName(const Reaction& reaction)
{
    return reaction.cation.ion.name + " " + reaction.baseAnion.ion.name;
}

std::string acidFormula(const Reaction& reaction)
{
    return acidOf(reaction.acidAnion.ion);
}

std::string baseFormula(const Reaction& reaction)
{
    return neutralCompound(reaction.cation.ion, reaction.baseAnion.ion);
}

std::string saltFormula(const Reaction& reaction)
{
    return neutralCompound(reaction.cation.ion, reaction.acidAnion.ion);
}

struct Equation {
    int nacid;
    int nbase;
};

// Checks a line of an equation: who takes part, that no atom is lost, that it cannot be shortened.
Equation readEquation(const std::string& line, const Reaction& reaction)
{
    const std::size_t arrow = line.find(" -> ");
    if (arrow == std::string::npos) {
        ADD_FAILURE() << "no equation: " << line;
        return {};
    }
    const std::vector<Term> left = readSide(line.substr(0, arrow));
    const std::vector<Term> right = readSide(line.substr(arrow + 4));
    const bool makesGas = reaction.baseAnion.ion.name == "carbonate";
    if (left.size() != 2 || right.size() != (makesGas ? 3U : 2U)) {
        ADD_FAILURE() << "too many or too few substances: " << line;
        return {};
    }
    EXPECT_EQ(left[0].formula, acidFormula(reaction)) << line;
    EXPECT_EQ(left[1].formula, baseFormula(reaction)) << line;
    EXPECT_EQ(right[0].formula, saltFormula(reaction)) << line;
    EXPECT_EQ(right[1].formula, "H2O") << line;
    if (makesGas) {
        EXPECT_EQ(right[2].formula, "CO2") << line;
    }

    EXPECT_EQ(atomsOf(left), atomsOf(right)) << line;
    int divisor = 0;
    for (const auto* side : {&left, &right}) {
        for (const Term& term : *side) {
            divisor = std::gcd(divisor, term.coefficient);
        }
    }
    EXPECT_EQ(divisor, 1) << line;
    return {left[0].coefficient, left[1].coefficient};
}

std::vector<int> drawsOf(const Reaction& reaction)
{
    return {drawOfIon(reaction.acidAnion.row), drawOfIon(reaction.cation.row),
            drawOfIon(reaction.baseAnion.row)};
}

void walkReactions(const std::function<void(const Reaction&)>& visit)
{
    const auto acidAnions = drawnIons([](const Ion& each) { return !each.acidName.empty(); });
    const auto cations = drawnIons([](const Ion& each) { return !each.negative; });
    const auto baseAnions = drawnIons([](const Ion& each) {
        return each.name == "hydroxide" || each.name == "oxide" || each.name == "carbonate";
    });
    for (const DrawnIon& acidAnion : acidAnions) {
        for (const DrawnIon& cation : cations) {
            for (const DrawnIon& baseAnion : baseAnions) {
                visit({acidAnion, cation, baseAnion});
            }
        }
    }
}

TEST_F(EveryQuestionTest, Neutralisation)
{
    std::set<std::string> equations;
    walkReactions([&](const Reaction& reaction) {
        const QandA made = ask(neutralisationKind, drawsOf(reaction));
        EXPECT_EQ(made.question, "Write a balanced equation for " + acidName(reaction) + " plus " +
                                     baseName(reaction) + ".\n");
        Reader answer(made.answer);
        const std::string line = answer.upTo("\n");
        answer.end();
        readEquation(line, reaction);
        equations.insert(line);
        count(made);
    });
    EXPECT_EQ(asked, 600);
    EXPECT_EQ(questions.size(), 600U);
    // Iron and iron(II) are one ion, so are copper and copper(II): 23 bases of each kind.
    EXPECT_EQ(equations.size(), 8U * 23U * 3U);
}

// Titration.

struct ReadTitration {
    Shown knownV;
    Shown unknownV;
    Shown knownC;
    Shown unknownN;
    Equation equation;
};

// What was drawn behind the substances.
struct Sides {
    bool largeAliquot;
    bool baseIsKnown;
    bool titreIsUnknown;
};

ReadTitration readTitration(const QandA& made, const Reaction& reaction, const Sides& sides)
{
    const std::string acid = acidFormula(reaction);
    const std::string base = baseFormula(reaction);
    const std::string known = sides.baseIsKnown ? base : acid;
    const std::string unknown = sides.baseIsKnown ? acid : base;

    Reader question(made.question);
    question.expect("Calculate the concentration of ");
    question.expect(sides.baseIsKnown ? acidName(reaction) : baseName(reaction));
    question.expect(" if ");
    const Shown unknownV = question.volume(3);
    question.expect(sides.titreIsUnknown ? " of it neutralises " : " of it is neutralised by ");
    const Shown knownV = question.volume(3);
    question.expect(" of ");
    const Shown knownC = question.number(6);
    question.expect(" mol/L ");
    question.expect(sides.baseIsKnown ? baseName(reaction) : acidName(reaction));
    question.expect(".\n");
    question.end();

    Reader answer(made.answer);
    answer.expect("Solution of known concentration is " + known + ", unknown is " + unknown + "\n");
    answer.expect("V(" + unknown + ") = ");
    EXPECT_AGREES(answer.number(3), exactly(unknownV));
    answer.expect(" L   V(" + known + ") = ");
    EXPECT_AGREES(answer.number(3), exactly(knownV));
    answer.expect(" L   C(" + known + ") = ");
    EXPECT_AGREES(answer.number(3), exactly(knownC));
    answer.expect(" mol/L   C(" + unknown + ") = ?\n");

    const Range worked = exactly(knownC) * exactly(knownV);
    answer.expect("n(" + known + ") = C(" + known + ") x V(" + known + ") = ");
    EXPECT_AGREES(answer.number(3), exactly(knownC));
    answer.expect("x");
    EXPECT_AGREES(answer.number(3), exactly(knownV));
    answer.expect(" = ");
    EXPECT_AGREES(answer.number(3), worked);
    answer.expect(" mol\n");

    const Equation equation = readEquation(answer.upTo("\n"), reaction);
    answer.expect("Mole ratio n(" + acid + ") : n(" + base + ")  is ");
    EXPECT_EQ(answer.wholeNumber(), equation.nacid);
    answer.expect(":");
    EXPECT_EQ(answer.wholeNumber(), equation.nbase);

    const Range unknownWorked = worked * exactly(equation.nbase) / exactly(equation.nacid);
    answer.expect("\nn(" + unknown + ") = ");
    EXPECT_AGREES(answer.number(3), worked);
    answer.expect(" x ");
    EXPECT_EQ(answer.wholeNumber(), equation.nbase);
    answer.expect("/");
    EXPECT_EQ(answer.wholeNumber(), equation.nacid);
    answer.expect(" = ");
    const Shown unknownN = answer.number(3);
    EXPECT_AGREES(unknownN, unknownWorked);
    answer.expect(" mol\nC(" + unknown + ") = n(" + unknown + ") / V(" + unknown + ") = ");
    EXPECT_AGREES(answer.number(3), unknownWorked);
    answer.expect(" / ");
    EXPECT_AGREES(answer.number(3), exactly(unknownV));
    answer.expect(" = ");
    EXPECT_AGREES(answer.number(3), unknownWorked / exactly(unknownV));
    answer.expect(" mol/L\n");
    answer.end();
    return {knownV, unknownV, knownC, unknownN, equation};
}

std::vector<int> drawsOf(const Reaction& reaction, const Sides& sides)
{
    std::vector<int> draws = drawsOf(reaction);
    draws.insert(draws.end(),
                 {sides.largeAliquot ? below : above, 0, 0, sides.baseIsKnown ? below : above,
                  sides.titreIsUnknown ? below : above});
    return draws;
}

// Kept: always these quantities.
void expectUsualQuantities(const ReadTitration& read, const Sides& sides)
{
    const Shown titre = sides.titreIsUnknown ? read.unknownV : read.knownV;
    const Shown aliquot = sides.titreIsUnknown ? read.knownV : read.unknownV;
    EXPECT_EQ(titre.value, 0.005);
    EXPECT_EQ(aliquot.value, sides.largeAliquot ? 0.025 : 0.02);
    EXPECT_EQ(read.knownC.value, 0.01);
}

// Whether the amount of the unknown is what the equation says: as much acid to base as it takes of
// each.
bool followsTheEquation(const ReadTitration& read, const Sides& sides)
{
    const Range known = exactly(read.knownC) * exactly(read.knownV);
    const double baseToAcid = static_cast<double>(read.equation.nbase) / read.equation.nacid;
    return agree(read.unknownN, known * exactly(sides.baseIsKnown ? 1 / baseToAcid : baseToAcid));
}

TEST_F(EveryQuestionTest, Titration)
{
    std::set<std::string> answers;
    int inverted = 0;
    walkReactions([&](const Reaction& reaction) {
        for (int choice = 0; choice < 8; ++choice) {
            const Sides sides = {(choice & 1) != 0, (choice & 2) != 0, (choice & 4) != 0};
            const QandA made = ask(titrationKind, drawsOf(reaction, sides));
            SCOPED_TRACE(made.question + made.answer);
            const ReadTitration read = readTitration(made, reaction, sides);
            expectUsualQuantities(read, sides);
            // Kept: when the base is known the mole ratio is still base over acid.
            const bool isRight = followsTheEquation(read, sides);
            EXPECT_EQ(isRight, !sides.baseIsKnown || read.equation.nacid == read.equation.nbase);
            inverted += isRight ? 0 : 1;
            answers.insert(made.answer);
            count(made);
        }
    });
    EXPECT_EQ(asked, 4800);
    EXPECT_EQ(questions.size(), 4800U);
    // Answers have formulas alone: 23 bases of each kind, as above.
    EXPECT_EQ(answers.size(), 8U * 23U * 3U * 8U);
    // An acid and a base of the same basicity take equal amounts: 145 of the 600 reactions. For the
    // 455 others, with either aliquot and on either side, the amount is inverted.
    EXPECT_EQ(inverted, 455 * 4);
}

TEST_F(EveryQuestionTest, KeptARandomKindIsNeverANeutralisation)
{
    // Without a script the draws look random; each of the other kinds comes, neutralisation never.
    int massAndConcentration = 0;
    int dilution = 0;
    int titration = 0;
    for (int i = 0; i < 2000; ++i) {
        const std::string question = makeQuestion(randomKind).question;
        const auto begins = [&](const char* words) { return question.rfind(words, 0) == 0; };
        massAndConcentration +=
            begins("Calculate the concentration (in mol/L)") || begins("Calculate the mass (in g)");
        dilution += begins("To dilute ");
        titration += begins("Calculate the concentration of ");
    }
    EXPECT_GT(massAndConcentration, 0);
    EXPECT_GT(dilution, 0);
    EXPECT_GT(titration, 0);
    EXPECT_EQ(massAndConcentration + dilution + titration, 2000);
}

} // namespace
