#pragma once

#include <benchmark/benchmark.h>

#include <functional>
#include <string>
#include <vector>

namespace bench {

/// What a time is read from: the processor's, where nothing waits, or the wall's, where the disk does.
enum class Clock { Cpu, Wall };

using Measure = std::function<void(benchmark::State&)>;

/// One line of the table: what the program does, and its raw limit or peer in the same run.
struct Line {
    std::string figure;
    std::string aim; ///< as shown
    Measure ours;
    Measure raw;   ///< none: no peer
    int items = 0; ///< the time is given for each of them as well
    Clock clock = Clock::Cpu;
    int repetitions = 9;
};

/// A line for `run`.
void add(const Line& line);

/// Runs all lines, each side several times in an order drawn by lot, and prints the medians. The
/// arguments are Google Benchmark's.
int run(int argc, char** argv);

/// Prints a line of the table that was measured elsewhere; `raw` 0 means none.
void print(const std::string& figure, double ours, double raw, const char* unit, const std::string& aim,
           int items = 0);

/// The middle of a row of measures.
double median(std::vector<double> values);

} // namespace bench
