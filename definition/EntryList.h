// The array of plain entries that dashboards, item lists and monitors hold.
#pragma once

#include <algorithm>
#include <cstdint>
#include <vector>

namespace corvex {

// At most 255 entries: a request to grow beyond is ignored. Pointers into the array hold until it is resized.
template <class Entry>
class EntryList {
public:
    static constexpr std::uint32_t kLimit = 255;

    std::uint32_t GetEntryCount() const { return static_cast<std::uint32_t>(entries_.size()); }

    // Keeps the first min(old, n) entries; 256 or more changes nothing.
    void SetEntryCount(std::uint32_t n) {
        if (n <= kLimit) entries_.resize(n);
    }

    // Null past the end.
    Entry* GetEntry(std::uint32_t index) { return index < entries_.size() ? &entries_[index] : nullptr; }
    const Entry* GetEntry(std::uint32_t index) const { return index < entries_.size() ? &entries_[index] : nullptr; }

    // 0 past the end or for a null pointer.
    int SetEntry(std::uint32_t index, const Entry* entry) {
        if (entry == nullptr || index >= entries_.size()) return 0;
        entries_[index] = *entry;
        return 1;
    }

    // Appends a copy; ignored when null or full.
    void AddEntry(const Entry* entry) {
        if (entry != nullptr && entries_.size() < kLimit) entries_.push_back(*entry);
    }

    // Closes the gap; an index past the end does nothing.
    void RemoveEntry(std::uint32_t index) {
        if (index < entries_.size()) entries_.erase(entries_.begin() + static_cast<std::ptrdiff_t>(index));
    }

private:
    std::vector<Entry> entries_;
};

}  // namespace corvex
