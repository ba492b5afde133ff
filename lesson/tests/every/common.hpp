#pragma once

#include <string>

#include "lesson/tests/every/chemistry.hpp"
#include "lesson/tests/every/exact.hpp"
#include "lesson/tests/every/reading.hpp"

// What every exercise keeps to, whatever its kind.

// Over how many papers calculations are checked.
unsigned papersToCheck();

// Its place, prompt, given quantities, key, last step and slips fit together; `key` is worked out
// by the caller for those that ask for a number.
void checkWhatIsShown(Problems& problems, const Json& exercise, const std::string& kind,
                      unsigned paper, unsigned number);
void checkNumber(Problems& problems, const Json& exercise, const Exact& key);

// The equation is that of one of the reactions, conserves every atom, and is in lowest terms; the
// key and the salt agree with it.
void checkEquation(Problems& problems, const Json& exercise, const TypedReactions& reactions);

// Whether a number typed to the figures asked for would pass for another value: within one unit of
// its last figure, or within 0.5 % of it unless it is a molar mass.
bool passesFor(const Exact& typed, const Exact& value, int figures, bool isMolarMass);

// The given quantity of this symbol, of this substance unless `of` is empty; null if there is none.
const Json* givenQuantity(const Json& exercise, const std::string& symbol,
                          const std::string& of = "");
// Whether the prompt tells it.
bool isTold(const Json& quantity);
Exact valueOf(const Json& quantity);
// A volume in litres, exactly: a mean of three titres has no end as a decimal.
Exact volumeOf(const Json& quantity);

// "titration:2"
std::string kindAt(const std::string& slug, int level);
