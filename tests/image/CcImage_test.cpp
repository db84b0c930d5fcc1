// The image interface: slots, what the base does, the overlay, and window points.
#include "CcImage.h"

#include <gtest/gtest.h>

#include <cstring>

#include "image/Support.h"
#include "support/Dialogs.h"
#include "support/Slots.h"
#include "support/TestWindow.h"

using test::Box;
using test::TakeBoxes;

TEST(CcImage, SlotOrder) {
    using test::SlotOf;
    EXPECT_EQ(SlotOf(&CcImage::Load), 1);
    EXPECT_EQ(SlotOf(&CcImage::Store), 2);
    EXPECT_EQ(SlotOf(&CcImage::CopyToClipboard), 6);
    EXPECT_EQ(SlotOf(&CcImage::GetBitMapImageData), 7);
    using U = unsigned short;
    EXPECT_EQ(SlotOf(static_cast<int (CcImage::*)(HDC, RECT*, U, U, int, int, int)>(&CcImage::Show)), 8);
    EXPECT_EQ(SlotOf(static_cast<int (CcImage::*)(HDC, HWND, U, U, int, int, int)>(&CcImage::Show)), 9);
    EXPECT_EQ(SlotOf(static_cast<int (CcImage::*)(HWND, U, U, int, int, int)>(&CcImage::Show)), 10);
    EXPECT_EQ(SlotOf(&CcImage::Print), 11);
    EXPECT_EQ(SlotOf(&CcImage::GetDisplayLUT), 12);
    EXPECT_EQ(SlotOf(&CcImage::SetDisplayLUT), 13);
    EXPECT_EQ(SlotOf(&CcImage::OpenBMPFile), 14);
    EXPECT_EQ(SlotOf(&CcImage::SaveBMPFile), 15);
    EXPECT_EQ(SlotOf(&CcImage::MakeBlankBMP), 16);
    EXPECT_EQ(SlotOf(&CcImage::BeginThresholding), 17);
    EXPECT_EQ(SlotOf(&CcImage::ThresholdImage), 18);
    EXPECT_EQ(SlotOf(&CcImage::ThresholdImageMulti), 19);
    EXPECT_EQ(SlotOf(&CcImage::EndThresholding), 20);
    EXPECT_EQ(SlotOf(&CcImage::GetMinPixelValue), 21);
    EXPECT_EQ(SlotOf(&CcImage::GetMaxPixelValue), 22);
    EXPECT_EQ(SlotOf(&CcImage::SizeOf), 23);
    EXPECT_EQ(SlotOf(&CcImage::SetAutoUpdateDisplay), 24);
    EXPECT_EQ(SlotOf(&CcImage::GetAutoUpdateDisplay), 25);
    EXPECT_EQ(SlotOf(static_cast<float& (CcImage::*)(float, float)>(&CcImage::operator())), 26);
    EXPECT_EQ(SlotOf(static_cast<float& (CcImage::*)(int, int)>(&CcImage::operator())), 27);
    EXPECT_EQ(SlotOf(static_cast<void (CcImage::*)(float)>(&CcImage::operator=)), 28);
    EXPECT_EQ(SlotOf(&CcImage::GetRegion), 29);
}

TEST(CcImage, TheBaseComplainsAndThresholdingStillSucceeds) {
    CcImage image;
    const std::vector<Box> complaint = {{"Error", "This is a Virtual Function"}};
    const auto expectComplaint = [&](auto result, auto expected) {
        EXPECT_EQ(result, expected);
        EXPECT_EQ(TakeBoxes(), complaint);
    };
    tagPoints points[256];
    expectComplaint(image.CopyToClipboard(nullptr, 100, nullptr), -1);
    expectComplaint(image.Show(HWND{}, 100, 1, 0, 0, 1), -1);
    expectComplaint(image.Print(nullptr, 100, 1, 0, 0, 1), -1);
    expectComplaint(image.GetDisplayLUT(101, 1, points), -1);
    expectComplaint(image.OpenBMPFile("x"), -1);
    expectComplaint(image.MakeBlankBMP(1, 1, 0, "x"), -1);
    expectComplaint(image.BeginThresholding(nullptr, 0), 0);
    expectComplaint(image.ThresholdImage(nullptr, 0, 1, 0, 0, 0), 0);
    expectComplaint(image.ThresholdImageMulti(nullptr, nullptr, 0), 0);
    expectComplaint(image.EndThresholding(), 0);
    expectComplaint(image.GetMaxPixelValue(), -1.0F);
    expectComplaint(image.SizeOf(), -1);
    expectComplaint(image(0, 0), -1.0F);
    expectComplaint(image(0.0F, 0.0F), -1.0F);
    image = 3.0F;
    EXPECT_EQ(TakeBoxes(), complaint);
    EXPECT_EQ(image.GetRegion(nullptr, 0, 0), nullptr);
    EXPECT_EQ(image.GetBitMapImageData(), nullptr);
    EXPECT_EQ(image.GetImageType(), -1);
    EXPECT_EQ(image.GetType(), 1);
    EXPECT_EQ(image.GetListROI()->GetType(), 5);
    EXPECT_EQ(CcImage::iPrinterSetupFlag, 1);
    EXPECT_EQ(CcImage::stPrintSetup.lStructSize, sizeof(PRINTDLGA));
    EXPECT_TRUE(TakeBoxes().empty());
}

