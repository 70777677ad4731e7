// What stands in a definition file, as the author wrote it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "files/adx/IReadObserver.h"

namespace corvex {

// Texts are as the reader holds them.
struct SourceElement {
    bool Is(std::string_view other) const;
    // Empty when there is none of the name.
    std::string_view Attribute(std::string_view wanted) const;

    std::string name, text;
    std::vector<std::pair<std::string, std::string>> attributes;
    std::uint32_t line = 0;  // from 1
    bool ignored = false;    // means nothing where it stands
    bool textcut = false;    // the reader keeps less than the file has
    bool attributecut = false;
};

// The header or an object: its start tag, and the elements inside in the order of the file.
struct SourcePart {
    // Null when there is none of the name that counts.
    const SourceElement* Last(std::string_view name) const;
    std::uint32_t Count(std::string_view name) const { return CountBefore(name, {}); }
    // Those in front of the first element named `end`; all when there is none.
    std::uint32_t CountBefore(std::string_view name, std::string_view end) const;
    // Rows of tables and views of any kind.
    std::uint32_t Rows() const;

    SourceElement start;
    std::vector<SourceElement> children;
};

// The loader forgives much and forgets what it forgave: rows that it drops, links that it cannot resolve, names that it
// does not know. Whoever explains a definition has the loader tell this record all that it read, once.
class SourceRecord final : public IReadObserver {
public:
    // With what stands outside of header and objects and means nothing.
    const SourcePart& Header() const { return header_; }
    // Null for an object that did not come from the file.
    const SourcePart* Find(const ADXObject& object) const;
    std::size_t ObjectCount() const { return objects_.size(); }

    void ElementRead(const ADXElement& element, ElementUse use) override;
    void HeaderEnded() override { inheader_ = false; }
    void ObjectEnded(const ADXObject& object) override { objects_[&object] = std::move(*std::exchange(object_, {})); }

private:
    SourcePart header_;
    std::unordered_map<const ADXObject*, SourcePart> objects_;
    bool inheader_ = false;
    std::unique_ptr<SourcePart> object_;  // the one that is open
};

}  // namespace corvex
