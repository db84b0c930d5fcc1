// The settings dialogs, operated with the keyboard as a person would, and looked at for what a person would see.
#include <CcGraph.h>
#include <gtest/gtest.h>

#include <array>
#include <cctype>
#include <cmath>
#include <cstring>
#include <functional>
#include <iterator>
#include <limits>
#include <set>

#include "graph/resources/DialogIds.h"
#include "support/Census.h"
#include "support/DialogUser.h"
#include "support/Dialogs.h"

namespace {

using test::DialogUser;
using ShowDialog = int (CcGraph::*)();

/// Opens a dialog over a window, has it operated, and sees that it is closed by then.
void Operate(CcGraph& graph, ShowDialog show, const std::function<void(DialogUser&)>& operate) {
    test::TestWindow host(400, 300);
    SetForegroundWindow(host);
    SetFocus(host);
    bool shown = false;
    test::OperateNextDialog([&](HWND dialog) {
        shown = true;
        SetForegroundWindow(dialog);
        DialogUser user(dialog);
        operate(user);
        if (!user.IsOpen()) return;
        ADD_FAILURE() << "the dialog stayed open";
        user.Click(IDCANCEL);
    });
    EXPECT_EQ((graph.*show)(), 0);
    EXPECT_TRUE(shown);
}

std::array<std::string, 3> TextsOf(CcGraph& graph) {
    char title[80], x[80], y[80];
    graph.GetGraphText(title, x, y);
    return {title, x, y};
}

struct Ranges {
    float xMin, xMax, yMin, yMax, xOrigin, yOrigin;
    int xExponent, xDecimals, yExponent, yDecimals;
    bool operator==(const Ranges&) const = default;
};

Ranges RangesOf(CcGraph& graph) {
    Ranges r = {};
    graph.GetMinMaxValues(&r.xMin, &r.xMax, &r.yMin, &r.yMax, &r.xExponent, &r.xDecimals, &r.yExponent, &r.yDecimals);
    graph.GetXYOriginCross(&r.xOrigin, &r.yOrigin);
    return r;
}

std::array<int, 8> MarkingsOf(CcGraph& graph) {
    std::array<int, 8> m = {};
    graph.GetGridMarkings(&m[0], &m[1], &m[2], &m[3], &m[4], &m[5], &m[6], &m[7]);
    return m;
}

TEST(GraphDialogs, TitlesAreTypedWithTheKeyboardAlone) {
    CcGraph graph;
    graph.SetGraphText("Old", "Dose", "Effect");
    Operate(graph, &CcGraph::ShowDLBTitle, [](DialogUser& user) {
        EXPECT_EQ(user.Focus(), IDC_TITLE);
        const test::Picture before = user.Look(IDC_PREVIEW);
        user.PressAlt('Y');
        EXPECT_EQ(user.Focus(), IDC_Y_TEXT);
        user.Type("Effect 100%");
        user.PressAlt('T');
        user.Type(std::string(90, 'a'));
        EXPECT_GT(user.Look(IDC_PREVIEW).DifferentFrom(before), 50);
        user.Press(VK_TAB);
        EXPECT_EQ(user.Focus(), IDC_X_TEXT);
        user.Press(VK_RETURN);
    });
    EXPECT_EQ(TextsOf(graph), (std::array<std::string, 3>{std::string(79, 'a'), "Dose", "Effect 100%"}));

    Operate(graph, &CcGraph::ShowDLBTitle, [](DialogUser& user) {
        user.TypeInto(IDC_X_TEXT, "unwanted");
        user.Press(VK_ESCAPE);
    });
    EXPECT_EQ(TextsOf(graph)[1], "Dose");
}

TEST(GraphDialogs, RangesAreCheckedAsTheirFieldsAreLeft) {
    CcGraph graph;
    graph.SetMinMaxValues(0.1F, 12345.678F, -2e-7F, 3e10F, 0, 2, 0, 1);
    graph.SetXYOriginCross(0.3F, 0);
    const Ranges before = RangesOf(graph);
    Operate(graph, &CcGraph::ShowDLBSetMM, [](DialogUser& user) { user.Press(VK_RETURN); });
    EXPECT_EQ(RangesOf(graph), before);  // not even rounded

    Operate(graph, &CcGraph::ShowDLBSetMM, [&](DialogUser& user) {
        EXPECT_EQ(user.Text(IDC_X_MIN), "0.1");
        user.TypeInto(IDC_X_MAX, "1,5");
        EXPECT_EQ(user.Text(IDC_PROBLEM), "");
        user.Press(VK_TAB);
        EXPECT_EQ(user.Text(IDC_PROBLEM), "Enter a number, such as 2.5 or 1e6.");
        user.TypeInto(IDC_Y_EXPONENT, "39");
        user.Press(VK_RETURN);  // goes back to the first wrong field
        EXPECT_EQ(user.Focus(), IDC_X_MAX);
        user.Type("1.5");
        EXPECT_EQ(user.Text(IDC_PROBLEM), "Enter a whole number from -38 to 38.");
        EXPECT_EQ(RangesOf(graph), before);
        user.TypeInto(IDC_Y_EXPONENT, "3");
        EXPECT_EQ(user.Text(IDC_PROBLEM), "");
        user.TypeInto(IDC_X_ORIGIN, "-.25");
        user.GoTo(IDC_X_DECIMALS);
        for (int i = 0; i < 9; ++i) user.Press(VK_UP);  // the spin button ends at five
        user.Click(IDOK);
    });
    const Ranges expected = {0.1F, 1.5F, -2e-7F, 3e10F, -0.25F, 0, 0, 5, 3, 1};
    EXPECT_EQ(RangesOf(graph), expected);

    Operate(graph, &CcGraph::ShowDLBSetMM, [](DialogUser& user) {
        user.TypeInto(IDC_X_MAX, "7");
        user.TypeInto(IDC_Y_MIN, "wrong");
        user.Click(IDCANCEL);
    });
    EXPECT_EQ(RangesOf(graph), expected);
}

TEST(GraphDialogs, RangesAreCorrectedByTheGraph) {
    CcGraph graph;
    Operate(graph, &CcGraph::ShowDLBSetMM, [](DialogUser& user) {
        user.TypeInto(IDC_X_MAX, "0");
        user.TypeInto(IDC_X_DECIMALS, "7");
        user.TypeInto(IDC_Y_DECIMALS, "-1");
        EXPECT_TRUE(test::TakeBoxes().empty());
        user.Press(VK_RETURN);
    });
    const std::vector<test::Box> boxes = test::TakeBoxes();
    ASSERT_EQ(boxes.size(), 3u);
    EXPECT_EQ(boxes[2], (test::Box{"Error", "The Minimum and Maximum values cannot be equal."}));
    EXPECT_EQ(RangesOf(graph), (Ranges{0, 1, 0, 500, 0, 0, 0, 2, 0, 2}));

    // What cannot be entered may stay.
    graph.SetXYOriginCross(std::numeric_limits<float>::quiet_NaN(), 0);
    Operate(graph, &CcGraph::ShowDLBSetMM, [](DialogUser& user) {
        user.TypeInto(IDC_Y_MIN, "-5");
        user.Press(VK_RETURN);
    });
    EXPECT_TRUE(std::isnan(RangesOf(graph).xOrigin));
    EXPECT_EQ(RangesOf(graph).yMin, -5);
}

TEST(GraphDialogs, MarkingsFollowCountsAndBoxes) {
    CcGraph graph;
    graph.SetGridMarkings(3, 4, 5, 6, 1, 0, 1, 7);
    Operate(graph, &CcGraph::ShowDLBSetGridMarkings, [](DialogUser& user) {
        const auto isChecked = [&](int id) { return SendMessageA(user.Control(id), BM_GETCHECK, 0, 0) == BST_CHECKED; };
        EXPECT_TRUE(isChecked(IDC_X_MAJOR_LINES) && isChecked(IDC_X_MINOR_LINES));
        EXPECT_FALSE(isChecked(IDC_Y_MAJOR_LINES) || isChecked(IDC_Y_MINOR_LINES));
        const test::Picture before = user.Look(IDC_PREVIEW);
        user.PressAlt('L');
        user.GoTo(IDC_Y_MAJOR_LINES);
        user.Press(VK_SPACE);
        EXPECT_GT(user.Look(IDC_PREVIEW).DifferentFrom(before), 100);
        user.TypeInto(IDC_X_MAJOR, "1");
        user.Press(VK_RETURN);
        EXPECT_EQ(user.Text(IDC_PROBLEM), "Enter a whole number from 2 to 100.");
        user.TypeInto(IDC_X_MAJOR, "11");
        user.TypeInto(IDC_Y_MINOR, "0");
        user.Press(VK_RETURN);
    });
    EXPECT_EQ(MarkingsOf(graph), (std::array<int, 8>{11, 4, 5, 0, 0, 1, 1, 7}));
}

struct TwoCurves {
    CcGraph graph;
    CcList list;
    CcCurve first, second;
    tagPoints points[2] = {{0, 0}, {500, 500}};

