// Drawing a graph: its pixels against a picture drawn line by line, its texts as an enhanced metafile records them,
// what it leaves of the device context, and settings and data that nothing can be drawn from.
#include <climits>
#include <limits>
#include <random>
#include <sstream>

#include "graph/Support.h"
#include "graph/kernel/GraphLayout.h"
#include "support/Census.h"
#include "support/Dialogs.h"

namespace {

constexpr COLORREF white = RGB(255, 255, 255), red = RGB(255, 0, 0), blue = RGB(0, 0, 255);

const std::vector<POINT> frame = {{0, 0}, {0, 400}, {500, 400}, {500, 0}, {0, 0}};

std::string Text(const std::string& text, UINT align, int x, int y, LONG fontHeight = -12) {
    std::ostringstream line;
    line << '"' << text << "\" align " << align << " at " << x << ',' << y << " font " << fontHeight;
    return line.str();
}

/// The texts of a drawing, as an enhanced metafile of it lists them.
struct Recording {
    std::vector<std::string> texts;

    explicit Recording(test::GraphScene& scene) {
        const HDC dc = CreateEnhMetaFileA(nullptr, nullptr, nullptr, nullptr);
        SelectObject(dc, scene.font);
        EXPECT_EQ(scene.graph.ShowGraph(scene.window, dc, 0), 0);
        const HENHMETAFILE file = CloseEnhMetaFile(dc);
        EnumEnhMetaFile(nullptr, file, Visit, this, nullptr);
        DeleteEnhMetaFile(file);
    }

private:
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

    UINT align = 0;
    LONG fontHeight = 0;
};

/// Draws in device units, without any mapping.
struct Plain {
    test::GraphScene& scene;
    test::MemoryPicture paper{scene.left + 515 + 3 * scene.halfWidest, scene.top + 400 + 4 * scene.fontHeight, white};
    HPEN solid = CreatePen(PS_SOLID, 1, 0), dotted = CreatePen(PS_DOT, 1, 0);

