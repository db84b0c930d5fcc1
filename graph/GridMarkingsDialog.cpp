// The dialog for the marks and grid lines of a graph.
#include "graph/Dialogs.h"
#include "graph/SettingsDialog.h"
#include "graph/resources/DialogIds.h"

namespace kest {
namespace {

constexpr WholeRange majorMarks = {2, 100}, minorMarks = {0, 100};

class GridMarkingsDialog : public SettingsDialog {
public:
    GridMarkingsDialog(CcGraph& edited, HWND dialogWindow) : SettingsDialog(edited, dialogWindow) {
        graph.GetGridMarkings(&x.major, &y.major, &x.minor, &y.minor, &x.majorLines, &y.majorLines, &x.minorLines,
                              &y.minorLines);
    }

private:
    struct Axis {
        int major, minor;
        int majorLines, minorLines;  // 1: lines; any other value: marks
    };
    struct LinesBox {
        int id;
        int* lines;
    };

    std::span<NumberField> Fields() override { return fields; }

    bool Fill() override {
        for (const LinesBox& box : boxes) CheckDlgButton(window, box.id, *box.lines == 1 ? BST_CHECKED : BST_UNCHECKED);
        return true;
    }

    bool TakeOver(int controlId, int) override {
        for (const LinesBox& box : boxes) {
            if (box.id != controlId) continue;
            *box.lines = IsChecked(controlId) ? 1 : 0;
            return true;
        }
        return false;
    }

    void UpdatePreview() override { SetMarkings(preview); }
    void Apply() override { SetMarkings(graph); }

    void SetMarkings(CcGraph& target) const {
        target.SetGridMarkings(x.major, y.major, x.minor, y.minor, x.majorLines, y.majorLines, x.minorLines,
                               y.minorLines);
    }

    Axis x = {}, y = {};
    NumberField fields[4] = {
        {IDC_X_MAJOR, x.major, majorMarks, majorMarks},
        {IDC_X_MINOR, x.minor, minorMarks, minorMarks},
        {IDC_Y_MAJOR, y.major, majorMarks, majorMarks},
        {IDC_Y_MINOR, y.minor, minorMarks, minorMarks},
    };
    const LinesBox boxes[4] = {
        {IDC_X_MAJOR_LINES, &x.majorLines},
        {IDC_X_MINOR_LINES, &x.minorLines},
        {IDC_Y_MAJOR_LINES, &y.majorLines},
        {IDC_Y_MINOR_LINES, &y.minorLines},
    };
};

}  // namespace

void RunGridMarkingsDialog(CcGraph& graph, HMODULE resources, HWND owner) {
    SettingsDialog::Run<GridMarkingsDialog>(graph, resources, owner, "SETGRIDMARKINGS", "Grid and Tick Marks");
}

}  // namespace kest
