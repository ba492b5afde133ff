#include "questions/quantities.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

#include "support/scripted_draws.hpp"

namespace
{

constexpr int greatestDraw = 2147483647;

struct Draw {
    int low;
    int high;
    int drawn;
    float expected;
};

void expectDraws(const Draw* begin, const Draw* end)
{
    for (const Draw* draw = begin; draw != end; ++draw) {
        const ScriptedDraws draws({draw->drawn});
        EXPECT_EQ(random(draw->low, draw->high), draw->expected)
            << "random(" << draw->low << ", " << draw->high << ") at " << draw->drawn;
    }
}

template <std::size_t size>
void expectDraws(const Draw (&table)[size])
{
    expectDraws(table, table + size);
}

TEST(RandomTest, AnOddNumberOfStepsGivesTheLowerBound)
{
    expectDraws({
        {5, 5, 0, 5.0f},
        {5, 5, 1 << 30, 5.0f},
        {5, 5, greatestDraw - 1, 5.0f},
        {5, 5, greatestDraw, 5.0f},
        {-7, -7, greatestDraw, -7.0f},
        {1, 15, 0, 1.0f},
        {1, 15, 1 << 30, 1.0f},
        {1, 15, 143165577, 1.0f}, // The first product past 2^31.
        {1, 15, greatestDraw, 1.0f},
        {100, 1000, 1 << 30, 100.0f},
        {100, 1000, greatestDraw, 100.0f},
        {500, 4000, 1 << 30, 500.0f},
        {500, 4000, greatestDraw, 500.0f},
        {0, 2147483646, 1, 0.0f},
        {0, 2147483646, greatestDraw, 0.0f},
    });
}

TEST(RandomTest, AnEvenNumberOfStepsGivesOneLessForAFewDraws)
{
    expectDraws({
        {0, 1, (1 << 30) - 1, 0.0f},  {0, 1, 1 << 30, -1.0f},   {0, 1, (1 << 30) + 1, 0.0f},
        {0, 1, 1 << 29, 0.0f},        {1, 50, 1 << 30, 0.0f},   {1, 50, 1 << 29, 1.0f},
        {1, 60, 1 << 29, 0.0f},       {1, 60, 3 << 29, 0.0f},   {1, 60, 1 << 30, 1.0f},
        {1, 60, (1 << 29) - 1, 1.0f}, {1, 100, 1 << 29, 0.0f},  {1, 100, 3 << 29, 0.0f},
        {1, 100, 1 << 30, 1.0f},      {1, 40, 1 << 28, 0.0f},   {1, 40, 3 << 28, 0.0f},
        {1, 40, 5 << 28, 0.0f},       {1, 40, 7 << 28, 0.0f},   {1, 40, 1 << 29, 1.0f},
        {1, 16, 1 << 27, 0.0f},       {0, 1073741823, 1, 0.0f}, {0, 1073741823, 2, -1.0f},
        {0, 1073741823, 3, 0.0f},     {0, 1073741823, 4, 0.0f}, {0, 1073741823, 6, -1.0f},
    });
}

TEST(RandomTest, NegativeProductsAreCutOffTowardsZero)
{
    expectDraws({
        {0, 1, greatestDraw, 0.0f},  // The product wraps to -2.
        {0, 1, (1 << 30) + 1, 0.0f}, // It wraps to the least number plus 2.
        {0, 9, greatestDraw, 0.0f},
        {-3, 0, greatestDraw, -3.0f},
        {-3, 0, 1 << 29, -4.0f},
    });
}

TEST(RandomTest, BoundsInTheWrongOrderGiveTheFirst)
{
    expectDraws({
        {5, 4, greatestDraw, 5.0f},
        {5, 3, greatestDraw, 5.0f},
        {5, 2, 1 << 30, 4.0f},
    });
}

TEST(RandomTest, TheSumIsAWholeNumberBeforeItIsRounded)
{
    expectDraws({
        {16777217, 16777218, 0, 16777216.0f}, // Not a single-precision number; a tie goes to even.
        {16777217, 16777218, 1 << 30, 16777216.0f},
        {16777219, 16777220, 0, 16777220.0f},
        {16777219, 16777220, 1 << 30, 16777218.0f},
    });
}

struct Volume {
    float litres;
    unsigned int precision;
    const char* expected;
};

void expectVolumes(std::initializer_list<Volume> table)
{
    for (const Volume& volume : table) {
        EXPECT_EQ(volumeFormat(volume.litres, volume.precision), volume.expected)
            << volume.litres << " L to " << volume.precision << " digits";
    }
}

TEST(VolumeFormatTest, MillilitresUpToOneLitreLitresAbove)
{
    const float justBelow = std::nextafter(1.0f, 0.0f);
    const float justAbove = std::nextafter(1.0f, 2.0f);
    expectVolumes({
        {0.01f, 3, "10 mL"},
        {0.005f, 3, "5 mL"},
        {0.0123456f, 3, "12.3 mL"},
        {0.25f, 3, "250 mL"},
        {0.999f, 3, "999 mL"},
        {justBelow, 3, "1e+03 mL"},
        {1.0f, 3, "1e+03 mL"},
        {justAbove, 3, "1 L"},
        {1.5f, 3, "1.5 L"},
        {2.0f, 3, "2 L"},
        {1234.5f, 3, "1.23e+03 L"},
    });
}

TEST(VolumeFormatTest, NoVolumeAndLessThanNoneAreMillilitres)
{
    expectVolumes({
        {0.0f, 3, "0 mL"},
        {-0.0f, 3, "-0 mL"},
        {-0.04f, 3, "-40 mL"},
        {-1.5f, 3, "-1.5e+03 mL"},
        {std::numeric_limits<float>::denorm_min(), 3, "1.4e-42 mL"},
    });
}

TEST(VolumeFormatTest, InfinitiesAndNoNumber)
{
    constexpr float infinity = std::numeric_limits<float>::infinity();
    const float nan = std::copysign(std::numeric_limits<float>::quiet_NaN(), 1.0f);
    expectVolumes({
        {infinity, 3, "inf L"},
        {-infinity, 3, "-inf mL"},
        {nan, 3, "nan L"},
        {-nan, 3, "-nan L"},
    });
}

TEST(VolumeFormatTest, ThePrecisionCountsSignificantDigits)
{
    const float justAbove = std::nextafter(1.0f, 2.0f);
    expectVolumes({
        {0.375f, 0, "4e+02 mL"}, // As one digit.
        {0.375f, 1, "4e+02 mL"},
        {0.375f, 2, "3.8e+02 mL"},
        {0.375f, 3, "375 mL"},
        {0.375f, 6, "375 mL"},
        {1.0f, 4, "1000 mL"},
        {1.0f, 6, "1000 mL"},
        {1234.5f, 4, "1234 L"},
        {1234.5f, 5, "1234.5 L"},
        {0.0123456f, 6, "12.3456 mL"},
        {justAbove, 8, "1.0000001 L"},
        {justAbove, 1000, "1.00000011920928955078125 L"},
        {1.1f, 4294967295, "1.1 L"}, // None that a stream can hold: the usual six.
    });
}

TEST(VolumeFormatTest, MillilitresAreRoundedToSinglePrecision)
{
    // In double precision each of these would be a digit off.
    expectVolumes({
        {0.01025f, 3, "10.2 mL"},
        {0.01055f, 3, "10.6 mL"},
        {0.01095f, 3, "10.9 mL"},
        {0.01195f, 3, "11.9 mL"},
        {0.9785f, 3, "978 mL"},
        {0.9795f, 3, "980 mL"},
        {0.9995f, 3, "1e+03 mL"},
    });
}

} // namespace
