#pragma once

#include <string>
#include <variant>
#include <vector>

#include "lesson/kinds/kinds.hpp"
#include "lesson/marking/formula.hpp"
#include "lesson/marking/ion.hpp"
#include "lesson/marking/solubility.hpp"
#include "lesson/tests/support/calculation.hpp"
#include "lesson/tests/support/plain.hpp"

// What the tests of formulas, ions and solubility share.
namespace lesson
{

// The first exercises of a paper.
inline std::vector<Exercise> saltExercises(unsigned paper, const Kind* kind, int level,
                                           unsigned count)
{
    std::vector<Exercise> exercises;
    for (unsigned number = 1; number <= count; ++number) {
        exercises.push_back(makeExercise({paper, number, kind, level}));
    }
    return exercises;
}

struct MarkTyped {
    const Exercise& exercise;
    const std::string& typed;

    Mark operator()(const FormulaAnswer& answer) const
    {
        return markFormula(answer, exercise.slips, typed);
    }
    Mark operator()(const IonAnswer& answer) const
    {
        return markIon(answer, exercise.slips, typed);
    }
    Mark operator()(const SolubilityAnswer& answer) const
    {
        return markSolubility(answer, typed);
    }
    Mark operator()(const PrecipitateAnswer& answer) const
    {
        return markPrecipitate(answer, exercise.slips, typed);
    }
    template <typename Other>
    Mark operator()(const Other& /*answer*/) const
    {
        return {Verdict::unreadable, line("no exercise of these kinds")};
    }
};

inline Mark markTyped(const Exercise& exercise, const std::string& typed)
{
    return std::visit(MarkTyped{exercise, typed}, exercise.answer);
}

inline const IonRow& givenIon(const Exercise& exercise, std::size_t place)
{
    return *std::get<GivenIon>(exercise.given.at(place)).ion;
}

// The given ions as they stand in the text: "Al^3+, SO4^2-".
inline std::string givenIons(const Exercise& exercise)
{
    std::string ions;
    for (std::size_t i = 0; i < exercise.given.size(); ++i) {
        const IonRow& ion = givenIon(exercise, i);
        ions += (i == 0 ? "" : ", ") + std::string(ion.formula) + "^" + chargeText(ion);
    }
    return ions;
}

} // namespace lesson
