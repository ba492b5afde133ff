#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace lesson
{

// Which sign was taken for which letter by its looks.
enum class Mixup {
    largeIForSmallL,
    oneForSmallL,
    zeroForLargeO,
    smallLForLargeI,
};

// A text as it was meant.
struct Lookalike {
    std::string meant;
    Mixup mixup;
};

// The texts that may have been meant, but for the typed one itself:
//   "SnCI2", "SnC12" -> "SnCl2"    a capital I or a digit 1 is the small l of a symbol
//   "Na2S04"         -> "Na2SO4"   a zero is the letter O, as formulas have no zeros
//   "Pbl2"           -> "PbI2"     a small l that ends no symbol is the letter I
//   "A12(S04)3"      -> "Al2(SO4)3"    both, of which the first is told
std::vector<Lookalike> lookalikesOf(std::string_view plain);

} // namespace lesson
