// The image record of a shape: set, in files and in streams.
#include "roi/ShapeRecord.h"

#include <cstring>

#include "CcObjectStorage.h"
#include "CcPropertyBag.h"
#include "roi/RoiFiles.h"
#include "roi/RoiStreams.h"

namespace kest {

int TakeShapeRecord(const ShapeParts& shape, const void* record) {
    if (!record) return KEST_FAILED;
    // A host may hand in the shape's own record.
    std::memmove(shape.record, record, static_cast<std::size_t>(shape.kind.recordBytes));
    return KEST_OK;
}

int SaveShape(const ShapeParts& shape, const char* path) {
    const int bytes = shape.kind.recordBytes;
    return WriteRoiFile(path, shape.kind.typeCode, bytes, shape.roi.GetName(), shape.record, bytes);
}

int RestoreShape(const ShapeParts& shape, const char* path) {
    RoiFile file;
    if (!ReadRoiFile(path, shape.kind.typeCode, 1, file) || file.count != shape.kind.recordBytes) return KEST_FAILED;
    if (shape.roi.SetRoiImageCord(file.record.Get()) < 0) return KEST_FAILED;
    shape.roi.SetName(file.name);
    return KEST_OK;
}

int StoreShape(const ShapeParts& shape, CcObjectStorage* storage) {
    if (!storage) return KEST_FAILED;
    CcPropertyBag bag;
    const bool isPut = bag.PutBlob(shape.kind.recordKey, shape.record, shape.kind.recordBytes) == KEST_OK;
    return !isPut || storage->PutObject(&bag) < 0 ? KEST_FAILED : KEST_OK;
}

int LoadShape(const ShapeParts& shape, CcObjectStorage* storage) {
    if (!storage) return KEST_FAILED;
    CcPropertyBag bag;
    if (storage->GetNextObject(&bag) < 0) return KEST_FAILED;
    RECT record;  // room for that of every class
    if (!TakeWholeBlob(bag, shape.kind.recordKey, &record, shape.kind.recordBytes)) return KEST_FAILED;
    return shape.roi.SetRoiImageCord(&record);
}

}  // namespace kest
