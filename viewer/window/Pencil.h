// Draws small pictures with lines and areas in a grid of 24 x 24, for any resolution.
#pragma once

#include <windows.h>

#include <optional>
#include <vector>

#include "platform/Guards.h"

namespace kestview {

class Pencil {
public:
    static constexpr int grid = 24;

    /// The grid fills a square of `newSide` pixels.
    Pencil(HDC newDc, int newSide) : dc(newDc), side(newSide) {}

    /// Line and area of what is drawn from now on; the width in grid units.
    void Use(COLORREF line, double width, COLORREF fill = CLR_INVALID);
    void Lines(std::vector<POINT> points);
    void Shape(std::vector<POINT> points);
    /// Bezier curves.
    void Curve(std::vector<POINT> points);
    void Box(int left, int top, int right, int bottom);
    void Oval(int left, int top, int right, int bottom);
    /// A handle as ROIs have them.
    void Dot(int x, int y);

private:
    struct Tools {
        Tools(HDC dc, HPEN newPen, HBRUSH newBrush);
        kest::GdiObject<HPEN> pen;
        kest::GdiObject<HBRUSH> brush;
        kest::SelectedObject selectedPen, selectedBrush;
    };
    int At(double units) const { return static_cast<int>(units * side / grid); }
    void Scale(std::vector<POINT>& points) const;

    HDC dc;
    int side;
    std::optional<Tools> tools;
};

using Drawing = void (*)(Pencil& pencil);

/// A 32-bit bitmap with transparency of size x size pixels, which the caller deletes.
HBITMAP MakePicture(Drawing draw, int size, bool isEnabled);
/// Another bitmap, scaled, as such a picture.
HBITMAP MakePicture(HBITMAP other, int size);

}  // namespace kestview
