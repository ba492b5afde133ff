#include <cstdint>
#include <vector>

#include "lesson/kinds/shared/quantities.hpp"
#include "lesson/kinds/titration.hpp"

namespace lesson
{

namespace
{

struct Mistake {
    Ratio answer; // with the right ratio
    Sentence sentence;
};

// Those that are made with the ratio left out too, the commoner ones first.
std::vector<Mistake> mistakesOf(const Titration& drawn)
{
    const Ratio answer = drawn.answer;
    const auto [known, unknown] = volumesOf(drawn);
    const Ratio amount = answer * unknown;
    std::vector<Mistake> mistakes = {
        {amount / known * unknown / known, Sentence::slipVolumesExchanged},
        {amount / known, Sentence::slipVolumesExchanged},
        {amount / (known + unknown), Sentence::slipBothVolumes},
        {amount * unknown, Sentence::slipRelation},
    };
    if (!drawn.titres.empty()) {
        mistakes.push_back(
            {answerFor(drawn, meanWithRoughTitre(drawn)), Sentence::slipRoughTitreInMean});
    }
    return mistakes;
}

// Where it is one to one only by both giving and taking two, it is taken for something else.
void addRatioSlips(Exercise& exercise, const Titration& drawn)
{
    const Ratio answer = drawn.answer;
    const Ratio moles = ratioOf(drawn);
    addSlip(exercise, answer / moles, Sentence::slipRatio);
    addSlip(exercise, answer / moles / moles, Sentence::slipRatio);
    if (moles == ratio(1) && protonsOf(rowOf(drawn.pair->acid)) > 1) {
        addSlip(exercise, answer * ratio(2), Sentence::slipRatio);
        addSlip(exercise, answer / ratio(2), Sentence::slipRatio);
    }
}

// In moles, and in millimoles.
void addAmountSlips(Exercise& exercise, const Titration& drawn)
{
    const Ratio ofKnown = drawn.concentration * volumesOf(drawn).known;
    const Ratio moles = ratioOf(drawn);
    for (const Ratio scale : {ratio(1), ratio(1000)}) {
        if (moles != ratio(1)) {
            addSlip(exercise, ofKnown * scale, Sentence::slipAmountOfKnown);
        }
        addSlip(exercise, ofKnown * moles * scale, Sentence::slipAmount);
    }
}

void addTitreSlips(Exercise& exercise, const Titration& drawn)
{
    const Ratio count = ratio(static_cast<std::int64_t>(drawn.titres.size()) - 1);
    addSlip(exercise, answerFor(drawn, roughTitre(drawn)), Sentence::slipRoughTitre);
    addSlip(exercise, answerFor(drawn, drawn.fromBurette * count), Sentence::slipSumOfTitres);
}

// The ratio left out, and something else. Of a volume in millilitres marks tell only where all else
// is right.
void addSlipsOfTwoMistakes(Exercise& exercise, const Titration& drawn)
{
    const Ratio moles = ratioOf(drawn);
    const Ratio withoutRatio = drawn.answer / moles;
    for (const Mistake& mistake : mistakesOf(drawn)) {
        addSlip(exercise, mistake.answer / moles, Sentence::slipRatioFirst);
    }
    addSlip(exercise, withoutRatio * ratio(1000), Sentence::slipRatioFirst);
    addSlip(exercise, withoutRatio / ratio(1000), Sentence::slipRatioFirst);
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
    addSlip(exercise, drawn.concentration * moles / known / unknown, Sentence::slipRelation);
    addSlip(exercise, ratio(1) / drawn.answer, Sentence::slipRelation);
    if (moles != ratio(1)) {
        addSlipsOfTwoMistakes(exercise, drawn);
    }
}

} // namespace lesson
