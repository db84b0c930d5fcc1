// ROI files: one ROI with its name. Accepted: version 1.0, the class's own type code, and for shapes of a fixed size
// exactly its record. Refused: everything else; then nothing is taken.
#pragma once

#include "KestBlocks.h"
#include "KestTypes.h"

namespace kest {

/// `count` is the record's size in bytes, or the number of points of a freehand outline.
int WriteRoiFile(const char* path, int roiType, int count, const char* name, const void* record, long long recordBytes);

/// A ROI file that was read.
struct RoiFile {
    char name[KEST_NAME_SIZE];  ///< a name that fills its field without a terminator is cut by its last character
    int count;
    KestHeapBlock record;
};

/// Reads header and record; `bytesPerCount` times the stored count must exist behind the header (8 a point, 1 a byte).
bool ReadRoiFile(const char* path, int roiType, int bytesPerCount, RoiFile& file);

}  // namespace kest
