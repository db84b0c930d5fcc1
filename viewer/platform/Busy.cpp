// A wait cursor while work goes on, and its progress in the status bar when it takes longer than half a second.
#include "platform/Busy.h"

namespace kestview {

std::function<void(const std::string&, double)> Busy::show;

Busy::Busy(std::string what)
    : text(std::move(what)), oldCursor(SetCursor(LoadCursor(nullptr, IDC_WAIT))), started(GetTickCount64()) {}

Busy::~Busy() {
    SetCursor(oldCursor);
    if (lastShown && show) show("", -1);
}

void Busy::Report(long long done, long long all) {
    constexpr ULONGLONG patienceMilliseconds = 500, stepMilliseconds = 60;
    const ULONGLONG now = GetTickCount64();
    if (now - started < patienceMilliseconds || now - lastShown < stepMilliseconds || !show) return;
    lastShown = now;
    show(text, all > 0 ? static_cast<double>(done) / static_cast<double>(all) : 0);
}

}  // namespace kestview
