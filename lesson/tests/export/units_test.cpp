#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "lesson/export/units.hpp"

namespace lesson
{

namespace
{

Exercise asking(Ratio value, const char* unit)
{
    Exercise exercise = {};
    exercise.ask = {Form::number, "", "", unit, 3, {}};
    exercise.answer = NumberAnswer{value, {}, false, true};
    return exercise;
}

// "1000" for a unit of which 1000 make one of the asked; empty for one that is not there.
std::string timesOf(const Exercise& exercise, const std::string& name)
{
    const std::vector<UnitRow> rows = unitsBehind(exercise);
    const auto found = std::find_if(rows.begin(), rows.end(),
                                    [&name](const UnitRow& row) { return row.name == name; });
    return found == rows.end() ? "" : found->times;
}

TEST(ExportedUnitsTest, TheAskedOneComesFirstAndOthersConvert)
{
    struct Case {
        const char* asked;
        const char* typed;
        const char* times;
    };
    const Case cases[] = {
        {"mol/L", "mol/L", "1"},
        {"mol/L", "mmol/L", "1000"},
        {"mol/L", "mmoldm⁻³", "1000"},
        {"mol/L", "mmolL-1", "1000"},
        {"mol/L", "mM", "1000"},
        {"mol/L", "g/L", ""},
        {"mL", "mL", "1"},
        {"mL", "dm^3", "0.001"},
        {"mL", "L", "0.001"},
        {"g", "g", "1"},
        {"g", "mg", "1000"},
        {"g", "kg", "0.001"},
        {"g/mol", "g/mol", "1"},
        {"g/mol", "g", ""},
    };
    for (const Case& one : cases) {
        const Exercise exercise = asking(ratio(258, 1000), one.asked);
        EXPECT_EQ(timesOf(exercise, one.typed), one.times) << one.typed << " for " << one.asked;
        EXPECT_EQ(unitsBehind(exercise).front().name, one.asked);
    }
}

TEST(ExportedUnitsTest, PowersOfTenAreTypedInManyWays)
{
    const Exercise exercise = asking(ratio(258, 1000), "mol/L");
    for (const char* typed : {"×10⁻¹", "·10^-1", "X10^-1", "x10-1", "x10^{-1}", "x10⁻¹", "·10⁻¹",
                              "×10⁻¹mol/L", "·10^-1M", "x10-1moldm-3", "×10⁻¹moldm⁻³"}) {
        EXPECT_EQ(timesOf(exercise, typed), "10") << typed;
    }
}

// 258×10⁻³ is the same as 2.58×10⁻¹, and a mistake may lead three powers off.
TEST(ExportedUnitsTest, PowersAreThoseNearTheAnswer)
{
    struct Case {
        Ratio value;
        const char* typed;
        const char* times;
    };
    const Case cases[] = {
        {ratio(258, 1000), "×10⁻³", "1000"},
        {ratio(258, 1000), "x10^{-3}", "1000"},
        {ratio(258, 1000), "×10⁻⁴", "10000"},
        {ratio(258, 1000), "×10⁻⁵", ""},
        {ratio(258, 1000), "×10²", "0.01"},
        {ratio(258, 1000), "×10⁰", ""},
        {ratio(258), "×10²", "0.01"},
        {ratio(258), "X10^2", "0.01"},
        {ratio(258), "x102", ""},
        {ratio(258), "×10²mol/L", "0.01"},
        {ratio(258, 100), "×10⁻³", "1000"},
        {ratio(258, 100), "×10³", "0.001"},
        {ratio(9996, 10000), "×10⁻³", "1000"}, // which is 1.00
    };
    for (const Case& one : cases) {
        EXPECT_EQ(timesOf(asking(one.value, "mol/L"), one.typed), one.times) << one.typed;
    }
}

} // namespace

} // namespace lesson
