// The calibration: defaults, precision, a camera over a tilted plane, ".cal" files, and its link to images.
#include "support/ClassTests.h"

using namespace test;

namespace {

/// Four points that map 100 pixels to 1 unit from world origin (x, y) on.
int CalibrateHundredth(CcCalibration& calibration, int width, int height, float x = 0, float y = 0) {
    tagPoints image[] = {{0, 0}, {100, 0}, {100, 100}, {0, 100}};
    tagPoints world[] = {{x, y}, {x + 1, y}, {x + 1, y + 1}, {x, y + 1}};
    return calibration.DoCalibration(image, world, 4, width, height);
}

Bytes Header(int type, int version, const Bytes& name, const Bytes& units, int width, int height) {
    Bytes file;
    file.I32(type).I32(version).Add(name).Add(units);
    for (int i = 1; i <= 8; ++i) file.F32(static_cast<float>(i));
    return file.F32(1).I32(width).I32(height);
}

Bytes ShortHeader(int version, int width, int height) {
    return Header(6, version, Bytes().Text("Bench", 260), Bytes().Text("mm", 80), width, height);
}

Bytes Floats(int count, float step) {
    Bytes floats;
    for (int i = 0; i < count; ++i) floats.F32(step * static_cast<float>(i));
    return floats;
}

const Bytes points = Floats(16, 10), fourAreas = Floats(4, 0.5F);

int Open(CcCalibration& calibration, const Bytes& content) {
    const TemporaryFile file("calibration.cal", content);
    return calibration.Open(file.Path());
}

/// A pinhole camera over a plane, tilted by 25 degrees and turned; all in double precision.
struct Camera {
    static constexpr double distance = 30, focal = 1700, tilt = 25 * 3.14159265358979 / 180, turn = 0.2;
    static constexpr int width = 640, height = 480;

    /// Where the ray through the image point (pixels) meets the plane (inches).
    static tagPoints WorldAt(double x, double y) {
        const double u = (x - width / 2.0) / focal, v = (y - height / 2.0) / focal;
        const double t = distance / (std::cos(tilt) - v * std::sin(tilt));
        const double planeX = u * t, planeY = t * (std::sin(tilt) + v * std::cos(tilt)) - distance * std::tan(tilt);
        return {static_cast<float>(planeX * std::cos(turn) - planeY * std::sin(turn)),
                static_cast<float>(planeX * std::sin(turn) + planeY * std::cos(turn))};
    }
};

}  // namespace

TEST(CcCalibration, StartsAsTheIdentity) {
    const int before = CcCalibration::iCalibrationCount;
    CcCalibration calibration;
    EXPECT_EQ(calibration.GetName(), "Calibration" + std::to_string(before + 1));
    EXPECT_STREQ(calibration.GetUnitsOfMeasure(), "Inches");
    EXPECT_EQ(calibration.GetAreaOfPixel(-3, 1 << 20), 1.0F);
    tagPoints point = {3.5F, -2};
    EXPECT_EQ(calibration.ConvertPoint(&point, &point), 0);
    EXPECT_EQ(point.x, 3.5F);
    EXPECT_EQ(point.y, -2.0F);
    EXPECT_EQ(calibration.ReverseConvertPoint(1, 1, &point.x, &point.y), 0);
    EXPECT_FALSE(std::isfinite(point.x) || std::isfinite(point.y));
    const std::string longest(80, 'u');
    EXPECT_EQ(calibration.SetUnitsOfMeasure(longest.c_str()), 0);
    ExpectAll(-1, {calibration.SetUnitsOfMeasure((longest + "u").c_str()), calibration.SetUnitsOfMeasure(nullptr)});
    EXPECT_EQ(calibration.GetUnitsOfMeasure(), longest);
    EXPECT_EQ(calibration.GetLatestVersionNumber() + calibration.GetLoadedVersionNumber(), 4);
    CcMemObjectStorage stream;
    EXPECT_EQ(stream.PutObject(&calibration), -1);
}

