#include "lesson/marking/equation.hpp"

#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <vector>

#include "lesson/compound.hpp"
#include "lesson/marking/formula.hpp"
#include "lesson/marking/lookalikes.hpp"
#include "lesson/marking/sentences.hpp"
#include "lesson/marking/spellings.hpp"
#include "lesson/marking/typed.hpp"
#include "lesson/marking/typed_equation.hpp"
#include "lesson/marking/typed_formula.hpp"
#include "lesson/tables/elements.hpp"
#include "lesson/tables/pairs.hpp"
#include "lesson/values/decimal.hpp"

namespace lesson
{

namespace
{

constexpr int hydrogen = 1;
constexpr int oxygen = 8;

// ---- What the equation is made of

// By atomic number, as those of a typed formula are.
Atoms atomsOf(std::string_view formula)
{
    Atoms atoms = compositionOf(formula).atoms;
    std::sort(atoms.begin(), atoms.end(),
              [](AtomCount a, AtomCount b) { return a.element < b.element; });
    return atoms;
}

using States = std::array<std::string_view, 2>;
constexpr States solidOrDissolved = {"s", "aq"};

// A species of the equation, and what may be typed for it.
struct Role {
    std::string_view noun; // what a wrong formula of it is told not to be: "salt"
    States states;
    const IonRow* cation; // null for a molecule
    const IonRow* anion;
    bool isOnTheLeft = false;
    int coefficient = 0;
    std::string formula = {};
    Atoms atoms = {};
};
using Roles = std::vector<Role>;

States statesOfSalt(const Pair& pair)
{
    if (ruleFor(*pair.anion) == nullptr || !whySolubilityIsNotAsked(pair).empty()) {
        return solidOrDissolved;
    }
    return isSoluble(pair) ? States{"aq", ""} : States{"s", ""};
}

// One that dissolves may be taken as the solid all the same.
States statesOfBase(const Pair& pair)
{
    return statesOfSalt(pair) == States{"s", ""} ? States{"s", ""} : solidOrDissolved;
}

Roles rolesOf(const EquationAnswer& answer)
{
    const Equation equation = neutralisationOf(*answer.acid, answer.base);
    const IonRow* const acidAnion = &anionOf(*answer.acid);
    const IonRow* const cation = answer.base.cation;
    const IonRow* const baseAnion = answer.base.anion;
    const States saltStates = statesOfSalt({cation, acidAnion});
    const Role inOrder[] = {
        {"acid", {"aq"}, findIon("hydrogen"), acidAnion},
        baseAnion == nullptr ? Role{"base", {"aq", "g"}, nullptr, nullptr}
                             : Role{"base", statesOfBase({cation, baseAnion}), cation, baseAnion},
        {"salt", saltStates, cation, acidAnion},
        {"", {"l"}, nullptr, nullptr},
        {"", {"g"}, nullptr, nullptr},
    };
    Roles roles;
    for (const bool isOnTheLeft : {true, false}) {
        for (const auto& [coefficient, formula] : isOnTheLeft ? equation.left : equation.right) {
            roles.push_back(inOrder[roles.size()]);
            roles.back().isOnTheLeft = isOnTheLeft;
            roles.back().coefficient = coefficient;
            roles.back().formula = formula;
            roles.back().atoms = atomsOf(formula);
        }
    }
    return roles;
}

// ---- Which typed term stands for which species

struct TermOnSide {
    const TypedTerm* term;
    bool isOnTheLeft;
};

struct Assignment {
    std::vector<Ratio> amounts;            // typed coefficient of each role, 0 where it is missing
    std::vector<TermOnSide> extras;        // that stand for none
    const TypedTerm* wrongState = nullptr; // the first one
    const TypedTerm* tooMany = nullptr;    // that adds up to a coefficient beyond all range
};

// Formulas are the same where their atoms are: nobody has to write the groups in one order.
bool isSpelledRight(const TypedTerm& term, const Role& role)
{
    return term.unread.empty() && term.formula.atoms == role.atoms;
}

bool isSpelledRightButForCapitals(const TypedTerm& term, const Role& role)
{
    const std::string typed = withoutCapitals(term.text);
    const std::vector<std::string> spellings = spellingsOf(role.formula);
    return std::any_of(spellings.begin(), spellings.end(), [&typed](const std::string& spelling) {
        return lowerCase(spelling) == typed;
    });
}

using IsSame = bool (*)(const TypedTerm&, const Role&);

// The place of the role that a term stands for; the number of roles where it stands for none.
std::size_t roleOf(const TermOnSide& typed, const Roles& roles, IsSame isSame)
{
    const auto found = std::find_if(roles.begin(), roles.end(), [&](const Role& role) {
        return role.isOnTheLeft == typed.isOnTheLeft && isSame(*typed.term, role);
    });
    return static_cast<std::size_t>(found - roles.begin());
}

void assign(const TermOnSide& typed, const Roles& roles, bool isAnyCase, Assignment& assignment)
{
    const TypedTerm& term = *typed.term;
    std::size_t i = roleOf(typed, roles, isSpelledRight);
    if (i == roles.size() && isAnyCase) {
        i = roleOf(typed, roles, isSpelledRightButForCapitals);
    }
    if (i == roles.size()) {
        assignment.extras.push_back(typed);
        return;
    }
    const Ratio sum = assignment.amounts[i] + term.coefficient;
    if (!isFitCoefficient(sum)) {
        assignment.tooMany = &term;
        return;
    }
    assignment.amounts[i] = sum;
    const States& states = roles[i].states;
    const bool isRightState =
        term.state.empty() || std::find(states.begin(), states.end(), term.state) != states.end();
    if (!isRightState && assignment.wrongState == nullptr) {
        assignment.wrongState = &term;
    }
}

Assignment assigned(const TypedEquation& typed, const Roles& roles, bool isAnyCase)
{
    Assignment assignment;
    assignment.amounts.resize(roles.size());
    for (const TypedTerm& term : typed.left) {
        assign({&term, true}, roles, isAnyCase, assignment);
    }
    for (const TypedTerm& term : typed.right) {
        assign({&term, false}, roles, isAnyCase, assignment);
    }
    return assignment;
}

bool isMissing(const Assignment& assignment, std::size_t role)
{
    return assignment.amounts[role] == ratio(0);
}

bool hasRightSubstances(const Assignment& assignment)
{
    return assignment.extras.empty() && assignment.tooMany == nullptr &&
           std::find(assignment.amounts.begin(), assignment.amounts.end(), ratio(0)) ==
               assignment.amounts.end();
}

// By what the equation in lowest terms was multiplied, with all substances right; none where it is
// not balanced.
std::optional<Ratio> multiplier(const Assignment& assignment, const Roles& roles)
{
    const Ratio first = assignment.amounts[0] / ratio(roles[0].coefficient);
    for (std::size_t i = 1; i < roles.size(); ++i) {
        if (assignment.amounts[i] != first * ratio(roles[i].coefficient)) {
            return std::nullopt;
        }
    }
    return first;
}

bool isRight(const TypedEquation& typed, const Assignment& assignment, const Roles& roles)
{
    return typed.arrow != Arrow::none && hasRightSubstances(assignment) &&
           assignment.wrongState == nullptr && multiplier(assignment, roles) == ratio(1);
}

// ---- What a formula that is none of the species was meant to be

int countOf(const Atoms& atoms, int wanted)
{
    const auto found = std::find_if(atoms.begin(), atoms.end(), [wanted](const AtomCount& atom) {
        return atom.element == wanted;
    });
    return found == atoms.end() ? 0 : found->count;
}

struct IonsIn {
    int cations;
    int anions;
    int protons; // besides
};

// A formula as cations, anions and protons; none where it is not made of these. An element that the
// anion has and the cation has not tells how many anions there are, and the cation's own one how
// many cations are left then.
std::optional<IonsIn> ionsIn(const Atoms& atoms, const IonRow& cation, const IonRow& anion)
{
    constexpr int mostAtoms = 1000000;
    if (std::any_of(atoms.begin(), atoms.end(),
                    [](const AtomCount& atom) { return atom.count > mostAtoms; })) {
        return std::nullopt;
    }
    const Atoms ofCation = atomsOf(cation.formula);
    const Atoms ofAnion = atomsOf(anion.formula);
    const auto marker = std::find_if(ofAnion.begin(), ofAnion.end(), [&](const AtomCount& atom) {
        return atom.element != hydrogen && countOf(ofCation, atom.element) == 0;
    });
    const int anions = countOf(atoms, marker->element) / marker->count;
    const AtomCount own = ofCation.back();
    const int cations =
        (countOf(atoms, own.element) - anions * countOf(ofAnion, own.element)) / own.count;
    const auto left = [&](int element) {
        return countOf(atoms, element) - anions * countOf(ofAnion, element) -
               cations * countOf(ofCation, element);
    };
    const auto fits = [&left](const AtomCount& atom) {
        return atom.element == hydrogen ? left(hydrogen) >= 0 : left(atom.element) == 0;
    };
    const bool isAll = std::all_of(atoms.begin(), atoms.end(), fits) &&
                       std::all_of(ofAnion.begin(), ofAnion.end(), fits) &&
                       std::all_of(ofCation.begin(), ofCation.end(), fits);
    if (anions < 1 || cations < 1 || !isAll) {
        return std::nullopt;
    }
    return IonsIn{cations, anions, left(hydrogen)};
}

bool isAcidSalt(const IonsIn& ions, const IonRow& cation, const IonRow& anion)
{
    return ions.protons > 0 && anion.charge < -1 &&
           ions.cations * cation.charge + ions.protons + ions.anions * anion.charge == 0;
}

bool hasSameElements(const Atoms& a, const Atoms& b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](AtomCount x, AtomCount y) { return x.element == y.element; });
}

