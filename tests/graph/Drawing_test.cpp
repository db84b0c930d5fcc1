// Drawing a graph: its pixels against a picture drawn line by line, its texts as an enhanced metafile records them,
// what it leaves of the device context, and settings and data that nothing can be drawn from.
#include "graph/GraphScene.h"
#include "graph/kernel/GraphLayout.h"

using namespace test;

namespace {

constexpr COLORREF black = 0, white = RGB(255, 255, 255), red = RGB(255, 0, 0), blue = RGB(0, 0, 255);

std::string Text(const std::string& text, UINT align, int x, int y, LONG fontHeight = -12) {
    std::ostringstream line;
    line << '"' << text << "\" align " << align << " at " << x << ',' << y << " font " << fontHeight;
    return line.str();
}

struct Recording {
    std::vector<std::string> texts;
    UINT align = 0;
    LONG fontHeight = 0;

    static int CALLBACK Visit(HDC, HANDLETABLE*, const ENHMETARECORD* record, int, LPARAM parameter) {
        auto& self = *reinterpret_cast<Recording*>(parameter);
        if (record->iType == EMR_SETTEXTALIGN) self.align = record->dParm[0];
        if (record->iType == EMR_EXTCREATEFONTINDIRECTW)
            self.fontHeight = reinterpret_cast<const EMREXTCREATEFONTINDIRECTW*>(record)->elfw.elfLogFont.lfHeight;
        if (record->iType != EMR_EXTTEXTOUTW) return 1;
        const EMRTEXT& text = reinterpret_cast<const EMREXTTEXTOUTW*>(record)->emrtext;
        const auto* first = reinterpret_cast<const WCHAR*>(reinterpret_cast<const char*>(record) + text.offString);
        self.texts.push_back(Text(std::string(first, first + text.nChars), self.align, text.ptlReference.x,
                                  text.ptlReference.y, self.fontHeight));
        return 1;
    }
};

/// The texts of a drawing, as an enhanced metafile of it lists them.
std::vector<std::string> TextsOf(GraphScene& scene) {
    const HDC dc = CreateEnhMetaFileA(nullptr, nullptr, nullptr, nullptr);
    SelectObject(dc, scene.font);
    EXPECT_EQ(scene.graph.ShowGraph(scene.window, dc, 0), 0);
    const HENHMETAFILE file = CloseEnhMetaFile(dc);
    Recording recording;
    EnumEnhMetaFile(nullptr, file, Recording::Visit, &recording, nullptr);
    DeleteEnhMetaFile(file);
    return recording.texts;
}

/// Draws in device units, without any mapping. Positions are data.
struct Plain {
    GraphScene& scene;
    kest::GdiObject<HPEN> dotted{CreatePen(PS_DOT, 1, black)};
    MemoryPicture paper{scene.paperWidth, scene.paperHeight, white};

    explicit Plain(GraphScene& of) : scene(of) { SetBkMode(paper, TRANSPARENT); }
    void Stroke(HGDIOBJ pen, POINT from, POINT to) {
        SelectObject(paper, pen);
        MoveToEx(paper, scene.X(from.x), scene.Y(from.y), nullptr);
        LineTo(paper, scene.X(to.x), scene.Y(to.y));
    }
    void Line(POINT from, POINT to) { Stroke(GetStockObject(DC_PEN), from, to); }
    void Dots(POINT from, POINT to) { Stroke(dotted, from, to); }
    /// Point for point: the line to it, then the square over the line's end.
    void Curve(COLORREF colour, const std::vector<POINT>& points, bool hasLines, int halfSquare) {
        SetDCPenColor(paper, colour);
        for (std::size_t i = 0; i < points.size(); ++i) {
            if (hasLines && i > 0) Line(points[i - 1], points[i]);
            SelectObject(paper, GetStockObject(DC_PEN));
            const int x = scene.X(points[i].x), y = scene.Y(points[i].y);
            if (halfSquare) Rectangle(paper, x - halfSquare, y - halfSquare, x + halfSquare, y + halfSquare);
        }
    }
    void Frame() { Curve(black, {{0, 0}, {0, 400}, {500, 400}, {500, 0}, {0, 0}}, true, 0); }
    int Differences() const { return scene.Snapshot().DifferentFrom(paper.Snapshot()); }
};

/// Pixels outside a rectangle whose colour lies in a range.
int CountOutside(const Picture& picture, const RECT& inside, unsigned lowest, unsigned highest) {
    int count = 0;
    for (int y = 0; y < picture.height; ++y)
        for (int x = 0; x < picture.width; ++x) {
            const unsigned colour = picture.At(x, y);
            count += lowest <= colour && colour <= highest && !PtInRect(&inside, {x, y});
        }
    return count;
}

/// The settings of a device context that a drawing has to put back, its origins aside.
std::vector<INT_PTR> StateOf(HDC dc) {
    SetViewportOrgEx(dc, 0, 0, nullptr);
    SetWindowOrgEx(dc, 0, 0, nullptr);
    RECT clip;
    GetClipBox(dc, &clip);
    std::vector<INT_PTR> state = {GetMapMode(dc), GetBkMode(dc), static_cast<INT_PTR>(GetTextAlign(dc)), clip.right,
                                  clip.bottom};
    for (const UINT type : {OBJ_PEN, OBJ_BRUSH, OBJ_FONT})
        state.push_back(reinterpret_cast<INT_PTR>(GetCurrentObject(dc, type)));
    return state;
}

}  // namespace

