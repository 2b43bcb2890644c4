#include "Table.h"

#include <algorithm>
#include <cstdio>
#include <map>

namespace bench {

namespace {

std::vector<Line>& lines() {
    static std::vector<Line> all;
    return all;
}

std::string name(const Line& line, const char* side) {
    return line.figure + '|' + side;
}

/// Keeps the times of each repetition, in milliseconds.
class Keeper : public benchmark::BenchmarkReporter {
public:
    bool ReportContext(const Context& /*context*/) override { return true; }
    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& run : runs) {
            if (run.run_type != Run::RT_Iteration)
                continue;
            if (run.error_occurred)
                std::fprintf(stderr, "%s: %s\n", run.benchmark_name().c_str(), run.error_message.c_str());
            cpu_[run.run_name.function_name].push_back(run.GetAdjustedCPUTime());
            wall_[run.run_name.function_name].push_back(run.GetAdjustedRealTime());
        }
    }
    /// 0 if it did not run.
    double time(const std::string& name, Clock clock) const {
        const auto& times = clock == Clock::Cpu ? cpu_ : wall_;
        const auto found = times.find(name);
        return found == times.end() ? 0 : median(found->second);
    }

private:
    std::map<std::string, std::vector<double>> cpu_;
    std::map<std::string, std::vector<double>> wall_;
};

} // namespace

void add(const Line& line) {
    lines().push_back(line);
}

double median(std::vector<double> values) {
    if (values.empty())
        return 0;
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

void print(const std::string& figure, double ours, double raw, const char* unit, const std::string& aim,
           int items) {
    const int digits = ours < 1 ? 4 : ours < 100 ? 2 : 0;
    char peer[32] = "-";
    char ratio[32] = "-";
    char each[32] = "";
    if (raw > 0) {
        std::snprintf(peer, sizeof peer, "%.*f", raw < 1 ? 4 : raw < 100 ? 2 : 0, raw);
        std::snprintf(ratio, sizeof ratio, "%.2f", ours / raw);
    }
    if (items > 0)
        std::snprintf(each, sizeof each, "%.1f", ours * 1000 / items);
    std::printf("%-56s %10.*f %10s %-4s %7s %10s  %s\n", figure.c_str(), digits, ours, peer, unit, ratio,
                each, aim.c_str());
    std::fflush(stdout);
}

int run(int argc, char** argv) {
    for (const Line& line : lines()) {
        const auto side = [&line](const char* which, const Measure& measure) {
            benchmark::RegisterBenchmark(name(line, which).c_str(), measure)
                ->MeasureProcessCPUTime()
                ->Unit(benchmark::kMillisecond)
                ->Repetitions(line.repetitions);
        };
        side("ours", line.ours);
        if (line.raw)
            side("raw", line.raw);
    }
    std::vector<std::string> words{argv[0], "--benchmark_enable_random_interleaving=true",
                                   "--benchmark_min_time=0.1"};
    words.insert(words.end(), argv + 1, argv + argc); // the caller's come last and win
    std::vector<char*> pointers;
    pointers.reserve(words.size());
    for (std::string& word : words)
        pointers.push_back(word.data());
    int count = static_cast<int>(pointers.size());
    benchmark::Initialize(&count, pointers.data());
    if (benchmark::ReportUnrecognizedArguments(count, pointers.data()))
        return 1;
    Keeper keeper;
    benchmark::RunSpecifiedBenchmarks(&keeper);
    for (const Line& line : lines()) {
        const double ours = keeper.time(name(line, "ours"), line.clock);
        if (ours > 0)
            print(line.figure, ours, keeper.time(name(line, "raw"), line.clock), "ms", line.aim, line.items);
    }
    return 0;
}

} // namespace bench
