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

/// Calls visit(from, to) for each of the lines that make up the chain, and for the line back to the first pixel when it
/// is closed.
template <class Visit>
void VisitStraightLines(std::span<const IntPoint> chain, bool isClosed, Visit visit) {
    for (std::size_t from = 0; from + 1 < chain.size();) {
        const std::size_t to = EndOfStraightLine(chain, from);
        visit(chain[from], chain[to]);
        from = to;
    }
    if (isClosed && chain.size() > 1) visit(chain.back(), chain.front());
}

}  // namespace kest
