#include "definition/ADXDefinition.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "definition/ADXBitmask.h"
#include "definition/ADXValue.h"
#include "definition/ReferrerSearch.h"

namespace corvex {
namespace {

constexpr std::uint32_t kUserVersionLimit = 20;
constexpr std::uint32_t kAuthorLimit = 60;
constexpr std::uint32_t kDescLimit = 1024;

std::uint32_t CopyMeasured(const OwnedText& text, std::uint32_t limit, char* out, std::uint32_t size) {
    const auto whole = static_cast<std::uint32_t>(std::min<std::size_t>(text.Length(), limit));
    const std::uint32_t length = whole < limit ? whole : 0;
    if (out == nullptr || size == 0) return length;
    *out = '\0';
    if (!text.IsSet()) return 0;
    const std::uint32_t count = std::min(length + 1, size);
    std::memcpy(out, text.CStr(), count - 1);
    out[count - 1] = '\0';
    return count;
}

std::uint32_t HashOf(const std::pair<std::uint32_t, ADXObject*>& entry) {
    return entry.first;
}

bool HasId(const ADXObject& object) {
    return *object.Id() != '\0' || object.GetIdHash() != 0;
}

}  // namespace

const ADXObject* const ADXDefinition::kAppend = reinterpret_cast<const ADXObject*>(~std::uintptr_t{0});

void ADXDefinition::Clear() {
    flags = 0;
    baud = kDefaultBaud;
    connectcmd = monitorcmd = disconnectcmd = nullptr;
    userversion_.Clear();
    author_.Clear();
    desc_.Clear();
    hashes_.clear();
    objects_.clear();
}

std::uint32_t ADXDefinition::GetUserVersion(char* out, std::uint32_t size) const {
    return CopyMeasured(userversion_, kUserVersionLimit, out, size);
}

std::uint32_t ADXDefinition::GetAuthor(char* out, std::uint32_t size) const {
    return CopyMeasured(author_, kAuthorLimit, out, size);
}

std::uint32_t ADXDefinition::GetDesc(char* out, std::uint32_t size) const {
    return CopyMeasured(desc_, kDescLimit, out, size);
}

ADXObject* ADXDefinition::GetObject(std::uint32_t mask, std::uint32_t n) const {
    if (mask == kTypeAny) return n < objects_.size() ? objects_[n].get() : nullptr;
    for (const auto& object : objects_) {
        if (object->IsOneOf(mask) && n-- == 0) return object.get();
    }
    return nullptr;
}

ADXObject* ADXDefinition::FindById(const char* id) const {
    if (id == nullptr) return nullptr;
    for (const auto& object : objects_) {
        char own[ADXObject::kIdLength + 1];
        object->GetId(own, sizeof own);
        if (std::strcmp(own, id) == 0 && HasId(*object)) return object.get();
    }
    return nullptr;
}

ADXObject* ADXDefinition::FindByHash(std::uint32_t hash) const {
    if (hash == 0) return nullptr;
    if (!hashes_.empty()) {
        const auto found = std::ranges::lower_bound(hashes_, hash, {}, HashOf);
        return found != hashes_.end() && found->first == hash ? found->second : nullptr;
    }
    for (const auto& object : objects_) {
        if (object->GetIdHash() == hash) return object.get();
    }
    return nullptr;
}

// Sorted rather than hashed: the numbers come from a file, and no file can make a sorted search slow.
void ADXDefinition::IndexHashes() {
    hashes_.clear();
    hashes_.reserve(objects_.size());
    for (const auto& object : objects_)
        hashes_.emplace_back(object->GetIdHash(), object.get());
    std::ranges::stable_sort(hashes_, {}, HashOf);
    const auto same = [](const auto& a, const auto& b) { return a.first == b.first; };
    hashes_.erase(std::unique(hashes_.begin(), hashes_.end(), same), hashes_.end());
}

ADXValue* ADXDefinition::FindValueByType(std::uint32_t word) const {
    if (word == 0) return nullptr;
    for (const auto& object : objects_) {
        auto* value = As<ADXValue>(object.get());
        if (value != nullptr && (std::uint32_t{value->datatype} << 16 | value->unittype) == word) return value;
    }
    return nullptr;
}

int ADXDefinition::IsHashUnique(const ADXObject* object, std::uint32_t hash) const {
    if (object != nullptr) hash = object->GetIdHash();
    return std::none_of(objects_.begin(), objects_.end(),
                        [=](const auto& other) { return other.get() != object && other->GetIdHash() == hash; });
}

void ADXDefinition::UpdateValues(PacketView packet, std::uint32_t commandId) {
    for (const auto& object : objects_) {
        auto* item = As<ADXItem>(object.get());
        if (item != nullptr && item->BelongsTo(commandId)) item->GetRaw(packet);
    }
}

int ADXDefinition::InsertAfter(std::unique_ptr<ADXObject> object, const ADXObject* key) {
    if (object == nullptr) return 0;
    if (key == kAppend) return InsertAt(std::move(object), 0xFFFFFFFF);
    hashes_.clear();
    auto place = objects_.begin();
    if (key != nullptr) {
        place = std::find_if(objects_.begin(), objects_.end(), [=](const auto& other) { return other.get() == key; });
        if (place != objects_.end()) ++place;
    }
    objects_.insert(place, std::move(object));
    return 1;
}

int ADXDefinition::InsertAt(std::unique_ptr<ADXObject> object, std::uint32_t index) {
    if (object == nullptr) return 0;
    hashes_.clear();
    const std::size_t place = std::min<std::size_t>(index, objects_.size());
    objects_.insert(objects_.begin() + static_cast<std::ptrdiff_t>(place), std::move(object));
    return 1;
}

ADXObject* ADXDefinition::FindReferrer(const ADXObject* target, std::uint32_t first, std::int32_t* index) const {
    if (index != nullptr) *index = -1;
    if (target == nullptr) return nullptr;
    for (std::size_t i = first; i < objects_.size(); ++i) {
        if (!RefersTo(*objects_[i], *target)) continue;
        if (index != nullptr) *index = static_cast<std::int32_t>(i);
        return objects_[i].get();
    }
    return nullptr;
}

}  // namespace corvex
