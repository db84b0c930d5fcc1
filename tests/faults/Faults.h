// Makes the platform fail under the library: the DLL's imports that can fail are replaced by ones that fail when told
// to, while the system's own calls of the same functions go on as ever.
#pragma once

#include "support/ClassTests.h"

namespace test {

/// Which call fails: the `call`-th (from 1) of all functions of a group, such as "write", which count together; with
/// `stays` all behind it as well. Call 0: none.
struct Fault {
    std::string group;
    int call = 0;
    bool stays = false;
};

/// Patches the library, once a process; message boxes of the library are from then on answered without a window.
void PatchLibrary();

/// Calls are counted, and fail, between the two. The second tells how many each group had.
void Arm(const Fault& fault);
std::map<std::string, int> Disarm();

/// What the process and the library hold of the system's: handles, GDI objects, blocks, files, libraries, capture and
/// cursor clip.
std::string Ledger();

void EmptyTheClipboard();

/// How many boxes the library has shown since the last call.
int TakeBoxCount();

/// Jobs of one page that the library has finished on the printer that stands in for the system's.
int PagesPrinted();

/// An operation of the library on objects of its own. It is made anew for each trial.
struct Scene {
    std::function<int()> run;            ///< negative: failed
    std::function<std::string()> state;  ///< all that the operation may change, as bytes
};

/// What an operation may do besides "failed and changed nothing" and "succeeded wholly". Those with SilentIfOpen or
/// Told save a file: when the disk does not take it they show a box.
enum Allowance : unsigned {
    Nothing = 0,
    PartlyDone = 1,    ///< a failure may leave it half done: streams, drawings, what is replaced
    SilentIfOpen = 2,  ///< a file that cannot be opened or created is no failure, and nothing changes
    Told = 8,          ///< a write that the disk does not take is told in a box, not by the result, and nothing changes
    Drawn = 4,         ///< how it is drawn is not part of success: pens, texts and clips that the system refused
};

struct Operation {
    std::string name;
    std::function<Scene()> make;
    unsigned allowed = Nothing;
};

/// The operations of each part of the library.
std::vector<Operation> ImageOperations();
std::vector<Operation> RoiOperations();
std::vector<Operation> OtherOperations();

}  // namespace test
