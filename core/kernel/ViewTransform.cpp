// Conversions between window and image coordinates.
#include "core/kernel/ViewTransform.h"

#include "core/kernel/CheckedSize.h"
#include "core/kernel/Numbers.h"

namespace kest {
namespace {

/// A window or an image without extent has no ratio; everything then falls on its first row and column.
double Ratio(int numerator, int denominator) {
    return denominator == 0 ? 0.0 : static_cast<double>(numerator) / denominator;
}

IntPoint Truncate(RealPoint point) { return {TruncateToInt(point.x), TruncateToInt(point.y)}; }

}  // namespace

IntPoint WindowToImage(const View& view, IntPoint window) {
    if (view.IsStretched()) {
        const double rowsPerPixel = Ratio(view.imageHeight - 1, view.clientHeight);
        const double columnsPerPixel = Ratio(view.imageWidth - 1, view.clientWidth);
        return Truncate(
            {window.x * columnsPerPixel, (static_cast<double>(view.clientHeight) - window.y) * rowsPerPixel});
    }
    const Size64 lastRow = Size64{view.imageHeight} - 1;
    return {Saturate(Size64{window.x} / view.zoom + view.xOffset),
            Saturate(lastRow - window.y / view.zoom - view.yOffset)};
}

RealPoint WindowToImageExact(const View& view, IntPoint window) {
    const double lastRow = view.imageHeight - 1;
    const double lastColumn = view.imageWidth - 1;
    if (view.IsStretched()) {
        const double x = view.clientWidth == 0 ? 0.0 : window.x * lastColumn / view.clientWidth;
        const double y = view.clientHeight == 0
                             ? 0.0
                             : (static_cast<double>(view.clientHeight) - window.y) * lastRow / view.clientHeight;
        return {x, y};
    }
    const double zoom = view.zoom;
    return {window.x / zoom + view.xOffset, lastRow - window.y / zoom - view.yOffset};
}

IntPoint ImageToWindow(const View& view, IntPoint image) {
    if (view.IsStretched()) return ImageToWindow(view, RealPoint{double(image.x), double(image.y)});
    const Size64 lastRow = Size64{view.imageHeight} - 1;
    return {Saturate(Product(Saturate(Size64{image.x} - view.xOffset), view.zoom)),
            Saturate(Product(Saturate(lastRow - image.y - view.yOffset), view.zoom))};
}

IntPoint ImageToWindow(const View& view, RealPoint image) {
    const double lastRow = view.imageHeight - 1.0;
    const double lastColumn = view.imageWidth - 1.0;
    if (!view.IsStretched())
        return Truncate({(image.x - view.xOffset) * view.zoom, (lastRow - image.y - view.yOffset) * view.zoom});
    const double pixelsPerRow = Ratio(view.clientHeight, view.imageHeight - 1);
    const double x = lastColumn == 0 ? 0.0 : image.x * view.clientWidth / lastColumn;
    return Truncate({x, view.clientHeight - image.y * pixelsPerRow});
}

IntPoint PixelAtWindowPoint(const View& view, IntPoint window) {
    if (view.IsStretched()) return Truncate(PositionAtWindowPoint(view, window));
    const Size64 below = view.zoom == 1 ? Size64{window.y} + 1 : Size64{window.y} / view.zoom + view.zoom;
    return {Saturate(Size64{window.x} / view.zoom + view.xOffset), Saturate(view.imageHeight - below - view.yOffset)};
}

RealPoint PositionAtWindowPoint(const View& view, IntPoint window) {
    if (view.IsStretched()) {
        const double rowsPerPixel = Ratio(view.imageHeight, view.clientHeight);
        const double columnsPerPixel = Ratio(view.imageWidth, view.clientWidth);
        return {columnsPerPixel * window.x, (static_cast<double>(view.clientHeight) - window.y - 1) * rowsPerPixel};
    }
    const double zoom = view.zoom;
    return {window.x / zoom + view.xOffset, view.imageHeight - window.y / zoom - view.yOffset - 1 / zoom};
}

}  // namespace kest
