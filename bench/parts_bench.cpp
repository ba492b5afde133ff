#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <string>
#include <vector>

#include "chem/balance.hpp"
#include "chem/formula.hpp"
#include "data/tables.hpp"
#include "questions/quantities.hpp"
#include "questions/question.hpp"

namespace
{

void question(benchmark::State& state, QuestionType kind)
{
    std::srand(1);
    for (auto _ : state) {
        benchmark::DoNotOptimize(makeQuestion(kind));
    }
}
BENCHMARK_CAPTURE(question, massConcentration, massConcentrationKind);
BENCHMARK_CAPTURE(question, dilution, dilutionKind);
BENCHMARK_CAPTURE(question, neutralisation, neutralisationKind);
BENCHMARK_CAPTURE(question, titration, titrationKind);
BENCHMARK_CAPTURE(question, random, randomKind);

template <typename Draw>
void draw(benchmark::State& state, Draw drawOne)
{
    std::srand(1);
    for (auto _ : state) {
        benchmark::DoNotOptimize(drawOne());
    }
}
BENCHMARK_CAPTURE(draw, random, [] { return random(500, 4000); });
BENCHMARK_CAPTURE(draw, randomIon, randomIon);
BENCHMARK_CAPTURE(draw, randomNeg, randomNeg);
BENCHMARK_CAPTURE(draw, randomPos, randomPos);
BENCHMARK_CAPTURE(draw, randomSoluble, randomSoluble);

void molarMass(benchmark::State& state)
{
    const std::string formula = dissolvable[static_cast<std::size_t>(state.range(0))].formula;
    state.SetLabel(formula);
    for (auto _ : state) {
        benchmark::DoNotOptimize(calculateMM(formula));
    }
}
BENCHMARK(molarMass)->ArgName("row")->DenseRange(0, 9);

void molarMassByLength(benchmark::State& state, const std::string& opening,
                       const std::string& closing)
{
    const auto length = static_cast<std::size_t>(state.range(0));
    std::string formula;
    while (formula.size() + formula.size() / opening.size() * closing.size() < length) {
        formula += opening;
    }
    for (std::size_t opened = formula.size() / opening.size(); opened > 0; --opened) {
        formula += closing;
    }
    for (auto _ : state) {
        benchmark::DoNotOptimize(calculateMM(formula));
    }
    state.SetComplexityN(static_cast<benchmark::IterationCount>(formula.size()));
}

// A formula that goes on and on, and one whose groups stand within each other.
const std::string chain = "Ca(OH)2NaI";
BENCHMARK_CAPTURE(molarMassByLength, chain, chain, "")
    ->RangeMultiplier(10)
    ->Range(10, 1000000)
    ->Complexity(benchmark::oN);
BENCHMARK_CAPTURE(molarMassByLength, nested, "NaCl(", "H2)2O")
    ->RangeMultiplier(10)
    ->Range(10, 1000000)
    ->Complexity(benchmark::oN);

std::vector<Ion> ionsWhere(bool (*wanted)(const Ion&))
{
    std::vector<Ion> ions;
    std::copy_if(ion.begin(), ion.end(), std::back_inserter(ions), wanted);
    return ions;
}

// Nanoseconds for one call, the best of a few rounds.
double timeOfBalance(const Ion& acidAnion, const Ion& baseCation, const Ion& baseAnion)
{
    constexpr int rounds = 5;
    constexpr int calls = 50;
    std::chrono::duration<double, std::nano> best = std::chrono::hours(1);
    for (int round = 0; round < rounds; ++round) {
        const auto start = std::chrono::steady_clock::now();
        for (int call = 0; call < calls; ++call) {
            benchmark::DoNotOptimize(balance(acidAnion, baseCation, baseAnion));
        }
        best = std::min<decltype(best)>(best, std::chrono::steady_clock::now() - start);
    }
    return best.count() / calls;
}

// Every acid anion with every base cation and every base anion; the table's time is that of all of
// them, the counters are those of one.
void balanceEveryCombination(benchmark::State& state)
{
    const std::vector<Ion> anions = ionsWhere([](const Ion& row) { return row.negative; });
    const std::vector<Ion> cations = ionsWhere([](const Ion& row) { return !row.negative; });
    const std::vector<Ion> baseAnions = ionsWhere([](const Ion& row) {
        return row.name == "hydroxide" || row.name == "oxide" || row.name == "carbonate" ||
               row.name == "bicarbonate";
    });
    std::vector<double> times;
    for (auto _ : state) {
        times.clear();
        for (const Ion& acidAnion : anions) {
            for (const Ion& baseCation : cations) {
                for (const Ion& baseAnion : baseAnions) {
                    times.push_back(timeOfBalance(acidAnion, baseCation, baseAnion));
                }
            }
        }
    }
    std::sort(times.begin(), times.end());
    state.counters["combinations"] = static_cast<double>(times.size());
    state.counters["median_ns"] = times[times.size() / 2];
    state.counters["worst_ns"] = times.back();
}
BENCHMARK(balanceEveryCombination)->Iterations(1)->Unit(benchmark::kMillisecond);

void volume(benchmark::State& state, float litres)
{
    for (auto _ : state) {
        benchmark::DoNotOptimize(volumeFormat(litres, 3));
    }
}
BENCHMARK_CAPTURE(volume, millilitres, 0.025f);
BENCHMARK_CAPTURE(volume, litres, 1.5f);

} // namespace

int main(int argc, char** argv)
{
    initIons();
    initSolubles();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
