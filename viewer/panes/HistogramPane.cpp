// The histogram of the picture, or of the pixels under the selected ROI.
#include "panes/HistogramPane.h"

#include <algorithm>

#include "document/Histogram.h"
#include "platform/Text.h"
#include "res/Resource.h"

namespace kestview {

void HistogramPane::Refresh(unsigned change) {
    if (change == EverythingChanged) graph.FollowRanges();
    if (change & (PictureChanged | RoisChanged)) UpdateSoon();
}

void HistogramPane::Update() {
    graph.ClearCurves();
    if (!document) {
        graph.SetTexts("Histogram", "", "");
        SetText(IDC_GRAPH_NOTE, "");
        return;
    }
    CcRoiBase* roi = document->SelectedRoi();
    const std::optional<Histogram> made = MakeHistogram(*document, roi);
    if (!made) {
        SetText(IDC_GRAPH_NOTE, "There is not enough memory to count.");
        return;
    }
    const Histogram& histogram = *made;
    float most = 1;
    for (const HistogramChannel& channel : histogram.channels) {
        std::vector<tagPoints> points;
        const float step = (histogram.high - histogram.low) / (histogramBins - 1);
        for (int bin = 0; bin < histogramBins; ++bin) {
            const auto count = static_cast<float>(channel.counts[static_cast<std::size_t>(bin)]);
            points.push_back({histogram.low + step * static_cast<float>(bin), count});
            most = std::max(most, count);
        }
        graph.AddCurve(channel.name, std::move(points), PS_SOLID, channel.colour);
    }
    graph.SelectCurve(-1);
    graph.SetRanges(histogram.low, histogram.high, 0, GraphWindow::RoundEnd(most, true));
    graph.SetTexts(roi ? std::string("Histogram of ") + roi->GetName() : "Histogram of the picture", "Value", "Pixels");
    SetText(IDC_GRAPH_NOTE, Format("%lld pixels", histogram.pixels));
}

}  // namespace kestview
