#include "lesson/reading/lookalikes.hpp"

#include <algorithm>
#include <cstddef>

#include "lesson/chemistry/elements.hpp"

namespace lesson
{

namespace
{

std::string withLetterL(std::string_view plain, char typed)
{
    std::string text(plain);
    for (std::size_t i = 1; i < plain.size(); ++i) {
        if (plain[i] == typed && findElement(std::string{plain[i - 1], 'l'}) != nullptr) {
            text[i] = 'l';
        }
    }
    return text;
}

std::string withLettersOAndI(std::string_view plain)
{
    std::string text(plain);
    for (std::size_t i = 0; i < plain.size(); ++i) {
        const bool endsSymbol = i > 0 && findElement(plain.substr(i - 1, 2)) != nullptr;
        if (plain[i] == 'l' && !endsSymbol) {
            text[i] = 'I';
        }
    }
    std::replace(text.begin(), text.end(), '0', 'O');
    return text;
}

} // namespace

std::vector<Lookalike> lookalikesOf(std::string_view plain)
{
    const bool hasZero = plain.find('0') != std::string_view::npos;
    const std::string withoutLargeI = withLetterL(plain, 'I');
    const std::string withoutOne = withLetterL(plain, '1');
    std::vector<Lookalike> all = {
        {withoutLargeI, Mixup::largeIForSmallL},
        {withoutOne, Mixup::oneForSmallL},
        {withLettersOAndI(plain), hasZero ? Mixup::zeroForLargeO : Mixup::smallLForLargeI},
        {withLettersOAndI(withoutLargeI), Mixup::largeIForSmallL},
        {withLettersOAndI(withoutOne), Mixup::oneForSmallL},
    };
    const auto isTyped = [plain](const Lookalike& other) { return other.meant == plain; };
    all.erase(std::remove_if(all.begin(), all.end(), isTyped), all.end());
    return all;
}

} // namespace lesson
