#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "lesson/chemistry/name.hpp"

namespace lesson
{

enum class SoluteKind { salt, hydrate, acid, ammonia }; // an alkali is among the salts

// How a substance is weighed for a solution. Most salts come as they are. Of those that are sold as
// hydrates the one without water is called anhydrous; some are never weighed without it, since it
// cannot be driven out (nitrates fall apart) or must not meet water (iron(III) chloride).
enum class Weighed {
    asItIs,
    asAnhydrous,
    never,
    comesDissolved, // and its name means the solution
};

// A substance that is in solution in some exercise, and how much of it. What has no row is not
// dissolved.
struct SoluteRow {
    SoluteKind kind;
    std::string formula;
    std::string anhydrous; // the formula without water of crystallisation
    int ceiling; // greatest concentration, in hundredths of mol/L; 0 where titrations have
                 // a range of their own
    Weighed weighed;
    int greatestMass; // to weigh, in hundredths of a gram; 0 where the ceiling says enough
    Name name;
};

// Salts and alkalis whose solutions are diluted.
const std::vector<SoluteRow>& solutes();
// Those of them that are weighed and dissolved.
const std::vector<SoluteRow>& weighedSolutes();
// The same with water of crystallisation; each has the ceiling of its salt. For weighing only.
const std::vector<SoluteRow>& hydrates();
// What comes as a solution and is only diluted.
const std::vector<SoluteRow>& acidSolutions();
// What is in titrations alone, besides some of the above.
const std::vector<SoluteRow>& furtherTitrants();

// The row of a formula in any of these; null where there is none.
const SoluteRow* findSolute(std::string_view formula);

} // namespace lesson
