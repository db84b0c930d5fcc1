// The values along a line or outline.
#include "document/Profile.h"

#include <algorithm>
#include <cmath>

namespace kestview {
namespace {

/// The corners of the way along a ROI, in image coordinates.
std::vector<tagPoints> PathOf(CcRoiBase& roi) {
    const auto at = [](double x, double y) { return tagPoints{static_cast<float>(x), static_cast<float>(y)}; };
    std::vector<tagPoints> path;
    switch (roi.GetROIType()) {
        case KEST_ROI_LINE: {
            const auto* line = static_cast<const int*>(roi.GetRoiImageCord());
            path = {at(line[0], line[1]), at(line[2], line[3])};
            break;
        }
        case KEST_ROI_RECT: {
            const RECT& r = *static_cast<const RECT*>(roi.GetRoiImageCord());
            path = {at(r.left, r.bottom), at(r.right, r.bottom), at(r.right, r.top), at(r.left, r.top),
                    at(r.left, r.bottom)};
            break;
        }
        case KEST_ROI_ELLIPSE: {
            const RECT& r = *static_cast<const RECT*>(roi.GetRoiImageCord());
            const double a = (r.right - r.left) / 2.0, b = (r.top - r.bottom) / 2.0;
            constexpr int corners = 180;
            constexpr double fullTurn = 6.283185307179586;
            for (int i = 0; i <= corners; ++i)
                path.push_back(at(r.left + a + a * std::cos(fullTurn * i / corners),
                                  r.bottom + b + b * std::sin(fullTurn * i / corners)));
            break;
        }
        case KEST_ROI_FREEHAND:
        case KEST_ROI_FREEHANDLINE:
        case KEST_ROI_POLYLINE:
        case KEST_ROI_POLYFREEHAND: {
            // Not the stairs of its pixels, but the lines that they stand for.
            path.resize(static_cast<std::size_t>(std::max(0, KestOutlineCorners(&roi, nullptr, 0))));
            KestOutlineCorners(&roi, path.data(), static_cast<int>(path.size()));
            const bool isClosed = roi.GetROIType() == KEST_ROI_FREEHAND || roi.GetROIType() == KEST_ROI_POLYFREEHAND;
            if (isClosed && !path.empty()) path.push_back(path.front());
            break;
        }
        default:
            break;
    }
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