TEST(CcCalibration, FitsASquareAndKeepsOrDropsItsMap) {
    CcCalibration calibration;
    ASSERT_EQ(CalibrateHundredth(calibration, 40, 30, 5, 6), 0);
    const float* h = calibration.GetTransform();
    const float fitted[] = {0.01F, 0, 5, 0, 0.01F, 6, 0, 0, 1};
    for (int i = 0; i < 9; ++i) EXPECT_NEAR(h[i], fitted[i], 1e-6F) << i;
    const float* map = calibration.GetAreaMap();
    for (int i = 0; i < 40 * 30; ++i) ASSERT_NEAR(map[i], 0.0001F, 1e-8F) << i;
    EXPECT_EQ(calibration.GetAreaOfPixel(39, 29), map[40 * 30 - 1]);
    for (const auto& [x, y] : {std::pair{40, 0}, {0, 30}, {-1, 5}, {5, -1}})
        EXPECT_EQ(calibration.GetAreaOfPixel(x, y), -1.0F);
    // The other way round, with its own points.
    ASSERT_EQ(calibration.DoCalibration(calibration.GetWorldPoints(), calibration.GetImagePoints(), 4, 40, 30), 0);
    EXPECT_NEAR(h[0], 100.0F, 0.01F);
    EXPECT_EQ(calibration.GetAreaMap(), map);

    tagPoints line[] = {{0, 0}, {1, 1}, {2, 2}, {0, 5}};
    EXPECT_EQ(calibration.DoCalibration(line, line, 3, 40, 30), -1);
    EXPECT_EQ(calibration.DoCalibration(line, line, 5, 40, 30), -1);
    EXPECT_EQ(calibration.DoCalibration(nullptr, line, 4, 40, 30), -1);
    EXPECT_EQ(calibration.DoCalibration(line, line, 4, 40, 30), -1);
    EXPECT_NEAR(h[0], 100.0F, 0.01F);
    EXPECT_EQ(calibration.GetImagePoints()[3].y, 5);
    for (const auto& [width, height] : {std::pair{0, 30}, {-40, -30}, {1 << 30, 1 << 30}, {65536, 65536}}) {
        EXPECT_EQ(CalibrateHundredth(calibration, width, height), -1);
        int mapWidth, mapHeight;
        calibration.GetSizeOfImage(&mapWidth, &mapHeight);
        EXPECT_EQ(mapWidth, -1);
        EXPECT_EQ(mapHeight, -1);
        EXPECT_EQ(calibration.GetAreaOfPixel(0, 0), 1.0F);
    }
}

TEST(CcCalibration, MeasuresOnATiltedPlane) {
    tagPoints image[] = {{147, 174}, {456, 116}, {487, 303}, {195, 356}}, world[4];
    for (int i = 0; i < 4; ++i) world[i] = Camera::WorldAt(image[i].x, image[i].y);
    CcCalibration calibration;
    ASSERT_EQ(calibration.DoCalibration(image, world, 4, Camera::width, Camera::height), 0);
    const tagPoints ends[] = {{31, 402}, {600, 77}}, from = Camera::WorldAt(31, 402), to = Camera::WorldAt(600, 77);
    EXPECT_NEAR(KestLengthWorld(&calibration, ends, 2, 0) / std::hypot(to.x - from.x, to.y - from.y), 1.0, 1e-4);
    tagPoints back;
    ASSERT_EQ(calibration.ReverseConvertPoint(to.x, to.y, &back.x, &back.y), 0);
    EXPECT_NEAR(back.x, 600, 0.05);
    EXPECT_NEAR(back.y, 77, 0.05);

    // A rectangle of pixels is a quadrilateral of the plane.
    CcGrayImage256 picture;
    picture.MakeBlankBMP(Camera::height, Camera::width, 0, "plane");
    ASSERT_EQ(picture.SetCalibrationObject(&calibration), 0);
    KestRoiMeasurement measured;
    ASSERT_EQ(KestMeasureRoi(&picture, Boxed<CcRoiRect>({190, 359, 449, 120}).get(), &measured), 0);
    const tagPoints corners[] = {Camera::WorldAt(189.5, 119.5), Camera::WorldAt(449.5, 119.5),
                                 Camera::WorldAt(449.5, 359.5), Camera::WorldAt(189.5, 359.5)};
    double twice = 0;
    for (int i = 0; i < 4; ++i) {
        const tagPoints &a = corners[i], &b = corners[(i + 1) % 4];
        twice += static_cast<double>(a.x) * b.y - static_cast<double>(b.x) * a.y;
    }
    EXPECT_EQ(measured.dAreaPixels, 260 * 240);
    EXPECT_NEAR(measured.dAreaWorld / (twice / 2), 1.0, 0.001);
}

