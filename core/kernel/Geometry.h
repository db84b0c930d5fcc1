// Points and rectangles of 32-bit integers, free of platform types.
#pragma once

namespace kest {

struct IntPoint {
    int x;
    int y;
    bool operator==(const IntPoint&) const = default;
};

/// Whether top or bottom is the larger depends on the space: in image coordinates (y upward) top is, in a window
/// bottom.
struct IntRect {
    int left;
    int top;
    int right;
    int bottom;
    bool operator==(const IntRect&) const = default;
};

struct RealPoint {
    double x;
    double y;
};

}  // namespace kest
