// What all regions of interest share: slots, pens and colours.
#include <atomic>
#include <thread>

#include "support/ClassTests.h"

using namespace test;

namespace {

/// Its colour, and its width in the highest byte.
COLORREF LookOf(HPEN pen) {
    LOGPEN record = {};
    GetObjectA(pen, sizeof record, &record);
    return record.lopnColor | static_cast<COLORREF>(record.lopnWidth.x) << 24;
}

}  // namespace

TEST(CcRoiBase, SlotOrder) {
    using U = unsigned short;
    using R = CcRoiBase;
    ExpectSlots(6, &R::Save, &R::Restore, &R::SetRoiImageCord, &R::GetRoiImageCord, &R::StartMouseDrag, &R::DoMouseDrag,
                &R::StopMouseDrag, &R::GetCurrentBoundingRect,
                static_cast<int (R::*)(HDC, RECT*, int, int, U, CcImage*, int, int)>(&R::ShowROI),
                static_cast<int (R::*)(HDC, HWND, int, int, U, CcImage*, int, int)>(&R::ShowROI),
                static_cast<int (R::*)(HWND, int, int, U, CcImage*, int, int)>(&R::ShowROI), &R::MouseHitTest,
                &R::GetBoundingRect, &R::GetYBoundary, &R::GetXBoundary, &R::UpdateImageIfNeeded,
                &R::IsRoiAGraphicObject);
}

TEST(CcRoiBase, PensAndColoursLiveWithTheRois) {
    RGBTRIPLE blue = {255, 0, 0}, seen = {};
    {
        CcRoiRect first;
        ASSERT_EQ(CcRoiBase::iNumOfROIs, 1);
        EXPECT_EQ(LookOf(CcRoiBase::hSelectedPen), 0x010000FFu);
        EXPECT_EQ(LookOf(CcRoiBase::hUnSelectedPen), 0x0100FF00u);
        EXPECT_EQ(first.SetSelectedColor(nullptr), -1);
        EXPECT_EQ(first.SetSelectedColor(&blue), 0);
        EXPECT_EQ(LookOf(CcRoiBase::hSelectedPen), 0x01FF0000u);
        CcRoiRect second;
        ExpectAll(0, {second.GetSelectedColor(&seen), second.SetZoomPen(3)});
        EXPECT_EQ(seen.rgbtBlue, 255);
        EXPECT_EQ(LookOf(CcRoiBase::hUnSelectedPen), 0x0300FF00u);
        EXPECT_EQ(LookOf(CcRoiBase::hSelectedPen), 0x03FF0000u);
        EXPECT_EQ(CcRoiBase::iNumOfROIs, 2);
    }
    ExpectAll<HPEN>(nullptr, {CcRoiBase::hSelectedPen, CcRoiBase::hUnSelectedPen});
    CcRoiRect again;
    EXPECT_EQ(LookOf(CcRoiBase::hSelectedPen), 0x010000FFu);
    // A copy is not counted when it is made, and its end takes the pens away; they come back when they are needed.
    {
        const CcRoiRect copy(again);
        EXPECT_EQ(CcRoiBase::iNumOfROIs, 1);
    }
    EXPECT_EQ(CcRoiBase::iNumOfROIs, 0);
    CcGrayImage256 image;
    image.MakeBlankBMP(9, 9, 0, "i");
    EXPECT_EQ(again.ShowROI(GetDesktopWindow(), 0, 0, 1, &image, 1, 1), 0);
    EXPECT_EQ(LookOf(CcRoiBase::hSelectedPen), 0x010000FFu);
}

TEST(CcRoiBase, DifferentRoisInDifferentThreads) {
    constexpr int threads = 4, rounds = 2000;
    const int named = CcRoiRect::iRectROICount, outlines = CcRoiFreeHand::iFreehandROICount;
    std::atomic<int> wrong = 0;
    std::vector<std::thread> running;
    for (int thread = 1; thread <= threads; ++thread)
        running.emplace_back([&wrong, thread] {
            std::vector<POINT> row(static_cast<std::size_t>(10 * thread));
            for (std::size_t x = 0; x < row.size(); ++x) row[x] = {static_cast<LONG>(x), thread};
            for (int round = 0; round < rounds; ++round) {
                const CcRoiRect rect;
                CcRoiFreeHand outline;
                int count = 0;
                const bool isRight = SetOutline(outline, row) == 0 && outline.GetBoundingRect() &&
                                     outline.GetXBoundary(thread, &count) && count == 10 * thread;
                wrong += !isRight || !CcRoiBase::hSelectedPen;
            }
        });
    for (std::thread& thread : running) thread.join();
    EXPECT_EQ(wrong, 0);
    EXPECT_EQ(CcRoiRect::iRectROICount - named, threads * rounds);
    EXPECT_EQ(CcRoiFreeHand::iFreehandROICount - outlines, threads * rounds);
    EXPECT_EQ(CcRoiBase::iNumOfROIs, 0);
    EXPECT_EQ(CcRoiFreeHand::iNumOfFreeHandROIs, 0);
    EXPECT_EQ(CcRoiBase::hSelectedPen, nullptr);
}
