// The values along a line or outline.
#include "document/Profile.h"

#include <algorithm>
#include <cmath>

namespace kestview {
namespace {

/// The corners of the way along a ROI, in image coordinates: of an outline not the stairs of its pixels, but the lines
/// that they stand for.
std::vector<tagPoints> PathOf(CcRoiBase& roi) {
    constexpr int ellipseCorners = 180;
    std::vector<tagPoints> path;
    KestVisitRoiCorners(&roi, KEST_BORDER_CENTRES, ellipseCorners, [&path](double x, double y) {
        path.push_back({static_cast<float>(x), static_cast<float>(y)});
    });
    KestRoiFacts facts;
    const bool isClosed = KestGetRoiFacts(roi.GetROIType(), &facts) == KEST_OK && facts.bClosed;
    if (isClosed && !path.empty()) path.push_back(path.front());
    return path;
}

}  // namespace

std::vector<tagPoints> MakeProfile(Document& document, CcRoiBase& roi) {
    const PlainPixels plain(document);
    const std::vector<tagPoints> path = PathOf(roi);
    CcImage& image = document.Image();
    const SIZE size = document.Size();
    std::vector<tagPoints> profile;
    double distance = 0;
    tagPoints lastWorld = {};
    const auto addSample = [&](double x, double y) {
        x = std::clamp(x, 0.0, size.cx - 1.0);
        y = std::clamp(y, 0.0, size.cy - 1.0);
        tagPoints position = {static_cast<float>(x), static_cast<float>(y)}, world = position;
        image.ConvertImagePointToWorldCoords(&position, &world);
        if (!profile.empty())
            distance += std::hypot(static_cast<double>(world.x) - static_cast<double>(lastWorld.x),
                                   static_cast<double>(world.y) - static_cast<double>(lastWorld.y));
        lastWorld = world;
        profile.push_back({static_cast<float>(distance), image(position.x, position.y)});
    };
    for (std::size_t i = 1; i < path.size(); ++i) {
        const double dx = static_cast<double>(path[i].x) - static_cast<double>(path[i - 1].x);
        const double dy = static_cast<double>(path[i].y) - static_cast<double>(path[i - 1].y);
        const int steps = std::max(1, static_cast<int>(std::lround(std::hypot(dx, dy))));
        for (int step = i == 1 ? 0 : 1; step <= steps; ++step)
            addSample(static_cast<double>(path[i - 1].x) + dx * step / steps,
                      static_cast<double>(path[i - 1].y) + dy * step / steps);
    }
    return profile;
}

}  // namespace kestview
