// The Measure menu.
#include "commands/Commands.h"
#include "res/Resource.h"
#include "window/MainWindow.h"

namespace kestview {

void MeasureTable(MainWindow& main, int) {
    if (!main.IsResultsShown()) main.ToggleResults();
    main.Results().Table();
}

void MeasureCopy(MainWindow& main, int) {
    main.Results().CopyTable();
}

void MeasureExport(MainWindow& main, int) {
    main.Results().ExportTable();
}

void MeasureGraph(MainWindow& main, int id) {
    main.ShowSidePage(id == ID_MEASURE_HISTOGRAM ? HistogramPage : ProfilePage);
}

bool IsMeasureGraph(MainWindow& main, int id) {
    return main.IsSideShown() && main.ShownSidePage() == (id == ID_MEASURE_HISTOGRAM ? HistogramPage : ProfilePage);
}

}  // namespace kestview
