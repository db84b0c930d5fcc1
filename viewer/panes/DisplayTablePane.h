// The editor of the display tables: points of a curve are dragged in the graph, and the picture follows.
#pragma once

#include "panes/GraphPane.h"

namespace kestview {

class DisplayTablePane : public GraphPane {
public:
    using GraphPane::GraphPane;
    void Refresh(unsigned change) override;

private:
    void OnInit() override;
    bool OnCommand(int id, int code) override;
    void Update() override;
    void OnDragged(int curve, int point);
    /// Gives the curve to the picture's display table.
    void Apply(int curve);
    void Reset();
    void Invert();
    void ShowAtOnce();
    void AddPoint();
    void RemovePoint();
    int Channel(int curve) const;
    tagPoints Axis() const;
    /// As it was edited, else straight.
    std::vector<tagPoints> CurveOf(int channel) const;
    void TakeCurves();
    bool IsInner(int point);
    /// The point of the selected curve that Remove Point takes away; -1 for none.
    void NotePicked(int point);

    int pickedPoint = -1;
};

}  // namespace kestview
