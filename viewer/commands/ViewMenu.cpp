// The View menu.
#include <algorithm>

#include "commands/AllMenus.h"
#include "commands/Conditions.h"
#include "res/Resource.h"

namespace kestview {
namespace {

/// Fit, and powers of two.
int ZoomOf(int id) { return id == ID_VIEW_ZOOM_FIT ? 0 : 1 << (id - ID_VIEW_ZOOM_1); }

void ViewZoomIn(MainWindow& main, int) { main.View().ZoomIn(); }

void ViewZoomOut(MainWindow& main, int) { main.View().ZoomOut(); }

void ViewZoomTo(MainWindow& main, int id) { main.View().SetZoom(ZoomOf(id)); }

bool IsViewZoom(MainWindow& main, int id) { return main.Active() && main.Active()->view.zoom == ZoomOf(id); }

void ViewRoiNames(MainWindow& main, int) {
    main.View().showsRoiNames = !main.View().showsRoiNames;
    main.View().Refresh(DisplayChanged);
}

bool IsRoiNames(MainWindow& main, int) { return main.View().showsRoiNames; }

void ViewResults(MainWindow& main, int) { main.ToggleResults(); }

bool IsResults(MainWindow& main, int) { return main.IsResultsShown(); }

void ViewSide(MainWindow& main, int) { main.ToggleSide(); }

bool IsSide(MainWindow& main, int) { return main.IsSideShown(); }

bool HasPictures(MainWindow& main, int) { return main.Documents().size() > 1; }

void ViewNextPicture(MainWindow& main, int id) {
    const auto& documents = main.Documents();
    const auto at =
        std::find_if(documents.begin(), documents.end(), [&](const auto& held) { return held.get() == main.Active(); });
    const auto count = documents.size(), index = static_cast<std::size_t>(at - documents.begin());
    main.Activate(documents[(index + (id == ID_VIEW_NEXT_PICTURE ? 1 : count - 1)) % count].get());
}

constexpr Command viewEntries[] = {
    {ID_VIEW_ZOOM_IN, "Zoom &In", "Ctrl++", "Zoom in (+ or mouse wheel)", ViewZoomIn, HasPicture},
    {ID_VIEW_ZOOM_OUT, "Zoom &Out", "Ctrl+-", "Zoom out (- or mouse wheel)", ViewZoomOut, HasPicture},
    {ID_VIEW_ZOOM_FIT, "&Fit", "Ctrl+0", "Fit the whole picture in (Ctrl+0)", ViewZoomTo, HasPicture, IsViewZoom},
    {ID_VIEW_ZOOM_1, "&1 : 1", "Ctrl+1", "One picture pixel is one screen pixel", ViewZoomTo, HasPicture, IsViewZoom},
    {ID_VIEW_ZOOM_2, "&2 : 1", "Ctrl+2", "Twice as large", ViewZoomTo, HasPicture, IsViewZoom},
    {ID_VIEW_ZOOM_4, "&4 : 1", "Ctrl+4", "Four times as large", ViewZoomTo, HasPicture, IsViewZoom},
    {ID_VIEW_ZOOM_8, "&8 : 1", "Ctrl+8", "Eight times as large", ViewZoomTo, HasPicture, IsViewZoom},
    {ID_VIEW_ZOOM_16, "1&6 : 1", "", "Sixteen times as large", ViewZoomTo, HasPicture, IsViewZoom},
    line,
    {ID_VIEW_ROI_NAMES, "ROI &Names", "", "Write the names of ROIs into the picture", ViewRoiNames, Always, IsRoiNames},
    {ID_VIEW_RESULTS, "&Results", "F6", "Show or hide the results table", ViewResults, Always, IsResults},
    {ID_VIEW_SIDE, "&Side Panes", "F7", "Show or hide the panes at the side", ViewSide, Always, IsSide},
    line,
    {ID_VIEW_NEXT_PICTURE, "N&ext Picture", "Ctrl+Tab", "Go to the next picture", ViewNextPicture, HasPictures},
    {ID_VIEW_PREVIOUS_PICTURE, "&Previous Picture", "Ctrl+Shift+Tab", "Go to the previous picture", ViewNextPicture,
     HasPictures},
};

}  // namespace

Menu ViewMenu() { return {"&View", viewEntries}; }

}  // namespace kestview
