#pragma once

// The promises of the platform on which every printed digit and every draw rests. Where one of
// them does not hold the program would print other numbers, so it refuses to be built.

#include <cfloat>
#include <climits>
#include <cstdlib>
#include <limits>

static_assert(RAND_MAX == 2147483647,
              "the question thresholds need a rand() that draws from 0 to 2147483647; use a C "
              "library that has one");

static_assert(INT_MAX == 2147483647, "draws wrap around in 32 bits; int has to have 32 bits");

static_assert(std::numeric_limits<float>::is_iec559 && FLT_MANT_DIG == 24,
              "quantities are IEEE single-precision numbers; float has to be one");

static_assert(FLT_EVAL_METHOD == 0,
              "every operation on a float has to be rounded to single precision; on 32-bit x86 "
              "compile with -msse2 -mfpmath=sse");

// GCC has its 0 for every option that lets it reorder sums, divide by way of reciprocals, narrow
// constants, or forget NaN, infinities and the sign of zero. Clang tells of two options only; what
// it keeps to itself the build switches off.
#if defined(__FAST_MATH__) || __FINITE_MATH_ONLY__ || (defined(__GCC_IEC_559) && __GCC_IEC_559 == 0)
#error "fast-math arithmetic changes the printed digits; compile without -ffast-math and its parts"
#endif
