// Compiled and never run: with nothing broken it has to compile, and with one promise of the
// platform broken it has to be refused with the reason. See platform_test.cmake.

#include <cfloat>
#include <climits>
#include <cstdlib>

#ifdef OTHER_RAND_MAX
#undef RAND_MAX
#define RAND_MAX OTHER_RAND_MAX
#endif

#ifdef OTHER_INT_MAX
#undef INT_MAX
#define INT_MAX OTHER_INT_MAX
#endif

#ifdef OTHER_FLT_MANT_DIG
#undef FLT_MANT_DIG
#define FLT_MANT_DIG OTHER_FLT_MANT_DIG
#endif

#ifdef OTHER_FLT_EVAL_METHOD
#undef FLT_EVAL_METHOD
#define FLT_EVAL_METHOD OTHER_FLT_EVAL_METHOD
#endif

#include "data/platform.hpp"