TEST(CcImage, OverlayLife) {
    CcGrayImage256 image;
    EXPECT_EQ(image.CreateOverlay(), -1);
    EXPECT_EQ(image.GetOverlay(), nullptr);
    EXPECT_EQ(image.ClearOverlay(), -1);
    EXPECT_EQ(image.SetOperatorOverloadAccess(1), -1);
    test::FillPattern(image, 5, 3);
    EXPECT_EQ(image.SetOperatorOverloadAccess(2), -1);
    EXPECT_EQ(image.FreeOverlay(), 0);
    EXPECT_EQ(image.ClearOverlay(), 0);
    ASSERT_EQ(image.SetOperatorOverloadAccess(1), 0);
    unsigned char* overlay = image.GetOverlay();
    EXPECT_EQ(image(4, 2), 0.0F);
    image = 13.0F;
    EXPECT_EQ(overlay[14], 13);
    EXPECT_EQ(image(3.5F, 1.5F), 0.0F);
    EXPECT_EQ(image(4.0F, 2.0F), 13.0F);
    EXPECT_EQ(image.ClearOverlay(), 0);
    EXPECT_EQ(overlay[14], 0);

    // Freed, the overlay is still noted as present.
    EXPECT_EQ(image.FreeOverlay(), 0);
    EXPECT_EQ(image.FreeOverlay(), 0);
    EXPECT_EQ(image.GetOverlay(), nullptr);
    EXPECT_EQ(image.ClearOverlay(), 0);
    EXPECT_EQ(image.SetOperatorOverloadAccess(1), 0);
    EXPECT_EQ(image(1, 1), -1.0F);
    image = 5.0F;
    EXPECT_EQ(image.CreateOverlay(), 0);
    EXPECT_EQ(image(1, 1), 0.0F);

    // An overlay of another size stays attached and is not left.
    ASSERT_EQ(image.MakeBlankBMP(50, 50, 0, "larger"), 0);
    EXPECT_EQ(image(49, 49), -1.0F);
    image = 7.0F;
    EXPECT_EQ(image.ClearOverlay(), 0);
    test::TestWindow window(40, 40);
    EXPECT_EQ(image.ShowOverlay(window, 0, 0, 0, 1), 0);
    EXPECT_EQ(image.ShowOverlay(window, 1, 2, 1, 3), 0);
}

