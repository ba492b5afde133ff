#pragma once

#include <string>
#include <vector>

#include "lesson/tests/every/common.hpp"

// The quantities of calculations as they are given, with the asked one worked out.

// The given quantity of this symbol, in L, mol/L, g or g/mol; 0 if there is none.
Exact givenValue(const Json& exercise, const std::string& symbol, const std::string& of = "");
bool isGiven(const Json& exercise, const std::string& symbol);
bool asksFor(const Json& exercise, const std::string& symbol);

// V1 and V2 in mL.
struct Dilution {
    Exact c1;
    Exact V1;
    Exact c2;
    Exact V2;
};
Dilution dilutionOf(const Json& exercise);

struct Titration {
    Exact c;     // of the known
    Exact known; // volumes in L
    Exact unknown;
    Exact r;                   // moles of the unknown for one of the known
    std::vector<Exact> titres; // in L, the rough one first; none where there is one titre alone
    bool isKnownInBurette;     // for several titres
};
Titration titrationOf(const Json& exercise);
Exact answerOf(const Titration& titration);
// With another volume from the burette, where there are several titres.
Titration withTitre(const Titration& titration, const Exact& titre);

Exact meanOf(const std::vector<Exact>& values);
