// The values along the selected ROI.
#include "panes/ProfilePane.h"

#include "document/FiniteRange.h"
#include "document/PixelText.h"
#include "document/Profile.h"
#include "platform/Text.h"
#include "res/Resource.h"

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
    FiniteRange values;
    for (const tagPoints& point : points) values.Add(point.y);
    constexpr tagPoints levels = {0, 255};
    const tagPoints axis = document->Class().isWide ? values.Or(levels) : levels;
    const float length = points.back().x;
    const std::size_t count = points.size();
    graph.AddCurve("Profile", std::move(points), PS_SOLID, RGB(200, 0, 0));
    graph.SelectCurve(-1);
    graph.SetRanges(0, GraphWindow::RoundEnd(length, false), axis.x, axis.y);
    graph.SetTexts(std::string("Profile of ") + roi->GetName(), "Distance (" + UnitOf(document->Image()) + ")",
                   "Value");
    SetText(IDC_GRAPH_NOTE, Format("%u samples over %.6g %s", static_cast<unsigned>(count), static_cast<double>(length),
                                   UnitOf(document->Image()).c_str()));
}

}  // namespace kestview
