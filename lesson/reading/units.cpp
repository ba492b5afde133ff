#include "lesson/reading/units.hpp"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string>

#include "lesson/text/scan.hpp"
#include "lesson/words/language.hpp"

namespace lesson
{

namespace
{

struct UnitRow {
    std::string_view plain; // small letters, nothing between the factors
    Unit unit;
};

// clang-format off
constexpr UnitRow units[] = {
    {"mol/l",      {Dimension::concentration,  0, "mol/L"}},
    {"moll-1",     {Dimension::concentration,  0, "mol/L"}},
    {"mol/dm3",    {Dimension::concentration,  0, "mol/dm³"}},
    {"moldm-3",    {Dimension::concentration,  0, "mol dm⁻³"}},
    {"mmol/l",     {Dimension::concentration, -3, "mmol/L"}},
    {"mmoll-1",    {Dimension::concentration, -3, "mmol/L"}},
    {"mmol/dm3",   {Dimension::concentration, -3, "mmol/dm³"}},
    {"mmoldm-3",   {Dimension::concentration, -3, "mmol dm⁻³"}},
    {"mmol/ml",    {Dimension::concentration,  0, "mmol/mL"}},
    {"mmolml-1",   {Dimension::concentration,  0, "mmol/mL"}},
    {"mmol/cm3",   {Dimension::concentration,  0, "mmol/cm³"}},
    {"mmolcm-3",   {Dimension::concentration,  0, "mmol cm⁻³"}},
    {"mol/cubicdm", {Dimension::concentration, 0, "mol/dm³"}},
    {"g/mol",      {Dimension::molarMass,      0, "g/mol"}},
    {"gmol-1",     {Dimension::molarMass,      0, "g mol⁻¹"}},
    {"kg/mol",     {Dimension::molarMass,      3, "kg/mol"}},
    {"kgmol-1",    {Dimension::molarMass,      3, "kg mol⁻¹"}},
    {"kg",         {Dimension::mass,           3, "kg"}},
    {"g",          {Dimension::mass,           0, "g"}},
    {"mg",         {Dimension::mass,          -3, "mg"}},
    {"l",          {Dimension::volume,         0, "L"}},
    {"dm3",        {Dimension::volume,         0, "dm³"}},
    {"cubicdm",    {Dimension::volume,         0, "dm³"}},
    {"cubiccm",    {Dimension::volume,        -3, "cm³"}},
    {"ml",         {Dimension::volume,        -3, "mL"}},
    {"cm3",        {Dimension::volume,        -3, "cm³"}},
};
// clang-format on

// What stands between factors, around them or before an exponent; byte by byte, since no other
// character is made of the raised dot's bytes alone.
constexpr std::string_view joins = " .*^_()[]{}·";

bool isJoin(char byte)
{
    return isOneOf(byte, joins);
}

std::string withoutJoins(std::string text)
{
    text.erase(std::remove_if(text.begin(), text.end(), isJoin), text.end());
    return text;
}

std::string plainWord(std::string_view typed)
{
    std::string small = lowerCase(typed);
    const std::string_view plain = plainOf(&TypedWords::units, small);
    return plain.empty() ? small : std::string(plain);
}

std::string withPlainWords(std::string_view text)
{
    std::string plain;
    while (!text.empty()) {
        const std::string_view word = takeLetters(text);
        plain += word.empty() ? takeLength(text, 1) : plainWord(word);
    }
    return plain;
}

// "mol/dm-3" is "mol/dm3": who writes both a stroke and a negative power means one of them.
std::string withoutDoubleDivision(std::string plain)
{
    const std::size_t minus = plain.find('-');
    if (plain.find('/') < minus && minus != std::string::npos) {
        const std::string_view power = std::string_view(plain).substr(minus);
        plain.erase(minus, power == "-1" ? 2 : power == "-3" ? 1 : 0);
    }
    return plain;
}

} // namespace

std::optional<Unit> unitOf(std::string_view typed)
{
    // Only here capitals matter: m is the metre, and milli.
    const std::string symbol = withoutJoins(std::string(typed));
    if (symbol == "M") {
        return Unit{Dimension::concentration, 0, "M"};
    }
    if (symbol == "mM") {
        return Unit{Dimension::concentration, -3, "mM"};
    }
    const std::string plain = withoutDoubleDivision(withoutJoins(withPlainWords(typed)));
    const auto* const row = std::find_if(std::begin(units), std::end(units),
                                         [&](const UnitRow& unit) { return unit.plain == plain; });
    return row == std::end(units) ? std::nullopt : std::optional<Unit>(row->unit);
}

std::string_view withoutEnding(std::string_view typed, std::string_view ending)
{
    std::string_view rest = typed;
    for (; !ending.empty(); ending.remove_suffix(1)) {
        if (isJoin(ending.back())) {
            continue;
        }
        rest = withoutAtTheEnd(rest, joins);
        if (rest.empty() || smallLetter(rest.back()) != smallLetter(ending.back())) {
            return typed;
        }
        rest.remove_suffix(1);
    }
    return rest;
}

} // namespace lesson