    explicit Plain(test::GraphScene& of) : scene(of) { SetBkMode(paper, TRANSPARENT); }
    ~Plain() {
        SelectObject(paper, GetStockObject(BLACK_PEN));
        DeleteObject(solid);
        DeleteObject(dotted);
    }
    /// Between data positions; offsets in pixels, y upward.
    void Line(HPEN pen, int x0, int y0, int x1, int y1) {
        SelectObject(paper, pen);
        MoveToEx(paper, scene.X(x0), scene.Y(y0), nullptr);
        LineTo(paper, scene.X(x1), scene.Y(y1));
    }
    void Lines(HPEN pen, const std::vector<POINT>& points) {
        for (std::size_t i = 1; i < points.size(); ++i)
            Line(pen, points[i - 1].x, points[i - 1].y, points[i].x, points[i].y);
    }
    void Squares(HPEN pen, const std::vector<POINT>& points, int half) {
        SelectObject(paper, pen);
        for (const auto [x, y] : points)
            Rectangle(paper, scene.X(x) - half, scene.Y(y) - half, scene.X(x) + half, scene.Y(y) + half);
    }
};

/// Pixels outside a rectangle.
int CountOutside(const test::Picture& picture, const RECT& inside, bool (*isCounted)(unsigned)) {
    int count = 0;
    for (int y = 0; y < picture.height; ++y)
        for (int x = 0; x < picture.width; ++x)
            count += !PtInRect(&inside, {x, y}) && isCounted(picture.At(x, y));
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
    test::GraphScene scene;
    test::Curve lines({{0, 0}, {100, 300}, {250, 900}, {400, 50}}, PS_SOLID, red, 1);
    test::Curve dots({{50, 50}, {499, 200}}, KEST_CURVE_SQUARES, blue, 1);
    scene.curves.InsertTail(&lines);
    scene.curves.InsertTail(nullptr);
    scene.curves.InsertTail(&dots);
    SetTextColor(scene.paper, white);
    scene.graph.SetGridMarkings(3, 3, 1, 3, 1, 1, 1, 0);
    scene.Draw();

    Plain expected(scene);
    expected.Lines(expected.solid, frame);
    for (int y = 0; y <= 400; y += 200) {
        expected.Line(expected.solid, 0, y, 500, y);
        for (int minor = y + 50; minor < y + 200 && minor < 400; minor += 50) {
            expected.Line(expected.dotted, -2, minor, 2, minor);
            expected.Line(expected.dotted, 498, minor, 500, minor);
        }
    }
    for (int x = 0; x <= 500; x += 250) {
        expected.Line(expected.solid, x, 0, x, 400);
        if (x < 500) expected.Line(expected.dotted, x + 125, 0, x + 125, 400);
    }
    const HPEN redPen = CreatePen(PS_SOLID, 1, red), bluePen = CreatePen(PS_SOLID, 1, blue);
    const std::vector<POINT> dotPlaces = {{50, 50}, {499, 200}};
    IntersectClipRect(expected.paper, scene.left, scene.top, scene.left + 500, scene.top + 400);
    expected.Lines(redPen, {{0, 0}, {100, 300}, {250, 900}, {400, 50}});
    expected.Squares(bluePen, dotPlaces, 2);
    EXPECT_EQ(scene.Snapshot().DifferentFrom(expected.paper.Snapshot()), 0);

    // The selected curve has squares, too; more points and one more curve are drawn in the pen that is there.
    scene.curves.SelectObjectAtIndex(0);
    scene.Draw();
    SelectObject(scene.paper, bluePen);
    int indices[] = {1, -1, 3, 4, INT_MAX};
    tagPoints more[] = {{500, 0}, {300, 100}, {-500, 100}};
    EXPECT_EQ(scene.graph.ShowCurveOnGraph(scene.window, scene.paper, more, 3, 0), 0);
    EXPECT_EQ(scene.graph.ShowListOfSelPoints(scene.window, scene.paper, indices, 5, 0), 0);
    expected.Squares(redPen, {{0, 0}, {100, 300}, {400, 50}}, 2);
    expected.Squares(bluePen, dotPlaces, 2);
    expected.Lines(bluePen, {{500, 0}, {300, 100}, {-500, 100}});
    expected.Squares(bluePen, {{100, 300}, {400, 50}}, 5);
    EXPECT_EQ(scene.Snapshot().DifferentFrom(expected.paper.Snapshot()), 0);
    for (const HDC dc : {HDC(expected.paper), HDC(scene.paper)})
        SelectObject(dc, GetStockObject(BLACK_PEN));
    DeleteObject(redPen);
    DeleteObject(bluePen);
}

TEST(GraphDrawing, MarksAndAnOriginInside) {
    test::GraphScene scene;
    SetTextColor(scene.paper, white);
    scene.graph.SetGridMarkings(2, 3, 0, 1, 0, 0, 0, 1);
    scene.graph.SetXYOriginCross(120, 90);
    scene.Draw();
    Plain expected(scene);
    expected.Line(expected.solid, 120, 0, 120, 400);
    expected.Line(expected.solid, 0, 90, 500, 90);
    expected.Lines(expected.solid, frame);
    for (const int y : {0, 200, 400}) {
        expected.Line(expected.solid, -4, y, 4, y);
        expected.Line(expected.solid, 116, y, 124, y);
        expected.Line(expected.solid, 496, y, 500, y);
        if (y < 400) expected.Line(expected.dotted, 0, y + 100, 500, y + 100);
    }
    for (const int x : {0, 500}) {
        expected.Line(expected.solid, x, -4, x, 4);
        expected.Line(expected.solid, x, 86, x, 94);
        expected.Line(expected.solid, x, 396, x, 400);
    }
    EXPECT_EQ(scene.Snapshot().DifferentFrom(expected.paper.Snapshot()), 0);
    EXPECT_EQ(scene.graph.stMapOrigins[0], scene.X(120));
    EXPECT_EQ(scene.graph.stMapOrigins[1], scene.Y(90));
}

TEST(GraphDrawing, TextsAsRecorded) {
    test::GraphScene scene;
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
    EXPECT_EQ(Recording(scene).texts, expected);

    // Exponents narrow the labels: 3 characters less at the left.
    scene.graph.SetMinMaxValues(0, 500, 0, 400, 0, 2, 3, 2);
    scene.graph.SetGraphText(std::string(79, 'w').c_str(), "", "flow");
    const std::vector<std::string> scaled = Recording(scene).texts;
    const int newLeft = left - 3 * scene.halfWidest;
    ASSERT_EQ(scaled.size(), 9U);
    EXPECT_EQ(scaled[2], Text("flow *(E3)", yText, newLeft, top));
    EXPECT_EQ(scaled[5], Text("   0.40", TA_RIGHT, newLeft - 3, top + h / 2));
}

TEST(GraphDrawing, LabelCharactersAsTheRuntimeCountsThem) {
    for (const float value : {0.0F, 0.001F, 0.006F, -0.05F, 0.5F, 1.0F, 9.996F, -12.5F, 99999.9F, 3e10F, -3e30F})
        for (int precision = 1; precision <= 5; ++precision) {
            int point, sign;
            const std::string digits = _fcvt(value, precision, &point, &sign);
            const kest::GraphAxis axis = {value, value, value, 0, precision, true, true, 3, 3};
            EXPECT_EQ(kest::LabelCharacters(axis), static_cast<int>(digits.size()) + 1) << value;
        }
}

TEST(GraphDrawing, AWholePage) {
    test::GraphScene scene;
    test::MemoryPicture page(GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN), RGB(9, 9, 9));
    const int width = GetDeviceCaps(page, HORZRES), height = GetDeviceCaps(page, VERTRES);
    const HGDIOBJ old = SelectObject(page, scene.font);
    // The second time the device context has the mapping of the first.
    for (int time = 0; time < 2; ++time)
        scene.graph.ShowGraph(nullptr, page, 1);
    const RECT plot = scene.graph.Plot();
    EXPECT_EQ(plot.left, width / 20 + scene.left);
    EXPECT_EQ(plot.bottom, height - height / 20 - 4 * scene.fontHeight);
    StateOf(page);
    const test::Picture picture = page.Snapshot();
    EXPECT_EQ(picture.At(0, 0) + picture.At(width - 1, height - 1) + picture.At(plot.left, plot.bottom - 1), 0U);
    EXPECT_EQ(picture.At(1, 1), 0xFFFFFFU);
    SelectObject(page, old);
}

