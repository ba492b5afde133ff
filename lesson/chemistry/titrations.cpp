#include "lesson/chemistry/titrations.hpp"

#include <iterator>

namespace lesson
{

namespace
{

// A strong acid and an alkali may stand in either place with either indicator. Of a weak acid, a
// weak base or a carbonate only one indicator shows the end, and the strong one is added to it, for
// a sharp change of colour. Lithium hydroxide is rare at school.
// clang-format off
constexpr TitrationRow rows[] = {
    {Acid::hydrochloric, BaseKind::hydroxide,         Ion::lithium,   Indicator::either,          InBurette::either, 1},
    {Acid::hydrochloric, BaseKind::hydroxide,         Ion::sodium,    Indicator::either,          InBurette::either, 3},
    {Acid::hydrochloric, BaseKind::hydroxide,         Ion::potassium, Indicator::either,          InBurette::either, 3},
    {Acid::nitric,       BaseKind::hydroxide,         Ion::lithium,   Indicator::either,          InBurette::either, 1},
    {Acid::nitric,       BaseKind::hydroxide,         Ion::sodium,    Indicator::either,          InBurette::either, 3},
    {Acid::nitric,       BaseKind::hydroxide,         Ion::potassium, Indicator::either,          InBurette::either, 3},
    {Acid::sulfuric,     BaseKind::hydroxide,         Ion::lithium,   Indicator::either,          InBurette::either, 1},
    {Acid::sulfuric,     BaseKind::hydroxide,         Ion::sodium,    Indicator::either,          InBurette::either, 3},
    {Acid::sulfuric,     BaseKind::hydroxide,         Ion::potassium, Indicator::either,          InBurette::either, 3},
    {Acid::hydrochloric, BaseKind::carbonate,         Ion::sodium,    Indicator::methylOrange,    InBurette::acid, 3},
    {Acid::hydrochloric, BaseKind::carbonate,         Ion::potassium, Indicator::methylOrange,    InBurette::acid, 3},
    {Acid::hydrochloric, BaseKind::hydrogencarbonate, Ion::sodium,    Indicator::methylOrange,    InBurette::acid, 3},
    {Acid::hydrochloric, BaseKind::hydrogencarbonate, Ion::potassium, Indicator::methylOrange,    InBurette::acid, 3},
    {Acid::nitric,       BaseKind::carbonate,         Ion::sodium,    Indicator::methylOrange,    InBurette::acid, 3},
    {Acid::nitric,       BaseKind::carbonate,         Ion::potassium, Indicator::methylOrange,    InBurette::acid, 3},
    {Acid::nitric,       BaseKind::hydrogencarbonate, Ion::sodium,    Indicator::methylOrange,    InBurette::acid, 3},
    {Acid::nitric,       BaseKind::hydrogencarbonate, Ion::potassium, Indicator::methylOrange,    InBurette::acid, 3},
    {Acid::sulfuric,     BaseKind::carbonate,         Ion::sodium,    Indicator::methylOrange,    InBurette::acid, 3},
    {Acid::sulfuric,     BaseKind::carbonate,         Ion::potassium, Indicator::methylOrange,    InBurette::acid, 3},
    {Acid::sulfuric,     BaseKind::hydrogencarbonate, Ion::sodium,    Indicator::methylOrange,    InBurette::acid, 3},
    {Acid::sulfuric,     BaseKind::hydrogencarbonate, Ion::potassium, Indicator::methylOrange,    InBurette::acid, 3},
    {Acid::ethanoic,     BaseKind::hydroxide,         Ion::lithium,   Indicator::phenolphthalein, InBurette::base, 1},
    {Acid::ethanoic,     BaseKind::hydroxide,         Ion::sodium,    Indicator::phenolphthalein, InBurette::base, 3},
    {Acid::ethanoic,     BaseKind::hydroxide,         Ion::potassium, Indicator::phenolphthalein, InBurette::base, 3},
    {Acid::hydrochloric, BaseKind::ammonia,           Ion::ammonium,  Indicator::methylOrange,    InBurette::acid, 3},
    {Acid::sulfuric,     BaseKind::ammonia,           Ion::ammonium,  Indicator::methylOrange,    InBurette::acid, 3},
    {Acid::ethanedioic,  BaseKind::hydroxide,         Ion::sodium,    Indicator::phenolphthalein, InBurette::base, 3},
};
static_assert(std::size(rows) == 27);
// clang-format on

} // namespace

const std::vector<TitrationRow>& titrations()
{
    static const std::vector<TitrationRow> all(std::begin(rows), std::end(rows));
    return all;
}

Base baseOf(const TitrationRow& titration)
{
    return baseOf(titration.base, titration.cation);
}

} // namespace lesson
