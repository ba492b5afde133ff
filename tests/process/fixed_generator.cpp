// Linked into a copy of the program in place of the library's generator and clock, so that it asks
// the same questions on every platform: the approved transcripts hold its dialogues.

#include <cstdint>
#include <cstdlib>
#include <ctime>

namespace
{

std::uint64_t state = 0;

} // namespace

// Started with anything but the time, the generator gives other questions than the approved ones.
extern "C" std::time_t time(std::time_t* /*unused*/) noexcept
{
    return 20;
}

extern "C" void srand(unsigned int seed) noexcept
{
    state = seed;
}

// Linear congruential, Knuth's MMIX multiplier; the upper bits, from 0 to 2147483647.
extern "C" int rand() noexcept
{
    state = state * 6364136223846793005U + 1442695040888963407U;
    return static_cast<int>(state >> 33);
}
