// The threshold pane: bands of values with colours over the picture, and the mask made of them.
#pragma once

#include "panes/DocumentPane.h"

namespace kestview {

class ThresholdPane : public DocumentPane {
public:
    using DocumentPane::DocumentPane;
    void Refresh(unsigned change) override;
    void OnShown(bool isShown) override;
    /// A binary picture of the pixels in the bands, in a tab of its own.
    void MakeMask();

private:
    void OnInit() override;
    void OnSize(int width, int height) override;
    bool OnCommand(int id, int code) override;
    LRESULT OnNotify(NMHDR& header) override;
    bool OnOther(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) override;
    void FillChannels();
    /// What the numbers of the bands mean.
    void ShowUnits();
    void FillBands();
    void FillSliders();
    /// The first band comes by itself, which is no edit.
    void AddBand(bool isEdit);
    void ChangeBand(float low, float high);
    long long PixelCount() const;
    void ShowCount();
    int SelectedBand() const;

    bool isInFront = false;
    bool isTyping = false;         ///< in a field: what stands in it is the user's
    ThresholdTag bandAtRest = {};  ///< the selected band before the number at hand was typed
    std::size_t selectedBand = 0;
};

}  // namespace kestview