TEST(GraphDrawing, GridLinesAndCurves) {
    GraphScene scene;
    Curve lines({{0, 0}, {100, 300}, {250, 900}, {400, 50}}, PS_SOLID, red, 1);
    Curve dots({{50, 50}, {499, 200}}, KEST_CURVE_SQUARES, blue, 1);
    scene.curves.InsertTail(&lines);
    scene.curves.InsertTail(nullptr);
    scene.curves.InsertTail(&dots);
    SetTextColor(scene.paper, white);
    scene.graph.SetGridMarkings(3, 3, 1, 3, 1, 1, 1, 0);
    scene.Draw();

    Plain expected(scene);
    expected.Frame();
    for (int y = 0; y <= 400; y += 200) {
        expected.Line({0, y}, {500, y});
        for (int minor = y + 50; minor < y + 200 && minor < 400; minor += 50) {
            expected.Dots({-2, minor}, {2, minor});
            expected.Dots({498, minor}, {500, minor});
        }
    }
    for (int x = 0; x <= 500; x += 250) {
        expected.Line({x, 0}, {x, 400});
        if (x < 500) expected.Dots({x + 125, 0}, {x + 125, 400});
    }
    const std::vector<POINT> linePlaces = {{0, 0}, {100, 300}, {250, 900}, {400, 50}};
    const std::vector<POINT> dotPlaces = {{50, 50}, {499, 200}};
    IntersectClipRect(expected.paper, scene.left, scene.top, scene.left + 500, scene.top + 400);
    expected.Curve(red, linePlaces, true, 0);
    expected.Curve(blue, dotPlaces, false, 2);
    EXPECT_EQ(expected.Differences(), 0);

    // The selected curve has squares, too; more points and one more curve are drawn in the pen that is there.
    scene.curves.SelectObjectAtIndex(0);
    scene.Draw();
    SelectObject(scene.paper, GetStockObject(DC_PEN));
    SetDCPenColor(scene.paper, blue);
    SetBkMode(scene.paper, OPAQUE);
    int indices[] = {1, -1, 3, 4, INT_MAX};
    tagPoints more[] = {{500, 0}, {300, 100}, {-500, 100}};
    EXPECT_EQ(scene.graph.ShowCurveOnGraph(scene.window, scene.paper, more, 3, 0), 0);
    EXPECT_EQ(scene.graph.ShowListOfSelPoints(scene.window, scene.paper, indices, 5, 0), 0);
    expected.Curve(red, linePlaces, true, 2);
    expected.Curve(blue, dotPlaces, false, 2);
    expected.Curve(blue, {{500, 0}, {300, 100}, {-500, 100}}, true, 0);
    expected.Curve(blue, {{100, 300}, {400, 50}}, false, 5);
    EXPECT_EQ(expected.Differences(), 0);

    // The gaps of broken lines show what lies behind them.
    const kest::SelectedObject pen(scene.paper, expected.dotted);
    EXPECT_EQ(scene.graph.ShowCurveOnGraph(scene.window, scene.paper, more, 2, 0), 0);
    EXPECT_EQ(GetBkMode(scene.paper), OPAQUE);
    expected.Dots({500, 0}, {300, 100});
    EXPECT_EQ(expected.Differences(), 0);
}

TEST(GraphDrawing, MarksAndAnOriginInside) {
    GraphScene scene;
    SetTextColor(scene.paper, white);
    scene.graph.SetGridMarkings(2, 3, 0, 1, 0, 0, 0, 1);
    scene.graph.SetXYOriginCross(120, 90);
    scene.Draw();
    Plain expected(scene);
    expected.Frame();
    expected.Line({120, 0}, {120, 400});
    expected.Line({0, 90}, {500, 90});
    for (const int y : {0, 200, 400}) {
        for (const POINT ends : {POINT{-4, 4}, {116, 124}, {496, 500}}) expected.Line({ends.x, y}, {ends.y, y});
        if (y < 400) expected.Dots({0, y + 100}, {500, y + 100});
    }
    for (const int x : {0, 500})
        for (const POINT ends : {POINT{-4, 4}, {86, 94}, {396, 400}}) expected.Line({x, ends.x}, {x, ends.y});
    EXPECT_EQ(expected.Differences(), 0);
    EXPECT_EQ(scene.graph.stMapOrigins[0], scene.X(120));
    EXPECT_EQ(scene.graph.stMapOrigins[1], scene.Y(90));
}

