// One region of interest of every class, drawn over a picture with the mouse.
//
//   DrawRegions PICTURE.bmp FOLDER
//
// The program moves the real mouse itself, prints what each class made of it, and saves a picture of the window.
#include <cmath>
#include <cstdio>
#include <string>
#include <vector>

#include "Example.h"

namespace {

/// The course of the mouse in a cell of the window, in thousandths of its width and height.
using Course = std::vector<POINT>;

Course Circle() {
    Course course;
    for (int i = 0; i < 40; ++i)
        course.push_back({static_cast<LONG>(500 + 380 * std::cos(i * 0.157)),
                          static_cast<LONG>(500 + (i % 2 ? 380 : 330) * std::sin(i * 0.157))});
    return course;
}

Course Wave() {
    Course course;
    for (int i = 0; i <= 40; ++i) course.push_back({100 + i * 20, static_cast<LONG>(500 + 300 * std::sin(i * 0.314))});
    return course;
}

struct Kind {
    CcRoiBase* (*make)();
    bool hasVertices;  ///< each point of the course is clicked
    Course course;
};

template <class Roi>
CcRoiBase* Make() {
    return new Roi;
}

struct Viewer {
    CcGrayImage256& image;
    const Kind* kind = nullptr;
    CcRoiBase* drawn = nullptr;
    POINT mouse = {};

    LRESULT Handle(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        if (message == WM_LBUTTONDOWN || message == WM_MOUSEMOVE || message == WM_LBUTTONUP)
            mouse = {static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam))};
        switch (message) {
            case WM_PAINT: {
                PAINTSTRUCT paint;
                const HDC dc = BeginPaint(window, &paint);
                image.Show(dc, window, 102, 1, 0, 0, 1);
                for (auto* object = image.GetListROI()->GetHead(); object; object = image.GetListROI()->GetNext())
                    static_cast<CcRoiBase*>(object)->ShowROI(dc, window, 0, 0, 1, &image, 1, -1);
                EndPaint(window, &paint);
                return 0;
            }
            case WM_LBUTTONDOWN:
                if (drawn) {
                    drawn->DoMouseDrag(window, 0, 0, 1, &image, mouse, 1);
                } else if (kind) {
                    drawn = kind->make();
                    drawn->StartMouseDrag(window, 0, 0, 1, &image, mouse, KEST_DRAG_CREATE, nullptr, 1);
                }
                return 0;
            case WM_MOUSEMOVE:
                if (drawn) drawn->DoMouseDrag(window, 0, 0, 1, &image, mouse, 0);
                return 0;
            case WM_LBUTTONUP:
                if (drawn && !kind->hasVertices) Finish(window);
                return 0;
            default: return DefWindowProcA(window, message, wParam, lParam);
        }
    }

    void Finish(HWND window) {
        drawn->StopMouseDrag(window, 0, 0, 1, &image, mouse);
        image.GetListROI()->InsertTail(drawn);
        drawn = nullptr;
    }
};

/// Draws one ROI in a cell of the window; false when it did not get there.
bool Draw(HWND window, Viewer& viewer, const Kind& kind, const RECT& cell) {
    viewer.kind = &kind;
    for (const POINT& at : kind.course) {
        const int x = static_cast<int>(cell.left + (cell.right - cell.left) * at.x / 1000);
        const int y = static_cast<int>(cell.top + (cell.bottom - cell.top) * at.y / 1000);
        example::MoveMouse(window, x, y);
        if (kind.hasVertices || &at == &kind.course.front()) example::PressButton();
        if (kind.hasVertices || &at == &kind.course.back()) example::ReleaseButton();
    }
    if (kind.hasVertices && viewer.drawn) viewer.Finish(window);
    auto* roi = static_cast<CcRoiBase*>(viewer.image.GetListROI()->GetTail());
    const RECT* bounds = roi ? roi->GetBoundingRect() : nullptr;
    if (!bounds || viewer.drawn) return false;
    int listed = 0;
    for (LONG row = bounds->bottom; row <= bounds->top; ++row) {
        int count = 0;
        roi->GetXBoundary(static_cast<int>(row), &count);
        listed += count;
    }
    std::printf("drew     \"%s\": columns %ld to %ld, rows %ld to %ld from the bottom, %d pixels\n", roi->GetName(),
                bounds->left, bounds->right, bounds->bottom, bounds->top, listed);
    return true;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 3) {
        std::puts("usage: DrawRegions PICTURE.bmp FOLDER");
        return 2;
    }
    CcGrayImage256 image;
    if (!*argv[1])
        example::MakeSamplePicture(image);
    else if (image.OpenBMPFile(argv[1]) < 0)
        return 1;
    int height, width;
    image.GetHeightWidth(&height, &width);

    const Course across = {{150, 200}, {500, 400}, {850, 800}};
    const Kind kinds[] = {
        {Make<CcRoiRect>, false, across},
        {Make<CcRoiEllipse>, false, across},
        {Make<CcRoiLine>, false, across},
        {Make<CcRoiPoint>, false, {{300, 300}, {500, 600}}},
        {Make<CcRoiFreeHand>, false, Circle()},
        {Make<CcRoiFreeHandLine>, false, Wave()},
        {Make<CcRoiPolyFreeHand>, true, {{150, 250}, {850, 150}, {600, 500}, {850, 850}, {150, 750}}},
        {Make<CcRoiPolyLine>, true, {{100, 800}, {350, 200}, {500, 700}, {650, 200}, {900, 800}}},
    };
    constexpr int cellsAcross = 4, cellsDown = 2;
    Viewer viewer{image};
    const HWND window = example::OpenWindow("Every region of interest", width, height,
                                            [&viewer](HWND w, UINT message, WPARAM wParam, LPARAM lParam) {
                                                return viewer.Handle(w, message, wParam, lParam);
                                            });
    int cell = 0;
    for (const Kind& kind : kinds) {
        const int left = width * (cell % cellsAcross) / cellsAcross, top = height * (cell / cellsAcross) / cellsDown;
        if (!Draw(window, viewer, kind, {left, top, left + width / cellsAcross, top + height / cellsDown})) return 1;
        ++cell;
    }
    static_cast<CcRoiBase*>(image.GetListROI()->GetAtIndex(1))->SetSelected(1);
    InvalidateRect(window, nullptr, FALSE);
    example::PumpMessages(100);
    return example::SavePicture(window, std::string(argv[2]) + "/4-all-regions.bmp") ? 0 : 1;
}
