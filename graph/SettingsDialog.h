// What the settings dialogs of a graph share: number fields that are checked as they are left, a preview that follows
// the entries, a line that tells what is wrong, OK and Cancel.
#pragma once

#include <windows.h>

#include <span>

#include "CcGraph.h"
#include "core/GdiGuards.h"
#include "graph/kernel/NumberText.h"

namespace kest {

struct WholeRange {
    int lowest, highest;
};

/// An edit control whose number goes to a variable. A text that nobody changed leaves the variable exactly as it is,
/// even where a person could not enter its value.
class NumberField {
public:
    NumberField(int controlId, float& target) : id(controlId), real(&target) {}
    /// The spin button behind the control, if there is one, steps through `spinRange`.
    NumberField(int controlId, int& target, WholeRange acceptedRange, WholeRange spinRange)
        : id(controlId), whole(&target), accepted(acceptedRange), spin(spinRange) {}

    int Id() const { return id; }
    /// Writes the variable's value into the control.
    void Show(HWND dialog);
    /// The other way. False, and the variable stays, for a text that is no such number.
    bool Read(HWND dialog);
    /// What can be entered, as a sentence.
    void Explain(std::span<char> text) const;

    bool isMarkedWrong = false;

private:
    int id;
    float* real = nullptr;
    int* whole = nullptr;
    WholeRange accepted = {}, spin = {};
    NumberText shown = {};
    float realShown = 0;
    int wholeShown = 0;
};

/// One open dialog. It works on variables of its own, and changes the graph in Apply only.
///
/// Whatever runs messages (this dialog, a box, a dialog over this one) lets the host change what the graph refers to,
/// delete the graph, or destroy the window and this object with it.
class SettingsDialog : Guard, public KestHeapObject {
public:
    /// Runs a dialog of the derived class until it is closed. One that cannot be made is told by its `title`.
    template <class Dialog>
    static void Run(CcGraph& graph, HMODULE resources, HWND owner, const char* templateName, const char* title) {
        LoadCommonControls();
        const INT_PTR result =
            DialogBoxParamA(resources, templateName, owner, Procedure<Dialog>, reinterpret_cast<LPARAM>(&graph));
        if (result == notMade) TellNotMade(title);
    }

    /// Cancels the open dialogs of a graph.
    static void CloseAllOf(const CcGraph& graph);

protected:
    SettingsDialog(CcGraph& edited, HWND dialogWindow);
    virtual ~SettingsDialog();

    virtual std::span<NumberField> Fields() { return {}; }
    /// Fills the controls that are no number fields; false without the memory for it.
    virtual bool Fill() { return true; }
    /// Takes over what such a control tells (the identifier and code of its WM_COMMAND); false for what is not its own,
    /// and when the dialog is gone.
    virtual bool TakeOver(int, int) { return false; }
    /// Brings `preview` up to date with the entries.
    virtual void UpdatePreview() {}
    /// Draws an owner-drawn control. Here: `preview`, as the graph itself is drawn.
    virtual void Draw(HDC dc, HWND control, const RECT& area);
    /// Hands the entries to the graph. What shows boxes comes last.
    virtual void Apply() = 0;

    /// Writes the number fields' variables into their controls; what was wrong in them is gone.
    void ShowFields();
    void Redraw(int controlId) { InvalidateRect(GetDlgItem(window, controlId), nullptr, FALSE); }
    /// A remark on the line for problems; empty for none.
    void ShowRemark(const char* text);
    bool IsChecked(int controlId) const { return IsDlgButtonChecked(window, controlId) == BST_CHECKED; }

    CcGraph& graph;
    const HWND window;
    CcGraph preview;

private:
    static void LoadCommonControls();
    template <class Dialog>
    static INT_PTR CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        if (message != WM_INITDIALOG) return Dispatch(window, message, wParam, lParam);
        SettingsDialog* const made = new Dialog(*reinterpret_cast<CcGraph*>(lParam), window);
        SetWindowLongPtrA(window, DWLP_USER, reinterpret_cast<LONG_PTR>(made));
        if (!made || !made->Start()) EndDialog(window, notMade);
        return TRUE;
    }
    static INT_PTR Dispatch(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    bool Start();
    static void TellNotMade(const char* title);
    void Command(int controlId, int code);
    void Accept();
    void FieldChanged(NumberField& field);
    void FieldLeft(NumberField& field);
    void ShowProblem();
    void Refresh();
    void DrawItem(const DRAWITEMSTRUCT& item);
    NumberField* FieldOf(int controlId);
    INT_PTR EditColour(HDC dc, HWND control);
    INT_PTR LabelColour(HDC dc, HWND control) const;

    /// What DialogBoxParamA itself returns for it.
    static constexpr INT_PTR notMade = -1;
    SettingsDialog* nextOpen;
    bool isStarted = false;  // and its graph is there: commands count
    bool isProblem = false;  // not just a remark
    GdiObject<HBRUSH> wrongBrush{CreateSolidBrush(wrongBackground)};
    static constexpr COLORREF wrongBackground = RGB(255, 221, 221), wrongText = RGB(176, 0, 0);
};

}  // namespace kest
