// The list of the document's ROIs, in step with the picture: selection, names, deletion.
#pragma once

#include "panes/DocumentPane.h"

namespace kestview {

class RoiListPane : public DocumentPane {
public:
    using DocumentPane::DocumentPane;
    void Refresh(unsigned change) override;
    /// Lets the user edit the name of the first selected ROI in place.
    void EditName();

private:
    void OnInit() override;
    void OnSize(int width, int height) override;
    bool OnCommand(int id, int code) override;
    LRESULT OnNotify(NMHDR& header) override;
    void TakeSelection();

    const CcRoiBase* renamed = nullptr;  ///< whose name is being typed
};

}  // namespace kestview
