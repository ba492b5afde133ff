#include "lesson/text/quotable.hpp"

#include <cstddef>

#include "lesson/text/utf8.hpp"

namespace lesson
{

std::string quotable(std::string_view typed)
{
    constexpr int most = 40;
    std::string quoted;
    for (int characters = 0; !typed.empty(); ++characters) {
        if (characters == most) {
            return quoted + "…";
        }
        const std::size_t length = characterLength(typed);
        const auto first = static_cast<unsigned char>(typed.front());
        const bool isControl = first < 0x20U || first == 0x7FU;
        quoted += length == 0 || isControl ? "\uFFFD" : typed.substr(0, length);
        typed.remove_prefix(length == 0 ? 1 : length);
    }
    return quoted;
}

} // namespace lesson
