// Every order of working is right: whatever factor a learner begins with, whether a result is
// multiplied, divided, or divided into the next factor, and whether each result is rounded to three
// figures or to four, what comes out is correct; with five figures nearly always.

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "lesson/tests/every/learners.hpp"
#include "lesson/tests/every/quantities.hpp"

namespace
{

// What is multiplied, and what it is divided by.
struct Factor {
    Exact value;
    bool isDivisor;
};
using Factors = std::vector<Factor>;

// Gathers what all orders of taking up the factors end in, each result but the last rounded to so
// many figures. What has been taken up is `result`, or the reciprocal of it.
void gather(std::vector<Exact>& ends, const Factors& left, const Exact& result, bool isReciprocal,
            int figures)
{
    if (left.empty()) {
        if (!isReciprocal) {
            ends.push_back(result);
        }
        return;
    }
    for (std::size_t i = 0; i < left.size(); ++i) {
        Factors others = left;
        others.erase(others.begin() + static_cast<std::ptrdiff_t>(i));
        const Exact factor = left[i].value;
        const auto goOn = [&](const Exact& next, bool isNextReciprocal) {
            gather(ends, others, others.empty() ? next : next.toFigures(figures), isNextReciprocal,
                   figures);
        };
        if (left[i].isDivisor == isReciprocal) {
            goOn(result * factor, isReciprocal);
        } else {
            goOn(result / factor, isReciprocal);
            goOn(factor / result, !isReciprocal);
        }
    }
}

std::vector<Exact> endsOf(const Factors& factors, int figures)
{
    std::vector<Exact> ends;
    for (std::size_t i = 0; i < factors.size(); ++i) {
        Factors others = factors;
        others.erase(others.begin() + static_cast<std::ptrdiff_t>(i));
        gather(ends, others, factors[i].value, factors[i].isDivisor, figures);
    }
    return ends;
}

void append(std::vector<Exact>& all, const std::vector<Exact>& more)
{
    all.insert(all.end(), more.begin(), more.end());
}

// A molar mass that is worked out is rounded, or kept as it is.
std::vector<Exact> concentrationEnds(const Json& exercise, int figures)
{
    const Exact molarMass = givenValue(exercise, "M");
    const Exact volume = givenValue(exercise, "V");
    std::vector<Exact> used = {molarMass};
    if (!isTold(*givenQuantity(exercise, "M"))) {
        used.push_back(molarMass.toFigures(figures));
    }
    std::vector<Exact> ends;
    for (const Exact& mass : used) {
        append(ends,
               asksFor(exercise, "m")
                   ? endsOf({{givenValue(exercise, "c"), false}, {volume, false}, {mass, false}},
                            figures)
                   : endsOf({{givenValue(exercise, "m"), false}, {volume, true}, {mass, true}},
                            figures));
    }
    return ends;
}

std::vector<Exact> dilutionEnds(const Json& exercise, int figures)
{
    const auto [c1, V1, c2, V2] = dilutionOf(exercise);
    if (asksFor(exercise, "c2")) {
        return endsOf({{c1, false}, {V1, false}, {V2, true}}, figures);
    }
    if (asksFor(exercise, "c1")) {
        return endsOf({{c2, false}, {V2, false}, {V1, true}}, figures);
    }
    if (asksFor(exercise, "V1")) {
        return endsOf({{c2, false}, {V2, false}, {c1, true}}, figures);
    }
    const bool isWholeGiven = isGiven(exercise, "V2");
    std::vector<Exact> ends = isWholeGiven
                                  ? endsOf({{c2, false}, {V2, false}, {c1, true}}, figures)
                                  : endsOf({{c1, false}, {V1, false}, {c2, true}}, figures);
    for (Exact& end : ends) {
        const Exact rounded = end.toFigures(figures);
        end = isWholeGiven ? V2 - rounded : rounded - V1;
    }
    return ends;
}

std::vector<Exact> titrationEnds(const Json& exercise, int figures)
{
    const Titration drawn = titrationOf(exercise);
    std::vector<Titration> used = {drawn};
    if (!drawn.titres.empty()) {
        const Exact mean = drawn.isKnownInBurette ? drawn.known : drawn.unknown;
        used.push_back(withTitre(drawn, mean.toFigures(figures)));
    }
    std::vector<Exact> ends;
    for (const Titration& t : used) {
        const Factors factors = {{t.c, false}, {t.known, false}, {t.unknown, true}};
        if (t.r == Exact(1)) {
            append(ends, endsOf(factors, figures));
            continue;
        }
        // Half of it is times 1/2, or divided by 2.
        for (const Factor& ratio : {Factor{t.r, false}, Factor{Exact(1) / t.r, true}}) {
            Factors withRatio = factors;
            withRatio.push_back(ratio);
            append(ends, endsOf(withRatio, figures));
        }
    }
    return ends;
}

using Ends = std::vector<Exact> (*)(const Json& exercise, int figures);

// How many of those who round each result to five figures are right.
struct WithFive {
    int right = 0;
    int all = 0;
};

void checkAnswers(Problems& problems, const Asked& asked, Ends ends, WithFive& withFive)
{
    std::map<std::string, std::string> verdicts;
    for (const int figures : {3, 4, 5}) {
        std::set<std::string> typed;
        for (const Exact& end : ends(asked.exercise, figures)) {
            typed.insert(plainNumber(end, asked.figures()));
        }
        for (const std::string& answer : typed) {
            std::string& verdict = verdicts[answer];
            if (verdict.empty()) {
                verdict = asked.mark(answer)["verdict"];
            }
            problems.expect(verdict == "correct" || (figures == 5 && verdict == "close"),
                            "every order of working is right",
                            answer + " for " + asked.keyText() + ": " + verdict);
            withFive.all += figures == 5 ? 1 : 0;
            withFive.right += figures == 5 && verdict == "correct" ? 1 : 0;
        }
    }
}

void checkOrders(const char* slug, Ends ends)
{
    Problems problems;
    WithFive withFive;
    for (int level = 1; level <= 3; ++level) {
        for (const Asked& asked : firstExercises(kindAt(slug, level), papersToCheck() / 3 + 1)) {
            problems.at(asked.kind, asked.paper, asked.number);
            checkAnswers(problems, asked, ends, withFive);
        }
    }
    EXPECT_EQ(problems.text(), "");
    EXPECT_GE(1000 * withFive.right, 994 * withFive.all) << "of " << withFive.all;
}

TEST(OrdersTest, EveryOrderOfWorkingAConcentrationOutIsRight)
{
    checkOrders("concentration", concentrationEnds);
}

TEST(OrdersTest, EveryOrderOfWorkingADilutionOutIsRight)
{
    checkOrders("dilution", dilutionEnds);
}

TEST(OrdersTest, EveryOrderOfWorkingATitrationOutIsRight)
{
    checkOrders("titration", titrationEnds);
}

} // namespace
