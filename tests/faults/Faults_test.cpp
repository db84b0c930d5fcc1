// Every public operation while the platform fails: the k-th call of each kind, alone and for good. An operation that
// then reports success has done all of its work; one that reports failure has changed nothing (or, where it cannot,
// says so in the table); nobody crashes, and everything that was taken is given back. And every operation again and
// again while nothing
// fails: nothing is left behind. script/faults runs them with more rounds, or one operation by name.
#include "faults/Faults.h"
#include "support/RunningStep.h"

using namespace test;

namespace {

struct Trials {
    int failures = 0;
    std::map<std::string, int> byGroup;
};

std::string Show(const std::string& state) {
    std::string text;
    for (const char character : state.substr(0, 60)) {
        char code[5];
        std::snprintf(code, sizeof code, character >= ' ' ? "%c" : "\\%02x", static_cast<unsigned char>(character));
        text += code;
    }
    return text + " (" + std::to_string(state.size()) + " bytes)";
}

/// Null when what one trial left is what the operation promises.
std::string WhatIsWrong(const Operation& operation, const std::string& group, int result, int boxes,
                        const std::string& before, const std::string& whole, const std::string& after) {
    if (result >= 0) {
        if (after == whole || (operation.allowed & Allowance::Drawn)) return {};
        if ((operation.allowed & Allowance::SilentIfOpen) && group == "open" && after == before) return {};
        if ((operation.allowed & Allowance::Told) && boxes > 0 && after == before) return {};
        return "says " + std::to_string(result) + " but left " + Show(after) + " instead of " + Show(whole);
    }
    const bool isSave = (operation.allowed & (Allowance::SilentIfOpen | Allowance::Told)) != 0;
    if (isSave && group == "write" && boxes == 0) return "failed with " + std::to_string(result) + ", but told nobody";
    if (after == before || (operation.allowed & Allowance::PartlyDone)) return {};
    return "failed with " + std::to_string(result) + " and changed " + Show(before) + " to " + Show(after);
}

/// The calls of each group that the operation makes when all goes well.
std::map<std::string, int> Rehearse(const Operation& operation, std::string& before, std::string& whole) {
    const Scene scene = operation.make();
    before = scene.state();
    Arm({});
    const int result = scene.run();
    const std::map<std::string, int> groups = Disarm();
    whole = scene.state();
    EXPECT_GE(result, 0) << operation.name << " fails by itself";
    EXPECT_EQ(TakeBoxCount(), 0) << operation.name;
    return groups;
}

void Try(const Operation& operation, Trials& trials) {
    std::string before, whole;
    Rehearse(operation, before, whole);  // pens, fonts and the like that stay are made now
    const std::map<std::string, int> groups = Rehearse(operation, before, whole);
    const std::string ledger = Ledger();
    for (const auto& [group, calls] : groups)
        for (int call = 1; call <= calls; ++call)
            for (const bool stays : {false, true}) {
                const std::string name =
                    operation.name + ", " + group + " call " + std::to_string(call) + (stays ? " and all behind" : "");
                runningStep = name;
                std::string wrong;
                {
                    const Scene scene = operation.make();
                    Arm({group, call, stays});
                    const int result = scene.run();
                    Disarm();
                    const int boxes = TakeBoxCount();
                    wrong = WhatIsWrong(operation, group, result, boxes, before, whole, scene.state());
                }
                TakeBoxCount();
                const std::string now = Ledger();
                if (now != ledger) wrong += " left " + now + " of " + ledger;
                ++trials.byGroup[group];
                if (wrong.empty()) continue;
                ++trials.failures;
                ADD_FAILURE() << name << ": " << wrong;
                ASSERT_LT(trials.failures, 200) << "and so on";
            }
}

/// Those whose name has the text in KEST_FAULT_OPERATION, or all.
std::vector<Operation> Chosen(const std::vector<Operation>& operations) {
    const char* const text = std::getenv("KEST_FAULT_OPERATION");
    std::vector<Operation> chosen;
    for (const Operation& operation : operations)
        if (!text || operation.name.find(text) != std::string::npos) chosen.push_back(operation);
    return chosen;
}

void TryAll(const std::vector<Operation>& operations) {
    PatchLibrary();
    Trials trials;
    for (const Operation& operation : operations) Try(operation, trials);
    int all = 0;
    for (const auto& [group, count] : trials.byGroup) {
        std::printf("%-12s %6d\n", group.c_str(), count);
        all += count;
    }
    std::printf("%d operations, %d trials, %d wrong\n", static_cast<int>(operations.size()), all, trials.failures);
}

void RepeatAll(const std::vector<Operation>& operations) {
    PatchLibrary();
    const char* const wanted = std::getenv("KEST_LEAK_ROUNDS");
    const int rounds = wanted ? std::atoi(wanted) : 15;
    for (const Operation& operation : operations) {
        runningStep = operation.name;
        std::string before, whole;
        Rehearse(operation, before, whole);
        const std::string ledger = Ledger();
        for (int round = 0; round < rounds; ++round) operation.make().run();
        EXPECT_EQ(Ledger(), ledger) << operation.name << ", " << rounds << " times";
    }
    std::printf("%d operations, %d times each\n", static_cast<int>(operations.size()), rounds);
}

}  // namespace

TEST(Faults, Images) { TryAll(Chosen(ImageOperations())); }
TEST(Faults, Rois) { TryAll(Chosen(RoiOperations())); }
TEST(Faults, StreamsListsCalibrationGraphsTools) { TryAll(Chosen(OtherOperations())); }

TEST(Leaks, Images) { RepeatAll(Chosen(ImageOperations())); }
TEST(Leaks, Rois) { RepeatAll(Chosen(RoiOperations())); }
TEST(Leaks, StreamsListsCalibrationGraphsTools) { RepeatAll(Chosen(OtherOperations())); }
