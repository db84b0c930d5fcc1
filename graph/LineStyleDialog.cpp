// The dialog for the lines of a graph's curves: those in its list, and the default appearances of those to come.
#include <windows.h>

#include <commdlg.h>

#include <algorithm>
#include <cstdio>
#include <iterator>

#include "core/kernel/HeapArray.h"
#include "graph/CurvePoints.h"
#include "graph/Dialogs.h"
#include "graph/GraphDrawing.h"
#include "graph/SettingsDialog.h"
#include "graph/resources/DialogIds.h"

namespace kest {
namespace {

// In the order of their numbers.
constexpr const char* styleNames[] = {"Solid", "Dashed", "Dotted", "Dash-dot", "Dash-dot-dot", "Squares at the points"};
constexpr WholeRange widths = {0, 100};
/// Wider lines fill the preview, too.
constexpr int widestShown = 1000;

struct CurveLook {
    int style;
    COLORREF colour;
    int width;
    bool operator==(const CurveLook&) const = default;
};

/// One row of the list: a curve of the graph's list, a default appearance, or both.
struct CurveEntry {
    CcCurve* curve;
    CurveLook look;
    CurveLook before;
    char name[KEST_NAME_SIZE];
};

class LineStyleDialog : public SettingsDialog {
public:
    using SettingsDialog::SettingsDialog;

private:
    std::span<NumberField> Fields() override { return fields; }

    bool Fill() override {
        if (!ReadCurves()) return false;
        for (const char* name : styleNames)
            SendDlgItemMessageA(window, IDC_STYLE, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(name));
        for (int i = 0; i < count; ++i)
            SendDlgItemMessageA(window, IDC_CURVES, LB_ADDSTRING, 0,
                                reinterpret_cast<LPARAM>(entries[static_cast<std::size_t>(i)].name));
        CcList* const list = graph.GetCurveList();
        const int selected = list ? list->GetSelectedObjectsIndex() : -1;
        Select(selected >= 0 && selected < count ? selected : 0);
        return true;
    }

    bool ReadCurves() {
        CcList* const list = graph.GetCurveList();
        const ListPositionGuard position(list);
        const int curves = list ? list->GetNumberOfObjects() : 0;
        count = std::max(KEST_GRAPH_CURVES, curves);
        if (!entries.Allocate(count)) return false;
        for (int i = 0; i < count; ++i) {
            CurveEntry& entry = entries[static_cast<std::size_t>(i)];
            entry.curve = i < curves ? AsCurve(list->GetAtIndex(i)) : nullptr;
            ReadLook(entry, i);
        }
        return true;
    }

    void ReadLook(CurveEntry& entry, int index) {
        std::snprintf(entry.name, sizeof entry.name, "Curve %d", index);
        tagCURVEAPPEARANCE appearance;
        if (graph.GetCurveAppearance(index, &appearance) == KEST_OK) {
            entry.look = {appearance.iStyle, appearance.ulColor, appearance.iWidth};
            std::snprintf(entry.name, sizeof entry.name, "%.*s", static_cast<int>(sizeof appearance.szName),
                          appearance.szName);
        }
        if (entry.curve) {
            unsigned long colour = 0;
            entry.curve->GetCurveStyle(&entry.look.style, &colour, &entry.look.width);
            entry.look.colour = colour;
            if (*entry.curve->GetName()) std::snprintf(entry.name, sizeof entry.name, "%s", entry.curve->GetName());
        }
        entry.before = entry.look;
    }

    CurveEntry& Selected() { return entries[static_cast<std::size_t>(selectedEntry)]; }

    void Select(int index) {
        selectedEntry = index;
        SendDlgItemMessageA(window, IDC_CURVES, LB_SETCURSEL, static_cast<WPARAM>(index), 0);
        const CurveLook& look = Selected().look;
        SendDlgItemMessageA(window, IDC_STYLE, CB_SETCURSEL, static_cast<WPARAM>(look.style), 0);
        width = look.width;
        ShowFields();
    }