TEST(GraphDrawing, TextsAsRecorded) {
    GraphScene scene;
    const int h = scene.fontHeight, left = scene.left, bottom = scene.top, top = bottom + 400, middle = left + 250;
    constexpr UINT title = TA_CENTER | TA_BOTTOM, below = TA_CENTER | TA_TOP, yText = TA_LEFT | TA_BOTTOM;
    const std::vector<std::string> expected = {Text("Title of Graph", title, middle, top + h),
                                               Text("X Axis", below, middle, bottom - h),
                                               Text("Y Axis", yText, left, top),
                                               Text("   0.00", TA_RIGHT, left - 3, bottom + h / 2),
                                               Text(" 200.00", TA_RIGHT, left - 3, bottom + 200 + h / 2),
                                               Text(" 400.00", TA_RIGHT, left - 3, top + h / 2),
                                               Text("   0.00", below, left, bottom - 3),
                                               Text(" 250.00", below, middle, bottom - 3),
                                               Text(" 500.00", below, left + 500, bottom - 3)};
    EXPECT_EQ(TextsOf(scene), expected);

    // Exponents narrow the labels: 3 characters less at the left.
    scene.graph.SetMinMaxValues(0, 500, 0, 400, 0, 2, 3, 2);
    scene.graph.SetGraphText(nullptr, "", "flow");
    const std::vector<std::string> scaled = TextsOf(scene);
    const int newLeft = left - 3 * scene.halfWidest;
    ASSERT_EQ(scaled.size(), 9U);
    EXPECT_EQ(scaled[2], Text("flow *(E3)", yText, newLeft, top));
    EXPECT_EQ(scaled[5], Text("   0.40", TA_RIGHT, newLeft - 3, top + h / 2));
}

TEST(GraphDrawing, LabelCharactersAsTheRuntimeCountsThem) {
    for (const float value : {0.0F, 0.001F, 0.006F, -0.05F, 0.5F, 1.0F, 9.996F, -12.5F, 99999.9F, 3e10F, -3e30F})
        for (const int precision : {1, 2, 3, 4, 5, 7, 12}) {
            int point, sign;
            const std::string digits = _fcvt(value, precision, &point, &sign);
            const kest::GraphAxis axis = {value, value, value, 0, precision, true, true, 3, 3};
            EXPECT_EQ(kest::LabelCharacters(axis), static_cast<int>(digits.size()) + 1) << value << ", " << precision;
        }
}

TEST(GraphDrawing, AWholePage) {
    GraphScene scene;
    MemoryPicture page(GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN), RGB(9, 9, 9));
    const int width = GetDeviceCaps(page, HORZRES), height = GetDeviceCaps(page, VERTRES);
    const kest::SelectedObject font(page, scene.font);
    // The second time the device context has the mapping of the first.
    for (int time = 0; time < 2; ++time) scene.graph.ShowGraph(nullptr, page, 1);
    const int left = scene.graph.stPlotRect[0], bottom = scene.graph.stPlotRect[3];
    EXPECT_EQ(left, width / 20 + scene.left);
    EXPECT_EQ(bottom, height - height / 20 - 4 * scene.fontHeight);
    StateOf(page);
    const Picture picture = page.Snapshot();
    EXPECT_EQ(picture.At(0, 0) + picture.At(width - 1, height - 1) + picture.At(left, bottom - 1), 0U);
    EXPECT_EQ(picture.At(1, 1), 0xFFFFFFU);
}

// What a file says about a drawing costs no more than its surface: the test ends, and soon.
TEST(GraphDrawing, AnAppearanceFileIsBoundedByTheSurface) {
    GraphScene scene;
    const Picture blank = scene.Snapshot();
    Curve curve({{0, 0}, {200, 150}, {500, 400}, {-1e30F, 1e9F}}, PS_DOT, red, INT_MAX);
    scene.curves.InsertTail(&curve);
    scene.curves.SelectObjectAtIndex(0);
    const TemporaryFile saved("saved.gap");
    CcGraph().SaveAppearance(saved.Path());
    for (const std::map<int, int>& fields : std::vector<std::map<int, int>>{
             {{12, 1000}},
             {{8, 10000}, {12, 10000}},
             {{8, 32767}, {100, 32767}},
             {{88, 0x40000000}, {352, 65537}},
             {{8, 100}, {12, 100}, {88, INT_MAX}, {92, INT_MAX}, {96, INT_MAX}, {100, INT_MAX}},
             {{0, INT_MAX}, {4, INT_MIN}, {100, INT_MAX}},
             {{88, INT_MAX}, {96, 1000}, {344, 65537}, {352, 100000}, {348, 5}}}) {
        std::vector<std::uint8_t> bytes = saved.Content();
        for (const auto& [offset, value] : fields) std::memcpy(&bytes[static_cast<std::size_t>(offset)], &value, 4);
        const TemporaryFile hostile("hostile.gap", bytes);
        ASSERT_EQ(scene.graph.RestoreAppearance(hostile.Path()), 0);
        scene.Draw();
        // Units larger than the surface: a line shows all the same.
        EXPECT_TRUE(fields.size() > 1 || scene.Snapshot().DifferentFrom(blank) > 500);
    }
}

