// The Measure menu.
#include <fstream>

#include "commands/Commands.h"
#include "platform/Boxes.h"
#include "platform/Clipboard.h"
#include "platform/SavedFile.h"
#include "res/Resource.h"
#include "window/MainWindow.h"

namespace kestview {

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

void MeasureGraph(MainWindow& main, int id) {
    main.ShowPane(id);
}

bool IsMeasureGraph(MainWindow& main, int id) {
    return main.IsPaneShown(id);
}

}  // namespace kestview
