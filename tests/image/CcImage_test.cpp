// The image interface: slots, what the base does, the overlay, and window points.
#include "support/ClassTests.h"

using namespace test;

TEST(CcImage, SlotOrder) {
    using U = unsigned short;
    using I = CcImage;
    ExpectSlots(1, &I::Load, &I::Store);
    ExpectSlots(6, &I::CopyToClipboard, &I::GetBitMapImageData,
                static_cast<int (I::*)(HDC, RECT*, U, U, int, int, int)>(&I::Show),
                static_cast<int (I::*)(HDC, HWND, U, U, int, int, int)>(&I::Show),
                static_cast<int (I::*)(HWND, U, U, int, int, int)>(&I::Show), &I::Print, &I::GetDisplayLUT,
                &I::SetDisplayLUT, &I::OpenBMPFile, &I::SaveBMPFile, &I::MakeBlankBMP, &I::BeginThresholding,
                &I::ThresholdImage, &I::ThresholdImageMulti, &I::EndThresholding, &I::GetMinPixelValue,
                &I::GetMaxPixelValue, &I::SizeOf, &I::SetAutoUpdateDisplay, &I::GetAutoUpdateDisplay,
                static_cast<float& (I::*)(float, float)>(&I::operator()),
                static_cast<float& (I::*)(int, int)>(&I::operator()), static_cast<void (I::*)(float)>(&I::operator=),
                &I::GetRegion);
}

TEST(CcImage, TheBaseComplainsAndThresholdingStillSucceeds) {
    CcImage image;
    EXPECT_EQ(image.OpenBMPFile("x"), -1);
    ExpectAll(-1.0F, {image.GetMaxPixelValue(), image(0, 0)});
    ExpectAll(0, {image.BeginThresholding(nullptr, 0), image.ThresholdImage(nullptr, 0, 1, 0, 0, 0),
                  image.EndThresholding()});
    EXPECT_EQ(TakeBoxes(), Boxes(6, Box{"Error", "This is a Virtual Function"}));
    EXPECT_EQ(image.GetRegion(nullptr, 0, 0), nullptr);
}

TEST(CcImage, OverlayLife) {
    CcGrayImage256 image;
    ExpectAll(-1, {image.CreateOverlay(), image.ClearOverlay(), image.SetOperatorOverloadAccess(1)});
    FillPattern(image, 5, 3);
    ExpectAll(0, {image.FreeOverlay(), image.ClearOverlay()});
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
    for (int i = 0; i < 2; ++i) EXPECT_EQ(image.FreeOverlay(), 0);
    EXPECT_EQ(image.GetOverlay(), nullptr);
    EXPECT_EQ(image.SetOperatorOverloadAccess(1), 0);
    EXPECT_EQ(image(1, 1), -1.0F);
    image = 5.0F;
    EXPECT_EQ(image.CreateOverlay(), 0);
    EXPECT_EQ(image(1, 1), 0.0F);

    // An overlay of another size stays attached and is not left.
    ASSERT_EQ(image.MakeBlankBMP(50, 50, 0, "larger"), 0);
    EXPECT_EQ(image(49, 49), -1.0F);
    image = 7.0F;
    ExpectAll(0, {image.ClearOverlay(), image.ShowOverlay(GetDesktopWindow(), 1, 2, 1, 3)});
}

TEST(CcImage, OverlayIsOredOntoThePicture) {
    TestWindow window(22, 14, RGB(0, 0, 64));
    CcGrayImage256 image;
    const HDC dc = GetDC(window);
    EXPECT_EQ(image.ShowOverlay(window, 1, 0, 0, 1), -1);
    FillPattern(image, 7, 5);
    ExpectAll(-1, {image.ShowOverlay(window, 1, 0, 0, 0), image.ShowOverlay(HWND{}, 1, 0, 0, 1),
                   image.ShowOverlay(dc, window, 1, 0, 0, 1)});
    EXPECT_TRUE(TakeBoxes().empty());
    EXPECT_EQ(image.ShowOverlay(window, 1, 0, 0, 1), -1);
    EXPECT_EQ(TakeBoxes(), (Boxes{{"Error", "No Overlay to Display"}}));

    unsigned char* overlay = image.GetOverlay();
    overlay[0] = 13;          // bottom left: red
    overlay[4 * 7 + 6] = 34;  // top right: green, by value modulo 20
    const auto expect = [&](int zoom, unsigned red, unsigned green) {
        const auto marks = [&](int x, int y) { return x + y == 0 ? red : x + y == 10 ? green : windowBlue; };
        EXPECT_EQ(window.Snapshot().DifferentFrom(ExpectedPicture(22, 14, 7, 5, 0, 0, zoom, marks)), 0) << zoom;
    };
    EXPECT_EQ(image.ShowOverlay(window, 1, 0, 0, 1), 0);
    expect(1, 0xFF0040, 0x00FF40);
    window.Fill(RGB(0, 0, 64));
    EXPECT_EQ(image.ShowOverlay(dc, window, 1, 1, 1, 2), 0);
    expect(2, windowBlue, windowBlue);
    EXPECT_EQ(image.ShowOverlay(dc, window, 1, 0, 0, 2), 0);
    expect(2, 0xFF0040, 0x00FF40);
    ReleaseDC(window, dc);
}

TEST(CcImage, WindowPointsToImagePoints) {
    TestWindow window(30, 40);
    CcGrayImage256 image;
    FillPattern(image, 60, 40);
    POINT at = {29, 39}, pixel = {};
    tagPoints position = {};
    EXPECT_EQ(image.ConvertPointToImageCoords(window, 0, 0, 1, &at, &pixel, 0), -1);
    EXPECT_EQ(image.ConvertPointToImageCoords(HWND{}, 0, 0, 1, &at, &pixel, 1), -1);
    EXPECT_EQ(image.ConvertPointToImageCoords(window, 0, 0, 1, nullptr, &pixel, 1), -1);
    EXPECT_EQ(image.ConvertPointToImageCoords(window, 0, 0, 1, &at, static_cast<tagPoints*>(nullptr), 1), -1);
    EXPECT_EQ(image.ConvertPointToImageCoords(window, 9, 9, 0, &at, &pixel, 1), 0);
    EXPECT_EQ(pixel.x * 100 + pixel.y, 5800);
    at = {0, 0};
    EXPECT_EQ(image.ConvertPointToImageCoords(window, 0, 0, 1, &at, &position, 2), 0);
    EXPECT_EQ(position.y, 39.5F);
}

TEST(CcImage, CopiesShareWhatTheyHold) {
    CcGrayImage256 image;
    FillPattern(image, 6, 4, "source");
    image.GetListROI()->InsertTail(new CcRoiRect);
    {
        CcGrayImage256 copy(image);
        EXPECT_EQ(copy.GetBitMapImageData(), image.GetBitMapImageData());
        EXPECT_EQ(copy.GetListROI()->GetNumberOfObjects(), 1);
        copy.MakeBlankBMP(9, 9, 1, "own");
    }
    EXPECT_EQ(image(2, 3), PatternFloat(2, 3));
    EXPECT_EQ(image.GetListROI()->GetHead()->GetType(), 2);
}
