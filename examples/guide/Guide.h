// The programs of the programmer's guide: a function a chapter. Each does what the chapter tells and checks that the
// library did what the chapter says.
#pragma once

#include <KestApi.h>

#include "Example.h"

namespace guide {

/// Prints what does not hold, and notes it for the exit status.
void Expect(bool holds, const char* what);

void Showing();
void DrawingRegions();
void WorkingOnPixels();
void CuttingRegions();
void KeepingObjects();
void Streams();
void Thresholding();
void Colour();
void WideImages();
void Measuring();
void Graphs();
void Tools();
void OwnClasses();

}  // namespace guide
