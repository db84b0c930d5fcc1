// A pane beside the picture that shows something of the active document.
#pragma once

#include "document/Document.h"
#include "platform/Pane.h"

namespace kestview {

class MainWindow;

class DocumentPane : public Pane {
public:
    explicit DocumentPane(MainWindow& newMain) : main(newMain) {}

    /// Another document is active; null for none. To be followed by Refresh, once all panes know it.
    void SetDocument(Document* newDocument) { document = newDocument; }
    /// Shows what has changed in the document.
    virtual void Refresh(unsigned change) = 0;
    /// The pane has been brought to the front, or another one has.
    virtual void OnShown(bool) {}

protected:
    MainWindow& main;
    Document* document = nullptr;
};

}  // namespace kestview
