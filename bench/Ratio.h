// What benchmarks share that compare ours with a bare baseline measured in the same run.
#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <ctime>
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

/// Seconds of the processor that the work takes in this process, however busy the machine is.
template <typename Work>
double processorSecondsOf(Work work)
{
    const std::clock_t start = std::clock();
    work();
    return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

/// What a piece of work took, in seconds.
struct Cost {
    double elapsed = 0;
    double processor = 0;

    template <typename Work>
    void add(Work work)
    {
        processor += processorSecondsOf([&] { elapsed += secondsOf(work); });
    }
};

/// Processor time of pieces of work, on average and of the slowest.
class Times
{
public:
    template <typename Work>
    void add(Work work)
    {
        const double ms = processorSecondsOf(work) * 1e3;
        m_sum += ms;
        m_worst = std::max(m_worst, ms);
        ++m_count;
    }
    [[nodiscard]] double average() const { return m_sum / m_count; }
    void report(benchmark::State& state) const
    {
        state.counters["processor_ms"] = average();
        state.counters["worst_ms"] = m_worst;
    }

private:
    double m_sum = 0;
    double m_worst = 0;
    int m_count = 0;
};

/// Runs ours and the baseline by turns and reports how many times the baseline's time ours takes: of the
/// processor ("ratio", which the limits are for) and by the clock.
/// @return the seconds that one run of ours takes.
template <typename Ours, typename Bare>
double compare(benchmark::State& state, Ours ours, Bare bare)
{
    Cost oursCost;
    Cost bareCost;
    for (auto _ : state) {
        bareCost.add(bare);
        const double before = oursCost.elapsed;
        oursCost.add(ours);
        state.SetIterationTime(oursCost.elapsed - before);
    }
    const auto runs = static_cast<double>(state.iterations());
    state.counters["ratio"] = oursCost.processor / bareCost.processor;
    state.counters["clock_ratio"] = oursCost.elapsed / bareCost.elapsed;
    state.counters["processor_ms"] = oursCost.processor / runs * 1e3;
    state.counters["bare_us"] = bareCost.elapsed / runs * 1e6;
    return oursCost.elapsed / runs;
}

} // namespace norvane::bench
