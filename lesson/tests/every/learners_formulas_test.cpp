// The ways on which learners miss a formula, an ion, a precipitate or an equation: each is told
// what went wrong.

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "lesson/tests/every/learners.hpp"

namespace
{

using Text = std::optional<std::string>;

Text when(bool isThere, const std::string& text)
{
    return isThere ? Text(text) : std::nullopt;
}

// Unless it is the answer itself.
Text other(const Asked& asked, const std::string& text)
{
    return when(text != asked.keyText(), text);
}

std::string inLowerCase(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return text;
}

std::string inCapitals(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
    return text;
}

std::string replaced(std::string text, const std::string& part, const std::string& by)
{
    for (std::size_t at = text.find(part); at != std::string::npos;
         at = text.find(part, at + by.size())) {
        text.replace(at, part.size(), by);
    }
    return text;
}

struct Ion {
    std::string formula;
    std::string name;
    int charge = 0;
};

Ion ionAt(const Asked& asked, std::size_t i)
{
    const Json& given = asked.exercise["given"][i];
    return {given["ion"], given["name"], std::stoi(given["charge"].get<std::string>())};
}

bool isGroup(const Ion& ion)
{
    return std::count_if(ion.formula.begin(), ion.formula.end(), [](unsigned char c) {
               return std::isupper(c) != 0 || std::isdigit(c) != 0;
           }) > 1;
}

// "(SO4)3", "Fe2", "Na"
std::string times(const Ion& ion, int count)
{
    const std::string number = std::to_string(count);
    return count == 1     ? ion.formula
           : isGroup(ion) ? "(" + ion.formula + ")" + number
                          : ion.formula + number;
}

// Cation and anion as often as their charges tell.
std::string salt(const Ion& cation, const Ion& anion)
{
    int cations = -anion.charge;
    int anions = cation.charge;
    for (int i = 3; i > 1; --i) {
        if (cations % i == 0 && anions % i == 0) {
            cations /= i;
            anions /= i;
        }
    }
    return times(cation, cations) + times(anion, anions);
}

int countOf(const Ion& ion, const Ion& otherIon)
{
    const int a = std::abs(otherIon.charge);
    const int b = std::abs(ion.charge);
    return a == b ? 1 : a;
}

// The charge as it is typed: "", "-", "2-".
std::string chargeText(int charge)
{
    const std::string size = std::abs(charge) == 1 ? "" : std::to_string(std::abs(charge));
    return charge == 0 ? "" : size + (charge > 0 ? "+" : "-");
}

Ion with(Ion ion, const std::string& formula, int charge)
{
    ion.formula = formula;
    ion.charge = charge;
    return ion;
}

// ------------------------------------------------------------------------ formulas of compounds

struct Pair {
    Ion cation;
    Ion anion;
};

Route saltRoute(const char* name, Text (*way)(const Pair&), std::vector<const char*> sentences)
{
    return {name,
            [way](const Asked& asked) -> Text {
                const Text typed = way({ionAt(asked, 0), ionAt(asked, 1)});
                return typed ? other(asked, *typed) : std::nullopt;
            },
            std::move(sentences)};
}

// By anion: what its name is taken for.
struct Taken {
    const char* anion;
    const char* formula;
    int charge;
};

Text withAnion(const Pair& pair, const std::vector<Taken>& rows)
{
    for (const Taken& row : rows) {
        if (pair.anion.formula == row.anion) {
            return salt(pair.cation, with(pair.anion, row.formula, row.charge));
        }
    }
    return std::nullopt;
}

Text withCationCharge(const Pair& pair, int charge)
{
    return salt(with(pair.cation, pair.cation.formula, charge), pair.anion);
}

Text guessedSymbol(const Pair& pair)
{
    static const std::map<std::string, std::string> guesses = {
        {"Na", "S"},  {"K", "P"},   {"Ag", "Si"}, {"Fe", "Ir"}, {"Pb", "Le"},
        {"Sn", "Ti"}, {"Cu", "Co"}, {"Mn", "Mg"}, {"Mg", "Mn"}, {"Co", "CO"},
    };
    const auto guess = guesses.find(pair.cation.formula);
    return guess == guesses.end()
               ? Text()
               : salt(with(pair.cation, guess->second, pair.cation.charge), pair.anion);
}

bool hasNumeral(const Pair& pair)
{
    return pair.cation.name.find('(') != std::string::npos;
}

std::vector<Route> saltRoutes()
{
    using P = const Pair&;
    const char* const charges = "charges";
    const char* const ending = "The ending tells you";
    const char* const numeral = "Roman numeral";
    return {
        {"in small letters",
         [](const Asked& asked) { return other(asked, inLowerCase(asked.keyText())); },
         {"Check the capitals"}},
        {"in capitals",
         [](const Asked& asked) { return other(asked, inCapitals(asked.keyText())); },
         {"Check the capitals"}},
        {"a zero for the O",
         [](const Asked& asked) { return other(asked, replaced(asked.keyText(), "O", "0")); },
         {"zero"}},
        saltRoute("one of each",
                  [](P p) {
                      return when(p.cation.charge != -p.anion.charge,
                                  p.cation.formula + p.anion.formula);
                  },
                  {charges}),
        saltRoute("numbers exchanged",
                  [](P p) {
                      return when(p.cation.charge != -p.anion.charge,
                                  times(p.cation, countOf(p.anion, p.cation)) +
                                      times(p.anion, countOf(p.cation, p.anion)));
                  },
                  {charges, numeral}),
        saltRoute("not simplified",
                  [](P p) {
                      return when(p.cation.charge == -p.anion.charge && p.cation.charge > 1,
                                  times(p.cation, p.cation.charge) +
                                      times(p.anion, p.cation.charge));
                  },
                  {"Simplify"}),
        saltRoute("charges left in",
                  [](P p) {
                      return Text(p.cation.formula + "^" + chargeText(p.cation.charge) +
                                  p.anion.formula + "^" + chargeText(p.anion.charge));
                  },
                  {"leave out the charges"}),
        saltRoute("no bracket",
                  [](P p) {
                      const std::string whole = salt(p.cation, p.anion);
                      return when(whole.find('(') != std::string::npos,
                                  replaced(replaced(whole, "(", ""), ")", ""));
                  },
                  {"What does the small number multiply?", "bracket"}),
        saltRoute("a bracket around one",
                  [](P p) {
                      return when(isGroup(p.anion) && p.anion.formula != "CH3COO" &&
                                      countOf(p.anion, p.cation) == 1,
                                  times(p.cation, countOf(p.cation, p.anion)) + "(" +
                                      p.anion.formula + ")");
                  },
                  {"bracket"}),
        saltRoute("-ate for -ide",
                  [](P p) {
                      return withAnion(p, {{"S", "SO4", -2}, {"N", "NO3", -1}, {"P", "PO4", -3}});
                  },
                  {ending}),
        saltRoute("-ide for -ate",
                  [](P p) {
                      return withAnion(p, {{"SO4", "S", -2}, {"NO3", "N", -3}, {"PO4", "P", -3}});
                  },
                  {ending}),
        saltRoute(
            "-ite for -ate",
            [](P p) {
                return withAnion(p, {{"SO4", "SO3", -2}, {"NO3", "NO2", -1}, {"PO4", "PO3", -3}});
            },
            {"-ite or -ate"}),
        saltRoute("hydrogen in it",
                  [](P p) {
                      return withAnion(
                          p, {{"SO4", "HSO4", -1}, {"CO3", "HCO3", -1}, {"PO4", "HPO4", -2}});
                  },
                  {"two different ions"}),
        saltRoute("two hydrogens in it",
                  [](P p) {
                      return withAnion(p, {{"PO4", "H2PO4", -1}});
                  },
                  {"different ions"}),
        saltRoute("hydrogen left out",
                  [](P p) {
                      return withAnion(p, {{"HCO3", "CO3", -2}});
                  },
                  {"two different ions"}),
        saltRoute("ammonia",
                  [](P p) {
                      return when(p.cation.formula == "NH4",
                                  salt(with(p.cation, "NH3", 1), p.anion));
                  },
                  {"That is ammonia"}),
        saltRoute("a symbol from the name", guessedSymbol, {"Check this symbol"}),
        saltRoute("numeral as a small number",
                  [](P p) {
                      return when(hasNumeral(p),
                                  times(p.cation, p.cation.charge) + p.anion.formula);
                  },
                  {numeral, "Simplify", charges}),
        saltRoute("another oxidation state",
                  [](P p) {
                      static const std::map<std::string, int> others = {
                          {"Fe2", 3}, {"Fe3", 2}, {"Cu2", 1}, {"Mn2", 4}, {"Sn2", 4},
                          {"Pb2", 4}, {"Cr3", 2}, {"Co2", 3}, {"Ni2", 3},
                      };
                      const std::string key = p.cation.formula + std::to_string(p.cation.charge);
                      return hasNumeral(p) ? withCationCharge(p, others.at(key)) : Text();
                  },
                  {numeral}),
        saltRoute("numeral left in",
                  [](P p) {
                      const std::size_t at = p.cation.name.find('(');
                      return at == std::string::npos
                                 ? Text()
                                 : salt(with(p.cation, p.cation.formula + p.cation.name.substr(at),
                                             p.cation.charge),
                                        p.anion);
                  },
                  {numeral}),
    };
}

TEST(LearnersFormulasTest, MistakesInFormulasOfSimpleIonsAreTold)
{
    checkRoutes("compound-formula:1", saltRoutes());
}

TEST(LearnersFormulasTest, MistakesInFormulasOfGroupsAreTold)
{
    checkRoutes("compound-formula:2", saltRoutes());
}

TEST(LearnersFormulasTest, MistakesInFormulasWithNumeralsAreTold)
{
    checkRoutes("compound-formula:3", saltRoutes());
}

// ----------------------------------------------------------------------------------------- ions

std::string ionText(const std::string& formula, int charge)
{
    return formula + (charge == 0 ? "" : "^" + chargeText(charge));
}

Route ionRoute(const char* name, Text (*way)(const Ion&), std::vector<const char*> sentences)
{
    return {name,
            [way](const Asked& asked) -> Text {
                const Text typed = way(ionAt(asked, 0));
                return typed ? other(asked, *typed) : std::nullopt;
            },
            std::move(sentences)};
}

// Where the first number of a formula stands.
std::size_t firstNumber(const std::string& formula)
{
    return formula.find_first_of("0123456789");
}

// With one oxygen more or fewer behind a central atom: "SO4" as "SO5", "NO" is left out.
Text withOxygens(const Ion& ion, int more)
{
    const std::size_t at = ion.formula.find('O');
    const bool isLast = at != std::string::npos && at + 2 == ion.formula.size() && at > 0;
    if (!isLast || std::isdigit(static_cast<unsigned char>(ion.formula.back())) == 0) {
        return std::nullopt;
    }
    const int count = ion.formula.back() - '0' + more;
    return ionText(ion.formula.substr(0, at + 1) + std::to_string(count), ion.charge);
}

std::vector<Route> ionRoutes()
{
    using I = const Ion&;
    const char* const above = "The charge stands above, not below";
    return {
        ionRoute("no charge", [](I ion) { return Text(ion.formula); }, {"An ion carries a charge"}),
        ionRoute("the other sign", [](I ion) { return Text(ionText(ion.formula, -ion.charge)); },
                 {"positive or negative"}),
        ionRoute("one charge too many",
                 [](I ion) {
                     return Text(ionText(ion.formula, ion.charge + (ion.charge > 0 ? 1 : -1)));
                 },
                 {"charge"}),
        ionRoute("a sign without its number",
                 [](I ion) {
                     return when(std::abs(ion.charge) > 1,
                                 ionText(ion.formula, ion.charge > 0 ? 1 : -1));
                 },
                 {"charge"}),
        ionRoute("a charge without its sign",
                 [](I ion) {
                     return when(std::abs(ion.charge) > 1,
                                 ion.formula + "^" + std::to_string(std::abs(ion.charge)));
                 },
                 {"A charge has a sign"}),
        ionRoute("the charge's number lowered",
                 [](I ion) {
                     return when(std::abs(ion.charge) > 1,
                                 ion.formula + "_" + std::to_string(std::abs(ion.charge)) + "^" +
                                     (ion.charge > 0 ? "+" : "-"));
                 },
                 {above}),
        ionRoute("the whole charge lowered",
                 [](I ion) {
                     return when(std::abs(ion.charge) > 1,
                                 ion.formula + "_{" + chargeText(ion.charge) + "}");
                 },
                 {above}),
        ionRoute("the number of atoms raised",
                 [](I ion) {
                     const std::size_t at = firstNumber(ion.formula);
                     return at == std::string::npos || at + 1 != ion.formula.size()
                                ? Text()
                                : ion.formula.substr(0, at) + "^" + ion.formula.substr(at) + "^" +
                                      chargeText(ion.charge);
                 },
                 {"Which number stands below, which above?", above, "charge"}),
        ionRoute("an oxygen too many", [](I ion) { return withOxygens(ion, 1); }, {"oxygen"}),
        ionRoute("an oxygen too few", [](I ion) { return withOxygens(ion, -1); },
                 {"oxygen", "-ite or -ate"}),
        {"in small letters",
         [](const Asked& asked) { return other(asked, inLowerCase(asked.keyText())); },
         {"Check the capitals"}},
        {"in capitals",
         [](const Asked& asked) { return other(asked, inCapitals(asked.keyText())); },
         {"Check the capitals"}},
        ionRoute("ammonia", [](I ion) { return when(ion.formula == "NH4", std::string("NH3^+")); },
                 {"That is ammonia"}),
        ionRoute("hydroxide for hydrogen",
                 [](I ion) { return when(ion.formula == "H", std::string("OH^-")); },
                 {"hydroxide", "positive or negative"}),
        ionRoute("the acid",
                 [](I ion) {
                     return when(
                         ion.charge < 0 && isGroup(ion) && ion.formula != "OH" &&
                             ion.formula.find("CH") == std::string::npos,
                         "H" + (ion.charge == -1 ? std::string() : std::to_string(-ion.charge)) +
                             ion.formula);
                 },
                 {"acid", "An ion carries a charge"}),
        ionRoute("-ide for -ate and -ite",
                 [](I ion) {
                     static const std::map<std::string, std::string> roots = {
                         {"SO4", "S^2-"}, {"SO3", "S^2-"}, {"NO3", "N^3-"},
                         {"NO2", "N^3-"}, {"PO4", "P^3-"},
                     };
                     const auto root = roots.find(ion.formula);
                     return root == roots.end() ? Text() : Text(root->second);
                 },
                 {"The ending tells you", "-ite or -ate"}),
        ionRoute("-ate for -ide",
                 [](I ion) {
                     static const std::map<std::string, std::string> roots = {
                         {"S", "SO4^2-"},
                         {"N", "NO3^-"},
                         {"P", "PO4^3-"},
                         {"Cl", "ClO3^-"},
                     };
                     const auto root = roots.find(ion.formula);
                     return root == roots.end() ? Text() : Text(root->second);
                 },
                 {"The ending tells you"}),
    };
}

TEST(LearnersFormulasTest, MistakesInIonsOfOneAtomAreTold)
{
    checkRoutes("ion-formula:1", ionRoutes());
}

TEST(LearnersFormulasTest, MistakesInCommonGroupsAreTold)
{
    checkRoutes("ion-formula:2", ionRoutes());
}

TEST(LearnersFormulasTest, MistakesInAllIonsAreTold)
{
    checkRoutes("ion-formula:3", ionRoutes());
}

// ------------------------------------------------------------------------------------ solubility

std::vector<Route> yesOrNoRoutes()
{
    return {{"the opposite",
             [](const Asked& asked) { return Text(asked.keyText() == "yes" ? "no" : "yes"); },
             {"soluble"}}};
}

TEST(LearnersFormulasTest, MistakesInSolubilityByTheRuleAreTold)
{
    checkRoutes("solubility:1", yesOrNoRoutes());
}

TEST(LearnersFormulasTest, MistakesInSolubilityWithExceptionsAreTold)
{
    checkRoutes("solubility:2", yesOrNoRoutes());
}

// The four ions of two solutions: those of the first, and those of the second.
struct Mixture {
    std::string dissolved[2];
    std::string formed[2];
};

Mixture mixtureOf(const Asked& asked)
{
    const Ion a = ionAt(asked, 0);
    const Ion x = ionAt(asked, 1);
    const Ion b = ionAt(asked, 2);
    const Ion y = ionAt(asked, 3);
    return {{salt(a, x), salt(b, y)}, {salt(a, y), salt(b, x)}};
}

TEST(LearnersFormulasTest, MistakesInPrecipitatesAreTold)
{
    const char* const stays = "stays in solution";
    checkRoutes("solubility:3",
                {
                    {"none for a precipitate",
                     [](const Asked& asked) { return other(asked, "none"); },
                     {"new pair"}},
                    {"the first new pair",
                     [](const Asked& asked) { return other(asked, mixtureOf(asked).formed[0]); },
                     {stays}},
                    {"the second new pair",
                     [](const Asked& asked) { return other(asked, mixtureOf(asked).formed[1]); },
                     {stays}},
                    {"what was dissolved",
                     [](const Asked& asked) { return other(asked, mixtureOf(asked).dissolved[0]); },
                     {"dissolved at the start"}},
                    {"both new pairs",
                     [](const Asked& asked) {
                         const Mixture mixture = mixtureOf(asked);
                         return Text(mixture.formed[0] + " + " + mixture.formed[1]);
                     },
                     {"precipitate", "soluble"}},
                    {"one of each of its ions",
                     [](const Asked& asked) -> Text {
                         const Ion a = ionAt(asked, 0);
                         const Ion y = ionAt(asked, 3);
                         const bool isPrecipitate = asked.keyText() == salt(a, y);
                         return isPrecipitate ? other(asked, a.formula + y.formula) : std::nullopt;
                     },
                     {"charges"}},
                });
}

// ------------------------------------------------------------------------------------- equations

struct Species {
    int count;
    std::string formula;
};
using Side = std::vector<Species>;

Side sideOf(const Asked& asked, const char* side)
{
    Side species;
    for (const Json& one : asked.exercise["equation"][side]) {
        species.push_back({std::stoi(one[0].get<std::string>()), one[1]});
    }
    return species;
}

std::string textOf(const Side& side)
{
    std::string text;
    for (const Species& one : side) {
        text += text.empty() ? "" : " + ";
        text += (one.count == 1 ? "" : std::to_string(one.count)) + one.formula;
    }
    return text;
}

struct Equation {
    Side left;
    Side right;
};

std::string textOf(const Equation& equation)
{
    return textOf(equation.left) + " -> " + textOf(equation.right);
}

Equation scaled(Equation equation, int (*scale)(int))
{
    for (Side* const side : {&equation.left, &equation.right}) {
        for (Species& one : *side) {
            one.count = scale(one.count);
        }
    }
    return equation;
}

// The product of this formula, or null.
Species* find(Side& side, const std::string& formula)
{
    const auto found = std::find_if(side.begin(), side.end(),
                                    [&](const Species& one) { return one.formula == formula; });
    return found == side.end() ? nullptr : &*found;
}

void remove(Side& side, const std::string& formula)
{
    side.erase(std::remove_if(side.begin(), side.end(),
                              [&](const Species& one) { return one.formula == formula; }),
               side.end());
}

Route equationRoute(const char* name, Text (*way)(Equation), std::vector<const char*> sentences)
{
    return {name,
            [way](const Asked& asked) -> Text {
                const Text typed = way({sideOf(asked, "left"), sideOf(asked, "right")});
                return typed ? other(asked, *typed) : std::nullopt;
            },
            std::move(sentences)};
}

Text without(Equation equation, const std::string& formula)
{
    const std::size_t before = equation.right.size();
    remove(equation.right, formula);
    return when(equation.right.size() < before, textOf(equation));
}

Text withProduct(Equation equation, const std::string& formula, const std::string& by)
{
    Species* const product = find(equation.right, formula);
    if (product == nullptr) {
        return std::nullopt;
    }
    product->formula = by;
    return textOf(equation);
}

Text withCarbonicAcid(Equation equation)
{
    Species* const gas = find(equation.right, "CO2");
    if (gas == nullptr) {
        return std::nullopt;
    }
    gas->formula = "H2CO3";
    remove(equation.right, "H2O");
    return textOf(equation);
}

// Every small number behind a bracket or an element of the salt left out: "AlSO4", "CaCl".
Text withOneOfEachIon(Equation equation)
{
    std::string& formula = equation.right.front().formula;
    const std::size_t open = formula.find('(');
    if (open != std::string::npos) {
        const std::size_t close = formula.find(')');
        formula.erase(close, 2); // with the number behind it
        formula.erase(open, 1);
    } else if (formula.size() > 2 &&
               std::isdigit(static_cast<unsigned char>(formula.back())) != 0 &&
               formula.find('O') == std::string::npos) {
        formula.pop_back();
    } else {
        return std::nullopt;
    }
    return textOf(equation);
}

// "2HCl" as "H2Cl2"
Text withNumberInside(Equation equation)
{
    Species& acid = equation.left.front();
    if (acid.formula != "HCl" && acid.formula != "HBr") {
        return std::nullopt;
    }
    const std::string number = std::to_string(acid.count);
    const bool isMany = acid.count > 1;
    acid.formula = "H" + number + acid.formula.substr(1) + number;
    acid.count = 1;
    return when(isMany, textOf(equation));
}

Text withAcidSalt(Equation equation)
{
    const Species& acid = equation.left.front();
    const Species& base = equation.left.back();
    const bool isOneStep =
        acid.formula == "H2SO4" && (base.formula == "NaOH" || base.formula == "KOH");
    return when(isOneStep, acid.formula + " + " + base.formula + " -> " +
                               base.formula.substr(0, base.formula.find('O')) + "HSO4 + H2O");
}

std::vector<Route> equationRoutes()
{
    using E = Equation;
    return {
        equationRoute("not balanced",
                      [](E e) { return Text(textOf(scaled(e, [](int) { return 1; }))); },
                      {"Count the"}),
        equationRoute("doubled",
                      [](E e) { return Text(textOf(scaled(e, [](int n) { return 2 * n; }))); },
                      {"Use the smallest whole numbers"}),
        equationRoute("the water not balanced",
                      [](E e) {
                          Species* const water = find(e.right, "H2O");
                          const bool isThere = water != nullptr && water->count > 1;
                          if (isThere) {
                              water->count = 1;
                          }
                          return when(isThere, textOf(e));
                      },
                      {"Count the"}),
        equationRoute("one acid too many",
                      [](E e) {
                          ++e.left.front().count;
                          return Text(textOf(e));
                      },
                      {"Count the"}),
        equationRoute("no water", [](E e) { return without(e, "H2O"); }, {"ne more product"}),
        equationRoute("no carbon dioxide", [](E e) { return without(e, "CO2"); },
                      {"ne more product"}),
        equationRoute("carbonic acid", withCarbonicAcid, {"falls apart"}),
        equationRoute("hydrogen for water", [](E e) { return withProduct(e, "H2O", "H2"); },
                      {"Acid and metal give hydrogen"}),
        equationRoute("one of each ion in the salt", withOneOfEachIon, {"is not the salt"}),
        equationRoute("a coefficient inside a formula", withNumberInside, {"is not the acid"}),
        equationRoute("an acid salt", withAcidSalt, {"True with less base"}),
        equationRoute("no arrow", [](E e) { return Text(textOf(e.left) + ", " + textOf(e.right)); },
                      {"arrow", "I can't read this part"}),
        {"in small letters",
         [](const Asked& asked) { return other(asked, inLowerCase(asked.keyText())); },
         {"Check the capitals"}},
        {"in capitals",
         [](const Asked& asked) { return other(asked, inCapitals(asked.keyText())); },
         {"Check the capitals"}},
        {"zeros for the Os",
         [](const Asked& asked) { return other(asked, replaced(asked.keyText(), "O", "0")); },
         {"zero"}},
        {"ions", [](const Asked&) { return Text("H+ + OH- -> H2O"); }, {"not ions"}},
        {"names",
         [](const Asked& asked) {
             const Json& given = asked.exercise["given"];
             return Text(given[0]["name"].get<std::string>() + " + " +
                         given[1]["name"].get<std::string>() + " -> " +
                         given[2]["name"].get<std::string>() + " + water");
         },
         {"Those are names"}},
    };
}

TEST(LearnersFormulasTest, MistakesInNeutralisationsOfHydroxidesAreTold)
{
    checkRoutes("neutralisation:1", equationRoutes());
}

TEST(LearnersFormulasTest, MistakesInNeutralisationsOfOxidesAndCarbonatesAreTold)
{
    checkRoutes("neutralisation:2", equationRoutes());
}

TEST(LearnersFormulasTest, MistakesInNeutralisationsWithAThreeOrASixAreTold)
{
    checkRoutes("neutralisation:3", equationRoutes());
}

} // namespace
