#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <string>
#include <utility>

#include "lesson/chemistry/composition.hpp"
#include "lesson/chemistry/elements.hpp"
#include "lesson/kinds/kinds.hpp"
#include "lesson/kinds/shared/classified.hpp"
#include "lesson/kinds/shared/record.hpp"
#include "lesson/kinds/shared/salts.hpp"
#include "lesson/marking/confusions.hpp"
#include "lesson/marking/formula.hpp"
#include "lesson/marking/ion.hpp"
#include "lesson/marking/sentences.hpp"
#include "lesson/marking/spellings.hpp"

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
        return {ion.charge < 0 ? 1 : 0, chargeText(ion), ion.weight};
    }
    if (level == 2) {
        return {0, "", ion.weight};
    }
    const bool isNew = ion.isGroup && !isCommonGroup(ion);
    return {isNew ? 1 : 0, ion.isGroup ? "group" : "atom", ion.weight};
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

std::string inWords(int count)
{
    constexpr const char* words[] = {"no", "one", "two", "three", "four", "five", "six", "seven"};
    return words[count];
}

// "one sulfur and four oxygens"
std::string atomsInWords(const Atoms& atoms)
{
    std::string words;
    for (std::size_t i = 0; i < atoms.size(); ++i) {
        const bool isLast = i + 1 == atoms.size();
        words += i == 0 ? "" : isLast ? " and " : ", ";
        words += inWords(atoms[i].count) + " " + std::string(element(atoms[i].element).name);
        words += atoms[i].count > 1 ? "s" : "";
    }
    return words;
}

// What helps to find the atoms of a group, and its charge. The charge follows from the acid of that
// name, where there is one.
struct GroupHint {
    Ion ion;
    const char* atoms;
    const char* acid;
    const char* charge;
};

constexpr const char* endingAte =
    "The ending -ate tells of oxygen, the rest of the name of the other element.";
constexpr const char* endingIte = "The ending -ite tells of oxygen, one atom less than -ate.";
constexpr const char* hydrogenFirst = "Hydrogen comes first. What is the ion without it?";
constexpr const char* withHydrogen =
    "What is the charge without the hydrogen, and what does a hydrogen ion add?";

// clang-format off
constexpr GroupHint groupHints[] = {
    {Ion::ammonium, "It is a molecule of ammonia joined to a hydrogen ion.", "",
     "The hydrogen ion brings its charge along."},
    {Ion::hydroxide, "Its name is made of those of two elements.", "",
     "It is a water molecule that has given a hydrogen ion away."},
    {Ion::cyanide, "The ending -ide: there is no oxygen in it. It has two elements, one atom of each.",
     "", "Its charge is that of chloride."},
    {Ion::ethanoate, "Its acid is the one in vinegar, which has one hydrogen more.",
     "the acid in vinegar", ""},
    {Ion::nitrate, endingAte, "nitric acid", ""},
    {Ion::sulfate, endingAte, "sulfuric acid", ""},
    {Ion::carbonate, endingAte, "carbonic acid", ""},
    {Ion::phosphate, endingAte, "phosphoric acid", ""},
    {Ion::chlorate, endingAte, "", "Its charge is that of chloride."},
    {Ion::nitrite, endingIte, "", "Its charge is that of nitrate."},
    {Ion::sulfite, endingIte, "", "Its charge is that of sulfate."},
    {Ion::hydrogencarbonate, hydrogenFirst, "", withHydrogen},
    {Ion::hydrogensulfate, hydrogenFirst, "", withHydrogen},
    {Ion::hydrogensulfite, hydrogenFirst, "", withHydrogen},
    {Ion::hydrogenphosphate, hydrogenFirst, "", withHydrogen},
    {Ion::dihydrogenphosphate,
     "The beginning di- means two. Hydrogen comes first. What is the ion without it?", "",
     "What is the charge without the hydrogen, and what does each hydrogen ion add?"},
    {Ion::chromate, endingAte, "", "Its charge is that of sulfate."},
    {Ion::dichromate, "The beginning di- means two, the ending -ate tells of oxygen.", "",
     "Its charge is that of chromate."},
    {Ion::thiosulfate,
     "Thio- stands for a sulfur in the place of an oxygen. What is the ion without it?", "",
     "Its charge is that of sulfate."},
    {Ion::manganate7, endingAte, "",
     "Manganese has the oxidation number +7, each oxygen −2. They add up to the charge."},
};
// clang-format on

const GroupHint& hintFor(const IonRow& ion)
{
    return *std::find_if(std::begin(groupHints), std::end(groupHints),
                         [&ion](const GroupHint& row) { return row.ion == ion.id; });
}

std::string chargeHint(const GroupHint& hint)
{
    const std::string acid = hint.acid;
    return acid.empty()
               ? hint.charge
               : "Each hydrogen ion that " + acid + " gives away leaves a charge of 1− behind.";
}

std::vector<Step> groupSolution(const IonRow& ion)
{
    const std::string remark =
        hasRomanNumeral(ion) ? " The Roman numeral is not the charge of the ion." : "";
    const std::string plain(ion.formula);
    return {
        {line(nameOf(ion), " is ", atomsInWords(compositionOf(plain).atoms), "."),
         line(formula(plain)), line(hintFor(ion).atoms)},
        {line("The group as a whole has the charge ", chargeWords(ion), ".", remark),
         line(spanOf(ion)), line(chargeHint(hintFor(ion)))},
    };
}

std::string electrons(int count)
{
    return inWords(count) + (count == 1 ? " electron" : " electrons");
}

