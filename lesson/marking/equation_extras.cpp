#include "lesson/marking/equation_extras.hpp"

#include <algorithm>
#include <iterator>
#include <optional>
#include <string_view>

#include "lesson/chemistry/pairs_not_asked.hpp"
#include "lesson/marking/confusions.hpp"
#include "lesson/marking/equation.hpp"
#include "lesson/marking/formula.hpp"
#include "lesson/marking/formula_mistakes.hpp"
#include "lesson/marking/sentences.hpp"
#include "lesson/marking/spellings.hpp"
#include "lesson/reading/formula.hpp"
#include "lesson/reading/lookalikes.hpp"
#include "lesson/text/quotable.hpp"

namespace lesson
{

namespace
{

// ---- A formula as ions

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
        return atom.element != elements::hydrogen && countOf(ofCation, atom.element) == 0;
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
        return atom.element == elements::hydrogen ? left(elements::hydrogen) >= 0
                                                  : left(atom.element) == 0;
    };
    const bool isAll = std::all_of(atoms.begin(), atoms.end(), fits) &&
                       std::all_of(ofAnion.begin(), ofAnion.end(), fits) &&
                       std::all_of(ofCation.begin(), ofCation.end(), fits);
    if (anions < 1 || cations < 1 || !isAll) {
        return std::nullopt;
    }
    return IonsIn{cations, anions, left(elements::hydrogen)};
}

bool isAcidSalt(const IonsIn& ions, const IonRow& cation, const IonRow& anion)
{
    return ions.protons > 0 && anion.charge < -1 &&
           ions.cations * cation.charge + ions.protons + ions.anions * anion.charge == 0;
}

bool isAcidSaltOf(const Atoms& atoms, const IonRow& cation, const IonRow& anion)
{
    const std::optional<IonsIn> ions = ionsIn(atoms, cation, anion);
    return ions.has_value() && isAcidSalt(*ions, cation, anion);
}

// ---- Substances that another question asks for

// A compound of the tables.
struct Substance {
    Atoms atoms;
    std::string name;
    std::string_view noun; // as that of a role
    const IonRow* cation;  // null for an acid
    const IonRow* anion;
};

std::vector<Substance> everySubstance()
{
    std::vector<Substance> all;
    for (const AcidRow* const acid : acids()) {
        all.push_back({atomsOf(acid->formula), std::string(acid->name), "acid", nullptr, nullptr});
    }
    for (const Pair& pair : pairsForFormulas()) {
        all.push_back({atomsOf(compoundFormula(*pair.cation, *pair.anion)),
                       compoundName(*pair.cation, *pair.anion),
                       isOfBases(*pair.anion) ? "base" : "salt", pair.cation, pair.anion});
    }
    return all;
}

const Substance* findSubstance(const Atoms& atoms, std::string_view noun)
{
    static const std::vector<Substance> all = everySubstance();
    const auto found = std::find_if(all.begin(), all.end(), [&](const Substance& substance) {
        return substance.noun == noun && substance.atoms == atoms;
    });
    return found == all.end() ? nullptr : &*found;
}

std::string readAgain(const TypedTerm& term, const Substance& substance)
{
    return quotable(term.formula.text) + " is " + substance.name + ". Read again which " +
           std::string(substance.noun) + " is asked for.";
}

// ---- What the formula of an acid, base or salt was meant to be

bool isBracketMissing(const TypedTerm& term, const Role& role)
{
    const std::vector<std::string> spellings = spellingsOf(*role.cation, *role.anion);
    return std::any_of(spellings.begin(), spellings.end(), [&term](const std::string& spelling) {
        return spelling != term.formula.text && withoutBrackets(spelling) == term.formula.text;
    });
}

constexpr std::string_view checkIons = "Check the ions in it.";

// "NaCO3" for sodium hydrogencarbonate
bool isWithoutItsHydrogen(const TypedTerm& term, const Role& role)
{
    const bool isCarbonate = role.anion->id == Ion::hydrogencarbonate;
    return isCarbonate && ionsIn(term.formula.atoms, *role.cation, rowOf(Ion::carbonate)) &&
           findSubstance(term.formula.atoms, role.noun) == nullptr;
}

// What helps to put the formula right, if its ions are those of the species; else empty.
std::string_view hintFor(const TypedTerm& term, const Role& role)
{
    if (isBracketMissing(term, role)) {
        return sentences::bracketMissing;
    }
    const std::optional<IonsIn> ions = ionsIn(term.formula.atoms, *role.cation, *role.anion);
    if (!ions.has_value()) {
        return isWithoutItsHydrogen(term, role) ? checkIons : "";
    }
    if (ions->protons == 0) {
        const bool isNeutral =
            ions->cations * role.cation->charge + ions->anions * role.anion->charge == 0;
        return isNeutral ? sentences::simplify : sentences::charges;
    }
    const bool isOfTwoIons = isAcidSalt(*ions, *role.cation, *role.anion);
    return role.anion->charge < -1 && !isOfTwoIons ? sentences::charges : "";
}

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
            return sentences::of(other.mixup);
        }
    }
    return {};
}

