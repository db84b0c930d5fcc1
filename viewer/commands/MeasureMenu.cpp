// The Measure menu.
#include <fstream>

#include "commands/AllMenus.h"
#include "commands/Conditions.h"
#include "platform/Boxes.h"
#include "platform/Clipboard.h"
#include "platform/SavedFile.h"
#include "res/Resource.h"

namespace kestview {
namespace {

void MeasureTable(MainWindow& main, int) {
    if (!main.IsResultsShown()) main.ToggleResults();
    main.Results().Table();
}

void MeasureCopy(MainWindow& main, int) {
    if (!CopyText(main, ResultsAsText(main.Results().Table(), '\t')))
        ShowError(main, "The table could not be copied: another program is using the clipboard.");
}

void MeasureExport(MainWindow& main, int) {
    const auto path = AskSavePath(main, "Export Results", "Comma-separated values (*.csv)|*.csv|All files (*.*)|*.*|",
                                  "csv", main.Active()->Name() + ".csv");
    if (!path) return;
    // The mark tells spreadsheet programs that the text is UTF-8.
    const std::string text = "\xEF\xBB\xBF" + ResultsAsText(main.Results().Table(), ',');
    const auto bytes = static_cast<long long>(text.size());
    const auto write = [&](const std::string& newPath) {
        std::ofstream file(newPath, std::ios::binary);
        file << text;
        file.close();
        return !file.fail();
    };
    std::string error;
    if (!SaveWhole("The table", *path, bytes, write, error)) ShowError(main, error);
}

constexpr Command measureEntries[] = {
    {ID_MEASURE_TABLE, "&Results Table", "Ctrl+M", "Measure all ROIs", MeasureTable, HasPicture},
    {ID_MEASURE_COPY, "&Copy Table", "Ctrl+Shift+C", "Copy the results table", MeasureCopy, HasRois},
    {ID_MEASURE_EXPORT, "&Export Table...", "Ctrl+E", "Write the results table to a CSV file", MeasureExport, HasRois},
    line,
    {ID_MEASURE_HISTOGRAM, "&Histogram", "Ctrl+H", "Histogram of the picture or the selected ROI (Ctrl+H)", ShowPane,
     HasPicture, IsPaneShown},
    {ID_MEASURE_PROFILE, "Line &Profile", "Ctrl+L", "Values along the selected line or outline (Ctrl+L)", ShowPane,
     HasPicture, IsPaneShown},
};

}  // namespace

Menu MeasureMenu() { return {"&Measure", measureEntries}; }

}  // namespace kestview
