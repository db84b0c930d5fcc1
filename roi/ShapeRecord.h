// The image record of a shape: set, in files and in streams.
#pragma once

#include "roi/ShapeParts.h"

class CcObjectStorage;

namespace kest {

/// What SetRoiImageCord does.
int TakeShapeRecord(const ShapeParts& shape, const void* record);

int SaveShape(const ShapeParts& shape, const char* path);
int RestoreShape(const ShapeParts& shape, const char* path);
int StoreShape(const ShapeParts& shape, CcObjectStorage* storage);
int LoadShape(const ShapeParts& shape, CcObjectStorage* storage);

}  // namespace kest
