// A list view in report form: columns, texts and selection by row number.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace kestview {

class ListView {
public:
    explicit ListView(HWND newList) : list(newList) {}

    void SetStyle(DWORD extendedStyle) const;
    /// `width` is for 96 dots an inch; numbers are aligned to the right.
    void AddColumn(const char* title, int width, bool isNumber = false) const;
    void SetColumnTitle(int column, const std::string& title) const;
    /// Makes columns wide enough for their titles and texts that need more than ever before; `widest` notes for each
    /// column what was needed, for 96 dots an inch. One that the user has made narrower so stays as it is.
    void FitColumns(std::vector<int>& widest) const;
    void ScaleColumns(int newDpi, int oldDpi) const;
    int RowCount() const;
    /// Adds or takes away rows at the end.
    void SetRowCount(int count) const;
    /// Sets the text when it differs, so that nothing flickers.
    void SetText(int row, int column, const std::string& text) const;
    bool IsSelected(int row) const;
    void SetSelected(int row, bool isSelected) const;
    /// The first selected row, or -1.
    int SelectedRow() const;

private:
    HWND Header() const;
    int ColumnCount() const;
    std::string TextAt(int row, int column) const;

    HWND list;
};

}  // namespace kestview
