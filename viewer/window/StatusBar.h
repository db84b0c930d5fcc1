// The status bar: help or progress, the pixel under the mouse with its value and world position, zoom and picture.
#pragma once

#include "document/Document.h"
#include "platform/Window.h"

namespace kestview {

class StatusBar {
public:
    bool Create(HWND parent);
    operator HWND() const { return window; }
    void Arrange();

    void ShowMessage(const std::string& text);
    /// Text, and a bar for a part from 0 to 1; an empty text takes both away.
    void ShowProgress(const std::string& text, double part);
    /// Null: the mouse is not over the picture.
    void ShowPixel(Document* document, const POINT* pixel);
    void ShowPicture(Document* document, double magnification);

private:
    void SetPart(int part, const std::string& text);

    HWND window = nullptr;
    HWND progress = nullptr;
};

}  // namespace kestview
