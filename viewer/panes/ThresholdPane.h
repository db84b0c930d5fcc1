// The threshold pane: bands of values with colours over the picture, and the mask made of them.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "panes/DocumentPane.h"

namespace kestview {

class ThresholdPane : public DocumentPane {
public:
    using DocumentPane::DocumentPane;
    void Refresh(unsigned change) override;

private:
    void OnInit() override;
    void OnShown() override;
    void OnSize(int width, int height) override;
    int SmallestHeight() const override { return LowestEdge(); }
    bool OnCommand(int id, int code) override;
    LRESULT OnNotify(NMHDR& header) override;
    bool OnOther(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) override;
    void FillChannels();
    /// What the numbers of the bands mean.
    void ShowUnits();
    void FillBands();
    void FillSliders();
    void AddBand();
    /// The bands of the picture of a class that had some last are offered, never taken unasked.
    void NoteBands();
    void TakeLastBands();
    bool HasLastBands() const;
    void ChangeBand(double low, double high);
    void TakeTyped(int field);
    std::string BoundText(double bound) const;
    /// The sliders stand for values at equal steps from the smallest to the largest one.
    struct SliderScale {
        SampleRange range = {0, 255};
        int steps = 255;
        bool isWhole = true;
        double ValueAt(LRESULT step) const;
        int StepOf(double value) const;
    };
    void TakeScale();
    long long PixelCount() const;
    void ShowCount();
    int SelectedBand() const;

    bool isTyping = false;  ///< in a field: what stands in it is the user's
    Band bandAtRest;        ///< the selected band before the number at hand was typed
    std::size_t selectedBand = 0;
    SliderScale scale;
    std::vector<int> widestTexts;  ///< of the list's columns
    struct LastBands {
        std::vector<Band> bands;
        int channel;
    };
    std::map<int, LastBands> lastBands;  ///< by class
};

}  // namespace kestview
