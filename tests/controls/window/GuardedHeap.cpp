// Linked into a test program, it gives each object of C++ pages of its own and takes them away for good when the object
// is deleted: whoever touches an object after that, or beyond its end, stops the program.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <new>

#include "platform/WindowsApi.h"

namespace {

constexpr std::size_t kPage = 4096;
constexpr std::uintptr_t kGranularity = 0x10000;  // what VirtualAlloc rounds addresses to
constexpr std::size_t kAlignment = 16;

void* Take(std::size_t size) {
    const std::size_t room = (size + kAlignment - 1) / kAlignment * kAlignment;
    const std::size_t pages = (room + kPage) / kPage * kPage;  // at least one byte, so that no two objects meet
    auto* const base = static_cast<char*>(::VirtualAlloc(nullptr, pages, MEM_RESERVE | MEM_COMMIT, PAGE_READWRITE));
    if (base == nullptr) std::abort();
    // At the end of the last page. A large object starts in the first granule all the same, as less than a page is
    // lost.
    return base + (pages - room);
}

void Give(void* object) {
    if (object == nullptr) return;
    const std::uintptr_t base = reinterpret_cast<std::uintptr_t>(object) & ~(kGranularity - 1);
    ::VirtualFree(reinterpret_cast<void*>(base), 0, MEM_DECOMMIT);
}

}  // namespace

void* operator new(std::size_t size) {
    return Take(size);
}
void* operator new[](std::size_t size) {
    return Take(size);
}
void operator delete(void* object) noexcept {
    Give(object);
}
void operator delete[](void* object) noexcept {
    Give(object);
}
void operator delete(void* object, std::size_t) noexcept {
    Give(object);
}
void operator delete[](void* object, std::size_t) noexcept {
    Give(object);
}
