// Images on a rendered page and on the clipboard.
#include "support/ClassTests.h"
#include "support/Imports.h"
#include "support/Printer.h"

using namespace test;

namespace {

/// Answers the print dialog; the document's page, or none when it is cancelled.
void AnswerPrintDialog(int button) {
    OperateNextDialog([button](HWND dialog) { SendMessageA(GetDlgItem(dialog, button), BM_CLICK, 0, 0); });
}

/// The bitmap on the clipboard.
Picture ClipboardPicture() {
    Picture picture;
    if (!OpenClipboard(nullptr)) return picture;
    if (const auto bitmap = static_cast<HBITMAP>(GetClipboardData(CF_BITMAP))) {
        BITMAP info;
        GetObjectA(bitmap, sizeof info, &info);
        const HDC screen = GetDC(nullptr), memory = CreateCompatibleDC(screen);
        const HGDIOBJ old = SelectObject(memory, bitmap);
        picture = PictureOf(memory, info.bmWidth, info.bmHeight);
        SelectObject(memory, old);
        DeleteDC(memory);
        ReleaseDC(nullptr, screen);
    }
    CloseClipboard();
    return picture;
}

/// An image whose palettes cannot be selected, which a message tells.
struct WithoutPalettes : CcGrayImage256 {
    WithoutPalettes() {
        MakeBlankBMP(2000, 2000, 200, "large");
        DeleteObject(stTable101.hPalette);
    }
};

/// What the host does while the printer asks for a file.
std::function<void()> duringStart;

int WINAPI AskAndStart(HDC printer, const DOCINFOA* job) {
    if (duringStart) duringStart();
    return StartDocA(printer, job);
}

}  // namespace

TEST(Print, PageInEveryTable) {
    ASSERT_TRUE(InstallPrinter());
    CcGrayImage256 image;
    FillPattern(image, 99, 60);
    for (const int x : {10, 11}) image.GetOverlay()[40 * 99 + x] = 13;
    tagPoints curve[256], before[256], after[256];
    image.GetDisplayLUT(101, 1, before);
    for (int k = 0; k < 256; ++k) curve[k] = {static_cast<float>(k), 255.0F - static_cast<float>(k)};
    image.SetDisplayLUT(101, 2, curve);

    for (unsigned short lut = 100; lut <= 104; ++lut) {
        SCOPED_TRACE(lut);
        AnswerPrintDialog(IDOK);
        ASSERT_EQ(image.Print(nullptr, lut, 0, 0, 0, 1), 0);
        const Picture page = TakePrintedPage();
        ASSERT_EQ(page.width, 2400);
        // The width first exceeds half of the page's 2400 pixels at 16; the page is compared in the middle of each
        // pixel.
        int different = 0;
        for (int y = 0; y < 60; ++y)
            for (int x = 0; x < 99; ++x) {
                const int level = PatternValue(x, y);
                unsigned expected = Gray(lut == 103 ? level / 2 : lut == 104 ? level / 4 : level);
                if (lut == 101) expected = (expected & 0xFF00FF) | static_cast<unsigned>(255 - level) << 8;
                if (y == 39 && (x == 10 || x == 11)) expected = 0xFF0000;  // the mark lies a block below its pixel
                different += page.At(x * 16 + 8, (59 - y) * 16 + 8) != expected;
            }
        EXPECT_EQ(different, 0);
        EXPECT_EQ(page.At(99 * 16 + 8, 30), 0xFFFFFFu);
    }
    image.GetDisplayLUT(101, 1, after);
    EXPECT_EQ(std::memcmp(before, after, sizeof before), 0);
    TakeBoxes();
}

TEST(Print, NothingToPrint) {
    ASSERT_TRUE(InstallPrinter());
    CcGrayImage256 image;
    EXPECT_EQ(image.Print(nullptr, 101, 0, 0, 0, 1), -1);
    image.MakeBlankBMP(5, 5, 0, "i");
    for (const auto& [button, lut] : {std::pair{IDCANCEL, 101}, {IDOK, 99}}) {
        AnswerPrintDialog(button);
        EXPECT_EQ(image.Print(nullptr, static_cast<unsigned short>(lut), 0, 0, 0, 1), -1);
    }
    EXPECT_EQ(CcImage::stPrintSetup.hDC, nullptr);
}

