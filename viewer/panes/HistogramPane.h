// The histogram of the picture, or of the pixels under the selected ROI.
#pragma once

#include "panes/GraphPane.h"

namespace kestview {

class HistogramPane : public GraphPane {
public:
    using GraphPane::GraphPane;
    void Refresh(unsigned change) override;

private:
    void Update() override;
};

}  // namespace kestview
