// Any text as a formula: the molar mass has the same bits as the literal parser's, and the messages
// are the same, in the same order.

#include "chem/formula.hpp"
#include "data/tables.hpp"
#include "literal_parser.hpp"
#include "outcome.hpp"
#include "support.hpp"

namespace
{

// The literal parser takes quadratic time and a stack frame for each nested group.
constexpr std::size_t longestFormula = 1000;

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size > longestFormula) {
        return 0;
    }
    const std::string formula = textOf(data, size);
    const Outcome actual = outcomeOf(calculateMM, formula);
    const Outcome expected = outcomeOf(literal::calculateMM, formula);
    require(sameMass(actual.mass, expected.mass), "the molar mass is the literal parser's");
    require(actual.messages == expected.messages, "the messages are the literal parser's");
    require(aMasses.size() == 110, "the table of masses is filled once");
    return 0;
}
