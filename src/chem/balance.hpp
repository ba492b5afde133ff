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

// Writes the coefficients of the balanced equation, in lowest terms, to the five globals and
// returns true. Returns false when it gives up, as for a base anion of another name; the globals
// then hold what the last attempt left, unreduced.
//   nitrate, aluminium, oxide -> true; 6, 1, 2, 3, 0
bool balance(Ion acidAnion, Ion baseCation, Ion baseAnion);

// Returns the highest common measure of the elements, which is their greatest common divisor; 1 if
// one of them is less than 2. There has to be an element.
//   {36, 72, 12, 24} -> 12    {0, 4} -> 1
int hcm(std::vector<int> v);
int hcm(int a, int b, int c, int d);
int hcm(int a, int b, int c, int d, int e);

// Returns true when every element is greater than `x`, and for no elements.
bool lessthanall(int x, std::vector<int> v);

// Returns true when `x`, which is not 0, divides every element, and for no elements.
bool alldivisible(int x, std::vector<int> v);

// The counts. Each returns how many of a particle stand on one side of the equation with the
// present coefficients, and its name says so: `HonLeft` is hydrogen on the left, `rp` is the base
// cation, a positive ion, and `an` is the acid anion. Kept: oxygen and carbon of the acid anion are
// counted on neither side, and hydrogen of the base only where it is a hydroxide or a bicarbonate.

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
