// Marks over many exercises of every kind and level: what a careful learner may type is right, and
// nothing else is.

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <random>
#include <string>
#include <vector>

#include "lesson/tests/every/common.hpp"

namespace
{

// One exercise, and how texts for it are marked.
struct Asked {
    std::string kind; // with its level
    unsigned paper;
    unsigned number;
    Json exercise;

    Json mark(const std::string& typed) const
    {
        return markOn(kind, paper, number, typed);
    }
    std::string verdict(const std::string& typed) const
    {
        return verdictOn(kind, paper, number, typed);
    }
};

// As many exercises of each kind and level as make the papers to check in all, of those for which
// `isWanted` holds.
void forEachExercise(bool (*isWanted)(const Json& exercise), Problems& problems,
                     const std::function<void(const Asked&)>& check)
{
    const unsigned papers = papersToCheck() / static_cast<unsigned>(everyKind().size()) + 1;
    for (const std::string& kind : everyKind()) {
        for (unsigned paper = 1; paper <= papers; ++paper) {
            const unsigned number = 1 + paper % 7;
            const Json exercise = exerciseAt(kind, paper, number);
            if (isWanted(exercise)) {
                problems.at(kind, paper, number);
                check({kind, paper, number, exercise});
            }
        }
    }
}

bool asksForAnything(const Json& /*exercise*/)
{
    return true;
}

bool asksForNumber(const Json& exercise)
{
    return exercise["ask"]["form"] == "number";
}

bool asksForSymbols(const Json& exercise)
{
    return !asksForNumber(exercise);
}

// A value as so many figures and a power of ten: 0.0456 as "456e-4".
std::string typedTo(const Exact& value, int figures)
{
    const Exact rounded = value.toFigures(figures);
    Exact unit = rounded.lastPlace(figures);
    const std::string digits = std::to_string((rounded / unit).floor());
    int power = 0;
    for (; unit < Exact(1); unit = unit * 10) {
        --power;
    }
    for (; Exact(1) < unit; unit = unit / 10) {
        ++power;
    }
    return digits + "e" + std::to_string(power);
}

// What is given of an exercise, by symbol and substance.
class Given
{
public:
    explicit Given(const Json& ofExercise) : exercise{ofExercise} {}

