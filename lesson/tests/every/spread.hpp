#pragma once

#include <map>
#include <string>

#include "lesson/tests/every/exact.hpp"
#include "lesson/tests/every/reading.hpp"

// How often each value of each quantity is expected, and how often it was drawn. What is expected
// is counted: of all combinations that may be drawn, those that are sensible are equally likely,
// class by class.
class Spread
{
public:
    // From here on, `allow` counts for a class that comes with this share of the draws.
    void beginClass(double share);
    // One sensible combination has this value, so many times.
    void allow(const std::string& quantity, const std::string& value, double times = 1);
    // The same for a combination's number of ways, once for each.
    void endCombination(double times = 1);
    void endClass();

    void draw(const std::string& quantity, const std::string& value);

    // Each value that is drawn is allowed; each that should have come often enough did come; and
    // Pearson's chi-square over the values is no larger than chance makes it. Of each share a part
    // may be left open, for what is not counted.
    void check(Problems& problems, double openPart = 0) const;

private:
    using Counts = std::map<std::string, std::map<std::string, double>>;

    double share = 0;
    double combinations = 0;
    Counts inClass;
    Counts expected; // as shares
    Counts drawn;
};