TEST(CcCalibration, FilesAreTheBytesWrittenByHand) {
    const Bytes file = ShortHeader(2, 2, 2).Add(points).Add(fourAreas);
    CcCalibration calibration;
    ASSERT_EQ(Open(calibration, file), 0);
    EXPECT_STREQ(calibration.GetUnitsOfMeasure(), "mm");
    EXPECT_EQ(calibration.GetTransform()[5], 6.0F);
    EXPECT_EQ(calibration.GetAreaOfPixel(0, 1), 1.0F);
    EXPECT_EQ(calibration.GetWorldPoints()[0].x, 80.0F);
    const TemporaryFile saved("saved.cal", Bytes().Fill(9000, 7));
    ASSERT_EQ(calibration.Save(saved.Path()), 0);
    EXPECT_EQ(saved.Content(), file);

    // Version 1 has no points; they stay. Whatever stands behind its map does not matter.
    ASSERT_EQ(Open(calibration, ShortHeader(1, 1, 4).Add(fourAreas).Fill(100, 1)), 0);
    EXPECT_EQ(calibration.GetLoadedVersionNumber(), 1);
    EXPECT_EQ(calibration.GetAreaOfPixel(0, 3), 1.5F);
    ASSERT_EQ(Open(calibration, ShortHeader(1, 0, 5)), 0);
    EXPECT_EQ(calibration.GetAreaMap(), nullptr);
    ASSERT_EQ(calibration.Save(saved.Path()), 0);
    EXPECT_EQ(saved.Content(), ShortHeader(2, -1, -1).Add(points));

    // Fields without a terminator: the name is refused, the units end at 80.
    const Bytes units = Bytes().Fill(80, 'u');
    ASSERT_EQ(Open(calibration, Header(6, 2, Bytes().Fill(260, 'n'), units, -1, -1).Add(points)), 0);
    EXPECT_EQ(calibration.GetLoadedVersionNumber(), 2);
    ASSERT_EQ(calibration.Save(saved.Path()), 0);
    EXPECT_EQ(saved.Content(), Header(6, 2, Bytes().Text("Bench", 260), units, -1, -1).Add(points));
}

