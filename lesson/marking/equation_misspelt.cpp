#include "lesson/marking/equation_misspelt.hpp"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

#include "lesson/marking/formula_mistakes.hpp"
#include "lesson/marking/ions_by_atoms.hpp"
#include "lesson/marking/marks.hpp"
#include "lesson/marking/other_substances.hpp"
#include "lesson/marking/spellings.hpp"
#include "lesson/reading/formula.hpp"
#include "lesson/reading/lookalikes.hpp"

namespace lesson
{

namespace
{

// What is told of an acid, a base or a salt.
struct Told {
    SpeciesKind kind;
    Sentence isNot;
    Sentence readAgain;
};
constexpr Told told[] = {
    {SpeciesKind::acid, Sentence::markNotTheAcid, Sentence::markReadAgainAcid},
    {SpeciesKind::base, Sentence::markNotTheBase, Sentence::markReadAgainBase},
    {SpeciesKind::salt, Sentence::markNotTheSalt, Sentence::markReadAgainSalt},
};

const Told& toldOf(SpeciesKind kind)
{
    return *std::find_if(std::begin(told), std::end(told),
                         [kind](const Told& row) { return row.kind == kind; });
}

bool isBracketMissing(const TypedTerm& term, const Role& role)
{
    const std::vector<std::string> spellings = spellingsOf(*role.cation, *role.anion);
    return std::any_of(spellings.begin(), spellings.end(), [&term](const std::string& spelling) {
        return spelling != term.formula.text && withoutBrackets(spelling) == term.formula.text;
    });
}

// "NaCO3" for sodium hydrogencarbonate
bool isWithoutItsHydrogen(const TypedTerm& term, const Role& role)
{
    const bool isCarbonate = role.anion->id == Ion::hydrogencarbonate;
    return isCarbonate && ionsIn(term.formula.atoms, *role.cation, rowOf(Ion::carbonate)) &&
           findSubstance(term.formula.atoms, role.kind) == nullptr;
}

// What helps to put the formula right, if its ions are those of the species.
std::optional<Sentence> hintFor(const TypedTerm& term, const Role& role)
{
    if (isBracketMissing(term, role)) {
        return Sentence::markBracketMissing;
    }
    const std::optional<IonsIn> ions = ionsIn(term.formula.atoms, *role.cation, *role.anion);
    if (!ions.has_value()) {
        return isWithoutItsHydrogen(term, role) ? std::optional(Sentence::markIonsInIt)
                                                : std::nullopt;
    }
    if (ions->protons == 0) {
        const bool isNeutral =
            ions->cations * role.cation->charge + ions->anions * role.anion->charge == 0;
        return isNeutral ? Sentence::markSimplify : Sentence::markCharges;
    }
    const bool isOfTwoIons = isAcidSalt(*ions, *role.cation, *role.anion);
    return role.anion->charge < -1 && !isOfTwoIons ? std::optional(Sentence::markCharges)
                                                   : std::nullopt;
}

// "Cu(II)(NO3)2", which is read as one with iodine.
bool isRightButForNumeral(const TypedTerm& term, const Role& role)
{
    const std::vector<std::string> others = withoutNumeral(term.formula.text);
    return std::any_of(others.begin(), others.end(), [&role](const std::string& other) {
        return readFormula(other).atoms == role.atoms;
    });
}

std::optional<Sentence> misspelling(const TypedTerm& term, const Role& role)
{
    if (isSpelledRightButForCapitals(term, role)) {
        return Sentence::markCapitals;
    }
    if (isRightButForNumeral(term, role)) {
        return Sentence::markRomanNumeral;
    }
    for (const Lookalike& other : lookalikesOf(term.text)) {
        if (readFormula(other.meant).text == role.formula) {
            return sentenceOf(other.mixup);
        }
    }
    return std::nullopt;
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
    Sentence sentence;
};
constexpr Twins twins[] = {
    {Ion::oxide, Ion::hydroxide, Sentence::markOxides},
    {Ion::carbonate, Ion::hydrogencarbonate, Sentence::markCarbonates},
};

std::optional<Sentence> twinsSentence(const IonRow& a, const IonRow& b)
{
    const auto* const found =
        std::find_if(std::begin(twins), std::end(twins), [&](const Twins& two) {
            return (two.one == a.id && two.other == b.id) || (two.one == b.id && two.other == a.id);
        });
    return found == std::end(twins) ? std::nullopt : std::optional(found->sentence);
}

// Another substance of its kind.
std::optional<Extra> otherSubstance(const TermOnSide& typed, const Role& role)
{
    const OtherSubstance* const other = findSubstance(typed.term->formula.atoms, role.kind);
    if (other == nullptr) {
        return std::nullopt;
    }
    const bool hasSameCation = other->cation == role.cation && role.cation != nullptr;
    const std::optional<Sentence> sentence =
        hasSameCation ? twinsSentence(*other->anion, *role.anion) : std::nullopt;
    const Span says =
        sentence ? say(*sentence)
                 : say(toldOf(role.kind).readAgain, typedFormula(*typed.term), other->name);
    return Extra{typed, Mistake::otherSubstance, {says}, &role};
}

Extra misspeltAs(const TermOnSide& typed, const Role& role, const Span& says)
{
    return {typed, Mistake::misspelt, {says}, &role};
}

// With its ions, but not so: "NaSO4 is not the salt. Check the charges."
Extra isNot(const TermOnSide& typed, const Role& role, Sentence hint)
{
    const Span says = say(toldOf(role.kind).isNot, typedFormula(*typed.term));
    return {typed, Mistake::misspelt, line(says, " ", say(hint)), &role};
}

std::optional<Extra> misspeltMolecule(const TermOnSide& typed, const Role& role)
{
    return areSeveralMolecules(typed.term->formula.atoms, role.atoms)
               ? std::optional(misspeltAs(typed, role, say(Sentence::markNumberOfMolecules)))
               : std::nullopt;
}

// Who writes a salt for the acid, or the acid for a salt, took no symbol for another.
std::string wrongSymbolIn(const TypedFormula& formula, const Role& role)
{
    const std::string wrong = wrongSymbol(formula.simplest, spellingsOf(*role.cation, *role.anion));
    const bool hasHydrogen = countOf(formula.atoms, elements::hydrogen) > 0;
    return wrong == "H" || (role.kind == SpeciesKind::acid && !hasHydrogen) ? "" : wrong;
}

std::optional<Extra> misspeltIons(const TermOnSide& typed, const Role& role)
{
    const TypedFormula& formula = typed.term->formula;
    if (const std::optional<Sentence> hint = hintFor(*typed.term, role)) {
        return isNot(typed, role, *hint);
    }
    if (std::optional<Extra> other = otherSubstance(typed, role)) {
        return other;
    }
    if (haveSameElements(formula.atoms, role.atoms)) {
        return isNot(typed, role, Sentence::markIonsInIt);
    }
    const std::string wrong = wrongSymbolIn(formula, role);
    return wrong.empty()
               ? std::nullopt
               : std::optional(misspeltAs(typed, role,
                                          say<Sentence::markCheckSymbol>(lesson::formula(wrong))));
}

// "CuSO4.5H2O"; but "CaO.H2O" is the hydroxide.
bool hasWaterOfCrystals(const TypedTerm& term, const Role& role)
{
    const std::size_t dot = term.formula.text.find('.');
    return role.kind != SpeciesKind::molecule && dot != std::string::npos &&
           readFormula(std::string_view(term.formula.text).substr(0, dot)).atoms == role.atoms &&
           findSubstance(term.formula.atoms, role.kind) == nullptr;
}

// "NaNaSO4", "ClCaCl"
bool isTwiceIn(const std::string& text, std::string_view ion)
{
    const std::size_t first = text.find(ion);
    return first != std::string::npos && text.find(ion, first + ion.size()) != std::string::npos;
}

Sentence orderOfIons(const TypedFormula& formula, const Role& role)
{
    const bool isRepeated = isTwiceIn(formula.simplest, role.cation->formula) ||
                            isTwiceIn(formula.simplest, role.anion->formula);
    return isRepeated ? Sentence::markEachIonOnce : Sentence::markIonsInOrder;
}

// Of one without ions, or with ions that nobody writes apart.
Sentence anotherWay(SpeciesKind kind)
{
    return kind == SpeciesKind::acid   ? Sentence::markOtherWayAcid
           : kind == SpeciesKind::base ? Sentence::markOtherWayBase
                                       : Sentence::markOtherWayMolecule;
}

} // namespace

std::optional<Extra> misspelt(const TermOnSide& typed, const Role& role)
{
    if (hasWaterOfCrystals(*typed.term, role)) {
        return misspeltAs(typed, role,
                          say(role.kind == SpeciesKind::salt ? Sentence::markWaterOfCrystals
                                                             : Sentence::markWaterBesides));
    }
    if (const std::optional<Sentence> sentence = misspelling(*typed.term, role)) {
        return misspeltAs(typed, role, say(*sentence));
    }
    return role.cation == nullptr ? misspeltMolecule(typed, role) : misspeltIons(typed, role);
}

Extra inDisorder(const TermOnSide& typed, const Role& role)
{
    const bool isOfIons = role.kind != SpeciesKind::acid && role.cation != nullptr;
    const Sentence sentence =
        isOfIons ? orderOfIons(typed.term->formula, role) : anotherWay(role.kind);
    return misspeltAs(typed, role, say(sentence, typedFormula(*typed.term)));
}

} // namespace lesson
