// The platform's types where there is no Windows: records of files and of the interface in their own layout, and names
// for what the classes only hand on. There are no functions: what the classes call stands in core/Platform.h.
#pragma once

#include <cstdint>

using BYTE = std::uint8_t;
using WORD = std::uint16_t;
using DWORD = std::uint32_t;
using UINT = std::uint32_t;
using LONG = std::int32_t;
using COLORREF = DWORD;

using HANDLE = void*;
using HGLOBAL = HANDLE;
using HDC = struct KestSurface*;
using HPALETTE = struct KestColours*;
using HPEN = struct KestPen*;
using HINSTANCE = struct KestModule*;
using HMODULE = HINSTANCE;

/// A window is the size of its client area, for the geometry that depends on it; nothing shows in it.
struct KestClientArea {
    int width;
    int height;
};
using HWND = const KestClientArea*;

inline const HANDLE INVALID_HANDLE_VALUE = reinterpret_cast<HANDLE>(std::intptr_t{-1});
constexpr DWORD GENERIC_READ = 0x80000000, GENERIC_WRITE = 0x40000000;
constexpr DWORD FILE_SHARE_READ = 1, FILE_SHARE_WRITE = 2;
constexpr UINT MB_OK = 0, MB_ICONHAND = 0x10, MB_ICONEXCLAMATION = 0x30;
constexpr UINT DIB_RGB_COLORS = 0, DIB_PAL_COLORS = 1;

struct POINT {
    LONG x;
    LONG y;
};

struct RECT {
    LONG left;
    LONG top;
    LONG right;
    LONG bottom;
};

struct RGBTRIPLE {
    BYTE rgbtBlue;
    BYTE rgbtGreen;
    BYTE rgbtRed;
};

struct RGBQUAD {
    BYTE rgbBlue;
    BYTE rgbGreen;
    BYTE rgbRed;
    BYTE rgbReserved;
};

struct PALETTEENTRY {
    BYTE peRed;
    BYTE peGreen;
    BYTE peBlue;
    BYTE peFlags;
};

struct BITMAPINFOHEADER {
    DWORD biSize;
    LONG biWidth;
    LONG biHeight;
    WORD biPlanes;
    WORD biBitCount;
    DWORD biCompression;
    DWORD biSizeImage;
    LONG biXPelsPerMeter;
    LONG biYPelsPerMeter;
    DWORD biClrUsed;
    DWORD biClrImportant;
};

struct BITMAPINFO {
    BITMAPINFOHEADER bmiHeader;
    RGBQUAD bmiColors[1];
};

/// Nothing is printed.
struct PRINTDLGA {
    DWORD lStructSize;
};
struct DOCINFOA {};
