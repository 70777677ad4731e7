#include "checking/SourceRecord.h"

#include <algorithm>

namespace corvex {

namespace {

SourceElement Kept(const ADXElement& element, bool ignored) {
    return {std::string(element.Name()), std::string(element.Text()), element.Attributes(), element.Line(), ignored,
            element.IsTextCut(),         element.IsAttributeCut()};
}

}  // namespace

bool SourceElement::Is(std::string_view other) const {
    return SameName(name, other);
}

std::string_view SourceElement::Attribute(std::string_view wanted) const {
    for (const auto& [attribute, value] : attributes) {
        if (SameName(attribute, wanted)) return value;
    }
    return {};
}

const SourceElement* SourcePart::Last(std::string_view name) const {
    const auto found = std::find_if(children.rbegin(), children.rend(),
                                    [=](const SourceElement& child) { return !child.ignored && child.Is(name); });
    return found == children.rend() ? nullptr : &*found;
}

std::uint32_t SourcePart::CountBefore(std::string_view name, std::string_view end) const {
    std::uint32_t count = 0;
    for (const SourceElement& child : children) {
        if (child.Is(end)) break;
        if (child.Is(name)) ++count;
    }
    return count;
}

std::uint32_t SourcePart::Rows() const {
    return Count("tableentry") + Count("ADXLVENTRY") + Count("ADXDGENTRY") + Count("ADXMONSERIES");
}

const SourcePart* SourceRecord::Find(const ADXObject& object) const {
    const auto found = objects_.find(&object);
    return found == objects_.end() ? nullptr : &found->second;
}

void SourceRecord::ElementRead(const ADXElement& element, ElementUse use) {
    if (element.Is("ADXFORMAT")) return;
    if (use == ElementUse::kObject) {
        inheader_ = false;
        object_ = std::make_unique<SourcePart>();
        object_->start = Kept(element, false);
    } else if (use == ElementUse::kHeader) {
        inheader_ = true;
        header_.start = Kept(element, false);
    } else if (inheader_) {
        header_.children.push_back(Kept(element, use == ElementUse::kNone));
        header_.children.back().attributecut = false;  // nothing of the header is read from attributes
    } else if (object_ != nullptr) {
        object_->children.push_back(Kept(element, use == ElementUse::kNone));
    } else {
        SourceElement stray;
        stray.name = element.Name();
        stray.line = element.Line();
        stray.ignored = true;
        header_.children.push_back(std::move(stray));
    }
}

}  // namespace corvex
