// Measures the kernels on this system through Google Benchmark, and prints them as one table.
//
//   bench_kernels [FILTER]    only works whose name contains FILTER
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstring>
#include <map>

#include "Peers.h"
#include "Work.h"

namespace {

/// Keeps the fastest repetition of each benchmark.
class FastestReporter : public benchmark::BenchmarkReporter {
public:
    bool ReportContext(const Context&) override { return true; }
    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& run : runs) {
            if (run.run_type != Run::RT_Iteration || run.error_occurred) continue;
            const double milliseconds = run.GetAdjustedCPUTime();
            const auto [place, isNew] = fastest.try_emplace(run.run_name.function_name, milliseconds);
            if (!isNew) place->second = std::min(place->second, milliseconds);
        }
    }
    std::map<std::string, double> fastest;
};

std::string NameOf(std::size_t work, int column) { return std::to_string(work) + bench::columnNames[column]; }

}  // namespace

int main(int argc, char** argv) {
    bench::UseOneThread();
    bench::WorkList list;
    bench::AddColourWork(list);
    bench::AddSampleWork(list);
    bench::AddRegionWork(list);
    bench::AddCalibrationWork(list);
    if (argc > 1)
        std::erase_if(list, [&](const bench::Work& work) { return work.name.find(argv[1]) == std::string::npos; });

    for (std::size_t i = 0; i < list.size(); ++i)
        for (int column = 0; column < 4; ++column) {
            const bench::Run& run = list[i].*bench::columns[column];
            if (!run) continue;
            benchmark::RegisterBenchmark(NameOf(i, column).c_str(),
                                         [&run](benchmark::State& state) {
                                             for (auto _ : state) run();
                                         })
                ->Unit(benchmark::kMillisecond)
                ->MinTime(0.02)
                ->Repetitions(9);
        }
    FastestReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);

    std::vector<bench::Measured> measured(list.size());
    for (std::size_t i = 0; i < list.size(); ++i)
        for (int column = 0; column < 4; ++column) {
            const auto found = reporter.fastest.find(NameOf(i, column));
            if (found != reporter.fastest.end()) measured[i].milliseconds[column] = found->second;
        }
    bench::PrintTable(list, measured);
}