// "H4O2" for two of H2O
bool areSeveralMolecules(const Atoms& atoms, const Atoms& one)
{
    if (!haveSameElements(atoms, one)) {
        return false;
    }
    const int times = atoms.front().count / one.front().count;
    return times > 1 && std::equal(atoms.begin(), atoms.end(), one.begin(),
                                   [times](AtomCount many, AtomCount single) {
                                       return many.count == times * single.count;
                                   });
}

// Ions whose names are alike, which makes one base of the same metal the other.
struct Twins {
    Ion one;
    Ion other;
    std::string_view sentence;
};
constexpr Twins twins[] = {
    {Ion::oxide, Ion::hydroxide, sentences::oxides},
    {Ion::carbonate, Ion::hydrogencarbonate, sentences::carbonates},
};

std::string_view twinsSentence(const IonRow& a, const IonRow& b)
{
    const auto* const found =
        std::find_if(std::begin(twins), std::end(twins), [&](const Twins& two) {
            return (two.one == a.id && two.other == b.id) || (two.one == b.id && two.other == a.id);
        });
    return found == std::end(twins) ? std::string_view() : found->sentence;
}

// Another substance of its kind.
std::optional<Extra> otherSubstance(const TermOnSide& typed, const Role& role)
{
    const Substance* const other = findSubstance(typed.term->formula.atoms, role.noun);
    if (other == nullptr) {
        return std::nullopt;
    }
    const std::string_view sentence = other->cation == role.cation && role.cation != nullptr
                                          ? twinsSentence(*other->anion, *role.anion)
                                          : "";
    return Extra{typed, Mistake::otherSubstance,
                 sentence.empty() ? readAgain(*typed.term, *other) : std::string(sentence), &role};
}

Extra misspeltAs(const TermOnSide& typed, const Role& role, std::string sentence)
{
    return {typed, Mistake::misspelt, std::move(sentence), &role};
}

std::optional<Extra> misspeltMolecule(const TermOnSide& typed, const Role& role)
{
    return areSeveralMolecules(typed.term->formula.atoms, role.atoms)
               ? std::optional(misspeltAs(typed, role, std::string(sentences::numberInFront)))
               : std::nullopt;
}

// Who writes a salt for the acid, or the acid for a salt, took no symbol for another.
std::string wrongSymbolIn(const TypedFormula& formula, const Role& role)
{
    const std::string wrong = wrongSymbol(formula.simplest, spellingsOf(*role.cation, *role.anion));
    const bool hasHydrogen = countOf(formula.atoms, elements::hydrogen) > 0;
    return wrong == "H" || (role.noun == "acid" && !hasHydrogen) ? "" : wrong;
}

std::optional<Extra> misspeltIons(const TermOnSide& typed, const Role& role)
{
    const TypedFormula& formula = typed.term->formula;
    const std::string_view hint = hintFor(*typed.term, role);
    if (!hint.empty()) {
        return misspeltAs(typed, role, sentences::isNot(formula.text, role.noun, hint));
    }
    if (std::optional<Extra> other = otherSubstance(typed, role)) {
        return other;
    }
    if (haveSameElements(formula.atoms, role.atoms)) {
        return misspeltAs(typed, role, sentences::isNot(formula.text, role.noun, checkIons));
    }
    const std::string wrong = wrongSymbolIn(formula, role);
    return wrong.empty() ? std::nullopt
                         : std::optional(misspeltAs(typed, role, sentences::checkSymbol(wrong)));
}

// "CuSO4.5H2O"; but "CaO.H2O" is the hydroxide.
bool hasWaterOfCrystals(const TypedTerm& term, const Role& role)
{
    const std::size_t dot = term.formula.text.find('.');
    return !role.noun.empty() && dot != std::string::npos &&
           readFormula(std::string_view(term.formula.text).substr(0, dot)).atoms == role.atoms &&
           findSubstance(term.formula.atoms, role.noun) == nullptr;
}

std::optional<Extra> misspelt(const TermOnSide& typed, const Role& role)
{
    if (hasWaterOfCrystals(*typed.term, role)) {
        return misspeltAs(typed, role,
                          std::string(role.noun == "salt" ? sentences::waterOfCrystals
                                                          : sentences::waterBesides));
    }
    const std::string_view misspelled = misspelling(*typed.term, role);
    if (!misspelled.empty()) {
        return misspeltAs(typed, role, std::string(misspelled));
    }
    return role.cation == nullptr ? misspeltMolecule(typed, role) : misspeltIons(typed, role);
}

// ---- What forms half of the way

