#pragma once

#include <set>
#include <string>

#include "support/child_process.hpp"

// What a person sees of the program.

inline const std::string menu = R"(Chemical calculations practice
Note that due to the limitations of this program subscript and superscript don't look how they should.

Which kind of questions?
1. Mass and solution concentration calculations
2. Dilution calculations
3. Neutralisation equation writing and balancing
4. Acid-base titration calculations
0. Random
)";

inline const std::string prompt = "Press enter to continue...\n";

// How often the text occurs.
int count(const std::string& all, const std::string& text);

// The kinds of the questions in a dialogue, known by their first words.
std::set<int> kindsIn(const std::string& dialogue);

// The program between two pipes.
struct PipedProgram {
    explicit PipedProgram(const std::string& path);

    void type(const std::string& keys) const;
    // Reads on to the wait that is as many questions away.
    std::string skipToWait(int questions);
    // Fails the test unless the program has shown all that it has to show and waits for a key.
    void expectsKey() const;

    Descriptor input;
    Descriptor source;
    ChildProcess child;
    Output output;

private:
    PipedProgram(const std::string& path, Pipe in, Pipe out);
};
