#include "support/catalogue.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>

#include "data/tables.hpp"

namespace
{

std::vector<Ion> ionsWithSign(bool negative)
{
    std::vector<Ion> ions;
    std::copy_if(catalogueIons().begin(), catalogueIons().end(), std::back_inserter(ions),
                 [negative](const Ion& each) { return each.negative == negative; });
    return ions;
}

} // namespace

const std::vector<Ion>& catalogueIons()
{
    static const std::vector<Ion> ions = [] {
        std::vector<Ion> rows;
        rows.swap(ion);
        initIons();
        rows.swap(ion);
        return rows;
    }();
    return ions;
}

std::vector<Ion> catalogueCations()
{
    return ionsWithSign(false);
}

std::vector<Ion> catalogueAnions()
{
    return ionsWithSign(true);
}

Ion ionCalled(const std::string& name)
{
    for (const Ion& each : catalogueIons()) {
        if (each.name == name) {
            return each;
        }
    }
    ADD_FAILURE() << "no ion is called " << name;
    return {};
}
