#pragma once

#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "lesson/tests/every/exact.hpp"

// The chemistry of the exercises once more, typed and worked out apart from the lesson's: what an
// exercise may be about, and what is right.

struct TypedIon {
    std::string key; // the formula, and the charge where that does not tell the ion: "Fe2"
    std::string name;
    std::string formula;
    int charge;
};
const std::vector<TypedIon>& typedCations();
const std::vector<TypedIon>& typedAnions();
// Those that are asked as ions only.
const std::vector<TypedIon>& typedFurtherIons();

bool isOneAtom(const TypedIon& ion);
bool hasNumeral(const TypedIon& ion);

struct TypedPair {
    TypedIon cation;
    TypedIon anion;
    std::string formula;
    std::string name;
};
// What may be asked by formula: 227 pairs; and whether it dissolves: 153.
const std::vector<TypedPair>& typedPairs();
const std::vector<TypedPair>& typedSolubilityPairs();
// The formulas of all others.
const std::set<std::string>& formulasLeftOut();
const std::set<std::string>& formulasWithoutSolubility();
bool dissolves(const TypedPair& pair);
// Whether it is against what most compounds of its anion do.
bool isAgainstTheRule(const TypedPair& pair);

// Atoms by symbol, those of the water of a hydrate among them. Counted once for each formula.
const std::map<std::string, int>& atomsIn(const std::string& formula);
Exact typedMolarMass(const std::string& formula);

// What a neutralisation may be: formulas of acid and base, and the salt.
struct TypedReaction {
    std::string acid;
    std::string base;
    std::string salt;
    bool givesWater;
    bool givesCarbonDioxide;
    int ofAcid; // moles that react with `ofBase`, in lowest terms
    int ofBase;
};
// By acid and base: those for neutralisations, and those for titrations.
using TypedReactions = std::map<std::pair<std::string, std::string>, TypedReaction>;
const TypedReactions& typedNeutralisations();
const TypedReactions& typedTitrations();

// The greatest concentration in mol/L by formula: of what is weighed, and of what is only diluted.
const std::map<std::string, Exact>& typedCeilings();
const std::map<std::string, Exact>& typedHydrateCeilings();
const std::map<std::string, Exact>& typedAcidCeilings();
