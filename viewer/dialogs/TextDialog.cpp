// The dialog that asks for one line of text.
#include "dialogs/TextDialog.h"

#include "platform/Pane.h"
#include "res/Resource.h"

namespace kestview {
namespace {

class TextDialog : public Pane {
public:
    TextDialog(const char* newTitle, const char* newLabel, std::string present)
        : text(std::move(present)), title(newTitle), label(newLabel) {}
    std::string text;

private:
    void OnInit() override {
        constexpr int longestName = 49;
        SetWindowTextA(window, title);
        SetText(IDC_TEXT_LABEL, label);
        SetText(IDC_TEXT_FIELD, text);
        Send(IDC_TEXT_FIELD, EM_LIMITTEXT, longestName);
        Send(IDC_TEXT_FIELD, EM_SETSEL, 0, -1);
    }
    bool OnCommand(int id, int) override {
        if (id == IDC_TEXT_FIELD) Enable(IDOK, !Text(IDC_TEXT_FIELD).empty());
        if (id != IDOK && id != IDCANCEL) return false;
        text = Text(IDC_TEXT_FIELD);
        EndDialog(window, id);
        return true;
    }

    const char* title;
    const char* label;
};

}  // namespace

std::optional<std::string> AskText(HWND owner, const char* title, const char* label, const std::string& present) {
    TextDialog dialog(title, label, present);
    if (dialog.RunModal(IDD_TEXT, owner) != IDOK || dialog.text.empty()) return std::nullopt;
    return dialog.text;
}

}  // namespace kestview
