#include "apps/editor/OwnModule.h"

namespace corvex {

HINSTANCE OwnModule() {
    HMODULE module = nullptr;
    constexpr DWORD kByAddress = GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT;
    ::GetModuleHandleExA(kByAddress, reinterpret_cast<LPCSTR>(&OwnModule), &module);
    return module;
}

}  // namespace corvex
