#pragma once

#include <string>

// A common ion: a row of `ion`, or one built by hand.
class Ion
{
public:
    // English, as the questions print it: "iron(III)", "sulphate".
    std::string name;
    // True for an anion.
    bool negative = false;
    // Without charge and brackets: "Fe", "SO4".
    std::string formula;
    // Size of the charge, 1 to 3 in the table; the sign is `negative`.
    short charge = 1;
    // A group of atoms, which takes brackets where it occurs more than once.
    bool polyatomic = false;
    // First word of the acid's name, "sulphuric"; empty where no acid is asked about.
    std::string acidName;

    Ion() = default;

    // The order of the arguments is not the order of the fields: the formula comes second.
    Ion(std::string ionName, std::string ionFormula, bool isNegative, short chargeSize,
        bool isPolyatomic, std::string nameOfAcid);

    // Returns how often this ion occurs in the neutral compound with `partner`: the partner's
    // charge crossed over, 1 for equal charges. Kept: only 2 and 3 cross over, and a charge of 4
    // against 2 is reduced to 1; partners of any other charge give 1.
    //   aluminium.getSubscript(oxide) -> 2    oxide.getSubscript(aluminium) -> 3
    int getSubscript(Ion partner) const;

    // Returns the formula with the charge: "Na+", "SO42-". Charges other than 2 and 3 write no
    // digit.
    std::string makeFormula() const;

    // Grades a typed formula of this ion with its charge; see grading/grading.hpp.
    int getResponse(std::string answer) const;
};

// Returns what `getSubscript` returns for an ion and a partner with these charges.
int subscript(short ownCharge, short partnerCharge);

// Returns the formula of the neutral compound of two ions, of which the cation normally comes
// first.
//   sodium, chloride -> "NaCl"    aluminium, sulphate -> "Al2(SO4)3"
std::string makeFormula(Ion first, Ion second);

// Appends the 39 compiled-in ions to `ion`, whatever it already holds.
void initIons();

// Returns a row of `ion`, drawn by one `rand()` value; a value that is a multiple of the number of
// rows is drawn again. Every row but the last one can come. Like the three below it fills an empty
// table first.
Ion randomIon();

// Returns the first anion of repeated `randomIon` draws: any of the 13 before bicarbonate.
Ion randomNeg();

// Returns the first wanted anion of repeated `randomNeg` draws.
Ion randomNegWhere(bool (*wanted)(const Ion& anion));

// Returns the first cation of repeated `randomIon` draws: any of the 25.
Ion randomPos();
