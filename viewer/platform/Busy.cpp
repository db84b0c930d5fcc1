// A wait cursor and progress in the status bar, for work that takes longer than half a second.
#include "platform/Busy.h"

#include "platform/Program.h"

namespace kestview {
namespace {

constexpr ULONGLONG patienceMilliseconds = 500, stepMilliseconds = 60;
/// A disk writes and a picture is gone through in half a second.
constexpr long long patienceBytes = 32 << 20;

}  // namespace

Busy::Busy(std::string what, long long bytesAtOnce) : text(std::move(what)), started(GetTickCount64()) {
    if (bytesAtOnce >= patienceBytes) Show(-1);
}

Busy::~Busy() {
    if (!isShown) return;
    SetCursor(oldCursor);
    if (RunningProgram()) RunningProgram()->ShowProgress("", -1);
}

void Busy::Report(long long done, long long all) {
    const ULONGLONG now = GetTickCount64();
    if (now - started < patienceMilliseconds || now - lastShown < stepMilliseconds) return;
    lastShown = now;
    Show(all > 0 ? static_cast<double>(done) / static_cast<double>(all) : -1);
}

void Busy::Show(double part) {
    const HCURSOR before = SetCursor(LoadCursor(nullptr, IDC_WAIT));
    if (!isShown) oldCursor = before;
    isShown = true;
    if (RunningProgram()) RunningProgram()->ShowProgress(text, part);
}

}  // namespace kestview
