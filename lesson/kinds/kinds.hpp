#pragma once

#include <string_view>
#include <vector>

#include "lesson/kinds/kind.hpp"

namespace lesson
{

// One file a kind, and one line here and in `allKinds`.
extern const Kind molarMassKind;
extern const Kind compoundFormulaKind;
extern const Kind ionFormulaKind;
extern const Kind solubilityKind;
extern const Kind concentrationKind;
extern const Kind dilutionKind;
extern const Kind neutralisationKind;
extern const Kind titrationKind;

using KindList = std::vector<const Kind*>;

// In the order in which they are listed everywhere. It may be changed: no draw depends on it.
const KindList& allKinds();

// The one with this slug; null where there is none.
const Kind* findKind(std::string_view slug, const KindList& kinds = allKinds());

} // namespace lesson
