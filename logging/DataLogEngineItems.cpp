// The item table of a log.
#include <algorithm>
#include <iterator>
#include <new>
#include <stdexcept>

#include "logging/DataLogEngine.h"
#include "logging/LogBuffers.h"

namespace corvex {

DataLogEngine::ItemTable& DataLogEngine::OwnItemsLocked() {
    if (items_.use_count() > 1) items_ = std::make_shared<ItemTable>(*items_);
    return *items_;
}

std::uint32_t DataLogEngine::ResizeLocked(std::size_t count) {
    if (State() == kLogRecording) return kLogWrongState;
    try {
        OwnItemsLocked().resize(count);
    } catch (const std::bad_alloc&) {
        return kLogFileError;
    } catch (const std::length_error&) {
        return kLogFileError;
    }
    return kLogSuccess;
}

std::uint32_t DataLogEngine::SetItemCount(std::uint32_t count) {
    const std::lock_guard lock(lock_);
    return ResizeLocked(count);
}

std::uint32_t DataLogEngine::SetItem(std::uint32_t index, const LogItem& item) {
    const std::lock_guard lock(lock_);
    if (State() == kLogRecording) return kLogWrongState;
    if (index >= items_->size()) return kLogUnknownItem;
    LogItem& place = OwnItemsLocked()[index];
    place = item;
    // Files carry zeros there; what came with the item is dropped.
    std::fill(std::begin(place.title), std::end(place.title), '\0');
    place.reserved = 0;
    return kLogSuccess;
}

std::uint32_t DataLogEngine::AddItem(const LogItem& item) {
    std::uint32_t index = 0;
    {
        const std::lock_guard lock(lock_);
        index = static_cast<std::uint32_t>(items_->size());
        const std::uint32_t result = ResizeLocked(items_->size() + 1);
        if (result != kLogSuccess) return result;
    }
    return SetItem(index, item);
}

// From the end: of two items of one id the later one counts.
std::uint32_t DataLogEngine::FindItemLocked(std::uint32_t commandId) const {
    for (std::size_t i = items_->size(); i-- > 0;) {
        if ((*items_)[i].commandId == commandId) return static_cast<std::uint32_t>(i);
    }
    return 0xFFFFFFFF;
}

std::uint32_t DataLogEngine::FindItem(std::uint32_t commandId) const {
    const std::lock_guard lock(lock_);
    return FindItemLocked(commandId);
}

const LogItem* DataLogEngine::GetItem(std::uint32_t index) const {
    const std::lock_guard lock(lock_);
    return index < items_->size() ? &(*items_)[index] : nullptr;
}

std::uint32_t DataLogEngine::ItemCount() const {
    const std::lock_guard lock(lock_);
    return static_cast<std::uint32_t>(items_->size());
}

std::uint32_t DataLogEngine::MaxPackedSize() const {
    const std::lock_guard lock(lock_);
    return LargestPackedSize(*items_);
}

std::uint32_t DataLogEngine::MaxFullSize() const {
    const std::lock_guard lock(lock_);
    return LargestFullSize(*items_);
}

}  // namespace corvex
