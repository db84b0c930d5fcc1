// What the settings dialogs of a graph share. Nothing a person enters is refused while the field has the focus; a field
// that is left with no number in it is marked, and OK goes back to it.
#include "graph/SettingsDialog.h"

#include <commctrl.h>

#include <cstdio>
#include <cstring>

#include "core/Messages.h"
#include "graph/CurvePoints.h"
#include "graph/Dialogs.h"
#include "graph/resources/DialogIds.h"

namespace kest {

void NumberField::Show(HWND dialog) {
    if (real) WriteNumber(shown, realShown = *real);
    if (whole) WriteNumber(shown, wholeShown = *whole);
    const HWND control = GetDlgItem(dialog, id);
    SendMessageA(control, EM_LIMITTEXT, sizeof shown - 1, 0);
    SetWindowTextA(control, shown);
    isMarkedWrong = false;

    char className[32] = {};
    const HWND next = GetWindow(control, GW_HWNDNEXT);
    if (next && GetClassNameA(next, className, sizeof className) && lstrcmpiA(className, UPDOWN_CLASSA) == 0)
        SendMessageA(next, UDM_SETRANGE32, static_cast<WPARAM>(spin.lowest), spin.highest);
}

bool NumberField::Read(HWND dialog) {
    NumberText text = {};
    GetDlgItemTextA(dialog, id, text, sizeof text);
    if (std::strcmp(text, shown) == 0) {
        if (real) *real = realShown;
        if (whole) *whole = wholeShown;
        return true;
    }
    if (real) {
        const auto parsed = ParseReal(text);
        if (parsed) *real = *parsed;
        return parsed.has_value();
    }
    const auto parsed = ParseWhole(text, accepted.lowest, accepted.highest);
    if (parsed) *whole = *parsed;
    return parsed.has_value();
}

void NumberField::Explain(std::span<char> text) const {
    const bool isBounded = whole && (accepted.lowest != INT_MIN || accepted.highest != INT_MAX);
    if (isBounded)
        std::snprintf(text.data(), text.size(), "Enter a whole number from %d to %d.", accepted.lowest,
                      accepted.highest);
    else
        std::snprintf(text.data(), text.size(), "%s",
                      whole ? "Enter a whole number." : "Enter a number, such as 2.5 or 1e6.");
}

void SettingsDialog::LoadCommonControls() {
    INITCOMMONCONTROLSEX controls = {sizeof controls, ICC_UPDOWN_CLASS};
    InitCommonControlsEx(&controls);
}

INT_PTR SettingsDialog::Dispatch(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* const dialog = reinterpret_cast<SettingsDialog*>(GetWindowLongPtrA(window, DWLP_USER));
    if (!dialog) return FALSE;
    switch (message) {
        case WM_COMMAND: dialog->Command(LOWORD(wParam), HIWORD(wParam)); return TRUE;
        case WM_DRAWITEM: dialog->DrawItem(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam)); return TRUE;
        case WM_CTLCOLOREDIT: return dialog->EditColour(reinterpret_cast<HDC>(wParam), reinterpret_cast<HWND>(lParam));
        case WM_CTLCOLORSTATIC:
            return dialog->LabelColour(reinterpret_cast<HDC>(wParam), reinterpret_cast<HWND>(lParam));
        case WM_NCDESTROY:
            SetWindowLongPtrA(window, DWLP_USER, 0);
            delete dialog;
            return FALSE;
        default: return FALSE;
    }
}

namespace {

/// The open dialogs of all threads, each linked to the next.
SettingsDialog* firstOpen = nullptr;
SRWLOCK openLock = SRWLOCK_INIT;

}  // namespace

SettingsDialog::SettingsDialog(CcGraph& edited, HWND dialogWindow)
    : graph(edited), window(dialogWindow), preview(edited) {
    AcquireSRWLockExclusive(&openLock);
    nextOpen = firstOpen;
    firstOpen = this;
    ReleaseSRWLockExclusive(&openLock);
}

SettingsDialog::~SettingsDialog() {
    AcquireSRWLockExclusive(&openLock);
    SettingsDialog** link = &firstOpen;
    while (*link != this) link = &(*link)->nextOpen;
    *link = nextOpen;
    ReleaseSRWLockExclusive(&openLock);
}

void SettingsDialog::CloseAllOf(const CcGraph& graph) {
    AcquireSRWLockShared(&openLock);
    for (SettingsDialog* open = firstOpen; open; open = open->nextOpen) {
        if (&open->graph != &graph) continue;
        open->isStarted = false;
        open->preview.SetCurveList(nullptr);
        PostMessageA(open->window, WM_COMMAND, IDCANCEL, 0);
    }
    ReleaseSRWLockShared(&openLock);
}

void CloseSettingsDialogs(const CcGraph& graph) { SettingsDialog::CloseAllOf(graph); }

