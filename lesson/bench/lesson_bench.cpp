// Exercises and marks as a front end gets them, and how a mark grows with what is typed.

#include <benchmark/benchmark.h>

#include <string>

#include "lesson/exercise.hpp"
#include "lesson/kinds/kinds.hpp"
#include "lesson/lesson.h"
#include "lesson/tests/support/reference.hpp"
#include "lesson/words/render.hpp"

namespace
{

constexpr unsigned numbersOfAPaper = 20; // As many as a class gets.
constexpr unsigned papers = 1000;

struct Counter {
    unsigned paper = 1;
    unsigned number = 0;

    void next()
    {
        number = number % numbersOfAPaper + 1;
        paper = number == 1 ? paper % papers + 1 : paper;
    }
};

void exercise(benchmark::State& state, const std::string& kind)
{
    Counter at;
    for (auto _ : state) {
        at.next();
        benchmark::DoNotOptimize(
            lesson_exercise(drawn(at.paper, at.number, kind).c_str(), nullptr));
    }
    state.SetItemsProcessed(state.iterations());
}

// The key is typed, which is the mark that a learner waits for most gladly.
void mark(benchmark::State& state, const lesson::Kind* row, int level)
{
    const std::string kind = std::string(row->slug) + ":" + std::to_string(level);
    const std::string exercise = drawn(1, 1, kind);
    const std::string key =
        lesson::keyText(lesson::makeExercise({1, 1, row, level}), lesson::Writing());
    for (auto _ : state) {
        benchmark::DoNotOptimize(lesson_mark(exercise.c_str(), key.c_str(), nullptr));
    }
    state.SetItemsProcessed(state.iterations());
}

void markByLength(benchmark::State& state, const char* kind, const std::string& repeated)
{
    std::string typed;
    while (typed.size() < static_cast<std::size_t>(state.range(0))) {
        typed += repeated;
    }
    for (auto _ : state) {
        benchmark::DoNotOptimize(lesson_mark(drawn(1, 1, kind).c_str(), typed.c_str(), nullptr));
    }
    state.SetComplexityN(state.range(0));
}

struct LongText {
    const char* kind;
    const char* repeated;
};
constexpr LongText longTexts[] = {
    {"titration:2", "1"},          {"titration:2", "1 "},         {"titration:2", "²"},
    {"compound-formula:2", "(H2"}, {"compound-formula:2", "Na"},  {"ion-formula:2", "+"},
    {"ion-formula:2", "4"},        {"solubility:1", "no "},       {"solubility:3", "Pb"},
    {"neutralisation:2", "-> "},   {"neutralisation:2", "H2 + "}, {"neutralisation:2", "("},
};

void registerAll()
{
    for (const lesson::Kind* const row : lesson::allKinds()) {
        for (int level = 1; level <= lesson::levelCount; ++level) {
            const std::string kind = std::string(row->slug) + ":" + std::to_string(level);
            benchmark::RegisterBenchmark(("exercise/" + kind).c_str(), exercise, kind);
            benchmark::RegisterBenchmark(("mark/" + kind).c_str(), mark, row, level);
        }
    }
    benchmark::RegisterBenchmark("exercise/mixed", exercise, "mixed");
    for (const LongText& text : longTexts) {
        const std::string name =
            std::string("markByLength/") + text.kind + "/'" + text.repeated + "'";
        benchmark::RegisterBenchmark(name.c_str(), markByLength, text.kind, text.repeated)
            ->RangeMultiplier(10)
            ->Range(1000, 1000000)
            ->Complexity(benchmark::oN);
    }
}

} // namespace

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    registerAll();
    benchmark::RunSpecifiedBenchmarks();
}
