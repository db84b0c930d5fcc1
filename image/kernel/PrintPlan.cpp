// Where a picture and its overlay come to lie on a printed page.
#include "image/kernel/PrintPlan.h"

namespace kest {

int PrintScale(int sourceWidth, int sourceHeight, const PageSize& page) {
    if (sourceWidth < 1 || sourceHeight < 1) return 1;
    const long long halfWidth = page.width / 2;
    const long long halfHeight = page.height / 2;
    long long scale = 1;
    while (sourceWidth * scale <= halfWidth && sourceHeight * scale <= halfHeight) scale *= 2;
    return static_cast<int>(scale);
}

PrintPlan PlanForPage(const View& wanted, const PageSize& page) {
    View view = wanted;
    if (view.IsStretched() || view.clientWidth < 1 || view.clientHeight < 1) {
        view.clientWidth = view.imageWidth;
        view.clientHeight = view.imageHeight;
    }
    const long long scale = PrintScale(view.clientWidth, view.clientHeight, page);
    PrintPlan plan = {PlanForVisiblePart(view), scale * std::max(view.zoom, 1), 0, 0, view.imageWidth,
                      view.imageHeight};
    plan.picture.targetWidth = view.clientWidth * scale;
    plan.picture.targetHeight = view.clientHeight * scale;
    if (!view.IsStretched()) {
        plan.firstColumn = view.xOffset;
        plan.firstRow = view.yOffset;
        plan.columnCount = plan.picture.sourceWidth;
        plan.rowCount = plan.picture.sourceHeight;
    }
    return plan;
}

}  // namespace kest
