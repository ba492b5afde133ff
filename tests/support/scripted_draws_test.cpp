#include "support/scripted_draws.hpp"

#include <gtest/gtest.h>

#include <cstdlib>

#include "data/ion.hpp"

// Guards every test that scripts its draws: if the library's own generator were linked in, the
// script would not be used up and the ion would be any.
TEST(ScriptedDrawsTest, TheLibraryDrawsFromTheScript)
{
    const ScriptedDraws draws({0, drawOfIon(38)});
    EXPECT_EQ(randomIon().name, "ammonium");
}

TEST(ScriptedDrawsTest, ValuesComeInOrder)
{
    const ScriptedDraws draws({7, 2147483647, 0});
    EXPECT_EQ(std::rand(), 7);
    EXPECT_EQ(std::rand(), 2147483647);
    EXPECT_EQ(std::rand(), 0);
}
