// The threshold pane: bands of values with colours over the picture, and the mask made of them.
#include "panes/ThresholdPane.h"

#include <windows.h>

#include <commctrl.h>

#include <algorithm>
#include <cmath>

#include "document/BandCount.h"
#include "platform/Boxes.h"
#include "platform/Busy.h"
#include "platform/Drawing.h"
#include "platform/ListView.h"
#include "platform/Text.h"
#include "platform/Window.h"
#include "res/Resource.h"

namespace kestview {
namespace {

/// Counting takes longer than showing: it waits until the slider rests.
constexpr UINT_PTR countTimer = 1;
constexpr UINT countDelayMilliseconds = 150;
constexpr COLORREF bandColours[mostBands] = {RGB(40, 110, 230), RGB(230, 40, 40), RGB(30, 170, 70),  RGB(240, 170, 0),
                                             RGB(160, 60, 200), RGB(0, 170, 180), RGB(240, 90, 160), RGB(120, 90, 40)};
/// A band that begins at the top level would be taken to begin at 0.
constexpr double highestLow = 254, highestLevel = 255;
constexpr int mostSteps = 65535, stepsBetweenWhole = 1000;

struct ChannelName {
    int channel;
    const char* name;
};
constexpr ChannelName rgbChannels[] = {{0, "Luminance"}, {1, "Red"}, {2, "Green"}, {3, "Blue"}};
constexpr ChannelName hslChannels[] = {{4, "Hue"}, {5, "Saturation"}, {6, "Lightness"}};

}  // namespace

void ThresholdPane::OnInit() {
    const ListView list(Item(IDC_BAND_LIST));
    list.SetStyle(LVS_EX_FULLROWSELECT | LVS_EX_DOUBLEBUFFER);
    list.AddColumn("Colour", 80);
    list.AddColumn("Low", 70, true);
    list.AddColumn("High", 70, true);
    Check(IDC_BAND_SHOW, true);
}

void ThresholdPane::OnSize(int width, int) {
    const int margin = MulDiv(6, DpiOf(window), 96), fieldRoom = WidthOf(PlaceOf(IDC_BAND_LOW_TEXT)) + 2 * margin;
    Stretch(IDC_BAND_LIST, margin, -1);
    Stretch(IDC_BAND_COUNT, margin, -1);
    Stretch(IDC_BAND_UNITS, margin, -1);
    Stretch(IDC_BAND_LOW, fieldRoom, -1);
    Stretch(IDC_BAND_HIGH, fieldRoom, -1);
    for (const int field : {IDC_BAND_LOW_TEXT, IDC_BAND_HIGH_TEXT}) {
        const RECT place = PlaceOf(field);
        SetWindowPos(Item(field), nullptr, width - margin - WidthOf(place), place.top, 0, 0,
                     SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
}

void ThresholdPane::OnShown() {
    if (!document) return;
    document->PreviewBands(isInFront && IsChecked(IDC_BAND_SHOW), host.Canvas());
    Refresh(EverythingChanged);
}

void ThresholdPane::Refresh(unsigned change) {
    if (change & (BandsChanged | ChannelChosen)) NoteBands();
    if (!isInFront) return;
    if (change == EverythingChanged && document && ThresholdPreview::IsPossible(document->Image()))
        document->PreviewBands(IsChecked(IDC_BAND_SHOW), host.Canvas());
    if (change & ChannelChosen) FillChannels();
    if (change & PictureChanged) TakeScale();
    if (change & (DisplayChanged | PictureChanged)) {
        ShowUnits();
        FillBands();
        FillSliders();
    }
    if (change & (DisplayChanged | PictureChanged | RoisChanged | CalibrationChanged))
        SetTimer(window, countTimer, countDelayMilliseconds, nullptr);
}

void ThresholdPane::FillChannels() {
    const Filling filling(isFilling);
    Send(IDC_BAND_CHANNEL, CB_RESETCONTENT);
    const int present = document ? document->Channel() : -1;
    const auto add = [&](const ChannelName& entry) {
        const LRESULT row = Send(IDC_BAND_CHANNEL, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(entry.name));
        Send(IDC_BAND_CHANNEL, CB_SETITEMDATA, static_cast<WPARAM>(row), entry.channel);
        if (entry.channel == present) Send(IDC_BAND_CHANNEL, CB_SETCURSEL, static_cast<WPARAM>(row));
    };
    if (document && document->Class().type == KEST_IMAGE_RGB)
        std::for_each(std::begin(rgbChannels), std::end(rgbChannels), add);
    if (document && document->Class().type == KEST_IMAGE_HSL)
        std::for_each(std::begin(hslChannels), std::end(hslChannels), add);
    if (present < 0) add({present, "Gray level"});
    Enable(IDC_BAND_CHANNEL, present >= 0);
}

void ThresholdPane::ShowUnits() {
    std::string units = "Levels 0 to 255.";
    if (document && document->Class().isWide)
        units = "Values of the samples, " + BoundText(scale.range.low) + " to " + BoundText(scale.range.high) +
                " in this picture. How it is displayed does not matter.";
    if (document && document->Class().type == KEST_IMAGE_HSL)
        units = "Hue 0 to 239 stands for 0 to 360 degrees; the others 0 to 240.";
    if (document && !ThresholdPreview::IsPossible(document->Image())) units = "A binary picture has only two values.";
    SetText(IDC_BAND_UNITS, units);
}

double ThresholdPane::SliderScale::ValueAt(LRESULT step) const {
    // The ends are exact.
    if (step >= steps) return range.high;
    const double value = range.low + (range.high - range.low) * static_cast<double>(step) / steps;
    return isWhole ? std::round(value) : value;
}

int ThresholdPane::SliderScale::StepOf(double value) const {
    const double span = range.high - range.low;
    const double part = span > 0 ? (value - range.low) / span : 0;
    return static_cast<int>(std::lround(std::clamp(part, 0.0, 1.0) * steps));
}

void ThresholdPane::TakeScale() {
    const Filling filling(isFilling);
    scale = {};
    if (document) {
        scale.range = RangeOfSamples(document->Image());
        scale.isWhole = document->Class().type != KEST_IMAGE_FLOAT;
    }
    const double span = scale.range.high - scale.range.low;
    scale.steps = scale.isWhole ? static_cast<int>(std::clamp<double>(span, 1, mostSteps)) : stepsBetweenWhole;
    for (const int slider : {IDC_BAND_LOW, IDC_BAND_HIGH}) {
        Send(slider, TBM_SETRANGEMIN, FALSE, 0);
        Send(slider, TBM_SETRANGEMAX, FALSE, scale.steps);
        Send(slider, TBM_SETPAGESIZE, 0, std::max(1, (scale.steps + 1) / 16));
        Send(slider, TBM_SETTICFREQ, static_cast<WPARAM>(std::max(1, (scale.steps + 1) / 8)), 0);
    }
}

/// As many digits as tell a bound from the next one.
std::string ThresholdPane::BoundText(double bound) const {
    if (document && document->Class().type == KEST_IMAGE_FLOAT) return NumberText(static_cast<float>(bound));
    constexpr int digitsOf32Bits = 10;
    return Format("%.*g", digitsOf32Bits, bound);
}

int ThresholdPane::SelectedBand() const {
    if (!document || document->Bands().empty()) return -1;
    return static_cast<int>(std::min(selectedBand, document->Bands().size() - 1));
}

void ThresholdPane::FillBands() {
    const Filling filling(isFilling);
    const ListView list(Item(IDC_BAND_LIST));
    const std::size_t count = document ? document->Bands().size() : 0;
    list.SetRowCount(static_cast<int>(count));
    for (std::size_t i = 0; i < count; ++i) {
        const Band& band = document->Bands()[i];
        const int row = static_cast<int>(i);
        list.SetText(row, 1, BoundText(band.low));
        list.SetText(row, 2, BoundText(band.high));
        list.SetSelected(row, row == SelectedBand());
    }
    list.FitColumns(widestTexts);
    InvalidateRect(Item(IDC_BAND_LIST), nullptr, FALSE);
    const bool isPossible = document && ThresholdPreview::IsPossible(document->Image());
    Enable(IDC_BAND_ADD, isPossible && count < mostBands);
    Enable(IDC_BAND_LAST, isPossible && count == 0 && HasLastBands());
    for (const int id : {IDC_BAND_REMOVE, IDC_BAND_COLOUR, IDC_BAND_MASK, IDC_BAND_SHOW, IDC_BAND_LOW, IDC_BAND_HIGH,
                         IDC_BAND_LOW_TEXT, IDC_BAND_HIGH_TEXT})
        Enable(id, isPossible && count > 0);
}

void ThresholdPane::FillSliders() {
    const Filling filling(isFilling);
    const int selected = SelectedBand();
    if (selected < 0) {
        for (const int field : {IDC_BAND_LOW_TEXT, IDC_BAND_HIGH_TEXT}) SetText(field, "");
        return;
    }
    const Band& band = document->Bands()[static_cast<std::size_t>(selected)];
    // A slider that is being dragged stays with the mouse.
    for (const auto& [slider, bound] : {std::pair{IDC_BAND_LOW, band.low}, std::pair{IDC_BAND_HIGH, band.high}})
        if (const int step = scale.StepOf(bound); Send(slider, TBM_GETPOS) != step)
            Send(slider, TBM_SETPOS, TRUE, step);
    if (!isTyping) bandAtRest = band;
    for (const auto& [field, bound] :
         {std::pair{IDC_BAND_LOW_TEXT, band.low}, std::pair{IDC_BAND_HIGH_TEXT, band.high}})
        if (!isTyping || GetFocus() != Item(field)) SetText(field, BoundText(bound));
}

void ThresholdPane::AddBand() {
    std::vector<Band> bands = document->Bands();
    if (bands.size() >= mostBands) return;
    // The first one takes the upper half of the values, the others the lowest quarter.
    const auto valueAt = [&](double part) { return scale.ValueAt(std::lround(scale.steps * part)); };
    if (bands.empty())
        bands.push_back({valueAt(0.5), valueAt(1), bandColours[0]});
    else
        bands.push_back({valueAt(0), valueAt(0.25), bandColours[bands.size()]});
    selectedBand = bands.size() - 1;
    document->SetBands(std::move(bands));
}

/// Bounds mean the same in pictures of one class.
void ThresholdPane::NoteBands() {
    if (document && !document->Bands().empty())
        lastBands[document->Class().type] = {document->Bands(), document->Channel()};
}

bool ThresholdPane::HasLastBands() const { return document && lastBands.count(document->Class().type) > 0; }

void ThresholdPane::TakeLastBands() {
    if (!HasLastBands() || !document->Bands().empty()) return;
    const LastBands last = lastBands[document->Class().type];
    selectedBand = 0;
    document->SetChannel(last.channel);
    document->SetBands(last.bands);
}

void ThresholdPane::ChangeBand(double low, double high) {
    const int selected = SelectedBand();
    if (selected < 0) return;
    std::vector<Band> bands = document->Bands();
    bands[static_cast<std::size_t>(selected)].low = low;
    bands[static_cast<std::size_t>(selected)].high = high;
    document->SetBands(std::move(bands));
}

long long ThresholdPane::PixelCount() const {
    const SIZE size = document->Size();
    return static_cast<long long>(size.cx) * size.cy;
}

void ThresholdPane::ShowCount() {
    if (!document || document->Bands().empty() || !ThresholdPreview::IsPossible(document->Image())) {
        const bool isPossible = document && ThresholdPreview::IsPossible(document->Image());
        SetText(IDC_BAND_COUNT, isPossible ? "There are no bands yet: Add makes one." : "");
        return;
    }
    // A picture of levels is drawn twice, and compared.
    const Busy busy("Counting", 8 * PixelCount());
    CcRoiBase* roi = document->SelectedRoi();
    const std::optional<BandCount> count = CountInBands(*document, document->BandMask(), roi);
    if (!count) {
        SetText(IDC_BAND_COUNT, "There is not enough memory to count.");
        return;
    }
    if (document->LacksPreview()) {
        SetText(IDC_BAND_COUNT, "There is not enough memory to show the bands.");
        return;
    }
    std::string text = Format("In the bands: %lld pixels", count->pixels);
    if (document->Calibration())
        text += ",\n" + PlainNumber(count->area, 6) + " square " + document->Calibration()->GetUnitsOfMeasure();
    text += roi ? std::string("\ninside ") + roi->GetName() + "." : "\nof the whole picture.";
    SetText(IDC_BAND_COUNT, text);
}

void ThresholdPane::TakeTyped(int field) {
    const auto typed = Number(field);
    if (!typed) return;
    double bound = *typed;
    if (!document->Class().isWide) {
        if (bound < 0) return;
        bound = std::min(bound, field == IDC_BAND_LOW_TEXT ? highestLow : highestLevel);
    }
    // The other bound gives way to the number as it stands, and comes back when the number goes on.
    const Filling typing(isTyping);
    if (field == IDC_BAND_LOW_TEXT)
        ChangeBand(bound, std::max(bound, bandAtRest.high));
    else
        ChangeBand(std::min(bound, bandAtRest.low), bound);
}

bool ThresholdPane::OnCommand(int id, int code) {
    if (!document || isFilling) return true;
    const int selected = SelectedBand();
    switch (id) {
        case IDC_BAND_ADD: AddBand(); break;
        case IDC_BAND_LAST: TakeLastBands(); break;
        case IDC_BAND_REMOVE: {
            std::vector<Band> bands = document->Bands();
            if (selected < 0) break;
            bands.erase(bands.begin() + selected);
            selectedBand = 0;
            document->SetBands(std::move(bands));
            break;
        }
        case IDC_BAND_COLOUR: {
            if (selected < 0) break;
            std::vector<Band> bands = document->Bands();
            COLORREF& present = bands[static_cast<std::size_t>(selected)].colour;
            const auto colour = AskColour(Owner(), present);
            if (!colour) break;
            present = *colour;
            document->SetBands(std::move(bands));
            break;
        }
        case IDC_BAND_SHOW: document->PreviewBands(IsChecked(IDC_BAND_SHOW), host.Canvas()); break;
        case IDC_BAND_MASK: host.RunCommand(ID_DISPLAY_MASK); break;
        case IDC_BAND_CHANNEL:
            if (code == CBN_SELCHANGE)
                document->SetChannel(static_cast<int>(
                    Send(IDC_BAND_CHANNEL, CB_GETITEMDATA, static_cast<WPARAM>(Send(IDC_BAND_CHANNEL, CB_GETCURSEL)))));
            break;
        case IDC_BAND_LOW_TEXT:
        case IDC_BAND_HIGH_TEXT:
            if (code == EN_KILLFOCUS) FillSliders();
            if (code == EN_CHANGE && selected >= 0) TakeTyped(id);
            break;
        default: break;
    }
    return true;
}

LRESULT ThresholdPane::OnNotify(NMHDR& header) {
    if (header.idFrom != IDC_BAND_LIST || !document) return 0;
    if (header.code == LVN_ITEMCHANGED && !isFilling) {
        const int row = ListView(Item(IDC_BAND_LIST)).SelectedRow();
        if (row >= 0) selectedBand = static_cast<std::size_t>(row);
        FillSliders();
    }
    if (header.code == NM_CUSTOMDRAW) {
        auto& draw = reinterpret_cast<NMLVCUSTOMDRAW&>(header);
        if (draw.nmcd.dwDrawStage == CDDS_PREPAINT) return CDRF_NOTIFYITEMDRAW;
        if (draw.nmcd.dwDrawStage == CDDS_ITEMPREPAINT) return CDRF_NOTIFYPOSTPAINT;
        if (draw.nmcd.dwDrawStage == CDDS_ITEMPOSTPAINT && draw.nmcd.dwItemSpec < document->Bands().size()) {
            const Band& band = document->Bands()[draw.nmcd.dwItemSpec];
            RECT cell = {LVIR_BOUNDS, 0, 0, 0};
            SendMessageA(header.hwndFrom, LVM_GETITEMRECT, draw.nmcd.dwItemSpec, reinterpret_cast<LPARAM>(&cell));
            cell.right = cell.left + static_cast<LONG>(SendMessageA(header.hwndFrom, LVM_GETCOLUMNWIDTH, 0, 0));
            InflateRect(&cell, -4, -3);
            const kest::GdiObject brush(CreateSolidBrush(band.colour));
            FillRect(draw.nmcd.hdc, &cell, brush);
        }
    }
    return 0;
}

bool ThresholdPane::OnOther(UINT message, WPARAM wParam, LPARAM lParam, LRESULT&) {
    if (message == WM_TIMER && wParam == countTimer) {
        KillTimer(window, countTimer);
        if (isInFront) ShowCount();
        return true;
    }
    if (message != WM_HSCROLL || !document || isFilling) return false;
    const int selected = SelectedBand();
    if (selected < 0) return true;
    const Band& band = document->Bands()[static_cast<std::size_t>(selected)];
    double low = band.low, high = band.high;
    // The bound whose slider is not moved gives way.
    if (reinterpret_cast<HWND>(lParam) == Item(IDC_BAND_LOW)) {
        low = scale.ValueAt(Send(IDC_BAND_LOW, TBM_GETPOS));
        if (!document->Class().isWide) low = std::min(low, highestLow);
        high = std::max(low, high);
    } else {
        high = scale.ValueAt(Send(IDC_BAND_HIGH, TBM_GETPOS));
        low = std::min(low, high);
    }
    if (low != band.low || high != band.high) ChangeBand(low, high);
    return true;
}

}  // namespace kestview
