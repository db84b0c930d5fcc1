// The settings of a graph: corrections and their boxes, and appearance files to the byte.
#include "graph/GraphScene.h"

using namespace test;

namespace {

std::string Title(CcGraph& graph) {
    char title[80];
    graph.GetGraphText(title, nullptr, nullptr);
    return title;
}

}  // namespace

TEST(CcGraph, SettingsAreCorrectedAndKept) {
    const Boxes corrections = {{"Error", "You cannot have a negative Precision.\n\nPrecision will be set to default."},
                               {"Error", "A Maximum Precision of 5 is allowed.\n\nPrecision will be set to default."},
                               {"Error", "The Minimum and Maximum values cannot be equal."}};
    CcGraph graph;
    EXPECT_EQ(graph.SetMinMaxValues(0, 0, 0, 10, 0, 7, 0, -1), 0);
    EXPECT_EQ(TakeBoxes(), corrections);
    float r[4];
    int p[4];
    graph.GetMinMaxValues(r, r + 1, r + 2, r + 3, p, p + 1, p + 2, p + 3);
    EXPECT_EQ(std::vector<float>(r, r + 4), (std::vector<float>{0, 1, 0, 10}));
    EXPECT_EQ(std::vector<int>(p, p + 4), (std::vector<int>{0, 2, 0, 2}));
    graph.SetMinMaxValues(5, -5, 7, 7, -3, -9, 4, 6);
    EXPECT_EQ(TakeBoxes(), corrections);
    graph.SetMinMaxValues(5, -5, 7, 8, -3, 0, 4, 5);
    EXPECT_TRUE(TakeBoxes().empty());

    graph.SetGridMarkings(1, 2, 3, 4, 5, 6, 7, 8);
    int g[8];
    graph.GetGridMarkings(g, g + 1, g + 2, g + 3, g + 4, g + 5, g + 6, g + 7);
    EXPECT_EQ(std::vector<int>(g, g + 8), (std::vector<int>{1, 2, 3, 4, 5, 6, 7, 8}));

    graph.SetGraphText(std::string(300, 'T').c_str(), nullptr, "volts");
    CcGraph copy(graph);
    EXPECT_EQ(Title(copy), std::string(79, 'T'));
    tagCURVEAPPEARANCE appearance;
    EXPECT_EQ(graph.GetCurveAppearance(100, &appearance), -1);
    std::memset(&appearance, 'n', sizeof appearance);
    EXPECT_EQ(graph.SetCurveAppearance(99, &appearance) + graph.GetCurveAppearance(99, &appearance), 0);
    EXPECT_EQ(appearance.szName, std::string(19, 'n'));

    CcMemObjectStorage stream;
    CcCurve curve;
    EXPECT_EQ(stream.PutObject(&graph) + stream.PutObject(&curve) + stream.GetPos(), -2);
}

TEST(CcGraph, AppearanceFileToTheByte) {
    OpenGraph graph;
    // Every field is told apart: a file of other bytes comes back as it was.
    Bytes other;
    for (int i = 0; i < 3560; ++i) other.U8(static_cast<unsigned>(i * 31 % 113 + 1));
    for (const int end : {183, 263, 343}) other[end] = 0;
    for (int i = 0; i < 100; ++i) other[360 + 32 * i + 31] = 0;
    const TemporaryFile file("appearance.gap", other), fresh("fresh.gap");
    ExpectAll(0, {OpenGraph().SaveAppearance(fresh.Path()), graph.RestoreAppearance(file.Path()),
                  graph.SaveAppearance(file.Path())});
    EXPECT_EQ(file.Content(), other);
    EXPECT_EQ(graph.RestoreAppearance(fresh.Path()), 0);

    const TemporaryFile shorter("short.gap", Bytes().Fill(3559, 'x'));
    EXPECT_EQ(graph.RestoreAppearance(shorter.Path()), -1);
    EXPECT_EQ(Title(graph), "Title of Graph");
    // Texts without an end stop with their fields.
    const TemporaryFile endless("endless.gap", Bytes().Fill(4000, 'x'));
    EXPECT_EQ(graph.RestoreAppearance(endless.Path()), 0);
    EXPECT_EQ(Title(graph), std::string(79, 'x'));

    EXPECT_EQ(graph.RestoreAppearance("no\\such.gap") + graph.SaveAppearance("no\\such.gap"), -2);
    EXPECT_EQ(TakeBoxes(), (Boxes{{"Error...", "Can't open file:no\\such.gap for reading"},
                                  {"Error...", "Can't open file:no\\such.gap for saving"}}));
    EXPECT_EQ(graph.SaveAppearance(R"(Z:\dev\full)"), 0);
    EXPECT_EQ(TakeBoxes(), (Boxes{{"Error...", R"(Can't write file:Z:\dev\full)"}}));
    EXPECT_EQ(graph.SaveAppearance(std::string(900, 'p').c_str()) + graph.RestoreAppearance(nullptr), -2);
    EXPECT_EQ(TakeBoxes().size(), 2U);
}
