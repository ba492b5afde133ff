#include "lesson/kinds/shared/salts.hpp"

#include <algorithm>
#include <cstdlib>
#include <iterator>

#include "lesson/reading/typed.hpp"

namespace lesson
{

namespace
{

struct WrongSymbol {
    std::string_view of; // the ion's name without a Roman numeral
    std::string_view symbol;
};

// clang-format off
constexpr WrongSymbol wrongSymbols[] = {
    {"lithium", "L"},
    {"sodium", "S"}, {"sodium", "So"},
    {"potassium", "P"}, {"potassium", "Po"},
    {"ammonium", "Am"},
    {"silver", "S"}, {"silver", "Si"},
    {"magnesium", "Mn"}, {"magnesium", "M"},
    {"calcium", "C"},
    {"barium", "B"},
    {"manganese", "Mg"},
    {"iron", "I"}, {"iron", "Ir"},
    {"cobalt", "C"},
    {"nickel", "N"},
    {"copper", "C"}, {"copper", "Co"},
    {"zinc", "Z"},
    {"tin", "T"}, {"tin", "Ti"},
    {"lead", "L"}, {"lead", "Le"},
    {"aluminium", "A"},
    {"chromium", "C"}, {"chromium", "Ch"},
    {"fluoride", "Fl"},
    {"chloride", "C"}, {"chloride", "Ch"},
    {"bromide", "B"},
    {"iodide", "Io"},
    {"oxide", "Ox"},
    {"sulfide", "Su"},
    {"nitride", "Ni"},
    {"phosphide", "Ph"},
};
// clang-format on

std::string_view withoutNumeral(std::string_view name)
{
    return name.substr(0, name.find('('));
}

void capitalise(std::string& words)
{
    if (!words.empty() && words.front() >= 'a' && words.front() <= 'z') {
        words.front() = static_cast<char>(words.front() - 'a' + 'A');
    }
}

} // namespace

Span nameOf(const IonRow& cation, const IonRow& anion)
{
    return name(compoundName(cation, anion), americanName(cation, anion));
}

Span nameOf(const IonRow& ion)
{
    return name(std::string(ion.name), std::string(ion.american));
}

Span plainNameOf(const IonRow& ion)
{
    return name(std::string(withoutNumeral(ion.name)), std::string(ion.american));
}

Span pluralOf(const IonRow& anion)
{
    const std::string american(anion.american);
    return name(std::string(anion.name) + "s", american.empty() ? "" : american + "s");
}

Span capitalised(Span nameSpan)
{
    capitalise(nameSpan.text);
    capitalise(nameSpan.detail);
    return nameSpan;
}

Span spanOf(const IonRow& ion)
{
    return ionSpan(std::string(ion.formula), chargeText(ion));
}

std::string chargeWords(const IonRow& ion)
{
    return std::to_string(std::abs(ion.charge)) + (ion.charge < 0 ? "−" : "+");
}

void addSlip(Exercise& exercise, const std::vector<std::string>& right, std::string text,
             std::string_view sentence)
{
    const std::string folded = lowerCase(text);
    const bool isRight =
        std::any_of(right.begin(), right.end(),
                    [&folded](const std::string& known) { return lowerCase(known) == folded; });
    const bool isListed = std::any_of(exercise.slips.begin(), exercise.slips.end(),
                                      [&text](const Slip& slip) { return slip.text == text; });
    if (!isRight && !isListed) {
        exercise.slips.push_back({std::move(text), std::nullopt, std::string(sentence)});
    }
}

std::vector<std::string_view> wrongSymbolsOf(const IonRow& ion)
{
    std::vector<std::string_view> symbols;
    for (const WrongSymbol& wrong : wrongSymbols) {
        if (wrong.of == withoutNumeral(ion.name)) {
            symbols.push_back(wrong.symbol);
        }
    }
    return symbols;
}

std::string withOxygens(const IonRow& ion, int more)
{
    std::string formula(ion.formula);
    const std::size_t size = formula.size();
    if (size < 2 || formula[size - 2] != 'O' || formula[size - 1] > '9') {
        return "";
    }
    formula.back() = static_cast<char>(formula.back() + more);
    if (formula.back() == '1') {
        formula.pop_back();
    }
    return formula;
}

} // namespace lesson
