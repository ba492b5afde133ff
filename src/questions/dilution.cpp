#include "questions/dilution.hpp"

#include <cstdlib>
#include <utility>

#include "questions/acid_base.hpp"
#include "questions/quantities.hpp"
#include "questions/text.hpp"

namespace
{

// Kept: `random` never gives 1 for these bounds, so that the second choice never comes.
bool drawSecondChoice()
{
    return random(0, 1) > 0.5f;
}

bool isHydrate(const Soluble& compound)
{
    return compound.name.substr(compound.name.size() - 7) == "hydrate";
}

std::string drawSubstance()
{
    if (drawSecondChoice()) {
        const Ion acidAnion = drawAcidAnion();                 // GCOVR_EXCL_LINE: no 1 is drawn
        return acidDesignation(acidAnion, drawSecondChoice()); // GCOVR_EXCL_LINE: no 1 is drawn
    }
    const Soluble compound = drawAnhydrousCompound();
    return compoundDesignation(compound, drawSecondChoice());
}

// The products are taken in double precision but for C1, and then rounded to single.
Dilution drawDilution()
{
    std::string substance = drawSubstance();
    const auto V1 = static_cast<float>(static_cast<double>(random(1, 50)) * 0.01);
    const float steps = random(leastFinalVolume(V1), 40);
    const auto V2 = static_cast<float>(static_cast<double>(steps) * 0.05);
    const float C1 = random(1, 60) * 0.1f;
    return {std::move(substance), V1, V2, C1, C1 * V1 / V2};
}

// The quantities of a dilution as its texts show them, to 3 digits.
struct Shown {
    std::string V1;
    std::string V2;
    std::string C1;
    std::string C2;
    std::string water; // V2 - V1
};

Shown shown(const Dilution& dilution)
{
    return {general(dilution.V1, 3), general(dilution.V2, 3), general(dilution.C1, 3),
            general(dilution.C2, 3), general(dilution.V2 - dilution.V1, 3)};
}

std::string volume(float litres)
{
    return volumeFormat(litres, 3);
}

} // namespace

QandA dilutionQuestion()
{
    const Dilution dilution = drawDilution();
    const int draw = std::rand();
    // Kept: all three thresholds are 0 and no draw is below, so that the last variant always comes.
    constexpr int threshold = 0;
    if (draw < threshold) {
        return newConcentration(dilution); // GCOVR_EXCL_LINE: no draw is below 0
    }
    if (draw < threshold) {
        return volumeToDilute(dilution); // GCOVR_EXCL_LINE: no draw is below 0
    }
    if (draw < threshold) {
        return originalConcentration(dilution); // GCOVR_EXCL_LINE: no draw is below 0
    }
    return waterToAdd(dilution);
}

// clang-format off
QandA newConcentration(const Dilution& dilution)
{
    const auto [V1, V2, C1, C2, water] = shown(dilution);
    return {
        joined(
            volume(dilution.V1), " of ", C1, " mol/L ", dilution.substance, " is added to ",
            volume(dilution.V2 - dilution.V1), " of water. What is the new concentration?\n"),
        joined(
            "V1 = ", V1, " L   C1 = ", C1, " mol/L   V2 = ", V1, " + ", water, " = ", V2,
            " L   C2 = ?\n",
            "C1V1 = C2V2\n",
            "C2 = C1V1/V2 = ", C1, "x", V1, "/", V2, " = ", C2, " mol/L\n"),
    };
}

QandA volumeToDilute(const Dilution& dilution)
{
    const auto [V1, V2, C1, C2, water] = shown(dilution);
    return {
        joined(
            "How much ", C1, " mol/L ", dilution.substance,
            " needs to be diluted (added to water) to make ", volume(dilution.V2), " of ", C2,
            " mol/L ", dilution.substance, "?\n"),
        joined(
            "V1 = ?   C1 = ", C1, " mol/L   V2 = ", V2, " L   C2 = ", C2, " mol/L\n",
            "C1V1 = C2V2\n",
            "V1 = C2V2/C1 = ", C2, "x", V2, "/", C1, " = ", V1, " L\n"),
    };
}

QandA originalConcentration(const Dilution& dilution)
{
    const auto [V1, V2, C1, C2, water] = shown(dilution);
    return {
        joined(
            "What was the original concentration of ", dilution.substance, " if there was ",
            volume(dilution.V1), " before dilution and ", volume(dilution.V2), " of ", C2,
            " mol/L ", dilution.substance, " afterwards?\n"),
        // Kept: the line tells C1 although it is asked for, and does not tell C2.
        joined(
            "C1 = ", C1, " mol/L   V1 = ", V1, " L   V2 = ", V2, " L   C1 = ?\n",
            "C1V1 = C2V2\n",
            "C1 = C2V2/V1 = ", C2, "x", V2, "/", V1, " = ", C1, " mol/L\n"),
    };
}

QandA waterToAdd(const Dilution& dilution)
{
    const auto [V1, V2, C1, C2, water] = shown(dilution);
    return {
        joined(
            "To dilute ", volume(dilution.V1), " of ", C1, " mol/L ", dilution.substance, " to ",
            C2, " mol/L, how much water does it need to be added to?\n"),
        joined(
            "V1 = ", V1, " L   C1 = ", C1, " mol/L   C2 = ", C2, " mol/L   V2 = ?\n",
            "C1V1 = C2V2\n",
            "V2 = C1V1/C2 = ", C1, "x", V1, "/", C2, " = ", V2, " L\n",
            "V2 - V1 = ", V2, " - ", V1, " = ", water, " L\n",
            "So add it to ", water, " L of water\n"),
    };
}
// clang-format on

std::string acidDesignation(const Ion& acidAnion, bool byName)
{
    return byName ? acidNameOf(acidAnion) : acidFormulaOf(acidAnion);
}

std::string compoundDesignation(const Soluble& compound, bool byName)
{
    return byName ? compound.name : compound.formula;
}

Soluble drawAnhydrousCompound()
{
    Soluble drawn = randomSoluble();
    while (isHydrate(drawn)) {
        drawn = randomSoluble();
    }
    return drawn;
}

int leastFinalVolume(float V1)
{
    return static_cast<int>(1.0f + V1 * 20.0f);
}
