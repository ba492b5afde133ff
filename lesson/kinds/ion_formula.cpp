#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <string>
#include <utility>

#include "lesson/chemistry/acids_and_bases.hpp"
#include "lesson/chemistry/composition.hpp"
#include "lesson/chemistry/elements.hpp"
#include "lesson/kinds/kinds.hpp"
#include "lesson/kinds/shared/classified.hpp"
#include "lesson/kinds/shared/record.hpp"
#include "lesson/kinds/shared/salts.hpp"
#include "lesson/marking/confusions.hpp"
#include "lesson/marking/formula.hpp"
#include "lesson/marking/ion.hpp"
#include "lesson/marking/spellings.hpp"
#include "lesson/words/say.hpp"

namespace lesson
{

namespace
{

using Ions = std::vector<const IonRow*>;

// ---------------------------------------------------------------------------------- the draw

void append(Ions& ions, const Ions& more)
{
    ions.insert(ions.end(), more.begin(), more.end());
}

Ions where(const Ions& ions, bool (*isWanted)(const IonRow& ion))
{
    Ions found;
    std::copy_if(ions.begin(), ions.end(), std::back_inserter(found),
                 [isWanted](const IonRow* ion) { return isWanted(*ion); });
    return found;
}

bool isOneAtom(const IonRow& ion)
{
    return !ion.isGroup;
}

// Further groups that are as common as those of compounds.
constexpr IonSet commonGroups = {Ion::nitrite, Ion::sulfite, Ion::hydrogensulfate, Ion::manganate7};

bool isCommonGroup(const IonRow& ion)
{
    const bool isFurther =
        std::find(furtherIons().begin(), furtherIons().end(), &ion) != furtherIons().end();
    return ion.isGroup && (!isFurther || commonGroups.has(ion.id));
}

Ions ionsOfLevel(int level)
{
    Ions ions = cations();
    append(ions, anions());
    append(ions, furtherIons());
    if (level == 3) {
        return ions;
    }
    return where(ions, level == 1 ? isOneAtom : isCommonGroup);
}

// Level 1 draws the charge before the ion, so that the many with 2+ do not crowd out the others;
// level 3 draws first whether the ion is a group that level 2 has not: half of its ions are.
ClassKey classAt(int level, const IonRow& ion)
{
    if (level == 1) {
        return {ion.charge < 0 ? 1 : 0, std::abs(ion.charge), ion.weight};
    }
    if (level == 2) {
        return {0, 0, ion.weight};
    }
    const bool isNew = ion.isGroup && !isCommonGroup(ion);
    return {isNew ? 1 : 0, ion.isGroup ? 1 : 0, ion.weight};
}

Classified<const IonRow*> poolOf(int level)
{
    constexpr int enough = 8; // one or two common ions
    return classified(
        ionsOfLevel(level), [level](const IonRow* ion) { return classAt(level, *ion); }, enough);
}

const Classified<const IonRow*>& poolOfLevel(int level)
{
    static const Classified<const IonRow*> levels[] = {poolOf(1), poolOf(2), poolOf(3)};
    return levels[level - 1];
}

// ------------------------------------------------------------------------------ the solution

// "four oxygens"
Span countOf(const AtomCount& atoms)
{
    constexpr Sentence counts[] = {Sentence::ionFormulaOneAtom,    Sentence::ionFormulaTwoAtoms,
                                   Sentence::ionFormulaThreeAtoms, Sentence::ionFormulaFourAtoms,
                                   Sentence::ionFormulaFiveAtoms,  Sentence::ionFormulaSixAtoms,
                                   Sentence::ionFormulaSevenAtoms};
    return say(counts[atoms.count - 1], nameOf(element(atoms.element)));
}

// "one sulfur and four oxygens"
Span countsOf(const Atoms& atoms)
{
    Span counts = countOf(atoms.front());
    for (std::size_t i = 1; i < atoms.size(); ++i) {
        const bool isLast = i + 1 == atoms.size();
        counts = say(isLast ? Sentence::ionFormulaLastAtoms : Sentence::ionFormulaMoreAtoms, counts,
                     countOf(atoms[i]));
    }
    return counts;
}

// What helps to find the atoms of a group, and its charge.
struct GroupHint {
    Ion ion;
    Sentence atoms;
    Sentence charge;
};

// clang-format off
constexpr GroupHint groupHints[] = {
    {Ion::ammonium,            Sentence::hintIonFormulaAmmonium,     Sentence::hintIonFormulaBroughtAlong},
    {Ion::hydroxide,           Sentence::hintIonFormulaHydroxide,    Sentence::hintIonFormulaGivenAway},
    {Ion::cyanide,             Sentence::hintIonFormulaCyanide,      Sentence::hintIonFormulaOfChloride},
    {Ion::ethanoate,           Sentence::hintIonFormulaVinegar,      Sentence::hintIonFormulaLeftByVinegar},
    {Ion::nitrate,             Sentence::hintIonFormulaAte,          Sentence::hintIonFormulaLeftByAcid},
    {Ion::sulfate,             Sentence::hintIonFormulaAte,          Sentence::hintIonFormulaLeftByAcid},
    {Ion::carbonate,           Sentence::hintIonFormulaAte,          Sentence::hintIonFormulaLeftByCarbonicAcid},
    {Ion::phosphate,           Sentence::hintIonFormulaAte,          Sentence::hintIonFormulaLeftByAcid},
    {Ion::chlorate,            Sentence::hintIonFormulaAte,          Sentence::hintIonFormulaOfChloride},
    {Ion::nitrite,             Sentence::hintIonFormulaIte,          Sentence::hintIonFormulaOfNitrate},
    {Ion::sulfite,             Sentence::hintIonFormulaIte,          Sentence::hintIonFormulaOfSulfate},
    {Ion::hydrogencarbonate,   Sentence::hintIonFormulaHydrogen,     Sentence::hintIonFormulaWithoutHydrogen},
    {Ion::hydrogensulfate,     Sentence::hintIonFormulaHydrogen,     Sentence::hintIonFormulaWithoutHydrogen},
    {Ion::hydrogensulfite,     Sentence::hintIonFormulaHydrogen,     Sentence::hintIonFormulaWithoutHydrogen},
    {Ion::hydrogenphosphate,   Sentence::hintIonFormulaHydrogen,     Sentence::hintIonFormulaWithoutHydrogen},
    {Ion::dihydrogenphosphate, Sentence::hintIonFormulaTwoHydrogens, Sentence::hintIonFormulaWithoutHydrogens},
    {Ion::chromate,            Sentence::hintIonFormulaAte,          Sentence::hintIonFormulaOfSulfate},
    {Ion::dichromate,          Sentence::hintIonFormulaDichromate,   Sentence::hintIonFormulaOfChromate},
    {Ion::thiosulfate,         Sentence::hintIonFormulaThio,         Sentence::hintIonFormulaOfSulfate},
    {Ion::manganate7,          Sentence::hintIonFormulaAte,          Sentence::hintIonFormulaManganate},
};
// clang-format on

const GroupHint& hintFor(const IonRow& ion)
{
    return *std::find_if(std::begin(groupHints), std::end(groupHints),
                         [&ion](const GroupHint& row) { return row.ion == ion.id; });
}

Span hintOnCharge(const IonRow& group)
{
    const Sentence charge = hintFor(group).charge;
    return charge == Sentence::hintIonFormulaLeftByAcid ? say(charge, nameOf(*findAcid(group.id)))
                                                        : say(charge);
}

std::vector<Step> groupSolution(const IonRow& ion)
{
    const std::string plain(ion.formula);
    Spans charge = line(say<Sentence::ionFormulaChargeOfGroup>(chargeWords(ion)));
    if (hasRomanNumeral(ion)) {
        append(charge, line(" ", say<Sentence::ionFormulaNumeralIsNoCharge>()));
    }
    return {
        {line(say<Sentence::ionFormulaAtoms>(nameOf(ion), countsOf(compositionOf(plain).atoms))),
         line(formula(plain)), line(say(hintFor(ion).atoms))},
        {charge, line(spanOf(ion)), line(hintOnCharge(ion))},
    };
}

Span electrons(int count)
{
    constexpr Sentence counts[] = {Sentence::ionFormulaOneElectron,
                                   Sentence::ionFormulaTwoElectrons,
                                   Sentence::ionFormulaThreeElectrons};
    return say(counts[count - 1]);
}

// The outer electrons of its atom, which the group tells, give an ion its charge.
Span groupSentence(const IonRow& ion, const ElementRow& row)
{
    const Span group = number(std::to_string(row.group));
    const Span count = electrons(std::abs(ion.charge));
    if (row.group < 13) {
        return say<Sentence::ionFormulaLoses>(nameOf(row), group, count);
    }
    // Groups 13 to 18 were numbered 3 to 8 before.
    const Span former = number(std::to_string(row.group - 10));
    return say(ion.charge < 0 ? Sentence::ionFormulaTakesUp : Sentence::ionFormulaLosesInLaterGroup,
               nameOf(row), group, former, count);
}

bool hasAlwaysTheSameCharge(const IonRow& ion, const ElementRow& row)
{
    return ion.charge > 0 && row.group > 2 && row.group < 13;
}

// Why an ion of one atom has its charge.
Span chargeSentence(const IonRow& ion, const ElementRow& row)
{
    if (hasRomanNumeral(ion)) {
        return say<Sentence::ionFormulaChargeInName>(chargeWords(ion));
    }
    if (ion.id == Ion::hydrogen) {
        return say<Sentence::ionFormulaOnlyElectron>();
    }
    return hasAlwaysTheSameCharge(ion, row) ? say<Sentence::ionFormulaSameCharge>(chargeWords(ion))
                                            : groupSentence(ion, row);
}

Sentence chargeHint(const IonRow& ion, const ElementRow& row)
{
    if (hasRomanNumeral(ion)) {
        return Sentence::hintIonFormulaChargeInName;
    }
    if (ion.charge < 0) {
        return Sentence::hintIonFormulaElectronsMissing;
    }
    return hasAlwaysTheSameCharge(ion, row) ? Sentence::hintIonFormulaSameCharge
                                            : Sentence::hintIonFormulaElectronsLost;
}

std::vector<Step> atomSolution(const IonRow& ion)
{
    const ElementRow& row = *elementOf(ion);
    const bool isNegative = ion.charge < 0;
    const Span symbol = isNegative ? say<Sentence::ionFormulaOfElement>(nameOf(ion), nameOf(row))
                                   : say<Sentence::ionFormulaSymbol>(nameOf(row));
    return {
        {line(symbol), line(formula(row.symbol)),
         line(say(isNegative ? Sentence::hintIonFormulaIde : Sentence::hintIonFormulaElement))},
        {line(chargeSentence(ion, row)), line(spanOf(ion)), line(say(chargeHint(ion, row)))},
    };
}

// --------------------------------------------------------------------------------- the slips

std::string textOf(std::string_view formulaWithoutCharge, int charge)
{
    const int size = std::abs(charge);
    return std::string(formulaWithoutCharge) + "^" + (size == 1 ? "" : std::to_string(size)) +
           (charge < 0 ? "-" : "+");
}

// Beside those that are taken for another in formulas too.
struct Mistaken {
    std::string_view text; // with the charge
    Ion of;
    Sentence sentence;
};

// clang-format off
constexpr Mistaken mistakes[] = {
    {"H3O^+",       Ion::hydrogen,            Sentence::slipIonFormulaHydronium},
    {"OH^-",        Ion::hydrogen,            Sentence::slipIonFormulaHydroxide},
    {"NH3",         Ion::ammonium,            Sentence::markAmmonia},
    {"NH2^+",       Ion::ammonium,            Sentence::slipIonFormulaHydrogens},
    {"HCO3^2-",     Ion::hydrogencarbonate,   Sentence::slipIonFormulaOwnCharge},
    {"HSO4^2-",     Ion::hydrogensulfate,     Sentence::slipIonFormulaOwnCharge},
    {"O2^2-",       Ion::oxide,               Sentence::slipIonFormulaPeroxide},
    {"HCOO^-",      Ion::ethanoate,           Sentence::slipIonFormulaCarbons},
    {"C2H5COO^-",   Ion::ethanoate,           Sentence::slipIonFormulaCarbons},
    {"CH3CH2COO^-", Ion::ethanoate,           Sentence::slipIonFormulaCarbons},
    {"CH3COOH",     Ion::ethanoate,           Sentence::slipIonFormulaAcid},
    {"MnO4^7+",     Ion::manganate7,          Sentence::slipIonFormulaOxidationNumber},
    {"MnO4^7-",     Ion::manganate7,          Sentence::slipIonFormulaOxidationNumber},
    {"CrO4^2-",     Ion::dichromate,          Sentence::slipIonFormulaChromate},
    {"HSO3^2-",     Ion::hydrogensulfite,     Sentence::slipIonFormulaOwnCharge},
    {"HPO4^3-",     Ion::hydrogenphosphate,   Sentence::slipIonFormulaOwnCharge},
    {"H2PO4^3-",    Ion::dihydrogenphosphate, Sentence::slipIonFormulaOwnCharge},
};
// clang-format on

void addMistakes(Exercise& exercise, const IonRow& ion, const std::vector<std::string>& right)
{
    for (const Mistaken& row : mistakes) {
        if (row.of == ion.id) {
            addSlip(exercise, right, std::string(row.text), say(row.sentence));
        }
    }
}

void addCharges(Exercise& exercise, const IonRow& ion, const std::vector<std::string>& right)
{
    const std::string plain(ion.formula);
    const int size = std::abs(ion.charge);
    addSlip(exercise, right, plain, say<Sentence::markNoCharge>());
    if (size > 1) {
        addSlip(exercise, right, plain + std::to_string(size),
                say<Sentence::markChargeAsSubscript>());
    }
    addSlip(exercise, right, textOf(plain, -ion.charge), say<Sentence::markWrongSign>());
    const bool isTold = hasRomanNumeral(ion) && ion.charge > 0;
    for (const int other : {1, 2, 3}) {
        addSlip(exercise, right, textOf(plain, ion.charge < 0 ? -other : other),
                isTold ? say<Sentence::markRomanCharge>() : say<Sentence::markWrongSize>());
    }
}

void addFormulas(Exercise& exercise, const IonRow& ion, const std::vector<std::string>& right)
{
    for (const Confusion* const other : confusionsOf(ion)) {
        addSlip(exercise, right, textOf(other->formula, other->charge), say(other->sentence));
    }
    for (const std::string_view symbol : wrongSymbolsOf(ion)) {
        addSlip(exercise, right, textOf(symbol, ion.charge),
                say<Sentence::markCheckSymbol>(formula(symbol)));
    }
    for (const int more : {-1, 1}) {
        const std::string other = withOxygens(ion, more);
        if (!other.empty()) {
            addSlip(exercise, right, textOf(other, ion.charge), say<Sentence::markOxygens>());
        }
    }
}

// Every right text, as it is typed with a "^".
std::vector<std::string> rightTexts(const IonRow& ion)
{
    std::vector<std::string> texts;
    for (const std::string& spelling : spellingsOf(ion)) {
        texts.push_back(textOf(spelling, ion.charge));
    }
    return texts;
}

// ---------------------------------------------------------------------- draw, write, read, make

const IonRow& draw(const Place& place)
{
    return *memberFor(place, poolOfLevel(place.level));
}

Description write(const IonRow& ion)
{
    return Description().with("ion", describedIon(ion));
}

const IonRow& read(FieldReader& fields)
{
    return ionFrom(fields, "ion");
}

int levelOf(const IonRow& ion)
{
    return isOneAtom(ion) ? 1 : isCommonGroup(ion) ? 2 : 3;
}

Exercise make(const Place& place, const IonRow& ion)
{
    Exercise exercise = {};
    exercise.place = place;
    exercise.prompt = line(say<Sentence::ionFormulaPrompt>(nameOf(ion)));
    exercise.ask.form = Form::ion;
    exercise.given = {GivenIon{&ion}};
    exercise.key = {spanOf(ion)};
    exercise.answer = IonAnswer{&ion};
    exercise.solution = ion.isGroup ? groupSolution(ion) : atomSolution(ion);
    const std::vector<std::string> right = rightTexts(ion);
    addMistakes(exercise, ion, right);
    addCharges(exercise, ion, right);
    addFormulas(exercise, ion, right);
    return exercise;
}

} // namespace

const Kind ionFormulaKind = {
    2,
    1,
    "ion-formula",
    Sentence::ionFormulaTitle,
    {Sentence::ionFormulaLevel1, Sentence::ionFormulaLevel2, Sentence::ionFormulaLevel3},
    true,
    drawnExercise<draw, write, levelOf, make>,
    describedExercise<read, write, levelOf, make>,
};

} // namespace lesson
