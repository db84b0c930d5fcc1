// CcGraph: the place of the plot on its surface, and the mapping of device contexts.
#include "CcGraph.h"
#include "core/GdiGuards.h"
#include "graph/GraphDrawing.h"

kest::GraphAxis CcGraph::XAxis() const {
    return {fXMin,
            fXOrigin,
            fXMax,
            iXAxisOption,
            iXPrecision,
            iGridMarkings[0] == 1,
            iGridMarkings[1] == 1,
            iGridMarkings[4],
            iGridMarkings[6]};
}

kest::GraphAxis CcGraph::YAxis() const {
    return {fYMin,
            fYOrigin,
            fYMax,
            iYAxisOption,
            iYPrecision,
            iGridMarkings[2] == 1,
            iGridMarkings[3] == 1,
            iGridMarkings[5],
            iGridMarkings[7]};
}

kest::GraphScales CcGraph::Scales() const {
    return kest::ScalesOf(XAxis(), YAxis(), {stPlotRect[0], stPlotRect[1], stPlotRect[2], stPlotRect[3]});
}

/// On a device context in anisotropic mode.
void CcGraph::SetMapping(HDC hDC) const {
    SetWindowOrgEx(hDC, stMapOrigins[2], stMapOrigins[3], nullptr);
    SetViewportOrgEx(hDC, stMapOrigins[0], stMapOrigins[1], nullptr);
    SetWindowExtEx(hDC, stMapExtents[0], stMapExtents[1], nullptr);
    SetViewportExtEx(hDC, stMapExtents[2], stMapExtents[3], nullptr);
}

/// Lays out the plot and sets the mapping on a device context in anisotropic mode; false when there is no plot to draw.
bool CcGraph::LayOut(HWND hWnd, HDC hDC, int iDevice, bool bFramePage, kest::GraphPlane& plane) {
    // What an earlier drawing left would shift the page's frame and scale the font.
    SetWindowOrgEx(hDC, 0, 0, nullptr);
    SetViewportOrgEx(hDC, 0, 0, nullptr);
    SetWindowExtEx(hDC, 1, 1, nullptr);
    SetViewportExtEx(hDC, 1, 1, nullptr);

    kest::IntRect surface = {};
    if (iDevice == 1) {
        const int width = GetDeviceCaps(hDC, HORZRES), height = GetDeviceCaps(hDC, VERTRES);
        surface = kest::PageSurface(width, height);
        if (bFramePage) Rectangle(hDC, 0, 0, width, height);
    } else {
        RECT client = {};
        GetClientRect(hWnd, &client);
        surface = {client.left, client.top, client.right, client.bottom};
    }
    const kest::FontSize font = kest::FontSizeOf(hDC);
    plane.x = XAxis();
    plane.y = YAxis();
    const kest::IntRect plot = kest::PlotArea(surface, plane.x, plane.y, font);
    stPlotRect[0] = plot.left;
    stPlotRect[1] = plot.top;
    stPlotRect[2] = plot.right;
    stPlotRect[3] = plot.bottom;

    plane.scales = Scales();
    const kest::GraphAnchor anchor = kest::AnchorOf(plane.x, plane.y, plane.scales);
    stMapOrigins[0] = anchor.viewport.x;
    stMapOrigins[1] = anchor.viewport.y;
    stMapOrigins[2] = anchor.window.x;
    stMapOrigins[3] = anchor.window.y;
    SetMapping(hDC);
    // As it is set: extents of 0 are not taken.
    SIZE windowExtent = {}, viewportExtent = {};
    GetWindowExtEx(hDC, &windowExtent);
    GetViewportExtEx(hDC, &viewportExtent);
    const kest::GraphMapping mapping = {
        anchor.window, anchor.viewport, {windowExtent.cx, windowExtent.cy}, {viewportExtent.cx, viewportExtent.cy}};
    return kest::IsDrawable(plane.scales) && kest::ViewOf(mapping, surface, font, plane.view);
}