// With too little base the acid keeps a proton, with too little acid the carbonate takes only one;
// but not every hydrogencarbonate can be had.
std::optional<Extra> halfWay(const TermOnSide& typed, const Roles& roles)
{
    const TypedFormula& formula = typed.term->formula;
    const Role& base = baseOf(roles);
    const Role& salt = saltOf(roles);
    if (isAcidSaltOf(formula.atoms, *salt.cation, *salt.anion)) {
        return Extra{typed, Mistake::acidSalt,
                     quotable(formula.text) + " is an acid salt. Neutralise completely.", &salt};
    }
    if (kindOfBase(roles) == BaseKind::carbonate &&
        isAcidSaltOf(formula.atoms, *base.cation, *base.anion) &&
        findSubstance(formula.atoms, base.noun) != nullptr) {
        return Extra{typed, Mistake::halfCarbonate,
                     quotable(formula.text) +
                         " still reacts with the acid. Neutralise completely."};
    }
    return std::nullopt;
}

std::optional<Extra> product(const TermOnSide& typed, const Roles& roles)
{
    static const Atoms carbonicAcid = atomsOf("H2CO3");
    static const Atoms hydrogenGas = atomsOf("H2");
    const Atoms& atoms = typed.term->formula.atoms;
    const bool hasCarbonDioxide = givesCarbonDioxide(kindOfBase(roles));
    if (hasCarbonDioxide && atoms == carbonicAcid) {
        return Extra{typed, Mistake::carbonicAcid, std::string(sentences::carbonicAcid)};
    }
    if (atoms == hydrogenGas) {
        return Extra{typed, Mistake::hydrogenGas, std::string(sentences::hydrogenGas)};
    }
    return halfWay(typed, roles);
}

// "NH4OH", "NH3.H2O"
bool isAmmoniaAndWater(const TermOnSide& typed, BaseKind kind)
{
    static const Atoms both = atomsOf("NH4OH");
    return typed.isOnTheLeft && kind == BaseKind::ammonia && typed.term->formula.atoms == both;
}

// "NaNaSO4", "ClCaCl"
bool isTwiceIn(const std::string& text, std::string_view ion)
{
    const std::size_t first = text.find(ion);
    return first != std::string::npos && text.find(ion, first + ion.size()) != std::string::npos;
}

std::string_view orderOfIons(const TypedFormula& formula, const Role& role)
{
    const bool isRepeated = isTwiceIn(formula.simplest, role.cation->formula) ||
                            isTwiceIn(formula.simplest, role.anion->formula);
    return isRepeated ? ". Write each kind of ion once, its number behind it."
                      : ". Write ion after ion, the positive one first.";
}

// The right atoms, but those of another substance or in disorder.
Extra inDisorder(const TermOnSide& typed, const Role& role)
{
    const TypedFormula& formula = typed.term->formula;
    std::string sentence = quotable(formula.text) + " has the right atoms";
    if (role.noun != "acid" && role.cation != nullptr) {
        return misspeltAs(typed, role, sentence.append(orderOfIons(formula, role)));
    }
    const std::string what = role.noun.empty() ? "that molecule" : "the " + std::string(role.noun);
    return misspeltAs(typed, role, sentence + ", but " + what + " is written in another way.");
}

Extra anElement(const TermOnSide& typed)
{
    const std::string_view rule = typed.isOnTheLeft ? " is an element. Acid and base are compounds."
                                                    : " is an element. Only compounds form here.";
    return {typed, Mistake::otherSubstance, quotable(typed.term->formula.text) + std::string(rule)};
}

// The species of its side that no term stands for.
std::vector<const Role*> missingBeside(const TermOnSide& typed, const Roles& roles,
                                       const Assignment& assignment)
{
    std::vector<const Role*> missing;
    for (std::size_t i = 0; i < roles.size(); ++i) {
        if (roles[i].isOnTheLeft == typed.isOnTheLeft && isMissing(assignment, i)) {
            missing.push_back(&roles[i]);
        }
    }
    return missing;
}

Extra explained(const TermOnSide& typed, const Roles& roles, const Assignment& assignment)
{
    if (isAmmoniaAndWater(typed, kindOfBase(roles))) {
        return {typed, Mistake::ammoniaAndWater,
                quotable(typed.term->formula.text) + " is ammonia and water: write NH3.",
                &baseOf(roles)};
    }
    const std::vector<const Role*> missing = missingBeside(typed, roles, assignment);
    for (const Role* const role : missing) {
        if (typed.term->formula.atoms == role->atoms) {
            return inDisorder(typed, *role);
        }
    }
    if (!typed.isOnTheLeft) {
        if (std::optional<Extra> known = product(typed, roles)) {
            return *known;
        }
    }
    for (const Role* const role : missing) {
        if (std::optional<Extra> wrong = misspelt(typed, *role)) {
            return *wrong;
        }
    }
    return typed.term->formula.atoms.size() == 1 ? anElement(typed) : Extra{typed};
}

} // namespace

std::vector<Extra> explainedExtras(const Roles& roles, const Assignment& assignment)
{
    std::vector<Extra> extras;
    for (const TermOnSide& typed : assignment.extras) {
        extras.push_back(explained(typed, roles, assignment));
    }
    return extras;
}

} // namespace lesson
