#include "lesson/kinds/kinds.hpp"

#include <algorithm>

namespace lesson
{

const KindList& allKinds()
{
    // clang-format off
    static const KindList kinds = {
        &molarMassKind,
        &compoundFormulaKind,
        &ionFormulaKind,
        &solubilityKind,
        &concentrationKind,
        &dilutionKind,
        &neutralisationKind,
        &titrationKind,
    };
    // clang-format on
    return kinds;
}

const Kind* findKind(std::string_view slug, const KindList& kinds)
{
    const auto found = std::find_if(kinds.begin(), kinds.end(),
                                    [slug](const Kind* kind) { return kind->slug == slug; });
    return found == kinds.end() ? nullptr : *found;
}

} // namespace lesson