TEST(CcCalibration, HostileFilesChangeNothing) {
    CcCalibration calibration;
    ASSERT_EQ(Open(calibration, ShortHeader(1, 2, 2).Add(fourAreas)), 0);
    const auto header = [](int type, int version, int width, int height) {
        return Header(type, version, Bytes().Text("X", 260), Bytes().Text("X", 80), width, height);
    };
    Bytes shortest = header(6, 1, -1, -1);
    shortest.pop_back();
    for (const Bytes& hostile :
         {Bytes(), shortest, header(5, 2, -1, -1).Add(points), header(6, 0, -1, -1).Add(points),
          header(6, 3, -1, -1).Add(points), header(6, 2, -1, -1).Fill(63, 0), header(6, 2, 2, 1).Add(points).Fill(7, 0),
          header(6, 1, 1, 5).Add(fourAreas), header(6, 1, 0x7FFFFFFF, 0x7FFFFFFF).Add(fourAreas),
          header(6, 1, 0x40000000, 4).Add(fourAreas), header(6, 1, 65536, 65536)}) {
        EXPECT_EQ(Open(calibration, hostile), -1) << hostile.size();
        EXPECT_STREQ(calibration.GetName(), "Bench") << hostile.size();
        EXPECT_EQ(calibration.GetAreaOfPixel(1, 0), 0.5F) << hostile.size();
    }
    ExpectAll(-1, {calibration.Open("no such file.cal"), calibration.Save("no such folder/x.cal")});
    EXPECT_TRUE(TakeBoxes().empty());
    EXPECT_EQ(calibration.Save(fullDisk), 0);
    EXPECT_EQ(TakeBoxes(), (Boxes{{"File I/O Error", "Problem writing calibration to file"}}));

    // Numbers of every kind are kept as they are.
    constexpr float wild[] = {NAN, INFINITY, 1e38F, -1e38F};
    Bytes numbers = header(6, 2, 2, 2).Add(points).Add(fourAreas);
    for (int i = 348; i < 384; i += 4) std::memcpy(&numbers[i], &wild[i / 4 % 4], 4);
    for (int i = 392; i < 472; i += 4) std::memcpy(&numbers[i], &wild[i / 4 % 4], 4);
    const TemporaryFile shared("shared.cal", numbers);
    std::fstream other(shared.Path(), std::ios::in | std::ios::out | std::ios::binary);
    CcCalibration copied;
    EXPECT_EQ(copied.Open(shared.Path()) + copied.Save(shared.Path()), 0);
    other.close();
    EXPECT_EQ(shared.Content(), numbers);
}

#if defined(_WIN32)
TEST(CcCalibration, AsksForPaths) {
    CcCalibration calibration;
    calibration.SetName("Bench");
    EXPECT_EQ(calibration.Save(nullptr), -1);
    calibration.SetName("");
    ExpectAll(-1, {calibration.Save(nullptr), calibration.Open(nullptr)});
    const auto shown = TakeFileDialogs();
    ASSERT_EQ(shown.size(), 3U);
    EXPECT_EQ(shown[0].name, "Bench.cal");
    EXPECT_EQ(shown[1].name, "*.cal");
    EXPECT_EQ(shown[2].filters, (std::vector<std::string>{"Calibration Files(*.CAL)", "All Files (*.*)"}));
}
#endif

TEST(CcCalibration, IsLinkedToImagesOfItsSize) {
    CcGrayImage256 image;
    image.MakeBlankBMP(480, 640, 0, "image");
    CcCalibration fits, fitsToo, tooSmall;
    CalibrateHundredth(fits, 640, 480);
    CalibrateHundredth(fitsToo, 640, 480);
    CalibrateHundredth(tooSmall, 640, 479);
    tagPoints point = {50, 200}, world = {};
    EXPECT_EQ(image.ConvertImagePointToWorldCoords(&point, &world), 0);
    EXPECT_EQ(world.y, 200.0F);
    EXPECT_EQ(image.SetCalibrationObject(&fits), 0);
    fitsToo.SetType(5);
    for (CcCalibration* refused : {&tooSmall, &fitsToo, static_cast<CcCalibration*>(nullptr)})
        EXPECT_EQ(image.SetCalibrationObject(refused), -1);
    EXPECT_EQ(image.GetCalibrationObject(), &fits);
    EXPECT_EQ(image.ConvertImagePointToWorldCoords(&point, &world), 0);
    EXPECT_NEAR(world.y, 2.0F, 1e-5F);
    EXPECT_EQ(image.ConvertImagePointToWorldCoords(&point, nullptr), -1);
    fitsToo.SetType(6);
    EXPECT_EQ(image.SetCalibrationObject(&fitsToo), 0);
    EXPECT_EQ(fits.GetReferenceCount(), 0);
    EXPECT_EQ(fitsToo.GetReferenceCount(), 1);
    EXPECT_EQ(image.ClearCalibrationObject() + image.ClearCalibrationObject(), 0);
    EXPECT_EQ(fitsToo.GetReferenceCount(), 0);
    EXPECT_EQ(image.GetCalibrationObject(), nullptr);
}
