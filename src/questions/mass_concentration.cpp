#include "questions/mass_concentration.hpp"

#include <cstdlib>
#include <iomanip>
#include <sstream>

#include "questions/quantities.hpp"

using std::setprecision;

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

    std::ostringstream question;
    question << "Calculate the concentration (in mol/L) if " << m << " g of " << compound.name
             << " is dissolved in " << millilitres << " mL of water.\n";

    std::ostringstream answer;
    answer << "m = " << m << " g   V = " << V << " L   C = ?\n";
    answer << "Formula is " << compound.formula << "  so M = " << M << " g/mol\n";
    answer << setprecision(3);
    answer << "n = m/M = " << m << "/" << M << " = " << n << " mol\n";
    answer << "C = n/V = " << n << "/" << V << " = " << C << " mol/L\n";
    return {question.str(), answer.str()};
}

QandA massForConcentration(const Soluble& compound)
{
    const float m = drawMass();
    const float V = drawVolume() * 0.001f;
    const float M = compound.molarMass;
    const float n = m / M;
    const float C = n / V;
    const float millilitres = V * 1000.0f;

    std::ostringstream question;
    question << "Calculate the mass (in g) of " << compound.name << " needed to make up "
             << millilitres << " mL of " << setprecision(2) << C << " mol/L solution.\n";

    std::ostringstream answer;
    answer << "m = ?   V = " << V << " L   C = " << setprecision(2) << C << " mol/L\n";
    answer << "n = CV = " << C << "x" << setprecision(3) << V << " = " << n << " mol\n";
    answer << "Formula is " << compound.formula << "  so M = " << setprecision(4) << M
           << " g/mol\n";
    answer << "m = nM = " << setprecision(3) << n << "x" << setprecision(4) << M << " = "
           << setprecision(3) << m << " g\n";
    return {question.str(), answer.str()};
}