    bool TakeOver(int controlId, int code) override {
        // A program that operates the dialog can select nothing; what was selected stays.
        const auto chosenIn = [&](UINT question) {
            return static_cast<int>(SendDlgItemMessageA(window, controlId, question, 0, 0));
        };
        if (controlId == IDC_CURVES && code == LBN_SELCHANGE) {
            const int chosen = chosenIn(LB_GETCURSEL);
            Select(chosen >= 0 && chosen < count ? chosen : selectedEntry);
            return true;
        }
        if (controlId == IDC_STYLE && code == CBN_SELCHANGE) {
            if (const int chosen = chosenIn(CB_GETCURSEL); chosen >= 0) Selected().look.style = chosen;
            return true;
        }
        return controlId == IDC_COLOUR && code == BN_CLICKED && ChooseColour();
    }

    bool ChooseColour() {
        static COLORREF customColours[16] = {};
        CHOOSECOLORA choice = {};
        choice.lStructSize = sizeof choice;
        choice.hwndOwner = window;
        choice.rgbResult = Selected().look.colour;
        choice.lpCustColors = customColours;
        choice.Flags = CC_RGBINIT | CC_FULLOPEN;
        const HWND dialog = window;
        if (!ChooseColorA(&choice) || !IsWindow(dialog)) return false;
        Selected().look.colour = choice.rgbResult;
        return true;
    }

    void UpdatePreview() override {
        CurveLook& look = Selected().look;
        look.width = width;
        const bool isPattern = look.style >= PS_DASH && look.style <= PS_DASHDOTDOT;
        ShowRemark(isPattern && width > 1 ? "Wider than 1, lines are drawn solid." : "");
        Redraw(IDC_SWATCH);
    }

    void Draw(HDC dc, HWND control, const RECT& area) override {
        const CurveLook& look = Selected().look;
        if (GetDlgCtrlID(control) == IDC_SWATCH) {
            const GdiObject<HBRUSH> brush(CreateSolidBrush(look.colour));
            FillRect(dc, &area, brush);
            return;
        }
        // The look belongs to the curve drawn here, on the same terms as in a graph.
        const bool hasLines = look.style != KEST_CURVE_SQUARES;
        const int shownWidth = std::clamp(look.width, -widestShown, widestShown);
        const GdiObject<HPEN> made(MakeCurvePen(look.style, look.colour, shownWidth));
        const SelectedObject pen(dc, made);
        const BackgroundModeGuard background(dc, TRANSPARENT);
        POINT points[5];
        for (int i = 0; i < 5; ++i)
            points[i] = {area.right * (2 * i + 1) / 10, i % 2 == 0 ? area.bottom * 3 / 4 : area.bottom / 4};
        if (hasLines) {
            Polyline(dc, points, static_cast<int>(std::size(points)));
            return;
        }
        for (const POINT& point : points) Rectangle(dc, point.x - 2, point.y - 2, point.x + 2, point.y + 2);
    }

    void Apply() override {
        CcList* const list = graph.GetCurveList();
        const ListPositionGuard position(list);
        for (int i = 0; i < count; ++i) {
            const CurveEntry& entry = entries[static_cast<std::size_t>(i)];
            const CurveLook& look = entry.look;
            if (look == entry.before) continue;
            // The host may have taken curves out of the list, and deleted them, since the dialog opened.
            CcCurve* const curve = list && i < list->GetNumberOfObjects() ? AsCurve(list->GetAtIndex(i)) : nullptr;
            if (curve && curve == entry.curve) curve->SetCurveStyle(look.style, look.colour, look.width);
            tagCURVEAPPEARANCE appearance;
            if (graph.GetCurveAppearance(i, &appearance) < 0) continue;
            appearance.iStyle = look.style;
            appearance.ulColor = look.colour;
            appearance.iWidth = look.width;
            graph.SetCurveAppearance(i, &appearance);
        }
    }

    HeapArray<CurveEntry> entries;
    int count = 0;
    int selectedEntry = 0;
    int width = 0;
    NumberField fields[1] = {{IDC_WIDTH, width, widths, widths}};
};

}  // namespace

void RunLineStyleDialog(CcGraph& graph, HMODULE resources, HWND owner) {
    SettingsDialog::Run<LineStyleDialog>(graph, resources, owner, "LINESTYLEDLB", "Curve Styles");
}

}  // namespace kest
