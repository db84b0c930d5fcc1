// The table of the panes at the side.
#include "panes/SidePanes.h"

#include "panes/CalibrationPane.h"
#include "panes/DisplayTablePane.h"
#include "panes/HistogramPane.h"
#include "panes/ProfilePane.h"
#include "panes/ThresholdPane.h"
#include "res/Resource.h"

namespace kestview {
namespace {

template <class Pane>
std::unique_ptr<DocumentPane> Make(PaneHost& host) {
    return std::make_unique<Pane>(host);
}

constexpr SidePane sidePanes[] = {
    {ID_DISPLAY_THRESHOLD, "Threshold", "Colour bands of values, and make masks of them", IDD_THRESHOLD,
     Make<ThresholdPane>},
    {ID_DISPLAY_EDIT, "Display", "Change how values become gray levels on the screen", IDD_DISPLAY_TABLE,
     Make<DisplayTablePane>},
    {ID_MEASURE_HISTOGRAM, "Histogram", "How often each value occurs", IDD_GRAPH, Make<HistogramPane>},
    {ID_MEASURE_PROFILE, "Profile", "The values along the selected ROI", IDD_GRAPH, Make<ProfilePane>},
    {ID_CALIBRATE_POINTS, "Calibrate", "Measure in a unit of your own", IDD_CALIBRATION, Make<CalibrationPane>},
};

}  // namespace

std::span<const SidePane> SidePanes() { return sidePanes; }

}  // namespace kestview
