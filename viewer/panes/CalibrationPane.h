// The calibration pane: four points picked in the picture, their world positions and the unit.
#pragma once

#include "panes/DocumentPane.h"

namespace kestview {

class CalibrationPane : public DocumentPane {
public:
    using DocumentPane::DocumentPane;
    void Refresh(unsigned change) override;
    bool PicksPoints() const override;
    bool Pick(POINT pixel) override;
    /// Marks the picked points.
    void PaintOver(HDC dc) const override;

private:
    void OnShown() override;
    void OnInit() override;
    int SmallestHeight() const override { return LowestEdge(); }
    bool OnCommand(int id, int code) override;
    void ShowState();
    void TakeFields();
    void Apply();
    void TakeFromDocument();
    void SelectPoint(int point);
    /// From this one on, cyclically; false when all four have their places.
    bool SelectMissingPoint(int first);
    int SelectedPoint() const;
    void ShowPoints();
    void FocusField(int id);

    bool isPointChosen = false;  ///< by the user, to be set anew
};

}  // namespace kestview
