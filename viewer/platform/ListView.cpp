// A list view in report form: columns, texts and selection by row number.
#include "platform/ListView.h"

#include <windows.h>

#include <commctrl.h>

#include <algorithm>

#include "platform/Window.h"

namespace kestview {

void ListView::SetStyle(DWORD extendedStyle) const {
    SendMessageA(list, LVM_SETEXTENDEDLISTVIEWSTYLE, 0, static_cast<LPARAM>(extendedStyle));
}

void ListView::AddColumn(const char* title, int width, bool isNumber) const {
    LVCOLUMNA column = {};
    column.mask = LVCF_TEXT | LVCF_WIDTH | LVCF_FMT;
    column.pszText = const_cast<char*>(title);
    column.cx = MulDiv(width, DpiOf(list), 96);
    column.fmt = isNumber ? LVCFMT_RIGHT : LVCFMT_LEFT;
    SendMessageA(list, LVM_INSERTCOLUMNA, static_cast<WPARAM>(ColumnCount()), reinterpret_cast<LPARAM>(&column));
}

void ListView::SetColumnTitle(int column, const std::string& title) const {
    LVCOLUMNA record = {};
    record.mask = LVCF_TEXT;
    record.pszText = const_cast<char*>(title.c_str());
    SendMessageA(list, LVM_SETCOLUMNA, static_cast<WPARAM>(column), reinterpret_cast<LPARAM>(&record));
}

HWND ListView::Header() const { return reinterpret_cast<HWND>(SendMessageA(list, LVM_GETHEADER, 0, 0)); }

int ListView::ColumnCount() const { return static_cast<int>(SendMessageA(Header(), HDM_GETITEMCOUNT, 0, 0)); }

std::string ListView::TextAt(int row, int column) const {
    char text[512] = {};
    LVITEMA item = {};
    item.iSubItem = column;
    item.pszText = text;
    item.cchTextMax = sizeof text;
    SendMessageA(list, LVM_GETITEMTEXTA, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
    return text;
}

void ListView::FitColumns(std::vector<int>& widest) const {
    widest.resize(static_cast<std::size_t>(ColumnCount()));
    const int dpi = DpiOf(list), margins = MulDiv(14, dpi, 96);
    const auto widthOf = [&](const char* text) {
        return static_cast<int>(SendMessageA(list, LVM_GETSTRINGWIDTHA, 0, reinterpret_cast<LPARAM>(text))) + margins;
    };
    for (int column = 0; column < ColumnCount(); ++column) {
        char title[128] = {};
        HDITEMA header = {};
        header.mask = HDI_TEXT;
        header.pszText = title;
        header.cchTextMax = sizeof title;
        SendMessageA(Header(), HDM_GETITEMA, static_cast<WPARAM>(column), reinterpret_cast<LPARAM>(&header));
        int width = widthOf(title);
        for (int row = 0; row < RowCount(); ++row) width = std::max(width, widthOf(TextAt(row, column).c_str()));
        int& known = widest[static_cast<std::size_t>(column)];
        const int needed = MulDiv(width, 96, dpi);
        if (needed <= known) continue;
        known = needed;
        if (width > SendMessageA(list, LVM_GETCOLUMNWIDTH, static_cast<WPARAM>(column), 0))
            SendMessageA(list, LVM_SETCOLUMNWIDTH, static_cast<WPARAM>(column), width);
    }
}

void ListView::ScaleColumns(int newDpi, int oldDpi) const {
    for (WPARAM column = 0; column < static_cast<WPARAM>(ColumnCount()); ++column)
        SendMessageA(list, LVM_SETCOLUMNWIDTH, column,
                     MulDiv(static_cast<int>(SendMessageA(list, LVM_GETCOLUMNWIDTH, column, 0)), newDpi, oldDpi));
}

int ListView::RowCount() const { return static_cast<int>(SendMessageA(list, LVM_GETITEMCOUNT, 0, 0)); }

void ListView::SetRowCount(int count) const {
    // Rows that scroll while others come and go can leave their pictures behind.
    if (RowCount() != count) InvalidateRect(list, nullptr, TRUE);
    for (int row = RowCount(); row > count; --row) SendMessageA(list, LVM_DELETEITEM, static_cast<WPARAM>(row - 1), 0);
    for (int row = RowCount(); row < count; ++row) {
        char empty[] = "";
        LVITEMA item = {};
        item.mask = LVIF_TEXT;
        item.iItem = row;
        item.pszText = empty;
        SendMessageA(list, LVM_INSERTITEMA, 0, reinterpret_cast<LPARAM>(&item));
    }
}

void ListView::SetText(int row, int column, const std::string& text) const {
    if (text == TextAt(row, column)) return;
    LVITEMA item = {};
    item.iSubItem = column;
    item.pszText = const_cast<char*>(text.c_str());
    SendMessageA(list, LVM_SETITEMTEXTA, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
}

bool ListView::IsSelected(int row) const {
    return SendMessageA(list, LVM_GETITEMSTATE, static_cast<WPARAM>(row), LVIS_SELECTED) != 0;
}

void ListView::SetSelected(int row, bool isSelected) const {
    if (IsSelected(row) == isSelected) return;
    LVITEMA item = {};
    item.stateMask = LVIS_SELECTED | (isSelected ? LVIS_FOCUSED : 0u);
    item.state = isSelected ? LVIS_SELECTED | LVIS_FOCUSED : 0u;
    SendMessageA(list, LVM_SETITEMSTATE, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
}

int ListView::SelectedRow() const {
    return static_cast<int>(SendMessageA(list, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED));
}

}  // namespace kestview
