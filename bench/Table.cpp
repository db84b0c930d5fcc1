// The table of results.
#include <cstdio>

#include "Work.h"

namespace bench {
namespace {

void PrintNumber(double number, const char* format) {
    if (number < 0)
        std::printf(" %8s |", "-");
    else
        std::printf(format, number);
}

double Ratio(double a, double b) { return a < 0 || b <= 0 ? -1 : a / b; }

}  // namespace

void PrintTable(const WorkList& list, const std::vector<Measured>& measured) {
    std::printf("| %-34s | %-16s |", "work", "size");
    for (const char* name : columnNames) std::printf(" %8s |", name);
    std::printf(" %8s | %8s | %8s |\n|%s|%s|", "plain/o.", "ours/p.", "ours/l.", "---", "---");
    for (int i = 0; i < 7; ++i) std::printf("---:|");
    std::printf("\n");
    for (std::size_t i = 0; i < list.size(); ++i) {
        const auto& [plain, ours, peer, limit] = measured[i].milliseconds;
        std::printf("| %-34s | %-16s |", list[i].name.c_str(), list[i].size.c_str());
        for (const double time : measured[i].milliseconds) PrintNumber(time, " %8.2f |");
        PrintNumber(Ratio(plain, ours), " %8.1f |");
        PrintNumber(Ratio(ours, peer), " %8.2f |");
        PrintNumber(Ratio(ours, limit), " %8.2f |");
        std::printf("\n");
    }
    std::printf(
        "Milliseconds, the fastest of several runs; plain/o.: times as fast as plain, ours/p. and ours/l.: times\n"
        "as long as the peer and as a copy of the same bytes.\n");
}

}  // namespace bench