TEST(GraphDrawing, PutsBackWhatItSelects) {
    test::GraphScene scene;
    test::TestWindow tiny(30, 20);
    test::Curve curve({{0, 0}, {100, 300}}, PS_DASH, red, 3);
    scene.curves.InsertTail(&curve);
    scene.curves.SelectObjectAtIndex(0);
    int index = 0;
    const HRGN clip = CreateRectRgn(80, 80, 300, 200);
    SelectClipRgn(scene.paper, clip);
    DeleteObject(clip);
    SetTextAlign(scene.paper, TA_RIGHT | TA_BASELINE);
    SetBkMode(scene.paper, OPAQUE);
    const std::vector<INT_PTR> before = StateOf(scene.paper);
    const auto drawAll = [&](HWND window) {
        POINT mouse = {100, 100};
        scene.graph.ShowGraph(window, scene.paper, 0);
        EXPECT_EQ(StateOf(scene.paper), before);
        scene.graph.ShowCurveOnGraph(window, scene.paper, curve.points.data(), 2, 0);
        EXPECT_EQ(StateOf(scene.paper), before);
        scene.graph.ShowListOfSelPoints(window, scene.paper, &index, 1, 0);
        scene.graph.IsCursorOnBP(scene.paper, &mouse);
        EXPECT_EQ(StateOf(scene.paper), before);
    };
    drawAll(scene.window);
    // Inside the host's clipping region only.
    const test::Picture picture = scene.Snapshot();
    EXPECT_EQ(CountOutside(picture, {80, 80, 300, 200}, [](unsigned pixel) { return pixel != 0xFFFFFF; }), 0);
    const test::Census census = test::TakeCensus();
    for (int i = 0; i < 50; ++i) {
        drawAll(scene.window);
        drawAll(nullptr);
        drawAll(tiny);
        CcGraph another;
    }
    EXPECT_EQ(test::TakeCensus(), census);
}

