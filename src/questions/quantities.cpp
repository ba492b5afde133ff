#include "questions/quantities.hpp"

#include <cstdint>
#include <cstdlib>

#include "data/platform.hpp"
#include "questions/text.hpp"

float random(int low, int high)
{
    const int span = high - low + 1;
    const std::int64_t product = static_cast<std::int64_t>(std::rand()) * span;
    const auto wrapped = static_cast<std::int32_t>(product); // Kept: only the low 32 bits count.
    const auto step = static_cast<int>(wrapped / 2147483648.0);
    return static_cast<float>(step + low);
}

std::string volumeFormat(float litres, unsigned int precision)
{
    Text text;
    text << Digits{static_cast<int>(precision)};
    if (litres <= 1.0f) {
        text << litres * 1000.0f << " mL";
    } else {
        text << litres << " L";
    }
    return text.str;
}