std::string withoutBrackets(std::string text)
{
    text.erase(std::remove(text.begin(), text.end(), '('), text.end());
    text.erase(std::remove(text.begin(), text.end(), ')'), text.end());
    return text;
}

bool isBracketMissing(const TypedTerm& term, const Role& role)
{
    const std::vector<std::string> spellings = spellingsOf(role.formula);
    return std::any_of(spellings.begin(), spellings.end(), [&term](const std::string& spelling) {
        return spelling != term.formula.text && withoutBrackets(spelling) == term.formula.text;
    });
}

// What helps to put the formula of an acid, base or salt right; empty where the typed one has
// nothing to do with it.
std::string_view hintFor(const TypedTerm& term, const Role& role)
{
    if (isBracketMissing(term, role)) {
        return sentences::bracketMissing;
    }
    const std::optional<IonsIn> ions = ionsIn(term.formula.atoms, *role.cation, *role.anion);
    if (ions.has_value() && ions->protons == 0) {
        const bool isNeutral =
            ions->cations * role.cation->charge + ions->anions * role.anion->charge == 0;
        return isNeutral ? sentences::simplify : sentences::charges;
    }
    if (ions.has_value() && role.anion->charge < -1) {
        return sentences::charges;
    }
    return hasSameElements(term.formula.atoms, role.atoms) ? "Check the ions in it." : "";
}

