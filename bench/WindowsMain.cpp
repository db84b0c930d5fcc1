// Measures the kernels as the 32-bit library has them, and its classes' files and streams, with a timer of its own.
//
//   bench_windows [FILTER]    only works whose name contains FILTER
#include <algorithm>
#include <chrono>

#include "Work.h"

namespace {

using Clock = std::chrono::steady_clock;

double Milliseconds(Clock::duration duration) { return std::chrono::duration<double, std::milli>(duration).count(); }

/// The fastest of at least five runs, and of as many more as fit into a third of a second.
double Fastest(const bench::Run& run) {
    double fastest = 1e9;
    const Clock::time_point begin = Clock::now();
    for (int i = 0; i < 5 || Milliseconds(Clock::now() - begin) < 333; ++i) {
        const Clock::time_point start = Clock::now();
        run();
        fastest = std::min(fastest, Milliseconds(Clock::now() - start));
    }
    return fastest;
}

}  // namespace

int main(int argc, char** argv) {
    bench::WorkList list;
    bench::AddColourWork(list);
    bench::AddSampleWork(list);
    bench::AddRegionWork(list);
    bench::AddCalibrationWork(list);
    bench::AddFileWork(list);
    if (argc > 1)
        std::erase_if(list, [&](const bench::Work& work) { return work.name.find(argv[1]) == std::string::npos; });

    std::vector<bench::Measured> measured(list.size());
    for (std::size_t i = 0; i < list.size(); ++i)
        for (int column = 0; column < 4; ++column)
            if (const bench::Run& run = list[i].*bench::columns[column])
                measured[i].milliseconds[column] = Fastest(run);
    bench::PrintTable(list, measured);
}
