#include "lesson/reading/formula_spelling.hpp"

#include <algorithm>
#include <cstddef>
#include <iterator>

#include "lesson/reading/formula_pieces.hpp"
#include "lesson/reading/states.hpp"
#include "lesson/text/scan.hpp"

namespace lesson
{

std::string withoutBond(std::string plain)
{
    const std::size_t bond = plain.find("-CO");
    if (bond != std::string::npos && bond > 0 && isOneOf(plain[bond - 1], "3}C")) {
        plain.erase(bond, 1);
    }
    return plain;
}

std::string spelledOut(std::string_view plain)
{
    struct Row {
        std::string_view typed;
        std::string_view formula;
    };
    // The longer ones first.
    constexpr Row abbreviations[] = {
        {"OAc", "CH3COO"}, {"AcO", "CH3COO"}, {"Ac", "CH3COO"}, {"Me", "CH3"}};
    std::string text;
    while (!plain.empty()) {
        const auto* const row =
            std::find_if(std::begin(abbreviations), std::end(abbreviations), [&](const Row& known) {
                const std::string_view behind =
                    plain.substr(std::min(known.typed.size(), plain.size()));
                return startsWith(plain, known.typed) && (behind.empty() || !isSmall(behind[0]));
            });
        const bool isOrdinary = row == std::end(abbreviations);
        const std::string_view typed = plain.substr(0, isOrdinary ? 1 : row->typed.size());
        plain.remove_prefix(typed.size());
        // "CaAc2": Ac looks like a symbol, and the number behind it is meant to count the group.
        const bool isCounted =
            typed == "Ac" && !plain.empty() && (isDigit(plain.front()) || plain.front() == '_');
        text += isOrdinary  ? std::string(typed)
                : isCounted ? "(" + std::string(row->formula) + ")"
                            : std::string(row->formula);
    }
    return text;
}

std::string bareFormula(std::string_view plain)
{
    std::string_view left = withoutState(plain);
    std::string bare;
    while (!left.empty()) {
        if (takeOneOf(left, formulaDots)) {
            bare += '.';
            continue;
        }
        const char first = takeLength(left, 1).front();
        if (isOneOf(first, "[]")) {
            bare += first == '[' ? '(' : ')';
        } else if (!isOneOf(first, " _{}")) {
            bare += first;
        }
    }
    return bare;
}

std::string withoutCapitals(std::string_view plain)
{
    return bareFormula(lowerCase(plain));
}

} // namespace lesson
