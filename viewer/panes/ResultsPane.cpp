// The results table below the picture. It measures anew after every change, when the messages at hand are done.
#include "panes/ResultsPane.h"

#include <windows.h>

#include <commctrl.h>

#include "platform/ListView.h"
#include "platform/Text.h"
#include "platform/Window.h"
#include "res/Resource.h"

namespace kestview {
namespace {

constexpr UINT_PTR measureTimer = 1;
constexpr UINT measureDelayMilliseconds = 30;
constexpr int shownDigits = 6;
constexpr int columnWidths[resultColumnCount] = {78, 88, 52, 90, 118, 56, 62, 66, 66, 130};

}  // namespace

void ResultsPane::OnInit() {
    const ListView list(Item(IDC_RESULTS_LIST));
    list.SetStyle(LVS_EX_FULLROWSELECT | LVS_EX_GRIDLINES | LVS_EX_DOUBLEBUFFER);
    for (int column = 0; column < resultColumnCount; ++column)
        list.AddColumn(ResultTitle(table, column).c_str(), columnWidths[column], IsNumberColumn(column));
}

void ResultsPane::OnSize(int width, int) {
    const int margin = MulDiv(6, DpiOf(window), 96);
    int right = width - margin;
    for (const int button : {IDC_RESULTS_EXPORT, IDC_RESULTS_COPY}) {
        const RECT place = PlaceOf(button);
        right -= WidthOf(place);
        SetWindowPos(Item(button), nullptr, right, place.top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
        right -= margin;
    }
    Stretch(IDC_RESULTS_NOTE, width - right, -1);
    Stretch(IDC_RESULTS_LIST, margin, margin);
}

void ResultsPane::Refresh(unsigned change) {
    if (!(change & (RoisChanged | PictureChanged | CalibrationChanged | BandsChanged | ChannelChosen))) return;
    isStale = true;
    SetTimer(window, measureTimer, measureDelayMilliseconds, nullptr);
}

bool ResultsPane::OnOther(UINT message, WPARAM wParam, LPARAM, LRESULT&) {
    if (message != WM_TIMER || wParam != measureTimer) return false;
    KillTimer(window, measureTimer);
    if (isStale) Measure();
    return true;
}

const ResultsTable& ResultsPane::Table() {
    if (isStale) Measure();
    return table;
}

void ResultsPane::Measure() {
    table = document ? MeasureRois(*document) : ResultsTable{"pixels", {}};
    isStale = false;
    const Filling filling(isFilling);
    const ListView list(Item(IDC_RESULTS_LIST));
    for (int column = 0; column < resultColumnCount; ++column) list.SetColumnTitle(column, ResultTitle(table, column));
    list.SetRowCount(static_cast<int>(table.rows.size()));
    for (std::size_t row = 0; row < table.rows.size(); ++row) {
        for (int column = 0; column < resultColumnCount; ++column)
            list.SetText(static_cast<int>(row), column, ResultText(table.rows[row], column, shownDigits));
        list.SetSelected(static_cast<int>(row), document->Roi(static_cast<int>(row)).IsROISelected() != 0);
    }
    list.FitColumns(widestTexts);
    std::string note = "No picture";
    if (document && document->Calibration())
        note = "In " + table.units + ", as calibrated.";
    else if (document)
        note = "In pixels, not calibrated.";
    SetText(IDC_RESULTS_NOTE, note);
    for (const int button : {IDC_RESULTS_COPY, IDC_RESULTS_EXPORT}) Enable(button, !table.rows.empty());
}

bool ResultsPane::OnCommand(int id, int) {
    if (id == IDC_RESULTS_COPY) host.RunCommand(ID_MEASURE_COPY);
    if (id == IDC_RESULTS_EXPORT) host.RunCommand(ID_MEASURE_EXPORT);
    return true;
}

LRESULT ResultsPane::OnNotify(NMHDR& header) {
    if (header.idFrom != IDC_RESULTS_LIST || isFilling || !document) return 0;
    if (header.code == LVN_KEYDOWN && reinterpret_cast<const NMLVKEYDOWN&>(header).wVKey == VK_DELETE)
        document->DeleteSelectedRois();
    if (header.code != LVN_ITEMCHANGED) return 0;
    const auto& item = reinterpret_cast<const NMLISTVIEW&>(header);
    if (!(item.uChanged & LVIF_STATE) || !((item.uOldState ^ item.uNewState) & LVIS_SELECTED)) return 0;
    if (item.iItem >= 0 && item.iItem < document->RoiCount())
        document->SetSelected(document->Roi(item.iItem), (item.uNewState & LVIS_SELECTED) != 0);
    return 0;
}

}  // namespace kestview
