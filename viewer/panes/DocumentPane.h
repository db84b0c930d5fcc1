// A pane beside the picture that shows something of the active document.
#pragma once

#include "document/Document.h"
#include "panes/PaneHost.h"
#include "platform/Pane.h"

namespace kestview {

class GraphWindow;

class DocumentPane : public Pane {
public:
    explicit DocumentPane(PaneHost& newHost) : host(newHost) {}

    /// Another document is active; null for none. To be followed by Refresh, once all panes know it.
    void SetDocument(Document* newDocument) { document = newDocument; }
    /// Shows what has changed in the document.
    virtual void Refresh(unsigned change) = 0;
    /// The pane has been brought to the front, or another one has.
    void SetInFront(bool isNowInFront) {
        isInFront = isNowInFront;
        OnShown();
    }

    // While the pane is in front
    /// Its graph, which the commands for graphs then work on.
    virtual GraphWindow* Graph() { return nullptr; }
    /// Whether it waits for a click in the picture.
    virtual bool PicksPoints() const { return false; }
    /// Takes a click with the select tool; false leaves it to the ROIs.
    virtual bool Pick(POINT) { return false; }
    /// Draws over picture and ROIs.
    virtual void PaintOver(HDC) const {}

protected:
    virtual void OnShown() {}
    /// For boxes and dialogs.
    HWND Owner() const { return GetAncestor(window, GA_ROOT); }

    PaneHost& host;
    Document* document = nullptr;
    bool isInFront = false;
};

}  // namespace kestview
