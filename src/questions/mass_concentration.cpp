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

    Text question;
    question << "Calculate the concentration (in mol/L) if " << m << " g of " << compound.name
             << " is dissolved in " << millilitres << " mL of water.\n";

    Text answer;
    answer << "m = " << m << " g   V = " << V << " L   C = ?\n";
    answer << "Formula is " << compound.formula << "  so M = " << M << " g/mol\n";
    answer << Digits{3};
    answer << "n = m/M = " << m << "/" << M << " = " << n << " mol\n";
    answer << "C = n/V = " << n << "/" << V << " = " << C << " mol/L\n";
    return {std::move(question.str), std::move(answer.str)};
}

QandA massForConcentration(const Soluble& compound)
{
    const float m = drawMass();
    const float V = drawVolume() * 0.001f;
    const float M = compound.molarMass;
    const float n = m / M;
    const float C = n / V;
    const float millilitres = V * 1000.0f;

    Text question;
    question << "Calculate the mass (in g) of " << compound.name << " needed to make up "
             << millilitres << " mL of " << Digits{2} << C << " mol/L solution.\n";

    Text answer;
    answer << "m = ?   V = " << V << " L   C = " << Digits{2} << C << " mol/L\n";
    answer << "n = CV = " << C << "x" << Digits{3} << V << " = " << n << " mol\n";
    answer << "Formula is " << compound.formula << "  so M = " << Digits{4} << M << " g/mol\n";
    answer << "m = nM = " << Digits{3} << n << "x" << Digits{4} << M << " = " << Digits{3} << m
           << " g\n";
    return {std::move(question.str), std::move(answer.str)};
}
