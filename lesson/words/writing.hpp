#pragma once

namespace lesson
{

// How the reader writes.
struct Writing {
    char decimal = '.'; // or ',': the sign before the decimals of a number
};

} // namespace lesson