void SettingsDialog::TellNotMade(const char* title) {
    char text[80];
    std::snprintf(text, sizeof text, "Can't open dialog:%s", title);
    ShowMessage(text, "Error...");
}

bool SettingsDialog::Start() {
    if (!Fill()) return false;
    ShowFields();
    isStarted = true;
    Refresh();
    return true;
}

void SettingsDialog::ShowFields() {
    const bool wasStarted = isStarted;
    isStarted = false;
    for (NumberField& field : Fields()) field.Show(window);
    isStarted = wasStarted;
    ShowProblem();
}

void SettingsDialog::Command(int controlId, int code) {
    if (controlId == IDCANCEL) EndDialog(window, IDCANCEL);
    if (!isStarted || controlId == IDCANCEL) return;
    if (controlId == IDOK) {
        Accept();
    } else if (NumberField* const field = FieldOf(controlId)) {
        if (code == EN_CHANGE) FieldChanged(*field);
        if (code == EN_KILLFOCUS) FieldLeft(*field);
    } else if (TakeOver(controlId, code)) {
        Refresh();
    }
}

NumberField* SettingsDialog::FieldOf(int controlId) {
    for (NumberField& field : Fields())
        if (field.Id() == controlId) return &field;
    return nullptr;
}

// While a number is being typed it is wrong at times; only what was marked before is judged again.
void SettingsDialog::FieldChanged(NumberField& field) {
    const bool isRight = field.Read(window);
    if (isRight && field.isMarkedWrong) FieldLeft(field);
    if (isRight) Refresh();
}

void SettingsDialog::FieldLeft(NumberField& field) {
    field.isMarkedWrong = !field.Read(window);
    InvalidateRect(GetDlgItem(window, field.Id()), nullptr, TRUE);
    ShowProblem();
}

void SettingsDialog::ShowProblem() {
    char text[80] = "";
    isProblem = false;
    for (const NumberField& other : Fields()) {
        if (!other.isMarkedWrong) continue;
        other.Explain(text);
        isProblem = true;
        break;
    }
    SetDlgItemTextA(window, IDC_PROBLEM, text);
}

void SettingsDialog::ShowRemark(const char* text) {
    if (!isProblem) SetDlgItemTextA(window, IDC_PROBLEM, text);
}

void SettingsDialog::Refresh() {
    UpdatePreview();
    Redraw(IDC_PREVIEW);
}

void SettingsDialog::Accept() {
    for (NumberField& field : Fields()) {
        FieldLeft(field);
        if (!field.isMarkedWrong) continue;
        MessageBeep(MB_ICONWARNING);
        SendMessageA(window, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(GetDlgItem(window, field.Id())), TRUE);
        return;
    }
    const HWND dialog = window;
    Apply();
    EndDialog(dialog, IDOK);
}

INT_PTR SettingsDialog::EditColour(HDC dc, HWND control) {
    const NumberField* const field = FieldOf(GetDlgCtrlID(control));
    if (!field || !field->isMarkedWrong) return FALSE;
    SetBkColor(dc, wrongBackground);
    return reinterpret_cast<INT_PTR>(static_cast<HBRUSH>(wrongBrush));
}

INT_PTR SettingsDialog::LabelColour(HDC dc, HWND control) const {
    if (GetDlgCtrlID(control) != IDC_PROBLEM || !isProblem) return FALSE;
    SetTextColor(dc, wrongText);
    SetBkColor(dc, GetSysColor(COLOR_BTNFACE));
    return reinterpret_cast<INT_PTR>(GetSysColorBrush(COLOR_BTNFACE));
}

// In memory first: the preview follows every key, and must not flicker.
void SettingsDialog::DrawItem(const DRAWITEMSTRUCT& item) {
    RECT area = {};
    GetClientRect(item.hwndItem, &area);
    const MemoryDc memory(item.hDC);
    const GdiObject<HBITMAP> bitmap(CreateCompatibleBitmap(item.hDC, area.right, area.bottom));
    if (!memory || !bitmap) return;
    const SelectedObject target(memory, bitmap);
    {
        const SelectedObject font(memory, reinterpret_cast<HGDIOBJ>(SendMessageA(window, WM_GETFONT, 0, 0)));
        FillRect(memory, &area, GetSysColorBrush(COLOR_WINDOW));
        const int state = SaveDC(memory);
        Draw(memory, item.hwndItem, area);
        RestoreDC(memory, state);
    }
    BitBlt(item.hDC, 0, 0, area.right, area.bottom, memory, 0, 0, SRCCOPY);
}

// Its curves are the edited graph's own.
void SettingsDialog::Draw(HDC dc, HWND control, const RECT&) {
    if (isStarted) preview.SetCurveList(graph.GetCurveList());
    const ListPositionGuard position(preview.GetCurveList());
    preview.ShowGraph(control, dc, 0);
}

}  // namespace kest
