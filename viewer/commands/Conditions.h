// What many commands have in common: when they are possible, and the commands that show a pane.
#pragma once

#include "window/MainWindow.h"

namespace kestview {

inline bool Always(MainWindow&, int) { return true; }
inline bool Never(MainWindow&, int) { return false; }
inline bool HasPicture(MainWindow& main, int) { return main.Active() != nullptr; }
inline bool HasRois(MainWindow& main, int) { return main.Active() && main.Active()->RoiCount() > 0; }
inline bool HasSelection(MainWindow& main, int) { return main.Active() && main.Active()->SelectedRoi(); }

/// Brings the pane at the side that has this command (panes/SidePanes.cpp) to the front.
inline void ShowPane(MainWindow& main, int id) { main.ShowPane(id); }
inline bool IsPaneShown(MainWindow& main, int id) { return main.IsPaneShown(id); }

}  // namespace kestview
