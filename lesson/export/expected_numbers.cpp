#include <algorithm>
#include <utility>
#include <variant>

#include "lesson/export/expected.hpp"
#include "lesson/marking/number.hpp"
#include "lesson/numbers/decimal.hpp"
#include "lesson/numbers/ratio.hpp"
#include "lesson/numbers/sort_few.hpp"
#include "lesson/words/render.hpp"
#include "lesson/words/say.hpp"

namespace lesson
{

namespace
{

// The answers with the figures asked for that agree with a value: the value rounded, and so many
// steps of its last figure below and above it. They are counted by the rule of the marking itself,
// since neither one unit nor half a per cent around the rounded value is the same: half a per cent
// is meant around the exact value, which may lie nearly half a unit to one side.
struct Run {
    Decimal rounded;
    int below; // 1 at least, like `above`
    int above;
};

Decimal stepped(Decimal decimal, int steps)
{
    return {decimal.digits + steps, decimal.exponent};
}

Run runAround(Ratio value, int figures, bool isMolarMass)
{
    Run run = {roundedTo(value, figures), 0, 0};
    const auto agreesAt = [&](int steps) {
        return agrees(stepped(run.rounded, steps), value, figures, isMolarMass);
    };
    while (agreesAt(-run.below - 1)) {
        ++run.below;
    }
    while (agreesAt(run.above + 1)) {
        ++run.above;
    }
    return run;
}

Ratio least(const Run& run)
{
    return valueOf(stepped(run.rounded, -run.below));
}

Ratio greatest(const Run& run)
{
    return valueOf(stepped(run.rounded, run.above));
}

// From one number to another, both included.
struct Range {
    Ratio low;
    Ratio high;
};

Range rangeOf(const Run& run)
{
    return {least(run), greatest(run)};
}

// Ranges that meet, or leave no step of the last figure between them, are one.
std::vector<Range> joined(std::vector<Range> ranges, Ratio step)
{
    sortFew(ranges, [](const Range& one, const Range& other) { return one.low < other.low; });
    std::vector<Range> all;
    for (const Range& range : ranges) {
        if (all.empty() || all.back().high + step < range.low) {
            all.push_back(range);
        } else if (all.back().high < range.high) {
            all.back().high = range.high;
        }
    }
    return all;
}

// As much as the run has on both sides of the rounded value.
Ratio inner(const Run& run)
{
    return ratio(std::min(run.below, run.above)) * powerOfTen(run.rounded.exponent);
}

class Numbers
{
public:
    Numbers(const Exercise& asked, const Writing& written)
        : exercise(asked), writing(written), answer(*std::get_if<NumberAnswer>(&asked.answer)),
          run(around(answer.value)), right{rangeOf(run)}
    {
    }

    // In the order of the marking.
    std::vector<Expected> all()
    {
        addKey();
        addRoundedMasses();
        addMoreFigures();
        addFewerFigures();
        addSlips();
        addPowersOfTen();
        addClose();
        return std::move(expected);
    }

private:
    Run around(Ratio value) const
    {
        return runAround(value, exercise.ask.figures, answer.isMolarMass);
    }

    Mark mark(Decimal typed) const
    {
        return markAnswer(exercise, plainText(typed));
    }

    std::string told(const Mark& mark) const
    {
        return plainText(mark.sentence, writing);
    }

    void add(int percent, std::string text, Ratio tolerance, std::string sentence)
    {
        expected.push_back({percent, std::move(text), exactText(tolerance), std::move(sentence)});
    }

    // What lies between two values.
    void addBetween(int percent, Ratio low, Ratio high, std::string sentence)
    {
        const Ratio half = ratio(1, 2);
        add(percent, exactText((low + high) * half), (high - low) * half, std::move(sentence));
    }

    // What is said of the first number of a run that is correct and that is none of these; empty
    // where there is none.
    std::string sentenceOfOther(const Run& other, Ratio low, Ratio high) const
    {
        for (int steps = -other.below; steps <= other.above; ++steps) {
            const Decimal typed = stepped(other.rounded, steps);
            if (valueOf(typed) < low || high < valueOf(typed)) {
                const Mark marked = mark(typed);
                if (marked.verdict == Verdict::correct) {
                    return told(marked);
                }
            }
        }
        return {};
    }

    // Answers with more figures are rounded first, and so may be half a step further off. The steps
    // below a power of ten are a tenth as long.
    Range withMoreFigures(Range range) const
    {
        const Ratio step = powerOfTen(run.rounded.exponent);
        const Ratio lowest = powerOfTen(exercise.ask.figures - 1) * step;
        const Ratio below = range.low < lowest + step ? step * ratio(1, 20) : step * ratio(1, 2);
        // From a power of ten on the steps are ten times as long, and only the power itself is
        // near.
        const Ratio power = lowest * ratio(10);
        const Ratio high =
            power <= range.high ? power + step * ratio(5) : range.high + step * ratio(1, 2);
        return {range.low - below, high};
    }

    // The rounded value is what a program shows as the answer, so it stands first, with what is
    // right on both sides of it. Where the run goes further on one side, a second answer takes it
    // in, so that nothing right is refused and nothing else let in.
    void addKey()
    {
        const Ratio rounded = valueOf(run.rounded);
        add(100, plainText(run.rounded), inner(run), told(mark(run.rounded)));
        if (run.below != run.above) {
            addBetween(100, least(run), greatest(run), sentenceOfOther(run, rounded, rounded));
        }
    }

