// A pixel in words: its value and its world position, as the status bar shows them.
#pragma once

#include <string>

#include "document/Document.h"

namespace kestview {

/// "128", "R 12  G 40  B 200", "H 120  S 240  L 60", "1.25e-3".
std::string ValueText(Document& document, long x, long y);
/// "12.5, 3.75 mm"; empty without a calibration.
std::string WorldText(CcImage& image, long x, long y);
/// The unit's name, or "pixels" without a calibration.
std::string UnitOf(CcImage& image);

}  // namespace kestview
