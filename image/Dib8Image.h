// An image of one byte a pixel in a 256-colour DIB, as CcGrayImage256 and CcBinaryImage have it: the members that its
// operations work on, by reference (see ImageParts.h), and these operations. Streams, files and blank images stand in
// Dib8Files.cpp, display tables and drawing in Dib8Display.cpp.
#pragma once

#include "image/BmpPaths.h"
#include "image/DisplayTables.h"
#include "image/ImageParts.h"
#include "image/PixelAccess.h"
#include "image/ShowImage.h"

namespace kest {

struct Dib8Image {
    /// The binary image has only display table 101, whatever LUT is asked for, and takes its working look with each new
    /// picture; the grayscale image has five, and keeps its curves.
    bool isBinary;
    ImageParts image;
    DisplayTables tables;
    int& colourCount;
    int& colourTableBytes;
    PathBuffer& lastOpened;
    PathBuffer& lastSaved;

    int Load(CcObjectStorage* storage) const;
    int Store(CcObjectStorage* storage) const;
    int Open(const char* pathToOpen) const;
    int Save(const char* pathToSave) const;
    int MakeBlank(int height, int width, int value, const char* name) const;

    /// Makes the display tables that are missing; false while memory is short. True without pixels.
    bool MakeTables() const { return MakeTables(image.dib.Layout()); }
    bool MakeTables(const DibLayout& layout) const;
    /// The binary image's: value 1 black, all others white.
    void TakeWorkingLook() const;
    /// The y values of the three curves.
    void SetCurves(float one, float others) const;
    /// What drawing through a LUT number needs.
    ImageLook Look(int lut) const;

    int Show(HDC dc, const RECT* rect, int lut, const ShowArguments& arguments) const;
    int Show(HDC dc, HWND window, int lut, const ShowArguments& arguments) const;
    int Show(HWND window, int lut, const ShowArguments& arguments) const;
    int CopyToClipboard(HWND window, int lut, const RECT* rect) const;
    int Print(HWND window, int lut, const ShowArguments& arguments) const;
};

// The pixel operators

inline float& ReadByte(const ImageParts& image, int x, int y) {
    return ReadPixel(image, x, y, [&](int index) { return image.dib.bits[index]; });
}

/// Beyond the last column or row, as far as that counts as inside, the byte that follows in memory is taken, or the
/// nearest pixel where none follows.
inline float& ReadByte(const ImageParts& image, float x, float y) {
    return ReadPosition(image, x, y, 1, [&dib = image.dib](int column, int row) {
        const Size64 index = Product(row, dib.width) + column;
        if (index < dib.pixelBlockBytes) return dib.bits[index];
        return dib.bits[std::min(row, dib.height - 1) * dib.width + std::min(column, dib.width - 1)];
    });
}

inline void WriteByte(const ImageParts& image, float value) {
    WritePixel(image, value, [&](int index) { image.dib.bits[index] = TruncateToByte(value); });
}

}  // namespace kest
