// Curves and the settings of a graph: corrections and their boxes, appearance files to the byte, copies, streams.
#include "CcGraph.h"

#include <climits>

#include "graph/Support.h"
#include "support/Bytes.h"
#include "support/Dialogs.h"

namespace {

using test::Box;
using test::TakeBoxes;

const Box negative = {"Error", "You cannot have a negative Precision.\n\nPrecision will be set to default."};
const Box tooHigh = {"Error", "A Maximum Precision of 5 is allowed.\n\nPrecision will be set to default."};
const Box equal = {"Error", "The Minimum and Maximum values cannot be equal."};

/// The file of a fresh graph, but for the plot and its anchor, written by hand.
test::Bytes DefaultAppearance() {
    test::Bytes bytes;
    for (const int extent : {1, -1, 1, 1})
        bytes.I32(extent);
    for (const int origin : {11, 12, -13, 14})
        bytes.I32(origin);
    for (const float value : {0.0F, 0.0F, 500.0F, 0.0F, 0.0F, 500.0F})
        bytes.F32(value);
    for (const int side : {21, 22, 23, 24})
        bytes.I32(side);
    for (const int marking : {1, 0, 1, 0, 3, 3, 3, 3})
        bytes.I32(marking);
    bytes.Text("X Axis", 80).Text("Y Axis", 80).Text("Title of Graph", 80);
    for (const int option : {0, 2, 0, 2})
        bytes.I32(option);
    constexpr unsigned colours[] = {0x0000FF, 0x00FF00, 0xFF0000, 0xFF00FF, 0xFFFF00,
                                    0x8000FF, 0x004080, 0xFF8000, 0x008000, 0x000000};
    for (int i = 0; i < 100; ++i)
        bytes.I32(colours[i % 10]).I32(0).I32(1).Text("Curve " + std::to_string(i), 20);
    return bytes;
}

std::string Title(CcGraph& graph) {
    char title[80];
    graph.GetGraphText(title, nullptr, nullptr);
    return title;
}

}  // namespace

TEST(CcCurve, RefersToTheCallersPoints) {
    CcCurve curve;
    EXPECT_EQ(curve.GetType(), 3);
    EXPECT_STREQ(curve.GetName(), "");
    int style = 9, width = 9;
    unsigned long colour = 9;
    curve.GetCurveStyle(&style, &colour, &width);
    EXPECT_EQ(style + width + static_cast<int>(colour) + 1 + curve.GetNumberOfPoints(), 0);
    EXPECT_EQ(curve.GetCurveData(), nullptr);
    tagPoints points[3] = {};
    EXPECT_EQ(curve.SetCurveData(points, 3), 0);
    EXPECT_EQ(curve.SetCurveData(nullptr, 5), -1);
    EXPECT_EQ(curve.GetCurveData(), points);
    EXPECT_EQ(curve.GetNumberOfPoints(), 3);
    curve.SetCurveStyle(2, 0x123456, 4);
    curve.GetCurveStyle(&style, &colour, nullptr);
    EXPECT_EQ(style, 2);
    EXPECT_EQ(colour, 0x123456UL);
}

TEST(CcGraph, CorrectsRangesAndPrecisions) {
    CcGraph graph;
    EXPECT_EQ(graph.GetType(), 4);
    EXPECT_EQ(graph.SetMinMaxValues(0, 0, 0, 10, 0, 7, 0, -1), 0);
    EXPECT_EQ(TakeBoxes(), (std::vector<Box>{negative, tooHigh, equal}));
    float x0, x1, y0, y1;
    int xOption, xPrecision, yOption, yPrecision;
    graph.GetMinMaxValues(&x0, &x1, &y0, &y1, &xOption, &xPrecision, &yOption, &yPrecision);
    EXPECT_EQ(x0, 0.0F);
    EXPECT_EQ(x1, 1.0F);
    EXPECT_EQ(xPrecision, 2);
    EXPECT_EQ(yPrecision, 2);
    graph.SetMinMaxValues(5, -5, 7, 7, -3, -9, 4, 6);
    EXPECT_EQ(TakeBoxes(), (std::vector<Box>{negative, tooHigh, equal}));
    graph.SetMinMaxValues(5, -5, 7, 8, -3, 0, 4, 5);
    EXPECT_TRUE(TakeBoxes().empty());
    graph.GetMinMaxValues(&x0, &x1, nullptr, &y1, &xOption, &xPrecision, &yOption, &yPrecision);
    EXPECT_EQ(x0 + x1, 0.0F);
    EXPECT_EQ(y1, 8.0F);
    EXPECT_EQ(xOption, -3);
    EXPECT_EQ(yOption, 4);
    EXPECT_EQ(xPrecision, 0);
    EXPECT_EQ(yPrecision, 5);
}

