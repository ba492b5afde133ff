#include "lesson/text/utf8.hpp"

namespace lesson
{

std::size_t characterLength(std::string_view text)
{
    const auto byte = [text](std::size_t i) {
        return i < text.size() ? static_cast<unsigned char>(text[i]) : 0U;
    };
    const auto continues = [&byte](std::size_t i) { return (byte(i) & 0xC0U) == 0x80U; };
    const unsigned first = byte(0);
    if (first < 0x80U) {
        return 1;
    }
    if (first >= 0xC2U && first <= 0xDFU && continues(1)) {
        return 2;
    }
    if ((first & 0xF0U) == 0xE0U && continues(1) && continues(2)) {
        const bool isOverlong = first == 0xE0U && byte(1) < 0xA0U;
        const bool isSurrogate = first == 0xEDU && byte(1) >= 0xA0U;
        return isOverlong || isSurrogate ? 0 : 3;
    }
    if (first >= 0xF0U && first <= 0xF4U && continues(1) && continues(2) && continues(3)) {
        const bool isOverlong = first == 0xF0U && byte(1) < 0x90U;
        const bool isTooGreat = first == 0xF4U && byte(1) >= 0x90U;
        return isOverlong || isTooGreat ? 0 : 4;
    }
    return 0;
}

} // namespace lesson
