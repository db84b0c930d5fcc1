// The calibration pane: four points picked in the picture, their world positions and the unit.
#include "panes/CalibrationPane.h"

#include <algorithm>
#include <cmath>

#include "platform/Boxes.h"
#include "platform/Busy.h"
#include "platform/Drawing.h"
#include "platform/Text.h"
#include "platform/Window.h"
#include "res/Resource.h"

namespace kestview {
namespace {

constexpr int pointCount = 4;

}  // namespace

void CalibrationPane::OnInit() { SelectPoint(0); }

void CalibrationPane::OnShown() {
    if (isInFront) {
        // Clicks now pick points; a drawing tool would draw instead.
        host.UseSelectTool();
        TakeFromDocument();
    }
    host.RepaintPicture();
}

void CalibrationPane::Refresh(unsigned change) {
    if (isInFront && (change & CalibrationChanged)) TakeFromDocument();
}

void CalibrationPane::TakeFromDocument() {
    const Filling filling(isFilling);
    CcCalibration* calibration = document ? document->Calibration() : nullptr;
    const CalibrationDraft draft = document ? document->calibrationDraft : CalibrationDraft();
    for (int i = 0; i < pointCount; ++i) {
        SetText(IDC_CAL_WORLD_X_1 + i, draft.points[i].worldX);
        SetText(IDC_CAL_WORLD_Y_1 + i, draft.points[i].worldY);
    }
    SetText(IDC_CAL_UNIT, draft.unit);
    isPointChosen = false;
    ShowState();
    SelectMissingPoint(0);
    for (const int id : {IDC_CAL_SAVE, IDC_CAL_REMOVE}) Enable(id, calibration != nullptr);
    for (const int id : {IDC_CAL_APPLY, IDC_CAL_OPEN}) Enable(id, document != nullptr);
    ShowPoints();
}

void CalibrationPane::SelectPoint(int point) {
    CheckRadioButton(window, IDC_CAL_POINT_1, IDC_CAL_POINT_1 + pointCount - 1, IDC_CAL_POINT_1 + point);
}

int CalibrationPane::SelectedPoint() const {
    for (int i = 0; i < pointCount; ++i)
        if (IsChecked(IDC_CAL_POINT_1 + i)) return i;
    return 0;
}

bool CalibrationPane::SelectMissingPoint(int first) {
    for (int i = 0; document && i < pointCount; ++i)
        if (const int point = (first + i) % pointCount; !document->calibrationDraft.points[point].isPicked) {
            SelectPoint(point);
            return true;
        }
    return false;
}

void CalibrationPane::FocusField(int id) {
    SetFocus(Item(id));
    Send(id, EM_SETSEL, 0, -1);
}

void CalibrationPane::ShowPoints() {
    if (!PicksPoints()) {
        // No point is marked when none is waited for; the Tab key finds the first one all the same.
        for (int i = 0; i < pointCount; ++i) Check(IDC_CAL_POINT_1 + i, false);
        const HWND first = Item(IDC_CAL_POINT_1);
        SetWindowLongA(first, GWL_STYLE, GetWindowLongA(first, GWL_STYLE) | WS_TABSTOP);
    }
    for (int i = 0; i < pointCount; ++i) {
        const auto point = document ? document->calibrationDraft.points[i] : CalibrationDraft::Point();
        SetText(IDC_CAL_IMAGE_1 + i,
                point.isPicked ? Format("%.10g, %.10g", std::round(static_cast<double>(point.pixel.x) * 10) / 10,
                                        std::round(static_cast<double>(point.pixel.y) * 10) / 10)
                               : "click");
    }
    host.RepaintPicture();
}

/// Once all are set, clicks select ROIs again, until a point is chosen to be set anew.
bool CalibrationPane::PicksPoints() const {
    if (!document) return false;
    const auto& points = document->calibrationDraft.points;
    return isPointChosen ||
           !std::all_of(std::begin(points), std::end(points), [](const auto& point) { return point.isPicked; });
}

bool CalibrationPane::Pick(POINT pixel) {
    if (!PicksPoints()) return false;
    isPointChosen = false;
    auto& points = document->calibrationDraft.points;
    const int point = SelectedPoint();
    points[point].isPicked = true;
    points[point].pixel = {static_cast<float>(pixel.x), static_cast<float>(pixel.y)};
    // The next point that is missing; else the same stays.
    SelectMissingPoint(point);
    ShowPoints();
    ShowState();
    return true;
}

void CalibrationPane::TakeFields() {
    CalibrationDraft& draft = document->calibrationDraft;
    for (int i = 0; i < pointCount; ++i) {
        draft.points[i].worldX = Text(IDC_CAL_WORLD_X_1 + i);
        draft.points[i].worldY = Text(IDC_CAL_WORLD_Y_1 + i);
    }
    draft.unit = Text(IDC_CAL_UNIT);
    ShowState();
}

void CalibrationPane::ShowState() {
    CcCalibration* calibration = document ? document->Calibration() : nullptr;
    std::string state = "The picture is not calibrated.";
    if (calibration)
        state = document->calibrationPath.empty() ? "Calibrated; not saved in a file yet."
                                                  : "Calibrated by " + FileNameOf(document->calibrationPath) + ".";
    if (calibration && document->IsDraftChanged())
        state += "\nThe points above have changed: press Calibrate to use them.";
    SetText(IDC_CAL_STATE, state);
}

void CalibrationPane::Apply() {
    const auto& points = document->calibrationDraft.points;
    tagPoints image[pointCount], world[pointCount];
    for (int i = 0; i < pointCount; ++i) {
        if (!points[i].isPicked) {
            ShowError(
                Owner(),
                Format("Point %d has no place in the picture yet.\n\nChoose it on the left, then click in the picture.",
                       i + 1));
            return;
        }
        const auto x = Number(IDC_CAL_WORLD_X_1 + i), y = Number(IDC_CAL_WORLD_Y_1 + i);
        if (!x || !y) {
            ShowError(Owner(), Format("Point %d needs two numbers as its world position.", i + 1));
            FocusField((x ? IDC_CAL_WORLD_Y_1 : IDC_CAL_WORLD_X_1) + i);
            return;
        }
        image[i] = points[i].pixel;
        world[i] = {static_cast<float>(*x), static_cast<float>(*y)};
    }
    const std::string unit = Text(IDC_CAL_UNIT);
    if (unit.empty() || CutToBytes(unit, KEST_UNITS_SIZE) != unit) {
        ShowError(Owner(), unit.empty() ? "Type the unit of the world positions, for example mm."
                                        : "This unit is too long. Type a short one, for example mm.");
        FocusField(IDC_CAL_UNIT);
        return;
    }
    const SIZE size = document->Size();
    const Busy busy("Calibrating", 4LL * size.cx * size.cy);
    std::unique_ptr<CcCalibration> calibration(new CcCalibration);
    calibration->SetUnitsOfMeasure(unit.c_str());
    if (calibration->DoCalibration(image, world, pointCount, size.cx, size.cy) < 0) {
        ShowError(Owner(), "These four points do not determine a calibration: no three of them may lie on one line.");
        return;
    }
    calibration->SetName(CutForStreams(document->Name()).c_str());
    const CalibrationDraft typed = document->calibrationDraft;
    if (!document->SetCalibration(std::move(calibration), "")) return;
    document->KeepDraft(typed);
    TakeFromDocument();
}

void CalibrationPane::PaintOver(HDC dc) const {
    if (!document) return;
    const auto& points = document->calibrationDraft.points;
    const int arm = MulDiv(9, DpiOf(window), 96);
    const kest::BackgroundModeGuard background(dc, TRANSPARENT);
    for (int i = 0; i < pointCount; ++i) {
        if (!points[i].isPicked) continue;
        const POINT at = host.PointOf(static_cast<double>(points[i].pixel.x), static_cast<double>(points[i].pixel.y));
        // A dark line under a bright one is seen on any picture.
        for (const bool isBright : {false, true}) {
            const kest::GdiObject pen(
                CreatePen(PS_SOLID, isBright ? 1 : 3, isBright ? RGB(255, 230, 0) : RGB(0, 0, 0)));
            const kest::SelectedObject selected(dc, pen);
            MoveToEx(dc, at.x - arm, at.y, nullptr);
            LineTo(dc, at.x + arm + 1, at.y);
            MoveToEx(dc, at.x, at.y - arm, nullptr);
            LineTo(dc, at.x, at.y + arm + 1);
        }
        const std::string number = Format("%d", i + 1);
        for (const POINT shadow : {POINT{1, 1}, POINT{0, 0}}) {
            SetTextColor(dc, shadow.x ? RGB(0, 0, 0) : RGB(255, 230, 0));
            TextOutA(dc, at.x + 4 + shadow.x, at.y + 3 + shadow.y, number.c_str(), static_cast<int>(number.size()));
        }
    }
}

bool CalibrationPane::OnCommand(int id, int code) {
    if (!document || isFilling) return true;
    if (code == EN_CHANGE) TakeFields();
    switch (id) {
        case IDC_CAL_APPLY: Apply(); break;
        case IDC_CAL_OPEN: host.RunCommand(ID_CALIBRATE_OPEN); break;
        case IDC_CAL_SAVE: host.RunCommand(ID_CALIBRATE_SAVE); break;
        case IDC_CAL_REMOVE: host.RunCommand(ID_CALIBRATE_REMOVE); break;
        case IDC_CAL_POINT_1:
        case IDC_CAL_POINT_2:
        case IDC_CAL_POINT_3:
        case IDC_CAL_POINT_4: isPointChosen = IsChecked(id); break;
        default: break;
    }
    return true;
}

}  // namespace kestview
