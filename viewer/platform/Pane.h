// A dialog from a template: a modal one, or a pane that is a child of another window.
#pragma once

#include <windows.h>

#include <optional>
#include <string>

namespace kestview {

class Pane {
public:
    Pane() = default;
    Pane(const Pane&) = delete;
    Pane& operator=(const Pane&) = delete;
    virtual ~Pane();

    operator HWND() const { return window; }
    /// A modeless child (or owned window); the template says which.
    bool Create(int templateId, HWND parent);
    /// Runs a modal dialog; what it was ended with.
    INT_PTR RunModal(int templateId, HWND owner);
    /// Scrolls to the control with the keyboard focus, should it be in this pane.
    void BringFocusIntoView();

protected:
    virtual void OnInit() {}
    /// The room for the controls has a new size: the client area, or more of it than is seen at once.
    virtual void OnSize(int, int) {}
    /// The height that the controls need, before they are arranged anew; in a lower client area the pane scrolls. 0:
    /// they find room in any.
    virtual int SmallestHeight() const { return 0; }
    /// A control's notification or a pressed button; true when it was handled.
    virtual bool OnCommand(int, int) { return false; }
    virtual LRESULT OnNotify(NMHDR&) { return 0; }
    /// Any other message; true with a result when it was handled.
    virtual bool OnOther(UINT, WPARAM, LPARAM, LRESULT&) { return false; }

    /// Gives the controls the tooltips that the resources have under their numbers.
    void AddTips();
    HWND Item(int id) const { return GetDlgItem(window, id); }
    std::string Text(int id) const;
    /// Sets the text when it differs, so that nothing flickers.
    void SetText(int id, const std::string& text) const;
    void Enable(int id, bool isEnabled) const;
    /// The number in a field; none when it holds anything else.
    std::optional<double> Number(int id) const;
    void SetNumber(int id, double value, int significantDigits = 6) const;
    bool IsChecked(int id) const { return IsDlgButtonChecked(window, id) == BST_CHECKED; }
    void Check(int id, bool isChecked) const { CheckDlgButton(window, id, isChecked ? BST_CHECKED : BST_UNCHECKED); }
    /// Below all controls; a height that is enough when none of them can do with less.
    int LowestEdge() const;
    /// A control's place in the room for the controls.
    RECT PlaceOf(HWND control) const;
    RECT PlaceOf(int id) const { return PlaceOf(Item(id)); }
    /// Moves a control's right and bottom edges to these margins from those of the room; -1 leaves an edge.
    void Stretch(int id, int rightMargin, int bottomMargin) const;
    LRESULT Send(int id, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return SendMessageA(Item(id), message, wParam, lParam);
    }

    HWND window = nullptr;
    bool isFilling = false;  ///< the program writes the controls: their notifications are not the user's

private:
    INT_PTR OnMessage(UINT message, WPARAM wParam, LPARAM lParam);
    void OnDpiChanged();
    void Arrange();
    void ScrollTo(int position);
    int dpi = 96;      ///< that the list columns have been made for
    SIZE room = {};    ///< for the controls
    int scrolled = 0;  ///< rows of the room above the client area
    bool isArranging = false;

    static INT_PTR CALLBACK Dispatch(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
};

/// Marks, while it lives, that the program itself fills a pane's controls.
class Filling {
public:
    explicit Filling(bool& isFillingFlag) : flag(isFillingFlag), old(isFillingFlag) { flag = true; }
    ~Filling() { flag = old; }
    Filling(const Filling&) = delete;
    Filling& operator=(const Filling&) = delete;

private:
    bool& flag;
    bool old;
};

}  // namespace kestview
