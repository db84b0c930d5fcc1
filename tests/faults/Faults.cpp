// Makes the platform fail under the library.
#include <commdlg.h>

#include "faults/Faults.h"
#include "support/Imports.h"

namespace test {
namespace {

Fault armed;
bool isArmed = false;
std::map<std::string, int> calls;
int boxes = 0;

bool Fails(const char* group) {
    if (!isArmed) return false;
    const int call = ++calls[group];
    return group == armed.group && armed.call > 0 && (call == armed.call || (armed.stays && call > armed.call));
}

/// One replaced import: `Number` makes its statics its own.
template <int Number, class Function, class Result>
struct Replaced {
    static inline Function original = nullptr;
    static inline Result failure{};
    static inline const char* group = nullptr;
    static inline DWORD error = 0;
};

template <int Number, class Function>
struct Import;

template <int Number, class Result, class... Arguments>
struct Import<Number, Result(WINAPI*)(Arguments...)> : Replaced<Number, Result(WINAPI*)(Arguments...), Result> {
    using Of = Replaced<Number, Result(WINAPI*)(Arguments...), Result>;
    static Result WINAPI Call(Arguments... arguments) {
        if (!Fails(Of::group)) return Of::original(arguments...);
        SetLastError(Of::error);
        return Of::failure;
    }
};

#if defined(__i386__)
template <int Number, class Result, class... Arguments>
struct Import<Number, Result (*)(Arguments...)> : Replaced<Number, Result (*)(Arguments...), Result> {
    using Of = Replaced<Number, Result (*)(Arguments...), Result>;
    static Result Call(Arguments... arguments) { return Fails(Of::group) ? Of::failure : Of::original(arguments...); }
};
#endif

struct Row {
    const char* name;
    void* replacement;
    void** original;
    void* stand = nullptr;  ///< is called instead of the system's function
};

template <int Number, class Function, class Result>
Row MakeRow(const char* name, const char* group, Result failure, DWORD error) {
    using Made = Import<Number, Function>;
    Made::group = group;
    Made::failure = failure;
    Made::error = error;
    return {name, reinterpret_cast<void*>(&Made::Call), reinterpret_cast<void**>(&Made::original)};
}

int WINAPI AnswerBox(HWND, const char*, const char*, UINT) {
    ++boxes;
    return IDOK;
}

// What the library takes and gives back is counted on the way to the system.
int blocks = 0, files = 0, libraries = 0;

template <class Handle>
Handle Taken(int& held, Handle handle, Handle none = {}) {
    held += handle != none;
    return handle;
}
void* Allocate(std::size_t bytes) { return Taken(blocks, std::malloc(bytes)); }
void* AllocateZeros(std::size_t count, std::size_t bytes) { return Taken(blocks, std::calloc(count, bytes)); }
void* Reallocate(void* block, std::size_t bytes) {
    void* const grown = std::realloc(block, bytes);
    return block ? grown : Taken(blocks, grown);
}
void Free(void* block) {
    blocks -= block != nullptr;
    std::free(block);
}
HGLOBAL WINAPI AllocateGlobal(UINT flags, SIZE_T bytes) { return Taken(blocks, GlobalAlloc(flags, bytes)); }
HGLOBAL WINAPI FreeGlobal(HGLOBAL block) {
    --blocks;
    return GlobalFree(block);
}
HANDLE WINAPI OpenPath(const char* path, DWORD access, DWORD sharing, SECURITY_ATTRIBUTES* security, DWORD disposition,
                       DWORD flags, HANDLE pattern) {
    return Taken(files, CreateFileA(path, access, sharing, security, disposition, flags, pattern),
                 INVALID_HANDLE_VALUE);
}
BOOL WINAPI ClosePath(HANDLE file) {
    --files;
    return CloseHandle(file);
}
HMODULE WINAPI Load(const char* path) { return Taken(libraries, LoadLibraryA(path)); }
BOOL WINAPI Unload(HMODULE library) {
    --libraries;
    return FreeLibrary(library);
}

// A printer that takes every page: the display, on which nothing is started.
int pages = 0;
BOOL WINAPI ChoosePrinter(PRINTDLGA* setup) {
    setup->hDC = CreateDCA("DISPLAY", nullptr, nullptr, nullptr);
    return TRUE;
}
int WINAPI StartJob(HDC, const DOCINFOA*) { return 1; }
int WINAPI StartOrEnd(HDC) { return 1; }
int WINAPI FinishJob(HDC) { return ++pages; }
INT_PTR WINAPI RunDialog(HINSTANCE, const char*, HWND, DLGPROC, LPARAM) { return IDCANCEL; }

Row StandIn(Row row, auto* function) {
    row.stand = reinterpret_cast<void*>(function);
    return row;
}

#define KEST_FAULT(group, function, failure, error)               \
    MakeRow<__COUNTER__, decltype(&::function)>(#function, group, \
                                                static_cast<decltype(CallResult(&::function))>(failure), error)

template <class Result, class... Arguments>
Result CallResult(Result(WINAPI*)(Arguments...));
#if defined(__i386__)
template <class Result, class... Arguments>
Result CallResult(Result (*)(Arguments...));
#endif

std::vector<Row> Rows() {
    void* const none = nullptr;
    static void* unused;
    return {
        StandIn(KEST_FAULT("memory", malloc, none, 0), &Allocate),
        StandIn(KEST_FAULT("memory", calloc, none, 0), &AllocateZeros),
        StandIn(KEST_FAULT("memory", realloc, none, 0), &Reallocate),
        StandIn(KEST_FAULT("memory", GlobalAlloc, none, ERROR_NOT_ENOUGH_MEMORY), &AllocateGlobal),
        KEST_FAULT("lock", GlobalLock, none, ERROR_NOT_ENOUGH_MEMORY),
        StandIn(KEST_FAULT("open", CreateFileA, INVALID_HANDLE_VALUE, ERROR_ACCESS_DENIED), &OpenPath),
        KEST_FAULT("read", ReadFile, FALSE, ERROR_CRC),
        KEST_FAULT("write", WriteFile, FALSE, ERROR_DISK_FULL),
        KEST_FAULT("write", SetEndOfFile, FALSE, ERROR_DISK_FULL),
        KEST_FAULT("position", SetFilePointer, INVALID_SET_FILE_POINTER, ERROR_SEEK),
        KEST_FAULT("position", SetFilePointerEx, FALSE, ERROR_SEEK),
        KEST_FAULT("position", GetFileSizeEx, FALSE, ERROR_INVALID_FUNCTION),
        KEST_FAULT("rename", MoveFileExA, FALSE, ERROR_ACCESS_DENIED),
        KEST_FAULT("rename", ReplaceFileA, FALSE, ERROR_ACCESS_DENIED),
        StandIn(KEST_FAULT("library", LoadLibraryA, none, ERROR_MOD_NOT_FOUND), &Load),
        KEST_FAULT("context", GetDC, none, 0),
        KEST_FAULT("context", CreateCompatibleDC, none, 0),
        KEST_FAULT("blit", SetDIBitsToDevice, 0, 0),
        KEST_FAULT("blit", StretchDIBits, 0, 0),
        KEST_FAULT("blit", BitBlt, FALSE, 0),
        KEST_FAULT("objects", CreateCompatibleBitmap, none, 0),
        KEST_FAULT("objects", CreatePalette, none, 0),
        KEST_FAULT("objects", CreatePen, none, 0),
        KEST_FAULT("objects", CreateSolidBrush, none, 0),
        KEST_FAULT("objects", CreateRectRgn, none, 0),
        KEST_FAULT("objects", CreateRectRgnIndirect, none, 0),
        KEST_FAULT("selection", SelectObject, none, 0),
        KEST_FAULT("selection", SelectPalette, none, 0),
        KEST_FAULT("window", GetClientRect, FALSE, 0),
        KEST_FAULT("window", ClientToScreen, FALSE, 0),
        StandIn(KEST_FAULT("print job", StartDocA, -1, 0), &StartJob),
        StandIn(KEST_FAULT("print job", StartPage, 0, 0), &StartOrEnd),
        StandIn(KEST_FAULT("print job", EndPage, 0, 0), &StartOrEnd),
        StandIn(KEST_FAULT("print job", EndDoc, 0, 0), &FinishJob),
        StandIn(KEST_FAULT("print job", PrintDlgA, FALSE, 0), &ChoosePrinter),
        KEST_FAULT("clipboard", OpenClipboard, FALSE, 0),
        KEST_FAULT("clipboard", EmptyClipboard, FALSE, 0),
        KEST_FAULT("clipboard", SetClipboardData, none, 0),
        StandIn(KEST_FAULT("dialog", DialogBoxParamA, -1, 0), &RunDialog),
        {"MessageBoxA", reinterpret_cast<void*>(&AnswerBox), &unused},
        {"AbortDoc", reinterpret_cast<void*>(&StartOrEnd), &unused},
        {"free", reinterpret_cast<void*>(&Free), &unused},
        {"GlobalFree", reinterpret_cast<void*>(&FreeGlobal), &unused},
        {"CloseHandle", reinterpret_cast<void*>(&ClosePath), &unused},
        {"FreeLibrary", reinterpret_cast<void*>(&Unload), &unused},
    };
}

}  // namespace

void PatchLibrary() {
    static const bool isPatched = [] {
        for (const Row& row : Rows()) {
            void* const system = ReplaceImport(GetModuleHandleA("KestApi.dll"), row.name, row.replacement);
            if (system) *row.original = row.stand ? row.stand : system;
        }
        return true;
    }();
    static_cast<void>(isPatched);
}

void Arm(const Fault& fault) {
    armed = fault;
    calls.clear();
    isArmed = true;
}

std::map<std::string, int> Disarm() {
    isArmed = false;
    return calls;
}

void EmptyTheClipboard() {
    if (OpenClipboard(nullptr)) EmptyClipboard();
    CloseClipboard();
}

std::string Ledger() {
    // What is on the clipboard belongs to the system.
    EmptyTheClipboard();
    RECT clip;
    GetClipCursor(&clip);
    DWORD handles = 0;
    GetProcessHandleCount(GetCurrentProcess(), &handles);
    std::ostringstream text;
    text << handles << " handles, " << TakeCensus().gdiObjects << " GDI objects, " << blocks << " blocks, " << files
         << " files, " << libraries << " libraries, capture " << (GetCapture() != nullptr) << ", cursor within "
         << clip.left << ',' << clip.top << ',' << clip.right << ',' << clip.bottom;
    return text.str();
}

int PagesPrinted() { return pages; }

int TakeBoxCount() { return std::exchange(boxes, 0); }

}  // namespace test
