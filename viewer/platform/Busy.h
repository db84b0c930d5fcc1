// A wait cursor while work goes on, and its progress in the status bar when it takes longer than half a second.
#pragma once

#include <windows.h>

#include <functional>
#include <string>

namespace kestview {

class Busy {
public:
    explicit Busy(std::string what);
    ~Busy();
    Busy(const Busy&) = delete;
    Busy& operator=(const Busy&) = delete;

    /// How much is done, as a part of the whole.
    void Report(long long done, long long all);

    /// Shows a text and a part from 0 to 1, or takes both away for a part below 0. Set by the main window.
    static std::function<void(const std::string& text, double part)> show;

private:
    std::string text;
    HCURSOR oldCursor;
    ULONGLONG started;
    ULONGLONG lastShown = 0;
};

}  // namespace kestview
