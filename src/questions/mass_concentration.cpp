#include "questions/mass_concentration.hpp"

#include <cstdlib>
#include <utility>

#include "questions/quantities.hpp"
#include "questions/text.hpp"

namespace
{

// In g; 100 to 1000 stand for 1 to 10 g.
float drawMass()
{
    return random(100, 1000) / 100.0f;
}

// In mL, in steps of 50.
float drawVolume()
{
    return random(1, 15) * 50.0f;
}

} // namespace

QandA massConcentrationQuestion()
{
    const Soluble compound = randomSoluble();
    const int draw = std::rand();
    return draw < halfOfDraws ? concentrationFromMass(compound) : massForConcentration(compound);
}

QandA concentrationFromMass(const Soluble& compound)
{
    const float m = drawMass();
    const float millilitres = drawVolume();
    const float V = millilitres * 0.001f;
    const float M = compound.molarMass;
    const float n = m / M;
    const float C = n / V;

    const std::string n3 = general(n, 3); // Shown twice.
    // clang-format off
    return {
        joined(
            "Calculate the concentration (in mol/L) if ", general(m, 6), " g of ", compound.name,
            " is dissolved in ", general(millilitres, 6), " mL of water.\n"),
        joined(
            "m = ", general(m, 6), " g   V = ", general(V, 6), " L   C = ?\n",
            "Formula is ", compound.formula, "  so M = ", general(M, 6), " g/mol\n",
            "n = m/M = ", general(m, 3), "/", general(M, 3), " = ", n3, " mol\n",
            "C = n/V = ", n3, "/", general(V, 3), " = ", general(C, 3), " mol/L\n"),
    };
    // clang-format on
}

QandA massForConcentration(const Soluble& compound)
{
    const float m = drawMass();
    const float V = drawVolume() * 0.001f;
    const float M = compound.molarMass;
    const float n = m / M;
    const float C = n / V;
    const float millilitres = V * 1000.0f;

    // What is shown more than once, to so many digits.
    const std::string n3 = general(n, 3);
    const std::string C2 = general(C, 2);
    const std::string M4 = general(M, 4);
    // clang-format off
    return {
        joined(
            "Calculate the mass (in g) of ", compound.name, " needed to make up ",
            general(millilitres, 6), " mL of ", C2, " mol/L solution.\n"),
        joined(
            "m = ?   V = ", general(V, 6), " L   C = ", C2, " mol/L\n",
            "n = CV = ", C2, "x", general(V, 3), " = ", n3, " mol\n",
            "Formula is ", compound.formula, "  so M = ", M4, " g/mol\n",
            "m = nM = ", n3, "x", M4, " = ", general(m, 3), " g\n"),
    };
    // clang-format on
}
