// The library's main job from end to end: open a picture, show it in a window, draw a rectangle over it with the mouse,
// cut that region into a new image, store image and ROI list in an object stream, and load them back by class name.
//
//   MainJob PICTURE.bmp FOLDER [--by-hand]
//
// Without a person the program moves the real mouse itself. Results and pictures of the windows go to FOLDER.
#include <cstdio>
#include <cstring>
#include <memory>

#include "Example.h"

namespace {

/// A window that shows an image with its ROIs and draws new rectangles.
struct Viewer {
    CcGrayImage256& image;
    CcRoiRect* drawn = nullptr;
    bool isDrawing = false;

    LRESULT Handle(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        const POINT mouse = {static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam))};
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
                drawn = new CcRoiRect;
                isDrawing = drawn->StartMouseDrag(window, 0, 0, 1, &image, mouse, KEST_DRAG_CREATE, nullptr, 1) == 0;
                return 0;
            case WM_MOUSEMOVE:
                if (isDrawing) drawn->DoMouseDrag(window, 0, 0, 1, &image, mouse, 0);
                return 0;
            case WM_LBUTTONUP:
                if (!isDrawing) return 0;
                drawn->StopMouseDrag(window, 0, 0, 1, &image, mouse);
                isDrawing = false;
                drawn->SetSelected(1);
                image.GetListROI()->InsertTail(drawn);
                InvalidateRect(window, nullptr, FALSE);
                return 0;
            default: return DefWindowProcA(window, message, wParam, lParam);
        }
    }
};

bool SamePixels(CcImage& a, CcImage& b) {
    int heightA, widthA, heightB, widthB;
    a.GetHeightWidth(&heightA, &widthA);
    b.GetHeightWidth(&heightB, &widthB);
    return heightA == heightB && widthA == widthB &&
           std::memcmp(a.GetBitMapImageData(), b.GetBitMapImageData(), static_cast<std::size_t>(heightA) * widthA) == 0;
}

bool SameRect(CcRoiBase& a, CcRoiBase& b) {
    return EqualRect(static_cast<RECT*>(a.GetRoiImageCord()), static_cast<RECT*>(b.GetRoiImageCord()));
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 3) {
        std::puts("usage: MainJob PICTURE.bmp FOLDER [--by-hand]");
        return 2;
    }
    const std::string folder = argv[2];
    const bool byHand = argc > 3 && std::strcmp(argv[3], "--by-hand") == 0;

    CcGrayImage256 image;
    if (!*argv[1]) {
        example::MakeSamplePicture(image);
        std::puts("no picture given: made one");
    } else if (image.OpenBMPFile(argv[1]) < 0) {
        return 1;
    }
    int height, width;
    image.GetHeightWidth(&height, &width);
    std::printf("opened   \"%s\": %d x %d pixels\n", image.GetName(), width, height);

    Viewer viewer{image};
    const auto handle = [&viewer](HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        return viewer.Handle(window, message, wParam, lParam);
    };
    const HWND window = example::OpenWindow("Draw a rectangle with the mouse", width, height, handle);
    if (byHand)
        example::RunMessages([&] { return image.GetListROI()->GetNumberOfObjects() > 0; });
    else
        example::DragMouse(window, {width / 5, height / 4}, {width * 3 / 5, height * 2 / 3});
    if (image.GetListROI()->GetNumberOfObjects() == 0) return 1;
    example::PumpMessages(100);
    example::SavePicture(window, folder + "/1-rectangle.bmp");
    const RECT& rect = *static_cast<RECT*>(viewer.drawn->GetRoiImageCord());
    std::printf("drew     \"%s\": columns %ld to %ld, rows %ld to %ld from the bottom\n", viewer.drawn->GetName(),
                rect.left, rect.right, rect.bottom, rect.top);

    // Widened to a multiple of four columns, so that the file is one that every program reads.
    const std::unique_ptr<CcImage> region(image.GetRegion(viewer.drawn, 0, 1));
    if (!region) return 1;
    region->GetHeightWidth(&height, &width);
    std::printf("cut out  \"%s\": %d x %d pixels\n", region->GetName(), width, height);
    region->SaveBMPFile((folder + "/2-region.bmp").c_str());

    const std::string path = folder + "/session.ost";
    DeleteFileA(path.c_str());
    CcFileObjectStorage stream;
    if (stream.Open(path.c_str(), GENERIC_READ | GENERIC_WRITE) < 0) return 1;
    if (stream.PutObject(&image) < 0 || stream.PutObject(region.get()) < 0) return 1;
    std::printf("stored   image, ROI list and region: %d bytes\n", stream.GetPos());

    stream.Reset();
    CcHLObject* first = nullptr;
    CcHLObject* second = nullptr;
    if (stream.GetNextObject(&first) < 0 || stream.GetNextObject(&second) < 0) return 1;
    const std::unique_ptr<CcImage> loaded(dynamic_cast<CcImage*>(first));
    const std::unique_ptr<CcImage> loadedRegion(dynamic_cast<CcImage*>(second));
    auto* loadedRoi = dynamic_cast<CcRoiBase*>(loaded->GetListROI()->GetHead());
    const bool sameImage = SamePixels(image, *loaded), sameRegion = SamePixels(*region, *loadedRegion);
    const bool sameRoi = loadedRoi && SameRect(*viewer.drawn, *loadedRoi);
    std::printf("loaded   \"%s\" and \"%s\" by class name\n", loaded->GetName(), loadedRegion->GetName());
    std::printf("compared image %s, rectangle %s, region %s\n", sameImage ? "equal" : "DIFFERENT",
                sameRoi ? "equal" : "DIFFERENT", sameRegion ? "equal" : "DIFFERENT");

    const HWND result = example::OpenWindow(loadedRegion->GetName(), width, height,
                                            [&](HWND w, UINT message, WPARAM wParam, LPARAM lParam) -> LRESULT {
                                                if (message != WM_PAINT)
                                                    return DefWindowProcA(w, message, wParam, lParam);
                                                PAINTSTRUCT paint;
                                                loadedRegion->Show(BeginPaint(w, &paint), w, 102, 1, 0, 0, 1);
                                                EndPaint(w, &paint);
                                                return 0;
                                            });
    example::PumpMessages(100);
    example::SavePicture(result, folder + "/3-region-loaded.bmp");
    if (byHand) {
        std::puts("close a window to end");
        example::RunMessages([] { return false; });
    }
    return sameImage && sameRoi && sameRegion ? 0 : 1;
}
