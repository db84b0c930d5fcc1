// The range of values that are numbers.
#pragma once

#include <algorithm>
#include <cmath>

#include "KestApi.h"

namespace kestview {

class FiniteRange {
public:
    /// Infinite values and such that are no numbers do not count.
    void Add(float value) {
        if (!std::isfinite(value)) return;
        range = isAny ? tagPoints{std::min(range.x, value), std::max(range.y, value)} : tagPoints{value, value};
        isAny = true;
    }
    /// The smallest value (x) and the largest one (y).
    tagPoints Or(const tagPoints& withoutAny) const { return isAny ? range : withoutAny; }

private:
    tagPoints range = {};
    bool isAny = false;
};

}  // namespace kestview
