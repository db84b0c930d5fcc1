// What one tab shows: a picture with its ROIs, their undo history, the calibration, and how it is shown.
#include "document/Document.h"

#include <algorithm>
#include <cmath>
#include <new>

#include "document/FiniteRange.h"
#include "platform/Busy.h"
#include "platform/Text.h"

namespace kestview {
namespace {

/// Moves a curve to another range of input values.
void Spread(std::vector<tagPoints>& curve, float low, float high) {
    const float oldLow = curve.front().x, oldSpan = curve.back().x - oldLow;
    const auto last = static_cast<float>(curve.size() - 1);
    for (std::size_t i = 0; i < curve.size(); ++i) {
        const float part = oldSpan > 0 ? (curve[i].x - oldLow) / oldSpan : static_cast<float>(i) / last;
        curve[i].x = low + part * (high - low);
    }
    curve.front().x = low;
    curve.back().x = high;
}

tagPoints RangeOf(CcGrayImageFloat& image) {
    const SIZE size = SizeOf(image);
    const auto* samples = static_cast<const float*>(image.GetBitMapImageData());
    FiniteRange range;
    for (long long i = 0; i < static_cast<long long>(size.cx) * size.cy; ++i) range.Add(samples[i]);
    return range.Or({0, 1});
}

/// The library takes an end of a list as that of the range only when it has moved by more than a tenth.
bool IsMovedTooLittle(float bound, float moved) {
    return moved != bound && std::abs(static_cast<double>(moved) - static_cast<double>(bound)) <= 0.1;
}

}  // namespace

Document::Document(std::unique_ptr<CcImage> newImage)
    : image(std::move(newImage)), history(new CcRoiHistory(image->GetListROI())), preview(*image) {
    // The list deletes what an edit or an undo takes out.
    image->GetListROI()->SetDestructionType(1);
    TakeWholeRange();
}

/// Goes through wide samples and shows their whole range. Later drawings leave a range that was chosen.
void Document::TakeWholeRange() {
    if (!Class().isWide) return;
    if (auto* real = dynamic_cast<CcGrayImageFloat*>(image.get())) {
        wholeRange = RangeOf(*real);
        // A first sample that is no number would make the library's range none.
        float& first = *static_cast<float*>(real->GetBitMapImageData());
        const float kept = first;
        if (std::isnan(first)) first = wholeRange.x;
        shownRange = {image->GetMinPixelValue(), image->GetMaxPixelValue()};
        first = kept;
    } else {
        wholeRange = shownRange = {image->GetMinPixelValue(), image->GetMaxPixelValue()};
    }
    DrawPlainly(*image);
    // Infinite samples leave the library no range.
    if (shownRange.x != wholeRange.x || shownRange.y != wholeRange.y) {
        std::vector<tagPoints> straight = PointsFor(102, {{wholeRange.x, 0}, {wholeRange.y, 255}});
        image->SetDisplayLUT(102, 0, straight.data());
    }
    shownRange = wholeRange;
}

int Document::IndexOf(const CcRoiBase* roi) {
    for (int i = 0; i < RoiCount(); ++i)
        if (&Roi(i) == roi) return i;
    return -1;
}

std::vector<CcRoiBase*> Document::SelectedRois() {
    std::vector<CcRoiBase*> selected;
    for (int i = 0; i < RoiCount(); ++i)
        if (Roi(i).IsROISelected()) selected.push_back(&Roi(i));
    return selected;
}

CcRoiBase* Document::SelectedRoi() {
    for (int i = 0; i < RoiCount(); ++i)
        if (Roi(i).IsROISelected()) return &Roi(i);
    return nullptr;
}

void Document::SelectOnly(CcRoiBase* roi) {
    for (int i = 0; i < RoiCount(); ++i) Roi(i).SetSelected(&Roi(i) == roi);
    Changed(RoisChanged);
}

void Document::SetSelected(CcRoiBase& roi, bool isSelected) {
    roi.SetSelected(isSelected);
    Changed(RoisChanged);
}

void Document::BeforeRoiEdit() {
    if (history->Remember() == 0) return;
    // What was shown of the edit so far goes.
    Changed(RoisChanged);
    throw std::bad_alloc();
}

void Document::AddRoi(std::unique_ptr<CcRoiBase> roi) {
    if (image->GetListROI()->Reserve(1) < 0) return Changed(RoisChanged);
    BeforeRoiEdit();
    for (int i = 0; i < RoiCount(); ++i) Roi(i).SetSelected(0);
    roi->SetSelected(1);
    image->GetListROI()->InsertTail(roi.release());
    RoisEdited();
}

std::string Document::FreeName(CcRoiBase& roi) {
    const std::string given = roi.GetName(), kind = given.substr(0, given.find('.'));
    for (int number = 1;; ++number) {
        const std::string name = Format("%s.%d", kind.c_str(), number);
        bool isFree = true;
        for (int i = 0; i < RoiCount(); ++i) isFree = isFree && name != Roi(i).GetName();
        if (isFree) return name;
    }
}

void Document::DeleteSelectedRois() {
    if (!SelectedRoi()) return;
    BeforeRoiEdit();
    for (int i = RoiCount() - 1; i >= 0; --i)
        if (Roi(i).IsROISelected()) image->GetListROI()->DeleteAtIndex(i);
    RoisEdited();
}

void Document::RenameRoi(CcRoiBase& roi, const std::string& name) {
    const std::string newName = CutForStreams(name);
    BeforeRoiEdit();
    roi.SetName(newName.c_str());
    RoisEdited();
}

void Document::Undo() {
    if (history->Undo() == 0) RoisEdited();
}

void Document::Redo() {
    if (history->Redo() == 0) RoisEdited();
}

void Document::CancelRoiEdit() {
    history->Cancel();
    Changed(RoisChanged);
}

void Document::SetDisplayTable(unsigned short table) {
    if (displayTable == table) return;
    displayTable = table;
    Changed(DisplayChanged | TableChosen, true);
}

/// As many points as the table has, interpolated. Wide images take the ends of the list as the range that they show.
std::vector<tagPoints> Document::PointsFor(int table, const std::vector<tagPoints>& curve) {
    const int channel = table == 101 ? 1 : 0;
    const std::size_t count = table == 103 ? 128 : table == 104 ? 64 : 256;
    std::vector<tagPoints> entries(count);
    if (curve.size() < 2 || image->GetDisplayLUT(table, channel, entries.data()) < 0) return {};
    const auto last = static_cast<float>(count - 1);
    std::size_t right = 1;
    for (std::size_t i = 0; i < count; ++i) {
        if (Class().isWide)
            entries[i].x = i + 1 == count
                               ? curve.back().x
                               : curve.front().x + (curve.back().x - curve.front().x) * static_cast<float>(i) / last;
        const float x = entries[i].x;
        while (right + 1 < curve.size() && curve[right].x < x) ++right;
        const tagPoints &a = curve[right - 1], &b = curve[right];
        const double part = b.x > a.x ? std::clamp((static_cast<double>(x) - static_cast<double>(a.x)) /
                                                       (static_cast<double>(b.x) - static_cast<double>(a.x)),
                                                   0.0, 1.0)
                                      : 1.0;
        const double level = static_cast<double>(a.y) + static_cast<double>(b.y - a.y) * part;
        // Tables cut fractions off: a whole level is not to fall short of itself by rounding.
        entries[i].y = static_cast<float>(std::abs(level - std::round(level)) < 1e-3 ? std::round(level) : level);
    }
    return entries;
}

void Document::SetTableCurve(int table, int channel, const std::vector<tagPoints>& points) {
    std::vector<tagPoints> entries = PointsFor(table, points);
    if (entries.empty()) return;
    const tagPoints oldRange = shownRange;
    if (Class().isWide) {
        // A small step is made by way of a larger one.
        std::vector<tagPoints> detour = entries;
        const bool isLowNear = IsMovedTooLittle(oldRange.x, points.front().x);
        const bool isHighNear = IsMovedTooLittle(oldRange.y, points.back().x);
        if (isLowNear) detour.front().x -= 10;
        if (isHighNear) detour.back().x += 10;
        if (isLowNear || isHighNear) image->SetDisplayLUT(table, channel, detour.data());
        shownRange = {points.front().x, points.back().x};
        // All tables show the same range.
        for (auto& [place, curve] : tableCurves) Spread(curve, shownRange.x, shownRange.y);
    }
    image->SetDisplayLUT(table, channel, entries.data());
    tableCurves[{table, channel}] = points;
    hasEdits = true;
    SetModified(true);
    if (shownRange.x != oldRange.x || shownRange.y != oldRange.y) Changed(DisplayChanged, true);
}

void Document::ResetTableCurve(int table, int channel) {
    if (Class().isWide) {
        image->SetAutoUpdateDisplay(1);
        TakeWholeRange();
    }
    SetTableCurve(table, channel, {{shownRange.x, 0}, {shownRange.y, 255}});
    tableCurves.erase({table, channel});
    Changed(DisplayChanged, true);
}

bool Document::SetCalibration(std::unique_ptr<CcCalibration> newCalibration, const std::string& path) {
    if (image->SetCalibrationObject(newCalibration.get()) < 0) return false;
    calibration = std::move(newCalibration);
    calibrationPath = path;
    calibrationDraft = {};
    calibrationDraft.unit = calibration->GetUnitsOfMeasure();
    // Files of the first version come without their points.
    const tagPoints* worldPoints = calibration->GetWorldPoints();
    const bool hasPoints = std::any_of(worldPoints, worldPoints + std::size(calibrationDraft.points),
                                       [](const tagPoints& point) { return point.x != 0 || point.y != 0; });
    for (std::size_t i = 0; hasPoints && i < std::size(calibrationDraft.points); ++i) {
        const tagPoints pixel = calibration->GetImagePoints()[i], world = calibration->GetWorldPoints()[i];
        calibrationDraft.points[i] = {true, pixel, NumberText(world.x), NumberText(world.y)};
    }
    appliedDraft = calibrationDraft;
    Changed(CalibrationChanged, true);
    return true;
}

void Document::CalibrateLike(const Document& other, POINT origin) {
    if (!other.calibration) return;
    const SIZE size = Size();
    const Busy busy("Calibrating", 4LL * size.cx * size.cy);
    std::unique_ptr<CcCalibration> same(new CcCalibration);
    same->SetUnitsOfMeasure(other.calibration->GetUnitsOfMeasure());
    tagPoints points[4];
    std::copy_n(other.calibration->GetImagePoints(), 4, points);
    for (tagPoints& point : points)
        point = {point.x - static_cast<float>(origin.x), point.y - static_cast<float>(origin.y)};
    const SIZE otherSize = SizeOf(*other.image);
    const bool isWhole = size.cx == otherSize.cx && size.cy == otherSize.cy && origin.x == 0 && origin.y == 0;
    // Calibrations of old files come without their points; those are read again.
    if (same->DoCalibration(points, other.calibration->GetWorldPoints(), 4, size.cx, size.cy) == 0 ||
        (isWhole && same->Open(other.calibrationPath.c_str()) == 0))
        SetCalibration(std::move(same), isWhole ? other.calibrationPath : "");
}

void Document::RemoveCalibration() {
    if (!calibration) return;
    image->ClearCalibrationObject();
    calibration.reset();
    calibrationPath.clear();
    calibrationDraft = {};
    Changed(CalibrationChanged, true);
}

bool Document::Draw(HDC dc, SIZE area, const ShowImage& show) {
    return show(*image, dc, ShownTable()) && preview.Layer().DrawOver(dc, area, show);
}

void Document::SetBands(std::vector<Band> newBands) {
    bands = std::move(newBands);
    UpdatePreview();
    Changed(DisplayChanged | BandsChanged, true);
}

void Document::PreviewBands(bool isShown, HWND canvas) {
    const bool wasOn = preview.IsOn();
    previewCanvas = isShown ? canvas : nullptr;
    UpdatePreview();
    if (wasOn != preview.IsOn()) Changed(DisplayChanged);
}

void Document::UpdatePreview() {
    if (!IsPreviewDue())
        preview.End();
    else if (preview.Begin(previewCanvas))
        preview.Show(bands);
}

int Document::Channel() {
    if (auto* rgb = dynamic_cast<Cc24BitRGBImage*>(image.get())) return rgb->GetAccess();
    if (auto* hsl = dynamic_cast<Cc24BitHSLImage*>(image.get())) return hsl->GetAccess();
    return -1;
}

void Document::SetChannel(int channel) {
    if (channel == Channel()) return;
    if (auto* rgb = dynamic_cast<Cc24BitRGBImage*>(image.get())) rgb->SetAccess(channel);
    if (auto* hsl = dynamic_cast<Cc24BitHSLImage*>(image.get())) hsl->SetAccess(channel);
    preview.Show(bands);
    Changed(DisplayChanged | ChannelChosen, true);
}

PlainPixels::PlainPixels(Document& newDocument) : document(newDocument), wasOn(newDocument.preview.ChangesPicture()) {
    if (wasOn) document.preview.End();
}

PlainPixels::~PlainPixels() {
    if (!wasOn || !document.preview.Begin(document.preview.Window())) return;
    document.preview.Show(document.bands);
}

void Document::SetModified(bool isNowModified) {
    if (isModified == isNowModified) return;
    isModified = isNowModified;
    if (onChange) onChange(TitleChanged);
}

const unsigned char* Document::Colours() {
    if (const unsigned char* plain = preview.PlainColours()) return plain;
    auto* hsl = dynamic_cast<Cc24BitHSLImage*>(image.get());
    const void* planes = hsl ? hsl->GetBitMapImageDataHSL() : Class().isColour ? image->GetBitMapImageData() : nullptr;
    return static_cast<const unsigned char*>(planes);
}

void Document::PixelsReplaced() {
    if (Class().isWide) {
        const bool wasWhole = shownRange.x == wholeRange.x && shownRange.y == wholeRange.y;
        image->ReScaleImageOnShow();
        TakeWholeRange();
        // The samples' own range has taken the place of a chosen one.
        auto curves = tableCurves;
        for (auto& [place, points] : curves)
            if (wasWhole) Spread(points, shownRange.x, shownRange.y);
        for (const auto& [place, points] : curves) SetTableCurve(place.first, place.second, points);
    } else {
        image->ReScaleImageOnShow();
    }
    preview.Show(bands);
    Changed(PictureChanged, true);
}

void Document::Changed(unsigned change, bool isEdit) {
    hasEdits = hasEdits || isEdit;
    if (isEdit && !isModified) {
        isModified = true;
        change |= TitleChanged;
    }
    if (onChange) onChange(change);
}

}  // namespace kestview
