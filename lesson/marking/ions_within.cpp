#include "lesson/marking/ions_within.hpp"

#include <algorithm>
#include <vector>

#include "lesson/chemistry/compounds.hpp"
#include "lesson/marking/spellings.hpp"
#include "lesson/text/scan.hpp"

namespace lesson
{

namespace
{

// An ion and how often its compound has it.
struct Share {
    const IonRow& ion;
    int times;
};

// Takes an ion away from the front in any of its spellings, as often as it comes.
bool takeEach(std::string_view& rest, const Share& share)
{
    const std::vector<std::string> spellings = spellingsOf(share.ion);
    for (int i = 0; i < share.times; ++i) {
        if (std::none_of(spellings.begin(), spellings.end(),
                         [&rest](const std::string& one) { return take(rest, one); })) {
            return false;
        }
    }
    return true;
}

bool takeOnceOrEach(std::string_view& rest, const Share& share)
{
    return take(rest, repeated(written(share.ion), share.times)) || takeEach(rest, share);
}

// At least one of them written each time.
bool isOneEachTime(std::string_view formula, const Share& first, const Share& second)
{
    std::string_view eachFirst = formula;
    std::string_view eachSecond = formula;
    return (first.times > 1 && takeEach(eachFirst, first) && takeOnceOrEach(eachFirst, second) &&
            eachFirst.empty()) ||
           (second.times > 1 && takeOnceOrEach(eachSecond, first) && takeEach(eachSecond, second) &&
            eachSecond.empty());
}

} // namespace

WrittenIon written(const IonRow& ion)
{
    return {ion.formula, ion.isGroup};
}

std::string repeated(const WrittenIon& ion, int times)
{
    const std::string once(ion.formula);
    const std::string number = times == 1 ? "" : std::to_string(times);
    return (ion.isGroup && times > 1 ? "(" + once + ")" : once) + number;
}

Counts countsIn(std::string_view formula, const WrittenIon& cation, const WrittenIon& anion)
{
    constexpr int most = 9;
    for (int positive = 1; positive <= most; ++positive) {
        const std::string first = repeated(cation, positive);
        if (formula.substr(0, first.size()) != first) {
            continue;
        }
        for (int negative = 1; negative <= most; ++negative) {
            if (formula.substr(first.size()) == repeated(anion, negative)) {
                return {positive, negative};
            }
        }
    }
    return {};
}

bool repeatsGroup(const IonRow& cation, const IonRow& anion)
{
    return (cation.isGroup && cationsIn(cation, anion) > 1) ||
           (anion.isGroup && anionsIn(cation, anion) > 1);
}

bool isWrittenOut(std::string_view formula, const IonRow& cation, const IonRow& anion)
{
    const Share positive{cation, cationsIn(cation, anion)};
    const Share negative{anion, anionsIn(cation, anion)};
    return isOneEachTime(formula, positive, negative) || isOneEachTime(formula, negative, positive);
}

} // namespace lesson
