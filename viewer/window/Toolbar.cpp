// The toolbar.
#include "window/Toolbar.h"

#include "res/Resource.h"
#include "window/ToolbarButtons.h"

namespace kestview {
namespace {

/// Between buttons, for 96 dots an inch.
constexpr int gapWidth = 8;
constexpr int pictureSize = 24;

}  // namespace

bool Toolbar::Create(HWND parent) {
    // It is placed by Arrange: by itself it can become taller than its rows.
    window = CreateWindowExA(
        0, TOOLBARCLASSNAMEA, "",
        WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | TBSTYLE_FLAT | TBSTYLE_TOOLTIPS | TBSTYLE_WRAPABLE | CCS_NORESIZE, 0,
        0, 0, 0, parent, reinterpret_cast<HMENU>(IDC_TOOLBAR), ProgramInstance(), nullptr);
    if (!window) return false;
    SendMessageA(window, TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON), 0);
    MakePictures();
    int pictureCount = 0;
    for (const ToolbarButton& button : ToolbarButtons()) {
        TBBUTTON record = {};
        record.iBitmap = button.draw ? pictureCount++ : gapWidth;
        record.idCommand = button.command;
        record.fsState = TBSTATE_ENABLED;
        record.fsStyle = button.style;
        SendMessageA(window, TB_ADDBUTTONSA, 1, reinterpret_cast<LPARAM>(&record));
    }
    return true;
}

void Toolbar::MakePictures() {
    const int size = MulDiv(pictureSize, DpiOf(window), 96);
    constexpr int growth = 8;
    const int count = static_cast<int>(ToolbarButtons().size());
    pictures.Take(ImageList_Create(size, size, ILC_COLOR32, count, growth));
    disabledPictures.Take(ImageList_Create(size, size, ILC_COLOR32, count, growth));
    for (const ToolbarButton& button : ToolbarButtons())
        for (const bool isEnabled : {true, false}) {
            if (!button.draw) continue;
            const kest::GdiObject bitmap(MakePicture(button.draw, size, isEnabled));
            ImageList_Add(isEnabled ? pictures : disabledPictures, bitmap, nullptr);
        }
    for (const HBITMAP picture : toolPictures) AddToolPicture(picture);
    SendMessageA(window, TB_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(HIMAGELIST(pictures)));
    SendMessageA(window, TB_SETDISABLEDIMAGELIST, 0, reinterpret_cast<LPARAM>(HIMAGELIST(disabledPictures)));
    SendMessageA(window, TB_SETBUTTONSIZE, 0,
                 MAKELPARAM(size + MulDiv(7, DpiOf(window), 96), size + MulDiv(8, DpiOf(window), 96)));
}

void Toolbar::AddToolPicture(HBITMAP picture) {
    const kest::GdiObject scaled(MakePicture(picture, MulDiv(pictureSize, DpiOf(window), 96)));
    ImageList_Add(pictures, scaled, nullptr);
    ImageList_Add(disabledPictures, scaled, nullptr);
}

void Toolbar::AddTool(int command, HBITMAP picture) {
    TBBUTTON record = {};
    if (toolPictures.empty()) {
        record.iBitmap = gapWidth;
        record.fsStyle = BTNS_SEP;
        SendMessageA(window, TB_ADDBUTTONSA, 1, reinterpret_cast<LPARAM>(&record));
    }
    record.iBitmap = ImageList_GetImageCount(pictures);
    toolPictures.push_back(picture);
    AddToolPicture(picture);
    record.idCommand = command;
    record.fsState = TBSTATE_ENABLED;
    record.fsStyle = BTNS_BUTTON;
    SendMessageA(window, TB_ADDBUTTONSA, 1, reinterpret_cast<LPARAM>(&record));
}

int Toolbar::Arrange(int width) {
    const auto resize = [&](int height) {
        SetWindowPos(window, nullptr, 0, 0, width, height, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    };
    resize(0);
    SendMessageA(window, TB_AUTOSIZE, 0, 0);
    RECT last = {};
    const auto count = static_cast<WPARAM>(SendMessageA(window, TB_BUTTONCOUNT, 0, 0));
    SendMessageA(window, TB_GETITEMRECT, count - 1, reinterpret_cast<LPARAM>(&last));
    const int height = static_cast<int>(last.bottom) + MulDiv(6, DpiOf(window), 96);
    resize(height);
    return height;
}

void Toolbar::SetState(int command, bool isEnabled, bool isChecked) const {
    const LRESULT old = SendMessageA(window, TB_GETSTATE, static_cast<WPARAM>(command), 0);
    if (old < 0) return;
    const int state = (isEnabled ? TBSTATE_ENABLED : 0) | (isChecked ? TBSTATE_CHECKED : 0);
    if ((old & (TBSTATE_ENABLED | TBSTATE_CHECKED)) != state)
        SendMessageA(window, TB_SETSTATE, static_cast<WPARAM>(command), state);
}

}  // namespace kestview
