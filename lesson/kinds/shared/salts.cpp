#include "lesson/kinds/shared/salts.hpp"

#include <algorithm>
#include <cstdlib>
#include <iterator>

#include "lesson/chemistry/composition.hpp"
#include "lesson/chemistry/elements.hpp"
#include "lesson/text/scan.hpp"
#include "lesson/words/say.hpp"

namespace lesson
{

namespace
{

struct WrongSymbol {
    Ion of;
    std::string_view symbol;
};

// clang-format off
constexpr WrongSymbol wrongSymbols[] = {
    {Ion::lithium, "L"},
    {Ion::sodium, "S"}, {Ion::sodium, "So"},
    {Ion::potassium, "P"}, {Ion::potassium, "Po"},
    {Ion::ammonium, "Am"},
    {Ion::silver, "S"}, {Ion::silver, "Si"},
    {Ion::magnesium, "Mn"}, {Ion::magnesium, "M"},
    {Ion::calcium, "C"},
    {Ion::barium, "B"},
    {Ion::manganese2, "Mg"},
    {Ion::iron2, "I"}, {Ion::iron2, "Ir"},
    {Ion::cobalt2, "C"},
    {Ion::nickel2, "N"},
    {Ion::copper2, "C"}, {Ion::copper2, "Co"},
    {Ion::zinc, "Z"},
    {Ion::tin2, "T"}, {Ion::tin2, "Ti"},
    {Ion::lead2, "L"}, {Ion::lead2, "Le"},
    {Ion::aluminium, "A"},
    {Ion::chromium3, "C"}, {Ion::chromium3, "Ch"},
    {Ion::iron3, "I"}, {Ion::iron3, "Ir"},
    {Ion::fluoride, "Fl"},
    {Ion::chloride, "C"}, {Ion::chloride, "Ch"},
    {Ion::bromide, "B"},
    {Ion::iodide, "Io"},
    {Ion::oxide, "Ox"},
    {Ion::sulfide, "Su"},
    {Ion::nitride, "Ni"},
    {Ion::phosphide, "Ph"},
};
// clang-format on

} // namespace

Span spanOf(const IonRow& ion)
{
    return ionSpan(std::string(ion.formula), chargeText(ion));
}

std::string chargeWords(const IonRow& ion)
{
    return std::to_string(std::abs(ion.charge)) + (ion.charge < 0 ? "−" : "+");
}

Span sentenceOf(const SolubilityRule& rule)
{
    return say(rule.sentence, nameOfFamily(rowOf(rule.anion)));
}

void addSlip(Exercise& exercise, const std::vector<std::string>& right, std::string text,
             const Piece& sentence)
{
    const std::string folded = lowerCase(text);
    const bool isRight =
        std::any_of(right.begin(), right.end(),
                    [&folded](const std::string& known) { return lowerCase(known) == folded; });
    const bool isListed = std::any_of(exercise.slips.begin(), exercise.slips.end(),
                                      [&text](const Slip& slip) { return slip.text == text; });
    if (!isRight && !isListed) {
        exercise.slips.push_back({std::move(text), std::nullopt, line(sentence)});
    }
}

std::vector<std::string_view> wrongSymbolsOf(const IonRow& ion)
{
    std::vector<std::string_view> symbols;
    for (const WrongSymbol& wrong : wrongSymbols) {
        if (wrong.of == ion.id) {
            symbols.push_back(wrong.symbol);
        }
    }
    return symbols;
}

std::string withOxygens(const IonRow& ion, int more)
{
    const int oxygens = countOf(compositionOf(ion.formula).atoms, elements::oxygen);
    const std::string ending = "O" + std::to_string(oxygens);
    if (!endsWith(ion.formula, ending)) {
        return "";
    }
    const std::string before(ion.formula.substr(0, ion.formula.size() - ending.size()));
    return before + (oxygens + more == 1 ? "O" : "O" + std::to_string(oxygens + more));
}

std::string describedIon(const IonRow& ion)
{
    return std::string(ion.formula) + "^" + chargeText(ion);
}

Description describedPair(const Pair& pair)
{
    return Description()
        .with("cation", describedIon(*pair.cation))
        .with("anion", describedIon(*pair.anion));
}

const IonRow& ionFrom(FieldReader& fields, std::string_view name)
{
    const std::string_view text = fields.text(name);
    for (const auto* const list : {&cations(), &anions(), &furtherIons()}) {
        for (const IonRow* const ion : *list) {
            if (describedIon(*ion) == text) {
                return *ion;
            }
        }
    }
    fields.failAsNotAsked(name, text);
    return *cations().front();
}

Pair pairFrom(FieldReader& fields, std::string_view nameOfCation, std::string_view nameOfAnion,
              const std::vector<Pair>& known)
{
    const Pair pair = {&ionFrom(fields, nameOfCation), &ionFrom(fields, nameOfAnion)};
    if (std::find(known.begin(), known.end(), pair) != known.end()) {
        return pair;
    }
    fields.failAsNotAsked(nameOfAnion, describedIon(*pair.anion));
    return known.front();
}

} // namespace lesson
