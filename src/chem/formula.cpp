#include "chem/formula.hpp"

#include <cctype>
#include <cstdlib>
#include <iostream>
#include <vector>

#include "data/platform.hpp"
#include "data/tables.hpp"

// The notation, read from left to right:
//
//   formula = { element [count] | group | hydrate }
//   element = a symbol of the table, two characters tried before one
//   count   = decimal digits; none, or 0, counts as 1
//   group   = "(" formula ")" multiplier; the multiplier is exactly one character
//   hydrate = "." [count] formula, up to the end of the formula around it
//
// Kept on purpose: a multiplier has one digit only, and a group with none counts 0 times, as does a
// hydrate without a count. Left out: charges, square brackets, counts before a formula.
//
// A group and a hydrate are formulas of their own, whose mass is worked out before it is multiplied
// and added to that of the formula around them. The formulas that are being read are kept in a
// list, the innermost last, so that nesting is limited by memory and not by the call stack.

namespace
{

// A formula that is being read: the whole text, a group or a hydrate.
struct Level {
    float multiplier; // of the whole level, in the level around it
    std::size_t at;
    std::size_t end;
    float total = 0.0f;
};

constexpr std::size_t unclosed = std::string::npos;

// For each '(' the place of its ')', or `unclosed`.
std::vector<std::size_t> findClosingBrackets(const std::string& formula)
{
    std::vector<std::size_t> closing(formula.size(), unclosed);
    std::vector<std::size_t> open;
    for (std::size_t i = 0; i < formula.size(); ++i) {
        if (formula[i] == '(') {
            open.push_back(i);
        } else if (formula[i] == ')' && !open.empty()) {
            closing[open.back()] = i;
            open.pop_back();
        }
    }
    return closing;
}

// The count at `at`, which moves past its digits.
float readCount(const std::string& text, std::size_t& at)
{
    const auto count = static_cast<float>(std::atoi(text.c_str() + at));
    while (numberlike(text[at])) {
        ++at;
    }
    return count;
}

// The mass of the element at `at` times its count; `at` moves past both.
float readElement(const std::string& formula, std::size_t& at)
{
    std::string symbol = formula.substr(at, 1);
    float mass = 0.0f;
    // Nothing else can be the second letter of a symbol.
    if (std::islower(static_cast<unsigned char>(formula[at + 1]))) {
        symbol += formula[at + 1];
        mass = getAtomicMass(symbol);
    }
    if (mass == 0.0f) {
        symbol.resize(1);
        mass = getAtomicMass(symbol);
    }
    at += symbol.size();
    if (mass == 0.0f) {
        std::cout << "Element error!" << std::endl;
        return 0.0f;
    }
    const float count = readCount(formula, at);
    return (count == 0.0f ? 1.0f : count) * mass;
}

// The hydrate at the front of what is left of `outer`, which is thereby read to its end.
Level openHydrate(const std::string& formula, Level& outer)
{
    std::size_t at = outer.at + 1;
    const float count = readCount(formula, at);
    outer.at = outer.end;
    return {count, at, outer.end};
}

// The group at the front of what is left of `outer`, which goes on behind the multiplier. Without a
// closing bracket the group takes all that is left and loses its last character.
Level openGroup(std::string& formula, std::size_t closing, Level& outer)
{
    const std::size_t after = closing < outer.end ? closing + 1 : outer.end;
    if (after == outer.end) {
        std::cout << "Bracket syntax error!" << std::endl;
    }
    const std::size_t inside = outer.at + 1;
    const char multiplier = formula[after];
    formula[after - 1] = '\0'; // Ends a count at the group's end, in place of what stands there.
    outer.at = after + 1;
    return {numberlike(multiplier) ? static_cast<float>(multiplier - '0') : 0.0f, inside,
            after - 1};
}

} // namespace

bool numberlike(char c)
{
    return c >= '0' && c <= '9';
}

float getNumber(std::string& s)
{
    std::size_t digits = 0;
    const float number = readCount(s, digits);
    s.erase(0, digits);
    return number;
}

float calculateMM(std::string formula)
{
    if (aMasses.empty()) {
        initMasses();
    }
    const std::vector<std::size_t> closing = findClosingBrackets(formula);
    std::vector<Level> levels = {{1.0f, 0, formula.size()}};
    for (;;) {
        Level& level = levels.back();
        if (level.at >= level.end) {
            const float mass = level.total * level.multiplier;
            levels.pop_back();
            if (levels.empty()) {
                return mass;
            }
            levels.back().total += mass;
        } else if (formula[level.at] == '.') {
            levels.push_back(openHydrate(formula, level));
        } else if (formula[level.at] == '(') {
            levels.push_back(openGroup(formula, closing[level.at], level));
        } else {
            level.total += readElement(formula, level.at);
        }
    }
}
