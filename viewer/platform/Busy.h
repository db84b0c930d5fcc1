// A wait cursor and progress in the status bar, for work that takes longer than half a second.
#pragma once

#include <windows.h>

#include <string>

namespace kestview {

class Busy {
public:
    /// `bytesAtOnce`: how much is handled by one call that cannot report; where that will take its time, the cursor and
    /// the text come at once.
    explicit Busy(std::string what, long long bytesAtOnce = 0);
    ~Busy();
    Busy(const Busy&) = delete;
    Busy& operator=(const Busy&) = delete;

    /// How much is done, as a part of the whole. Shown once the work has gone on for half a second.
    void Report(long long done, long long all);

private:
    void Show(double part);

    std::string text;
    HCURSOR oldCursor = nullptr;
    bool isShown = false;
    ULONGLONG started;
    ULONGLONG lastShown = 0;
};

}  // namespace kestview
