#pragma once

#include <cstdint>

#include "lesson/chemistry/acids_and_bases.hpp"
#include "lesson/chemistry/elements.hpp"
#include "lesson/chemistry/ions.hpp"

namespace lesson
{

enum class Molecule {
    water,
    carbonDioxide,
    ammonia,
    methane,
    sulfurDioxide,
    ethanol,
    glucose,
    hydrogenPeroxide,
};

// What a name is of, told by ids: each language has names of its own for these.
struct Name {
    enum class Of : std::uint8_t {
        nothing,
        element,  // by its atomic number
        ion,      // "copper(II)", "sulfate"
        ionAlone, // without the Roman numeral: "copper"
        family,   // all compounds of an anion: "sulfates"
        compound, // of a cation and an anion, perhaps with water of crystallisation
        acid,     // perhaps with water of crystallisation
        ammoniaSolution,
        molecule,
    };

    Of of = Of::nothing;
    std::uint8_t id = 0;    // of the element, the ion, the cation, the acid or the molecule
    std::uint8_t anion = 0; // of a compound
    std::uint8_t water = 0; // molecules of it in one formula
};

Name nameOf(const ElementRow& element);
Name nameOf(const IonRow& ion);
Name nameAlone(const IonRow& ion);
Name nameOfFamily(const IonRow& anion);
Name nameOf(const IonRow& cation, const IonRow& anion, int water = 0);
Name nameOf(const AcidRow& acid, int water = 0);
Name nameOf(const Base& base);
Name nameOf(Molecule molecule);

} // namespace lesson
