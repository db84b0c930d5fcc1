// The panes at the side, of which one is in front: whoever adds one adds a row to the table in SidePanes.cpp.
#pragma once

#include <memory>
#include <span>

#include "panes/DocumentPane.h"

namespace kestview {

struct SidePane {
    int command;        ///< of the menu, brings it to the front
    const char* title;  ///< of its tab
    const char* tip;
    int dialog;  ///< the template of its controls
    std::unique_ptr<DocumentPane> (*make)(PaneHost& host);
};

/// In the order of the tabs.
std::span<const SidePane> SidePanes();

}  // namespace kestview