// Why an ion of one atom has its charge.
Spans chargeSentence(const IonRow& ion, const ElementRow& row)
{
    const int size = std::abs(ion.charge);
    // Groups 13 to 18 were numbered 3 to 8 before.
    const std::string former = row.group > 12 ? " (" + std::to_string(row.group - 10) + ")" : "";
    const std::string group = " is in group " + std::to_string(row.group) + former + ": ";
    if (hasRomanNumeral(ion)) {
        return line("The Roman numeral tells the charge: " + chargeWords(ion) + ".");
    }
    if (ion.id == Ion::hydrogen) {
        return line("The atom loses its only electron.");
    }
    if (ion.charge < 0) {
        return line(nameOf(row), group, "its atom takes up ", electrons(size), ".");
    }
    if (row.group > 2 && row.group < 13) {
        return line("There is no Roman numeral, because it always has the same charge: " +
                    chargeWords(ion) + ".");
    }
    return line(nameOf(row), group, "its atom loses ", electrons(size), ".");
}

const char* chargeHint(const IonRow& ion, const ElementRow& row)
{
    if (hasRomanNumeral(ion)) {
        return "The name itself tells the charge.";
    }
    if (ion.charge < 0) {
        return "How many electrons are missing from the outer shell of its atom?";
    }
    return row.group > 2 && row.group < 13
               ? "Its charge is always the same and has to be looked up."
               : "How many electrons are in the outer shell of its atom? It loses them.";
}

std::vector<Step> atomSolution(const IonRow& ion)
{
    const ElementRow& row = *elementOf(ion);
    const Spans symbol = ion.charge < 0
                             ? line(nameOf(ion), " is an ion of ", nameOf(row), ".")
                             : line("Take the symbol of ", nameOf(row), ".");
    const char* const element =
        ion.charge < 0 ? "Its name is that of an element with the ending -ide. Find the symbol."
                       : "Which element is it? Find it in the periodic table.";
    return {
        {symbol, line(formula(std::string(row.symbol))), line(element)},
        {chargeSentence(ion, row), line(spanOf(ion)), line(chargeHint(ion, row))},
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
    Ion of;
    std::string_view text; // with the charge
    std::string_view sentence;
};

constexpr std::string_view hydrogens = "Check the number of hydrogen atoms.";
constexpr std::string_view carbons = "Check the number of carbon atoms.";
constexpr std::string_view ownCharge = "Hydrogen brings a charge of its own.";
constexpr std::string_view notItsCharge =
    "The Roman numeral is the oxidation number of manganese, not the charge of the ion.";

// clang-format off
constexpr Mistaken mistakes[] = {
    {Ion::hydrogen, "H3O^+", "That is a hydrogen ion joined to a water molecule."},
    {Ion::hydrogen, "OH^-", "That is the hydroxide ion, which bases have."},
    {Ion::ammonium, "NH3", sentences::ammonia},
    {Ion::ammonium, "NH2^+", hydrogens},
    {Ion::hydrogencarbonate, "HCO3^2-", ownCharge},
    {Ion::hydrogensulfate, "HSO4^2-", ownCharge},
    {Ion::oxide, "O2^2-", "That is the peroxide ion, which has two atoms."},
    {Ion::ethanoate, "HCOO^-", carbons},
    {Ion::ethanoate, "C2H5COO^-", carbons},
    {Ion::ethanoate, "CH3CH2COO^-", carbons},
    {Ion::ethanoate, "CH3COOH", "That is the acid, which is no ion."},
    {Ion::manganate7, "MnO4^7+", notItsCharge},
    {Ion::manganate7, "MnO4^7-", notItsCharge},
    {Ion::dichromate, "CrO4^2-", "That is chromate. What does di- tell you?"},
    {Ion::hydrogensulfite, "HSO3^2-", ownCharge},
    {Ion::hydrogenphosphate, "HPO4^3-", ownCharge},
    {Ion::dihydrogenphosphate, "H2PO4^3-", ownCharge},
};
// clang-format on

void addMistakes(Exercise& exercise, const IonRow& ion, const std::vector<std::string>& right)
{
    for (const Mistaken& row : mistakes) {
        if (row.of == ion.id) {
            addSlip(exercise, right, std::string(row.text), row.sentence);
        }
    }
}

void addCharges(Exercise& exercise, const IonRow& ion, const std::vector<std::string>& right)
{
    const std::string plain(ion.formula);
    const int size = std::abs(ion.charge);
    addSlip(exercise, right, plain, sentences::noCharge);
    if (size > 1) {
        addSlip(exercise, right, plain + std::to_string(size), sentences::chargeAsSubscript);
    }
    addSlip(exercise, right, textOf(plain, -ion.charge), sentences::wrongSign);
    const bool isTold = hasRomanNumeral(ion) && ion.charge > 0;
    for (const int other : {1, 2, 3}) {
        addSlip(exercise, right, textOf(plain, ion.charge < 0 ? -other : other),
                isTold ? sentences::romanCharge : sentences::wrongSize);
    }
}

void addFormulas(Exercise& exercise, const IonRow& ion, const std::vector<std::string>& right)
{
    for (const Confusion* const other : confusionsOf(ion)) {
        addSlip(exercise, right, textOf(other->formula, other->charge), other->sentence);
    }
    for (const std::string_view symbol : wrongSymbolsOf(ion)) {
        addSlip(exercise, right, textOf(symbol, ion.charge), sentences::checkSymbol(symbol));
    }
    for (const int more : {-1, 1}) {
        const std::string other = withOxygens(ion, more);
        if (!other.empty()) {
            addSlip(exercise, right, textOf(other, ion.charge), sentences::oxygens);
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
    exercise.prompt =
        line("Write the formula of the ", nameOf(ion), " ion, together with its charge.");
    exercise.ask.form = Form::ion;
    exercise.given = {GivenIon{&ion}};
    exercise.key = textOf(ion.formula, ion.charge);
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
