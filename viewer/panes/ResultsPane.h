// The results table below the picture.
#pragma once

#include "document/ResultsTable.h"
#include "panes/DocumentPane.h"

namespace kestview {

class ResultsPane : public DocumentPane {
public:
    using DocumentPane::DocumentPane;
    void Refresh(unsigned change) override;
    /// What the pane shows, up to date.
    const ResultsTable& Table();

private:
    void OnInit() override;
    void OnSize(int width, int height) override;
    bool OnCommand(int id, int code) override;
    LRESULT OnNotify(NMHDR& header) override;
    bool OnOther(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) override;
    void Measure();

    ResultsTable table;
    bool isStale = true;
    std::vector<int> widestTexts;  ///< of the columns
};

}  // namespace kestview
