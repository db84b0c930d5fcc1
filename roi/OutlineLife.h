// The life of a freehand outline, and the class-wide memory that goes with the last of its class.
#pragma once

#include "roi/OutlineParts.h"

namespace kest {

/// What all four classes construct and destroy alike.
void BeginOutline(const OutlineParts& outline);
void EndOutline(const OutlineParts& outline);

/// Makes room for `records` pixels in each of the class's two work arrays. False without memory.
bool SizeWorkArrays(const OutlineClassWide& classWide, int records);

}  // namespace kest