TEST(GraphDrawing, NothingToDrawFrom) {
    constexpr float infinity = std::numeric_limits<float>::infinity(), huge = 3e38F;
    constexpr float nan = std::numeric_limits<float>::quiet_NaN();
    test::GraphScene scene;
    const test::Picture blank = scene.Snapshot();
    for (const auto& [low, high] : {std::pair{nan, 1.0F}, {0.0F, infinity}, {1e10F, 1e10F}, {-infinity, infinity}}) {
        scene.graph.SetMinMaxValues(low, high, 0, 400, 0, 2, 0, 2);
        scene.Draw();
        EXPECT_EQ(scene.Snapshot().DifferentFrom(blank), 0) << low;
    }
    // Data and settings of every kind: it ends soon, and the curves stay inside the plot.
    std::mt19937 random(3);
    const float floats[] = {0, 1, -1, 250, 500, 1e-30F, 1e6F, -1e9F, huge, -huge, infinity, -infinity, nan};
    const int ints[] = {0, 1, -1, 2, 3, 5, 50, 3000, 10000000, INT_MAX, INT_MIN};
    const auto pickFloat = [&] { return floats[random() % std::size(floats)]; };
    const auto pickInt = [&](int count) { return ints[random() % static_cast<unsigned>(count)]; };
    test::Curve wild(std::vector<tagPoints>(40), 0, red, 1);
    scene.curves.InsertTail(&wild);
    scene.curves.SelectObjectAtIndex(0);
    const DWORD start = GetTickCount();
    for (int round = 0; round < 60; ++round) {
        for (tagPoints& point : wild.points)
            point = {pickFloat(), pickFloat()};
        wild.SetCurveStyle(pickInt(11), red, pickInt(11));
        scene.graph.SetMinMaxValues(pickFloat(), pickFloat(), pickFloat(), pickFloat(), pickInt(6), 2, pickInt(11), 5);
        if (round % 2) scene.graph.SetMinMaxValues(0, 500, 0, 400, 0, 2, 0, 2);
        scene.graph.SetXYOriginCross(pickFloat(), pickFloat());
        scene.graph.SetGridMarkings(pickInt(8), pickInt(8), pickInt(11), pickInt(11), 1, 0, pickInt(2), 1);
        if (round % 10 == 0) scene.graph.SetGridMarkings(INT_MAX, INT_MAX, INT_MAX, INT_MAX, 1, 0, 0, 1);
        test::TakeBoxes();
        scene.Draw();
        const RECT plot = scene.graph.Plot();
        EXPECT_EQ(CountOutside(scene.Snapshot(), plot, [](unsigned pixel) { return pixel == 0xFF0000; }), 0);
        PatBlt(scene.paper, 0, 0, 5000, 5000, WHITENESS);
        scene.graph.ShowCurveOnGraph(scene.window, scene.paper, wild.points.data(), 40, 0);
        POINT mouse = {100, 100};
        scene.graph.IsCursorOnBP(scene.paper, &mouse);
    }
    EXPECT_LT(GetTickCount() - start, 20000U);
}