TEST(CcGraph, KeepsItsSettings) {
    CcGraph graph;
    graph.SetGridMarkings(1, 2, 3, 4, 5, 6, 7, 8);
    int g[8];
    graph.GetGridMarkings(g, g + 1, g + 2, g + 3, g + 4, g + 5, g + 6, g + 7);
    for (int i = 0; i < 8; ++i)
        EXPECT_EQ(g[i], i + 1);

    graph.SetGraphText(std::string(300, 'T').c_str(), "volts", nullptr);
    char x[80], y[80];
    graph.GetGraphText(nullptr, x, y);
    EXPECT_EQ(Title(graph), std::string(79, 'T'));
    EXPECT_STREQ(x, "volts");
    EXPECT_STREQ(y, "Y Axis");

    tagCURVEAPPEARANCE appearance;
    EXPECT_EQ(graph.GetCurveAppearance(99, &appearance), 0);
    EXPECT_STREQ(appearance.szName, "Curve 99");
    EXPECT_EQ(graph.GetCurveAppearance(100, &appearance), -1);
    EXPECT_EQ(graph.SetCurveAppearance(-1, &appearance), -1);
    std::memset(appearance.szName, 'n', sizeof appearance.szName);
    EXPECT_EQ(graph.SetCurveAppearance(3, &appearance), 0);
    graph.GetCurveAppearance(3, &appearance);
    EXPECT_EQ(appearance.szName, std::string(19, 'n'));

    CcGraph copy(graph);
    graph.SetGraphText("other", nullptr, nullptr);
    EXPECT_EQ(Title(copy), std::string(79, 'T'));
    copy = graph;
    EXPECT_EQ(Title(copy), "other");
}

TEST(CcGraph, AppearanceFileToTheByte) {
    test::OpenGraph graph;
    for (int i = 0; i < 4; ++i)
        graph.stMapOrigins[i] = (11 + i) * (i == 2 ? -1 : 1);
    graph.SetPlot(21, 22, 23, 24);
    const test::TemporaryFile file("appearance.gap", test::Bytes().Fill(9000, 7));
    EXPECT_EQ(graph.SaveAppearance(file.Path()), 0);
    const test::Bytes expected = DefaultAppearance();
    ASSERT_EQ(expected.size(), 3560U);
    EXPECT_EQ(file.Content(), expected);

    // Every field is told apart: a file of other bytes comes back as it was, and so do the defaults.
    test::Bytes other;
    for (int i = 0; i < 3560; ++i)
        other.U8(static_cast<unsigned>(i * 31 % 113 + 1));
    for (const int end : {183, 263, 343})
        other[end] = 0;
    for (int i = 0; i < 100; ++i)
        other[360 + 32 * i + 31] = 0;
    for (const test::Bytes& bytes : {other, expected}) {
        const test::TemporaryFile source("source.gap", bytes);
        EXPECT_EQ(graph.RestoreAppearance(source.Path()), 0);
        EXPECT_EQ(graph.SaveAppearance(file.Path()), 0);
        EXPECT_EQ(file.Content(), bytes);
    }
    float x, y;
    graph.GetXYOriginCross(&x, &y);
    EXPECT_EQ(x + y, 0.0F);
    EXPECT_EQ(Title(graph), "Title of Graph");
}

TEST(CcGraph, AppearanceFilesThatAreNone) {
    CcGraph graph;
    graph.SetGraphText("kept", nullptr, nullptr);
    const test::TemporaryFile shorter("short.gap", test::Bytes().Fill(3559, 'x'));
    EXPECT_EQ(graph.RestoreAppearance(shorter.Path()), -1);
    EXPECT_EQ(Title(graph), "kept");
    EXPECT_TRUE(TakeBoxes().empty());
    // Texts without an end stop with their fields.
    const test::TemporaryFile endless("endless.gap", test::Bytes().Fill(4000, 'x'));
    EXPECT_EQ(graph.RestoreAppearance(endless.Path()), 0);
    EXPECT_EQ(Title(graph), std::string(79, 'x'));

    EXPECT_EQ(graph.RestoreAppearance("no\\such.gap"), -1);
    EXPECT_EQ(graph.SaveAppearance("no\\such.gap"), -1);
    EXPECT_EQ(graph.SaveAppearance(std::string(900, 'p').c_str()), -1);
    EXPECT_EQ(graph.RestoreAppearance(nullptr), -1);
    const std::vector<Box> boxes = TakeBoxes();
    ASSERT_EQ(boxes.size(), 4U);
    EXPECT_EQ(boxes[0], (Box{"Error...", "Can't open file:no\\such.gap for reading"}));
    EXPECT_EQ(boxes[1], (Box{"Error...", "Can't open file:no\\such.gap for saving"}));
}

TEST(CcGraph, StreamsKnowTheNamesOnly) {
    CcMemObjectStorage stream;
    CcGraph graph;
    CcCurve curve;
    EXPECT_EQ(stream.PutObject(&graph), -1);
    EXPECT_EQ(stream.PutObject(&curve), -1);
    EXPECT_EQ(stream.GetPos(), 0);
    for (const char* name : {"CcGraph", "CcCurve"}) {
        CcHLObject* made = nullptr;
        EXPECT_EQ(stream.CreateObject(name, &made), 0);
        ASSERT_NE(made, nullptr);
        EXPECT_EQ(made->GetType(), std::string(name) == "CcGraph" ? 4 : 3);
        delete made;
    }
}

TEST(CcGraph, DialogsNeedTheirLibrary) {
    test::OpenGraph graph;
    graph.hResourceLibrary.Release();
    EXPECT_EQ(graph.ShowDLBLineStyle(), -1);
    EXPECT_EQ(graph.ShowDLBSetGridMarkings(), -1);
    EXPECT_EQ(graph.ShowDLBSetMM(), -1);
    EXPECT_EQ(graph.ShowDLBTitle(), -1);
}
