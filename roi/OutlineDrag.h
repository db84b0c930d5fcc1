// Drawing and moving a freehand outline with the mouse.
#pragma once

#include "roi/DisplayArguments.h"
#include "roi/OutlineParts.h"

namespace kest {

/// An outline has no rectangle to take from `source`, which mode 0 needs all the same.
int StartOutlineDrag(const OutlineParts& outline, HWND window, const DisplayArguments& display, POINT mouse, int mode,
                     CcRoiBase* source);
int ContinueOutlineDrag(const OutlineParts& outline, HWND window, const DisplayArguments& display, POINT mouse,
                        int addVertex);
int StopOutlineDrag(const OutlineParts& outline, HWND window, const DisplayArguments& display, POINT mouse);

}  // namespace kest
