// What the two shapes with a bounding box as record, rectangle and ellipse, have in common. A class adds its members
// `record` and `window`, and what draws, hits and lists it.
#pragma once

#include <algorithm>

#include "roi/ShapeMembers.h"

namespace kest {

template <class Shape>
struct BoxTraits {
    using Own = KestShapeTraits<Shape>;
    using Record = RECT;
    using WindowRecord = RECT;
    static constexpr bool isNormalised = true;

    static Record& RecordOf(Shape& shape) { return shape.*Own::record; }
    static void TakeRecord(Shape& shape, const Record& record) { shape.*Own::record = record; }
    static IntRect CornersOf(Shape& shape) { return ToRect(shape.*Own::record); }
    /// Clamps outward only: a top below the image or a left beyond it is kept.
    static void TakeCorners(Shape& shape, const View& view, const IntRect& corners) {
        shape.*Own::record = {std::max(corners.left, 0), std::min(corners.top, view.imageHeight - 1),
                              std::min(corners.right, view.imageWidth - 1), std::max(corners.bottom, 0)};
    }
    static IntRect WindowCornersOf(Shape& shape, const View& view) { return WindowCorners(view, CornersOf(shape)); }
    static WindowRecord& WindowRecordOf(Shape& shape) { return shape.*Own::window; }
    static IntRect WindowOf(Shape& shape) { return ToRect(shape.*Own::window); }
    static void SetWindow(Shape& shape, const IntRect& place) { shape.*Own::window = FromRect(place); }
    static void FollowCreation(IntRect& place, IntPoint mouse) {
        place.right = mouse.x;
        place.bottom = mouse.y;
    }
};

}  // namespace kest
