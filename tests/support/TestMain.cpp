// The main function of the Windows test programs: dialogs are answered, and a crash names the running test.
#include <gtest/gtest.h>
#include <windows.h>

#include <cstdio>
#include <string>

#include "support/Dialogs.h"
#include "support/RunningStep.h"

namespace {

LONG WINAPI ReportCrash(EXCEPTION_POINTERS* exception) {
    const auto* info = testing::UnitTest::GetInstance()->current_test_info();
    std::fprintf(stderr, "CRASH 0x%lX at %p in %s %s\n", exception->ExceptionRecord->ExceptionCode,
                 exception->ExceptionRecord->ExceptionAddress, info ? info->name() : "no test",
                 test::runningStep.c_str());
    std::fflush(stderr);
    TerminateProcess(GetCurrentProcess(), 3);
    return EXCEPTION_EXECUTE_HANDLER;
}

/// Lets no test end with a box that it did not expect.
class Environment : public testing::EmptyTestEventListener {
    void OnTestStart(const testing::TestInfo&) override {
        test::TakeBoxes();
        test::runningStep.clear();
    }
    void OnTestEnd(const testing::TestInfo& info) override {
        for (const test::Box& box : test::TakeBoxes())
            ADD_FAILURE() << info.name() << " left a message box: [" << box.caption << "] " << box.text;
    }
};

}  // namespace

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    SetUnhandledExceptionFilter(ReportCrash);
    test::InstallDialogHook();
    testing::UnitTest::GetInstance()->listeners().Append(new Environment);
    return RUN_ALL_TESTS();
}
