#pragma once

#include <windows.h>

#include <cstddef>
#include <cstring>

namespace comtests {

/// While it lives, the calls that a module makes to one function of another module come here. It replaces the
/// address in the module's import table, so that the rest of the process goes on as before.
class ImportPatch {
public:
    template <class Function>
    ImportPatch(HMODULE module, const char* name, Function* replacement)
        : mSlot(slotOf(reinterpret_cast<std::byte*>(module), name)),
          mOriginal(replace(reinterpret_cast<void*>(replacement))) {}
    ImportPatch(const ImportPatch&) = delete;
    ImportPatch& operator=(const ImportPatch&) = delete;
    ~ImportPatch() { replace(mOriginal); }

    /// False when the module does not import the function.
    explicit operator bool() const { return mSlot != nullptr; }

private:
    static void** slotOf(std::byte* base, const char* name) {
        const auto* headers =
            reinterpret_cast<IMAGE_NT_HEADERS*>(base + reinterpret_cast<IMAGE_DOS_HEADER*>(base)->e_lfanew);
        const auto& directory = headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
        const auto* library = reinterpret_cast<IMAGE_IMPORT_DESCRIPTOR*>(base + directory.VirtualAddress);
        for (; library->Name != 0; ++library) {
            const auto* names = reinterpret_cast<IMAGE_THUNK_DATA*>(base + library->OriginalFirstThunk);
            auto* addresses = reinterpret_cast<IMAGE_THUNK_DATA*>(base + library->FirstThunk);
            for (; names->u1.AddressOfData != 0; ++names, ++addresses) {
                if (IMAGE_SNAP_BY_ORDINAL(names->u1.Ordinal)) continue;
                const auto* import = reinterpret_cast<IMAGE_IMPORT_BY_NAME*>(base + names->u1.AddressOfData);
                if (std::strcmp(reinterpret_cast<const char*>(import->Name), name) == 0) {
                    return reinterpret_cast<void**>(&addresses->u1.Function);
                }
            }
        }
        return nullptr;
    }

    void* replace(void* function) const {
        if (mSlot == nullptr) return nullptr;
        void* const before = *mSlot;
        DWORD protection = 0;
        VirtualProtect(mSlot, sizeof(*mSlot), PAGE_READWRITE, &protection);
        *mSlot = function;
        VirtualProtect(mSlot, sizeof(*mSlot), protection, &protection);
        return before;
    }

    void** mSlot;
    void* mOriginal;
};

}  // namespace comtests