    // Tables lead to many values, and what is right around them mostly meets. More figures are
    // right in molar masses.
    void addRoundedMasses()
    {
        std::vector<Range> ranges;
        std::string sentence;
        for (const Ratio value : answer.withRoundedMasses) {
            const Run other = around(value);
            std::string ofOther = sentenceOfOther(other, least(run), greatest(run));
            if (!ofOther.empty()) {
                ranges.push_back(rangeOf(other));
                sentence = std::move(ofOther);
            }
        }
        const std::vector<Range> apart =
            joined(std::move(ranges), powerOfTen(run.rounded.exponent));
        for (const Range& range : apart) {
            const Range all = answer.isMolarMass ? withMoreFigures(range) : range;
            addBetween(100, all.low, all.high, sentence);
            right.push_back(range);
        }
    }

    void addMoreFigures()
    {
        const Decimal end = stepped(run.rounded, run.above);
        const Mark marked = mark({end.digits * 10 + 4, end.exponent - 1});
        const int percent = percentFor(marked.verdict);
        if (percent == 0) {
            return;
        }
        const Range all = withMoreFigures(rangeOf(run));
        addBetween(percent, all.low, all.high, told(marked));
    }

    // Whether something else has to be told of a value that rounding to fewer figures leads to.
    // Nobody sees whether a zero at the end was typed: 0.410 by a slip looks like 0.41 for 0.406.
    // Nor is a slip's answer, rounded to as few, praised.
    bool isTaken(Decimal fewer, int figures) const
    {
        const Ratio value = valueOf(fewer);
        const auto isWithin = [value](const Range& one) {
            return one.low <= value && value <= one.high;
        };
        const auto isSlip = [&](const Slip& slip) {
            return valueOf(roundedTo(*slip.value, exercise.ask.figures)) == value ||
                   valueOf(roundedTo(*slip.value, figures)) == value;
        };
        return std::any_of(right.begin(), right.end(), isWithin) ||
               std::any_of(exercise.slips.begin(), exercise.slips.end(), isSlip) ||
               expected.back().text == plainText(fewer);
    }

    // A half may have been rounded up or down.
    void addFewerFigures()
    {
        for (int figures = exercise.ask.figures - 1; figures >= 1; --figures) {
            const Decimal upper = roundedTo(answer.value, figures);
            for (const Decimal fewer : {upper, stepped(upper, -1)}) {
                const Mark marked = mark(fewer);
                if (marked.verdict == Verdict::figures && !isTaken(fewer, figures)) {
                    add(50, plainText(fewer), ratio(0), told(marked));
                }
            }
        }
    }

    // With the tolerance on the smaller side, so that none takes the place of another one.
    void addMistake(Decimal typed, Ratio tolerance, Verdict wanted)
    {
        const Mark marked = mark(typed);
        if (marked.verdict == wanted) {
            add(0, plainText(typed), tolerance, told(marked));
        }
    }

    void addSlips()
    {
        for (const Slip& slip : exercise.slips) {
            const Run around = this->around(*slip.value);
            addMistake(around.rounded, inner(around), Verdict::slip);
        }
    }

    void addPowersOfTen()
    {
        constexpr int most = 3;
        for (int power = -most; power <= most; ++power) {
            addMistake({run.rounded.digits, run.rounded.exponent + power},
                       inner(run) * powerOfTen(power), Verdict::powerOfTen);
        }
    }

    // What is said of the first number beyond the runs that is very close; empty where none is.
    // They are probed with a figure more than asked for, from where the band begins.
    std::string sentenceOfClose(Decimal begin, int direction) const
    {
        const Ratio greatestMiss = answer.value * ratio(1, 100);
        constexpr std::int64_t half = 5; // of the last figure
        Decimal probe = {begin.digits * 10 + half * direction, begin.exponent - 1};
        do {
            probe.digits += direction;
            const Mark marked = mark(probe);
            if (marked.verdict == Verdict::close) {
                return told(marked);
            }
        } while (magnitude(valueOf(probe) - answer.value) < greatestMiss);
        return {};
    }

    // 1 %, and a trace more where the text of the value is rounded.
    void addClose()
    {
        std::string sentence = sentenceOfClose(stepped(run.rounded, -run.below), -1);
        if (sentence.empty()) {
            sentence = sentenceOfClose(stepped(run.rounded, run.above), 1);
        }
        if (sentence.empty()) {
            return;
        }
        if (answer.isMolarMass) { // where a forgotten hydrogen cannot be told from wrong masses
            sentence = plainText({say<Sentence::exportCloseMolarMass>()}, writing);
        }
        const Ratio hundredth = answer.value * ratio(1, 100);
        Decimal tolerance = roundedTo(hundredth, 9);
        tolerance.digits += valueOf(tolerance) == hundredth ? 0 : 1;
        add(50, exactText(answer.value), valueOf(tolerance), std::move(sentence));
    }

    const Exercise& exercise;
    const Writing& writing;
    const NumberAnswer& answer;
    Run run;
    std::vector<Range> right; // of this run, and of those with rounded masses
    std::vector<Expected> expected;
};

} // namespace

std::vector<Expected> expectedNumbers(const Exercise& exercise, const Writing& writing)
{
    return Numbers(exercise, writing).all();
}

} // namespace lesson
