// The list of the document's ROIs, in step with the picture: selection, names, deletion.
#include "panes/RoiListPane.h"

#include <windows.h>

#include <commctrl.h>

#include "document/RoiKinds.h"
#include "platform/ListView.h"
#include "platform/Text.h"
#include "platform/Window.h"
#include "res/Resource.h"

namespace kestview {

void RoiListPane::OnInit() {
    const ListView list(Item(IDC_ROI_LIST));
    list.SetStyle(LVS_EX_FULLROWSELECT | LVS_EX_DOUBLEBUFFER);
    list.AddColumn("Name", 150);
    list.AddColumn("Kind", 110);
}

void RoiListPane::OnSize(int, int height) {
    const int margin = MulDiv(6, DpiOf(window), 96);
    for (const int button : {IDC_ROI_RENAME, IDC_ROI_DELETE}) {
        const RECT place = PlaceOf(button);
        SetWindowPos(Item(button), nullptr, place.left, height - margin - HeightOf(place), 0, 0,
                     SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
    Stretch(IDC_ROI_LIST, margin, HeightOf(PlaceOf(IDC_ROI_DELETE)) + 2 * margin);
}

void RoiListPane::Refresh(unsigned change) {
    if (!(change & RoisChanged)) return;
    // A name that is being typed belongs to the other picture.
    if (change == EverythingChanged) {
        renamed = nullptr;
        Send(IDC_ROI_LIST, LVM_CANCELEDITLABEL);
    }
    const Filling filling(isFilling);
    const ListView list(Item(IDC_ROI_LIST));
    const int count = document ? document->RoiCount() : 0;
    list.SetRowCount(count);
    bool hasSelected = false;
    for (int i = 0; i < count; ++i) {
        CcRoiBase& roi = document->Roi(i);
        list.SetText(i, 0, roi.GetName());
        list.SetText(i, 1, KindLabel(roi));
        list.SetSelected(i, roi.IsROISelected() != 0);
        hasSelected = hasSelected || roi.IsROISelected();
    }
    Enable(IDC_ROI_RENAME, hasSelected);
    Enable(IDC_ROI_DELETE, hasSelected);
}

void RoiListPane::EditName() {
    if (!document || !document->SelectedRoi()) return;
    SetFocus(Item(IDC_ROI_LIST));
    Send(IDC_ROI_LIST, LVM_EDITLABELA, static_cast<WPARAM>(document->IndexOf(document->SelectedRoi())));
}

void RoiListPane::TakeSelection() {
    const Filling filling(isFilling);
    const ListView list(Item(IDC_ROI_LIST));
    for (int i = 0; i < document->RoiCount(); ++i) document->Roi(i).SetSelected(list.IsSelected(i));
    document->Changed(RoisChanged);
}

bool RoiListPane::OnCommand(int id, int) {
    if (id == IDC_ROI_RENAME) EditName();
    if (id == IDC_ROI_DELETE && document) document->DeleteSelectedRois();
    return true;
}

LRESULT RoiListPane::OnNotify(NMHDR& header) {
    if (header.idFrom != IDC_ROI_LIST || !document) return 0;
    switch (header.code) {
        case LVN_ITEMCHANGED: {
            const auto& item = reinterpret_cast<const NMLISTVIEW&>(header);
            const bool isSelection =
                (item.uChanged & LVIF_STATE) && ((item.uOldState ^ item.uNewState) & LVIS_SELECTED);
            if (isFilling || !isSelection) return 0;
            TakeSelection();
            // What was chosen is shown.
            if ((item.uNewState & LVIS_SELECTED) && item.iItem >= 0 && item.iItem < document->RoiCount())
                if (const RECT* bounds = document->Roi(item.iItem).GetCurrentBoundingRect())
                    host.BringIntoView(*bounds);
            return 0;
        }
        case LVN_BEGINLABELEDITA: {
            const int row = reinterpret_cast<const NMLVDISPINFOA&>(header).item.iItem;
            renamed = row >= 0 && row < document->RoiCount() ? &document->Roi(row) : nullptr;
            return FALSE;
        }
        case LVN_ENDLABELEDITA: {
            const LVITEMA& item = reinterpret_cast<const NMLVDISPINFOA&>(header).item;
            // Rows can have moved meanwhile, or gone.
            const int row = renamed ? document->IndexOf(renamed) : -1;
            if (row < 0 || !item.pszText || !*item.pszText) return FALSE;
            document->RenameRoi(document->Roi(row), item.pszText);
            // A name that was cut, or that is another row's, has been written by the refresh.
            return row == item.iItem && CutForStreams(item.pszText) == item.pszText;
        }
        case LVN_KEYDOWN:
            if (reinterpret_cast<const NMLVKEYDOWN&>(header).wVKey == VK_DELETE) document->DeleteSelectedRois();
            return 0;
        default: return 0;
    }
}

}  // namespace kestview
