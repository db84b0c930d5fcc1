// The calibration pane: four points picked in the picture, their world positions and the unit.
#include "panes/CalibrationPane.h"

#include <algorithm>

#include "MainWindow.h"
#include "Resource.h"
#include "platform/Boxes.h"
#include "platform/Busy.h"
#include "platform/Text.h"

namespace kestview {
namespace {

constexpr const char* fileFilters = "Calibrations (*.cal)|*.cal|All files (*.*)|*.*|";
constexpr int pointCount = 4;

}  // namespace

void CalibrationPane::OnInit() {
    Send(IDC_CAL_UNIT, EM_LIMITTEXT, KEST_UNITS_SIZE);
    SetText(IDC_CAL_UNIT, "mm");
    SelectPoint(0);
}

void CalibrationPane::OnShown(bool isShown) {
    isInFront = isShown;
    if (isShown)
        main.View().onPick = [this](POINT pixel) { return Pick(pixel); };
    else
        main.View().onPick = nullptr;
    if (isShown) {
        // Clicks now pick points; a drawing tool would draw instead.
        main.SetRoiTool(selectTool);
        TakeFromDocument();
    }
    main.View().Refresh(DisplayChanged);
}

void CalibrationPane::Refresh(unsigned change) {
    if (isInFront && (change & CalibrationChanged)) TakeFromDocument();
}

void CalibrationPane::TakeFromDocument() {
    const Filling filling(isFilling);
    CcCalibration* calibration = document ? document->Calibration() : nullptr;
    std::string state = "The picture is not calibrated.";
    if (calibration) {
        for (int i = 0; i < pointCount; ++i) {
            const tagPoints image = calibration->GetImagePoints()[i], world = calibration->GetWorldPoints()[i];
            points[i] = {true, {static_cast<LONG>(image.x), static_cast<LONG>(image.y)}};
            SetNumber(IDC_CAL_WORLD_X_FIRST + i, static_cast<double>(world.x));
            SetNumber(IDC_CAL_WORLD_Y_FIRST + i, static_cast<double>(world.y));
        }
        SetText(IDC_CAL_UNIT, calibration->GetUnitsOfMeasure());
        state = document->calibrationPath.empty() ? "Calibrated; not saved in a file yet."
                                                  : "Calibrated by " + FileNameOf(document->calibrationPath) + ".";
    } else {
        for (Point& point : points)
            point.isPicked = false;
        SelectPoint(0);
    }
    SetText(IDC_CAL_STATE, state);
    for (const int id : {IDC_CAL_SAVE, IDC_CAL_REMOVE})
        Enable(id, calibration != nullptr);
    for (const int id : {IDC_CAL_APPLY, IDC_CAL_OPEN})
        Enable(id, document != nullptr);
    ShowPoints();
}

void CalibrationPane::SelectPoint(int point) {
    CheckRadioButton(window, IDC_CAL_POINT_FIRST, IDC_CAL_POINT_FIRST + pointCount - 1, IDC_CAL_POINT_FIRST + point);
}

int CalibrationPane::SelectedPoint() const {
    for (int i = 0; i < pointCount; ++i)
        if (IsChecked(IDC_CAL_POINT_FIRST + i)) return i;
    return 0;
}

void CalibrationPane::ShowPoints() {
    for (int i = 0; i < pointCount; ++i)
        SetText(IDC_CAL_IMAGE_FIRST + i,
                points[i].isPicked ? Format("%ld, %ld", points[i].pixel.x, points[i].pixel.y) : "click");
    main.View().Refresh(DisplayChanged);
}

bool CalibrationPane::Pick(POINT pixel) {
    const int point = SelectedPoint();
    points[point] = {true, pixel};
    // The next point that is missing; else the same stays.
    for (int i = 1; i < pointCount; ++i)
        if (!points[(point + i) % pointCount].isPicked) {
            SelectPoint((point + i) % pointCount);
            break;
        }
    ShowPoints();
    return true;
}

void CalibrationPane::Apply() {
    tagPoints image[pointCount], world[pointCount];
    for (int i = 0; i < pointCount; ++i) {
        if (!points[i].isPicked) {
            ShowError(
                main,
                Format("Point %d has no place in the picture yet.\n\nChoose it on the left, then click in the picture.",
                       i + 1));
            return;
        }
        const auto x = Number(IDC_CAL_WORLD_X_FIRST + i), y = Number(IDC_CAL_WORLD_Y_FIRST + i);
        if (!x || !y) {
            ShowError(main, Format("Point %d needs two numbers as its world position.", i + 1));
            SetFocus(Item((x ? IDC_CAL_WORLD_Y_FIRST : IDC_CAL_WORLD_X_FIRST) + i));
            return;
        }
        image[i] = {static_cast<float>(points[i].pixel.x), static_cast<float>(points[i].pixel.y)};
        world[i] = {static_cast<float>(*x), static_cast<float>(*y)};
    }
    Busy busy("Calibrating");
    std::unique_ptr<CcCalibration> calibration(new CcCalibration);
    const SIZE size = document->Size();
    calibration->SetUnitsOfMeasure(Text(IDC_CAL_UNIT).c_str());
    if (calibration->DoCalibration(image, world, pointCount, size.cx, size.cy) < 0) {
        ShowError(main, "These four points do not determine a calibration: no three of them may lie on one line.");
        return;
    }
    calibration->SetName(document->Name().substr(0, 49).c_str());
    document->SetCalibration(std::move(calibration), "");
}

void CalibrationPane::OpenFile() {
    if (!document) return;
    const auto path = AskOpenPath(main, "Open Calibration", fileFilters, "cal");
    if (!path) return;
    std::unique_ptr<CcCalibration> calibration(new CcCalibration);
    if (calibration->Open(path->c_str()) < 0) {
        ShowError(main, FileNameOf(*path) + " is not a calibration file, or it is damaged.");
        return;
    }
    int width = 0, height = 0;
    calibration->GetSizeOfImage(&width, &height);
    const SIZE size = document->Size();
    if (!document->SetCalibration(std::move(calibration), *path))
        ShowError(main, Format("This calibration was made for pictures of %d x %d pixels; this one has %ld x %ld.",
                               width, height, size.cx, size.cy));
}

bool CalibrationPane::SaveFile() {
    if (!document || !document->Calibration()) return false;
    const auto path = AskSavePath(main, "Save Calibration", fileFilters, "cal", document->Name() + ".cal");
    if (!path) return false;
    if (document->Calibration()->Save(path->c_str()) < 0) {
        ShowError(main, "The calibration could not be written to\n" + *path);
        return false;
    }
    document->calibrationPath = *path;
    document->Changed(CalibrationChanged, true);
    return true;
}

void CalibrationPane::PaintOver(HDC dc) const {
    if (!isInFront) return;
    const int arm = MulDiv(9, DpiOf(window), 96);
    SetBkMode(dc, TRANSPARENT);
    for (int i = 0; i < pointCount; ++i) {
        if (!points[i].isPicked) continue;
        const POINT at = main.View().PointOf(points[i].pixel.x, points[i].pixel.y);
        // A dark line under a bright one is seen on any picture.
        for (const bool isBright : {false, true}) {
            const HPEN pen = CreatePen(PS_SOLID, isBright ? 1 : 3, isBright ? RGB(255, 230, 0) : RGB(0, 0, 0));
            const HGDIOBJ old = SelectObject(dc, pen);
            MoveToEx(dc, at.x - arm, at.y, nullptr);
            LineTo(dc, at.x + arm + 1, at.y);
            MoveToEx(dc, at.x, at.y - arm, nullptr);
            LineTo(dc, at.x, at.y + arm + 1);
            SelectObject(dc, old);
            DeleteObject(pen);
        }
        const std::string number = Format("%d", i + 1);
        for (const POINT shadow : {POINT{1, 1}, POINT{0, 0}}) {
            SetTextColor(dc, shadow.x ? RGB(0, 0, 0) : RGB(255, 230, 0));
            TextOutA(dc, at.x + 4 + shadow.x, at.y + 3 + shadow.y, number.c_str(), static_cast<int>(number.size()));
        }
    }
}

bool CalibrationPane::OnCommand(int id, int) {
    if (!document || isFilling) return true;
    switch (id) {
        case IDC_CAL_APPLY:
            Apply();
            break;
        case IDC_CAL_OPEN:
            OpenFile();
            break;
        case IDC_CAL_SAVE:
            SaveFile();
            break;
        case IDC_CAL_REMOVE:
            document->RemoveCalibration();
            break;
        default:
            break;
    }
    return true;
}

}  // namespace kestview