    TwoCurves() {
        first.SetCurveData(points, 2);
        second.SetCurveData(points, 2);
        second.SetName("Gamma");
        second.SetCurveStyle(PS_DASH, RGB(1, 2, 3), 9);
        list.InsertTail(&first);
        list.InsertTail(&second);
        list.InsertTail(nullptr);
        list.SelectObjectAtIndex(1);
        list.GetHead();
        graph.SetCurveList(&list);
    }
    static std::array<unsigned long, 3> StyleOf(CcCurve& curve) {
        int style, width;
        unsigned long colour;
        curve.GetCurveStyle(&style, &colour, &width);
        return {static_cast<unsigned long>(style), colour, static_cast<unsigned long>(width)};
    }
    bool HasAppearance(int index, int style, COLORREF colour, int width, const char* name) {
        tagCURVEAPPEARANCE a = {};
        graph.GetCurveAppearance(index, &a);
        return a.iStyle == style && a.ulColor == colour && a.iWidth == width && std::strcmp(a.szName, name) == 0;
    }
};

TEST(GraphDialogs, LinesOfCurvesAndDefaultsAreChosen) {
    TwoCurves made;
    bool colourChosen = false;
    Operate(made.graph, &CcGraph::ShowDLBLineStyle, [&](DialogUser& user) {
        EXPECT_EQ(made.list.GetCurrentObjectsIndex(), 0);
        EXPECT_EQ(SendMessageA(user.Control(IDC_CURVES), LB_GETCOUNT, 0, 0), 100);
        char name[300] = {};
        SendMessageA(user.Control(IDC_CURVES), LB_GETTEXT, 1, reinterpret_cast<LPARAM>(name));
        EXPECT_STREQ(name, "Gamma");
        EXPECT_EQ(user.Text(IDC_WIDTH), "9");
        EXPECT_EQ(user.Text(IDC_PROBLEM), "Wider than 1, lines are drawn solid.");
        user.TypeInto(IDC_WIDTH, "1");
        EXPECT_EQ(user.Text(IDC_PROBLEM), "");
        user.PressAlt('L');
        user.Press(VK_DOWN);  // dotted
        EXPECT_EQ(user.Text(IDC_STYLE), "Dotted");

        test::OperateNextDialog([&](HWND dialog) {
            constexpr int red = 706, green = 707, blue = 708;
            DialogUser colours(dialog);
            EXPECT_EQ(colours.Text(blue), "3");
            colours.TypeInto(red, "200");
            colours.TypeInto(green, "100");
            colourChosen = true;
            colours.Click(IDOK);
        });
        user.Click(IDC_COLOUR);
        EXPECT_EQ(user.Look(IDC_SWATCH).At(5, 5), 0xC86403u);

        user.GoTo(IDC_CURVES);
        user.Press(VK_END);
        EXPECT_EQ(user.Text(IDC_WIDTH), "1");
        user.TypeInto(IDC_WIDTH, "4");
        EXPECT_EQ(TwoCurves::StyleOf(made.second)[0], static_cast<unsigned long>(PS_DASH));
        user.Press(VK_RETURN);
    });
    EXPECT_TRUE(colourChosen);
    EXPECT_EQ(TwoCurves::StyleOf(made.first), (std::array<unsigned long, 3>{0, 0, 0}));
    EXPECT_EQ(TwoCurves::StyleOf(made.second), (std::array<unsigned long, 3>{PS_DOT, RGB(200, 100, 3), 1}));
    EXPECT_TRUE(made.HasAppearance(0, 0, 0x0000FF, 1, "Curve 0"));
    EXPECT_TRUE(made.HasAppearance(1, PS_DOT, RGB(200, 100, 3), 1, "Curve 1"));
    EXPECT_TRUE(made.HasAppearance(99, 0, 0x000000, 4, "Curve 99"));

    Operate(made.graph, &CcGraph::ShowDLBLineStyle, [](DialogUser& user) {
        user.TypeInto(IDC_WIDTH, "50");
        user.Press(VK_ESCAPE);
    });
    EXPECT_EQ(TwoCurves::StyleOf(made.second)[2], 1u);
}

constexpr ShowDialog allDialogs[] = {&CcGraph::ShowDLBTitle, &CcGraph::ShowDLBSetMM, &CcGraph::ShowDLBSetGridMarkings,
                                     &CcGraph::ShowDLBLineStyle};

RECT PlaceOf(HWND control) {
    RECT place;
    GetWindowRect(control, &place);
    MapWindowPoints(nullptr, GetParent(control), reinterpret_cast<POINT*>(&place), 2);
    return place;
}

bool IsOfClass(HWND control, const char* name) {
    char className[40] = {};
    GetClassNameA(control, className, sizeof className);
    return lstrcmpiA(className, name) == 0;
}

bool IsGroup(HWND control) {
    return IsOfClass(control, "BUTTON") && (GetWindowLongA(control, GWL_STYLE) & BS_TYPEMASK) == BS_GROUPBOX;
}

int WidthOfText(HWND control) {
    const HDC dc = GetDC(control);
    const HGDIOBJ old = SelectObject(dc, reinterpret_cast<HGDIOBJ>(SendMessageA(control, WM_GETFONT, 0, 0)));
    RECT extent = {};
    DrawTextA(dc, test::TextOf(control).c_str(), -1, &extent, DT_CALCRECT | DT_SINGLELINE);
    SelectObject(dc, old);
    ReleaseDC(control, dc);
    return extent.right;
}

/// Texts fit into their controls, controls lie in the dialog and beside one another, and no shortcut stands twice.
void LookOver(DialogUser& user) {
    RECT client;
    GetClientRect(GetParent(user.Control(IDOK)), &client);
    EXPECT_EQ(LOWORD(SendMessageA(GetParent(user.Control(IDOK)), DM_GETDEFID, 0, 0)), IDOK);
    std::set<char> shortcuts;
    const std::vector<HWND> controls = user.Controls();
    for (const HWND control : controls) {
        const RECT place = PlaceOf(control);
        const std::string text = test::TextOf(control);
        RECT common;
        EXPECT_TRUE(IntersectRect(&common, &place, &client) && EqualRect(&common, &place)) << text;
        constexpr int checkMark = 16;
        const int markWidth = IsOfClass(control, "BUTTON") && !IsGroup(control) ? checkMark : 0;
        EXPECT_LE(WidthOfText(control) + markWidth, place.right - place.left) << text;
        if (const std::size_t mark = text.find('&'); mark != std::string::npos && mark + 1 < text.size()) {
            EXPECT_TRUE(shortcuts.insert(static_cast<char>(std::toupper(text[mark + 1]))).second) << text;
        }
        for (const HWND other : controls) {
            const RECT otherPlace = PlaceOf(other);
            const bool isSpin = IsOfClass(control, "msctls_updown32") || IsOfClass(other, "msctls_updown32");
            if (control == other || IsGroup(control) || IsGroup(other) || isSpin) continue;
            EXPECT_FALSE(IntersectRect(&common, &place, &otherPlace)) << text << " / " << test::TextOf(other);
        }
    }
}

TEST(GraphDialogs, AreLaidOutAndLeaveNothingBehind) {
    TwoCurves made;
    const auto openAll = [&] {
        for (const ShowDialog show : allDialogs)
            Operate(made.graph, show, [](DialogUser& user) {
                LookOver(user);
                user.Click(IDCANCEL);
            });
    };
    openAll();
    const int before = test::TakeCensus().gdiObjects;
    openAll();
    EXPECT_EQ(test::TakeCensus().gdiObjects, before);
}

/// A graph whose dialogs come from another library, or none.
struct OtherResources : CcGraph {
    explicit OtherResources(HMODULE library) { hResourceLibrary.Adopt(library); }
};

TEST(GraphDialogs, NeedTheirLibraryAndTemplates) {
    OtherResources none(nullptr), noTemplates(LoadLibraryA("Kernel32.dll"));
    for (const ShowDialog show : allDialogs) {
        EXPECT_EQ((none.*show)(), -1);
        EXPECT_EQ((noTemplates.*show)(), 0);
    }
}

}  // namespace
