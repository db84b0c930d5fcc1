// The settings dialogs, operated with the keyboard as a person would, and looked at for what a person would see.
#include <cctype>

#include "graph/GraphScene.h"
#include "graph/resources/DialogIds.h"
#include "support/DialogUser.h"

using namespace test;

namespace {

using ShowDialog = int (CcGraph::*)();

/// Opens a dialog over a window, has it operated, and sees that it is closed by then.
void Operate(CcGraph& graph, ShowDialog show, const std::function<void(DialogUser&)>& operate) {
    TestWindow host(400, 300);
    bool shown = false;
    OperateNextDialog([&](HWND dialog) {
        shown = true;
        SetForegroundWindow(dialog);
        DialogUser user(dialog);
        operate(user);
        EXPECT_FALSE(user.IsOpen());
        if (user.IsOpen()) user.Click(IDCANCEL);
    });
    EXPECT_EQ((graph.*show)(), 0);
    EXPECT_TRUE(shown);
}

/// All that a dialog may change in a graph.
std::vector<std::uint8_t> SettingsOf(CcGraph& graph) {
    const TemporaryFile file("settings.gap", {});
    graph.SaveAppearance(file.Path());
    return file.Content();
}

TEST(GraphDialogs, TitlesAreTypedWithTheKeyboardAlone) {
    CcGraph graph, expected;
    graph.SetGraphText("Old", "Dose", "Effect");
    Operate(graph, &CcGraph::ShowDLBTitle, [](DialogUser& user) {
        EXPECT_EQ(user.Focus(), IDC_TITLE);
        const Picture before = user.Look(IDC_PREVIEW);
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
    Operate(graph, &CcGraph::ShowDLBTitle, [](DialogUser& user) {
        user.TypeInto(IDC_X_TEXT, "unwanted");
        user.Press(VK_ESCAPE);
    });
    expected.SetGraphText(std::string(79, 'a').c_str(), "Dose", "Effect 100%");
    EXPECT_EQ(SettingsOf(graph), SettingsOf(expected));
}

TEST(GraphDialogs, RangesAreCheckedAsTheirFieldsAreLeft) {
    CcGraph graph, expected;
    graph.SetMinMaxValues(0.1F, 12345.678F, -2e-7F, 3e10F, 0, 2, 0, 1);
    graph.SetXYOriginCross(0.3F, std::numeric_limits<float>::quiet_NaN());
    const std::vector<std::uint8_t> before = SettingsOf(graph);
    Operate(graph, &CcGraph::ShowDLBSetMM, [](DialogUser& user) { user.Press(VK_RETURN); });
    EXPECT_EQ(SettingsOf(graph), before);  // not even rounded; what cannot be entered may stay

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
        EXPECT_EQ(SettingsOf(graph), before);
        user.TypeInto(IDC_Y_EXPONENT, "3");
        EXPECT_EQ(user.Text(IDC_PROBLEM), "");
        user.TypeInto(IDC_X_ORIGIN, "-.25");
        user.TypeInto(IDC_Y_ORIGIN, "8");
        user.GoTo(IDC_X_DECIMALS);
        for (int i = 0; i < 9; ++i) user.Press(VK_UP);  // the spin button ends at five
        user.Click(IDOK);
    });
    expected.SetMinMaxValues(0.1F, 1.5F, -2e-7F, 3e10F, 0, 5, 3, 1);
    expected.SetXYOriginCross(-0.25F, 8);
    EXPECT_EQ(SettingsOf(graph), SettingsOf(expected));
}

TEST(GraphDialogs, MarkingsFollowCountsAndBoxes) {
    CcGraph graph, expected;
    graph.SetGridMarkings(3, 4, 5, 6, 1, 0, 1, 7);
    Operate(graph, &CcGraph::ShowDLBSetGridMarkings, [](DialogUser& user) {
        const auto isChecked = [&](int id) { return SendMessageA(user.Control(id), BM_GETCHECK, 0, 0) == BST_CHECKED; };
        EXPECT_TRUE(isChecked(IDC_X_MAJOR_LINES) && isChecked(IDC_X_MINOR_LINES));
        EXPECT_FALSE(isChecked(IDC_Y_MAJOR_LINES) || isChecked(IDC_Y_MINOR_LINES));
        const Picture before = user.Look(IDC_PREVIEW);
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
    expected.SetGridMarkings(11, 4, 5, 0, 0, 1, 1, 7);
    EXPECT_EQ(SettingsOf(graph), SettingsOf(expected));
}

/// One curve of the widest line there is, one with a name, and none.
struct CurvesToStyle {
    CcGraph graph;
    CcList list;
    Curve first{{{0, 0}, {500, 500}}, PS_SOLID, 0, INT_MAX}, second{{{0, 0}, {500, 500}}, PS_DASH, 0x030201, 9};

    CurvesToStyle() {
        second.SetName("Gamma");
        list.InsertTail(&first);
        list.InsertTail(&second);
        list.InsertTail(nullptr);
        list.SelectObjectAtIndex(1);
        list.GetHead();
        graph.SetCurveList(&list);
    }
    std::array<int, 6> Styles() {
        int style[2], width[2];
        unsigned long colour[2];
        first.GetCurveStyle(&style[0], &colour[0], &width[0]);
        second.GetCurveStyle(&style[1], &colour[1], &width[1]);
        return {style[0], int(colour[0]), width[0], style[1], int(colour[1]), width[1]};
    }
};

TEST(GraphDialogs, LinesOfCurvesAndDefaultsAreChosen) {
    CurvesToStyle made;
    Operate(made.graph, &CcGraph::ShowDLBLineStyle, [&](DialogUser& user) {
        EXPECT_EQ(SendMessageA(user.Control(IDC_CURVES), LB_GETCOUNT, 0, 0), 100);
        char name[300] = {};
        SendMessageA(user.Control(IDC_CURVES), LB_GETTEXT, 1, reinterpret_cast<LPARAM>(name));
        EXPECT_STREQ(name, "Gamma");
        EXPECT_EQ(user.Text(IDC_WIDTH), "9");
        EXPECT_EQ(user.Text(IDC_PROBLEM), "Wider than 1, lines are drawn solid.");
        user.TypeInto(IDC_WIDTH, "1");
        EXPECT_EQ(user.Text(IDC_PROBLEM), "");
        user.PressAlt('L');
        user.Press(VK_DOWN);
        EXPECT_EQ(user.Text(IDC_STYLE), "Dotted");

        OperateNextDialog([&](HWND dialog) {
            constexpr int red = 706, green = 707, blue = 708;
            DialogUser colours(dialog);
            EXPECT_EQ(colours.Text(blue), "3");
            colours.TypeInto(red, "200");
            colours.TypeInto(green, "100");
            colours.Click(IDOK);
        });
        user.Click(IDC_COLOUR);
        EXPECT_EQ(user.Look(IDC_SWATCH).At(5, 5), 0xC86403u);

        user.GoTo(IDC_CURVES);
        user.Press(VK_HOME);
        EXPECT_EQ(user.Text(IDC_WIDTH), std::to_string(INT_MAX));
        user.Press(VK_END);
        user.TypeInto(IDC_WIDTH, "4");
        EXPECT_EQ(made.Styles()[3], PS_DASH);
        user.Press(VK_RETURN);
    });
    EXPECT_EQ(made.Styles(), (std::array{PS_SOLID, 0, INT_MAX, PS_DOT, 0x0364C8, 1}));
    CcGraph expected;
    const tagCURVEAPPEARANCE second = {0x0364C8, PS_DOT, 1, "Curve 1"}, last = {0, PS_SOLID, 4, "Curve 99"};
    expected.SetCurveAppearance(1, &second);
    expected.SetCurveAppearance(99, &last);
    EXPECT_EQ(SettingsOf(made.graph), SettingsOf(expected));
}

const ShowDialog allDialogs[] = {&CcGraph::ShowDLBTitle, &CcGraph::ShowDLBSetMM, &CcGraph::ShowDLBSetGridMarkings,
                                 &CcGraph::ShowDLBLineStyle};

bool IsOfClass(HWND control, const char* name) {
    char className[40] = {};
    GetClassNameA(control, className, sizeof className);
    return lstrcmpiA(className, name) == 0;
}

int WidthOfText(HWND control) {
    const kest::WindowDc dc(control);
    const kest::SelectedObject font(dc, reinterpret_cast<HGDIOBJ>(SendMessageA(control, WM_GETFONT, 0, 0)));
    RECT extent = {};
    DrawTextA(dc, TextOf(control).c_str(), -1, &extent, DT_CALCRECT | DT_SINGLELINE);
    return extent.right;
}

/// Texts fit into their controls, controls lie in the dialog and beside one another, and no shortcut stands twice.
void LookOver(const DialogUser& user) {
    const HWND dialog = GetParent(user.Control(IDOK));
    EXPECT_EQ(LOWORD(SendMessageA(dialog, DM_GETDEFID, 0, 0)), IDOK);
    RECT client, common;
    GetClientRect(dialog, &client);
    MapWindowPoints(dialog, nullptr, reinterpret_cast<POINT*>(&client), 2);
    std::set<char> shortcuts;
    std::vector<RECT> taken;
    for (const HWND control : user.Controls()) {
        const std::string text = TextOf(control);
        const bool isButton = IsOfClass(control, "BUTTON");
        const bool isGroup = isButton && (GetWindowLongA(control, GWL_STYLE) & BS_TYPEMASK) == BS_GROUPBOX;
        RECT place;
        GetWindowRect(control, &place);
        EXPECT_TRUE(IntersectRect(&common, &place, &client) && EqualRect(&common, &place)) << text;
        const int checkMark = isButton && !isGroup ? 16 : 0;
        EXPECT_LE(WidthOfText(control) + checkMark, place.right - place.left) << text;
        if (const std::size_t mark = text.find('&'); mark != std::string::npos && mark + 1 < text.size()) {
            EXPECT_TRUE(shortcuts.insert(static_cast<char>(std::toupper(text[mark + 1]))).second) << text;
        }
        if (isGroup || IsOfClass(control, "msctls_updown32")) continue;
        for (const RECT& other : taken) EXPECT_FALSE(IntersectRect(&common, &place, &other)) << text;
        taken.push_back(place);
    }
}

TEST(GraphDialogs, AreLaidOutLeaveNothingBehindAndNeedTheirTemplates) {
    CurvesToStyle made;
    int gdiObjects = 0;
    for (int round = 0; round < 2; ++round) {
        if (round == 1) gdiObjects = TakeCensus().gdiObjects;
        for (const ShowDialog show : allDialogs)
            Operate(made.graph, show, [](DialogUser& user) {
                LookOver(user);
                user.Click(IDCANCEL);
            });
    }
    EXPECT_EQ(TakeCensus().gdiObjects, gdiObjects);
    EXPECT_EQ(made.list.GetCurrentObjectsIndex(), 0);

    OpenGraph noTemplates;
    noTemplates.hResourceLibrary.Adopt(LoadLibraryA("Kernel32.dll"));
    std::vector<std::string> told;
    for (const ShowDialog show : allDialogs) {
        EXPECT_EQ((noTemplates.*show)(), 0);
        for (const Box& box : TakeBoxes()) told.push_back(box.caption + '|' + box.text);
    }
    EXPECT_EQ(told, (std::vector<std::string>{
                        "Error...|Can't open dialog:Graph Titles", "Error...|Can't open dialog:Axis Ranges",
                        "Error...|Can't open dialog:Grid and Tick Marks", "Error...|Can't open dialog:Curve Styles"}));
}

/// "Kest_GRes.dll" beside the library is away, and the current folder is one of its own, perhaps with such a file.
struct FolderWithoutTemplates {
    char home[MAX_PATH], kept[MAX_PATH], away[MAX_PATH], planted[MAX_PATH];

    explicit FolderWithoutTemplates(bool plants) {
        GetCurrentDirectoryA(sizeof home, home);
        GetModuleFileNameA(GetModuleHandleA("KestApi.dll"), kept, sizeof kept);
        std::strcpy(std::strrchr(kept, '\\') + 1, "Kest_GRes.dll");
        std::snprintf(away, sizeof away, "%s.away", kept);
        CreateDirectoryA("planted", nullptr);
        SetCurrentDirectoryA("planted");
        GetFullPathNameA("Kest_GRes.dll", sizeof planted, planted, nullptr);
        if (plants) CopyFileA(kept, planted, FALSE);
        MoveFileA(kept, away);
    }
    ~FolderWithoutTemplates() {
        MoveFileA(away, kept);
        DeleteFileA(planted);
        SetCurrentDirectoryA(home);
        RemoveDirectoryA("planted");
    }
};

TEST(GraphDialogs, TemplatesInTheCurrentFolderAreTheLastThatAreTried) {
    {
        const FolderWithoutTemplates folder(true);
        OpenGraph graph;
        EXPECT_FALSE(graph.hResourceLibrary || GetModuleHandleA(folder.planted));
        Operate(graph, &CcGraph::ShowDLBTitle, [](DialogUser& user) { user.Click(IDCANCEL); });
        EXPECT_TRUE(GetModuleHandleA(folder.planted));
        MoveFileA(folder.away, folder.kept);
        OpenGraph another;
        char path[MAX_PATH];
        GetModuleFileNameA(another.hResourceLibrary, path, sizeof path);
        EXPECT_EQ(lstrcmpiA(path, folder.kept), 0) << path;
    }
    const FolderWithoutTemplates folder(false);
    CcGraph graph;
    for (const ShowDialog show : allDialogs) EXPECT_EQ((graph.*show)(), -1);
}

TEST(GraphDialogs, TheHostChangesTheCurvesAndDeletesTheGraph) {
    // A program that operates the dialog selects nothing; then the second curve is deleted.
    CurvesToStyle made;
    auto deleted = std::make_unique<Curve>(made.second);
    made.list.DeleteAtIndex(1);
    made.list.InsertAtIndex(deleted.get(), 1);
    made.list.SelectObjectAtIndex(1);
    Operate(made.graph, &CcGraph::ShowDLBLineStyle, [&](DialogUser& user) {
        const HWND dialog = GetParent(user.Control(IDOK));
        for (const auto& [id, select, code] :
             {std::tuple{IDC_CURVES, LB_SETCURSEL, LBN_SELCHANGE}, {IDC_STYLE, CB_SETCURSEL, CBN_SELCHANGE}}) {
            SendMessageA(user.Control(id), static_cast<UINT>(select), static_cast<WPARAM>(-1), 0);
            SendMessageA(dialog, WM_COMMAND, static_cast<WPARAM>(MAKELONG(id, code)), 0);
        }
        user.TypeInto(IDC_WIDTH, "5");
        user.Look(IDC_PREVIEW);
        made.list.DeleteAtIndex(1);
        made.list.InsertAtIndex(&made.second, 1);
        deleted.reset();
        user.Click(IDOK);
    });
    EXPECT_EQ(made.Styles()[5], 9);
    tagCURVEAPPEARANCE appearance;
    made.graph.GetCurveAppearance(1, &appearance);
    EXPECT_EQ(appearance.iWidth, 5);
    EXPECT_EQ(appearance.iStyle, PS_DASH);

    for (const ShowDialog show : allDialogs) {
        auto graph = std::make_unique<CcGraph>();
        auto list = std::make_unique<CcList>();
        list->InsertTail(&made.first);
        graph->SetCurveList(list.get());
        CcGraph& shown = *graph;
        Operate(shown, show, [&](DialogUser& user) {
            graph->SetCurveList(nullptr);
            list.reset();
            InvalidateRect(user.Control(IDC_PREVIEW), nullptr, FALSE);
            user.Look(IDC_PREVIEW);
            graph.reset();
            user.Look(IDC_PREVIEW);
            PumpMessages(50);
        });
    }
}

}  // namespace
