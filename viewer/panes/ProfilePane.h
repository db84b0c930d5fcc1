// The values along the selected ROI: a line, an open outline, or the border of an area.
#pragma once

#include "panes/GraphPane.h"

namespace kestview {

class ProfilePane : public GraphPane {
public:
    using GraphPane::GraphPane;
    void Refresh(unsigned change) override;

private:
    void Update() override;
};

}  // namespace kestview
