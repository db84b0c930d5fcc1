// Numbers as a person types and reads them. The run-time's parser does the work on texts of plain decimal characters
// only: it would also take hexadecimal numbers and names.
#include "graph/kernel/NumberText.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace kest {
namespace {

std::optional<double> ParseDecimal(const char* text, const char* allowed) {
    text += std::strspn(text, " \t");
    const std::size_t length = std::strspn(text, allowed);
    if (length == 0 || text[length + std::strspn(text + length, " \t")] != 0) return {};
    char* end = nullptr;
    const double value = std::strtod(text, &end);
    if (end != text + length || !std::isfinite(value)) return {};
    return value;
}

}  // namespace

void WriteNumber(NumberText& text, float value) {
    constexpr int fewestDigits = 6, alwaysEnough = 9;
    for (int digits = fewestDigits; digits <= alwaysEnough; ++digits) {
        std::snprintf(text, sizeof text, "%.*g", digits, static_cast<double>(value));
        if (ParseReal(text) == value) return;
    }
}

void WriteNumber(NumberText& text, int value) { std::snprintf(text, sizeof text, "%d", value); }

std::optional<float> ParseReal(const char* text) {
    const std::optional<double> parsed = ParseDecimal(text, "+-.0123456789eE");
    if (!parsed) return {};
    const auto value = static_cast<float>(*parsed);
    if (!std::isfinite(value)) return {};
    return value;
}

std::optional<int> ParseWhole(const char* text, int lowest, int highest) {
    const std::optional<double> parsed = ParseDecimal(text, "+-0123456789");
    if (!parsed || *parsed < lowest || *parsed > highest) return {};
    return static_cast<int>(*parsed);
}

}  // namespace kest