enum class Mistake {
    unknown,
    carbonicAcid,
    hydrogenGas,
    misspelt, // a species of the equation, but for its formula
    acidSalt, // what forms when one of the two runs out
};

// A typed term that stands for no species.
struct Extra {
    TermOnSide typed;
    Mistake mistake = Mistake::unknown;
    std::string sentence = {};
    const Role* meant = nullptr; // the species instead of which it stands
};

// "Cu(II)(NO3)2", which is read as one with iodine.
bool isRightButForNumeral(const TypedTerm& term, const Role& role)
{
    const std::vector<std::string> others = withoutNumeral(term.formula.text);
    return std::any_of(others.begin(), others.end(), [&role](const std::string& other) {
        return readFormula(other).atoms == role.atoms;
    });
}

std::string_view misspelling(const TypedTerm& term, const Role& role)
{
    if (isSpelledRightButForCapitals(term, role)) {
        return sentences::capitals;
    }
    if (isRightButForNumeral(term, role)) {
        return sentences::romanNumeral;
    }
    for (const Lookalike& other : lookalikesOf(term.text)) {
        if (readFormula(other.meant).text == role.formula) {
            return other.sentence;
        }
    }
    return {};
}

Extra misspelt(const TermOnSide& typed, const Role& role)
{
    const std::string_view misspelled = misspelling(*typed.term, role);
    if (!misspelled.empty()) {
        return {typed, Mistake::misspelt, std::string(misspelled), &role};
    }
    const std::string_view hint =
        role.cation == nullptr ? std::string_view() : hintFor(*typed.term, role);
    if (hint.empty()) {
        return {typed};
    }
    return {typed, Mistake::misspelt, sentences::isNot(typed.term->formula.text, role.noun, hint),
            &role};
}

