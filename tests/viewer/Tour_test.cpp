// The tour: a person's whole session with KestView on the sample plate, with real mouse and keyboard, and a look into
// every file that it wrote. With the environment variable KEST_TOUR_FOLDER set, pictures of the steps go there.
#include <filesystem>

#include "SamplePlate.h"
#include "platform/Drawing.h"
#include "res/Resource.h"
#include "viewer/Driver.h"

namespace test {
namespace {

constexpr int plateWidth = example::plateWidthPixels, plateHeight = example::plateHeightPixels;

/// A point of the canvas at zoom 1, where the whole plate is shown.
POINT At(double x, double y) { return {std::lround(x), plateHeight - 1 - std::lround(y)}; }
POINT OnPlate(double worldX, double worldY) {
    const tagPoints pixel = example::PlatePixel(worldX, worldY);
    return At(static_cast<double>(pixel.x), static_cast<double>(pixel.y));
}

std::string ReadFile(const std::wstring& path) {
    std::ifstream file(std::filesystem::path(path), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

/// The numbers of a table of comma-separated values, by "row/column".
std::map<std::string, double> ReadTable(const std::wstring& path) {
    std::istringstream lines(ReadFile(path).substr(3));  // behind the byte order mark
    std::map<std::string, double> numbers;
    std::vector<std::string> titles;
    for (std::string text; std::getline(lines, text);) {
        std::istringstream line(text.substr(0, text.find('\r')));
        std::vector<std::string> cells;
        while (std::getline(line, text, ',')) cells.push_back(text);
        if (titles.empty()) titles = cells;
        for (std::size_t i = 1; i < cells.size(); ++i)
            numbers[cells[0] + '/' + titles.at(i)] = std::atof(cells[i].c_str());
    }
    return numbers;
}

class Tour : public testing::Test {
public:
    void SetUp() override {
        wchar_t root[MAX_PATH];
        // A folder and file names that no single code page holds; in the pictures' folder a plain one.
        if (GetEnvironmentVariableW(L"KEST_TOUR_FOLDER", root, MAX_PATH) > 0) {
            folder = std::wstring(root) + L"\\results\\";
        } else {
            GetTempPathW(MAX_PATH, root);
            folder = std::wstring(root) + L"KestView-Prüfung-測定\\";
        }
        std::filesystem::remove_all(folder);
        CreateDirectoryW(folder.c_str(), nullptr);
        plate = std::make_unique<CcGrayImage256>();
        ASSERT_TRUE(example::MakePlate(*plate));
        plate->SaveBMPFile("plate.bmp");
        ASSERT_TRUE(MoveFileExW(L"plate.bmp", (folder + L"Größe.bmp").c_str(), MOVEFILE_COPY_ALLOWED));
    }

    const unsigned char* Pixels() { return static_cast<const unsigned char*>(plate->GetBitMapImageData()); }
    /// The level of a plate pixel, the top row first.
    int Level(long x, long y) { return Pixels()[(plateHeight - 1 - y) * plateWidth + x]; }

    /// Away from controls, whose tooltips would come.
    void Show(const char* name) {
        const char* pictures = std::getenv("KEST_TOUR_FOLDER");
        RECT client;
        if (!pictures || !view || !GetClientRect(view->Main(), &client)) return;
        view->MoveTo(view->Main(), {client.right / 3, client.bottom - 5});
        view->Settle(300);
        view->Screen().SaveBmp(std::string(pictures) + "/" + name + ".bmp");
    }

    void Open() {
        view->Press({VK_CONTROL, 'O'});
        ASSERT_TRUE(view->AnswerFileDialog(L"Open", folder + L"Größe.bmp"));
        ASSERT_TRUE(view->WaitForTitle(L"Größe - KestView")) << "the picture opens";
        Show("01-opened");
    }

    void Zoom() {
        view->Press({VK_CONTROL, '1'});
        RECT client;
        GetClientRect(view->Canvas(), &client);
        ASSERT_EQ(client.right, plateWidth);
        ASSERT_EQ(client.bottom, plateHeight);
        // Four steps in about a pixel that shows the middle of the disc: it stays under the mouse.
        const POINT mouse = OnPlate(20, 20);
        view->Wheel(view->Canvas(), mouse, 4);
        GetClientRect(view->Canvas(), &client);
        EXPECT_EQ(client.right % 5, 0) << "whole pixels only";
        EXPECT_GT(client.right, plateWidth);
        Show("02-zoomed");
        view->Wheel(view->Canvas(), mouse, -4);
        view->Press({VK_CONTROL, '1'});

        // Each display table as the library itself draws it.
        const MemoryPicture expected(plateWidth, plateHeight);
        for (const auto table : std::initializer_list<unsigned short>{100, 101, 103, 104, 102}) {
            view->Press({VK_MENU, 'D'});
            view->Type(std::to_wstring(table % 100));
            RECT all = {0, 0, plateWidth, plateHeight};
            plate->Show(expected, &all, table, 1, 0, 0, 1);
            EXPECT_TRUE(view->ClientOf(view->Canvas()) == expected.Snapshot()) << "table " << table;
        }
    }

    void Tool(int number) { view->Press({VK_CONTROL, VK_SHIFT, static_cast<WORD>('0' + number)}); }

    void Draw() {
        const HWND canvas = view->Canvas();
        Tool(1);
        view->Click(canvas, OnPlate(20, 54));
        Tool(2);
        view->Drag(canvas, {OnPlate(0, 0), OnPlate(100, 0)});
        Tool(3);
        view->Drag(canvas, {OnPlate(5, 35), OnPlate(36, 4)});  // around the disc
        Tool(4);
        view->Drag(canvas, {At(272, 375), At(416, 289)});  // around the ellipse
        Tool(5);
        view->Drag(canvas, {OnPlate(74, 65), OnPlate(96, 65), OnPlate(97, 40), OnPlate(73, 40), OnPlate(74, 64)});
        Tool(6);
        view->Drag(canvas, {OnPlate(40, 36), OnPlate(50, 38), OnPlate(60, 36), OnPlate(70, 38)});
        Tool(7);
        // The rectangle's corners, half a pixel inside: an outline is drawn through the middles of its pixels.
        for (const POINT corner : {OnPlate(40.1, 9.1), OnPlate(69.9, 9.1), OnPlate(69.9, 28.9)})
            view->Click(canvas, corner);
        view->MoveTo(canvas, OnPlate(40.1, 28.9));
        view->Click(canvas, OnPlate(40.1, 28.9));
        view->Press({VK_RETURN});
        Tool(8);
        view->Click(canvas, OnPlate(38, 69));
        view->Click(canvas, OnPlate(54, 72));
        view->Click(canvas, OnPlate(70, 69), true);

        // Around the ring and around the square.
        Tool(3);
        view->Drag(canvas, {OnPlate(5, 68), OnPlate(36, 39)});
        Tool(5);
        view->Drag(canvas, {OnPlate(77, 27), OnPlate(96, 27), OnPlate(96, 9), OnPlate(77, 9), OnPlate(77, 26)});
        view->Press({VK_ESCAPE});
        Show("03-regions");
    }

    void EditAndCutOut() {
        const HWND canvas = view->Canvas();
        // The rectangle around the disc: moved, moved back by undo; its right edge dragged; cut out; undone.
        const POINT middle = OnPlate(20, 20), topLeft = OnPlate(5, 35), bottomRight = OnPlate(36, 4);
        view->Click(canvas, middle);
        view->Drag(canvas, {middle, {middle.x + 25, middle.y + 15}});
        view->Press({VK_CONTROL, 'Z'});
        const POINT handle = {bottomRight.x + 1, (topLeft.y + bottomRight.y + 1) / 2};
        view->Drag(canvas, {handle, {handle.x + 20, handle.y}});
        view->Press({VK_CONTROL, 'R'});
        ASSERT_TRUE(view->WaitForTitle(L"Größe-Rect.1 * - KestView")) << "selected by the mouse";
        view->Press({VK_CONTROL, '1'});
        RECT client;
        GetClientRect(view->Canvas(), &client);
        EXPECT_EQ(client.right, bottomRight.x + 1 + 20 - topLeft.x) << "a region leaves its last column out";
        EXPECT_EQ(client.bottom, bottomRight.y + 1 - topLeft.y);
        Show("04-region");
        view->Press({VK_CONTROL, 'W'});
        view->AnswerBox('N');
        view->Press({VK_CONTROL, 'Z'});

        view->Press({VK_CONTROL, 'D'});
        // The line is in the copy with the ROIs only; the disc inside the rectangle is as it was in both.
        for (const bool hasRois : {false, true}) {
            hasRois ? view->PressToCopy({VK_CONTROL, VK_SHIFT, 'R'}) : view->PressToCopy({VK_CONTROL, 'C'});
            ASSERT_TRUE(OpenFreeClipboard());
            const HDC memory = CreateCompatibleDC(nullptr);
            const HGDIOBJ old = SelectObject(memory, GetClipboardData(CF_BITMAP));
            const Picture copied = PictureOf(memory, plateWidth, plateHeight);
            SelectObject(memory, old);
            CloseClipboard();
            DeleteDC(memory);
            const POINT onLine = OnPlate(50, 0);
            int linePixels = 0;
            for (int y = -2; y <= 2; ++y) linePixels += copied.At(onLine.x, onLine.y + y) == 0x00C800;
            EXPECT_EQ(linePixels, hasRois);
            EXPECT_EQ(copied.At(middle.x, middle.y), Level(middle.x, middle.y) * 0x010101u);
        }
    }

    void Calibrate() {
        view->Press({VK_CONTROL, 'K'});
        for (const example::PlateMark& mark : example::PlateMarks())
            view->Click(view->Canvas(), At(mark.pixelX, mark.pixelY));
        int row = 0;
        for (const example::PlateMark& mark : example::PlateMarks()) {
            view->TypeOver(std::to_wstring(static_cast<int>(mark.worldX)), IDC_CAL_WORLD_X_1 + row);
            view->Press({VK_TAB});
            view->TypeOver(std::to_wstring(static_cast<int>(mark.worldY)));
            ++row;
        }
        view->ClickControl(IDC_CAL_APPLY);
        EXPECT_EQ(TextOfWindow(view->Control(IDC_CAL_STATE)), L"Calibrated; not saved in a file yet.");
        Show("05-calibrated");
        view->ClickControl(IDC_CAL_SAVE);
        ASSERT_TRUE(view->AnswerFileDialog(L"Save Calibration", folder + L"plate.cal"));
        view->ClickControl(IDC_CAL_REMOVE);
        EXPECT_EQ(TextOfWindow(view->Control(IDC_CAL_STATE)), L"The picture is not calibrated.");
        view->ClickControl(IDC_CAL_OPEN);
        ASSERT_TRUE(view->AnswerFileDialog(L"Open Calibration", folder + L"plate.cal"));
        EXPECT_EQ(TextOfWindow(view->Control(IDC_CAL_STATE)), L"Calibrated by plate.cal.");
    }

    void Threshold() {
        view->Press({VK_CONTROL, 'T'});
        view->ClickControl(IDC_BAND_ADD);
        // By the slider first, then exactly.
        const HWND low = view->Control(IDC_BAND_LOW);
        RECT slider;
        GetClientRect(low, &slider);
        view->Drag(low, {{slider.right / 2, slider.bottom / 3}, {slider.right * 3 / 4, slider.bottom / 3}});
        const auto slid = [&] { return std::wcstod(TextOfWindow(view->Control(IDC_BAND_LOW_TEXT)).c_str(), nullptr); };
        Driver::WaitFor([&] { return std::abs(slid() - 190) <= 15; });
        EXPECT_NEAR(slid(), 190, 15) << "the slider follows the mouse";
        view->TypeOver(std::to_wstring(example::plateThreshold), IDC_BAND_LOW_TEXT);
        Show("06-threshold");
        const Picture shown = view->ClientOf(view->Canvas());
        const POINT square = OnPlate(86, 18), ground = OnPlate(50, 2);
        EXPECT_EQ(shown.At(square.x, square.y), 0x286EE6u) << "in the band";
        EXPECT_NE(shown.At(ground.x, ground.y), 0x286EE6u);
        const auto count = std::count_if(Pixels(), Pixels() + plateWidth * plateHeight,
                                         [](int level) { return level >= example::plateThreshold; });
        const std::wstring start = L"In the bands: " + std::to_wstring(count) + L" pixels,";
        EXPECT_TRUE(Driver::WaitFor([&] { return TextOfWindow(view->Control(IDC_BAND_COUNT)).starts_with(start); }));
    }

    void Mask() {
        view->Press({VK_CONTROL, 'B'});
        ASSERT_TRUE(view->WaitForTitle(L"Größe-mask * - KestView"));
        Show("08-mask");
        view->Press({VK_MENU, 'F'});
        view->Press({'P'});
        ASSERT_TRUE(view->AnswerFileDialog(L"Save Picture", folder + L"mask.bmp"));
        const std::string file = ReadFile(folder + L"mask.bmp");
        constexpr std::size_t header = 14 + 40 + 1024, count = static_cast<std::size_t>(plateWidth) * plateHeight;
        ASSERT_EQ(file.size(), header + count);
        std::size_t different = 0;
        for (std::size_t i = 0; i < count; ++i)
            different += file[header + i] != (Pixels()[i] >= example::plateThreshold);
        EXPECT_EQ(different, 0u);
        view->Press({VK_CONTROL, VK_SHIFT, VK_TAB});
        ASSERT_EQ(view->Title(), L"Größe * - KestView");
    }

    void ExportTable(const wchar_t* name) {
        view->Press({VK_CONTROL, 'E'});
        ASSERT_TRUE(view->AnswerFileDialog(L"Export Results", folder + name));
    }

    void Measure() {
        ExportTable(L"before.csv");
        Show("07-measured");
        auto table = ReadTable(folder + L"before.csv");
        const char *area = "Area (square mm)", *inBands = "In bands (square mm)", *length = "Length (mm)";
        struct Known {
            const char *what, *row, *column;
            double size, tolerance;
        };
        const auto known = [](std::size_t index) { return example::PlateObjects()[index].Area(); };
        for (const Known& object : {Known{"disc", "Rect.1", inBands, known(0), 0.01},
                                    {"ellipse", "Ellipse.1", inBands, known(3), 0.01},
                                    {"triangle", "Freehand.1", inBands, known(4), 0.01},
                                    {"rectangle by its corners", "PolyFree.1", area, known(1), 0.01},
                                    {"ring", "Rect.2", inBands, known(2), 0.01},
                                    {"square", "Freehand.2", inBands, known(5), 0.01},
                                    {"line", "Line.1", length, 100, 0.005},
                                    {"two lines", "PolyLine.1", length, 2 * std::hypot(16, 3), 0.015}})
            EXPECT_NEAR(table[std::string(object.row) + '/' + object.column] / object.size, 1, object.tolerance)
                << object.what;
        // The rectangle's pixels, summed up here. Released where it was drawn last, a rectangle reaches one pixel
        // further.
        const POINT from = OnPlate(5, 35), to = OnPlate(36, 4);
        double sum = 0;
        for (long y = from.y; y <= to.y + 1; ++y)
            for (long x = from.x; x <= to.x + 1; ++x) sum += Level(x, y);
        const long count = (to.x - from.x + 2) * (to.y - from.y + 2);
        EXPECT_EQ(table["Rect.1/Pixels"], count);
        EXPECT_NEAR(table["Rect.1/Mean"], sum / static_cast<double>(count), 1e-5);
    }

    void EditDisplayTable() {
        view->Press({VK_CONTROL, 'U'});
        const HWND graph = view->Graph();
        ASSERT_TRUE(graph);
        const POINT square = OnPlate(86, 18);
        const unsigned before = view->ClientOf(view->Canvas()).At(square.x, square.y);
        // The curve's marked points are found as the squares that the graph draws; the fourth of five is at level 191.
        const Picture picture = view->ClientOf(graph);
        std::vector<POINT> marked;
        for (int i = 0; i < picture.width * picture.height; ++i)
            if (picture.pixels[static_cast<std::size_t>(i)] == 0x3C3C3C)
                marked.push_back({i % picture.width, i / picture.width});
        ASSERT_FALSE(marked.empty()) << "the curve is drawn";
        const POINT top = marked.front(), bottom = marked.back();
        const auto along = [&](double part) {
            return POINT{bottom.x + std::lround((top.x - bottom.x) * part),
                         bottom.y + std::lround((top.y - bottom.y) * part)};
        };
        POINT target = along(0.75);
        target.y = bottom.y - 10;
        view->Drag(graph, {along(0.75), target});
        const unsigned after = view->ClientOf(view->Canvas()).At(square.x, square.y);
        EXPECT_LT((after & 255) + 40, before & 255) << "bright pixels have become dark";
        Show("09-display-table");
        view->ClickControl(IDC_TABLE_RESET);
        EXPECT_EQ(view->ClientOf(view->Canvas()).At(square.x, square.y), before);
        view->Press({VK_CONTROL, 'H'});
        Show("10-histogram");
    }

    void UseGraphDialogsAndTools() {
        view->Press({VK_MENU, 'D'});
        view->Type(L"gt");
        const HWND titles = view->WaitForDialog(L"Graph Titles");
        ASSERT_TRUE(titles) << "the graph's own dialog";
        view->TypeOver(L"Levels of the plate");
        Show("11-graph-dialog");
        view->Press({VK_RETURN});
        view->Press({VK_MENU, 'D'});
        view->Type(L"gs");
        ASSERT_TRUE(view->AnswerFileDialog(L"Save Graph Appearance", folder + L"tour.gra"));
        const std::string appearance = ReadFile(folder + L"tour.gra");
        EXPECT_NE(appearance.find("Levels of the plate"), std::string::npos);

        view->Press({VK_F1});
        ASSERT_TRUE(view->WaitForDialog(L"Keys and Mouse"));
        Show("12-keys");
        view->Press({VK_ESCAPE});
        view->Press({VK_CONTROL, 'D'});
        view->Press({VK_MENU, 'T'});
        view->Press({VK_RETURN});
        HWND tool = nullptr;
        EXPECT_TRUE(Driver::WaitFor([&] { return (tool = FindWindowA(nullptr, "Histogram")) != nullptr; }))
            << "the sample tool";
        Show("12-tool");
        PostMessageA(tool, WM_CLOSE, 0, 0);
    }

    void SaveAndReopen() {
        view->Press({VK_CONTROL, 'D'});
        const Picture before = view->ClientOf(view->Canvas());
        view->Press({VK_CONTROL, 'S'});
        ASSERT_TRUE(view->AnswerFileDialog(L"Save Session", folder + L"tour.kvs"));
        ASSERT_TRUE(view->WaitForTitle(L"Größe - KestView")) << "saved: no star any more";
        view->Press({VK_CONTROL, 'W'});
        view->Press({VK_CONTROL, 'O'});
        ASSERT_TRUE(view->AnswerFileDialog(L"Open", folder + L"tour.kvs"));
        ASSERT_TRUE(view->WaitForTitle(L"Größe - KestView"));
        ExportTable(L"after.csv");
        EXPECT_EQ(ReadFile(folder + L"after.csv"), ReadFile(folder + L"before.csv"));
        EXPECT_TRUE(view->ClientOf(view->Canvas()) == before) << "picture, ROIs and zoom are as they were";
        Show("13-reopened");
    }

    std::unique_ptr<CcGrayImage256> plate;
    std::unique_ptr<Driver> view;
    std::wstring folder;
};

TEST_F(Tour, FromThePictureToTheTableAndBack) {
    view = std::make_unique<Driver>();
    ASSERT_TRUE(view->Main()) << "the program starts";
    for (void (Tour::*step)() :
         {&Tour::Open, &Tour::Zoom, &Tour::Draw, &Tour::EditAndCutOut, &Tour::Calibrate, &Tour::Threshold,
          &Tour::Measure, &Tour::Mask, &Tour::EditDisplayTable, &Tour::UseGraphDialogsAndTools, &Tour::SaveAndReopen}) {
        (this->*step)();
        if (HasFailure()) Show("failed");
        if (HasFatalFailure()) return;
    }
}

}  // namespace
}  // namespace test
