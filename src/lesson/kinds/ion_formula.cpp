#include <cstdlib>
#include <iterator>
#include <string>
#include <utility>

#include "lesson/compound.hpp"
#include "lesson/kinds/classified.hpp"
#include "lesson/kinds/kinds.hpp"
#include "lesson/kinds/salts.hpp"
#include "lesson/marking/formula.hpp"
#include "lesson/marking/ion.hpp"
#include "lesson/marking/sentences.hpp"
#include "lesson/marking/spellings.hpp"
#include "lesson/tables/elements.hpp"

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

Ions where(const Ions& ions, bool isGroup)
{
    Ions found;
    std::copy_if(ions.begin(), ions.end(), std::back_inserter(found),
                 [isGroup](const IonRow* ion) { return ion->isGroup == isGroup; });
    return found;
}

Ions ionsOfLevel(int level)
{
    Ions ions = cations();
    append(ions, anions());
    if (level != 2) {
        append(ions, furtherIons());
    }
    return level == 3 ? ions : where(ions, level == 2);
}

// Level 1 draws the charge before the ion, so that the many with 2+ do not crowd out the others;
// level 3 draws first whether the ion is a group, since most are not.
ClassKey classAt(int level, const IonRow& ion)
{
    if (level == 1) {
        return {ion.charge < 0 ? 1 : 0, chargeText(ion)};
    }
    return {ion.isGroup ? 1 : 0, ""};
}

Classified<const IonRow*> poolOf(int level)
{
    return classified(ionsOfLevel(level),
                      [level](const IonRow* ion) { return classAt(level, *ion); });
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

std::vector<Step> groupSolution(const IonRow& ion)
{
    const std::string remark =
        hasRomanNumeral(ion) ? " The Roman numeral is not the charge of the ion." : "";
    const std::string plain(ion.formula);
    return {
        {line(capitalised(nameOf(ion)), " is ", atomsInWords(compositionOf(plain).atoms), "."),
         line(formula(plain))},
        {line("The group as a whole has the charge ", chargeWords(ion), ".", remark),
         line(spanOf(ion))},
    };
}

Span nameOf(const ElementRow& row)
{
    return name(std::string(row.name), std::string(row.american));
}

std::string electrons(int count)
{
    return inWords(count) + (count == 1 ? " electron" : " electrons");
}

// Why an ion of one atom has its charge.
Spans chargeSentence(const IonRow& ion, const ElementRow& row)
{
    const int size = std::abs(ion.charge);
    const std::string group = " is in group " + std::to_string(row.group) + ": ";
    if (hasRomanNumeral(ion)) {
        return line("The Roman numeral tells the charge: " + chargeWords(ion) + ".");
    }
    if (ion.formula == "H") {
        return line("The atom loses its only electron.");
    }
    if (ion.charge < 0) {
        return line(capitalised(nameOf(row)), group, "its atom takes up ", electrons(size), ".");
    }
    if (row.group > 2 && row.group < 13) {
        return line("There is no Roman numeral, because it always has the same charge: " +
                    chargeWords(ion) + ".");
    }
    return line(capitalised(nameOf(row)), group, "its atom loses ", electrons(size), ".");
}

std::vector<Step> atomSolution(const IonRow& ion)
{
    const ElementRow& row = *findElement(ion.formula);
    const Spans symbol = ion.charge < 0
                             ? line(capitalised(nameOf(ion)), " is an ion of ", nameOf(row), ".")
                             : line("Take the symbol of ", nameOf(row), ".");
    return {
        {symbol, line(formula(std::string(row.symbol)))},
        {chargeSentence(ion, row), line(spanOf(ion))},
    };
}

// --------------------------------------------------------------------------------- the slips

std::string textOf(std::string_view formulaWithoutCharge, int charge)
{
    const int size = std::abs(charge);
    return std::string(formulaWithoutCharge) + "^" + (size == 1 ? "" : std::to_string(size)) +
           (charge < 0 ? "-" : "+");
}

struct Confusion {
    std::string_view of; // name of the ion
    std::string_view text;
    std::string_view sentence;
};

constexpr std::string_view oxides = "Oxide and hydroxide are two different ions.";
constexpr std::string_view carbonates = "Carbonate and hydrogencarbonate are two different ions.";
constexpr std::string_view sulfates = "Sulfate and hydrogensulfate are two different ions.";
constexpr std::string_view hydrogens = "Check the number of hydrogen atoms.";
constexpr std::string_view carbons = "Check the number of carbon atoms.";
constexpr std::string_view moreOxygen = "Which one has more oxygen: -ite or -ate?";
constexpr std::string_view notItsCharge =
    "The Roman numeral is the oxidation number of manganese, not the charge of the ion.";

// clang-format off
constexpr Confusion confusions[] = {
    {"hydrogen", "H3O^+", "That is a hydrogen ion joined to a water molecule."},
    {"ammonium", "NH3", "That is ammonia, which is no ion."},
    {"ammonium", "NH3^+", hydrogens},
    {"ammonium", "NH2^+", hydrogens},
    {"hydroxide", "O^2-", oxides},
    {"oxide", "OH^-", oxides},
    {"carbonate", "HCO3^-", carbonates},
    {"hydrogencarbonate", "CO3^2-", carbonates},
    {"hydrogencarbonate", "HCO3^2-", "Hydrogen brings a charge of its own."},
    {"sulfate", "HSO4^-", sulfates},
    {"hydrogensulfate", "SO4^2-", sulfates},
    {"hydrogensulfate", "HSO4^2-", "Hydrogen brings a charge of its own."},
    {"ethanoate", "HCOO^-", carbons},
    {"ethanoate", "CH3CH2COO^-", carbons},
    {"ethanoate", "CH3COOH", "That is the acid, which is no ion."},
    {"manganate(VII)", "MnO4^7+", notItsCharge},
    {"manganate(VII)", "MnO4^7-", notItsCharge},
    {"dichromate", "CrO4^2-", "That is chromate. What does di- tell you?"},
};
// clang-format on

void addConfusions(Exercise& exercise, const IonRow& ion, const std::vector<std::string>& right)
{
    for (const Confusion& row : confusions) {
        if (row.of == ion.name) {
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
    const bool hasOxygen = ion.formula.find('O') != std::string_view::npos;
    for (const Sibling& sibling : siblingsOf(ion)) {
        const bool haveBoth = hasOxygen && sibling.formula.find('O') != std::string_view::npos;
        addSlip(exercise, right, textOf(sibling.formula, sibling.charge),
                haveBoth ? moreOxygen : sentences::ending);
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
    for (const std::string& spelling : spellingsOf(ion.formula)) {
        texts.push_back(textOf(spelling, ion.charge));
    }
    return texts;
}

} // namespace

Exercise ionFormulaExercise(const Place& place)
{
    const IonRow& ion = *memberFor(place, poolOfLevel(place.level));
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
    addConfusions(exercise, ion, right);
    addCharges(exercise, ion, right);
    addFormulas(exercise, ion, right);
    return exercise;
}

} // namespace lesson
