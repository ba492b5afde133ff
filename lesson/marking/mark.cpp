#include "lesson/exercise.hpp"
#include "lesson/marking/equation.hpp"
#include "lesson/marking/formula.hpp"
#include "lesson/marking/ion.hpp"
#include "lesson/marking/number.hpp"
#include "lesson/marking/solubility.hpp"

namespace lesson
{

namespace
{

// One overload a form of answer.

Mark mark(const NumberAnswer& answer, const Exercise& exercise, std::string_view typed,
          const Writing& writing)
{
    return markNumber(answer, exercise.ask, exercise.slips, typed, writing);
}

Mark mark(const FormulaAnswer& answer, const Exercise& exercise, std::string_view typed,
          const Writing& /*writing*/)
{
    return markFormula(answer, exercise.slips, typed);
}

Mark mark(const IonAnswer& answer, const Exercise& exercise, std::string_view typed,
          const Writing& /*writing*/)
{
    return markIon(answer, exercise.slips, typed);
}

Mark mark(const SolubilityAnswer& answer, const Exercise& /*exercise*/, std::string_view typed,
          const Writing& /*writing*/)
{
    return markSolubility(answer, typed);
}

Mark mark(const PrecipitateAnswer& answer, const Exercise& exercise, std::string_view typed,
          const Writing& /*writing*/)
{
    return markPrecipitate(answer, exercise.slips, typed);
}

Mark mark(const EquationAnswer& answer, const Exercise& /*exercise*/, std::string_view typed,
          const Writing& /*writing*/)
{
    return markEquation(answer, typed);
}

} // namespace

Mark markAnswer(const Exercise& exercise, std::string_view typed, const Writing& writing)
{
    return std::visit([&](const auto& answer) { return mark(answer, exercise, typed, writing); },
                      exercise.answer);
}

} // namespace lesson
