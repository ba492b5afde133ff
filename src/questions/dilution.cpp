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

QandA newConcentration(const Dilution& dilution)
{
    const auto& [substance, V1, V2, C1, C2] = dilution;

    Text question;
    question << Digits{3};
    question << volume(V1) << " of " << C1 << " mol/L " << substance << " is added to "
             << volume(V2 - V1) << " of water. What is the new concentration?\n";

    Text answer;
    answer << Digits{3};
    answer << "V1 = " << V1 << " L   C1 = " << C1 << " mol/L   V2 = " << V1 << " + " << V2 - V1
           << " = " << V2 << " L   C2 = ?\n";
    answer << "C1V1 = C2V2\n";
    answer << "C2 = C1V1/V2 = " << C1 << "x" << V1 << "/" << V2 << " = " << C2 << " mol/L\n";
    return {std::move(question.str), std::move(answer.str)};
}

QandA volumeToDilute(const Dilution& dilution)
{
    const auto& [substance, V1, V2, C1, C2] = dilution;

    Text question;
    question << Digits{3};
    question << "How much " << C1 << " mol/L " << substance
             << " needs to be diluted (added to water) to make " << volume(V2) << " of " << C2
             << " mol/L " << substance << "?\n";

    Text answer;
    answer << Digits{3};
    answer << "V1 = ?   C1 = " << C1 << " mol/L   V2 = " << V2 << " L   C2 = " << C2 << " mol/L\n";
    answer << "C1V1 = C2V2\n";
    answer << "V1 = C2V2/C1 = " << C2 << "x" << V2 << "/" << C1 << " = " << V1 << " L\n";
    return {std::move(question.str), std::move(answer.str)};
}

QandA originalConcentration(const Dilution& dilution)
{
    const auto& [substance, V1, V2, C1, C2] = dilution;

    Text question;
    question << Digits{3};
    question << "What was the original concentration of " << substance << " if there was "
             << volume(V1) << " before dilution and " << volume(V2) << " of " << C2 << " mol/L "
             << substance << " afterwards?\n";

    Text answer;
    answer << Digits{3};
    // Kept: the line tells C1 although it is asked for, and does not tell C2.
    answer << "C1 = " << C1 << " mol/L   V1 = " << V1 << " L   V2 = " << V2 << " L   C1 = ?\n";
    answer << "C1V1 = C2V2\n";
    answer << "C1 = C2V2/V1 = " << C2 << "x" << V2 << "/" << V1 << " = " << C1 << " mol/L\n";
    return {std::move(question.str), std::move(answer.str)};
}

QandA waterToAdd(const Dilution& dilution)
{
    const auto& [substance, V1, V2, C1, C2] = dilution;

    Text question;
    question << Digits{3};
    question << "To dilute " << volume(V1) << " of " << C1 << " mol/L " << substance << " to " << C2
             << " mol/L, how much water does it need to be added to?\n";

    Text answer;
    answer << Digits{3};
    answer << "V1 = " << V1 << " L   C1 = " << C1 << " mol/L   C2 = " << C2 << " mol/L   V2 = ?\n";
    answer << "C1V1 = C2V2\n";
    answer << "V2 = C1V1/C2 = " << C1 << "x" << V1 << "/" << C2 << " = " << V2 << " L\n";
    answer << "V2 - V1 = " << V2 << " - " << V1 << " = " << V2 - V1 << " L\n";
    answer << "So add it to " << V2 - V1 << " L of water\n";
    return {std::move(question.str), std::move(answer.str)};
}

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
