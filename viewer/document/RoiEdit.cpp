// Moving a ROI, or one of its handles, by whole pixels of the picture.
#include "document/RoiEdit.h"

#include <algorithm>
#include <climits>
#include <cmath>
#include <cstring>

#include "document/RoiKinds.h"

namespace kestview {
namespace {

/// A file can have put a point anywhere.
long WholeOf(float coordinate) {
    constexpr float farthest = 1e9F;
    return std::lround(std::floor(std::isnan(coordinate) ? 0 : std::clamp(coordinate, -farthest, farthest)));
}

constexpr int left = 0, top = 1, right = 2, bottom = 3;  // of the sides

}  // namespace

RoiEdit::Room RoiEdit::RoomFor(long low, long high, long size) {
    // What lies outside already may come back, but goes no further. It can be as far away as numbers go.
    const long long most = static_cast<long long>(size) - 1 - high;
    return {static_cast<long>(std::min(0LL, -1LL * low)), static_cast<long>(std::clamp(most, 0LL, 1LL * LONG_MAX))};
}

RoiEdit::RoiEdit(CcRoiBase& newRoi, int hitCode, SIZE picture) : roi(newRoi) {
    POINT low = {LONG_MAX, LONG_MAX}, high = {LONG_MIN, LONG_MIN};
    const auto addX = [&](long x) { low.x = std::min(low.x, x), high.x = std::max(high.x, x); };
    const auto addY = [&](long y) { low.y = std::min(low.y, y), high.y = std::max(high.y, y); };
    const void* record = roi.GetRoiImageCord();
    if (RecordOf(roi) == KEST_RECORD_OUTLINE) {
        const auto& group = *static_cast<const PixelGroupTag*>(record);
        if (group.stPOINTS) outline.assign(group.stPOINTS, group.stPOINTS + group.iNumOfPoints);
        for (const POINT& pixel : outline) addX(pixel.x), addY(pixel.y);
    } else if (RecordOf(roi) == KEST_RECORD_POINT) {
        point = *static_cast<const tagPoints*>(record);
        addX(WholeOf(point.x)), addY(WholeOf(point.y));
    } else {
        std::memcpy(sides.data(), record, sizeof sides);
        HoldSides(hitCode);
        for (const int side : {left, right})
            if (isHeld[static_cast<std::size_t>(side)]) addX(sides[static_cast<std::size_t>(side)]);
        for (const int side : {top, bottom})
            if (isHeld[static_cast<std::size_t>(side)]) addY(sides[static_cast<std::size_t>(side)]);
    }
    if (low.x <= high.x) across = RoomFor(low.x, high.x, picture.cx);
    if (low.y <= high.y) up = RoomFor(low.y, high.y, picture.cy);
}

void RoiEdit::HoldSides(int hitCode) {
    // Handles 1 to 4: top, bottom, left, right; 5 to 8: the corners, of which a line has two as its ends.
    constexpr std::array<bool, 4> held[] = {
        {true, true, true, true},    {false, true, false, false}, {false, false, false, true},
        {true, false, false, false}, {false, false, true, false}, {true, true, false, false},
        {false, true, true, false},  {true, false, false, true},  {false, false, true, true}};
    if (hitCode >= 0 && hitCode < static_cast<int>(std::size(held))) isHeld = held[hitCode];
}

void RoiEdit::MoveSides(POINT distance) {
    std::array<int, 4> moved = sides;
    for (std::size_t i = 0; i < moved.size(); ++i)
        if (isHeld[i]) moved[i] += static_cast<int>(i % 2 == 0 ? distance.x : distance.y);
    // A handle can be drawn past the opposite side.
    if (RecordOf(roi) != KEST_RECORD_LINE) {
        if (moved[left] > moved[right]) std::swap(moved[left], moved[right]);
        if (moved[bottom] > moved[top]) std::swap(moved[bottom], moved[top]);
    }
    roi.SetRoiImageCord(moved.data());
}

void RoiEdit::MoveBy(POINT distance) {
    distance.x = std::clamp(distance.x, across.least, across.most);
    distance.y = std::clamp(distance.y, up.least, up.most);
    hasMoved = distance.x != 0 || distance.y != 0;
    if (RecordOf(roi) == KEST_RECORD_OUTLINE) {
        POINT* points = static_cast<PixelGroupTag*>(roi.GetRoiImageCord())->stPOINTS;
        for (const POINT& pixel : outline) *points++ = {pixel.x + distance.x, pixel.y + distance.y};
    } else if (RecordOf(roi) == KEST_RECORD_POINT) {
        tagPoints moved = {point.x + static_cast<float>(distance.x), point.y + static_cast<float>(distance.y)};
        roi.SetRoiImageCord(&moved);
    } else {
        MoveSides(distance);
    }
}

}  // namespace kestview
