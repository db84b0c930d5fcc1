// The calibration pane: four points picked in the picture, their world positions and the unit.
#pragma once

#include "panes/DocumentPane.h"

namespace kestview {

class CalibrationPane : public DocumentPane {
public:
    using DocumentPane::DocumentPane;
    void Refresh(unsigned change) override;
    void OnShown(bool isShown) override;

    void OpenFile();
    /// Asks first when it is in no file.
    void Remove();
    /// False when it was cancelled or failed.
    bool SaveFile();
    /// Marks the picked points over the picture.
    void PaintOver(HDC dc) const;

private:
    void OnInit() override;
    int SmallestHeight() const override { return LowestEdge(); }
    bool OnCommand(int id, int code) override;
    bool PicksPoints() const;
    bool Pick(POINT pixel);
    bool MayReplace();
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

    bool isInFront = false;
    bool isPointChosen = false;  ///< by the user, to be set anew
};

}  // namespace kestview
