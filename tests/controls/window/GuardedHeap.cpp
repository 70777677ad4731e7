// Linked into a test program, it gives each object of C++ pages of its own and takes them away for good when the object
// is deleted: whoever touches an object after that, or beyond its end, stops the program.
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <iterator>
#include <new>

#include "platform/WindowsApi.h"

namespace {

constexpr std::size_t kPage = 4096;
constexpr std::size_t kAlignment = 16;
constexpr std::size_t kRegion = std::size_t{1} << 30;
constexpr std::size_t kLargest = kRegion / 8;
constexpr unsigned char kFill = 0xFD;

// At the beginning of the pages, which is always free.
struct Head {
    std::size_t size, pages;
};

// Addresses are never given again; when all are used, what is taken after that lies in the common heap. They come from
// few large regions, as the system counts every hole between two.
SRWLOCK lock = SRWLOCK_INIT;
char* next = nullptr;
std::size_t left = 0;
char* regions[64];
std::atomic<int> regionCount{0};

// The system has no more than some 65,000 kinds of pages side by side. What is beyond lies in the common heap.
constexpr int kMostObjects = 20000;
std::atomic<int> objects{0};

[[noreturn]] void Fail(const char* what) {
    std::fprintf(stderr, "guarded heap: %s\n", what);
    std::abort();
}

// Under the lock.
bool TakeRegion() {
    const int count = regionCount.load(std::memory_order_relaxed);
    if (count == std::ssize(regions)) return false;
    next = static_cast<char*>(::VirtualAlloc(nullptr, kRegion, MEM_RESERVE, PAGE_NOACCESS));
    if (next == nullptr) Fail("no room");
    left = kRegion;
    regions[count] = next;
    regionCount.store(count + 1, std::memory_order_release);
    return true;
}

// Null when all are used.
char* TakeAddresses(std::size_t size) {
    char* taken = nullptr;
    ::AcquireSRWLockExclusive(&lock);
    if (left >= size || TakeRegion()) {
        taken = next;
        next += size;
        left -= size;
    }
    ::ReleaseSRWLockExclusive(&lock);
    return taken;
}

bool IsGuarded(const void* object) {
    const auto at = reinterpret_cast<std::uintptr_t>(object);
    for (int i = 0; i < regionCount.load(std::memory_order_acquire); ++i) {
        if (at - reinterpret_cast<std::uintptr_t>(regions[i]) < kRegion) return true;
    }
    return false;
}

std::size_t RoomFor(std::size_t size) {
    return (size + kAlignment - 1) / kAlignment * kAlignment;
}

void* TakeUnguarded(std::size_t size) {
    void* const object = std::malloc(size == 0 ? 1 : size);
    if (object == nullptr) throw std::bad_alloc();
    return object;
}

void* Take(std::size_t size) {
    if (size > kLargest || objects.load(std::memory_order_relaxed) >= kMostObjects) return TakeUnguarded(size);
    const std::size_t room = RoomFor(size);
    const std::size_t pages = (room + kPage) / kPage * kPage;  // more than the room
    char* const base = TakeAddresses(pages + kPage);           // nothing lies in the last page
    if (base == nullptr) return TakeUnguarded(size);
    objects.fetch_add(1, std::memory_order_relaxed);
    if (::VirtualAlloc(base, pages, MEM_COMMIT, PAGE_READWRITE) == nullptr) Fail("no room");
    new (base) Head{size, pages};
    // At the end of its pages. What is left behind it for the alignment is looked at when it goes.
    char* const object = base + (pages - room);
    std::memset(object + size, kFill, room - size);
    return object;
}

void Give(void* object) {
    if (!IsGuarded(object)) return std::free(object);
    // It begins in the first page, or right behind that.
    const std::uintptr_t base = (reinterpret_cast<std::uintptr_t>(object) - 1) & ~(kPage - 1);
    const Head head = *reinterpret_cast<const Head*>(base);
    const auto* const bytes = static_cast<const unsigned char*>(object);
    for (std::size_t i = head.size; i < RoomFor(head.size); ++i) {
        if (bytes[i] != kFill) Fail("written behind an object's end");
    }
    ::VirtualFree(reinterpret_cast<void*>(base), head.pages, MEM_DECOMMIT);
    objects.fetch_sub(1, std::memory_order_relaxed);
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
