// The buttons of the toolbar: whoever adds one adds a drawing and a row in ToolbarButtons.cpp.
#pragma once

#include <span>

#include "window/Pencil.h"

namespace kestview {

struct ToolbarButton {
    Drawing draw;
    int command;  ///< 0: a gap
    BYTE style = 0;
};

/// From left to right.
std::span<const ToolbarButton> ToolbarButtons();

}  // namespace kestview
