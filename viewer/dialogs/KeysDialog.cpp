// The list of what keys and mouse do.
#include "dialogs/KeysDialog.h"

#include <commctrl.h>

#include <iterator>

#include "platform/ListView.h"
#include "platform/Pane.h"
#include "res/Resource.h"

namespace kestview {
namespace {

struct Key {
    const char* key;
    const char* effect;
};

constexpr Key keys[] = {
    {"Mouse wheel", "zoom about the mouse, 1 to 16"},
    {"+ and -", "zoom about the middle, 1 to 16"},
    {"1 to 9, 0", "zoom 1 : 1 to 9 : 1, fit the picture in"},
    {"Arrow keys, Shift + wheel", "scroll"},
    {"Middle button, Space + drag", "move the picture"},
    {"Drag with a drawing tool", "draws a ROI"},
    {"Clicks with Polygon or Polyline", "each sets a corner; right click, double click or Enter ends"},
    {"Click with the select tool", "selects a ROI; Ctrl or Shift adds to the selection"},
    {"Drag a ROI, drag a handle", "moves it, changes its size"},
    {"Esc", "takes back what is being drawn; then the select tool; then no selection"},
    {"Right click on a ROI", "selects it and shows what can be done with it"},
    {"Del", "deletes the selected ROIs"},
    {"F2", "renames the selected ROI"},
    {"Ctrl + Z, Ctrl + Y", "undo, redo"},
    {"Ctrl + C", "copies the picture, or the part under the selected ROI"},
    {"Ctrl + Tab", "the next picture"},
    {"F4", "the select tool"},
    {"F8; Esc", "the next of list, pane, results and picture; the picture"},
    {"F6, F7", "hides and shows the results table, the panes at the side"},
};

class KeysDialog : public Pane {
private:
    void OnInit() override {
        const ListView list(Item(IDC_KEYS_LIST));
        list.SetStyle(LVS_EX_FULLROWSELECT);
        list.AddColumn("Key or mouse", 210);
        list.AddColumn("What it does", 370);
        list.SetRowCount(static_cast<int>(std::size(keys)));
        for (int row = 0; row < static_cast<int>(std::size(keys)); ++row) {
            list.SetText(row, 0, keys[row].key);
            list.SetText(row, 1, keys[row].effect);
        }
    }
    bool OnCommand(int id, int) override {
        if (id == IDOK || id == IDCANCEL) EndDialog(window, id);
        return true;
    }
};

}  // namespace

void ShowKeys(HWND owner) { KeysDialog().RunModal(IDD_KEYS, owner); }

}  // namespace kestview
