// Calibration, and measuring in pixels and world units.
#include <cmath>
#include <cstdio>
#include <cstring>

#include "Guide.h"

namespace guide {
namespace {

bool Near(double value, double expected) { return std::fabs(value - expected) <= 1e-3 * std::fabs(expected); }

}  // namespace

void Measuring() {
    CcGrayImage256 image;
    image.MakeBlankBMP(200, 300, 50, "measuring");
    int height, width;
    image.GetHeightWidth(&height, &width);

    // [calibrate]
    CcCalibration calibration;
    tagPoints imagePoints[4] = {{20, 20}, {280, 20}, {280, 180}, {20, 180}};  // clicked: column, row from the bottom
    tagPoints worldPoints[4] = {{0, 0}, {130, 0}, {130, 80}, {0, 80}};        // typed: millimetres
    if (calibration.DoCalibration(imagePoints, worldPoints, 4, width, height) < 0) return;  // three on one line
    calibration.SetUnitsOfMeasure("mm");
    image.SetCalibrationObject(&calibration);  // -1 when it was made for another image size
    // [/calibrate]

    // [world-point]
    tagPoints place = {150, 100}, world;
    image.ConvertImagePointToWorldCoords(&place, &world);  // the point itself without a calibration
    // [/world-point]
    Expect(Near(world.x, 65) && Near(world.y, 40), "an image point has a place in the world");

    CcRoiRect roi;
    RECT record = {10, 59, 109, 10};
    roi.SetRoiImageCord(&record);
    // [measure]
    KestRoiMeasurement measured;
    if (KestMeasureRoi(&image, &roi, &measured) < 0) return;
    std::printf("  %s: %lld pixels, area %.1f %s^2, perimeter %.1f %s, mean %.1f +- %.1f\n", roi.GetName(),
                measured.llPixels, measured.dAreaWorld, measured.szUnits, measured.dLengthWorld, measured.szUnits,
                measured.dMean, measured.dStandardDeviation);
    if (!measured.bCalibrated) std::printf("  lengths and areas are in pixels\n");
    // [/measure]
    Expect(measured.llPixels == 100 * 50, "a rectangle from column 10 to 109 and row 10 to 59 has 100 x 50 pixels");
    Expect(Near(measured.dAreaWorld, 50 * 25) && Near(measured.dLengthWorld, 150), "its world size follows");

    // [distance]
    tagPoints ends[2] = {{20, 20}, {280, 180}};
    double distance = KestLengthWorld(&calibration, ends, 2, 0);
    // [/distance]
    Expect(Near(distance, std::hypot(130, 80)), "a distance in world units");

    // [calibration-file]
    calibration.Save("bench.cal");
    CcCalibration opened;
    if (opened.Open("bench.cal") == 0) image.SetCalibrationObject(&opened);
    // [/calibration-file]
    Expect(image.GetCalibrationObject() == &opened && std::strcmp(opened.GetUnitsOfMeasure(), "mm") == 0,
           "a calibration comes back from its file");
    DeleteFileA("bench.cal");

    // [unlink]
    image.ClearCalibrationObject();  // before the image or the calibration goes
    // [/unlink]
    Expect(opened.GetReferenceCount() == 0 && image.GetCalibrationObject() == nullptr, "unlinking counts it out");
}

}  // namespace guide
