// A sequence of commands.
#pragma once

#include <cstdint>
#include <vector>

#include "definition/ADXObject.h"

namespace corvex {

// One step of a macro.
struct ADXMacroNode {
    enum Flag : std::uint32_t { kEndIfFailed = 1, kEndIfSucceeded = 2 };

    // Bits of flags: whether the macro ends when this node fails, or when it succeeds.
    bool EndsIfFailed() const { return (flags & kEndIfFailed) != 0; }
    bool EndsIfSucceeded() const { return (flags & kEndIfSucceeded) != 0; }

    const ADXObject* command = nullptr;  // not owned; null until links are resolved. A null node is not saved
    char commandid[ADXObject::kIdLength + 1] = {};  // as read from the file
    std::uint32_t flags = 0;
    std::uint32_t repeatcount = 1;
};

// Any command may be a node, another macro too.
class ADXMacro : public ADXObject {
public:
    static constexpr std::uint32_t kType = kTypeMacro;

    ADXMacro() : ADXObject(kType) {}
    int Write(XMLWriter* writer) const override;

    const std::vector<ADXMacroNode>& Nodes() const { return nodes_; }
    std::uint32_t GetNodeCount() const { return static_cast<std::uint32_t>(nodes_.size()); }
    // Copies the node out; an index past the count or a null pointer does nothing.
    void GetNode(std::uint32_t index, ADXMacroNode* out) const;
    // Appends a copy; null is ignored.
    void AddNode(const ADXMacroNode* node);
    // Overwrites; an index past the count grows the array with default nodes first (up to kNodeLimit); null is ignored.
    void SetNode(std::uint32_t index, const ADXMacroNode* node);
    static constexpr std::uint32_t kNodeLimit = 65536;

    std::uint32_t flags = 0;
    std::uint32_t repeatcount = 1;  // times the whole sequence runs

private:
    std::vector<ADXMacroNode> nodes_;
};

}  // namespace corvex
