// What benchmarks share that compare ours with a bare baseline measured in the same run.
#pragma once

#include <benchmark/benchmark.h>

#include <chrono>
#include <cstdlib>
#include <iostream>

namespace norvane::bench
{

/// A benchmark asserts that what it measures happened.
inline void require(bool condition, const char* what)
{
    if (!condition) {
        std::cerr << "benchmark failed: " << what << '\n';
        std::abort();
    }
}

template <typename Work>
double secondsOf(Work work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

/// Runs ours and the baseline by turns and reports how many times the baseline's time ours takes.
/// @return the seconds that one run of ours takes.
template <typename Ours, typename Bare>
double compare(benchmark::State& state, Ours ours, Bare bare)
{
    double oursTotal = 0;
    double bareTotal = 0;
    for (auto _ : state) {
        bareTotal += secondsOf(bare);
        const double seconds = secondsOf(ours);
        oursTotal += seconds;
        state.SetIterationTime(seconds);
    }
    const auto runs = static_cast<double>(state.iterations());
    state.counters["ratio"] = oursTotal / bareTotal;
    state.counters["bare_us"] = bareTotal / runs * 1e6;
    return oursTotal / runs;
}

} // namespace norvane::bench
