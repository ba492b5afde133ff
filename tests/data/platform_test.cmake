# The promises of data/platform.hpp, each broken in turn for the compiler that builds the program.

separate_arguments(CHEMPRACTICE_FLAGS NATIVE_COMMAND "${CMAKE_CXX_FLAGS}")
set(COMPILE_PLATFORM_TEST
    ${CMAKE_CXX_COMPILER} ${CHEMPRACTICE_FLAGS}
    $<TARGET_PROPERTY:chempractice_core,INTERFACE_COMPILE_OPTIONS>
    -std=c++17 -fsyntax-only -I ${PROJECT_SOURCE_DIR}/src
    ${CMAKE_CURRENT_LIST_DIR}/platform_test.cpp)

add_test(NAME PlatformTest.ThisPlatformKeepsEveryPromise
         COMMAND ${COMPILE_PLATFORM_TEST} COMMAND_EXPAND_LISTS)

# The reason has to stand in an error; a compiler that stays silent or complains of something else
# fails the test.
function(add_refusal_test name flag reason)
  add_test(NAME PlatformTest.${name} COMMAND ${COMPILE_PLATFORM_TEST} ${flag} COMMAND_EXPAND_LISTS)
  set_tests_properties(PlatformTest.${name}
                       PROPERTIES PASS_REGULAR_EXPRESSION "error: [^\n]*${reason}")
endfunction()

# Each number a bit less and a bit more than it has to be, or as other platforms have it, with the
# whole message.
set(RAND_RANGE "the question thresholds need a rand\\(\\) that draws from 0 to 2147483647\; use a C \
library that has one(\"|\n|$)")
set(INT_WIDTH "draws wrap around in 32 bits\; int has to have 32 bits(\"|\n|$)")
set(FLOAT "quantities are IEEE single-precision numbers\; float has to be one(\"|\n|$)")
set(EVALUATION "every operation on a float has to be rounded to single precision\; on 32-bit x86 \
compile with -msse2 -mfpmath=sse(\"|\n|$)")
add_refusal_test(RefusesASmallerRangeOfRand -DOTHER_RAND_MAX=32767 "${RAND_RANGE}")
add_refusal_test(RefusesALargerRangeOfRand -DOTHER_RAND_MAX=2147483648 "${RAND_RANGE}")
add_refusal_test(RefusesANarrowerInt -DOTHER_INT_MAX=32767 "${INT_WIDTH}")
add_refusal_test(RefusesAWiderInt -DOTHER_INT_MAX=9223372036854775807 "${INT_WIDTH}")
add_refusal_test(RefusesAShorterFloat -DOTHER_FLT_MANT_DIG=23 "${FLOAT}")
add_refusal_test(RefusesALongerFloat -DOTHER_FLT_MANT_DIG=25 "${FLOAT}")
add_refusal_test(RefusesUnknownEvaluation -DOTHER_FLT_EVAL_METHOD=-1 "${EVALUATION}")
add_refusal_test(RefusesWiderEvaluation -DOTHER_FLT_EVAL_METHOD=1 "${EVALUATION}")

set(FAST_MATH
    "fast-math arithmetic changes the printed digits. compile without -ffast-math and its parts")
add_refusal_test(RefusesFastMath -ffast-math "${FAST_MATH}")
add_refusal_test(RefusesFastMathByItsLevel -Ofast "${FAST_MATH}")
add_refusal_test(RefusesFiniteMath -ffinite-math-only "${FAST_MATH}")
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  add_refusal_test(RefusesUnsafeMath -funsafe-math-optimizations "${FAST_MATH}")
  add_refusal_test(RefusesReciprocals -freciprocal-math "${FAST_MATH}")
  add_refusal_test(RefusesZerosWithoutSign -fno-signed-zeros "${FAST_MATH}")
  add_refusal_test(RefusesNarrowConstants -fsingle-precision-constant "${FAST_MATH}")
  add_refusal_test(RefusesSumsInAnotherOrder
                   "-fassociative-math;-fno-signed-zeros;-fno-trapping-math" "${FAST_MATH}")
endif()
