// A printer for tests: what is printed is rendered into a picture.
#pragma once

#include <windows.h>

#include "support/TestWindow.h"

namespace test {

/// Makes the default printer: letter paper at 300 dots an inch, in colour. False where the system cannot have one.
bool InstallPrinter();

/// Waits for the page printed last and removes it: a pixel for every pixel of the printable area. Empty when none comes
/// within seconds.
Picture TakePrintedPage();

}  // namespace test
