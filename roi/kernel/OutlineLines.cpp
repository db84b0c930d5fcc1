// Finds the straight lines that a chain of pixels was drawn from.
//
// The steps of a digital straight line have at most two directions, which are neighbours: one along an axis, one
// diagonal. Counting all steps as x and the diagonal ones as y brings every line into one octant, without coordinates.
// There the pixels of a line are those with bound <= a x - b y < bound + b; a pixel that lies just beyond makes the
// line turn about the pixels it leans on.
#include "roi/kernel/OutlineLines.h"

#include "core/kernel/CheckedSize.h"

namespace kest {
namespace {

/// Steps are numbered 0 to 7 round the compass, even along the axes.
constexpr int noStep = -1;
constexpr int jump = -2;

int StepBetween(IntPoint from, IntPoint to) {
    const Size64 dx = Size64{to.x} - from.x, dy = Size64{to.y} - from.y;
    if (dx == 0 && dy == 0) return noStep;
    if (dx < -1 || dx > 1 || dy < -1 || dy > 1) return jump;
    constexpr int steps[3][3] = {{5, 6, 7}, {4, noStep, 0}, {3, 2, 1}};
    return steps[dy + 1][dx + 1];
}

bool AreNeighbours(int step, int other) {
    const int difference = (step - other) & 7;
    return difference == 1 || difference == 7;
}

/// In the octant of the line: steps so far, and diagonal ones among them.
struct Place {
    Size64 x;
    Size64 y;
};

/// A line that grows pixel by pixel. It begins as a run of steps in one direction.
class GrowingLine {
public:
    GrowingLine(Place end, bool isDiagonal)
        : a(isDiagonal ? 1 : 0), b(1), bound(0), firstUpper{0, 0}, firstLower{0, 0}, lastUpper(end), lastLower(end) {}

    /// False when no line has this pixel, too.
    bool Add(Place pixel) {
        const Size64 remainder = a * pixel.x - b * pixel.y;
        if (remainder < bound - 1 || remainder > bound + b) return false;
        if (remainder == bound - 1) {
            firstLower = lastLower;
            lastUpper = pixel;
            TurnTo(pixel, firstUpper);
            bound = a * pixel.x - b * pixel.y;
        } else if (remainder == bound + b) {
            firstUpper = lastUpper;
            lastLower = pixel;
            TurnTo(pixel, firstLower);
            bound = a * pixel.x - b * pixel.y - b + 1;
        } else {
            if (remainder == bound) lastUpper = pixel;
            if (remainder == bound + b - 1) lastLower = pixel;
        }
        return true;
    }

private:
    void TurnTo(Place pixel, Place about) {
        a = pixel.y - about.y;
        b = pixel.x - about.x;
    }

    Size64 a, b, bound;
    Place firstUpper, firstLower, lastUpper, lastLower;
};

}  // namespace

std::size_t EndOfStraightLine(std::span<const IntPoint> chain, std::size_t first) {
    std::size_t last = first;
    int step = noStep;
    Place place = {0, 0};
    // While there is one direction only.
    for (; last + 1 < chain.size(); ++last) {
        const int next = StepBetween(chain[last], chain[last + 1]);
        if (next == noStep) continue;
        if (next == jump) return step == noStep ? last + 1 : last;
        if (step != noStep && next != step) {
            if (!AreNeighbours(step, next)) return last;
            break;
        }
        step = next;
        ++place.x;
        place.y += next & 1;
    }
    GrowingLine line(place, (step & 1) != 0);
    int other = noStep;
    for (; last + 1 < chain.size(); ++last) {
        const int next = StepBetween(chain[last], chain[last + 1]);
        if (next == noStep) continue;
        if (next != step && other == noStep) other = next;
        if (next != step && next != other) return last;
        const Place reached = {place.x + 1, place.y + (next & 1)};
        if (!line.Add(reached)) return last;
        place = reached;
    }
    return last;
}

}  // namespace kest
