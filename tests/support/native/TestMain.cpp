// The main function of the native test programs: what the message boxes say is kept, and no test ends with one that it
// did not expect.
#include <gtest/gtest.h>

#include <ostream>
#include <utility>

#include "native/Messages.h"
#include "support/Dialogs.h"

// A block that cannot be had is null here as it is for users; the library has to go on.
extern "C" const char* __asan_default_options() { return "allocator_may_return_null=1"; }

namespace test {
namespace {

std::vector<Box> boxes;
std::function<void()> duringBox;

class Environment : public testing::EmptyTestEventListener {
    void OnTestStart(const testing::TestInfo&) override { TakeBoxes(); }
    void OnTestEnd(const testing::TestInfo& info) override {
        for (const Box& box : TakeBoxes())
            ADD_FAILURE() << info.name() << " left a message box: [" << box.caption << "] " << box.text;
    }
};

}  // namespace

std::vector<Box> TakeBoxes() { return std::exchange(boxes, {}); }

void DuringNextBox(std::function<void()> act) { duringBox = std::move(act); }

void PrintTo(const Box& box, std::ostream* out) { *out << '[' << box.caption << "] " << box.text; }

}  // namespace test

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    kest::SetMessageReader([](const char* text, const char* caption) {
        test::boxes.push_back({caption, text});
        if (const auto act = std::exchange(test::duringBox, nullptr)) act();
    });
    testing::UnitTest::GetInstance()->listeners().Append(new test::Environment);
    return RUN_ALL_TESTS();
}
