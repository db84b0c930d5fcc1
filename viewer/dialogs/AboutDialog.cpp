// What the program is, and its version.
#include "dialogs/AboutDialog.h"

#include "platform/Pane.h"
#include "res/Resource.h"

namespace kestview {
namespace {

class AboutDialog : public Pane {
private:
    void OnInit() override {
        SetText(IDC_ABOUT_VERSION, sizeof(void*) == 4 ? "KestView 1.0 (32-bit)" : "KestView 1.0 (64-bit)");
    }
    bool OnCommand(int id, int) override {
        if (id == IDOK || id == IDCANCEL) EndDialog(window, id);
        return true;
    }
};

}  // namespace

void ShowAbout(HWND owner) { AboutDialog().RunModal(IDD_ABOUT, owner); }

}  // namespace kestview
