// Drawing a graph: its pixels against a picture drawn line by line, its texts as an enhanced metafile records them,
// what it leaves of the device context, and settings and data that nothing can be drawn from.
#include <climits>
#include <cmath>
#include <limits>
#include <random>

#include "graph/Support.h"
#include "graph/kernel/GraphLayout.h"
#include "support/Census.h"
#include "support/Dialogs.h"

namespace {

constexpr COLORREF white = RGB(255, 255, 255), red = RGB(255, 0, 0), blue = RGB(0, 0, 255);

struct Text {
    std::string text;
    UINT align;
    int x, y;
    LONG fontHeight;
    bool operator==(const Text&) const = default;
};

void PrintTo(const Text& text, std::ostream* out) {
    *out << '"' << text.text << "\" align " << text.align << " at " << text.x << ',' << text.y << " font "
         << text.fontHeight;
}

/// What an enhanced metafile of a drawing says about its texts.
struct Recording {
    std::vector<Text> texts;

    explicit Recording(test::GraphScene& scene) {
        const HDC dc = CreateEnhMetaFileA(nullptr, nullptr, nullptr, nullptr);
        SelectObject(dc, scene.font);
        EXPECT_EQ(scene.graph.ShowGraph(scene.window, dc, 0), 0);
        const HENHMETAFILE file = CloseEnhMetaFile(dc);
        EnumEnhMetaFile(nullptr, file, Visit, this, nullptr);
        DeleteEnhMetaFile(file);
    }

private:
    static int CALLBACK Visit(HDC, HANDLETABLE*, const ENHMETARECORD* record, int, LPARAM self) {
        reinterpret_cast<Recording*>(self)->Add(*record);
        return 1;
    }
    void Add(const ENHMETARECORD& record) {
        if (record.iType == EMR_SETTEXTALIGN) align = record.dParm[0];
        if (record.iType == EMR_EXTCREATEFONTINDIRECTW)
            fontHeight = reinterpret_cast<const EMREXTCREATEFONTINDIRECTW&>(record).elfw.elfLogFont.lfHeight;
        if (record.iType != EMR_EXTTEXTOUTW) return;
        const EMRTEXT& text = reinterpret_cast<const EMREXTTEXTOUTW&>(record).emrtext;
        const auto* characters =
            reinterpret_cast<const WCHAR*>(reinterpret_cast<const char*>(&record) + text.offString);
        texts.push_back({std::string(characters, characters + text.nChars), align,
                         static_cast<int>(text.ptlReference.x), static_cast<int>(text.ptlReference.y), fontHeight});
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
    void Frame() {
        Line(solid, 0, 0, 0, 400);
        Line(solid, 0, 400, 500, 400);
        Line(solid, 500, 400, 500, 0);
        Line(solid, 500, 0, 0, 0);
    }
    void Square(int x, int y, int half) {
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

/// The settings of a device context that a drawing has to put back.
std::vector<INT_PTR> StateOf(HDC dc) {
    RECT clip = {};
    GetClipBox(dc, &clip);
    std::vector<INT_PTR> state = {GetMapMode(dc),
                                  GetBkMode(dc),
                                  static_cast<INT_PTR>(GetTextAlign(dc)),
                                  GetROP2(dc),
                                  static_cast<INT_PTR>(GetTextColor(dc)),
                                  clip.right - clip.left,
                                  clip.bottom - clip.top};
    for (const UINT type : {OBJ_PEN, OBJ_BRUSH, OBJ_FONT, OBJ_BITMAP})
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
    expected.Frame();
    for (int y = 0; y <= 400; y += 200) {
        expected.Line(expected.solid, 0, y, 500, y);
        for (int minor = y + 50; minor < y + 200 && minor < 400; minor += 50) {
            expected.Line(expected.dotted, -2, minor, 2, minor);
            expected.Line(expected.dotted, -2, minor, 2, minor);
            expected.Line(expected.dotted, 498, minor, 500, minor);
        }
    }
    for (int x = 0; x <= 500; x += 250) {
        expected.Line(expected.solid, x, 0, x, 400);
        if (x < 500) expected.Line(expected.dotted, x + 125, 0, x + 125, 400);
    }
    const HPEN redPen = CreatePen(PS_SOLID, 1, red), bluePen = CreatePen(PS_SOLID, 1, blue);
    IntersectClipRect(expected.paper, scene.left, scene.top, scene.left + 500, scene.top + 400);
    expected.Line(redPen, 0, 0, 100, 300);
    expected.Line(redPen, 100, 300, 250, 900);
    expected.Line(redPen, 250, 900, 400, 50);
    SelectObject(expected.paper, bluePen);
    expected.Square(50, 50, 2);
    expected.Square(499, 200, 2);
    EXPECT_EQ(scene.Snapshot().DifferentFrom(expected.paper.Snapshot()), 0);

    // The selected curve has squares, too; more points and one more curve are drawn in the pen that is there.
    scene.curves.SelectObjectAtIndex(0);
    scene.Draw();
    SelectObject(scene.paper, bluePen);
    int indices[] = {1, -1, 3, 4, INT_MAX};
    tagPoints more[] = {{500, 0}, {300, 100}, {-500, 100}};
    EXPECT_EQ(scene.graph.ShowCurveOnGraph(scene.window, scene.paper, more, 3, 0), 0);
    EXPECT_EQ(scene.graph.ShowListOfSelPoints(scene.window, scene.paper, indices, 5, 0), 0);
    EXPECT_EQ(scene.graph.pSelectedCurve, &lines);
    SelectObject(expected.paper, redPen);
    expected.Line(redPen, 0, 0, 100, 300);
    expected.Line(redPen, 100, 300, 250, 900);
    expected.Line(redPen, 250, 900, 400, 50);
    expected.Square(0, 0, 2);
    expected.Square(100, 300, 2);
    expected.Square(400, 50, 2);
    SelectObject(expected.paper, bluePen);
    expected.Square(50, 50, 2);
    expected.Square(499, 200, 2);
    expected.Line(bluePen, 500, 0, 300, 100);
    expected.Line(bluePen, 300, 100, -500, 100);
    expected.Square(100, 300, 5);
    expected.Square(400, 50, 5);
    EXPECT_EQ(scene.Snapshot().DifferentFrom(expected.paper.Snapshot()), 0);
    SelectObject(expected.paper, GetStockObject(BLACK_PEN));
    SelectObject(scene.paper, GetStockObject(BLACK_PEN));
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
    expected.Frame();
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
    const std::vector<Text> expected = {
        {"Title of Graph", title, middle, top + h, -12},
        {"X Axis", below, middle, bottom - h, -12},
        {"Y Axis", yText, left, top, -12},
        {"   0.00", TA_RIGHT, left - 3, bottom + h / 2, -12},
        {" 200.00", TA_RIGHT, left - 3, bottom + 200 + h / 2, -12},
        {" 400.00", TA_RIGHT, left - 3, top + h / 2, -12},
        {"   0.00", below, left, bottom - 3, -12},
        {" 250.00", below, middle, bottom - 3, -12},
        {" 500.00", below, left + 500, bottom - 3, -12},
    };
    EXPECT_EQ(Recording(scene).texts, expected);

    // Exponents narrow the labels: 3 characters less at the left.
    scene.graph.SetMinMaxValues(0, 500, 0, 400, 0, 2, 3, 2);
    scene.graph.SetGraphText(std::string(79, 'w').c_str(), "", "flow");
    const std::vector<Text> scaled = Recording(scene).texts;
    ASSERT_EQ(scaled.size(), 9U);
    EXPECT_EQ(scaled[0].text, std::string(79, 'w'));
    EXPECT_EQ(scaled[1].text, "");
    EXPECT_EQ(scaled[2].text, "flow *(E3)");
    EXPECT_EQ(scaled[5].text, "   0.40");
    EXPECT_EQ(scaled[5].x, left - 3 * scene.halfWidest - 3);
}

TEST(GraphDrawing, LabelCharactersAsTheRuntimeCountsThem) {
    const float values[] = {0, 0.001F, 0.006F, -0.05F, 0.5F, 1, 9.996F, -12.5F, 500, 99999.9F, 3e10F, -3e30F};
    for (const float low : values)
        for (const float high : values)
            for (int precision = 1; precision <= 5; ++precision) {
                int point, sign;
                const auto digits = [&](float v) { return std::string(_fcvt(v, precision, &point, &sign)).size(); };
                const std::size_t expected = std::max(digits(low), digits(high)) + 1;
                const kest::GraphAxis axis = {low, low, high, 0, precision, true, true, 3, 3};
                EXPECT_EQ(kest::LabelCharacters(axis), static_cast<int>(expected)) << low << ' ' << high;
            }
}

TEST(GraphDrawing, AWholePage) {
    test::GraphScene scene;
    test::MemoryPicture page(GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN), RGB(9, 9, 9));
    const int width = GetDeviceCaps(page, HORZRES), height = GetDeviceCaps(page, VERTRES);
    SelectObject(page, scene.font);
    // The second time the device context has the mapping of the first.
    for (int time = 0; time < 2; ++time) {
        scene.graph.ShowGraph(nullptr, page, 1);
        const RECT plot = scene.graph.Plot();
        EXPECT_EQ(plot.left, width / 20 + scene.left);
        EXPECT_EQ(plot.top, height / 20 + scene.top);
        EXPECT_EQ(plot.right, width - width / 20 - 15 - 3 * scene.halfWidest);
        EXPECT_EQ(plot.bottom, height - height / 20 - 4 * scene.fontHeight);
        const test::Picture picture = page.Snapshot();
        EXPECT_EQ(picture.At(0, 0) + picture.At(width - 1, height - 1), 0U);
        EXPECT_EQ(picture.At(1, 1), 0xFFFFFFU);
        EXPECT_EQ(picture.At(plot.left, plot.bottom - 1), 0U);
    }
    SelectObject(page, GetStockObject(SYSTEM_FONT));
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
    SetTextAlign(scene.paper, TA_RIGHT | TA_BASELINE);
    SetBkMode(scene.paper, OPAQUE);
    const auto drawAll = [&](HWND window) {
        const std::vector<INT_PTR> before = StateOf(scene.paper);
        scene.graph.ShowGraph(window, scene.paper, 0);
        EXPECT_EQ(GetMapMode(scene.paper), MM_TEXT);
        SetViewportOrgEx(scene.paper, 0, 0, nullptr);
        SetWindowOrgEx(scene.paper, 0, 0, nullptr);
        EXPECT_EQ(StateOf(scene.paper), before);
        scene.graph.ShowCurveOnGraph(window, scene.paper, curve.points.data(), 2, 0);
        scene.graph.ShowListOfSelPoints(window, scene.paper, &index, 1, 0);
        POINT mouse = {100, 100};
        scene.graph.IsCursorOnBP(scene.paper, &mouse);
        SetViewportOrgEx(scene.paper, 0, 0, nullptr);
        SetWindowOrgEx(scene.paper, 0, 0, nullptr);
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
    SelectClipRgn(scene.paper, nullptr);
    DeleteObject(clip);
}

TEST(GraphDrawing, NothingToDrawFrom) {
    constexpr float infinity = std::numeric_limits<float>::infinity(), huge = 3e38F;
    constexpr float nan = std::numeric_limits<float>::quiet_NaN();
    test::GraphScene scene;
    const test::Picture blank = scene.Snapshot();
    const float ranges[][2] = {{nan, 1}, {0, infinity}, {1e10F, 1e10F}, {-infinity, infinity}};
    for (const auto& range : ranges) {
        scene.graph.SetMinMaxValues(range[0], range[1], 0, 400, 0, 2, 0, 2);
        test::TakeBoxes();
        scene.Draw();
        EXPECT_EQ(scene.Snapshot().DifferentFrom(blank), 0) << range[0];
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