    Exact operator()(const std::string& symbol, const std::string& of = "") const
    {
        return volumeOf(*givenQuantity(exercise, symbol, of));
    }
    bool tells(const std::string& symbol) const
    {
        const Json* const quantity = givenQuantity(exercise, symbol);
        return quantity != nullptr && isTold(*quantity);
    }

private:
    const Json& exercise;
};

// ------------------------------------------------------------------------------- other tables

// Masses to so many decimals, 0 or 1, but chlorine's, which is 35.5 in every table.
Exact roundedMolarMass(const std::string& formula, int decimals)
{
    Exact sum;
    for (const auto& [symbol, count] : atomsIn(formula)) {
        const Exact parts = decimals == 0 && symbol != "Cl" ? Exact(1) : Exact(10);
        const Exact mass = Exact((typedMolarMass(symbol) * parts + Exact(1, 2)).floor()) / parts;
        sum = sum + mass * count;
    }
    return sum;
}

// As a calculator shows it: 58.5, 188.
std::string asItComesOut(const Exact& sum)
{
    const std::int64_t tenths = (sum * 10).floor();
    const std::string whole = std::to_string(tenths / 10);
    return tenths % 10 == 0 ? whole : whole + "." + std::to_string(tenths % 10);
}

// What is typed by someone whose masses are rounded; nothing where the molar mass is told.
std::vector<std::string> byRoundedMasses(const Asked& asked, int decimals)
{
    const Json& exercise = asked.exercise;
    if (exercise["ask"]["quantity"] == "M") {
        const Exact sum = roundedMolarMass(exercise["ask"]["of"], decimals);
        return {asItComesOut(sum), typedTo(sum, 4)};
    }
    const Given given(exercise);
    const Json* const told = givenQuantity(exercise, "M");
    if (told == nullptr || given.tells("M")) {
        return {};
    }
    const Exact molarMass = roundedMolarMass((*told)["of"], decimals);
    return {typedTo(exercise["ask"]["quantity"] == "m" ? given("c") * given("V") * molarMass
                                                       : given("m") / molarMass / given("V"),
                    3)};
}

TEST(MarksTest, WhoHasATableOfRoundedMassesIsRight)
{
    Problems problems;
    int all = 0;
    forEachExercise(asksForNumber, problems, [&](const Asked& asked) {
        for (const int decimals : {0, 1}) {
            for (const std::string& typed : byRoundedMasses(asked, decimals)) {
                ++all;
                problems.expect(
                    asked.verdict(typed) == "correct", "who has a table of rounded masses is right",
                    typed + " by masses to " + std::to_string(decimals) + " decimals, for " +
                        asked.exercise["key"]["text"].get<std::string>());
            }
        }
    });
    EXPECT_EQ(problems.text(), "");
    EXPECT_GT(all, 0);
}

// -------------------------------------------------------------------------------- one figure

bool isAnswerOfSlip(const Json& exercise, const Exact& value)
{
    const Json& slips = exercise["slips"];
    return std::any_of(slips.begin(), slips.end(), [&value](const Json& slip) {
        const std::string text = slip["text"];
        return Exact::read(text.substr(0, text.find(' '))) == value;
    });
}

// "3e-1" for 0.293 has one figure and no more.
TEST(MarksTest, OneFigureIsRightUnlessASlipLeadsToIt)
{
    Problems problems;
    int right = 0;
    forEachExercise(asksForNumber, problems, [&](const Asked& asked) {
        const Exact key = Exact::read(asked.exercise["key"]["value"]);
        const bool isSlip = isAnswerOfSlip(asked.exercise, key.toFigures(1));
        const std::string verdict = asked.verdict(typedTo(key, 1));
        right += verdict == "figures" ? 1 : 0;
        problems.expect((verdict == "figures") == !isSlip, "one figure is right",
                        typedTo(key, 1) + ": " + verdict);
    });
    EXPECT_EQ(problems.text(), "");
    EXPECT_GT(right, 0);
}

// --------------------------------------------------------------------------------- spellings

std::string replaced(std::string text, const std::string& part, const std::string& by)
{
    for (std::size_t at = text.find(part); at != std::string::npos;
         at = text.find(part, at + by.size())) {
        text.replace(at, part.size(), by);
    }
    return text;
}

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

// Each run of digits behind a letter or a bracket by `spell`; coefficients stay as they are.
std::string withSubscripts(const std::string& text,
                           const std::function<std::string(const std::string&)>& spell)
{
    std::string result;
    for (std::size_t i = 0; i < text.size();) {
        std::size_t end = i;
        while (end < text.size() && isDigit(text[end])) {
            ++end;
        }
        const bool isSubscript = end > i && i > 0 && text[i - 1] != ' ' && text[i - 1] != '^';
        const std::size_t taken = end > i ? end - i : 1;
        const std::string part = text.substr(i, taken);
        result += isSubscript ? spell(part) : part;
        i += taken;
    }
    return result;
}

std::string inUnicode(const std::string& digits, const std::vector<std::string>& signs)
{
    std::string result;
    for (const char digit : digits) {
        result += signs.at(static_cast<std::size_t>(digit - '0'));
    }
    return result;
}

std::string lowered(const std::string& digits)
{
    return inUnicode(digits, {"₀", "₁", "₂", "₃", "₄", "₅", "₆", "₇", "₈", "₉"});
}

std::string raised(const std::string& charge)
{
    const std::string sign = charge.back() == '+' ? "⁺" : "⁻";
    return inUnicode(charge.substr(0, charge.size() - 1),
                     {"⁰", "¹", "²", "³", "⁴", "⁵", "⁶", "⁷", "⁸", "⁹"}) +
           sign;
}

using Spellings = std::vector<std::string>;

Spellings spellingsOfFormula(const std::string& key)
{
    return {
        key,
        "  " + key + "\n",
        withSubscripts(key, [](const std::string& digits) { return "_" + digits; }),
        withSubscripts(key, [](const std::string& digits) { return "_{" + digits + "}"; }),
        withSubscripts(key, lowered),
    };
}

// A formula as its plain letters and its charge: "SO4", "2-".
Spellings spellingsOfIon(const std::string& key)
{
    const std::size_t at = key.find('^');
    const std::string formula = key.substr(0, at);
    const std::string charge = key.substr(at + 1);
    const std::string sign(1, charge.back());
    const std::string size = charge.substr(0, charge.size() - 1);
    Spellings all = {
        formula + charge,
        formula + "^" + charge,
        formula + "^{" + charge + "}",
        formula + " " + charge,
        formula + "^" + sign + size,
        formula + "^(" + charge + ")",
        formula + raised(charge),
        withSubscripts(formula, lowered) + raised(charge),
        withSubscripts(formula, lowered) + replaced(charge, "-", "−"),
        formula + "^" + replaced(charge, "-", "\u2013"),
    };
    if (size.empty()) {
        all.push_back(formula + "^1" + sign);
    } else {
        all.push_back(formula + sign + size);
        all.push_back(formula + std::string(static_cast<std::size_t>(size[0] - '0'), sign[0]));
    }
    return all;
}

Spellings spellingsOfEquation(const std::string& key)
{
    const std::string arrow = " -> ";
    const std::size_t at = key.find(arrow);
    const std::string left = key.substr(0, at);
    const std::string right = key.substr(at + arrow.size());
    const std::size_t plus = left.find(" + ");
    const std::string turned = left.substr(plus + 3) + " + " + left.substr(0, plus);
    Spellings all;
    for (const char* const sign : {"->", " --> ", " => ", " → ", "⟶", "=", " = "}) {
        all.push_back(left + sign + right);
    }
    all.push_back(turned + arrow + right);
    all.push_back(replaced(key, " ", ""));
    all.push_back(withSubscripts(key, [](const std::string& digits) { return "_" + digits; }));
    all.push_back(
        withSubscripts(key, [](const std::string& digits) { return "_{" + digits + "}"; }));
    all.push_back(withSubscripts(key, lowered));
    return all;
}

Spellings spellingsOfSolubility(const std::string& key)
{
    if (key == "yes") {
        return {"y", "Y", "yes", "YES", "Yes", "soluble", "Soluble"};
    }
    if (key == "no") {
        return {"n", "N", "no", "NO", "No", "insoluble", "Insoluble"};
    }
    if (key == "none") {
        return {"none", "None", "no", "nothing", "no precipitate"};
    }
    return spellingsOfFormula(key);
}

Spellings spellingsOfNumber(const std::string& key)
{
    const std::size_t blank = key.find(' ');
    const std::string number = key.substr(0, blank);
    const std::string unit = key.substr(blank + 1);
    Spellings all = {number,       key,           number + unit,
                     "+" + number, "= " + number, typedTo(Exact::read(number), figuresOf(number))};
    // One to three digits, a comma and three digits are asked back.
    const std::size_t point = number.find('.');
    if (point != std::string::npos && (number[0] == '0' || number.size() - point != 4)) {
        all.push_back(replaced(number, ".", ",") + " " + unit);
    }
    if (number[0] == '0') {
        all.push_back(number.substr(1));
    }
    if (unit == "mol/L") {
        for (const char* const spelled :
             {"mol L-1", "mol L^-1", "mol L⁻¹", "mol/dm3", "mol dm-3", "M"}) {
            all.push_back(number + " " + spelled);
        }
    }
    if (unit == "mL") {
        for (const char* const spelled : {"ml", "cm3", "cm³"}) {
            all.push_back(number + " " + spelled);
        }
    }
    return all;
}

Spellings spellingsOf(const Json& exercise)
{
    const std::string form = exercise["ask"]["form"];
    const std::string key = exercise["key"]["text"];
    return form == "formula"    ? spellingsOfFormula(key)
           : form == "ion"      ? spellingsOfIon(key)
           : form == "equation" ? spellingsOfEquation(key)
           : form == "number"   ? spellingsOfNumber(key)
                                : spellingsOfSolubility(key);
}

TEST(MarksTest, TheKeyIsRightInEachSpelling)
{
    Problems problems;
    forEachExercise(asksForAnything, problems, [&](const Asked& asked) {
        for (const std::string& typed : spellingsOf(asked.exercise)) {
            const Json mark = asked.mark(typed);
            // Behind it there may be the rule of solubility.
            const bool isPraised = textOf(mark["sentence"]).find("Correct.") == 0;
            problems.expect(mark["verdict"] == "correct" && isPraised,
                            "the key is right in each spelling", typed + ": " + mark.dump());
        }
    });
    EXPECT_EQ(problems.text(), "");
}

// -------------------------------------------------------------------------------- all others

// Another value by 5 % to 90 %: more than two units of the last figure, at most 2 %, and rounded
// masses together explain.
TEST(MarksTest, OtherNumbersAreNeverRight)
{
    Problems problems;
    std::mt19937 dice;
    forEachExercise(asksForNumber, problems, [&](const Asked& asked) {
        const int figures = std::stoi(asked.exercise["ask"]["figures"].get<std::string>());
        const std::string text = asked.exercise["key"]["text"];
        const Exact key = Exact::read(text.substr(0, text.find(' ')));
        for (int i = 0; i < 3; ++i) {
            const auto percent = static_cast<std::int64_t>(5 + dice() % 86);
            const Exact factor(100 + (dice() % 2 == 0 ? percent : -percent), 100);
            const std::string typed = typedTo(key * factor, figures);
            const std::string verdict = asked.verdict(typed);
            problems.expect(verdict != "correct" && verdict != "close",
                            "another number is not right", typed + " for " + text);
        }
    });
    EXPECT_EQ(problems.text(), "");
}

// The key of another paper.
TEST(MarksTest, OtherAnswersAreNeverRight)
{
    Problems problems;
    forEachExercise(asksForSymbols, problems, [&](const Asked& asked) {
        const std::string key = asked.exercise["key"]["text"];
        const std::string other =
            exerciseAt(asked.kind, asked.paper + 1, asked.number)["key"]["text"];
        const bool isSame = other == key || (key == "none" && other == "no");
        problems.expect(isSame == (asked.verdict(other) == "correct"),
                        "another answer is not right", other + " for " + key);
    });
    EXPECT_EQ(problems.text(), "");
}

} // namespace
