// The dialog for a graph's title and axis texts.
#include "graph/Dialogs.h"
#include "graph/SettingsDialog.h"
#include "graph/resources/DialogIds.h"

namespace kest {
namespace {

class TitleDialog : public SettingsDialog {
public:
    using SettingsDialog::SettingsDialog;

private:
    struct Texts {
        char title[KEST_GRAPH_TEXT_SIZE], x[KEST_GRAPH_TEXT_SIZE], y[KEST_GRAPH_TEXT_SIZE];
    };

    bool Fill() override {
        Texts texts;
        graph.GetGraphText(texts.title, texts.x, texts.y);
        FillText(IDC_TITLE, texts.title);
        FillText(IDC_X_TEXT, texts.x);
        FillText(IDC_Y_TEXT, texts.y);
        return true;
    }

    bool TakeOver(int controlId, int code) override {
        return code == EN_CHANGE && controlId >= IDC_TITLE && controlId <= IDC_Y_TEXT;
    }

    void UpdatePreview() override { SetTexts(preview); }
    void Apply() override { SetTexts(graph); }

    void FillText(int controlId, const char* text) {
        SendDlgItemMessageA(window, controlId, EM_LIMITTEXT, KEST_GRAPH_TEXT_SIZE - 1, 0);
        SetDlgItemTextA(window, controlId, text);
    }

    void SetTexts(CcGraph& target) {
        Texts texts = {};
        GetDlgItemTextA(window, IDC_TITLE, texts.title, sizeof texts.title);
        GetDlgItemTextA(window, IDC_X_TEXT, texts.x, sizeof texts.x);
        GetDlgItemTextA(window, IDC_Y_TEXT, texts.y, sizeof texts.y);
        target.SetGraphText(texts.title, texts.x, texts.y);
    }
};

}  // namespace

void RunTitleDialog(CcGraph& graph, HMODULE resources, HWND owner) {
    SettingsDialog::Run<TitleDialog>(graph, resources, owner, "TITLEDLB", "Graph Titles");
}

}  // namespace kest
