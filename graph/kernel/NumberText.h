// Numbers as a person types and reads them.
#pragma once

#include <optional>

namespace kest {

/// Room for any number below.
using NumberText = char[24];

/// The shortest decimal text from which ParseReal gives exactly this value; "inf" or "nan" for what is no number.
void WriteNumber(NumberText& text, float value);
void WriteNumber(NumberText& text, int value);

/// A decimal number with a point as separator and perhaps an exponent, blanks around it allowed. None for anything
/// else, and for what is too large for a float.
std::optional<float> ParseReal(const char* text);

/// A whole number of the range. None for anything else.
std::optional<int> ParseWhole(const char* text, int lowest, int highest);

}  // namespace kest
