#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <iostream>
#include <string>
#include <variant>
#include <vector>

#include "lesson/chemistry/neutralisation.hpp"
#include "lesson/chemistry/pairs_not_asked.hpp"
#include "lesson/kinds/kinds.hpp"
#include "lesson/marking/equation.hpp"
#include "lesson/tests/support/plain.hpp"

// The wrong routes that learners take: each is typed for many exercises, and has to get a sentence
// of its own.
namespace lesson
{

namespace
{

// What a route makes of an exercise: the text to type, empty where the route does not lead astray
// or is not open, and how the sentence has to begin and end.
struct Typed {
    std::string text;
    std::string begin;
    std::string end;
};

struct Question {
    const Exercise& exercise;
    const EquationAnswer& answer;
    const Equation& equation;
    const IonRow& cation;
    const IonRow& anion; // of the acid
    std::string acid;
    std::string base;
    std::string salt;
};

Question questionOf(const Exercise& exercise)
{
    const auto& answer = std::get<EquationAnswer>(exercise.answer);
    const Equation& equation = *exercise.equation;
    return {exercise,
            answer,
            equation,
            *answer.base.cation,
            anionOf(*answer.acid),
            equation.left[0].second,
            equation.left[1].second,
            equation.right[0].second};
}

std::string keyOf(const Question& q)
{
    return textOf(q.equation);
}

bool isAmmonia(const Question& q)
{
    return q.answer.base.anion == nullptr;
}

// With ammonia the salt is the only product.
bool givesWater(const Question& q)
{
    return q.equation.right.size() > 1;
}

bool givesCarbonDioxide(const Question& q)
{
    return q.equation.right.back().second == "CO2";
}

Equation withoutCoefficients(Equation equation)
{
    for (auto* const side : {&equation.left, &equation.right}) {
        for (auto& term : *side) {
            term.first = 1;
        }
    }
    return equation;
}

std::string textWith(const Question& q, const std::string& acid, const std::string& base,
                     const std::string& salt)
{
    Equation equation = withoutCoefficients(q.equation);
    equation.left[0].second = acid;
    equation.left[1].second = base;
    equation.right[0].second = salt;
    return textOf(equation);
}

std::string oneToOne(const IonRow& cation, const IonRow& anion)
{
    return std::string(cation.formula) + std::string(anion.formula);
}

// ---- The routes

Typed saltOneToOne(const Question& q)
{
    const std::string wrong = oneToOne(q.cation, q.anion);
    const bool isOpen = q.cation.charge + q.anion.charge != 0;
    return {isOpen ? textWith(q, q.acid, q.base, wrong) : "", wrong + " is not the salt.",
            "Check the charges."};
}

Typed baseOneToOne(const Question& q)
{
    if (isAmmonia(q)) {
        return {};
    }
    const IonRow& anion = *q.answer.base.anion;
    const std::string wrong = oneToOne(q.cation, anion);
    const bool isOpen = q.cation.charge + anion.charge != 0;
    return {isOpen ? textWith(q, q.acid, wrong, q.salt) : "", wrong + " is not the base.",
            "Check the charges."};
}

Typed saltUpsideDown(const Question& q)
{
    const int cations = q.cation.charge;
    const int anions = -q.anion.charge;
    const auto part = [](const IonRow& ion, int times) {
        const std::string once(ion.formula);
        return times == 1    ? once
               : ion.isGroup ? "(" + once + ")" + std::to_string(times)
                             : once + std::to_string(times);
    };
    const std::string wrong = part(q.cation, cations) + part(q.anion, anions);
    return {cations != anions ? textWith(q, q.acid, q.base, wrong) : "",
            wrong + " is not the salt.", "Check the charges."};
}

Typed withoutBracketsInTheBase(const Question& q)
{
    std::string wrong = q.base;
    for (const char bracket : {'(', ')'}) {
        wrong.erase(std::remove(wrong.begin(), wrong.end(), bracket), wrong.end());
    }
    return {wrong != q.base ? textWith(q, q.acid, wrong, q.salt) : "", wrong + " is not the base.",
            "What does the small number multiply?"};
}

Typed carbonDioxideForgotten(const Question& q)
{
    Equation wrong = q.equation;
    wrong.right.pop_back();
    return {givesCarbonDioxide(q) ? textOf(wrong) : "", "One more product.", ""};
}

Typed waterForgotten(const Question& q)
{
    if (!givesWater(q)) {
        return {};
    }
    Equation wrong = q.equation;
    wrong.right.erase(wrong.right.begin() + 1);
    return {textOf(wrong), "One more product.", ""};
}

Typed hydrogenForWater(const Question& q)
{
    if (!givesWater(q)) {
        return {};
    }
    Equation wrong = q.equation;
    wrong.right[1].second = "H2";
    return {textOf(wrong), "Acid and metal give hydrogen", "not acid and base."};
}

Typed metalForTheBase(const Question& q)
{
    if (q.cation.isGroup) {
        return {};
    }
    return {q.acid + " + " + std::string(q.cation.formula) + " -> " + q.salt + " + H2",
            "Acid and metal give hydrogen", "not acid and base."};
}

Typed oxygenBesides(const Question& q)
{
    return {textOf(q.equation) + " + O2", "O2 is an element.", "Only compounds form here."};
}

Typed carbonicAcid(const Question& q)
{
    if (!givesCarbonDioxide(q)) {
        return {};
    }
    Equation wrong = q.equation;
    wrong.right.pop_back();
    wrong.right[1].second = "H2CO3";
    return {textOf(wrong), "It falls apart into water and carbon", ""};
}

Typed notBalanced(const Question& q)
{
    const std::string wrong = textOf(withoutCoefficients(q.equation));
    return {wrong != keyOf(q) ? wrong : "", "Count the ", " on the right."};
}

std::string multiplied(const Equation& equation, const std::string& divisor, int factor)
{
    std::string text;
    for (const auto* const side : {&equation.left, &equation.right}) {
        for (const auto& [coefficient, formula] : *side) {
            text += (&formula == &side->front().second ? "" : " + ") +
                    std::to_string(factor * coefficient) + divisor + " " + formula;
        }
        text += side == &equation.left ? " -> " : "";
    }
    return text;
}

Typed doubled(const Question& q)
{
    return {multiplied(q.equation, "", 2), "Balanced. Use the smallest whole numbers.", ""};
}

Typed halved(const Question& q)
{
    return {multiplied(q.equation, "/2", 1), "Balanced. Use the smallest whole numbers.", ""};
}

// Another base of the same metal.
Typed otherBase(const Question& q, const char* anionName)
{
    if (isAmmonia(q)) {
        return {};
    }
    const IonRow& anion = *findIon(anionName);
    const IonRow& right = *q.answer.base.anion;
    if (&anion == &right || whyFormulaIsNotAsked({&q.cation, &anion})) {
        return {};
    }
    const std::string wrong = compoundFormula(q.cation, anion);
    const std::string text = textOf(neutralisationOf(*q.answer.acid, {&q.cation, &anion}));
    const auto are = [&](std::string_view one, std::string_view other) {
        return (anion.formula == one && right.formula == other) ||
               (anion.formula == other && right.formula == one);
    };
    if (are("CO3", "HCO3")) {
        return {text, "Carbonate and hydrogencarbonate are two different ions.", ""};
    }
    if (are("O", "OH")) {
        return {text, "Oxide and hydroxide are two different ions.", ""};
    }
    return {text, wrong + " is " + british(nameOf(q.cation, anion)) + ".",
            "Read again which base is asked for."};
}

Typed oxideForTheBase(const Question& q)
{
    return otherBase(q, "oxide");
}
Typed hydroxideForTheBase(const Question& q)
{
    return otherBase(q, "hydroxide");
}
Typed carbonateForTheBase(const Question& q)
{
    return otherBase(q, "carbonate");
}
Typed hydrogencarbonateForTheBase(const Question& q)
{
    return otherBase(q, "hydrogencarbonate");
}

Typed anotherAcid(const Question& q)
{
    const AcidRow& other = *findAcid(q.acid == "HNO3" ? "HCl" : "HNO3");
    return {textOf(neutralisationOf(other, q.answer.base)),
            std::string(other.formula) + " is " + british(nameOf(other)) + ".",
            "Read again which acid is asked for."};
}

Typed acidWithOneHydrogenMore(const Question& q)
{
    const std::string wrong = q.acid[0] != 'H'   ? ""
                              : q.acid[1] == '2' ? "H" + q.acid.substr(2)
                              : q.acid[1] == '3' ? "H2" + q.acid.substr(2)
                                                 : "H2" + q.acid.substr(1);
    return {wrong.empty() ? "" : textWith(q, wrong, q.base, q.salt), wrong + " is not the acid.",
            "Check the charges."};
}

Typed elementForTheAcid(const Question& q)
{
    const std::string wrong = std::string(q.anion.formula) + "2";
    return {q.anion.isGroup ? "" : textWith(q, wrong, q.base, q.salt), wrong + " is an element.",
            "Acid and base are compounds."};
}

Typed acidSalt(const Question& q, bool isBalanced)
{
    const bool isSulfate = q.acid == "H2SO4";
    if (!isSulfate && q.acid != "H3PO4") {
        return {};
    }
    const IonRow& anion = rowOf(isSulfate ? Ion::hydrogensulfate : Ion::dihydrogenphosphate);
    Equation wrong = neutralisationTo(anion, *q.answer.acid, q.answer.base);
    if (isBalanced) {
        return {textOf(wrong), "True with less base. Neutralise completely.", ""};
    }
    (wrong.right.size() > 1 ? wrong.right[1] : wrong.left[1]).first += 1;
    return {textOf(wrong), wrong.right[0].second + " is an acid salt.", "Neutralise completely."};
}

Typed acidSaltBalanced(const Question& q)
{
    return acidSalt(q, true);
}
Typed acidSaltNotBalanced(const Question& q)
{
    return acidSalt(q, false);
}

Typed netIons(const Question& q)
{
    const char* const anion = givesCarbonDioxide(q) ? "CO3^2-" : "OH-";
    return {std::string("H+ + ") + anion + " -> H2O" + (givesCarbonDioxide(q) ? " + CO2" : ""),
            "Write whole formulas here, not ions.", ""};
}

Typed allIons(const Question& q)
{
    const std::string cation = std::string(q.cation.formula) + "^" + chargeText(q.cation);
    const std::string anion = std::string(q.anion.formula) + "^" + chargeText(q.anion);
    return {"H+ + " + anion + " + " + q.base + " -> " + cation + " + " + anion + " + H2O",
            "Write whole formulas here, not ions.", ""};
}

std::string namesOf(const Question& q, const Language& language)
{
    return nameIn(language, nameOf(*q.answer.acid)) + " + " +
           nameIn(language, nameOf(q.answer.base)) + " -> " +
           nameIn(language, nameOf(q.cation, q.anion)) + (givesWater(q) ? " + water" : "") +
           (givesCarbonDioxide(q) ? " + carbon dioxide" : "");
}

Typed britishNames(const Question& q)
{
    return {namesOf(q, britishEnglish()), "Those are names. Type formulas.", ""};
}
Typed americanNames(const Question& q)
{
    return {namesOf(q, americanEnglish()), "Those are names. Type formulas.", ""};
}

Typed smallLetters(const Question& q)
{
    std::string text = keyOf(q);
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return {text, "Check the capitals:", ""};
}

Typed zeroForOxygen(const Question& q)
{
    std::string text = keyOf(q);
    std::replace(text.begin(), text.end(), 'O', '0');
    return {text == keyOf(q) ? "" : text, "There is a zero where the letter O should be.", ""};
}

Typed arrowForgotten(const Question& q)
{
    std::string text = keyOf(q);
    text.replace(text.find("->"), 2, "+");
    return {text, "Put an arrow between the two sides.", ""};
}

Typed waterDissolved(const Question& q)
{
    if (!givesWater(q)) {
        return {};
    }
    Equation wrong = q.equation;
    wrong.right[1].second += "(aq)";
    return {textOf(wrong), "Check the state of H2O.", ""};
}

struct Route {
    const char* name;
    Typed (*take)(const Question& question);
};

// clang-format off
constexpr Route routes[] = {
    {"salt one to one", saltOneToOne},
    {"base one to one", baseOneToOne},
    {"charges as subscripts", saltUpsideDown},
    {"base without brackets", withoutBracketsInTheBase},
    {"carbon dioxide forgotten", carbonDioxideForgotten},
    {"water forgotten", waterForgotten},
    {"hydrogen for water", hydrogenForWater},
    {"metal for the base", metalForTheBase},
    {"oxygen besides", oxygenBesides},
    {"carbonic acid", carbonicAcid},
    {"not balanced", notBalanced},
    {"doubled", doubled},
    {"halved", halved},
    {"oxide for the base", oxideForTheBase},
    {"hydroxide for the base", hydroxideForTheBase},
    {"carbonate for the base", carbonateForTheBase},
    {"hydrogencarbonate for the base", hydrogencarbonateForTheBase},
    {"another acid", anotherAcid},
    {"hydrogens of the acid", acidWithOneHydrogenMore},
    {"element for the acid", elementForTheAcid},
    {"acid salt, balanced", acidSaltBalanced},
    {"acid salt, not balanced", acidSaltNotBalanced},
    {"net ions", netIons},
    {"all ions", allIons},
    {"British names", britishNames},
    {"American names", americanNames},
    {"small letters", smallLetters},
    {"zero for oxygen", zeroForOxygen},
    {"arrow forgotten", arrowForgotten},
    {"water dissolved", waterDissolved},
};
// clang-format on

bool endsWith(const std::string& text, const std::string& end)
{
    return text.size() >= end.size() &&
           text.compare(text.size() - end.size(), end.size(), end) == 0;
}

TEST(NeutralisationRoutesTest, EachWrongRouteGetsItsSentence)
{
    constexpr unsigned exercises = 300;
    for (const int level : {1, 2, 3}) {
        for (const Route& route : routes) {
            int open = 0;
            int told = 0;
            std::string missed;
            for (unsigned number = 1; number <= exercises; ++number) {
                const Exercise exercise = makeExercise({11, number, &neutralisationKind, level});
                const Question question = questionOf(exercise);
                const Typed typed = route.take(question);
                if (typed.text.empty()) {
                    continue;
                }
                ++open;
                const Mark mark = markEquation(question.answer, typed.text);
                const std::string sentence = plain(mark.sentence);
                const bool isTold = sentence.compare(0, typed.begin.size(), typed.begin) == 0 &&
                                    endsWith(sentence, typed.end);
                told += isTold ? 1 : 0;
                missed = isTold ? missed : typed.text + ": " + sentence;
            }
            std::cout << "neutralisation:" << level << " " << route.name << ": " << told << " of "
                      << open << "\n";
            EXPECT_EQ(told, open) << route.name << ", such as " << missed;
        }
    }
}

} // namespace

} // namespace lesson
