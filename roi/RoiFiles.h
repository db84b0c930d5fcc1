// ROI files: one ROI with its name. Accepted: version 1.0, the class's own type code, and for shapes of a fixed size
// exactly its record. Refused: everything else; then nothing is taken.
#pragma once

#include "KestBlocks.h"
#include "KestTypes.h"
#include "KestWholeFile.h"

namespace kest {

/// `count` is the record's size in bytes, or the number of points of a freehand outline. KEST_FAILED when the file
/// cannot be created. What the disk does not take is no failure to callers, but the user is told and an old file stays.
int WriteRoiFile(const char* path, int roiType, int count, const char* name, const void* record, long long recordBytes);

/// Tells the user of a file that the disk did not take; nothing of other results.
void TellLostRoi(const KestWholeFile& file);

/// A ROI file that was read.
struct RoiFile {
    char name[KEST_NAME_SIZE];  ///< a name that fills its field without a terminator is cut by its last character
    int count;
    KestHeapBlock record;
};

/// Reads header and record; `bytesPerCount` times the stored count must exist behind the header (8 a point, 1 a byte).
bool ReadRoiFile(const char* path, int roiType, int bytesPerCount, RoiFile& file);

}  // namespace kest
