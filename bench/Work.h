// What is measured: for every piece of work the library's way, the plain one, a peer's, and a copy of the same bytes.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace bench {

using Run = std::function<void()>;

/// A column that does not exist is empty.
struct Work {
    std::string name, size;
    Run plain;  ///< the rule for one pixel, point or row, applied to one after another
    Run ours;   ///< what the library does
    Run peer;   ///< a well-known library on the same work, single-threaded
    Run limit;  ///< a copy of the bytes that the work has to touch
};

using WorkList = std::vector<Work>;

// Each adds its part's works; their buffers live until the program ends.
void AddColourWork(WorkList& list);
void AddSampleWork(WorkList& list);
void AddRegionWork(WorkList& list);
void AddCalibrationWork(WorkList& list);
void AddFileWork(WorkList& list);  ///< on Windows only

/// The columns' names, and a work's columns in that order.
inline const char* const columnNames[] = {"plain", "ours", "peer", "limit"};
inline const Run Work::*const columns[] = {&Work::plain, &Work::ours, &Work::peer, &Work::limit};

/// Milliseconds of one work, by column; negative where a column does not exist.
struct Measured {
    double milliseconds[4] = {-1, -1, -1, -1};
};

void PrintTable(const WorkList& list, const std::vector<Measured>& measured);

}  // namespace bench
