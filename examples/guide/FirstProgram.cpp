// The smallest host: a window that shows a picture. FirstProgram PICTURE.bmp
// [whole]
#include <KestApi.h>

static CcGrayImage256 image;

static LRESULT CALLBACK HandleMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_PAINT: {
            PAINTSTRUCT paint;
            const HDC dc = BeginPaint(window, &paint);
            // Display table 102 (256 grays), mode 1 (whole-number zoom), scrolled by 0 columns and rows, zoom 2.
            image.Show(dc, window, 102, 1, 0, 0, 2);
            EndPaint(window, &paint);
            return 0;
        }
        case WM_DESTROY: PostQuitMessage(0); return 0;
        default: return DefWindowProcA(window, message, wParam, lParam);
    }
}

int main(int argc, char** argv) {
    // A null path asks the user. The library has told the user why when it returns a negative value.
    if (image.OpenBMPFile(argc > 1 ? argv[1] : nullptr) < 0) return 1;

    WNDCLASSA windowClass = {};
    windowClass.lpfnWndProc = HandleMessage;
    windowClass.hInstance = GetModuleHandleA(nullptr);
    windowClass.hCursor = LoadCursor(nullptr, IDC_ARROW);
    windowClass.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_APPWORKSPACE + 1);
    windowClass.lpszClassName = "FirstProgram";
    RegisterClassA(&windowClass);
    CreateWindowA("FirstProgram", image.GetName(), WS_OVERLAPPEDWINDOW | WS_VISIBLE, CW_USEDEFAULT, CW_USEDEFAULT, 800,
                  600, nullptr, nullptr, windowClass.hInstance, nullptr);

    MSG message;
    while (GetMessageA(&message, nullptr, 0, 0) > 0) {
        TranslateMessage(&message);
        DispatchMessageA(&message);
    }
    return 0;
}
// [/whole]
