// Functions of the system that a module calls, replaced in its import table.
#pragma once

#include <windows.h>

#include <cstring>

namespace test {

/// Lets `module` (null: the test program) call `replacement` instead of the system's function of this name. What it
/// called before; null when it calls no such function.
inline void* ReplaceImport(HMODULE module, const char* name, void* replacement) {
    auto* const base = reinterpret_cast<unsigned char*>(module ? module : GetModuleHandleA(nullptr));
    const auto* headers =
        reinterpret_cast<IMAGE_NT_HEADERS*>(base + reinterpret_cast<IMAGE_DOS_HEADER*>(base)->e_lfanew);
    const auto& directory = headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
    for (auto* library = reinterpret_cast<IMAGE_IMPORT_DESCRIPTOR*>(base + directory.VirtualAddress); library->Name;
         ++library) {
        const auto* names = reinterpret_cast<IMAGE_THUNK_DATA*>(base + library->OriginalFirstThunk);
        auto* thunks = reinterpret_cast<IMAGE_THUNK_DATA*>(base + library->FirstThunk);
        for (; names->u1.AddressOfData; ++names, ++thunks) {
            if (IMAGE_SNAP_BY_ORDINAL(names->u1.Ordinal)) continue;
            const auto* entry = reinterpret_cast<IMAGE_IMPORT_BY_NAME*>(base + names->u1.AddressOfData);
            if (std::strcmp(entry->Name, name) != 0) continue;
            void* const before = reinterpret_cast<void*>(thunks->u1.Function);
            DWORD old;
            VirtualProtect(&thunks->u1.Function, sizeof thunks->u1.Function, PAGE_READWRITE, &old);
            thunks->u1.Function = reinterpret_cast<ULONG_PTR>(replacement);
            VirtualProtect(&thunks->u1.Function, sizeof thunks->u1.Function, old, &old);
            return before;
        }
    }
    return nullptr;
}

/// Replaces one for as long as it lives.
class ReplacedImport {
public:
    ReplacedImport(HMODULE newModule, const char* newName, auto* function)
        : module(newModule), name(newName), original(ReplaceImport(module, name, reinterpret_cast<void*>(function))) {}
    ~ReplacedImport() { ReplaceImport(module, name, original); }
    ReplacedImport(const ReplacedImport&) = delete;
    ReplacedImport& operator=(const ReplacedImport&) = delete;

private:
    HMODULE module;
    const char* name;
    void* original;
};

}  // namespace test
