#pragma once

#include <vector>

// The test executable has its own `rand`, so that a test decides what is drawn. While a script
// lives, `rand` gives its values one by one; a draw beyond the last one ends the test run, since
// loops that wait for a certain draw would never end. Without a script `rand` gives a fixed
// sequence that looks random, from the start of each test run.
class ScriptedDraws
{
public:
    explicit ScriptedDraws(std::vector<int> values);

    // Fails the test when a value is left over: the code under test drew less than it promises.
    ~ScriptedDraws();

    ScriptedDraws(const ScriptedDraws&) = delete;
    ScriptedDraws& operator=(const ScriptedDraws&) = delete;
};

// Values for `rand` that lead to a certain row, counted from 1 as in the tables.

// Of the ion table, 1 to 38: the last row cannot be drawn.
int drawOfIon(int row);

// Of the compound table, 1 to 10.
int drawOfCompound(int row);
