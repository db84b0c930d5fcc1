// The life of a freehand outline, and the class-wide memory that goes with the last of its class.
#include "roi/OutlineLife.h"

#include "core/Platform.h"
#include "roi/ClassWide.h"
#include "roi/OutlineRecord.h"

namespace kest {
namespace {

void ReleaseClassBlock(HGLOBAL& handle) {
    if (handle) {
        UnlockBlock(handle);
        FreeBlock(handle);
    }
    handle = nullptr;
}

void ReleaseRecords(const PixelRecords& pixels) {
    ReleaseClassBlock(pixels.block);
    pixels.Records() = nullptr;
}

bool MakeRecords(const PixelRecords& pixels, Size64 bytes) {
    ReleaseRecords(pixels);
    pixels.block = IsBlockSize(bytes) ? AllocateBlock(bytes) : nullptr;
    if (pixels.block) pixels.Records() = static_cast<CommPerPointsTag*>(LockBlock(pixels.block));
    if (!pixels.Records()) ReleaseRecords(pixels);
    return pixels.Records() != nullptr;
}

void ReleaseWorkArrays(const OutlineClassWide& classWide) {
    ReleaseRecords(classWide.row);
    ReleaseRecords(classWide.column);
    classWide.capacity = 0;
}

}  // namespace

void BeginOutline(const OutlineParts& outline) {
    outline.record = {};
    TakeColour(outline.record, CcRoiBase::stUnSelectedColor);
    outline.segment = 0;
    outline.drag.lastMouse = outline.lastMouseInImage = {};
    outline.drag.mode = -1;
    const ClassWideGuard guard;
    ++outline.kind.classWide.objects;
}

void EndOutline(const OutlineParts& outline) {
    AbandonDrag(outline.drag);
    const OutlineClassWide& classWide = outline.kind.classWide;
    const ClassWideGuard guard;
    // Copies are not counted when they are made, so the count can fall below 0.
    if (--classWide.objects > 0) return;
    classWide.objects = 0;
    ReleaseClassBlock(classWide.window.hPOINTS);
    classWide.window = {};
    classWide.windowSize = 0;
    ReleaseWorkArrays(classWide);
}

bool SizeWorkArrays(const OutlineClassWide& classWide, int records) {
    const ClassWideGuard guard;
    if (classWide.capacity >= records) return true;
    const Size64 bytes = Product(records, sizeof(CommPerPointsTag));
    if (!MakeRecords(classWide.row, bytes) || !MakeRecords(classWide.column, bytes)) {
        ReleaseWorkArrays(classWide);
        return false;
    }
    classWide.capacity = records;
    return true;
}

}  // namespace kest
