#include "lesson/chemistry/name.hpp"

namespace lesson
{

namespace
{

template <typename Id>
Name named(Name::Of of, Id id)
{
    Name name;
    name.of = of;
    name.id = static_cast<std::uint8_t>(id);
    return name;
}

Name withWater(Name name, int water)
{
    name.water = static_cast<std::uint8_t>(water);
    return name;
}

} // namespace

Name nameOf(const ElementRow& element)
{
    return named(Name::Of::element, element.number);
}

Name nameOf(const IonRow& ion)
{
    return named(Name::Of::ion, ion.id);
}

Name nameAlone(const IonRow& ion)
{
    return named(Name::Of::ionAlone, ion.id);
}

Name nameOfFamily(const IonRow& anion)
{
    return named(Name::Of::family, anion.id);
}

Name nameOf(const IonRow& cation, const IonRow& anion, int water)
{
    Name name = named(Name::Of::compound, cation.id);
    name.anion = static_cast<std::uint8_t>(anion.id);
    return withWater(name, water);
}

Name nameOf(const AcidRow& acid, int water)
{
    return withWater(named(Name::Of::acid, acid.id), water);
}

Name nameOf(const Base& base)
{
    return base.anion == nullptr ? named(Name::Of::ammoniaSolution, 0)
                                 : nameOf(*base.cation, *base.anion);
}

Name nameOf(Molecule molecule)
{
    return named(Name::Of::molecule, molecule);
}

} // namespace lesson
