// The values along the selected ROI.
#include "panes/ProfilePane.h"

#include <algorithm>

#include "Resource.h"
#include "document/PixelText.h"
#include "document/Profile.h"
#include "platform/Text.h"

namespace kestview {

void ProfilePane::Refresh(unsigned change) {
    if (change == EverythingChanged) graph.FollowRanges();
    if (change & (PictureChanged | RoisChanged | CalibrationChanged | DisplayChanged)) UpdateSoon();
}

void ProfilePane::Update() {
    graph.ClearCurves();
    CcRoiBase* roi = document ? document->SelectedRoi() : nullptr;
    std::vector<tagPoints> points;
    if (roi) points = MakeProfile(*document, *roi);
    if (points.size() < 2) {
        graph.SetTexts("Profile", "", "");
        graph.SetRanges(0, 1, 0, 255);
        SetText(IDC_GRAPH_NOTE, "Select a line, a polyline or another outline.");
        return;
    }
    const auto [lowest, highest] = std::minmax_element(
        points.begin(), points.end(), [](const tagPoints& a, const tagPoints& b) { return a.y < b.y; });
    float low = lowest->y, high = highest->y;
    if (!document->Class().isWide) low = 0, high = 255;
    const float length = points.back().x;
    const std::size_t count = points.size();
    graph.AddCurve("Profile", std::move(points), PS_SOLID, RGB(200, 0, 0));
    graph.SelectCurve(-1);
    graph.SetRanges(0, length, low, high);
    graph.SetTexts(std::string("Profile of ") + roi->GetName(), "Distance (" + UnitOf(document->Image()) + ")",
                   "Value");
    SetText(IDC_GRAPH_NOTE, Format("%u samples over %.6g %s", static_cast<unsigned>(count), static_cast<double>(length),
                                   UnitOf(document->Image()).c_str()));
}

}  // namespace kestview
