#include "support/atom_count.hpp"

#include <regex>
#include <stdexcept>
#include <vector>

// Read from right to left: the count of a group is then known before its atoms are.
std::map<std::string, int> countAtoms(const std::string& formula)
{
    static const std::regex lastPiece("^(.*?)(\\(|\\)|[A-Z][a-z]?)([0-9]*)$");
    std::map<std::string, int> atoms;
    std::vector<int> factors = {1};
    std::string rest = formula;
    std::smatch piece;
    while (std::regex_match(rest, piece, lastPiece)) {
        const std::string symbol = piece[2];
        const int count = piece[3].length() == 0 ? 1 : std::stoi(piece[3]);
        if (symbol == ")") {
            factors.push_back(factors.back() * count);
        } else if (symbol != "(") {
            atoms[symbol] += factors.back() * count;
        } else if (factors.size() > 1 && piece[3].length() == 0) {
            factors.pop_back();
        } else {
            break;
        }
        rest = std::string(piece[1]);
    }
    if (!rest.empty() || factors.size() != 1) {
        throw std::invalid_argument("not a formula: " + formula);
    }
    return atoms;
}

void addAtoms(std::map<std::string, int>& sum, int times, const std::string& formula)
{
    for (const auto& [symbol, count] : countAtoms(formula)) {
        sum[symbol] += times * count;
    }
}
