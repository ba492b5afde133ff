#include "questions/titration.hpp"

#include <cstdlib>
#include <string_view>
#include <utility>

#include "chem/balance.hpp"
#include "questions/quantities.hpp"
#include "questions/text.hpp"

namespace
{

struct Solution {
    std::string_view name;
    std::string_view formula;
    float volume; // L
};

// Its names and formulas are those of the reaction that it was drawn for.
struct Titration {
    Solution known;
    Solution unknown;
    float concentration;   // of the known solution, mol/L
    std::string_view verb; // what the unknown solution does or suffers
};

// In L.
float drawAliquot()
{
    return std::rand() < quarterOfDraws ? 0.025f : 0.02f;
}

// In L, multiplied in double precision; 500 to 4000 stand for 5 to 40 mL.
float drawTitre()
{
    return static_cast<float>(static_cast<double>(random(500, 4000)) * 0.00001);
}

// In mol/L; 1 to 100 stand for 0.01 to 1 mol/L.
float drawConcentration()
{
    return 0.01f * random(1, 100);
}

Titration drawTitration(const Neutralisation& reaction)
{
    const float aliquot = drawAliquot();
    const float titre = drawTitre();
    const float concentration = drawConcentration();
    const bool baseIsKnown = std::rand() < halfOfDraws;
    const bool titreIsUnknown = std::rand() < halfOfDraws;

    Titration titration = {{reaction.acidName, reaction.acidFormula, titre},
                           {reaction.baseName, reaction.baseFormula, aliquot},
                           concentration,
                           " of it is neutralised by "};
    if (baseIsKnown) {
        std::swap(titration.known.name, titration.unknown.name);
        std::swap(titration.known.formula, titration.unknown.formula);
    }
    if (titreIsUnknown) {
        std::swap(titration.known.volume, titration.unknown.volume);
        titration.verb = " of it neutralises ";
    }
    return titration;
}

std::string questionText(const Titration& titration)
{
    const auto& [known, unknown, concentration, verb] = titration;
    return joined("Calculate the concentration of ", unknown.name, " if ",
                  volumeFormat(unknown.volume, 3), verb, volumeFormat(known.volume, 3), " of ",
                  general(concentration, 6), " mol/L ", known.name, ".\n");
}

std::string answerText(const Titration& titration, const Neutralisation& reaction)
{
    const std::string equation =
        equationLine(reaction, "Computer had trouble with balancing, answer may be wrong.");
    const std::string acids = std::to_string(nacid);
    const std::string bases = std::to_string(nbase);

    // Kept: base over acid whichever of them is known. Where the acid is the unknown and the
    // coefficients differ, its amount comes out inverted.
    const float knownMoles = titration.concentration * titration.known.volume;
    const float unknownMoles = static_cast<float>(nbase) * knownMoles / static_cast<float>(nacid);
    const float concentration = unknownMoles / titration.unknown.volume;

    const std::string_view known = titration.known.formula;
    const std::string_view unknown = titration.unknown.formula;
    const std::string knownV = general(titration.known.volume, 3);
    const std::string unknownV = general(titration.unknown.volume, 3);
    const std::string knownC = general(titration.concentration, 3);
    const std::string unknownC = general(concentration, 3);
    const std::string knownN = general(knownMoles, 3);
    const std::string unknownN = general(unknownMoles, 3);

    // clang-format off
    return joined(
        "Solution of known concentration is ", known, ", unknown is ", unknown, "\n",
        "V(", unknown, ") = ", unknownV, " L   V(", known, ") = ", knownV,
        " L   C(", known, ") = ", knownC, " mol/L   C(", unknown, ") = ?\n",
        "n(", known, ") = C(", known, ") x V(", known, ") = ",
        knownC, "x", knownV, " = ", knownN, " mol\n",
        equation,
        "Mole ratio n(", reaction.acidFormula, ") : n(", reaction.baseFormula, ")  is ",
        acids, ":", bases, "\n",
        "n(", unknown, ") = ", knownN, " x ", bases, "/", acids, " = ", unknownN, " mol\n",
        "C(", unknown, ") = n(", unknown, ") / V(", unknown, ") = ",
        unknownN, " / ", unknownV, " = ", unknownC, " mol/L\n");
    // clang-format on
}

} // namespace

QandA titrationQuestion()
{
    return titrationQuestion(drawNeutralisation());
}

QandA titrationQuestion(const Neutralisation& reaction)
{
    const Titration titration = drawTitration(reaction);
    return {questionText(titration), answerText(titration, reaction)};
}
