#include "lesson/marking/formula_mistakes.hpp"

#include <algorithm>
#include <cstddef>

#include "lesson/chemistry/elements.hpp"
#include "lesson/text/scan.hpp"

namespace lesson
{

namespace
{

bool hasOxygen(const Atoms& atoms)
{
    return std::any_of(atoms.begin(), atoms.end(),
                       [](AtomCount atom) { return atom.element == elements::oxygen; });
}

Atoms withoutOxygen(Atoms atoms)
{
    atoms.erase(std::remove_if(atoms.begin(), atoms.end(),
                               [](AtomCount atom) { return atom.element == elements::oxygen; }),
                atoms.end());
    return atoms;
}

// A formula cut at its symbols: "K2SO4" -> K, S, O and "?2??4".
struct Symbols {
    std::vector<std::string> symbols;
    std::string rest;
};

Symbols symbolsOf(std::string_view text)
{
    Symbols cut;
    for (const char c : text) {
        if (isCapital(c)) {
            cut.symbols.emplace_back(1, c);
            cut.rest += '?';
        } else if (isSmall(c)) {
            cut.symbols.back() += c;
        } else {
            cut.rest += c;
        }
    }
    return cut;
}

// The symbol that stands wherever they differ; empty where there is more than one.
std::string onlyDifference(const Symbols& typed, const Symbols& rightOnes)
{
    std::string wrong;
    for (std::size_t i = 0; i < typed.symbols.size(); ++i) {
        const std::string& symbol = typed.symbols[i];
        if (symbol == rightOnes.symbols[i]) {
            continue;
        }
        if (!wrong.empty() && wrong != symbol) {
            return "";
        }
        wrong = symbol;
    }
    return wrong;
}

// With the ending -ide, which tells of no oxygen in other names.
constexpr IonSet namedAfterOxygen = {Ion::oxide, Ion::hydroxide};

} // namespace

std::string withoutBrackets(std::string text)
{
    text.erase(std::remove_if(text.begin(), text.end(), [](char c) { return isOneOf(c, "()"); }),
               text.end());
    return text;
}

bool haveSameElements(const Atoms& a, const Atoms& b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](AtomCount x, AtomCount y) { return x.element == y.element; });
}

std::vector<std::string> withoutNumeral(std::string_view text)
{
    std::vector<std::string> others;
    for (const std::string_view numeral :
         {"(VII)", "(III)", "(II)", "(I)", "VII", "III", "II", "I"}) {
        const std::size_t place = text.find(numeral, 1);
        if (place != std::string_view::npos) {
            const std::size_t raised = text[place - 1] == '^' ? 1 : 0;
            others.emplace_back(text);
            others.back().erase(place - raised, numeral.size() + raised);
        }
    }
    return others;
}

std::string wrongSymbol(std::string_view text, const std::vector<std::string>& rightTexts)
{
    const Symbols typed = symbolsOf(text);
    for (const std::string& right : rightTexts) {
        const Symbols cut = symbolsOf(right);
        if (cut.rest == typed.rest) {
            std::string wrong = onlyDifference(typed, cut);
            if (!wrong.empty()) {
                return wrong;
            }
        }
    }
    return "";
}

bool mistakesEnding(const IonRow& ion, const Atoms& typed, const Atoms& right)
{
    const bool isDue = hasOxygen(right);
    const bool isTold = ion.charge < 0 && (!isDue || !namedAfterOxygen.has(ion.id));
    return isTold && hasOxygen(typed) != isDue &&
           haveSameElements(withoutOxygen(typed), withoutOxygen(right));
}

bool differInOxygens(const Atoms& a, const Atoms& b)
{
    return hasOxygen(a) && hasOxygen(b) && a != b && withoutOxygen(a) == withoutOxygen(b);
}

} // namespace lesson