// It ends soon, curves stay inside the plot and all in the host's clipping region, and everything is put back.
TEST(GraphDrawing, DataAndSettingsOfEveryKind) {
    constexpr float infinity = std::numeric_limits<float>::infinity(), huge = 3e38F;
    constexpr float nan = std::numeric_limits<float>::quiet_NaN();
    constexpr float floats[] = {0, 1, -1, 250, 500, 1e-30F, 1e6F, -1e9F, huge, -huge, infinity, -infinity, nan};
    constexpr int ints[] = {0, 1, -1, 2, 3, 5, 50, 3000, 10000000, INT_MAX, INT_MIN};
    GraphScene scene;
    const Picture blank = scene.Snapshot();
    for (const auto& [low, high] : {std::pair{nan, 1.0F}, {0.0F, infinity}, {1e10F, 1e10F}, {-infinity, infinity}}) {
        scene.graph.SetMinMaxValues(low, high, 0, 400, 0, 2, 0, 2);
        scene.Draw();
        EXPECT_EQ(scene.Snapshot().DifferentFrom(blank), 0) << low;
    }
    TakeBoxes();
    TestWindow tiny(30, 20);
    Curve wild(std::vector<tagPoints>(40), 0, red, 1);
    scene.curves.InsertTail(&wild);
    scene.curves.SelectObjectAtIndex(0);
    const RECT clip = {20, 20, scene.X(480), scene.Y(20)};
    const kest::GdiObject<HRGN> region(CreateRectRgnIndirect(&clip));
    SelectClipRgn(scene.paper, region);
    SetTextAlign(scene.paper, TA_RIGHT | TA_BASELINE);
    SetBkMode(scene.paper, OPAQUE);
    const std::vector<INT_PTR> before = StateOf(scene.paper);

    std::mt19937 random(3);
    const auto pickFloat = [&] { return floats[random() % std::size(floats)]; };
    const auto pickInt = [&](int count) { return ints[random() % static_cast<unsigned>(count)]; };
    for (int round = 0; round < 40; ++round) {
        for (tagPoints& point : wild.points) point = {pickFloat(), pickFloat()};
        wild.SetCurveStyle(pickInt(11), red, pickInt(11));
        scene.graph.SetMinMaxValues(pickFloat(), 7, -7, pickFloat(), pickInt(6), 2, pickInt(11), 5);
        if (round % 2) scene.graph.SetMinMaxValues(0, 500, 0, 400, 0, 2, 0, 2);
        scene.graph.SetXYOriginCross(pickFloat(), pickFloat());
        scene.graph.SetGridMarkings(pickInt(8), pickInt(8), pickInt(11), pickInt(11), 1, 0, pickInt(2), 1);
        if (round % 10 == 0) scene.graph.SetGridMarkings(INT_MAX, INT_MAX, INT_MAX, INT_MAX, 1, 0, 0, 1);
        const HWND window = round % 8 == 6 ? HWND(tiny) : round % 8 == 7 ? nullptr : HWND(scene.window);
        scene.graph.ShowGraph(window, scene.paper, 0);
        const int* plot = scene.graph.stPlotRect;
        EXPECT_EQ(StateOf(scene.paper), before);
        const Picture picture = scene.Snapshot();
        EXPECT_EQ(CountOutside(picture, {plot[0], plot[1], plot[2], plot[3]}, 0xFF0000, 0xFF0000), 0);
        EXPECT_EQ(CountOutside(picture, clip, 0, 0xFFFFFE), 0);
        PatBlt(scene.paper, 0, 0, 5000, 5000, WHITENESS);
        scene.graph.ShowCurveOnGraph(window, scene.paper, wild.points.data(), 40, 0);
        POINT mouse = {100, 100};
        int index = round;
        scene.graph.ShowListOfSelPoints(window, scene.paper, &index, 1, 0);
        scene.graph.IsCursorOnBP(scene.paper, &mouse);
        EXPECT_EQ(StateOf(scene.paper), before);
    }
}
