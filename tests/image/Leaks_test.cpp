// What many repetitions leave behind, for images of every class.
#include <gtest/gtest.h>

#include <functional>
#include <memory>

#include "image/Support.h"
#include "support/Census.h"
#include "support/Dialogs.h"
#include "support/TestWindow.h"

namespace {

struct Kind {
    const char* name;
    std::unique_ptr<CcImage> (*make)();
};

template <class Image>
std::unique_ptr<CcImage> Make() {
    return std::make_unique<Image>();
}

const Kind kinds[] = {
    {"CcGrayImage256", Make<CcGrayImage256>},       {"CcBinaryImage", Make<CcBinaryImage>},
    {"Cc24BitRGBImage", Make<Cc24BitRGBImage>},     {"Cc24BitHSLImage", Make<Cc24BitHSLImage>},
    {"CcGrayImageInt16", Make<CcGrayImageInt16>},   {"CcGrayImageInt32", Make<CcGrayImageInt32>},
    {"CcGrayImageFloat", Make<CcGrayImageFloat>},
};

// The product is the 32-bit build; the other one holds no other handles.
constexpr int repetitions = sizeof(void*) == 4 ? 1000 : 100;

/// Ten repetitions may fill caches; the others must leave exactly what those left.
void ExpectSteady(const std::function<void()>& repeat) {
    for (int i = 0; i < 10; ++i) repeat();
    const test::Census before = test::TakeCensus();
    for (int i = 0; i < repetitions; ++i) repeat();
    EXPECT_EQ(test::TakeCensus(), before);
}

}  // namespace

TEST(Leaks, RepetitionsLeaveNothing) {
    test::TestWindow window(41, 33);
    for (const Kind& kind : kinds) {
        SCOPED_TRACE(kind.name);
        const auto image = kind.make();
        ASSERT_EQ(image->MakeBlankBMP(33, 41, 77, "leaks"), 0);
        image->GetOverlay()[5] = 13;
        image->Show(window, 101, 1, 0, 0, 1);
        const test::Picture first = window.Snapshot();
        ExpectSteady([&] { image->Show(window, 101, 1, 0, 0, 2); });
        ExpectSteady([&] { image->CopyToClipboard(window, 101, nullptr); });
        const test::TemporaryFile file("leaks.bmp"), samples[] = {test::TemporaryFile("leaks.i16"),
                                                                  test::TemporaryFile("leaks.i32"),
                                                                  test::TemporaryFile("leaks.flt")};
        ASSERT_EQ(image->SaveBMPFile(file.Path()), 0);
        int width = 0;
        ExpectSteady([&] {
            const auto opened = kind.make();
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
