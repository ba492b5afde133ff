#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <utility>
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
    struct Row {
        const char* asked;
        const char* times;
        std::vector<const char*> typed;
    };
    const Row rows[] = {
        {"mol/L", "1", {"mol/L"}},
        {"mol/L",
         "1000",
         {"mmol/L", "mmol/dm3", "mmol/dm^3", "mmolL-1", "mmolL^-1", "mmolL⁻¹", "mmoldm-3",
          "mmoldm^-3", "mmoldm⁻³", "mmol·L-1", "mmol·L⁻¹", "mmol·dm-3", "mmol·dm⁻³", "mmol.L-1",
          "mmol.dm-3", "mM"}},
        {"mol/L", "", {"g/L", "mL", "g", "mg"}},
        {"mL", "1", {"mL"}},
        {"mL", "0.001", {"L", "dm3", "dm^3", "litre", "litres"}},
        {"mL", "", {"mol/L", "g"}},
        {"g", "1", {"g"}},
        {"g", "1000", {"mg"}},
        {"g", "0.001", {"kg"}},
        {"g/mol", "1", {"g/mol"}},
        {"g/mol", "", {"g", "mol/L"}},
    };
    for (const Row& row : rows) {
        const Exercise exercise = asking(ratio(258, 1000), row.asked);
        EXPECT_EQ(unitsBehind(exercise).front().name, row.asked);
        for (const char* const typed : row.typed) {
            EXPECT_EQ(timesOf(exercise, typed), row.times) << typed << " for " << row.asked;
        }
    }
}

// 2.58×10⁻¹ of each unit, in each of its spellings.
TEST(ExportedUnitsTest, TheAskedUnitStandsBehindAPowerOfTen)
{
    const std::pair<const char*, std::vector<std::string>> rows[] = {
        {"mol/L", {"mol/L", "M", "mol/dm3", "moldm-3", "moldm⁻³", "molL-1"}},
        {"mL", {"mL", "cm3"}},
        {"g", {"g"}},
        {"g/mol", {"g/mol", "gmol-1"}},
    };
    for (const auto& [asked, spellings] : rows) {
        const Exercise exercise = asking(ratio(258, 1000), asked);
        for (const std::string& unit : spellings) {
            for (const char* const power :
                 {"×10⁻¹", "·10^-1", "X10^-1", "x10-1", "x10^{-1}", "x10⁻¹", "·10⁻¹"}) {
                EXPECT_EQ(timesOf(exercise, power + unit), "10") << power << unit;
            }
        }
    }
}

TEST(ExportedUnitsTest, PowersOfTenAreTypedInManyWays)
{
    const Exercise exercise = asking(ratio(258, 1000), "mol/L");
    for (const char* typed : {"×10⁻¹", "·10^-1", "X10^-1", "x10-1", "x10^{-1}", "x10⁻¹", "·10⁻¹"}) {
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
