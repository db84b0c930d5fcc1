// Text in a device context.
#pragma once

#include <windows.h>

#include <iterator>

namespace kest {

/// TextOutA takes a text in the code page of the font, which is not the process's where that is UTF-8.
inline void DrawProcessText(HDC dc, int x, int y, const char* text, int length) {
    if (GetACP() == CP_UTF8) {
        wchar_t wide[512];
        const int wideLength = MultiByteToWideChar(CP_UTF8, 0, text, length, wide, static_cast<int>(std::size(wide)));
        if (wideLength > 0) {
            TextOutW(dc, x, y, wide, wideLength);
            return;
        }
    }
    TextOutA(dc, x, y, text, length);
}

}  // namespace kest
