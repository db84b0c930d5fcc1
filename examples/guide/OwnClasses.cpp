// Classes that a host derives from the library's.
#include <cstring>

#include "Guide.h"

namespace guide {
namespace {

// [own-roi]
/// A rectangle that shows its name.
class LabelledRect : public CcRoiRect {
public:
    using CcRoiRect::ShowROI;  // the other two overloads stay visible

    int ShowROI(HDC hDC, HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode, CcImage* pImage,
                int iShowZoom, int iPenSelect) override {
        const int result =
            CcRoiRect::ShowROI(hDC, hWnd, iXOffset, iYOffset, usDisplayMode, pImage, iShowZoom, iPenSelect);
        const RECT* place = GetRoiWindowCord(hWnd, iXOffset, iYOffset, usDisplayMode, pImage, iShowZoom);
        if (result == 0) TextOutA(hDC, place->left + 4, place->top + 4, GetName(), lstrlenA(GetName()));
        return result;
    }
};
// [/own-roi]

// [own-object]
/// An object of the host's own in the library's lists and streams.
class Remark : public CcHLObject {
public:
    int Store(CcObjectStorage* pStorage) override {
        CcPropertyBag bag;
        const int result = bag.PutString("text", text);
        return result < 0 ? result : pStorage->PutObject(&bag);
    }
    int Load(CcObjectStorage* pStorage) override {
        CcPropertyBag bag;
        const int result = pStorage->GetNextObject(&bag);
        return result < 0 ? result : bag.GetString("text", text, sizeof text);
    }
    // The A belongs to the name: with UNICODE the platform's headers make another one of GetClassName.
    int GetClassNameA(char* pszBuffer, long lLength) override {
        constexpr char name[] = "Remark";
        if (!pszBuffer || lLength < static_cast<long>(sizeof name)) return -1;
        std::memcpy(pszBuffer, name, sizeof name);
        return 0;
    }

    char text[200] = "";
};
// [/own-object]

// [own-string]
/// Strings that are only read are `const char*`: with `char*` this would not override, and `override` tells so.
class WatchedImage : public CcGrayImage256 {
public:
    int OpenBMPFile(const char* pszPath) override {
        ++opened;
        return CcGrayImage256::OpenBMPFile(pszPath);
    }
    using CcGrayImage256::operator=;  // image = value; a derived class has an operator= of its own

    int opened = 0;
};
// [/own-string]

}  // namespace

void OwnClasses() {
    CcGrayImage256 image;
    image.MakeBlankBMP(100, 100, 255, "own");
    const HWND window = example::OpenWindow("Own", 100, 100, [](HWND w, UINT message, WPARAM wParam, LPARAM lParam) {
        return DefWindowProcA(w, message, wParam, lParam);
    });
    auto* roi = new LabelledRect;
    RECT record = {10, 90, 90, 10};
    roi->SetRoiImageCord(&record);
    roi->SetName("HHH");
    image.GetListROI()->InsertTail(roi);
    const HDC dc = GetDC(window);
    PatBlt(dc, 0, 0, 100, 100, WHITENESS);
    static_cast<CcRoiBase*>(image.GetListROI()->GetHead())->ShowROI(dc, window, 0, 0, 1, &image, 1, -1);
    int dark = 0;
    for (int y = 12; y < 30; ++y)
        for (int x = 14; x < 40; ++x) dark += GetPixel(dc, x, y) == RGB(0, 0, 0);
    ReleaseDC(window, dc);
    DestroyWindow(window);
    Expect(dark > 10, "the library calls a host's overrides");

    Remark remark;
    remark.SetName("note");
    std::strcpy(remark.text, "bolts are 8 mm");
    CcMemObjectStorage stream;
    Expect(stream.PutObject(&remark) == 0, "a host's object goes into a stream");
    unsigned char* block = nullptr;
    long length = 0;
    stream.GetStorageBufferRef(&block, &length);
    CcMemObjectStorage reader(block, length, 1);
    Remark loaded;
    Expect(reader.GetNextObject(&loaded) == 0 && std::strcmp(loaded.text, remark.text) == 0, "and comes out of it");

    WatchedImage watched;
    watched.MakeBlankBMP(4, 4, 0, "w");
    watched.SaveBMPFile("watched.bmp");
    CcImage* base = &watched;
    Expect(base->OpenBMPFile("watched.bmp") == 0 && watched.opened == 1, "strings that are read are const");
    watched(1, 1);
    watched = 9.0F;
    Expect(watched(1, 1) == 9.0F, "a derived image writes its pixels");
    DeleteFileA("watched.bmp");
}

}  // namespace guide
