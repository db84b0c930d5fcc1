// The Edit menu.
#include "commands/AllMenus.h"
#include "commands/Conditions.h"
#include "dialogs/TextDialog.h"
#include "picture/RoiPainting.h"
#include "platform/Boxes.h"
#include "platform/Busy.h"
#include "platform/Clipboard.h"
#include "res/Resource.h"

namespace kestview {
namespace {

constexpr unsigned short ownColours = 100;

/// Null copies all.
void Copy(MainWindow& main, CcImage& image, unsigned short table, RECT* part) {
    const Busy busy("Copying", SampleBytes(image));
    if (!WaitForClipboard(main) || image.CopyToClipboard(main, table, part) < 0)
        ShowError(main, "The picture could not be copied: another program is using the clipboard, or memory is short.");
}

void EditUndo(MainWindow& main, int) { main.Active()->Undo(); }

void EditRedo(MainWindow& main, int) { main.Active()->Redo(); }

bool CanUndo(MainWindow& main, int) { return main.Active() && main.Active()->CanUndo(); }

bool CanRedo(MainWindow& main, int) { return main.Active() && main.Active()->CanRedo(); }

/// Copies the picture as it is shown, or the bounding rectangle of the selected ROI.
void EditCopy(MainWindow& main, int) {
    Document& document = *main.Active();
    RECT part;
    RECT* copied = nullptr;
    if (CcRoiBase* roi = document.SelectedRoi())
        if (const RECT* bounds = roi->GetBoundingRect()) {
            // The clipboard's rectangle ends before its right and top edge.
            const SIZE size = document.Size();
            const RECT all = {0, 0, size.cx, size.cy};
            const RECT inclusive = {bounds->left, bounds->bottom, bounds->right + 1, bounds->top + 1};
            RECT inside;
            if (IntersectRect(&inside, &all, &inclusive)) {
                part = {inside.left, inside.bottom, inside.right, inside.top};
                copied = &part;
            }
        }
    if (!document.HasBandLayer())
        Copy(main, document.Image(), document.ShownTable(), copied);
    else if (const auto drawn = DrawnPicture(document, {}, document.Size(), DrawnRois::None))
        Copy(main, *drawn, ownColours, copied);
    else
        ShowError(main, "There is not enough memory to draw the picture with its bands.");
    main.View().Refresh(DisplayChanged);
}

void EditCopyWithRois(MainWindow& main, int) {
    const auto drawn = DrawnPicture(*main.Active(), {}, main.Active()->Size(),
                                    main.View().showsRoiNames ? DrawnRois::WithNames : DrawnRois::Plain);
    if (drawn)
        Copy(main, *drawn, ownColours, nullptr);
    else
        ShowError(main, "There is not enough memory to draw the picture with its ROIs.");
}

void EditDelete(MainWindow& main, int) { main.Active()->DeleteSelectedRois(); }

void EditRename(MainWindow& main, int) {
    Document& document = *main.Active();
    CcRoiBase& roi = *document.SelectedRoi();
    if (const auto name = AskText(main, "Rename ROI", "&Name:", roi.GetName())) document.RenameRoi(roi, *name);
}

void EditSelectAll(MainWindow& main, int) {
    Document& document = *main.Active();
    for (int i = 0; i < document.RoiCount(); ++i) document.Roi(i).SetSelected(1);
    document.Changed(RoisChanged);
}

void EditSelectNone(MainWindow& main, int) { main.Active()->SelectOnly(nullptr); }

constexpr Command editEntries[] = {
    {ID_EDIT_UNDO, "&Undo ROI Change", "Ctrl+Z", "Undo the last change of the ROIs (Ctrl+Z)", EditUndo, CanUndo},
    {ID_EDIT_REDO, "&Redo ROI Change", "Ctrl+Y", "Redo what was undone (Ctrl+Y)", EditRedo, CanRedo},
    line,
    {ID_EDIT_COPY, "&Copy Picture", "Ctrl+C", "Copy the picture, or the part under the selected ROI", EditCopy,
     HasPicture},
    {ID_EDIT_COPY_WITH_ROIS, "Copy Picture &with ROIs", "Ctrl+Shift+R", "Copy the whole picture with its ROIs drawn in",
     EditCopyWithRois, HasRois},
    line,
    {ID_EDIT_RENAME, "Re&name ROI...", "F2", "Rename the selected ROI", EditRename, HasSelection},
    {ID_EDIT_DELETE, "&Delete ROIs", "Del", "Delete the selected ROIs", EditDelete, HasSelection},
    {ID_EDIT_SELECT_ALL, "Select &All", "Ctrl+A", "Select all ROIs", EditSelectAll, HasRois},
    {ID_EDIT_SELECT_NONE, "Select N&one", "Ctrl+D", "Select no ROI", EditSelectNone, HasSelection},
};

}  // namespace

Menu EditMenu() { return {"&Edit", editEntries}; }

}  // namespace kestview
