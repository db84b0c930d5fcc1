// ROIs with known coordinates, and what they list.
#pragma once

#include <array>
#include <memory>
#include <utility>
#include <vector>

#include "KestApi.h"

namespace test {

/// Left, top, right, bottom.
using Sides = std::array<LONG, 4>;

/// The record of a ROI that is a box, or a line from its first corner to the second.
inline Sides SidesOf(CcRoiBase& roi) {
    const RECT record = *static_cast<RECT*>(roi.GetRoiImageCord());
    return {record.left, record.top, record.right, record.bottom};
}

inline int SetBox(CcRoiBase& roi, RECT box) { return roi.SetRoiImageCord(&box); }

inline int SetOutline(CcRoiBase& roi, std::vector<POINT> points) {
    PixelGroupTag record = {0, 0, 0, static_cast<int>(points.size()), points.data(), nullptr};
    return roi.SetRoiImageCord(&record);
}

/// A ROI of that class with a box, or a line, or with an outline's points.
template <class Roi>
std::unique_ptr<Roi> Boxed(RECT box) {
    auto roi = std::make_unique<Roi>();
    SetBox(*roi, box);
    return roi;
}
template <class Roi>
std::unique_ptr<Roi> Outlined(std::vector<POINT> points) {
    auto roi = std::make_unique<Roi>();
    SetOutline(*roi, std::move(points));
    return roi;
}

inline PixelGroupTag& OutlineOf(CcRoiBase& roi) { return *static_cast<PixelGroupTag*>(roi.GetRoiImageCord()); }

inline std::vector<int> RowOf(CcRoiBase& roi, int y) {
    int count = 0;
    const int* columns = roi.GetXBoundary(y, &count);
    return std::vector<int>(columns, columns + count);
}

}  // namespace test
