// Undo and redo of what a user does to a list of ROIs.
#include "support/ClassTests.h"

using namespace test;

namespace {

std::string NamesOf(CcList& list) {
    std::string names;
    for (int i = 0; i < list.GetNumberOfObjects(); ++i) names += std::string(list.GetAtIndex(i)->GetName()) + " ";
    return names;
}

CcRoiRect* AddRect(CcList& list, const std::string& name) {
    auto* roi = new CcRoiRect;
    roi->SetName(name.c_str());
    list.InsertTail(roi);
    return roi;
}

}  // namespace

TEST(CcRoiHistory, DeletedPolygonComesBack) {
    CcList list;
    list.SetDestructionType(1);
    CcRoiHistory history(&list);
    AddRect(list, "a");
    auto* polygon = new CcRoiPolyFreeHand;
    SetOutline(*polygon, {{1, 1}, {2, 1}, {2, 2}, {1, 2}});
    polygon->SetName(std::string(200, 'p').c_str());
    polygon->SetSelected(1);
    list.InsertTail(polygon);
    AddRect(list, "c");
    list.SelectObjectAtIndex(1);

    ExpectAll(0, {history.Remember(), list.DeleteSelected()});
    EXPECT_EQ(NamesOf(list), "a c ");
    EXPECT_EQ(history.Undo(), 0);
    ASSERT_EQ(NamesOf(list), "a " + std::string(200, 'p') + " c ");
    EXPECT_EQ(list.GetSelectedObjectsIndex(), 1);
    auto& back = dynamic_cast<CcRoiPolyFreeHand&>(*list.GetAtIndex(1));
    EXPECT_EQ(back.IsROISelected(), 1);
    ASSERT_EQ(OutlineOf(back).iNumOfPoints, 4);
    EXPECT_EQ(OutlineOf(back).stPOINTS[3].y, 2);
    EXPECT_EQ(history.CanUndo(), 0);
    EXPECT_EQ(history.Undo(), -1);
    EXPECT_EQ(history.Redo(), 0);
    EXPECT_EQ(NamesOf(list), "a c ");
}

TEST(CcRoiHistory, RoisMadeWhereDeletedOnesWereAreNotTakenForThem) {
    for (const bool isStepByStep : {false, true}) {
        CcList list;
        list.SetDestructionType(1);
        CcRoiHistory history(&list);
        for (const char* name : {"a", "b", "c", "d", "e", "f"}) AddRect(list, name);
        // In an order other than that in which they were made, the blocks of later ones are free when the first come
        // back.
        for (int i = 0; i < 3; ++i) list.InsertAtIndex(list.TakeOut(5), i);
        const std::string names = NamesOf(list);
        const int alive = CcRoiBase::iNumOfROIs;
        history.Remember();
        while (list.DeleteHead() == 0)
            if (isStepByStep && list.GetNumberOfObjects() > 0) history.Remember();
        while (history.CanUndo()) EXPECT_EQ(history.Undo(), 0);
        EXPECT_EQ(NamesOf(list), names);
        EXPECT_EQ(CcRoiBase::iNumOfROIs, alive);
        while (history.CanRedo()) EXPECT_EQ(history.Redo(), 0);
        EXPECT_EQ(list.GetNumberOfObjects(), 0);
    }
}

TEST(CcRoiHistory, CalledWhileTheListSaysThatMemoryIsShort) {
    CcList list(4, 0x3FFFFFFF);
    list.SetDestructionType(1);
    CcRoiHistory history(&list);
    for (const char* name : {"a", "b", "c"}) AddRect(list, name);
    history.Remember();
    list.DeleteTail();
    list.DeleteTail();
    list.InsertTail(new CcNumber);
    list.InsertTail(new CcNumber);
    const std::string names = NamesOf(list);
    DuringNextBox([&] {
        EXPECT_EQ(NamesOf(list), names);
        for (const int result : {history.Undo(), history.Redo(), history.Remember(), history.Cancel()})
            EXPECT_EQ(result, -1);
        history.Clear();
    });
    EXPECT_EQ(history.Undo(), -1);
    EXPECT_EQ(TakeBoxes(), (Boxes{{"Memory Error", "Can't Increase Memory for List Object"}}));
    EXPECT_EQ(NamesOf(list), names);
    list.DeleteTail();
    list.DeleteTail();
    EXPECT_EQ(history.Undo(), 0);
    EXPECT_EQ(NamesOf(list), "a b c ");
}

