// The measurements of a document's ROIs, as a table and as comma-separated text.
#include "document/ResultsTable.h"

#include <algorithm>
#include <cstdlib>

#include "document/BandCount.h"
#include "document/PixelText.h"
#include "document/RoiKinds.h"
#include "platform/Busy.h"
#include "platform/Text.h"

namespace kestview {
namespace {

struct Column {
    const char* title;
    const char* unit;  ///< printf format of the unit behind the title; null for none
    double KestRoiMeasurement::*value;
};

const Column columns[resultColumnCount] = {
    {"Name", nullptr, nullptr},
    {"Kind", nullptr, nullptr},
    {"Pixels", nullptr, nullptr},
    {"Length", " (%s)", &KestRoiMeasurement::dLengthWorld},
    {"Area", " (square %s)", &KestRoiMeasurement::dAreaWorld},
    {"Mean", nullptr, &KestRoiMeasurement::dMean},
    {"Minimum", nullptr, &KestRoiMeasurement::dMinimum},
    {"Maximum", nullptr, &KestRoiMeasurement::dMaximum},
    {"Std. dev.", nullptr, &KestRoiMeasurement::dStandardDeviation},
    {"In bands", " (square %s)", nullptr},
};

std::string Quoted(const std::string& text, char separator) {
    if (text.find_first_of(std::string("\"\r\n") + separator) == std::string::npos) return text;
    std::string quoted = "\"";
    for (const char c : text) {
        if (c == '"') quoted += '"';
        quoted += c;
    }
    return quoted + '"';
}

/// Of the bands, for which the whole picture is drawn twice, and of the ROIs' bounding rectangles.
long long BytesToMeasure(Document& document) {
    const SIZE size = document.Size();
    long long pixels = document.RoiCount() > 0 && !document.Bands().empty() ? 8LL * size.cx * size.cy : 0;
    for (int i = 0; i < document.RoiCount(); ++i)
        if (const RECT* bounds = document.Roi(i).GetCurrentBoundingRect())
            pixels += std::min<long long>(size.cx, std::abs(1LL * bounds->right - bounds->left)) *
                      std::min<long long>(size.cy, std::abs(1LL * bounds->top - bounds->bottom));
    return pixels;
}

}  // namespace

ResultsTable MeasureRois(Document& document) {
    const PlainPixels plain(document);
    Busy busy("Measuring", BytesToMeasure(document));
    ResultsTable table;
    table.units = UnitOf(document.Image());
    const int count = document.RoiCount();
    const bool hasBands = !document.Bands().empty() && ThresholdPreview::IsPossible(document.Image());
    std::vector<std::uint8_t> mask;
    if (count > 0 && hasBands) mask = document.BandMask();
    for (int i = 0; i < count; ++i) {
        CcRoiBase& roi = document.Roi(i);
        ResultRow row = {roi.GetName(), KindLabel(roi), {}, true, -1};
        row.isMeasured = KestMeasureRoi(&document.Image(), &roi, &row.values) == 0;
        if (hasBands) {
            const std::optional<BandCount> inBands = CountInBands(document, mask, &roi);
            row.isMeasured = row.isMeasured && inBands;
            if (inBands) row.areaInBands = inBands->area;
        }
        table.rows.push_back(row);
        busy.Report(i + 1, count);
    }
    return table;
}

std::string ResultTitle(const ResultsTable& table, int column) {
    const Column& record = columns[column];
    std::string title = record.title;
    if (!record.unit) return title;
    const std::string unit = record.unit;
    return title + unit.substr(0, unit.find("%s")) + table.units + unit.substr(unit.find("%s") + 2);
}

bool IsNumberColumn(int column) { return column >= 2; }

std::string ResultText(const ResultRow& row, int column, int digits) {
    if (column == 0) return row.name;
    if (column == 1) return row.kind;
    if (!row.isMeasured) return "not measured";
    if (column == 2) return Format("%lld", row.values.llPixels);
    if (!columns[column].value) return row.areaInBands < 0 ? "" : PlainNumber(row.areaInBands, digits);
    return PlainNumber(row.values.*columns[column].value, digits);
}

std::string ResultsAsText(const ResultsTable& table, char separator) {
    // As many as samples of 32 bits have.
    constexpr int exportDigits = 10;
    std::string text;
    const auto addLine = [&](const auto& cell) {
        for (int column = 0; column < resultColumnCount; ++column) {
            if (column > 0) text += separator;
            text += Quoted(cell(column), separator);
        }
        text += "\r\n";
    };
    addLine([&](int column) { return ResultTitle(table, column); });
    for (const ResultRow& row : table.rows) addLine([&](int column) { return ResultText(row, column, exportDigits); });
    return text;
}

}  // namespace kestview
