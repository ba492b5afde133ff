#include "lesson/words/language.hpp"

namespace lesson
{

namespace
{

std::string family(std::string_view anion)
{
    return std::string(anion) + "s";
}

std::string compound(std::string_view cation, std::string_view anion)
{
    return std::string(cation) + " " + std::string(anion);
}

std::string hydrate(std::string_view dry, int water)
{
    constexpr const char* numbers[] = {"mono", "di",    "tri",  "tetra", "penta",
                                       "hexa", "hepta", "octa", "nona",  "deca"};
    return std::string(dry) + " " + numbers[water - 1] + "hydrate";
}

} // namespace

const NameForms englishForms = {family, compound, hydrate};

} // namespace lesson
