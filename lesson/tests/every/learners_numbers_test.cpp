// The ways on which learners miss a number, worked out from what is given: each is told what went
// wrong.

#include <gtest/gtest.h>

#include <cctype>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "lesson/tests/every/learners.hpp"
#include "lesson/tests/every/quantities.hpp"

namespace
{

using Value = std::optional<Exact>;

Value when(bool isThere, const Exact& value)
{
    return isThere ? Value(value) : std::nullopt;
}

// Parts of the sentences.
constexpr const char* smallNumbers = "The small numbers count atoms";
constexpr const char* bracketNumber = "The number after the bracket counts everything inside";
constexpr const char* waterNumber = "The number before H2O counts whole water molecules";
constexpr const char* dotAdds = "The dot adds the water";
constexpr const char* atomicNumbers = "not the atomic numbers";
constexpr const char* crystalWater = "The water in the crystals has mass too";
constexpr const char* anAmount = "That is an amount";
constexpr const char* howRelated = "Check how amount, concentration and volume are related";
constexpr const char* whichDivided = "Which is divided by which?";
constexpr const char* gramsInLitre = "That is in g/L";
constexpr const char* forOneLitre = "That is for one litre";
constexpr const char* oneMole = "One mole has the mass M";
constexpr const char* inALitre = "How many mL are in a litre?";
constexpr const char* wrongSize = "Right digits, wrong size.";
constexpr const char* millilitres = "mL or L?";
constexpr const char* largerOrSmaller = "Should the result be larger or smaller?";
constexpr const char* howManyTimes = "how many times the volume";
constexpr const char* partOfVolume = "the part of V2 that V1 is";
constexpr const char* wholeVolume = "V2 is the volume of the whole diluted solution";
constexpr const char* whichVolume = "Read again which volume is asked for";
constexpr const char* equationNumbers = "Look at the numbers in the equation";
constexpr const char* whoseVolume = "Which volume belongs to which solution?";
constexpr const char* ofTheKnown = "That is the amount of the known";
constexpr const char* ownVolume = "Use the volume of the unknown solution alone";
constexpr const char* roughTitre = "Leave the rough titre out of the mean";

// -------------------------------------------------------------------------------- molar masses

// One atom as a formula shows it: "O" of "Al2(SO4)3" has 4 of its own and 3 behind its bracket.
struct Atom {
    std::string symbol;
    int own = 1;
    int bracket = 1;
    bool isFirstInBracket = false;
    bool isLastInBracket = false;
    int water = 0; // the number before H2O, for its atoms
};

int numberAt(const std::string& text, std::size_t& i)
{
    int number = 0;
    while (i < text.size() && std::isdigit(static_cast<unsigned char>(text[i])) != 0) {
        number = 10 * number + (text[i++] - '0');
    }
    return number == 0 ? 1 : number;
}

std::vector<Atom> atomsOf(const std::string& formula)
{
    std::vector<Atom> atoms;
    std::size_t opened = 0;
    int water = 0;
    for (std::size_t i = 0; i < formula.size();) {
        const char c = formula[i++];
        if (c == '(') {
            opened = atoms.size();
        } else if (c == ')') {
            const int behind = numberAt(formula, i);
            for (std::size_t j = opened; j < atoms.size(); ++j) {
                atoms[j].bracket = behind;
            }
            atoms[opened].isFirstInBracket = true;
            atoms.back().isLastInBracket = true;
        } else if (c == '.') {
            water = numberAt(formula, i);
        } else {
            Atom atom;
            atom.symbol = c;
            while (i < formula.size() &&
                   std::islower(static_cast<unsigned char>(formula[i])) != 0) {
                atom.symbol += formula[i++];
            }
            atom.own = numberAt(formula, i);
            atom.water = water;
            atoms.push_back(atom);
        }
    }
    return atoms;
}

int atomicNumber(const std::string& symbol)
{
    // clang-format off
    static const std::map<std::string, int> numbers = {
        {"H", 1}, {"Li", 3}, {"C", 6}, {"N", 7}, {"O", 8}, {"F", 9}, {"Na", 11}, {"Mg", 12},
        {"Al", 13}, {"P", 15}, {"S", 16}, {"Cl", 17}, {"K", 19}, {"Ca", 20}, {"Cr", 24},
        {"Mn", 25}, {"Fe", 26}, {"Co", 27}, {"Ni", 28}, {"Cu", 29}, {"Zn", 30}, {"Br", 35},
        {"Ag", 47}, {"Sn", 50}, {"I", 53}, {"Ba", 56}, {"Pb", 82},
    };
    // clang-format on
    return numbers.at(symbol);
}

int timesOf(const Atom& atom)
{
    return atom.own * atom.bracket * (atom.water == 0 ? 1 : atom.water);
}

// The sum over the atoms, each as often as `times` tells.
Exact massBy(const std::string& formula, const std::function<int(const Atom&)>& times)
{
    Exact sum;
    for (const Atom& atom : atomsOf(formula)) {
        sum = sum + typedMolarMass(atom.symbol) * Exact(times(atom));
    }
    return sum;
}

std::string formulaOf(const Asked& asked)
{
    for (const Json& one : asked.exercise["given"]) {
        if (one.contains("compound")) {
            return one["compound"];
        }
    }
    return "";
}

bool isHydrate(const std::string& formula)
{
    return formula.find('.') != std::string::npos;
}

bool hasBracket(const std::string& formula)
{
    return formula.find('(') != std::string::npos;
}

// The ways to a wrong molar mass.
Value smallNumbersLeftOut(const std::string& formula)
{
    return massBy(formula, [](const Atom& atom) { return timesOf(atom) / atom.own; });
}

// The first small number of at least two, so that something is left of them.
Value firstNumberLeftOut(const std::string& formula)
{
    std::vector<Atom> atoms = atomsOf(formula);
    for (const Atom& atom : atoms) {
        if (atom.own > 1) {
            return typedMolarMass(formula) -
                   typedMolarMass(atom.symbol) * Exact((atom.own - 1) * timesOf(atom) / atom.own);
        }
    }
    return std::nullopt;
}

// "AlF3" as "(AlF)3", where its last number is the only one.
Value lastNumberForAll(const std::string& formula)
{
    const std::vector<Atom> atoms = atomsOf(formula);
    for (std::size_t i = 0; i + 1 < atoms.size(); ++i) {
        if (atoms[i].own > 1) {
            return std::nullopt;
        }
    }
    const int last = atoms.back().own;
    return when(!hasBracket(formula), massBy(formula, [last](const Atom&) { return last; }));
}

Value atomicNumbersAdded(const std::string& formula)
{
    Exact sum;
    for (const Atom& atom : atomsOf(formula)) {
        sum = sum + Exact(atomicNumber(atom.symbol)) * Exact(timesOf(atom));
    }
    return sum;
}

Value bracketLeftOut(const std::string& formula)
{
    return when(hasBracket(formula), massBy(formula, [](const Atom& atom) { return atom.own; }));
}

Value bracketOnLast(const std::string& formula)
{
    return when(hasBracket(formula), massBy(formula, [](const Atom& atom) {
                    return atom.own * (atom.isLastInBracket ? atom.bracket : 1);
                }));
}

Value bracketOnFirst(const std::string& formula)
{
    return when(hasBracket(formula), massBy(formula, [](const Atom& atom) {
                    return atom.own * (atom.isFirstInBracket ? atom.bracket : 1);
                }));
}

Value frontNumberLeftOut(const std::string& formula)
{
    const Atom front = atomsOf(formula).front();
    return when(front.bracket == 1 && front.own > 1,
                typedMolarMass(formula) - typedMolarMass(front.symbol) * Exact(front.own - 1));
}

Value waterLeftOut(const std::string& formula)
{
    return when(isHydrate(formula), typedMolarMass(formula.substr(0, formula.find('.'))));
}

Value waterOnce(const std::string& formula)
{
    return when(isHydrate(formula), massBy(formula, [](const Atom& atom) {
                    return atom.water == 0 ? timesOf(atom) : atom.own;
                }));
}

Value waterOnHydrogenOnly(const std::string& formula)
{
    return when(isHydrate(formula), massBy(formula, [](const Atom& atom) {
                    return atom.water == 0 || atom.symbol == "H" ? timesOf(atom) : atom.own;
                }));
}

Value dotAsTimes(const std::string& formula)
{
    const Exact salt = typedMolarMass(formula.substr(0, formula.find('.')));
    return when(isHydrate(formula), salt * (typedMolarMass(formula) - salt));
}

using MassWay = Value (*)(const std::string& formula);

struct MassRow {
    const char* name;
    MassWay way;
    const char* sentence;
};

// clang-format off
const std::vector<MassRow> massRows = {
    {"small numbers left out", smallNumbersLeftOut, smallNumbers},
    {"first small number left out", firstNumberLeftOut, smallNumbers},
    {"last small number for everything", lastNumberForAll, smallNumbers},
    {"atomic numbers added", atomicNumbersAdded, atomicNumbers},
    {"bracket's number left out", bracketLeftOut, bracketNumber},
    {"bracket's number on its last atom", bracketOnLast, bracketNumber},
    {"bracket's number on its first atom", bracketOnFirst, bracketNumber},
    {"front element's number left out", frontNumberLeftOut, smallNumbers},
    {"water left out", waterLeftOut, waterNumber},
    {"water once", waterOnce, waterNumber},
    {"water's number on hydrogen only", waterOnHydrogenOnly, waterNumber},
    {"dot as times", dotAsTimes, dotAdds},
};
// clang-format on

// What a wrong molar mass leads to.
using MassUse = Value (*)(const Asked& asked, const Value& molarMass);

std::vector<Route> massRoutes(const std::vector<const char*>& names, MassUse use)
{
    std::vector<Route> routes;
    for (const char* const name : names) {
        for (const MassRow& row : massRows) {
            if (std::string(name) == row.name) {
                const MassWay way = row.way;
                routes.push_back(numberRoute(
                    row.name,
                    [way, use](const Asked& asked) { return use(asked, way(formulaOf(asked))); },
                    {row.sentence, smallNumbers, crystalWater}));
            }
        }
    }
    return routes;
}

std::vector<Route> molarMassRoutes(const std::vector<const char*>& names)
{
    return massRoutes(names, [](const Asked&, const Value& molarMass) { return molarMass; });
}

TEST(LearnersNumbersTest, MistakesInMolarMassesWithoutABracketAreTold)
{
    checkRoutes("molar-mass:1",
                molarMassRoutes({"small numbers left out", "first small number left out",
                                 "last small number for everything", "atomic numbers added"}));
}

TEST(LearnersNumbersTest, MistakesInMolarMassesWithABracketAreTold)
{
    checkRoutes(
        "molar-mass:2",
        molarMassRoutes({"atomic numbers added", "bracket's number left out",
                         "bracket's number on its last atom", "bracket's number on its first atom",
                         "front element's number left out"}));
}

TEST(LearnersNumbersTest, MistakesInMolarMassesOfHydratesAreTold)
{
    checkRoutes("molar-mass:3",
                molarMassRoutes({"atomic numbers added", "water left out", "water once",
                                 "water's number on hydrogen only", "dot as times"}));
}

// ------------------------------------------------------------------------------ concentrations

// With the molar mass that a wrong way leads to, where it is not given.
Value answerWith(const Asked& asked, const Value& molarMass)
{
    const Json* const told = givenQuantity(asked.exercise, "M");
    if (!molarMass || (told != nullptr && isTold(*told))) {
        return std::nullopt;
    }
    const Exact volume = givenValue(asked.exercise, "V");
    return asksFor(asked.exercise, "m") ? givenValue(asked.exercise, "c") * volume * *molarMass
                                        : givenValue(asked.exercise, "m") / *molarMass / volume;
}

// One made of m, M and V, and one made of c, M and V.
using Quantities = Exact (*)(const Exact& first, const Exact& molarMass, const Exact& volume);

Route concentrationRoute(const char* name, const char* asked, Quantities way,
                         std::vector<const char*> sentences)
{
    const std::string symbol = asked;
    return numberRoute(
        name,
        [symbol, way](const Asked& exercise) -> Value {
            if (!asksFor(exercise.exercise, symbol)) {
                return std::nullopt;
            }
            return way(givenValue(exercise.exercise, symbol == "c" ? "m" : "c"),
                       givenValue(exercise.exercise, "M"), givenValue(exercise.exercise, "V"));
        },
        std::move(sentences));
}

std::vector<Route> concentrationRoutes()
{
    using E = const Exact&;
    std::vector<Route> routes = {
        concentrationRoute("c: m/V", "c", [](E m, E, E V) { return m / V; }, {gramsInLitre}),
        concentrationRoute("c: m/M", "c", [](E m, E M, E) { return m / M; }, {anAmount}),
        concentrationRoute("c: (m/M)V", "c", [](E m, E M, E V) { return m / M * V; }, {howRelated}),
        concentrationRoute("c: mM/V", "c", [](E m, E M, E V) { return m * M / V; }, {whichDivided}),
        concentrationRoute("c: mM", "c", [](E m, E M, E) { return m * M; }, {whichDivided}),
        concentrationRoute("c: M/m/V", "c", [](E m, E M, E V) { return M / m / V; },
                           {whichDivided}),
        concentrationRoute("c: mL as they are", "c",
                           [](E m, E M, E V) { return m / M / V / Exact(1000); }, {millilitres}),
        concentrationRoute("c: mL divided by 100", "c",
                           [](E m, E M, E V) { return m / M / V / Exact(10); }, {inALitre}),
        concentrationRoute("c: M/m", "c", [](E m, E M, E) { return M / m; }, {whichDivided}),
        concentrationRoute("c: mMV", "c", [](E m, E M, E V) { return m * M * V; }, {whichDivided}),
        concentrationRoute("c: m by mL", "c", [](E m, E, E V) { return m / V / Exact(1000); },
                           {"That is in g/mL"}),
        concentrationRoute("c: (m/M)V with mL", "c",
                           [](E m, E M, E V) { return m / M * V * Exact(1000); }, {howRelated}),
        concentrationRoute("c: V/n", "c", [](E m, E M, E V) { return V / (m / M); }, {howRelated}),
        concentrationRoute("c: mL divided by 10", "c",
                           [](E m, E M, E V) { return m / M / V / Exact(100); }, {inALitre}),
        concentrationRoute("m: cV", "m", [](E c, E, E V) { return c * V; }, {anAmount}),
        concentrationRoute("m: cM/V", "m", [](E c, E M, E V) { return c * M / V; },
                           {howRelated, forOneLitre}),
        concentrationRoute("m: cM", "m", [](E c, E M, E) { return c * M; }, {forOneLitre}),
        concentrationRoute("m: cV/M", "m", [](E c, E M, E V) { return c * V / M; }, {oneMole}),
        concentrationRoute("m: mL as they are", "m",
                           [](E c, E M, E V) { return c * V * M * Exact(1000); }, {wrongSize}),
        concentrationRoute("m: cV with mL", "m", [](E c, E, E V) { return c * V * Exact(1000); },
                           {anAmount}),
        concentrationRoute("m: M/(cV)", "m", [](E c, E M, E V) { return M / (c * V); }, {oneMole}),
        concentrationRoute("m: VM", "m", [](E, E M, E V) { return V * M; },
                           {"for a concentration of 1 mol/L"}),
        concentrationRoute("m: (V/c)M", "m", [](E c, E M, E V) { return V / c * M; }, {howRelated}),
        concentrationRoute("m: mL divided by 10", "m",
                           [](E c, E M, E V) { return c * V * M * Exact(100); }, {inALitre}),
        concentrationRoute("m: mL divided by 100", "m",
                           [](E c, E M, E V) { return c * V * M * Exact(10); }, {inALitre}),
    };
    const std::vector<Route> ofMass =
        massRoutes({"small numbers left out", "atomic numbers added", "bracket's number left out",
                    "bracket's number on its last atom", "water left out", "water once",
                    "water's number on hydrogen only", "dot as times"},
                   answerWith);
    routes.insert(routes.end(), ofMass.begin(), ofMass.end());
    return routes;
}

TEST(LearnersNumbersTest, MistakesInConcentrationsFromMassesAreTold)
{
    checkRoutes("concentration:1", concentrationRoutes());
}

TEST(LearnersNumbersTest, MistakesInMassesFromConcentrationsAreTold)
{
    checkRoutes("concentration:2", concentrationRoutes());
}

TEST(LearnersNumbersTest, MistakesInConcentrationsAndMassesOfHydratesAreTold)
{
    checkRoutes("concentration:3", concentrationRoutes());
}

// ----------------------------------------------------------------------------------- dilutions

// Where `asked` is asked for: c1, V1, c2, or V for the water.
Route dilutionRoute(const char* name, const char* asked, Exact (*way)(const Dilution&),
                    std::vector<const char*> sentences)
{
    const std::string symbol = asked;
    return numberRoute(
        name,
        [symbol, way](const Asked& exercise) -> Value {
            return asksFor(exercise.exercise, symbol) ? Value(way(dilutionOf(exercise.exercise)))
                                                      : std::nullopt;
        },
        std::move(sentences));
}

std::vector<Route> dilutionRoutes()
{
    using D = const Dilution&;
    return {
        dilutionRoute("c2: c1V2/V1", "c2", [](D d) { return d.c1 * d.V2 / d.V1; },
                      {largerOrSmaller}),
        dilutionRoute("c2: c1V1", "c2", [](D d) { return d.c1 * d.V1 / 1000; }, {anAmount}),
        dilutionRoute("c2: V2/V1", "c2", [](D d) { return d.V2 / d.V1; }, {howManyTimes}),
        dilutionRoute("c2: c1V1/(V1 + V2)", "c2", [](D d) { return d.c1 * d.V1 / (d.V1 + d.V2); },
                      {wholeVolume}),
        dilutionRoute("c2: c1V1/(V2 - V1)", "c2", [](D d) { return d.c1 * d.V1 / (d.V2 - d.V1); },
                      {wholeVolume}),
        dilutionRoute("c2: c1V1 in mL", "c2", [](D d) { return d.c1 * d.V1; }, {anAmount}),
        dilutionRoute("c2: V1/V2", "c2", [](D d) { return d.V1 / d.V2; }, {partOfVolume}),
        dilutionRoute("c2: mL and L", "c2", [](D d) { return d.c2 * 1000; }, {millilitres}),
        dilutionRoute("V1: c1V2/c2", "V1", [](D d) { return d.c1 * d.V2 / d.c2; },
                      {largerOrSmaller}),
        dilutionRoute("V1: c2V2", "V1", [](D d) { return d.c2 * d.V2 / 1000; }, {anAmount}),
        dilutionRoute("V1: c1/c2", "V1", [](D d) { return d.c1 / d.c2; }, {howManyTimes}),
        dilutionRoute("V1: V2 - V1", "V1", [](D d) { return d.V2 - d.V1; }, {whichVolume}),
        dilutionRoute("V1: c2V2 in mL", "V1", [](D d) { return d.c2 * d.V2; }, {anAmount}),
        dilutionRoute("V1: c2/c1", "V1", [](D d) { return d.c2 / d.c1; }, {partOfVolume}),
        dilutionRoute("V1: V1 + V2 for V2", "V1", [](D d) { return d.c2 * d.V2 / (d.c1 - d.c2); },
                      {wholeVolume}),
        dilutionRoute("V1: V2 - V1 for V2", "V1", [](D d) { return d.c2 * d.V2 / (d.c1 + d.c2); },
                      {wholeVolume}),
        dilutionRoute("V1: in L", "V1", [](D d) { return d.V1 / 1000; }, {millilitres}),
        dilutionRoute("c1: c2V1/V2", "c1", [](D d) { return d.c2 * d.V1 / d.V2; },
                      {largerOrSmaller}),
        dilutionRoute("c1: c2V2", "c1", [](D d) { return d.c2 * d.V2 / 1000; }, {anAmount}),
        dilutionRoute("c1: V2/V1", "c1", [](D d) { return d.V2 / d.V1; }, {howManyTimes}),
        dilutionRoute("c1: c2(V1 + V2)/V1", "c1", [](D d) { return d.c2 * (d.V1 + d.V2) / d.V1; },
                      {wholeVolume}),
        dilutionRoute("c1: c2(V2 - V1)/V1", "c1", [](D d) { return d.c2 * (d.V2 - d.V1) / d.V1; },
                      {wholeVolume}),
        dilutionRoute("c1: c2V2 in mL", "c1", [](D d) { return d.c2 * d.V2; }, {anAmount}),
        dilutionRoute("c1: V1/V2", "c1", [](D d) { return d.V1 / d.V2; }, {partOfVolume}),
        dilutionRoute("c1: mL and L", "c1", [](D d) { return d.c1 / 1000; }, {millilitres}),
        dilutionRoute("water: V2", "V", [](D d) { return d.V2; }, {whichVolume}),
        dilutionRoute("water: V2 + V1", "V", [](D d) { return d.V2 + d.V1; }, {wholeVolume}),
        dilutionRoute("water: c2V1/c1", "V", [](D d) { return d.c2 * d.V1 / d.c1; },
                      {largerOrSmaller}),
        dilutionRoute("water: V1 - c2V1/c1", "V", [](D d) { return d.V1 - d.c2 * d.V1 / d.c1; },
                      {largerOrSmaller}),
        dilutionRoute("water: c1V1 in mL", "V", [](D d) { return d.c1 * d.V1; }, {anAmount}),
        dilutionRoute("water: c2/c1", "V", [](D d) { return d.c2 / d.c1; }, {partOfVolume}),
        dilutionRoute("water: c1V1", "V", [](D d) { return d.c1 * d.V1 / 1000; }, {anAmount}),
        dilutionRoute("water: c1/c2", "V", [](D d) { return d.c1 / d.c2; }, {howManyTimes}),
        dilutionRoute("water: in L", "V", [](D d) { return (d.V2 - d.V1) / 1000; }, {millilitres}),
    };
}

TEST(LearnersNumbersTest, MistakesInNewConcentrationsAreTold)
{
    checkRoutes("dilution:1", dilutionRoutes());
}

TEST(LearnersNumbersTest, MistakesInOriginalVolumesAndConcentrationsAreTold)
{
    checkRoutes("dilution:2", dilutionRoutes());
}

TEST(LearnersNumbersTest, MistakesInTheWaterToAddAreTold)
{
    checkRoutes("dilution:3", dilutionRoutes());
}

// ---------------------------------------------------------------------------------- titrations

Value withRoughInMean(const Titration& t)
{
    return t.titres.empty() ? Value() : answerOf(withTitre(t, meanOf(t.titres)));
}

Value withRoughAlone(const Titration& t)
{
    return t.titres.empty() ? Value() : answerOf(withTitre(t, t.titres.front()));
}

Route titrationRoute(const char* name, Value (*way)(const Titration&),
                     std::vector<const char*> sentences)
{
    return numberRoute(
        name, [way](const Asked& asked) { return way(titrationOf(asked.exercise)); },
        std::move(sentences));
}

bool hasRatio(const Titration& t)
{
    return t.r != Exact(1);
}

std::vector<Route> titrationRoutes()
{
    using T = const Titration&;
    return {
        titrationRoute("ratio left out", [](T t) { return when(hasRatio(t), answerOf(t) / t.r); },
                       {equationNumbers}),
        titrationRoute("ratio upside down",
                       [](T t) { return when(hasRatio(t), answerOf(t) / t.r / t.r); },
                       {equationNumbers}),
        titrationRoute("volumes exchanged",
                       [](T t) { return Value(t.c * t.unknown * t.r / t.known); }, {whoseVolume}),
        titrationRoute("no volumes", [](T t) { return Value(t.c * t.r); }, {whoseVolume}),
        titrationRoute("amount of the unknown", [](T t) { return Value(t.c * t.known * t.r); },
                       {anAmount}),
        titrationRoute("amount of the known", [](T t) { return when(hasRatio(t), t.c * t.known); },
                       {ofTheKnown, anAmount}),
        titrationRoute("n times V", [](T t) { return Value(t.c * t.known * t.r * t.unknown); },
                       {howRelated}),
        titrationRoute("divided by both volumes",
                       [](T t) { return Value(t.c * t.known * t.r / (t.known + t.unknown)); },
                       {ownVolume}),
        titrationRoute("divided by its own known volume",
                       [](T t) { return when(hasRatio(t), t.c); }, {equationNumbers, whoseVolume}),
        titrationRoute("no ratio, volumes exchanged",
                       [](T t) { return when(hasRatio(t), t.c * t.unknown / t.known); },
                       {equationNumbers, whoseVolume}),
        titrationRoute("no ratio, both volumes",
                       [](T t) { return when(hasRatio(t), t.c * t.known / (t.known + t.unknown)); },
                       {equationNumbers, ownVolume}),
        titrationRoute("rough titre in the mean", withRoughInMean, {roughTitre}),
        titrationRoute("rough titre alone", withRoughAlone, {"rough titre"}),
        titrationRoute("litres by millilitres",
                       [](T t) { return Value(answerOf(t) * Exact(1000)); }, {millilitres}),
        titrationRoute("a hundred mL in a litre, once",
                       [](T t) { return Value(answerOf(t) * Exact(10)); }, {wrongSize}),
    };
}

TEST(LearnersNumbersTest, MistakesInTitrationsOneToOneAreTold)
{
    checkRoutes("titration:1", titrationRoutes());
}

TEST(LearnersNumbersTest, MistakesInTitrationsInOtherRatiosAreTold)
{
    checkRoutes("titration:2", titrationRoutes());
}

TEST(LearnersNumbersTest, MistakesInTitrationsWithARoughTitreAreTold)
{
    checkRoutes("titration:3", titrationRoutes());
}

} // namespace
