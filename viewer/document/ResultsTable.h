// The measurements of a document's ROIs, as a table and as comma-separated text.
#pragma once

#include <string>
#include <vector>

#include "document/Document.h"

namespace kestview {

struct ResultRow {
    std::string name;
    std::string kind;
    KestRoiMeasurement values;
    bool isMeasured;     ///< false when memory was short
    double areaInBands;  ///< of the pixels under the ROI that are in the threshold bands; -1 without bands
};

struct ResultsTable {
    std::string units;  ///< "pixels" without a calibration
    std::vector<ResultRow> rows;
};

constexpr int resultColumnCount = 10;

/// Measures every ROI. World units are used when the document is calibrated.
ResultsTable MeasureRois(Document& document);
/// "Area (mm²)": titles say their units.
std::string ResultTitle(const ResultsTable& table, int column);
bool IsNumberColumn(int column);
/// The text of a cell; `digits` significant digits, and of large numbers all before the decimal point.
std::string ResultText(const ResultRow& row, int column, int digits);

/// The whole table. `separator` is ',' for files and a tab for the clipboard; texts are quoted where needed.
std::string ResultsAsText(const ResultsTable& table, char separator);

}  // namespace kestview
