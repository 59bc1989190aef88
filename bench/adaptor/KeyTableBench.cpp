// Cost of finding a key by time: it must not depend on the size of the table when the times follow each
// other, and only on its logarithm when they do not.

#include <benchmark/benchmark.h>

#include <random>
#include <vector>

#include "adaptor/max/controllers/KeyTable.h"

namespace {

using namespace qvo::zmx::adaptor::max;

constexpr TimeValue kTicksPerFrame = 160;
constexpr std::size_t kQueries = 1 << 14;

KeyTable<Matrix3> tableOf(std::int64_t size) {
    KeyTable<Matrix3> table;
    for (TimeValue i = 0; i < static_cast<TimeValue>(size); ++i)
        table.append({0, i * kTicksPerFrame, Matrix3(1)});
    return table;
}

void randomQuery(benchmark::State& state) {
    const KeyTable<Matrix3> table = tableOf(state.range(0));
    std::mt19937 random(1);
    std::uniform_int_distribution<TimeValue> anyTime(0, table.last().time);
    std::vector<TimeValue> times(kQueries);
    for (TimeValue& t : times)
        t = anyTime(random);
    std::size_t next = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(table.around(times[next++ % kQueries]));
    state.SetComplexityN(state.range(0));
}

void sequentialQuery(benchmark::State& state) {
    const KeyTable<Matrix3> table = tableOf(state.range(0));
    TimeValue t = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(table.around(t));
        t += kTicksPerFrame / 4;
        if (t > table.last().time) t = 0;
    }
    state.SetComplexityN(state.range(0));
}

/// A whole bake: the time is for all keys of the table, so it grows with their number.
void append(benchmark::State& state) {
    for (auto _ : state)
        benchmark::DoNotOptimize(tableOf(state.range(0)));
    state.SetItemsProcessed(state.iterations() * state.range(0));
    state.SetComplexityN(state.range(0));
}

BENCHMARK(randomQuery)->RangeMultiplier(10)->Range(1000, 100000)->Complexity(benchmark::oLogN);
BENCHMARK(sequentialQuery)->RangeMultiplier(10)->Range(1000, 100000)->Complexity(benchmark::o1);
BENCHMARK(append)->RangeMultiplier(10)->Range(1000, 100000)->Complexity(benchmark::oN);

}  // namespace

BENCHMARK_MAIN();
