// The most memory that a piece of work takes.
#pragma once

#include "bench/Ratio.h"

#include <benchmark/benchmark.h>

#include <array>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <functional>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

namespace norvane::bench
{

/// A line of this process's status, in bytes.
inline std::int64_t statusBytes(const char* name)
{
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        if (line.starts_with(name))
            return std::atoll(line.c_str() + std::strlen(name)) * 1024;
    }
    return 0;
}

/// Begins to count the peak of this process's memory ("VmHWM:") again.
inline void resetPeak()
{
    std::ofstream("/proc/self/clear_refs") << "5";
}

/// The most memory that work on a file takes above what the process had, as a multiple of the file's size. It
/// is measured in a separate process, whose peak value was reset before.
inline void measureMemory(benchmark::State& state, std::size_t fileSize, const std::function<void()>& work)
{
    std::array<int, 2> pipeEnds{};
    require(pipe(pipeEnds.data()) == 0, "pipe");
    while (state.KeepRunning()) {
        const auto child = fork();
        if (child == 0) {
            resetPeak();
            const auto before = statusBytes("VmRSS:");
            work();
            const auto taken = statusBytes("VmHWM:") - before;
            std::_Exit(write(pipeEnds[1], &taken, sizeof taken) == sizeof taken ? 0 : 1);
        }
        int status = 0;
        std::int64_t taken = 0;
        require(waitpid(child, &status, 0) == child && status == 0, "child");
        require(read(pipeEnds[0], &taken, sizeof taken) == sizeof taken, "read");
        state.counters["memory_per_file_size"] = static_cast<double>(taken) / static_cast<double>(fileSize);
    }
    close(pipeEnds[0]);
    close(pipeEnds[1]);
}

} // namespace norvane::bench
