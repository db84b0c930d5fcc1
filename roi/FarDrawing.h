// Drawing what reaches farther than the platform draws safely, or in bearable time: only the part near the surface is
// drawn. A figure that lies within reach is the platform's own.
#pragma once

#include "KestPlatform.h"
#include "core/kernel/Geometry.h"

namespace kest {

/// What a device context shows, and how far from it figures may reach; logical coordinates.
class Reach {
public:
    explicit Reach(HDC target);

    bool Includes(IntPoint point) const;
    bool Includes(const IntRect& place) const;
    /// A rectangle with its far sides brought near, where they still do not show.
    IntRect Limited(const IntRect& place) const;

    /// A line, its end excluded.
    void DrawLine(IntPoint start, IntPoint end) const;
    /// As the platform's Ellipse, for one that reaches too far.
    void DrawFarEllipse(const IntRect& place) const;

private:
    void DrawFarLine(IntPoint start, IntPoint end) const;
    bool IsPixelExact() const;

    HDC dc;
    IntRect visible;  ///< beyond it nothing shows, wide pens included
    IntRect safe;     ///< all that is visible, and much more
};

/// Lines from point to point, handed to the platform in pieces. The end of the last one is excluded.
class Stroke {
public:
    explicit Stroke(HDC target) : dc(target) {}

    /// The same point again adds nothing.
    void Add(IntPoint point);
    /// Draws what was added; the next point begins anew.
    void End();
    /// Goes back to the very first point, if nothing has ended since.
    void Close();

private:
    static constexpr int pieceSize = 4096;
    HDC dc;
    POINT piece[pieceSize];
    int used = 0;
    POINT first = {};
    bool hasFirst = false, hasEnded = false;
};

}  // namespace kest
