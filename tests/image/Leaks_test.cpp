// What many repetitions leave behind, for images of every class.
#include <gtest/gtest.h>

#include <functional>
#include <memory>

#include "image/Support.h"
#include "support/Census.h"
#include "support/Dialogs.h"
#include "support/TestWindow.h"

namespace {

template <class Image>
std::unique_ptr<CcImage> Make() {
    return std::make_unique<Image>();
}

constexpr std::unique_ptr<CcImage> (*kinds[])() = {
    Make<CcGrayImage256>,   Make<CcBinaryImage>,    Make<Cc24BitRGBImage>,  Make<Cc24BitHSLImage>,
    Make<CcGrayImageInt16>, Make<CcGrayImageInt32>, Make<CcGrayImageFloat>,
};

// The product is the 32-bit build; the other one holds no other handles.
constexpr int repetitions = sizeof(void*) == 4 ? 1000 : 100;

/// Ten repetitions may fill caches; the others must leave exactly what those left.
void ExpectSteady(const std::function<void()>& repeat, int count = repetitions) {
    for (int i = 0; i < 10; ++i) repeat();
    const test::Census before = test::TakeCensus();
    for (int i = 0; i < count; ++i) repeat();
    EXPECT_EQ(test::TakeCensus(), before);
}

}  // namespace

TEST(Leaks, RepetitionsLeaveNothing) {
    test::TestWindow window(41, 33);
    for (const auto make : kinds) {
        const auto image = make();
        SCOPED_TRACE(image->GetImageType());
        ASSERT_EQ(image->MakeBlankBMP(33, 41, 77, "leaks"), 0);
        image->GetOverlay()[5] = 13;
        image->Show(window, 101, 1, 0, 0, 1);
        const test::Picture first = window.Snapshot();
        ExpectSteady([&] { image->Show(window, 101, 1, 0, 0, 2); });
        ExpectSteady([&] { image->CopyToClipboard(window, 101, nullptr); }, 200);
        const test::TemporaryFile file("leaks.bmp"), raw16("leaks.i16"), raw32("leaks.i32"), rawFloat("leaks.flt");
        ASSERT_EQ(image->SaveBMPFile(file.Path()), 0);
        int width = 0;
        ExpectSteady([&] {
            const auto opened = make();
            opened->OpenBMPFile(file.Path());
            opened->MakeBlankBMP(30, 20, 5, "other");
            opened->OpenBMPFile(file.Path());
            opened->GetHeightWidth(nullptr, &width);
        });
        EXPECT_EQ(width, 41);
        ExpectSteady([&] {
            image->BeginThresholding(window, 101);
            image->ThresholdImage(window, 0, 10, 255, 0, 0);
            image->EndThresholding();
        });
        image->Show(window, 101, 1, 0, 0, 1);
        EXPECT_EQ(window.Snapshot(), first);
    }
    EXPECT_TRUE(test::TakeBoxes().empty());
}
