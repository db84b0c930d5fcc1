// Finds the straight lines that a chain of pixels was drawn from.
#pragma once

#include <cstddef>
#include <span>

#include "core/kernel/Geometry.h"

namespace kest {

/// The index of the last pixel of the longest digital straight line that begins at chain[first] and follows the chain:
/// all its pixels lie within half a pixel, up or down or sideways, of one straight line. Two pixels that do not touch
/// are a line of their own. `first` itself for the last pixel. Pixels that repeat their predecessor are passed over.
std::size_t EndOfStraightLine(std::span<const IntPoint> chain, std::size_t first);

/// Calls visit(pixel) for the first pixel of the chain and for the end of each of the lines that make it up, and tells
/// how many these are.
template <class Visit>
int VisitCorners(std::span<const IntPoint> chain, Visit visit) {
    if (chain.empty()) return 0;
    int count = 1;
    visit(chain.front());
    for (std::size_t at = 0; at + 1 < chain.size(); ++count) {
        at = EndOfStraightLine(chain, at);
        visit(chain[at]);
    }
    return count;
}

}  // namespace kest
