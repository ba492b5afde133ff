#include <cstdint>
#include <vector>

#include "lesson/kinds/titration.hpp"
#include "lesson/marking/number.hpp"

namespace lesson
{

namespace
{

constexpr const char* aboutRatio =
    "Look at the numbers in the equation: how many moles react with one?";
constexpr const char* aboutRatioFirst =
    "Two things went wrong, first the ratio. Look at the numbers in the equation: how many moles "
    "react with one?";
constexpr const char* aboutVolumes = "Which volume belongs to which solution?";
constexpr const char* aboutRelation = "Check how amount, concentration and volume are related.";
constexpr const char* isAmount = "That is an amount. One step is left.";
constexpr const char* isAmountOfKnown = "That is the amount of the known. Use the equation next.";

struct Mistake {
    Ratio answer; // with the right ratio
    const char* sentence;
};

// Those that are made with the ratio left out too, the commoner ones first.
std::vector<Mistake> mistakesOf(const Titration& drawn)
{
    const Ratio answer = drawn.answer;
    const auto [known, unknown] = volumesOf(drawn);
    const Ratio amount = answer * unknown;
    std::vector<Mistake> mistakes = {
        {amount / known * unknown / known, aboutVolumes},
        {amount / known, aboutVolumes},
        {amount / (known + unknown), "Use the volume of the unknown solution alone."},
        {amount * unknown, aboutRelation},
    };
    if (!drawn.titres.empty()) {
        mistakes.push_back({answerFor(drawn, meanWithRoughTitre(drawn)),
                            "Leave the rough titre out of the mean."});
    }
    return mistakes;
}

// Where it is one to one only by both giving and taking two, it is taken for something else.
void addRatioSlips(Exercise& exercise, const Titration& drawn)
{
    const Ratio answer = drawn.answer;
    const Ratio moles = ratioOf(drawn);
    addSlip(exercise, answer / moles, aboutRatio);
    addSlip(exercise, answer / moles / moles, aboutRatio);
    if (moles == ratio(1) && protonsOf(rowOf(drawn.pair->acid)) > 1) {
        addSlip(exercise, answer * ratio(2), aboutRatio);
        addSlip(exercise, answer / ratio(2), aboutRatio);
    }
}

// In moles, and in millimoles.
void addAmountSlips(Exercise& exercise, const Titration& drawn)
{
    const Ratio ofKnown = drawn.concentration * volumesOf(drawn).known;
    const Ratio moles = ratioOf(drawn);
    for (const Ratio scale : {ratio(1), ratio(1000)}) {
        if (moles != ratio(1)) {
            addSlip(exercise, ofKnown * scale, isAmountOfKnown);
        }
        addSlip(exercise, ofKnown * moles * scale, isAmount);
    }
}

void addTitreSlips(Exercise& exercise, const Titration& drawn)
{
    const Ratio count = ratio(static_cast<std::int64_t>(drawn.titres.size()) - 1);
    addSlip(exercise, answerFor(drawn, roughTitre(drawn)),
            "The rough titre is only a first guess.");
    addSlip(exercise, answerFor(drawn, drawn.fromBurette * count),
            "Divide the sum of the titres by how many they are.");
}

// The ratio left out, and something else. Of a volume in millilitres marks tell only where all else
// is right.
void addSlipsOfTwoMistakes(Exercise& exercise, const Titration& drawn)
{
    const Ratio moles = ratioOf(drawn);
    const Ratio withoutRatio = drawn.answer / moles;
    for (const Mistake& mistake : mistakesOf(drawn)) {
        addSlip(exercise, mistake.answer / moles, aboutRatioFirst);
    }
    addSlip(exercise, withoutRatio * ratio(1000), aboutRatioFirst);
    addSlip(exercise, withoutRatio / ratio(1000), aboutRatioFirst);
}

} // namespace

void addTitrationSlips(Exercise& exercise, const Titration& drawn)
{
    addRatioSlips(exercise, drawn);
    for (const Mistake& mistake : mistakesOf(drawn)) {
        addSlip(exercise, mistake.answer, mistake.sentence);
    }
    addAmountSlips(exercise, drawn);
    if (!drawn.titres.empty()) {
        addTitreSlips(exercise, drawn);
    }
    const auto [known, unknown] = volumesOf(drawn);
    const Ratio moles = ratioOf(drawn);
    addSlip(exercise, drawn.concentration * moles / known / unknown, aboutRelation);
    addSlip(exercise, ratio(1) / drawn.answer, aboutRelation);
    if (moles != ratio(1)) {
        addSlipsOfTwoMistakes(exercise, drawn);
    }
}

} // namespace lesson
