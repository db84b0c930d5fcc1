// A pane that holds a graph with a line of text below it.
#pragma once

#include "panes/DocumentPane.h"
#include "panes/GraphWindow.h"

namespace kestview {

class GraphPane : public DocumentPane {
public:
    using DocumentPane::DocumentPane;
    GraphWindow* Graph() override { return &graph; }

protected:
    void OnInit() override;
    void OnShown() override;
    void OnSize(int width, int height) override;
    int SmallestHeight() const override;
    bool OnOther(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) override;
    /// Asks for Update, once the messages at hand are done.
    void UpdateSoon();
    virtual void Update() = 0;

    GraphWindow graph;
};

}  // namespace kestview
