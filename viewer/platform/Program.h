// What all parts need of the application object, which is derived from this: the program's only global.
#pragma once

#include <windows.h>

#include <string>

#include "platform/Settings.h"

namespace kestview {

class Program {
public:
    Program();
    virtual ~Program();
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    /// Tells what is being done, with the part from 0 to 1 that is done already; a part below 0 is not known. An empty
    /// text: it is done.
    virtual void ShowProgress(const std::string& text, double part) = 0;

    Settings settings;
    COLORREF mixedColours[16] = {};  ///< the colours that the user mixed in the colour dialog
};

/// Null while no program runs: the documents work without one.
Program* RunningProgram();

}  // namespace kestview
