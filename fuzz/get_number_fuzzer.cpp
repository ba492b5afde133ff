// Any text with a count at its front: the value and what is left are the literal parser's, and the
// value is the number that stands there.

#include "chem/formula.hpp"
#include "leading_number.hpp"
#include "literal_parser.hpp"
#include "support.hpp"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string text = textOf(data, size);
    std::string rest = text;
    const float value = getNumber(rest);
    std::string expectedRest = text;
    require(value == literal::getNumber(expectedRest), "the value is the literal parser's");
    require(rest == expectedRest, "what is left is what the literal parser leaves");
    if (const auto number = leadingNumber(text)) {
        require(value == static_cast<float>(*number), "the value is the number at the front");
    }
    return 0;
}