TEST(CcRoiHistory, EditsKeepTheObjectsAndTheirOrder) {
    CcList list;
    list.SetDestructionType(1);
    CcRoiHistory history(&list, 3);
    CcRoiRect* a = AddRect(list, "a");
    CcRoiRect* b = AddRect(list, "b");
    for (int step = 0; step < 5; ++step) {
        history.Remember();
        SetBox(*a, {10 * step, 5, 9, 1});
        a->SetName(("a" + std::to_string(step)).c_str());
    }
    history.Remember();
    list.InsertHead(list.TakeOut(1));
    EXPECT_EQ(NamesOf(list), "b a4 ");
    EXPECT_EQ(history.Undo(), 0);
    EXPECT_EQ(list.GetAtIndex(0), a);
    EXPECT_EQ(list.GetAtIndex(1), b);
    EXPECT_EQ(history.Undo(), 0);
    EXPECT_EQ(NamesOf(list), "a3 b ");
    EXPECT_EQ(SidesOf(*a)[0], 30);
    EXPECT_EQ(history.Undo(), 0);
    // Older steps are forgotten.
    EXPECT_EQ(history.Undo(), -1);
    EXPECT_EQ(NamesOf(list), "a2 b ");
    while (history.Redo() == 0) continue;
    EXPECT_EQ(NamesOf(list), "b a4 ");
    // An edit that is given up leaves what could be redone.
    history.Undo();
    EXPECT_EQ(history.Cancel(), -1);
    history.Remember();
    list.DeleteAtIndex(1);
    ExpectAll(0, {history.CanRedo(), history.Cancel()});
    EXPECT_EQ(NamesOf(list), "a4 b ");
    EXPECT_EQ(history.Cancel(), -1) << "nothing is begun any more";
    const CcHLObject* const made = list.GetAtIndex(1);
    EXPECT_EQ(history.Redo(), 0);
    EXPECT_EQ(NamesOf(list), "b a4 ");
    EXPECT_EQ(list.GetAtIndex(0), made) << "what came back is what the later step means";
    // A new edit ends what could be redone.
    history.Undo();
    history.Remember();
    AddRect(list, "new");
    EXPECT_EQ(history.CanRedo(), 0);
    history.Undo();
    EXPECT_EQ(NamesOf(list), "a4 b ");
}

TEST(CcRoiHistory, WhatCannotBeRestoredWholeChangesNothing) {
    struct Stubborn : CcRoiEllipse {
        bool loads = false;
        int Load(CcObjectStorage* storage) override { return loads ? CcRoiEllipse::Load(storage) : -1; }
    };
    CcList list;
    list.SetDestructionType(1);
    CcRoiHistory history(&list);
    CcRoiRect* rect = AddRect(list, "rect");
    auto* outline = new CcRoiPolyLine;
    SetOutline(*outline, {{1, 2}, {2, 2}});
    list.InsertTail(outline);
    AddRect(list, "deleted");
    auto* stubborn = new Stubborn;
    list.InsertTail(stubborn);
    list.InsertTail(new CcNumber);
    history.Remember();
    SetBox(*rect, {70, 90, 80, 85});
    rect->SetName("renamed");
    SetOutline(*outline, {{5, 6}, {6, 6}, {7, 6}});
    outline->SetSelected(1);
    list.DeleteAtIndex(2);
    stubborn->SetName("stubborn");
    list.GetAtIndex(1);
    const auto state = [&] {
        return NamesOf(list) + std::to_string(SidesOf(*rect)[0]) + ' ' + std::to_string(outline->IsROISelected()) +
               std::to_string(OutlineOf(*outline).iNumOfPoints);
    };
    const std::string edited = state();
    EXPECT_EQ(edited.substr(edited.size() - 5), "70 13");
    for (int attempt = 0; attempt < 2; ++attempt) {
        EXPECT_EQ(attempt == 0 ? history.Undo() : history.Cancel(), -1);
        EXPECT_EQ(state(), edited);
        EXPECT_EQ(OutlineOf(*outline).stPOINTS[2].x, 7);
        EXPECT_EQ(history.CanRedo(), 0);
    }
    stubborn->loads = true;
    EXPECT_EQ(history.Undo(), 0);
    EXPECT_EQ(state().substr(state().size() - 4), "0 02");
    EXPECT_STREQ(list.GetAtIndex(2)->GetName(), "deleted");
    EXPECT_EQ(history.Redo(), 0);
    EXPECT_EQ(state(), edited);
}

TEST(CcRoiHistory, HostsClassesThatOnlyHaveTheTypeCodeOfTheLibrarys) {
    struct Claiming : CcRoiBase {
        char members[512];
        explicit Claiming(int type) {
            iROIType = type;
            std::memset(members, 'm', sizeof members);
        }
        int Load(CcObjectStorage*) override { return 0; }
        int Store(CcObjectStorage*) override { return 0; }
        int GetClassNameA(char* buffer, long length) override { return std::snprintf(buffer, length, "Claiming") - 8; }
    };
    for (int type = KEST_ROI_NONE; type <= KEST_ROI_POINT + 1; ++type) {
        CcList list;
        list.SetDestructionType(1);
        CcRoiHistory history(&list);
        auto* roi = new Claiming(type);
        roi->SetName("before");
        list.InsertTail(roi);
        history.Remember();
        roi->SetName("after");
        EXPECT_EQ(history.Undo(), 0);
        EXPECT_STREQ(roi->GetName(), "before");
        EXPECT_EQ(std::string(roi->members, sizeof roi->members), std::string(512, 'm')) << type;
    }
}
