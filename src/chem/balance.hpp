#pragma once

#include <vector>

#include "data/ion.hpp"

// Balances acid + base -> salt + water, with carbon dioxide as a third product when the base is a
// carbonate or a bicarbonate.
//
// The ions are always given as acid anion, base cation, base anion. The acid has as many hydrogen
// atoms as its anion has charges, and one anion; the base is the compound of its two ions, the salt
// that of the base cation and the acid anion. The base anion is hydroxide, oxide, carbonate or
// bicarbonate, told by its name.

// Coefficients of the last equation that was balanced; `nCO2` is 0 where there is no carbon
// dioxide.
extern int nacid;
extern int nbase;
extern int nsalt;
extern int nH2O;
extern int nCO2;

// Balances the equation into the five coefficients, in lowest terms, and returns true. Any other
// base anion gives false and leaves the coefficients unreduced, as the last pass left them.
//   nitrate, aluminium, oxide -> true; 6, 1, 2, 3, 0
bool balance(Ion acidAnion, Ion baseCation, Ion baseAnion);

// The greatest common divisor of the elements, of which there is at least one, found by trial; 1 if
// one of them is less than 2.
int hcm(std::vector<int> v);
int hcm(int a, int b, int c, int d);
int hcm(int a, int b, int c, int d, int e);

// True when every element is greater than `x`; so true for none.
bool lessthanall(int x, std::vector<int> v);

// True when `x`, which is not 0, divides every element; so true for none.
bool alldivisible(int x, std::vector<int> v);

// What stands on each side of the equation with the present coefficients. Kept: oxygen and carbon
// of the acid anion are counted on neither side, and hydrogen of the base only where it is a
// hydroxide or a bicarbonate.

// Hydrogen atoms: in the acid and the base; in the water.
int HonLeft(Ion acidAnion, Ion baseCation, Ion baseAnion);
int HonRight();
// Oxygen atoms: in the base, 0 for a base anion of another name; in the carbon dioxide and water.
int OonLeft(Ion acidAnion, Ion baseCation, Ion baseAnion);
int OonRight();
// Carbon atoms: in the base; in the carbon dioxide.
int ConLeft(Ion acidAnion, Ion baseCation, Ion baseAnion);
int ConRight();
// Base cations: in the base; in the salt.
int rponLeft(Ion acidAnion, Ion baseCation, Ion baseAnion);
int rponRight(Ion acidAnion, Ion baseCation, Ion baseAnion);
// Acid anions: in the acid; in the salt.
int anonLeft();
int anonRight(Ion acidAnion, Ion baseCation, Ion baseAnion);
