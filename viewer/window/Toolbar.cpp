// The toolbar.
#include "window/Toolbar.h"

#include "res/Resource.h"
#include "window/ToolbarPictures.h"

namespace kestview {
namespace {

struct Button {
    ToolbarPicture picture;
    int command;  ///< 0: a gap
    BYTE style = BTNS_BUTTON;
};

constexpr Button gap = {ToolbarPicture::Count, 0, BTNS_SEP};
const Button buttons[] = {
    {ToolbarPicture::Open, ID_FILE_OPEN},
    {ToolbarPicture::Save, ID_FILE_SAVE_SESSION},
    gap,
    {ToolbarPicture::Undo, ID_EDIT_UNDO},
    {ToolbarPicture::Redo, ID_EDIT_REDO},
    gap,
    {ToolbarPicture::Select, ID_ROI_SELECT_TOOL, BTNS_CHECK},
    {ToolbarPicture::Point, ID_ROI_TOOL_POINT, BTNS_CHECK},
    {ToolbarPicture::Line, ID_ROI_TOOL_LINE, BTNS_CHECK},
    {ToolbarPicture::Rectangle, ID_ROI_TOOL_RECTANGLE, BTNS_CHECK},
    {ToolbarPicture::Ellipse, ID_ROI_TOOL_ELLIPSE, BTNS_CHECK},
    {ToolbarPicture::Freehand, ID_ROI_TOOL_FREEHAND, BTNS_CHECK},
    {ToolbarPicture::FreehandLine, ID_ROI_TOOL_FREEHAND_LINE, BTNS_CHECK},
    {ToolbarPicture::Polygon, ID_ROI_TOOL_POLYGON, BTNS_CHECK},
    {ToolbarPicture::Polyline, ID_ROI_TOOL_POLYLINE, BTNS_CHECK},
    gap,
    {ToolbarPicture::ZoomIn, ID_VIEW_ZOOM_IN},
    {ToolbarPicture::ZoomOut, ID_VIEW_ZOOM_OUT},
    {ToolbarPicture::ZoomFit, ID_VIEW_ZOOM_FIT, BTNS_CHECK},
    gap,
    {ToolbarPicture::Threshold, ID_DISPLAY_THRESHOLD, BTNS_CHECK},
    {ToolbarPicture::DisplayTable, ID_DISPLAY_EDIT, BTNS_CHECK},
    {ToolbarPicture::Histogram, ID_MEASURE_HISTOGRAM, BTNS_CHECK},
    {ToolbarPicture::Calibrate, ID_CALIBRATE_POINTS, BTNS_CHECK},
};

}  // namespace

Toolbar::~Toolbar() {
    if (pictures) ImageList_Destroy(pictures);
    if (disabledPictures) ImageList_Destroy(disabledPictures);
}

bool Toolbar::Create(HWND parent) {
    window = CreateWindowExA(0, TOOLBARCLASSNAMEA, "",
                             WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | TBSTYLE_FLAT | TBSTYLE_TOOLTIPS, 0, 0, 0, 0,
                             parent, reinterpret_cast<HMENU>(IDC_TOOLBAR), ProgramInstance(), nullptr);
    if (!window) return false;
    SendMessageA(window, TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON), 0);
    MakePictures();
    for (const Button& button : buttons) {
        TBBUTTON record = {};
        record.iBitmap = button.command ? static_cast<int>(button.picture) : 8;
        record.idCommand = button.command;
        record.fsState = TBSTATE_ENABLED;
        record.fsStyle = button.style;
        SendMessageA(window, TB_ADDBUTTONSA, 1, reinterpret_cast<LPARAM>(&record));
    }
    SendMessageA(window, TB_AUTOSIZE, 0, 0);
    return true;
}

void Toolbar::MakePictures() {
    const int size = MulDiv(24, DpiOf(window), 96);
    if (pictures) ImageList_Destroy(pictures);
    if (disabledPictures) ImageList_Destroy(disabledPictures);
    constexpr int count = static_cast<int>(ToolbarPicture::Count);
    pictures = ImageList_Create(size, size, ILC_COLOR32, count, 8);
    disabledPictures = ImageList_Create(size, size, ILC_COLOR32, count, 8);
    for (int i = 0; i < count; ++i)
        for (const bool isEnabled : {true, false}) {
            const HBITMAP bitmap = MakeToolbarPicture(static_cast<ToolbarPicture>(i), size, isEnabled);
            ImageList_Add(isEnabled ? pictures : disabledPictures, bitmap, nullptr);
            DeleteObject(bitmap);
        }
    for (const HBITMAP picture : toolPictures)
        AddToolPicture(picture);
    SendMessageA(window, TB_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(pictures));
    SendMessageA(window, TB_SETDISABLEDIMAGELIST, 0, reinterpret_cast<LPARAM>(disabledPictures));
    SendMessageA(window, TB_SETBUTTONSIZE, 0,
                 MAKELPARAM(size + MulDiv(7, DpiOf(window), 96), size + MulDiv(8, DpiOf(window), 96)));
}

void Toolbar::AddToolPicture(HBITMAP picture) {
    const HBITMAP scaled = MakeToolbarPicture(picture, MulDiv(24, DpiOf(window), 96));
    ImageList_Add(pictures, scaled, nullptr);
    ImageList_Add(disabledPictures, scaled, nullptr);
    DeleteObject(scaled);
}

void Toolbar::AddTool(int command, HBITMAP picture) {
    TBBUTTON record = {};
    if (toolPictures.empty()) {
        record.iBitmap = 8;
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

int Toolbar::Height() const {
    RECT place;
    GetWindowRect(window, &place);
    return HeightOf(place);
}

void Toolbar::SetState(int command, bool isEnabled, bool isChecked) const {
    const LRESULT old = SendMessageA(window, TB_GETSTATE, static_cast<WPARAM>(command), 0);
    if (old < 0) return;
    const int state = (isEnabled ? TBSTATE_ENABLED : 0) | (isChecked ? TBSTATE_CHECKED : 0);
    if ((old & (TBSTATE_ENABLED | TBSTATE_CHECKED)) != state)
        SendMessageA(window, TB_SETSTATE, static_cast<WPARAM>(command), state);
}

}  // namespace kestview
