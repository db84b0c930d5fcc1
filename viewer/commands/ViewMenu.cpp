// The View menu.
#include <algorithm>

#include "commands/Commands.h"
#include "res/Resource.h"
#include "window/MainWindow.h"

namespace kestview {
namespace {

/// Fit, and powers of two.
int ZoomOf(int id) {
    return id == ID_VIEW_ZOOM_FIT ? 0 : 1 << (id - ID_VIEW_ZOOM_1);
}

}  // namespace

void ViewZoomIn(MainWindow& main, int) {
    main.View().ZoomIn();
}

void ViewZoomOut(MainWindow& main, int) {
    main.View().ZoomOut();
}

void ViewZoomTo(MainWindow& main, int id) {
    main.View().SetZoom(ZoomOf(id));
}

bool IsViewZoom(MainWindow& main, int id) {
    return main.Active() && main.Active()->view.zoom == ZoomOf(id);
}

void ViewRoiNames(MainWindow& main, int) {
    main.View().showsRoiNames = !main.View().showsRoiNames;
    main.View().Refresh(DisplayChanged);
}

bool IsRoiNames(MainWindow& main, int) {
    return main.View().showsRoiNames;
}

void ViewResults(MainWindow& main, int) {
    main.ToggleResults();
}

bool IsResults(MainWindow& main, int) {
    return main.IsResultsShown();
}

void ViewSide(MainWindow& main, int) {
    main.ToggleSide();
}

bool IsSide(MainWindow& main, int) {
    return main.IsSideShown();
}

void ViewNextPicture(MainWindow& main, int id) {
    const auto& documents = main.Documents();
    const auto at =
        std::find_if(documents.begin(), documents.end(), [&](const auto& held) { return held.get() == main.Active(); });
    const auto count = documents.size(), index = static_cast<std::size_t>(at - documents.begin());
    main.Activate(documents[(index + (id == ID_VIEW_NEXT_PICTURE ? 1 : count - 1)) % count].get());
}

}  // namespace kestview
