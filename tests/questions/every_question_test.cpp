// Every question that can be asked, by the draws that lead to it, read back as a learner would read
// it: each number is worked out again in double precision from the numbers of the question, with
// tables of this file's own; each equation has the same atoms on both sides.

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <numeric>
#include <set>
#include <string>
#include <vector>

#include "questions/question.hpp"
#include "support/atom_count.hpp"
#include "support/compounds.hpp"
#include "support/reader.hpp"
#include "support/scripted_draws.hpp"

namespace
{

// What the learner has in a book.

struct Compound {
    int row;
    const char* name;
    const char* formula;
};

const Compound compounds[] = {
    {1, "copper sulfate pentahydrate", "CuSO4.5H2O"},
    {2, "cobalt chloride hexahydrate", "CoCl2.6H2O"},
    {3, "sodium chloride", "NaCl"},
    {4, "potassium iodide", "KI"},
    {5, "silver nitrate", "AgNO3"},
    {6, "iron (III) sulfate", "Fe2(SO4)3"},
    {7, "sodium chloride", "NaCl"},
    {8, "mercury sulfide", "HgS"},
    {9, "ammonium nitrate", "NH4NO3"},
    {10, "calcium acetate", "Ca(CH3COO)2"},
};

const std::map<std::string, double> relativeMasses = {
    {"H", 1.008}, {"C", 12.01},  {"N", 14.01},  {"O", 16.0},   {"Na", 22.99},
    {"S", 32.06}, {"Cl", 35.45}, {"K", 39.1},   {"Ca", 40.08}, {"Fe", 55.85},
    {"I", 126.9}, {"Co", 58.93}, {"Cu", 63.55}, {"Ag", 107.9}, {"Hg", 200.6},
};

struct Acid {
    int row;
    const char* name;
    const char* formula;
    const char* anion;
    int charge;
};

const Acid acids[] = {
    {1, "hydrobromic acid", "HBr", "Br", 1},   {3, "hydroiodic acid", "HI", "I", 1},
    {25, "hydrofluoric acid", "HF", "F", 1},   {31, "hydrochloric acid", "HCl", "Cl", 1},
    {33, "nitric acid", "HNO3", "NO3", 1},     {34, "phosphoric acid", "H3PO4", "PO4", 3},
    {35, "sulphuric acid", "H2SO4", "SO4", 2}, {37, "carbonic acid", "H2CO3", "CO3", 2},
};

struct SimpleIon {
    int row;
    const char* name;
    const char* formula;
    int charge;
};

const SimpleIon cations[] = {
    {2, "barium", "Ba", 2},     {4, "manganese", "Mn", 2},    {5, "iron", "Fe", 2},
    {6, "iron(II)", "Fe", 2},   {7, "iron(III)", "Fe", 3},    {8, "copper", "Cu", 2},
    {9, "copper(II)", "Cu", 2}, {10, "copper(III)", "Cu", 3}, {11, "cobalt", "Co", 2},
    {12, "nickel", "Ni", 2},    {13, "zinc", "Zn", 2},        {14, "cadmium", "Cd", 2},
    {15, "tin(II)", "Sn", 2},   {16, "gold", "Au", 2},        {17, "mercury", "Hg", 2},
    {18, "lead(II)", "Pb", 2},  {19, "chromium", "Cr", 3},    {20, "silver", "Ag", 1},
    {21, "lithium", "Li", 1},   {22, "beryllium", "Be", 2},   {26, "sodium", "Na", 1},
    {27, "magnesium", "Mg", 2}, {28, "aluminium", "Al", 3},   {32, "potassium", "K", 1},
    {38, "ammonium", "NH4", 1},
};

const SimpleIon baseAnions[] = {
    {24, "oxide", "O", 2},
    {36, "hydroxide", "OH", 1},
    {37, "carbonate", "CO3", 2},
};

using Atoms = std::map<std::string, int>;

// Formulas come again and again: each is counted once.
const Atoms& atomsOf(const std::string& formula)
{
    static std::map<std::string, Atoms> known;
    const auto found = known.find(formula);
    return found != known.end() ? found->second
                                : known.emplace(formula, countAtoms(formula)).first->second;
}

void add(Atoms& atoms, int times, const std::string& formula)
{
    for (const auto& [symbol, count] : atomsOf(formula)) {
        atoms[symbol] += times * count;
    }
}

// The least neutral compound of two ions.
Atoms neutralCompound(const std::string& cation, int cationCharge, const std::string& anion,
                      int anionCharge)
{
    const int charge = std::lcm(cationCharge, anionCharge);
    Atoms atoms;
    add(atoms, charge / cationCharge, cation);
    add(atoms, charge / anionCharge, anion);
    return atoms;
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
        questions.insert(made.question);
        texts.insert(made.question + made.answer);
    }

