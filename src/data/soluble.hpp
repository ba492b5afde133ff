#pragma once

#include <string>

// A named compound: a row of `dissolvable`.
class Soluble
{
public:
    // g/mol, worked out from the formula by the constructor and by nothing else.
    float molarMass;
    // English, as the questions print it: "copper sulfate pentahydrate".
    std::string name;
    // As `calculateMM` reads it: "CuSO4.5H2O".
    std::string formula;

    Soluble(std::string compoundName, std::string compoundFormula);
};

// Appends the ten compiled-in compounds to `dissolvable`, whatever it already holds.
void initSolubles();

// Returns a row of `dissolvable`, drawn by one `rand()` value, each equally likely. Throws
// std::out_of_range while the table is empty: it is not filled here.
Soluble randomSoluble();
