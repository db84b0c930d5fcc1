// The threshold pane: bands of values with colours over the picture, and the mask made of them.
#include "panes/ThresholdPane.h"

#include <windows.h>

#include <commctrl.h>

#include <algorithm>

#include "MainWindow.h"
#include "Resource.h"
#include "document/BandCount.h"
#include "platform/Boxes.h"
#include "platform/Busy.h"
#include "platform/Drawing.h"
#include "platform/ListView.h"
#include "platform/Text.h"

namespace kestview {
namespace {

/// Counting takes longer than showing: it waits until the slider rests.
constexpr UINT_PTR countTimer = 1;
constexpr UINT countDelayMilliseconds = 150;
constexpr std::size_t mostBands = 8;
constexpr COLORREF bandColours[mostBands] = {RGB(40, 110, 230), RGB(230, 40, 40), RGB(30, 170, 70),  RGB(240, 170, 0),
                                             RGB(160, 60, 200), RGB(0, 170, 180), RGB(240, 90, 160), RGB(120, 90, 40)};
/// A band that begins at the top level would be taken to begin at 0.
constexpr int highestLow = 254, highestLevel = 255;

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
    for (const int slider : {IDC_BAND_LOW, IDC_BAND_HIGH}) {
        Send(slider, TBM_SETRANGE, FALSE, MAKELPARAM(0, highestLevel));
        Send(slider, TBM_SETPAGESIZE, 0, 16);
        Send(slider, TBM_SETTICFREQ, 32, 0);
    }
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

void ThresholdPane::OnShown(bool isShown) {
    isInFront = isShown;
    if (!document) return;
    if (isShown && document->Bands().empty() && ThresholdPreview::IsPossible(document->Image())) AddBand(false);
    document->PreviewBands(isShown && IsChecked(IDC_BAND_SHOW), main.View().Canvas());
    Refresh(EverythingChanged);
}

void ThresholdPane::Refresh(unsigned change) {
    if (!isInFront) return;
    if (change == EverythingChanged) {
        if (document && ThresholdPreview::IsPossible(document->Image())) {
            if (document->Bands().empty()) AddBand(false);
            document->PreviewBands(IsChecked(IDC_BAND_SHOW), main.View().Canvas());
        }
        FillChannels();
    }
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
        units = Format("Levels of the display: 0 is %.9g, 255 is %.9g.", static_cast<double>(document->ShownRange().x),
                       static_cast<double>(document->ShownRange().y));
    if (document && document->Class().type == KEST_IMAGE_HSL)
        units = "Hue 0 to 239 stands for 0 to 360 degrees; the others 0 to 240.";
    if (document && !ThresholdPreview::IsPossible(document->Image())) units = "A binary picture has only two values.";
    SetText(IDC_BAND_UNITS, units);
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
        const ThresholdTag& band = document->Bands()[i];
        const int row = static_cast<int>(i);
        list.SetText(row, 1, Format("%g", static_cast<double>(band.fLow)));
        list.SetText(row, 2, Format("%g", static_cast<double>(band.fHigh)));
        list.SetSelected(row, row == SelectedBand());
    }
    InvalidateRect(Item(IDC_BAND_LIST), nullptr, FALSE);
    const bool isPossible = document && ThresholdPreview::IsPossible(document->Image());
    Enable(IDC_BAND_ADD, isPossible && count < mostBands);
    Enable(IDC_BAND_REMOVE, isPossible && count > 1);
    for (const int id : {IDC_BAND_COLOUR, IDC_BAND_MASK, IDC_BAND_SHOW, IDC_BAND_LOW, IDC_BAND_HIGH, IDC_BAND_LOW_TEXT,
                         IDC_BAND_HIGH_TEXT})
        Enable(id, isPossible && count > 0);
}

void ThresholdPane::FillSliders() {
    const Filling filling(isFilling);
    const int selected = SelectedBand();
    if (selected < 0) return;
    const ThresholdTag& band = document->Bands()[static_cast<std::size_t>(selected)];
    // A slider that is being dragged stays with the mouse.
    for (const auto& [slider, level] : {std::pair{IDC_BAND_LOW, band.fLow}, std::pair{IDC_BAND_HIGH, band.fHigh}})
        if (Send(slider, TBM_GETPOS) != static_cast<LRESULT>(level))
            Send(slider, TBM_SETPOS, TRUE, static_cast<LPARAM>(level));
    if (!isTyping) bandAtRest = band;
    for (const auto& [field, level] :
         {std::pair{IDC_BAND_LOW_TEXT, band.fLow}, std::pair{IDC_BAND_HIGH_TEXT, band.fHigh}})
        if (!isTyping || GetFocus() != Item(field)) SetNumber(field, static_cast<double>(level));
}

void ThresholdPane::AddBand(bool isEdit) {
    std::vector<ThresholdTag> bands = document->Bands();
    if (bands.size() >= mostBands) return;
    const COLORREF colour = bandColours[bands.size()];
    const float low = bands.empty() ? 128.0f : 0.0f, high = bands.empty() ? 255.0f : 64.0f;
    bands.push_back({low, high, GetRValue(colour), GetGValue(colour), GetBValue(colour)});
    selectedBand = bands.size() - 1;
    document->SetBands(std::move(bands), isEdit);
}

void ThresholdPane::ChangeBand(float low, float high) {
    const int selected = SelectedBand();
    if (selected < 0) return;
    std::vector<ThresholdTag> bands = document->Bands();
    bands[static_cast<std::size_t>(selected)].fLow = low;
    bands[static_cast<std::size_t>(selected)].fHigh = high;
    document->SetBands(std::move(bands));
}

long long ThresholdPane::PixelCount() const {
    const SIZE size = document->Size();
    return static_cast<long long>(size.cx) * size.cy;
}

void ThresholdPane::ShowCount() {
    if (!document || document->Bands().empty() || !ThresholdPreview::IsPossible(document->Image())) {
        SetText(IDC_BAND_COUNT, "");
        return;
    }
    // The picture is drawn twice, and compared.
    const Busy busy("Counting", 8 * PixelCount());
    CcRoiBase* roi = document->SelectedRoi();
    const std::vector<std::uint8_t> mask = document->BandMask();
    if (mask.empty()) {
        SetText(IDC_BAND_COUNT, "There is not enough memory to count.");
        return;
    }
    const BandCount count = CountInBands(*document, mask, roi);
    std::string text = Format("In the bands: %lld pixels", count.pixels);
    if (document->Calibration())
        text += Format(",\n%.6g square %s", count.area, document->Calibration()->GetUnitsOfMeasure());
    text += roi ? std::string("\ninside ") + roi->GetName() + "." : "\nof the whole picture.";
    SetText(IDC_BAND_COUNT, text);
}

void ThresholdPane::MakeMask() {
    if (!document || document->Bands().empty()) return;
    const Busy busy("Making the mask", 8 * PixelCount());
    const std::vector<std::uint8_t> pixels = document->BandMask();
    const SIZE size = document->Size();
    auto mask = MakeImage(KEST_IMAGE_BINARY, size.cy, size.cx, document->Name() + "-mask");
    if (!mask || pixels.size() != static_cast<std::size_t>(size.cx) * static_cast<std::size_t>(size.cy)) {
        ShowError(main, "There is not enough memory for the mask.");
        return;
    }
    std::copy(pixels.begin(), pixels.end(), static_cast<unsigned char*>(mask->GetBitMapImageData()));
    main.AddNewPicture(std::move(mask), document);
}

bool ThresholdPane::OnCommand(int id, int code) {
    if (!document || isFilling) return true;
    const int selected = SelectedBand();
    switch (id) {
        case IDC_BAND_ADD:
            AddBand(true);
            break;
        case IDC_BAND_REMOVE: {
            std::vector<ThresholdTag> bands = document->Bands();
            if (bands.size() < 2 || selected < 0) break;
            bands.erase(bands.begin() + selected);
            selectedBand = 0;
            document->SetBands(std::move(bands));
            break;
        }
        case IDC_BAND_COLOUR: {
            if (selected < 0) break;
            std::vector<ThresholdTag> bands = document->Bands();
            ThresholdTag& band = bands[static_cast<std::size_t>(selected)];
            const auto colour = AskColour(main, RGB(band.iRed, band.iGreen, band.iBlue));
            if (!colour) break;
            band.iRed = GetRValue(*colour);
            band.iGreen = GetGValue(*colour);
            band.iBlue = GetBValue(*colour);
            document->SetBands(std::move(bands));
            break;
        }
        case IDC_BAND_SHOW:
            document->PreviewBands(IsChecked(IDC_BAND_SHOW), main.View().Canvas());
            break;
        case IDC_BAND_MASK:
            MakeMask();
            break;
        case IDC_BAND_CHANNEL:
            if (code == CBN_SELCHANGE)
                document->SetChannel(static_cast<int>(
                    Send(IDC_BAND_CHANNEL, CB_GETITEMDATA, static_cast<WPARAM>(Send(IDC_BAND_CHANNEL, CB_GETCURSEL)))));
            break;
        case IDC_BAND_LOW_TEXT:
        case IDC_BAND_HIGH_TEXT: {
            if (code == EN_KILLFOCUS) FillSliders();
            if (code != EN_CHANGE || selected < 0) break;
            const auto value = Number(id);
            if (!value || *value < 0) break;
            const auto level =
                static_cast<float>(std::min<double>(*value, id == IDC_BAND_LOW_TEXT ? highestLow : highestLevel));
            // The other bound gives way to the number as it stands, and comes back when the number goes on.
            const Filling typing(isTyping);
            if (id == IDC_BAND_LOW_TEXT)
                ChangeBand(level, std::max(level, bandAtRest.fHigh));
            else
                ChangeBand(std::min(level, bandAtRest.fLow), level);
            break;
        }
        default:
            break;
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
            const ThresholdTag& band = document->Bands()[draw.nmcd.dwItemSpec];
            RECT cell = {LVIR_BOUNDS, 0, 0, 0};
            SendMessageA(header.hwndFrom, LVM_GETITEMRECT, draw.nmcd.dwItemSpec, reinterpret_cast<LPARAM>(&cell));
            cell.right = cell.left + static_cast<LONG>(SendMessageA(header.hwndFrom, LVM_GETCOLUMNWIDTH, 0, 0));
            InflateRect(&cell, -4, -3);
            const GdiObject brush(CreateSolidBrush(RGB(band.iRed, band.iGreen, band.iBlue)));
            FillRect(draw.nmcd.hdc, &cell, static_cast<HBRUSH>(static_cast<HGDIOBJ>(brush)));
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
    const ThresholdTag& band = document->Bands()[static_cast<std::size_t>(selected)];
    float low = band.fLow, high = band.fHigh;
    // The bound whose slider is not moved gives way.
    if (reinterpret_cast<HWND>(lParam) == Item(IDC_BAND_LOW)) {
        low = static_cast<float>(std::min<LRESULT>(Send(IDC_BAND_LOW, TBM_GETPOS), highestLow));
        high = std::max(low, high);
    } else {
        high = static_cast<float>(Send(IDC_BAND_HIGH, TBM_GETPOS));
        low = std::min(low, high);
    }
    if (low != band.fLow || high != band.fHigh) ChangeBand(low, high);
    return true;
}

}  // namespace kestview
