// Drawing, moving and resizing a shape with the mouse.
#pragma once

#include "roi/DisplayArguments.h"
#include "roi/ShapeParts.h"

namespace kest {

int StartShapeDrag(const ShapeParts& shape, HWND window, const DisplayArguments& display, POINT mouse, int mode,
                   CcRoiBase* source);
int ContinueShapeDrag(const ShapeParts& shape, HWND window, const DisplayArguments& display, POINT mouse);
int StopShapeDrag(const ShapeParts& shape, HWND window, const DisplayArguments& display, POINT mouse);

}  // namespace kest