TEST(CcImage, OverlayIsOredOntoThePicture) {
    test::TestWindow window(22, 14, RGB(0, 0, 64));
    CcGrayImage256 image;
    const HDC dc = GetDC(window);
    EXPECT_EQ(image.ShowOverlay(window, 1, 0, 0, 1), -1);
    test::FillPattern(image, 7, 5);
    EXPECT_EQ(image.ShowOverlay(window, 1, 0, 0, 0), -1);
    EXPECT_EQ(image.ShowOverlay(HWND{}, 1, 0, 0, 1), -1);
    EXPECT_EQ(image.ShowOverlay(HDC{}, window, 1, 0, 0, 1), -1);
    EXPECT_EQ(image.ShowOverlay(dc, window, 1, 0, 0, 1), -1);
    EXPECT_TRUE(TakeBoxes().empty());
    EXPECT_EQ(image.ShowOverlay(window, 1, 0, 0, 1), -1);
    EXPECT_EQ(TakeBoxes(), (std::vector<Box>{{"Error", "No Overlay to Display"}}));

    unsigned char* overlay = image.GetOverlay();
    overlay[0] = 13;          // bottom left: red
    overlay[4 * 7 + 6] = 34;  // top right: green, by value modulo 20
    EXPECT_EQ(image.ShowOverlay(window, 1, 0, 0, 1), 0);
    test::Picture picture = window.Snapshot();
    EXPECT_EQ(picture.At(0, 4), 0xFF0040u);
    EXPECT_EQ(picture.At(6, 0), 0x00FF40u);
    int changed = 0;
    for (const unsigned pixel : picture.pixels) changed += pixel != 0x000040;
    EXPECT_EQ(changed, 2);

    window.Fill(RGB(0, 0, 64));
    EXPECT_EQ(image.ShowOverlay(dc, window, 1, 1, 1, 2), 0);
    picture = window.Snapshot();
    for (int y = 0; y < 14; ++y)
        for (int x = 0; x < 22; ++x) EXPECT_EQ(picture.At(x, y), 0x000040u) << x << ' ' << y;
    EXPECT_EQ(image.ShowOverlay(dc, window, 1, 0, 0, 2), 0);
    picture = window.Snapshot();
    for (const POINT red : {POINT{0, 8}, POINT{1, 9}}) EXPECT_EQ(picture.At(red.x, red.y), 0xFF0040u);
    for (const POINT green : {POINT{12, 0}, POINT{13, 1}}) EXPECT_EQ(picture.At(green.x, green.y), 0x00FF40u);
    ReleaseDC(window, dc);
}

TEST(CcImage, WindowPointsToImagePoints) {
    test::TestWindow window(30, 40);
    CcGrayImage256 image;
    test::FillPattern(image, 60, 40);
    POINT at = {0, 0}, pixel = {};
    tagPoints position = {};
    EXPECT_EQ(image.ConvertPointToImageCoords(window, 0, 0, 1, &at, &pixel, 0), -1);
    EXPECT_EQ(image.ConvertPointToImageCoords(HWND{}, 0, 0, 1, &at, &pixel, 1), -1);
    EXPECT_EQ(image.ConvertPointToImageCoords(window, 0, 0, 1, nullptr, &pixel, 1), -1);
    EXPECT_EQ(image.ConvertPointToImageCoords(window, 0, 0, 1, &at, static_cast<tagPoints*>(nullptr), 1), -1);
    EXPECT_EQ(image.ConvertPointToImageCoords(window, 0, 0, 1, &at, &pixel, 2), 0);
    EXPECT_EQ(pixel.y, 38);
    EXPECT_EQ(image.ConvertPointToImageCoords(window, 0, 0, 1, &at, &position, 2), 0);
    EXPECT_EQ(position.y, 39.5F);
    at = {29, 39};
    EXPECT_EQ(image.ConvertPointToImageCoords(window, 9, 9, 0, &at, &pixel, 1), 0);
    EXPECT_EQ(pixel.x, 58);
    EXPECT_EQ(pixel.y, 0);
}

TEST(CcImage, SmallAccessorsAndCopies) {
    CcGrayImage256 image;
    test::FillPattern(image, 6, 4, "source");
    int height = 0, width = 0;
    EXPECT_EQ(image.GetHeightWidth(&height, &width), 0);
    EXPECT_EQ(height, 4);
    EXPECT_EQ(width, 6);
    EXPECT_EQ(image.SetInstance(12), 0);
    EXPECT_EQ(image.GetInstance(), 12);
    EXPECT_EQ(image.ReScaleImageOnShow(), 0);
    image.GetListROI()->InsertTail(new CcRoiRect);
    {
        CcGrayImage256 copy(image);
        EXPECT_EQ(copy.GetBitMapImageData(), image.GetBitMapImageData());
        EXPECT_EQ(copy(2, 3), static_cast<float>(test::PatternValue(2, 3)));
        EXPECT_EQ(copy.GetListROI()->GetNumberOfObjects(), 1);
        copy.MakeBlankBMP(9, 9, 1, "own");
    }
    EXPECT_EQ(image(2, 3), static_cast<float>(test::PatternValue(2, 3)));
    EXPECT_EQ(image.GetListROI()->GetHead()->GetType(), 2);
}
