#include "process/dialogue.hpp"

#include <gtest/gtest.h>

#include <sstream>
#include <utility>
#include <vector>

int count(const std::string& all, const std::string& text)
{
    int times = 0;
    for (std::size_t at = all.find(text); at != std::string::npos; at = all.find(text, at + 1)) {
        ++times;
    }
    return times;
}

std::set<int> kindsIn(const std::string& dialogue)
{
    const std::vector<std::pair<std::string, int>> openings = {
        {"Calculate the concentration (in mol/L) if ", 1},
        {"Calculate the mass (in g) of ", 1},
        {"To dilute ", 2},
        {"Write a balanced equation for ", 3},
        {"Calculate the concentration of ", 4},
    };
    std::set<int> kinds;
    std::istringstream lines(dialogue);
    for (std::string line; std::getline(lines, line);) {
        for (const auto& [opening, kind] : openings) {
            if (line.rfind(opening, 0) == 0) {
                kinds.insert(kind);
            }
        }
    }
    return kinds;
}

PipedProgram::PipedProgram(const std::string& path) : PipedProgram(path, makePipe(), makePipe()) {}

PipedProgram::PipedProgram(const std::string& path, Pipe in, Pipe out)
    : input(std::move(in.writeEnd)), source(std::move(out.readEnd)),
      child(path, {in.readEnd.number(), out.writeEnd.number()}), output(source)
{
}

void PipedProgram::type(const std::string& keys) const
{
    writeAll(input.number(), keys);
}

std::string PipedProgram::skipToWait(int questions)
{
    return output.until(prompt, questions);
}

void PipedProgram::expectsKey() const
{
    child.waitForSleep();
    EXPECT_FALSE(output.hasMore());
}
