#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "lesson/kinds/kinds.hpp"
#include "lesson/marking/equation.hpp"
#include "lesson/tests/support/plain.hpp"
#include "support/atom_count.hpp"

namespace lesson
{

namespace
{

using Side = std::vector<std::pair<int, std::string>>;

std::string keyOf(const Exercise& exercise)
{
    return lesson::textOf(*exercise.equation);
}

// A walk of a paper through the pool of a level: all exercises until the first one comes again.
std::vector<Exercise> walk(int level)
{
    std::vector<Exercise> exercises;
    std::set<std::string> keys;
    for (unsigned number = 1;; ++number) {
        Exercise exercise = makeExercise({1, number, &neutralisationKind, level});
        if (!keys.insert(keyOf(exercise)).second) {
            return exercises;
        }
        exercises.push_back(std::move(exercise));
    }
}

std::vector<Exercise> everyExercise()
{
    std::vector<Exercise> all;
    for (const int level : {1, 2, 3}) {
        for (Exercise& exercise : walk(level)) {
            all.push_back(std::move(exercise));
        }
    }
    return all;
}

const EquationAnswer& answerOf(const Exercise& exercise)
{
    return std::get<EquationAnswer>(exercise.answer);
}

std::string textOf(const Spans& spans)
{
    std::string text;
    for (const Span& span : rendered(spans, Writing())) {
        text += span.text + (span.kind == Span::Kind::ion ? span.detail : "");
    }
    return text;
}

bool isOneOf(std::string_view wanted, const std::vector<std::string_view>& names)
{
    return std::find(names.begin(), names.end(), wanted) != names.end();
}

// ---- What an exercise says

std::map<std::string, int> atomsOn(const Side& side)
{
    std::map<std::string, int> atoms;
    for (const auto& [coefficient, species] : side) {
        for (const auto& [symbol, count] : countAtoms(species)) {
            atoms[symbol] += coefficient * count;
        }
    }
    return atoms;
}

TEST(NeutralisationExerciseTest, PromptAndGivenNameAcidBaseAndSalt)
{
    for (const Exercise& exercise : everyExercise()) {
        const Equation& equation = *exercise.equation;
        const std::string prompt = textOf(exercise.prompt);
        const std::string formulas[] = {equation.left[0].second, equation.left[1].second,
                                        equation.right[0].second};
        ASSERT_EQ(exercise.given.size(), 3U) << keyOf(exercise);
        for (std::size_t i = 0; i < 3; ++i) {
            const auto& given = std::get<GivenCompound>(exercise.given[i]);
            EXPECT_EQ(given.formula, formulas[i]) << keyOf(exercise);
            EXPECT_NE(prompt.find(british(given.name)), std::string::npos) << prompt;
        }
    }
    EXPECT_EQ(textOf(walk(1).front().prompt).substr(0, 59),
              "Write the balanced equation for the complete neutralisation");
}

TEST(NeutralisationExerciseTest, TheSolutionEndsWithTheAtomsOfEachSide)
{
    for (const Exercise& exercise : everyExercise()) {
        const std::string key = keyOf(exercise);
        const Step& last = exercise.solution.back();
        EXPECT_EQ(textOf(last.say), "Count the atoms to check.") << key;
        const std::string counts = textOf(last.math);
        for (const auto& [symbol, count] : atomsOn(exercise.equation->right)) {
            const std::string counted = ", " + symbol + " " + std::to_string(count);
            EXPECT_NE((", " + counts).find(counted), std::string::npos) << counts << " of " << key;
        }
        const auto elements = std::count(counts.begin(), counts.end(), ',') + 1;
        EXPECT_EQ(static_cast<std::size_t>(elements), atomsOn(exercise.equation->left).size())
            << counts;
        const std::string end = " on each side";
        ASSERT_GT(counts.size(), end.size());
        EXPECT_EQ(counts.substr(counts.size() - end.size()), end);
    }
}

std::vector<std::string> solutionText(const EquationAnswer& wanted)
{
    std::vector<std::string> text;
    for (const Exercise& exercise : everyExercise()) {
        const EquationAnswer& answer = answerOf(exercise);
        if (answer.acid == wanted.acid && answer.base.cation == wanted.base.cation &&
            answer.base.anion == wanted.base.anion) {
            for (const Step& step : exercise.solution) {
                text.push_back(textOf(step.say) + " | " + textOf(step.math));
            }
        }
    }
    return text;
}

TEST(NeutralisationExerciseTest, SolutionsReadLikeATextbook)
{
    EXPECT_EQ(solutionText({findAcid("H2SO4"), {findIon("aluminium"), findIon("hydroxide")}}),
              (std::vector<std::string>{
                  "The salt has these ions, as many of each as make the charges cancel. | Al3+, "
                  "SO42-: Al2(SO4)3",
                  "Write the formulas: an acid and a hydroxide give a salt and water. | "
                  "H2SO4 + Al(OH)3 → Al2(SO4)3 + H2O",
                  "Balance the aluminium, then the sulfate. | 3H2SO4 + 2Al(OH)3 → Al2(SO4)3 + H2O",
                  "Then the water. | 3H2SO4 + 2Al(OH)3 → Al2(SO4)3 + 6H2O",
                  "Count the atoms to check. | H 12, S 3, Al 2, O 18 on each side"}));
    EXPECT_EQ(
        solutionText({findAcid("HCl"), {findIon("sodium"), findIon("hydroxide")}}),
        (std::vector<std::string>{
            "The salt has these ions, as many of each as make the charges cancel. | Na+, Cl-: NaCl",
            "Write the formulas: an acid and a hydroxide give a salt and water. | HCl + NaOH → "
            "NaCl + H2O",
            "Count the atoms to check. | H 2, Cl 1, Na 1, O 1 on each side"}));
    EXPECT_EQ(
        solutionText({findAcid("H3PO4"), {findIon("aluminium"), findIon("hydroxide")}}),
        (std::vector<std::string>{"The salt has these ions, as many of each as make the charges "
                                  "cancel. | Al3+, PO43-: AlPO4",
                                  "Write the formulas: an acid and a hydroxide give a salt and "
                                  "water. | H3PO4 + Al(OH)3 → AlPO4 + H2O",
                                  "Balance the water. | H3PO4 + Al(OH)3 → AlPO4 + 3H2O",
                                  "Count the atoms to check. | H 6, P 1, Al 1, O 7 on each side"}));
    EXPECT_EQ(solutionText({findAcid("H2SO4"), {findIon("sodium"), findIon("hydrogencarbonate")}}),
              (std::vector<std::string>{
                  "The salt has these ions, as many of each as make the charges cancel. | Na+, "
                  "SO42-: Na2SO4",
                  "Write the formulas: an acid and a hydrogencarbonate give a salt, water and "
                  "carbon dioxide. | "
                  "H2SO4 + NaHCO3 → Na2SO4 + H2O + CO2",
                  "Balance the sodium. | H2SO4 + 2NaHCO3 → Na2SO4 + H2O + CO2",
                  "Then the water and the carbon dioxide. | "
                  "H2SO4 + 2NaHCO3 → Na2SO4 + 2H2O + 2CO2",
                  "Count the atoms to check. | H 4, S 1, Na 2, C 2, O 10 on each side"}));
    EXPECT_EQ(
        solutionText({findAcid("CH3COOH"), {findIon("zinc"), findIon("carbonate")}}),
        (std::vector<std::string>{
            "The salt has these ions, as many of each as make the charges cancel. | Zn2+, CH3COO-: "
            "Zn(CH3COO)2",
            "Write the formulas: an acid and a carbonate give a salt, water and carbon dioxide. | "
            "CH3COOH + ZnCO3 → Zn(CH3COO)2 + H2O + CO2",
            "Balance the ethanoate. | 2CH3COOH + ZnCO3 → Zn(CH3COO)2 + H2O + CO2",
            "Count the atoms to check. | C 5, H 8, Zn 1, O 7 on each side"}));
}

TEST(NeutralisationExerciseTest, HintsOfACarbonate)
{
    std::vector<std::string> hints;
    for (const Exercise& exercise : walk(2)) {
        if (keyOf(exercise) == "H2SO4 + 2NaHCO3 -> Na2SO4 + 2H2O + 2CO2") {
            for (const Step& step : exercise.solution) {
                hints.push_back(textOf(step.hint));
            }
        }
    }
    EXPECT_EQ(hints,
              (std::vector<std::string>{
                  "The salt is made of the positive ion of the base and of what the acid leaves. "
                  "What are their charges?",
                  "Each hydrogencarbonate gives carbon dioxide as well as water.",
                  "How many of each ion are in one unit of the salt? The left side has to bring as "
                  "many.",
                  "Each hydrogencarbonate gives one water and one carbon dioxide.",
                  "Is each element there as often on the left as on the right?"}));
}

TEST(NeutralisationExerciseTest, AmericanPrompts)
{
    std::set<std::string> prompts;
    for (const Exercise& exercise : everyExercise()) {
        prompts.insert(plainAmerican(exercise.prompt));
    }
    const std::string begin = "Write the balanced equation for the complete neutralization of ";
    for (const char* const rest :
         {"zinc hydroxide by acetic acid. The salt is zinc acetate.",
          "aluminum hydroxide by hydrochloric acid. The salt is aluminum chloride.",
          "sodium hydrogen carbonate by nitric acid. The salt is sodium nitrate."}) {
        EXPECT_EQ(prompts.count(begin + rest), 1U) << rest;
    }
}

std::set<std::string> slipTexts(const EquationAnswer& wanted)
{
    std::set<std::string> texts;
    for (const Exercise& exercise : everyExercise()) {
        const EquationAnswer& answer = answerOf(exercise);
        if (answer.acid == wanted.acid && answer.base.cation == wanted.base.cation &&
            answer.base.anion == wanted.base.anion) {
            for (const Slip& slip : exercise.slips) {
                texts.insert(slip.text);
            }
        }
    }
    return texts;
}

TEST(NeutralisationExerciseTest, SlipsOfThreeEquations)
{
    EXPECT_EQ(slipTexts({findAcid("HCl"), {findIon("sodium"), findIon("carbonate")}}),
              (std::set<std::string>{
                  "HCl + Na2CO3 -> NaCl + H2O + CO2", "2HCl + Na2CO3 -> 2NaCl + H2O",
                  "2HCl + Na2CO3 -> 2NaCl + H2CO3", "4HCl + 2Na2CO3 -> 4NaCl + 2H2O + 2CO2"}));
    EXPECT_EQ(slipTexts({findAcid("H2SO4"), {findIon("sodium"), findIon("hydroxide")}}),
              (std::set<std::string>{"H2SO4 + NaOH -> Na2SO4 + H2O", "H2SO4 + 2NaOH -> Na2SO4",
                                     "H2SO4 + 2NaOH -> Na2SO4 + 2H2", "H2SO4 + NaOH -> NaSO4 + H2O",
                                     "H2SO4 + NaOH -> NaHSO4 + H2O",
                                     "2H2SO4 + 4NaOH -> 2Na2SO4 + 4H2O"}));
    EXPECT_EQ(slipTexts({findAcid("H2SO4"), {findIon("magnesium"), findIon("oxide")}}),
              (std::set<std::string>{"H2SO4 + MgO -> MgSO4", "H2SO4 + MgO -> MgSO4 + H2",
                                     "H2SO4 + MgO -> Mg2(SO4)2 + H2O",
                                     "2H2SO4 + 2MgO -> 2MgSO4 + 2H2O"}));
}

// ---- Marking over the whole pool

// How a learner writes: each function changes how a piece of the equation is spelt.
struct Spelling {
    std::string (*formula)(std::string plain);
    const char* times; // between a coefficient and its formula
    const char* one;   // the coefficient 1
    const char* plus;  // between species
    const char* arrow;
    bool isReversed; // the order of the species on each side
};

std::string unchanged(std::string formula)
{
    return formula;
}

template <typename Change>
std::string withEachDigit(const std::string& formula, Change change)
{
    std::string text;
    for (const char c : formula) {
        text += std::isdigit(static_cast<unsigned char>(c)) != 0 ? change(c) : std::string(1, c);
    }
    return text;
}

std::string subscripts(std::string formula)
{
    return withEachDigit(formula, [](char digit) {
        return "\xE2\x82" + std::string(1, static_cast<char>('\x80' + (digit - '0')));
    });
}

std::string underscored(std::string formula)
{
    return withEachDigit(formula, [](char digit) { return "_" + std::string(1, digit); });
}

std::string braced(std::string formula)
{
    return withEachDigit(formula, [](char digit) { return "_{" + std::string(1, digit) + "}"; });
}

std::string markedUp(std::string formula)
{
    return withEachDigit(formula,
                         [](char digit) { return "<sub>" + std::string(1, digit) + "</sub>"; });
}

std::string inMhchem(std::string formula)
{
    return "\\ce{" + formula + "}";
}

std::string squareBracketed(std::string formula)
{
    std::replace(formula.begin(), formula.end(), '(', '[');
    std::replace(formula.begin(), formula.end(), ')', ']');
    return formula;
}

// The ethanoate in front, with the brackets that it needs.
std::string ethanoateFirst(std::string formula)
{
    const std::size_t place = formula.find("CH3COO");
    if (place == std::string::npos || place == 0) {
        return formula;
    }
    const bool isBracketed = formula[place - 1] == '(';
    const std::size_t start = isBracketed ? place - 1 : place;
    return formula.substr(start) + formula.substr(0, start);
}

std::string otherEthanoate(std::string formula)
{
    const std::size_t place = formula.find("CH3COO");
    if (place != std::string::npos) {
        formula.replace(place, 6, formula == "CH3COOH" ? "CH3CO2" : "C2H3O2");
    }
    return formula;
}

constexpr Spelling spellings[] = {
    {unchanged, "", "", " + ", " -> ", false},
    {unchanged, "", "", "+", "->", true},
    {unchanged, " ", "1 ", " + ", " --> ", false},
    {unchanged, "*", "", " + ", " = ", true},
    {unchanged, "·", "1", " +", " => ", false},
    {subscripts, "", "", " + ", " → ", false},
    {subscripts, " × ", "1", "+ ", "⟶", true},
    {underscored, "", "", " + ", " -> ", true},
    {braced, " ", "", " + ", " = ", false},
    {squareBracketed, "", "", " + ", "->", false},
    {ethanoateFirst, "", "", " + ", "->", false},
    {otherEthanoate, "", "1", "+", "==>", true},
    {unchanged, " x ", "", "  +  ", "  >  ", false},
    {unchanged, "", "2/2", " + ", "->", false},
    {unchanged, "", "1.0", " + ", "->", false},
    {unchanged, "", "(1)", " + ", "->", true},
    {unchanged, "", "", " + ", " _> ", false},
    {unchanged, "", "", " + ", " rarr ", false},
    {unchanged, "", "", " + ", "\\rightarrow ", false},
    {braced, "", "", " + ", " \\to ", false},
    {underscored, "", "", "+", "_>", false},
    {unchanged, "", "", " \\+ ", " -\\> ", false},
    {markedUp, "", "", " + ", " &rarr; ", false},
    {inMhchem, "", "", " + ", "\\ce{->}", false},
};

std::string sideText(Side side, const Spelling& spelling)
{
    if (spelling.isReversed) {
        std::reverse(side.begin(), side.end());
    }
    std::string text;
    for (const auto& [coefficient, species] : side) {
        text += text.empty() ? "" : spelling.plus;
        text += coefficient == 1 ? spelling.one : std::to_string(coefficient) + spelling.times;
        text += spelling.formula(species);
    }
    return text;
}

std::string typedText(const Equation& equation, const Spelling& spelling)
{
    return sideText(equation.left, spelling) + spelling.arrow + sideText(equation.right, spelling);
}

TEST(NeutralisationExerciseTest, TheKeyIsCorrectInEverySpelling)
{
    for (const Exercise& exercise : everyExercise()) {
        EXPECT_EQ(markEquation(answerOf(exercise), keyOf(exercise)).verdict, Verdict::correct);
        for (const Spelling& spelling : spellings) {
            const std::string typed = typedText(*exercise.equation, spelling);
            const Mark mark = markEquation(answerOf(exercise), typed);
            EXPECT_EQ(mark.verdict, Verdict::correct) << typed << ": " << plain(mark.sentence);
            EXPECT_EQ(plain(mark.sentence), "Correct.") << typed;
        }
    }
}

// The bases that the rules call insoluble, and all others that are asked: those that dissolve,
// those on which school tables differ, and the oxides, for which there is no rule.
const std::vector<std::string_view> onlySolidBases = {
    "Mg(OH)2", "Mn(OH)2", "Fe(OH)2", "Co(OH)2", "Ni(OH)2", "Cu(OH)2", "Zn(OH)2", "Pb(OH)2",
    "Al(OH)3", "Cr(OH)3", "Fe(OH)3", "Ag2CO3",  "MgCO3",   "CaCO3",   "BaCO3",   "MnCO3",
    "FeCO3",   "CoCO3",   "NiCO3",   "CuCO3",   "ZnCO3",   "PbCO3",
};
const std::vector<std::string_view> solidOrDissolvedBases = {
    "LiOH",  "NaOH",      "KOH",  "Ca(OH)2", "Ba(OH)2", "Li2CO3", "Na2CO3", "K2CO3", "NaHCO3",
    "KHCO3", "(NH4)2CO3", "Li2O", "Na2O",    "K2O",     "Ag2O",   "MgO",    "CaO",   "BaO",
    "MnO",   "FeO",       "CoO",  "NiO",     "CuO",     "ZnO",    "PbO",    "Al2O3", "Fe2O3",
};

TEST(NeutralisationExerciseTest, EveryBaseIsListedWithItsStates)
{
    std::set<std::string> asked;
    for (const Exercise& exercise : everyExercise()) {
        asked.insert(exercise.equation->left[1].second);
    }
    std::set<std::string> listed(onlySolidBases.begin(), onlySolidBases.end());
    listed.insert(solidOrDissolvedBases.begin(), solidOrDissolvedBases.end());
    listed.insert("NH3");
    EXPECT_EQ(asked, listed);
}

// The states that are right, as a teacher's list has them.
std::vector<std::string> statesOf(const std::string& species, bool isOnTheLeft, bool isAcid)
{
    if (species == "H2O") {
        return {"(l)"};
    }
    if (species == "CO2") {
        return {"(g)"};
    }
    if (isOnTheLeft && isAcid) {
        return {"(aq)"};
    }
    if (species == "NH3") {
        return {"(g)", "(aq)"};
    }
    if (isOnTheLeft) {
        return isOneOf(species, onlySolidBases) ? std::vector<std::string>{"(s)"}
                                                : std::vector<std::string>{"(s)", "(aq)"};
    }
    if (isOneOf(species, {"BaSO4", "Mg3(PO4)2", "Ca3(PO4)2", "AlPO4"})) {
        return {"(s)"};
    }
    if (isOneOf(species, {"CaSO4", "AlBr3", "CrBr3"})) {
        return {"(s)", "(aq)"};
    }
    return {"(aq)"};
}

TEST(NeutralisationExerciseTest, RightStatesAreCorrectAndWrongOnesAreSlips)
{
    for (const Exercise& exercise : everyExercise()) {
        const Equation& equation = *exercise.equation;
        const std::size_t species = equation.left.size() + equation.right.size();
        for (std::size_t chosen = 0; chosen < species; ++chosen) {
            for (const std::string state : {"(s)", "(l)", "(g)", "(aq)"}) {
                const bool isOnTheLeft = chosen < equation.left.size();
                Equation typed = equation;
                std::string& formula = isOnTheLeft
                                           ? typed.left[chosen].second
                                           : typed.right[chosen - equation.left.size()].second;
                const std::vector<std::string> right = statesOf(formula, isOnTheLeft, chosen == 0);
                const bool isRight = std::find(right.begin(), right.end(), state) != right.end();
                const std::string expected =
                    isRight ? "Correct." : "Check the state of " + formula + ".";
                formula += " " + state;
                const std::string text = lesson::textOf(typed);
                const Mark mark = markEquation(answerOf(exercise), text);
                EXPECT_EQ(mark.verdict, isRight ? Verdict::correct : Verdict::slip) << text;
                EXPECT_EQ(plain(mark.sentence), expected) << text;
            }
        }
    }
}

std::string withFactor(const Side& side, int factor, int divisor)
{
    std::string text;
    for (const auto& [coefficient, species] : side) {
        text += (text.empty() ? "" : " + ") + std::to_string(coefficient * factor) + "/" +
                std::to_string(divisor) + " " + species;
    }
    return text;
}

TEST(NeutralisationExerciseTest, MultiplesAndPartsAreBalancedButNotInLowestTerms)
{
    const std::pair<int, int> factors[] = {{2, 1}, {3, 1}, {10, 1}, {1, 2}, {1, 3}, {3, 2}, {1, 6}};
    for (const Exercise& exercise : everyExercise()) {
        for (const auto& [factor, divisor] : factors) {
            const std::string typed = withFactor(exercise.equation->left, factor, divisor) +
                                      " -> " +
                                      withFactor(exercise.equation->right, factor, divisor);
            const Mark mark = markEquation(answerOf(exercise), typed);
            EXPECT_EQ(mark.verdict, Verdict::slip) << typed;
            EXPECT_EQ(plain(mark.sentence), "Balanced. Use the smallest whole numbers.") << typed;
        }
    }
}

// The sentence names an element and tells its numbers, which are counted anew here.
void expectTrueCounts(const Equation& typed, const Mark& mark)
{
    const std::map<std::string, std::string> symbols = {
        {"hydrogen", "H"},   {"lithium", "Li"},  {"carbon", "C"},     {"nitrogen", "N"},
        {"oxygen", "O"},     {"sodium", "Na"},   {"magnesium", "Mg"}, {"aluminium", "Al"},
        {"phosphorus", "P"}, {"sulfur", "S"},    {"chlorine", "Cl"},  {"potassium", "K"},
        {"calcium", "Ca"},   {"chromium", "Cr"}, {"manganese", "Mn"}, {"iron", "Fe"},
        {"cobalt", "Co"},    {"nickel", "Ni"},   {"copper", "Cu"},    {"zinc", "Zn"},
        {"bromine", "Br"},   {"silver", "Ag"},   {"barium", "Ba"},    {"lead", "Pb"},
    };
    const std::string start = "Count the ";
    const std::string sentence = plain(mark.sentence);
    ASSERT_EQ(sentence.substr(0, start.size()), start);
    const std::string name = sentence.substr(start.size(), sentence.find(" atoms") - start.size());
    ASSERT_EQ(symbols.count(name), 1U) << name;
    const int left = atomsOn(typed.left)[symbols.at(name)];
    const int right = atomsOn(typed.right)[symbols.at(name)];
    EXPECT_NE(left, right) << sentence;
    EXPECT_EQ(sentence, start + name + " atoms: " + std::to_string(left) + " on the left, " +
                            std::to_string(right) + " on the right.");
}

TEST(NeutralisationExerciseTest, NoOtherCoefficientIsCorrect)
{
    for (const Exercise& exercise : everyExercise()) {
        const Equation& equation = *exercise.equation;
        const std::size_t species = equation.left.size() + equation.right.size();
        for (std::size_t chosen = 0; chosen < species; ++chosen) {
            for (int coefficient = 1; coefficient <= 12; ++coefficient) {
                Equation typed = equation;
                int& changed = chosen < equation.left.size()
                                   ? typed.left[chosen].first
                                   : typed.right[chosen - equation.left.size()].first;
                if (changed == coefficient) {
                    continue;
                }
                changed = coefficient;
                const std::string text = lesson::textOf(typed);
                const Mark mark = markEquation(answerOf(exercise), text);
                EXPECT_EQ(mark.verdict, Verdict::slip) << text;
                expectTrueCounts(typed, mark);
            }
        }
    }
}

// No answer to one exercise is marked as right for another.
TEST(NeutralisationExerciseTest, OtherKeysAreNotCorrect)
{
    const std::vector<Exercise> all = everyExercise();
    for (const Exercise& exercise : all) {
        for (const Exercise& other : all) {
            if (keyOf(other) != keyOf(exercise)) {
                const Mark mark = markEquation(answerOf(exercise), keyOf(other));
                EXPECT_TRUE(mark.verdict == Verdict::wrong || mark.verdict == Verdict::slip)
                    << keyOf(other) << " for " << keyOf(exercise);
            }
        }
    }
}

} // namespace

} // namespace lesson
