// What all regions of interest share: slots, pens and colours, names, files.
#include "CcRoiBase.h"

#include <gtest/gtest.h>

#include <memory>

#include "KestApi.h"
#include "support/Slots.h"

namespace {

COLORREF ColourOf(HPEN pen) {
    LOGPEN record = {};
    GetObjectA(pen, sizeof record, &record);
    return record.lopnColor;
}

int WidthOf(HPEN pen) {
    LOGPEN record = {};
    GetObjectA(pen, sizeof record, &record);
    return static_cast<int>(record.lopnWidth.x);
}

}  // namespace

TEST(CcRoiBase, SlotOrder) {
    using test::SlotOf;
    using U = unsigned short;
    EXPECT_EQ(SlotOf(&CcRoiBase::Save), 6);
    EXPECT_EQ(SlotOf(&CcRoiBase::Restore), 7);
    EXPECT_EQ(SlotOf(&CcRoiBase::SetRoiImageCord), 8);
    EXPECT_EQ(SlotOf(&CcRoiBase::GetRoiImageCord), 9);
    EXPECT_EQ(SlotOf(&CcRoiBase::StartMouseDrag), 10);
    EXPECT_EQ(SlotOf(&CcRoiBase::DoMouseDrag), 11);
    EXPECT_EQ(SlotOf(&CcRoiBase::StopMouseDrag), 12);
    EXPECT_EQ(SlotOf(&CcRoiBase::GetCurrentBoundingRect), 13);
    EXPECT_EQ(SlotOf(static_cast<int (CcRoiBase::*)(HDC, RECT*, int, int, U, CcImage*, int, int)>(&CcRoiBase::ShowROI)),
              14);
    EXPECT_EQ(SlotOf(static_cast<int (CcRoiBase::*)(HDC, HWND, int, int, U, CcImage*, int, int)>(&CcRoiBase::ShowROI)),
              15);
    EXPECT_EQ(SlotOf(static_cast<int (CcRoiBase::*)(HWND, int, int, U, CcImage*, int, int)>(&CcRoiBase::ShowROI)), 16);
    EXPECT_EQ(SlotOf(&CcRoiBase::MouseHitTest), 17);
    EXPECT_EQ(SlotOf(&CcRoiBase::GetBoundingRect), 18);
    EXPECT_EQ(SlotOf(&CcRoiBase::GetYBoundary), 19);
    EXPECT_EQ(SlotOf(&CcRoiBase::GetXBoundary), 20);
    EXPECT_EQ(SlotOf(&CcRoiBase::UpdateImageIfNeeded), 21);
    EXPECT_EQ(SlotOf(&CcRoiBase::IsRoiAGraphicObject), 22);
}

TEST(CcRoiBase, BaseObject) {
    CcRoiBase roi;
    EXPECT_EQ(roi.GetROIType(), -1);
    EXPECT_EQ(roi.GetType(), 2);
    int count = 7;
    EXPECT_EQ(roi.GetXBoundary(0, &count), nullptr);
    EXPECT_EQ(count, 0);
    EXPECT_EQ(roi.GetBoundingRect(), nullptr);
    EXPECT_EQ(roi.Save("x.roi"), -1);
    EXPECT_EQ(roi.UpdateImageIfNeeded(nullptr, 0, 0, 1, nullptr, 1), -1);
    EXPECT_EQ(roi.SetSelected(2), 0);
    EXPECT_EQ(roi.IsROISelected(), 0);
    roi.SetSelected(1);
    EXPECT_EQ(roi.IsROISelected(), 1);
}

TEST(CcRoiBase, PensAndColoursLiveWithTheRois) {
    RGBTRIPLE blue = {255, 0, 0}, seen = {};
    {
        CcRoiRect first;
        ASSERT_EQ(CcRoiBase::iNumOfROIs, 1);
        EXPECT_EQ(ColourOf(CcRoiBase::hSelectedPen), RGB(255, 0, 0));
        EXPECT_EQ(ColourOf(CcRoiBase::hUnSelectedPen), RGB(0, 255, 0));
        EXPECT_EQ(first.SetSelectedColor(nullptr), -1);
        EXPECT_EQ(first.SetSelectedColor(&blue), 0);
        EXPECT_EQ(ColourOf(CcRoiBase::hSelectedPen), RGB(0, 0, 255));
        CcRoiRect second;
        EXPECT_EQ(second.GetSelectedColor(&seen), 0);
        EXPECT_EQ(seen.rgbtBlue, 255);
        EXPECT_EQ(second.GetUnSelectedColor(&seen), 0);
        EXPECT_EQ(seen.rgbtGreen, 255);
        EXPECT_EQ(second.SetZoomPen(3), 0);
        EXPECT_EQ(WidthOf(CcRoiBase::hSelectedPen), 3);
        EXPECT_EQ(WidthOf(CcRoiBase::hUnSelectedPen), 3);
        EXPECT_EQ(ColourOf(CcRoiBase::hSelectedPen), RGB(0, 0, 255));
        EXPECT_EQ(CcRoiBase::iNumOfROIs, 2);
        const HPEN pen = CcRoiBase::hSelectedPen;
        EXPECT_NE(GetObjectType(pen), 0u);
    }
    EXPECT_EQ(CcRoiBase::hSelectedPen, nullptr);
    EXPECT_EQ(CcRoiBase::hUnSelectedPen, nullptr);
    CcRoiRect again;
    EXPECT_EQ(ColourOf(CcRoiBase::hSelectedPen), RGB(255, 0, 0));
    EXPECT_EQ(WidthOf(CcRoiBase::hSelectedPen), 1);
    // A copy is not counted when it is made, and its end takes the pens away; they come back when they are needed.
    {
        const CcRoiRect copy(again);
        EXPECT_EQ(CcRoiBase::iNumOfROIs, 1);
    }
    EXPECT_EQ(CcRoiBase::iNumOfROIs, 0);
    CcGrayImage256 image;
    image.MakeBlankBMP(9, 9, 0, "i");
    RECT client = {0, 0, 9, 9};
    const HDC dc = CreateCompatibleDC(nullptr);
    EXPECT_EQ(again.ShowROI(dc, &client, 0, 0, 1, &image, 1, 1), 0);
    DeleteDC(dc);
    EXPECT_EQ(ColourOf(CcRoiBase::hSelectedPen), RGB(255, 0, 0));
}