// With too little base the acid keeps a proton, with too little acid the carbonate takes only one.
Extra halfWay(const TermOnSide& typed, const Roles& roles)
{
    const Atoms& atoms = typed.term->formula.atoms;
    const Role& base = roles[1];
    const Role& salt = roles[2];
    const std::optional<IonsIn> ions = ionsIn(atoms, *salt.cation, *salt.anion);
    if (ions.has_value() && isAcidSalt(*ions, *salt.cation, *salt.anion)) {
        return {typed, Mistake::acidSalt, std::string(sentences::lessBase), &salt};
    }
    if (base.anion != nullptr && base.anion->formula == "CO3") {
        const std::optional<IonsIn> ofBase = ionsIn(atoms, *base.cation, *base.anion);
        if (ofBase.has_value() && isAcidSalt(*ofBase, *base.cation, *base.anion)) {
            return {typed, Mistake::acidSalt, std::string(sentences::lessAcid)};
        }
    }
    return {typed};
}

bool hasCarbonDioxide(const Roles& roles)
{
    return roles.back().formula == "CO2";
}

Extra explained(const TermOnSide& typed, const Roles& roles, const Assignment& assignment)
{
    const Atoms& atoms = typed.term->formula.atoms;
    if (!typed.isOnTheLeft) {
        if (hasCarbonDioxide(roles) && atoms == atomsOf("H2CO3")) {
            return {typed, Mistake::carbonicAcid, std::string(sentences::carbonicAcid)};
        }
        if (atoms == atomsOf("H2")) {
            return {typed, Mistake::hydrogenGas, std::string(sentences::hydrogenGas)};
        }
        Extra acidSalt = halfWay(typed, roles);
        if (acidSalt.mistake != Mistake::unknown) {
            return acidSalt;
        }
    }
    for (std::size_t i = 0; i < roles.size(); ++i) {
        if (roles[i].isOnTheLeft == typed.isOnTheLeft && isMissing(assignment, i)) {
            Extra extra = misspelt(typed, roles[i]);
            if (extra.mistake != Mistake::unknown) {
                return extra;
            }
        }
    }
    return {typed};
}

// ---- Sentences

bool standsFor(const std::vector<Extra>& extras, const Role& role)
{
    return std::any_of(extras.begin(), extras.end(),
                       [&role](const Extra& extra) { return extra.meant == &role; });
}

// How many of water and carbon dioxide are all that is missing, however acid, base and salt are
// spelt; 0 where something else is there or is not there.
int forgottenProducts(const Roles& roles, const Assignment& assignment,
                      const std::vector<Extra>& extras)
{
    int forgotten = 0;
    for (std::size_t i = 0; i < roles.size(); ++i) {
        if (!isMissing(assignment, i) || standsFor(extras, roles[i])) {
            continue;
        }
        if (!roles[i].noun.empty()) {
            return 0;
        }
        ++forgotten;
    }
    const bool areAllExplained = std::all_of(
        extras.begin(), extras.end(), [](const Extra& extra) { return extra.meant != nullptr; });
    return areAllExplained ? forgotten : 0;
}

Mark markOfWrong(const Extra& extra)
{
    const std::string formula = quotable(extra.typed.term->formula.text);
    const std::string what =
        extra.typed.isOnTheLeft ? " does not react here." : " does not form here.";
    return {Verdict::wrong, "Not right yet. " + formula + what};
}

// The substances are not the right ones.
Mark markSubstances(const Roles& roles, const Assignment& assignment)
{
    std::vector<Extra> extras;
    for (const TermOnSide& typed : assignment.extras) {
        extras.push_back(explained(typed, roles, assignment));
    }
    const auto first = [&extras](Mistake mistake) {
        const auto found =
            std::find_if(extras.begin(), extras.end(),
                         [mistake](const Extra& extra) { return extra.mistake == mistake; });
        return found == extras.end() ? nullptr : &*found;
    };
    for (const Mistake mistake : {Mistake::carbonicAcid, Mistake::hydrogenGas}) {
        if (first(mistake) != nullptr) {
            return {Verdict::slip, first(mistake)->sentence};
        }
    }
    const int forgotten = forgottenProducts(roles, assignment, extras);
    if (forgotten > 0) {
        return markOf(Verdict::slip,
                      forgotten == 1 ? sentences::oneMoreProduct : "Two more products.");
    }
    for (const Mistake mistake : {Mistake::misspelt, Mistake::acidSalt}) {
        if (first(mistake) != nullptr) {
            return {Verdict::slip, first(mistake)->sentence};
        }
    }
    return extras.empty() ? markOf(Verdict::wrong, sentences::notYet) : markOfWrong(extras.front());
}