    int asked = 0;
    std::set<std::string> questions;
    std::set<std::string> texts;
};

// Mass and concentration.

struct MassAndVolume {
    Shown mass;
    Shown volume; // L
};

MassAndVolume readConcentrationFromMass(const QandA& made, const Compound& compound)
{
    SCOPED_TRACE(made.question + made.answer);
    const std::string name = compound.name;
    const std::string formula = compound.formula;

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
MassAndVolume readMassForConcentration(const QandA& made, const Compound& compound)
{
    SCOPED_TRACE(made.question + made.answer);
    const std::string name = compound.name;
    const std::string formula = compound.formula;

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

using MassVisitor = std::function<void(const QandA&, const MassAndVolume&)>;

void walkMassAndConcentration(const MassVisitor& visit)
{
    for (const Compound& compound : compounds) {
        const int drawn = drawOfCompound(compound.row);
        const QandA first = ask(massConcentrationKind, {drawn, below, 0, 0});
        visit(first, readConcentrationFromMass(first, compound));
        const QandA second = ask(massConcentrationKind, {drawn, above, 0, 0});
        visit(second, readMassForConcentration(second, compound));
    }
}

TEST_F(EveryQuestionTest, MassAndConcentration)
{
    walkMassAndConcentration([this](const QandA& made, const MassAndVolume&) { count(made); });
    EXPECT_EQ(asked, 20);
    EXPECT_EQ(questions.size(), 18U); // Sodium chloride stands twice.
    EXPECT_EQ(texts.size(), 18U);
}

TEST_F(EveryQuestionTest, KeptTheMassIsOneGramAndTheVolumeFiftyMillilitres)
{
    walkMassAndConcentration([this](const QandA& made, const MassAndVolume& read) {
        count(made);
        EXPECT_EQ(read.mass.value, 1.0);
        EXPECT_EQ(read.volume.value, 0.05);
    });
    EXPECT_EQ(asked, 20);
}

TEST_F(EveryQuestionTest, KeptSodiumChlorideComesTwiceAsOften)
{
    std::map<std::string, int> times;
    walkMassAndConcentration(
        [&](const QandA& made, const MassAndVolume&) { ++times[made.question]; });
    EXPECT_EQ(times.size(), 18U);
    for (const auto& [question, number] : times) {
        const bool isTableSalt = question.find(" sodium chloride ") != std::string::npos;
        EXPECT_EQ(number, isTableSalt ? 2 : 1) << question;
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

bool isHydrate(const Compound& compound)
{
    return std::string(compound.formula).find('.') != std::string::npos;
}

using DilutionVisitor = std::function<void(const QandA&, const Volumes&)>;

void walkDilutions(const DilutionVisitor& visit)
{
    for (const Compound& compound : compounds) {
        if (!isHydrate(compound)) {
            const QandA made =
                ask(dilutionKind, {0, drawOfCompound(compound.row), 0, 0, 0, 0, above});
            visit(made, readDilution(made, compound.formula));
        }
    }
}

TEST_F(EveryQuestionTest, Dilution)
{
    walkDilutions([this](const QandA& made, const Volumes&) { count(made); });
    EXPECT_EQ(asked, 8);
    EXPECT_EQ(questions.size(), 7U); // Sodium chloride stands twice.
    EXPECT_EQ(texts.size(), 7U);
}

TEST_F(EveryQuestionTest, KeptADilutionIsOfTenMillilitresFromATenthToAFiftiethMolar)
{
    walkDilutions([this](const QandA& made, const Volumes& read) {
        count(made);
        EXPECT_EQ(read.V1.value, 0.01);
        EXPECT_EQ(read.V2.value, 0.05);
        EXPECT_EQ(read.C1.value, 0.1);
        EXPECT_EQ(read.C2.value, 0.02);
    });
    EXPECT_EQ(asked, 8);
}

TEST_F(EveryQuestionTest, KeptHydratesAreNeverDiluted)
{
    for (const Compound& compound : compounds) {
        if (isHydrate(compound)) {
            const QandA made = ask(dilutionKind, {0, drawOfCompound(compound.row),
                                                  drawOfCompound(8), 0, 0, 0, 0, above});
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
        add(atoms, term.coefficient, term.formula);
    }
    return atoms;
}

struct Reaction {
    const Acid& acid;
    const SimpleIon& cation;
    const SimpleIon& anion;
};

struct Equation {
    int nacid;
    int nbase;
    std::string baseFormula;
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
    const bool makesGas = std::string(reaction.anion.name) == "carbonate";
    if (left.size() != 2 || right.size() != (makesGas ? 3U : 2U)) {
        ADD_FAILURE() << "too many or too few substances: " << line;
        return {};
    }
    const auto& [acid, cation, anion] = reaction;
    EXPECT_EQ(left[0].formula, acid.formula) << line;
    EXPECT_EQ(atomsOf(left[0].formula), neutralCompound("H", 1, acid.anion, acid.charge)) << line;
    EXPECT_EQ(atomsOf(left[1].formula),
              neutralCompound(cation.formula, cation.charge, anion.formula, anion.charge))
        << line;
    EXPECT_EQ(atomsOf(right[0].formula),
              neutralCompound(cation.formula, cation.charge, acid.anion, acid.charge))
        << line;
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
    return {left[0].coefficient, left[1].coefficient, left[1].formula};
}

std::string baseName(const Reaction& reaction)
{
    return std::string(reaction.cation.name) + " " + reaction.anion.name;
}

std::vector<int> drawsOf(const Reaction& reaction)
{
    return {drawOfIon(reaction.acid.row), drawOfIon(reaction.cation.row),
            drawOfIon(reaction.anion.row)};
}

void walkReactions(const std::function<void(const Reaction&)>& visit)
{
    for (const Acid& acid : acids) {
        for (const SimpleIon& cation : cations) {
            for (const SimpleIon& anion : baseAnions) {
                visit({acid, cation, anion});
            }
        }
    }
}

TEST_F(EveryQuestionTest, Neutralisation)
{
    std::set<std::string> equations;
    walkReactions([&](const Reaction& reaction) {
        const QandA made = ask(neutralisationKind, drawsOf(reaction));
        EXPECT_EQ(made.question, std::string("Write a balanced equation for ") +
                                     reaction.acid.name + " plus " + baseName(reaction) + ".\n");
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

// One question of the walk, as it was led to and as it was read.
struct ReadTitration {
    bool acidIsKnown;
    bool titreIsUnknown;
    Shown knownV;
    Shown unknownV;
    Shown knownC;
    Shown knownN;
    Shown unknownN;
    Equation equation;
};

struct Sides {
    bool largeAliquot;
    bool baseIsKnown;
    bool titreIsUnknown;
};

ReadTitration readTitration(const QandA& made, const Reaction& reaction, const Sides& sides)
{
    SCOPED_TRACE(made.question + made.answer);
    const std::string knownName = sides.baseIsKnown ? baseName(reaction) : reaction.acid.name;
    const std::string unknownName = sides.baseIsKnown ? reaction.acid.name : baseName(reaction);

    Reader question(made.question);
    question.expect("Calculate the concentration of " + unknownName + " if ");
    const Shown unknownV = question.volume(3);
    question.expect(sides.titreIsUnknown ? " of it neutralises " : " of it is neutralised by ");
    const Shown knownV = question.volume(3);
    question.expect(" of ");
    const Shown knownC = question.number(6);
    question.expect(" mol/L " + knownName + ".\n");
    question.end();

    Reader answer(made.answer);
    answer.expect("Solution of known concentration is ");
    const std::string known = answer.upTo(", unknown is ");
    const std::string unknown = answer.upTo("\n");
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
    const Shown knownN = answer.number(3);
    EXPECT_AGREES(knownN, worked);
    answer.expect(" mol\n");

    const Equation equation = readEquation(answer.upTo("\n"), reaction);
    EXPECT_EQ(sides.baseIsKnown ? unknown : known, reaction.acid.formula);
    EXPECT_EQ(sides.baseIsKnown ? known : unknown, equation.baseFormula);
    answer.expect("Mole ratio n(" + std::string(reaction.acid.formula) + ") : n(" +
                  equation.baseFormula + ")  is ");
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
    return {!sides.baseIsKnown,
            sides.titreIsUnknown,
            knownV,
            unknownV,
            knownC,
            knownN,
            unknownN,
            equation};
}

using TitrationVisitor = std::function<void(const QandA&, const ReadTitration&, const Sides&)>;

void walkTitrations(const TitrationVisitor& visit)
{
    walkReactions([&](const Reaction& reaction) {
        for (int choice = 0; choice < 8; ++choice) {
            const Sides sides = {(choice & 1) != 0, (choice & 2) != 0, (choice & 4) != 0};
            std::vector<int> draws = drawsOf(reaction);
            draws.insert(draws.end(),
                         {sides.largeAliquot ? below : above, 0, 0,
                          sides.baseIsKnown ? below : above, sides.titreIsUnknown ? below : above});
            const QandA made = ask(titrationKind, draws);
            visit(made, readTitration(made, reaction, sides), sides);
        }
    });
}

TEST_F(EveryQuestionTest, Titration)
{
    std::set<std::string> answers;
    walkTitrations([&](const QandA& made, const ReadTitration&, const Sides&) {
        answers.insert(made.answer);
        count(made);
    });
    EXPECT_EQ(asked, 4800);
    EXPECT_EQ(questions.size(), 4800U);
    // Answers have formulas alone: 23 bases of each kind, as above.
    EXPECT_EQ(answers.size(), 8U * 23U * 3U * 8U);
}

TEST_F(EveryQuestionTest, KeptTheTitreIsFiveMillilitresAndTheKnownSolutionAHundredthMolar)
{
    walkTitrations([this](const QandA& made, const ReadTitration& read, const Sides& sides) {
        count(made);
        const Shown titre = read.titreIsUnknown ? read.unknownV : read.knownV;
        const Shown aliquot = read.titreIsUnknown ? read.knownV : read.unknownV;
        EXPECT_EQ(titre.value, 0.005) << made.question;
        EXPECT_EQ(aliquot.value, sides.largeAliquot ? 0.025 : 0.02) << made.question;
        EXPECT_EQ(read.knownC.value, 0.01) << made.question;
    });
    EXPECT_EQ(asked, 4800);
}

TEST_F(EveryQuestionTest, KeptWhenTheBaseIsKnownTheMoleRatioIsStillBaseOverAcid)
{
    int right = 0;
    int wrong = 0;
    walkTitrations([&](const QandA& made, const ReadTitration& read, const Sides&) {
        const double nacid = read.equation.nacid;
        const double nbase = read.equation.nbase;
        const Range known = exactly(read.knownC) * exactly(read.knownV);
        // What the equation says: as much acid to base as it takes of each.
        const Range chemistry = known * exactly(read.acidIsKnown ? nbase / nacid : nacid / nbase);
        const bool isRight = agree(read.unknownN, chemistry);
        EXPECT_EQ(isRight, read.acidIsKnown || nacid == nbase) << made.question << made.answer;
        ++(isRight ? right : wrong);
    });
    // An acid and a base of the same basicity take equal amounts: 145 of the 600 reactions. For the
    // 455 others, with either aliquot and on either side, the amount is inverted.
    EXPECT_EQ(wrong, 455 * 4);
    EXPECT_EQ(right, 4800 - 455 * 4);
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
