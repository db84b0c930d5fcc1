// Plays files through the DLL while each of its blocks has pages behind it, or in front, that nobody may touch.
//
//   fuzz_guarded FORMAT FILE...
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iterator>
#include <vector>

#include "Formats.h"
#include "support/Imports.h"

namespace {

constexpr std::size_t page = 4096;
constexpr std::uint32_t ours = 0x4B455354;

bool guardInFront = false;
const char* playing = "";

/// Stands at the start of what was reserved for a block.
struct Header {
    std::uint32_t mark;
    std::size_t size;
    void* bytes;
};

/// The header, a page apart from the bytes; null for a block that was made before.
Header* HeaderOf(const void* bytes) {
    MEMORY_BASIC_INFORMATION info;
    if (!bytes || !VirtualQuery(bytes, &info, sizeof info)) return nullptr;
    auto* header = static_cast<Header*>(info.AllocationBase);
    return header->mark == ours && header->bytes == bytes ? header : nullptr;
}

/// Zeroed. The bytes end at a page's end, as nearly as types of that size allow, or begin at a page's start.
void* Allocate(std::size_t size) {
    std::size_t alignment = 1;
    while (alignment < 16 && size % (2 * alignment) == 0 && size > 0) alignment *= 2;
    const std::size_t pages = (size + page - 1) / page + 1;
    auto* base = static_cast<char*>(VirtualAlloc(nullptr, (pages + 2) * page, MEM_RESERVE, PAGE_NOACCESS));
    if (!base || !VirtualAlloc(base, page, MEM_COMMIT, PAGE_READWRITE)) return nullptr;
    char* first = base + page * (guardInFront ? 2 : 1);
    if (!VirtualAlloc(first, (pages - 1) * page + 1, MEM_COMMIT, PAGE_READWRITE)) return nullptr;
    if (!guardInFront) {
        // The last page is the guard.
        DWORD before;
        VirtualProtect(first + (pages - 1) * page, page, PAGE_NOACCESS, &before);
        first += (pages - 1) * page - size;
    }
    *reinterpret_cast<Header*>(base) = {ours, size, first};
    return first;
}
void Free(void* bytes) {
    if (Header* header = HeaderOf(bytes)) VirtualFree(header, 0, MEM_RELEASE);
}
void* AllocateZeros(std::size_t count, std::size_t size) { return Allocate(count * size); }
void* Reallocate(void* bytes, std::size_t size) {
    void* const grown = Allocate(size);
    if (const Header* header = HeaderOf(bytes); header && grown) {
        std::memcpy(grown, bytes, std::min(size, header->size));
        Free(bytes);
    }
    return grown;
}

HGLOBAL WINAPI AllocateGlobal(UINT, SIZE_T size) { return Allocate(size); }
void* WINAPI LockGlobal(HGLOBAL block) {
    const Header* const header = HeaderOf(block);
    return header && header->size > 0 ? block : nullptr;
}
BOOL WINAPI UnlockGlobal(HGLOBAL) {
    SetLastError(NO_ERROR);
    return FALSE;
}
SIZE_T WINAPI SizeOfGlobal(HGLOBAL block) {
    const Header* const header = HeaderOf(block);
    return header ? header->size : 0;
}
HGLOBAL WINAPI FreeGlobal(HGLOBAL block) {
    Free(block);
    return nullptr;
}
int WINAPI AnswerBox(HWND, const char*, const char*, UINT) { return IDOK; }

LONG WINAPI Report(EXCEPTION_POINTERS* exception) {
    std::printf("FAULT %lx at %p in %s, guard %s\n", exception->ExceptionRecord->ExceptionCode,
                exception->ExceptionRecord->ExceptionAddress, playing, guardInFront ? "in front" : "behind");
    std::fflush(stdout);
    TerminateProcess(GetCurrentProcess(), 3);
    return EXCEPTION_EXECUTE_HANDLER;
}

}  // namespace

HWND fuzz::Window() {
    static const HWND window =
        CreateWindowExA(0, "STATIC", "", WS_POPUP, 0, 0, 400, 300, nullptr, nullptr, nullptr, nullptr);
    return window;
}

int main(int count, char** arguments) {
    const fuzz::Format* const format = count > 1 ? fuzz::FormatCalled(arguments[1]) : nullptr;
    if (!format) return std::fprintf(stderr, "fuzz_guarded FORMAT FILE...\n"), 2;
    SetUnhandledExceptionFilter(Report);
    fuzz::Window();
    const HMODULE library = GetModuleHandleA("KestApi.dll");
    const std::pair<const char*, void*> replaced[] = {
        {"malloc", reinterpret_cast<void*>(&Allocate)},
        {"calloc", reinterpret_cast<void*>(&AllocateZeros)},
        {"realloc", reinterpret_cast<void*>(&Reallocate)},
        {"free", reinterpret_cast<void*>(&Free)},
        {"GlobalAlloc", reinterpret_cast<void*>(&AllocateGlobal)},
        {"GlobalLock", reinterpret_cast<void*>(&LockGlobal)},
        {"GlobalUnlock", reinterpret_cast<void*>(&UnlockGlobal)},
        {"GlobalSize", reinterpret_cast<void*>(&SizeOfGlobal)},
        {"GlobalFree", reinterpret_cast<void*>(&FreeGlobal)},
        {"MessageBoxA", reinterpret_cast<void*>(&AnswerBox)},
    };
    for (const auto& [name, function] : replaced) test::ReplaceImport(library, name, function);
    int played = 0;
    for (const bool inFront : {false, true})
        for (int i = 2; i < count; ++i) {
            guardInFront = inFront;
            playing = arguments[i];
            std::ifstream file(playing, std::ios::binary);
            const std::vector<char> bytes{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
            format->play({reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()});
            ++played;
        }
    std::printf("%s: %d plays, no fault\n", format->name, played);
}
