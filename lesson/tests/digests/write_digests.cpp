// Prints the digests of all kinds and levels, for scripts/approve.

#include <cstdio>

#include "lesson/tests/digests/digest.hpp"

int main()
{
    for (const std::string& kind : lesson::kindsAndLevels()) {
        std::puts(lesson::digestLine(kind).c_str());
    }
}
