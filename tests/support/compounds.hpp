#pragma once

#include <gtest/gtest.h>

#include "data/soluble.hpp"
#include "data/tables.hpp"

// For tests that draw compounds: the catalogue as the program holds it from its start, whatever
// other tests did to it.
class WithCompounds : public testing::Test
{
protected:
    void SetUp() override
    {
        dissolvable.clear();
        initSolubles();
    }
    void TearDown() override
    {
        dissolvable.clear();
    }
};
