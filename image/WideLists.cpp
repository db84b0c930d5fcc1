// The point lists of a wide grayscale image.
#include "image/WideLists.h"

#include <cmath>

#include "image/kernel/WideSamplesLut.h"

namespace kest {
namespace {

bool TakeBound(float& bound, float moved) {
    if (!(std::abs(double{moved} - bound) > 0.1)) return false;
    bound = moved;
    return true;
}

}  // namespace

void WideLists::Spread(int list) const {
    const std::span<tagPoints> points = display.tables.Points(list);
    if (!points.empty()) SpreadPoints(points, range.min, range.max);
}

int WideLists::Rebuild(int lut, int channel) const {
    const std::span<const tagPoints> points = display.tables.Points(lut, channel);
    if (points.empty() || !display.MakeTables()) return KEST_FAILED;
    tagPoints levels[GrayColours];
    PickLevels(points, range.Mapping(), levels);
    display.tables.Fill(lut, channel, {levels, points.size()});
    return KEST_OK;
}

void WideLists::SpreadAll() const {
    for (int list = 0; list < PointListCount; ++list) Spread(list);
    for (const PointList& list : PointLists) Rebuild(list.lut, list.channel);
}

void WideLists::ShowLevels(int channel) const {
    // The three colour lists come first.
    Spread(channel - 1);
    display.tables.Fill(ColourLut, channel, display.tables.Points(ColourLut, channel));
}

bool WideLists::TakeRange(std::span<const tagPoints> points) const {
    const bool isMaxNew = TakeBound(range.max, points.back().x);
    const bool isMinNew = TakeBound(range.min, points.front().x);
    return isMaxNew || isMinNew;
}

}  // namespace kest
