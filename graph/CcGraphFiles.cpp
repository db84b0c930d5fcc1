// CcGraph: appearance files. They hold the settings of a graph, without its curves, one field after another in 3560
// bytes. A file that is longer is read as far as it is known; one that is shorter is refused.
#include <cstdio>
#include <cstring>

#include "CcGraph.h"
#include "KestWholeFile.h"
#include "core/Files.h"
#include "core/Messages.h"
#include "core/kernel/ByteReader.h"

namespace {

constexpr int fileBytes = 3560;

struct FieldWriter {
    kest::ByteWriter& writer;

    template <class Number>
    void operator()(Number& number) const {
        writer.Write(number);
    }
    template <std::size_t N>
    void operator()(char (&text)[N]) const {
        writer.WriteBytes(text, N);
    }
};

struct FieldReader {
    kest::ByteReader& reader;

    template <class Number>
    void operator()(Number& number) const {
        reader.Read(number);
    }
    template <std::size_t N>
    void operator()(char (&text)[N]) const {
        reader.ReadBytes(text, N);
        text[N - 1] = 0;
    }
};

/// Tells what stands before and behind the file's name.
void ShowFileFailure(const char* before, const char* fileName, const char* behind = "") {
    char text[KEST_NAME_SIZE + 40];
    std::snprintf(text, sizeof text, "%s%.*s%s", before, KEST_NAME_SIZE, fileName ? fileName : "", behind);
    kest::ShowMessage(text, "Error...");
}

}  // namespace

/// Calls `visit(field)` for each number and text, in the order of the file.
template <class Visitor>
void CcGraph::VisitAppearance(Visitor visit) {
    for (int& extent : stMapExtents) visit(extent);
    for (int& origin : stMapOrigins) visit(origin);
    for (float* value : {&fXMin, &fXOrigin, &fXMax, &fYMin, &fYOrigin, &fYMax}) visit(*value);
    for (int& side : stPlotRect) visit(side);
    for (int& marking : iGridMarkings) visit(marking);
    visit(szXAxisText);
    visit(szYAxisText);
    visit(szTitleText);
    for (int* option : {&iXAxisOption, &iXPrecision, &iYAxisOption, &iYPrecision}) visit(*option);
    for (tagCURVEAPPEARANCE& appearance : stCurveAppearance) {
        auto colour = static_cast<std::uint32_t>(appearance.ulColor);
        visit(colour);
        appearance.ulColor = colour;
        visit(appearance.iStyle);
        visit(appearance.iWidth);
        visit(appearance.szName);
    }
}

int CcGraph::SaveAppearance(const char* pszFileName) {
    std::uint8_t bytes[fileBytes];
    kest::ByteWriter writer(bytes);
    VisitAppearance(FieldWriter{writer});
    constexpr unsigned long notShared = 0;
    KestWholeFile file(pszFileName, notShared);
    file.Write(bytes, fileBytes);
    file.Replace();
    if (file.GetResult() == KestWholeFile::NotWritten) ShowFileFailure("Can't write file:", pszFileName);
    if (file.GetResult() != KestWholeFile::NotCreated) return KEST_OK;
    ShowFileFailure("Can't open file:", pszFileName, " for saving");
    return KEST_FAILED;
}

int CcGraph::RestoreAppearance(const char* pszFileName) {
    const kest::FileHandle file(kest::OpenForReading(pszFileName));
    if (!file.IsOpen()) {
        ShowFileFailure("Can't open file:", pszFileName, " for reading");
        return KEST_FAILED;
    }
    std::uint8_t bytes[fileBytes];
    if (!kest::ReadExactly(file, bytes, fileBytes)) return KEST_FAILED;
    kest::ByteReader reader(bytes);
    VisitAppearance(FieldReader{reader});
    return KEST_OK;
}
