#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include <gtest/gtest.h>

#include "../../fuzz/literal_parser.hpp"
#include "../../fuzz/outcome.hpp"
#include "chem/formula.hpp"

namespace
{

std::string contentOf(const std::filesystem::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(stream), {});
}

} // namespace

// The fuzzer's seeds, without the fuzzer: this runs with every compiler and on every platform.
TEST(FormulaSeedTest, AgreesWithTheLiteralParserOnEveryFuzzSeed)
{
    int seeds = 0;
    for (const auto& seed : std::filesystem::directory_iterator(FORMULA_SEEDS)) {
        const std::string formula = contentOf(seed.path());
        const Outcome actual = outcomeOf(calculateMM, formula);
        const Outcome expected = outcomeOf(literal::calculateMM, formula);
        EXPECT_TRUE(sameMass(actual.mass, expected.mass))
            << seed.path() << ": " << actual.mass << ", literally " << expected.mass;
        EXPECT_EQ(actual.messages, expected.messages) << seed.path();
        ++seeds;
    }
    EXPECT_GE(seeds, 12);
}
