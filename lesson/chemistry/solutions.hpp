#pragma once

#include <string_view>
#include <vector>

namespace lesson
{

// How a substance is weighed for a solution. Most salts come as they are. Of those that are sold as
// hydrates the one without water is called anhydrous; some are never weighed without it, since it
// cannot be driven out (nitrates fall apart) or must not meet water (iron(III) chloride).
enum class Weighed {
    asItIs,
    asAnhydrous,
    never, // nor is what comes as a solution
};

// A substance that is in solution in some exercise, and how much of it. What has no row is not
// dissolved.
struct SoluteRow {
    std::string_view formula;
    std::string_view name;     // "copper(II) sulfate pentahydrate", "hydrochloric acid"
    std::string_view american; // "sodium acetate"; empty where that is the same
    int ceiling; // greatest concentration, in hundredths of mol/L; 0 where titrations have
                 // a range of their own
    Weighed weighed;
    int greatestMass = 0; // to weigh, in hundredths of a gram; 0 where the ceiling says enough
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
