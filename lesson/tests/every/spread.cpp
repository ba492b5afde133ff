#include "lesson/tests/every/spread.hpp"

#include <cmath>
#include <numeric>
#include <vector>

namespace
{

using Values = std::map<std::string, double>;

double totalOf(const Values& values)
{
    return std::accumulate(values.begin(), values.end(), 0.0,
                           [](double sum, const auto& value) { return sum + value.second; });
}

double valueOr0(const Values& values, const std::string& key)
{
    const auto found = values.find(key);
    return found == values.end() ? 0.0 : found->second;
}

struct Bin {
    double expected;
    double drawn;
};

// Values that are expected less than 20 times are thrown together with their neighbours.
std::vector<Bin> binsOf(const Values& shares, const Values& drawn, double total)
{
    constexpr double leastExpected = 20;
    std::vector<Bin> bins;
    Bin bin = {0, 0};
    for (const auto& [value, share] : shares) {
        bin.expected += share * total;
        bin.drawn += valueOr0(drawn, value);
        if (bin.expected >= leastExpected) {
            bins.push_back(bin);
            bin = {0, 0};
        }
    }
    if (!bins.empty()) {
        bins.back().expected += bin.expected;
        bins.back().drawn += bin.drawn;
    }
    return bins;
}

// By how many standard deviations a chi-square is too large: it is nearly normal as a cube root
// (Wilson and Hilferty).
double excessOf(const std::vector<Bin>& bins, double openPart)
{
    if (bins.size() < 2) {
        return 0;
    }
    double chiSquare = 0;
    for (const Bin& bin : bins) {
        const double off = std::abs(bin.drawn - bin.expected) - openPart * bin.expected;
        chiSquare += off > 0 ? off * off / bin.expected : 0;
    }
    const auto freedom = static_cast<double>(bins.size() - 1);
    const double variance = 2 / (9 * freedom);
    return (std::cbrt(chiSquare / freedom) - (1 - variance)) / std::sqrt(variance);
}

} // namespace

void Spread::beginClass(double shareOfDraws)
{
    share = shareOfDraws;
    combinations = 0;
    inClass.clear();
}

void Spread::allow(const std::string& quantity, const std::string& value, double times)
{
    inClass[quantity][value] += times;
}

void Spread::endCombination(double times)
{
    combinations += times;
}

void Spread::endClass()
{
    for (const auto& [quantity, values] : inClass) {
        for (const auto& [value, count] : values) {
            expected[quantity][value] += share * count / combinations;
        }
    }
}

void Spread::draw(const std::string& quantity, const std::string& value)
{
    ++drawn[quantity][value];
}

void Spread::check(Problems& problems, double openPart) const
{
    constexpr double often = 30;
    for (const auto& [quantity, values] : drawn) {
        const auto found = expected.find(quantity);
        problems.expect(found != expected.end(), "each quantity is expected", quantity);
        if (found == expected.end()) {
            continue;
        }
        const Values& shares = found->second;
        for (const auto& value : values) {
            problems.expect(shares.count(value.first) == 1, "each value is one of those allowed",
                            quantity + " " + value.first);
        }
        // A quantity that some classes have and others do not is drawn less often than all are.
        const double total = totalOf(values) / totalOf(shares);
        for (const auto& [value, shareOfValue] : shares) {
            problems.expect(shareOfValue * total < often || valueOr0(values, value) > 0,
                            "each value that is allowed is used", quantity + " " + value);
        }
        const double excess = excessOf(binsOf(shares, values, total), openPart);
        problems.expect(excess < 5, "each value comes as often as chance has it",
                        quantity + ": " + std::to_string(excess) + " standard deviations");
    }
}
