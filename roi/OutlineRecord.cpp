// The points and the colour of a freehand outline: set, moved out and back, in files and in streams.
#include "roi/OutlineRecord.h"

#include <cstdio>
#include <cstring>

#include "CcObjectStorage.h"
#include "CcPropertyBag.h"
#include "core/kernel/ByteReader.h"
#include "core/kernel/CheckedSize.h"
#include "roi/RoiFiles.h"
#include "roi/RoiStreams.h"

namespace kest {
namespace {

constexpr int pointBytes = sizeof(POINT);
constexpr int storedRecordBytes = 24;

void CopyColour(PixelGroupTag& record, const PixelGroupTag& source) {
    record.iRed = source.iRed;
    record.iGreen = source.iGreen;
    record.iBlue = source.iBlue;
}

int TakePoints(const OutlineParts& outline, const POINT* source, int count) {
    KestGlobalBlock points;
    const Size64 bytes = Product(count, pointBytes);
    if (points.Allocate(bytes))
        std::memcpy(points.Get(), source, static_cast<std::size_t>(bytes));
    else
        count = 0;
    UsePoints(outline, points, count);
    return count > 0 ? KEST_OK : KEST_FAILED;
}

/// As SetRoiImageCord, but when memory is short the outline keeps what it has.
bool SetOrKeep(const OutlineParts& outline, PixelGroupTag& record) {
    KeptOutline kept;
    MoveOut(outline, kept);
    const bool isSet = outline.roi.SetRoiImageCord(&record) >= 0;
    if (!isSet) MoveBack(outline, kept);
    return isSet;
}

}  // namespace

int TakeOutlineRecord(const OutlineParts& outline, const void* record) {
    PixelGroupTag source;
    if (!record) return KEST_FAILED;
    std::memcpy(&source, record, sizeof source);
    if (source.iNumOfPoints < 1 || !source.stPOINTS) return KEST_FAILED;
    return TakePoints(outline, source.stPOINTS, source.iNumOfPoints);
}

int SaveOutline(const OutlineParts& outline, const char* path) {
    const auto pixels = outline.Pixels();
    return WriteRoiFile(path, outline.kind.typeCode, static_cast<int>(pixels.size()), outline.roi.GetName(),
                        pixels.data(), static_cast<long long>(pixels.size_bytes()));
}

int RestoreOutline(const OutlineParts& outline, const char* path) {
    RoiFile file;
    if (!ReadRoiFile(path, outline.kind.typeCode, pointBytes, file)) return KEST_FAILED;
    PixelGroupTag record = {};
    record.iNumOfPoints = file.count;
    record.stPOINTS = reinterpret_cast<POINT*>(file.record.Get());
    // The file of an outline without points gives its name to another one, but takes no points away.
    const bool isTaken = file.count > 0 ? SetOrKeep(outline, record) : outline.Pixels().empty();
    if (!isTaken) return KEST_FAILED;
    outline.roi.SetName(file.name);
    return KEST_OK;
}

int StoreOutline(const OutlineParts& outline, CcObjectStorage* storage) {
    if (!storage) return KEST_FAILED;
    const auto pixels = outline.Pixels();
    std::uint8_t record[storedRecordBytes] = {};
    ByteWriter writer(record);
    for (const int value :
         {outline.record.iRed, outline.record.iGreen, outline.record.iBlue, static_cast<int>(pixels.size())})
        writer.Write(value);
    CcPropertyBag bag;
    const bool isPut = bag.PutBlob(outline.kind.recordKey, record, sizeof record) == KEST_OK &&
                       (pixels.empty() || bag.ReferToBlob(outline.kind.pointsKey, pixels.data(),
                                                          static_cast<long>(pixels.size_bytes())) == KEST_OK);
    return !isPut || storage->PutObject(&bag) < 0 ? KEST_FAILED : KEST_OK;
}

int LoadOutline(const OutlineParts& outline, CcObjectStorage* storage) {
    if (!storage) return KEST_FAILED;
    CcPropertyBag bag;
    if (storage->GetNextObject(&bag) < 0) return KEST_FAILED;
    std::uint8_t record[storedRecordBytes];
    if (!TakeWholeBlob(bag, outline.kind.recordKey, record, sizeof record)) return KEST_FAILED;
    PixelGroupTag stored = {};
    ByteReader reader(record);
    for (int* field : {&stored.iRed, &stored.iGreen, &stored.iBlue, &stored.iNumOfPoints}) reader.Read(*field);
    if (stored.iNumOfPoints < 0) return KEST_FAILED;
    KestGlobalBlock points;
    if (stored.iNumOfPoints > 0) {
        const Size64 bytes = Product(stored.iNumOfPoints, pointBytes);
        // A count that the stored points do not bear out costs no memory.
        if (!IsBlobOf(bag, outline.kind.pointsKey, bytes) || !points.Allocate(bytes)) return KEST_FAILED;
        bag.GetBlob(outline.kind.pointsKey, points.Get(), static_cast<long>(bytes));
    }
    UsePoints(outline, points, stored.iNumOfPoints);
    CopyColour(outline.record, stored);
    return KEST_OK;
}

int PrintOutline(const OutlineParts& outline, const char* path) {
    KestWholeFile file(path);
    char lines[4096];
    constexpr int longestLine = 40;  // three numbers of up to 11 characters, and what separates them
    int index = 0, used = 0;
    for (const IntPoint& pixel : outline.Pixels()) {
        used += std::snprintf(lines + used, longestLine, "%d\t%d\t%d\r\n", index++, pixel.x, pixel.y);
        if (used + longestLine <= static_cast<int>(sizeof lines)) continue;
        file.Write(lines, used);
        used = 0;
    }
    file.Write(lines, used);
    file.Replace();
    TellLostRoi(file);
    return file.GetResult() == KestWholeFile::NotWritten ? KEST_FAILED : KEST_OK;
}

void UsePoints(const OutlineParts& outline, KestGlobalBlock& points, int count) {
    outline.points.Swap(points);
    outline.record.iNumOfPoints = count;
    outline.record.stPOINTS = static_cast<POINT*>(outline.points.Get());
    outline.record.hPOINTS = outline.points;
    outline.queries.iSortedPoints = 0;
}

void MoveOut(const OutlineParts& outline, KeptOutline& kept) {
    kept.record = outline.record;
    kept.points.Release();
    UsePoints(outline, kept.points, 0);
}

void MoveBack(const OutlineParts& outline, KeptOutline& kept) {
    UsePoints(outline, kept.points, kept.record.iNumOfPoints);
    CopyColour(outline.record, kept.record);
}

void TakeColour(PixelGroupTag& record, const RGBTRIPLE& colour) {
    record.iRed = colour.rgbtRed;
    record.iGreen = colour.rgbtGreen;
    record.iBlue = colour.rgbtBlue;
}

}  // namespace kest
