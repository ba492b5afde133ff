#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "lesson/chemistry/compounds.hpp"
#include "lesson/chemistry/ids.hpp"

namespace lesson
{

// In the order of their table.
enum class Acid {
    hydrochloric,
    hydrobromic,
    nitric,
    sulfuric,
    phosphoric,
    ethanoic,
    ethanedioic,
};
using AcidSet = IdSet<Acid>;

// An acid that gives away all its protons to a base.
struct AcidRow {
    Acid id;
    std::string_view formula;
    Ion anion;  // what is left without the protons
    int weight; // how common it is in comparison with others, as IonRow has it
};
const AcidRow& rowOf(Acid acid);
const std::vector<const AcidRow*>& acids();

// The one with this formula, "H2SO4", or that becomes this ion; null where there is none.
const AcidRow* findAcid(std::string_view formula);
const AcidRow* findAcid(Ion anion);

const IonRow& anionOf(const AcidRow& acid);
// As many as one molecule gives away.
int protonsOf(const AcidRow& acid);

// What takes the protons.
enum class BaseKind {
    hydroxide,
    oxide,
    carbonate,
    hydrogencarbonate,
    ammonia,
};
using BaseKindSet = IdSet<BaseKind>;
constexpr BaseKind baseKinds[] = {
    BaseKind::hydroxide,         BaseKind::oxide,   BaseKind::carbonate,
    BaseKind::hydrogencarbonate, BaseKind::ammonia,
};

// The hydroxide, oxide, carbonate or hydrogencarbonate of a cation. Ammonia solution is the base of
// the ammonium ion and no anion.
struct Base {
    const IonRow* cation;
    const IonRow* anion; // null for ammonia
};
bool operator==(const Base& a, const Base& b);

// Ammonia has no other cation than ammonium, whatever is asked for.
Base baseOf(BaseKind kind, Ion cation);
Base ammonia();

BaseKind kindOf(const Base& base);
// Whether compounds of the anion are bases.
bool isOfBases(const IonRow& anion);
// Of a carbonate or a hydrogencarbonate.
bool givesCarbonDioxide(BaseKind kind);

// What one formula unit does to an acid.
struct Uptake {
    int protons; // that it takes
    int water;   // molecules that it becomes
    int carbonDioxide;
};
Uptake uptakeOf(const Base& base);

// "Ca(OH)2", "NH3".
std::string formulaOf(const Base& base);
// Their salt, when all protons of the acid are gone: "CaSO4".
std::string saltFormula(const AcidRow& acid, const Base& base);

} // namespace lesson
