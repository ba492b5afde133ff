#include "support/scripted_draws.hpp"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <random>
#include <utility>

namespace
{

bool scriptIsOn = false;
std::vector<int> script;
std::size_t nextValue = 0;
std::mt19937 fixedSequence;

} // namespace

extern "C" int rand() noexcept
{
    if (!scriptIsOn) {
        return static_cast<int>(fixedSequence() >> 1);
    }
    if (nextValue == script.size()) {
        std::fputs("the code under test drew more than the script holds\n", stderr);
        std::abort();
    }
    return script[nextValue++];
}

ScriptedDraws::ScriptedDraws(std::vector<int> values)
{
    script = std::move(values);
    nextValue = 0;
    scriptIsOn = true;
}

ScriptedDraws::~ScriptedDraws()
{
    EXPECT_EQ(nextValue, script.size()) << "the code under test drew less than the script holds";
    scriptIsOn = false;
}

int drawOfIon(int row)
{
    return row;
}

int drawOfCompound(int row)
{
    return (row - 1) * 214748365 + 1000;
}
