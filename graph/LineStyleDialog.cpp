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
constexpr const char* styleNames[] = {"Solid",    "Dashed",       "Dotted",
                                      "Dash-dot", "Dash-dot-dot", "Squares at the points"};
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

    void Fill() override {
        for (const char* name : styleNames)
            SendDlgItemMessageA(window, IDC_STYLE, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(name));
        ReadCurves();
        for (int i = 0; i < count; ++i)
            SendDlgItemMessageA(window, IDC_CURVES, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(entries[static_cast<std::size_t>(i)].name));
        CcList* const list = graph.GetCurveList();
        const int selected = list ? list->GetSelectedObjectsIndex() : -1;
        Select(selected >= 0 && selected < count ? selected : 0);
    }

    void ReadCurves() {
        CcList* const list = graph.GetCurveList();
        const ListPositionGuard position(list);
        const int curves = list ? list->GetNumberOfObjects() : 0;
        count = std::max(KEST_GRAPH_CURVES, curves);
        if (!entries.Allocate(count)) count = 0;
        for (int i = 0; i < count; ++i) {
            CurveEntry& entry = entries[static_cast<std::size_t>(i)];
            entry.curve = i < curves ? AsCurve(list->GetAtIndex(i)) : nullptr;
            ReadLook(entry, i);
        }
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

    CurveEntry* Selected() { return selectedEntry < count ? &entries[static_cast<std::size_t>(selectedEntry)] : nullptr; }

    void Select(int index) {
        selectedEntry = index;
        SendDlgItemMessageA(window, IDC_CURVES, LB_SETCURSEL, static_cast<WPARAM>(index), 0);
        const CurveEntry* const entry = Selected();
        if (!entry) return;
        SendDlgItemMessageA(window, IDC_STYLE, CB_SETCURSEL, static_cast<WPARAM>(entry->look.style), 0);
        width = entry->look.width;
        ShowFields();
    }

    bool TakeOver(int controlId, int code) override {
        CurveEntry* const entry = Selected();
        if (!entry) return false;
        if (controlId == IDC_CURVES && code == LBN_SELCHANGE) {
            Select(static_cast<int>(SendDlgItemMessageA(window, IDC_CURVES, LB_GETCURSEL, 0, 0)));
            return true;
        }
        if (controlId == IDC_STYLE && code == CBN_SELCHANGE) {
            entry->look.style = static_cast<int>(SendDlgItemMessageA(window, IDC_STYLE, CB_GETCURSEL, 0, 0));
            return true;
        }
        return controlId == IDC_COLOUR && code == BN_CLICKED && ChooseColour(entry->look.colour);
    }

    bool ChooseColour(COLORREF& colour) const {
        static COLORREF customColours[16] = {};
        CHOOSECOLORA choice = {};
        choice.lStructSize = sizeof choice;
        choice.hwndOwner = window;
        choice.rgbResult = colour;
        choice.lpCustColors = customColours;
        choice.Flags = CC_RGBINIT | CC_FULLOPEN;
        if (!ChooseColorA(&choice)) return false;
        colour = choice.rgbResult;
        return true;
    }

    void UpdatePreview() override {
        CurveEntry* const entry = Selected();
        if (!entry) return;
        entry->look.width = width;
        const bool isPattern = entry->look.style >= PS_DASH && entry->look.style <= PS_DASHDOTDOT;
        ShowRemark(isPattern && width > 1 ? "Wider than 1, lines are drawn solid." : "");
        Redraw(IDC_SWATCH);
    }

    void Draw(HDC dc, HWND control, const RECT& area) override {
        const CurveEntry* const entry = Selected();
        if (!entry) return;
        if (GetDlgCtrlID(control) == IDC_SWATCH) {
            const GdiObject<HBRUSH> brush(CreateSolidBrush(entry->look.colour));
            FillRect(dc, &area, brush);
            return;
        }
        // The look belongs to the curve drawn here, on the same terms as in a graph.
        const bool hasLines = entry->look.style != KEST_CURVE_SQUARES;
        const GdiObject<HPEN> made(MakeCurvePen(entry->look.style, entry->look.colour, std::clamp(entry->look.width, -widestShown, widestShown)));
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
        for (int i = 0; i < count; ++i) {
            const CurveEntry& entry = entries[static_cast<std::size_t>(i)];
            const CurveLook& look = entry.look;
            if (look == entry.before) continue;
            if (entry.curve) entry.curve->SetCurveStyle(look.style, look.colour, look.width);
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
    SettingsDialog::Run<LineStyleDialog>(graph, resources, owner, "LINESTYLEDLB");
}

}  // namespace kest