TEST(Print, PictureReplacedWhileADialogIsShown) {
    ASSERT_TRUE(InstallPrinter());
    const ReplacedImport start(GetModuleHandleA("KestApi.dll"), "StartDocA", &AskAndStart);
    // What was drawn; 0 for nothing.
    const auto levels = [](const std::function<void(CcImage&)>& replace) {
        const auto levelOf = [](const Picture& picture, int place) {
            return place < picture.width && place < picture.height ? picture.At(place, place) : 0;
        };
        WithoutPalettes copied, printed;
        CcGrayImage256 started;
        started.MakeBlankBMP(2000, 2000, 200, "large");
        DuringNextBox([&] { replace(copied); });
        const int copy = copied.CopyToClipboard(nullptr, 101, nullptr);
        std::vector<unsigned> found = {copy < 0 ? 0 : levelOf(ClipboardPicture(), 4)};
        const auto print = [&](CcGrayImage256& image) {
            AnswerPrintDialog(IDOK);
            const int result = image.Print(nullptr, 101, 0, 0, 0, 1);
            found.push_back(result < 0 ? 0 : levelOf(TakePrintedPage(), 600));
        };
        DuringNextBox([&] { replace(printed); });
        print(printed);
        duringStart = [&] { replace(started); };
        print(started);
        duringStart = nullptr;
        return found;
    };
    EXPECT_EQ(levels([](CcImage& image) { image.MakeBlankBMP(5, 5, 77, "small"); }), std::vector(3, Gray(77)));
    EXPECT_EQ(levels([](CcImage& image) { image.OpenBMPFile("there is no such file.bmp"); }), std::vector(3, 0u));
    EXPECT_EQ(TakeBoxes().size(), 7u);
}

TEST(Clipboard, RectangleWithOverlay) {
    TestWindow window(50, 50);
    CcGrayImage256 image;
    FillPattern(image, 101, 80);
    image.GetOverlay()[25 * 101 + 12] = 14;
    RECT rect = {10, 60, 50, 20};
    ASSERT_EQ(image.CopyToClipboard(window, 102, &rect), 0);
    Picture copied = ClipboardPicture();
    const auto pixel = [](int x, int y) {
        return Gray(PatternValue(x + 10, y + 20)) | (x == 2 && y == 5 ? 0x00FF00u : 0);
    };
    EXPECT_EQ(copied.DifferentFrom(ExpectedPicture(40, 40, 40, 40, 0, 0, 1, pixel)), 0);

    // All of it, through a table that does not exist: the colour table.
    ASSERT_EQ(image.CopyToClipboard(nullptr, 7, nullptr), 0);
    copied = ClipboardPicture();
    EXPECT_EQ(copied.width, 101);
    EXPECT_EQ(copied.At(3, 79), Gray(PatternValue(3, 0)));

    RECT outside = {90, 100, 110, 70};
    ASSERT_EQ(image.CopyToClipboard(window, 102, &outside), 0);
    copied = ClipboardPicture();
    EXPECT_EQ(copied.At(0, 29), Gray(PatternValue(90, 70)));
    EXPECT_EQ(copied.At(19, 0), 0u);
    RECT empty = {10, 20, 10, 60};
    EXPECT_EQ(image.CopyToClipboard(window, 102, &empty), -1);
    EXPECT_EQ(CcGrayImage256().CopyToClipboard(window, 102, nullptr), -1);
}

TEST(Clipboard, ColourPictureMakesNoOverlay) {
    TestWindow window(50, 50);
    Cc24BitRGBImage image;
    FillPattern(image, 21, 17, "colours");
    RECT rect = {3, 17, 16, 2};
    for (const unsigned overlay : {0u, 0xFF0000u}) {
        ASSERT_EQ(image.CopyToClipboard(window, 0, &rect), 0);
        EXPECT_EQ(image.SetOperatorOverloadAccess(1), overlay ? 0 : -1);
        const auto pixel = [&](int x, int y) {
            return PatternColour(x + 3, y + 2).Screen() | (x + y == 0 ? overlay : 0);
        };
        EXPECT_EQ(ClipboardPicture().DifferentFrom(ExpectedPicture(13, 15, 13, 15, 0, 0, 1, pixel)), 0) << overlay;
        image.GetOverlay()[2 * 21 + 3] = 13;
    }
}
