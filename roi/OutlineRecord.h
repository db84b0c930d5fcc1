// The points and the colour of a freehand outline: set, moved out and back, in files and in streams.
#pragma once

#include "roi/KeptRoi.h"
#include "roi/OutlineParts.h"

class CcObjectStorage;

namespace kest {

/// What SetRoiImageCord does.
int TakeOutlineRecord(const OutlineParts& outline, const void* record);

int SaveOutline(const OutlineParts& outline, const char* path);
int RestoreOutline(const OutlineParts& outline, const char* path);
int StoreOutline(const OutlineParts& outline, CcObjectStorage* storage);
int LoadOutline(const OutlineParts& outline, CcObjectStorage* storage);
/// Writes the pixels as text.
int PrintOutline(const OutlineParts& outline, const char* path);

/// Exchanges the outline's points with those of a block.
void UsePoints(const OutlineParts& outline, KestGlobalBlock& points, int count);
/// The outline has no points from then on.
void MoveOut(const OutlineParts& outline, KeptOutline& kept);
void MoveBack(const OutlineParts& outline, KeptOutline& kept);

/// Notes the colour that the outline is drawn in.
void TakeColour(PixelGroupTag& record, const RGBTRIPLE& colour);

}  // namespace kest