Ratio atomsOnSide(const Roles& roles, const Assignment& assignment, bool isOnTheLeft, int element)
{
    Ratio sum = ratio(0);
    for (std::size_t i = 0; i < roles.size(); ++i) {
        if (roles[i].isOnTheLeft == isOnTheLeft) {
            sum = sum + assignment.amounts[i] * ratio(countOf(roles[i].atoms, element));
        }
    }
    return sum;
}

// "5", "2.5", "5/3"
std::string countText(Ratio count)
{
    constexpr std::int64_t mostDecimals = 10000;
    if (mostDecimals % count.denominator == 0) {
        return exactText(count);
    }
    return std::to_string(count.numerator) + "/" + std::to_string(count.denominator);
}

// In the order in which one balances: the metal, what the salt has besides, carbon, and hydrogen
// and oxygen last.
std::vector<int> elementsToCount(const Roles& roles)
{
    const Role& salt = roles[2];
    std::vector<int> elements;
    for (const std::string_view formula : {salt.cation->formula, salt.anion->formula}) {
        for (const AtomCount& atom : atomsOf(formula)) {
            if (atom.element != hydrogen && atom.element != oxygen) {
                elements.push_back(atom.element);
            }
        }
    }
    constexpr int carbon = 6;
    elements.insert(elements.end(), {carbon, hydrogen, oxygen});
    return elements;
}

// The substances are right, their coefficients are not.
Mark markUnbalanced(const TypedEquation& typed, const Roles& roles, const Assignment& assignment)
{
    for (const int counted : elementsToCount(roles)) {
        Ratio left = atomsOnSide(roles, assignment, true, counted);
        Ratio right = atomsOnSide(roles, assignment, false, counted);
        if (left != right) {
            if (typed.pointsLeft) {
                std::swap(left, right);
            }
            return {Verdict::slip, "Count the " + std::string(element(counted).name) +
                                       " atoms: " + countText(left) + " on the left, " +
                                       countText(right) + " on the right."};
        }
    }
    return markOf(Verdict::wrong, sentences::notYet); // GCOVR_EXCL_LINE: some element differs
}

Mark markCoefficients(const TypedEquation& typed, const Roles& roles, const Assignment& assignment)
{
    const std::optional<Ratio> times = multiplier(assignment, roles);
    if (!times.has_value()) {
        return markUnbalanced(typed, roles, assignment);
    }
    if (*times != ratio(1)) {
        return markOf(Verdict::slip, sentences::smallestNumbers);
    }
    if (assignment.wrongState != nullptr) {
        const std::string formula = quotable(assignment.wrongState->formula.text);
        return {Verdict::slip, "Check the state of " + formula + "."};
    }
    if (typed.arrow == Arrow::twoWay) {
        return {Verdict::correct, "Correct. A one-way arrow is usual here."};
    }
    return markOf(Verdict::correct, sentences::correct);
}

constexpr std::string_view typeEquation = "Type formulas on both sides of an arrow: ->.";

} // namespace

std::string sentences::isNot(std::string_view formula, std::string_view role, std::string_view hint)
{
    return quotable(formula) + " is not the " + std::string(role) + ". " + std::string(hint);
}

Mark markEquation(const EquationAnswer& answer, std::string_view typed)
{
    const std::string plain = spelledOut(plainTyped(typed));
    if (plain.empty()) {
        return markOf(Verdict::unreadable, typeEquation);
    }
    const TypedEquation equation = readEquation(plain);
    const Roles roles = rolesOf(answer);
    const Assignment assignment = assigned(equation, roles, false);
    if (!hasRightSubstances(assignment) &&
        isRight(equation, assigned(equation, roles, true), roles)) {
        return markOf(Verdict::slip, sentences::capitals);
    }
    if (!equation.unread.empty()) {
        for (const Lookalike& other : lookalikesOf(plain)) {
            const TypedEquation meant = readEquation(other.meant);
            if (isRight(meant, assigned(meant, roles, false), roles)) {
                return markOf(Verdict::slip, other.sentence);
            }
        }
        return unreadable(equation.unread, typeEquation);
    }
    if (equation.arrow == Arrow::none) {
        return {Verdict::unreadable, "Put an arrow between the two sides. You can type ->."};
    }
    if (assignment.tooMany != nullptr) {
        return unreadable(assignment.tooMany->text, typeEquation);
    }
    return hasRightSubstances(assignment) ? markCoefficients(equation, roles, assignment)
                                          : markSubstances(roles, assignment);
}

} // namespace lesson
