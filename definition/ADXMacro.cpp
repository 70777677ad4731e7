#include "definition/ADXMacro.h"

#include "definition/WriterForms.h"
#include "files/xml/XMLWriter.h"

namespace corvex {
namespace {

void WriteNode(XMLWriter& writer, const ADXMacroNode& node) {
    char id[ADXObject::kIdLength + 1];
    node.command->GetId(id, sizeof id);
    writer.StartElement("NODE");
    WriteAttributeHex8UnlessZero(writer, "flags", node.flags);
    writer.WriteAttribute("commandID", id);
    WriteAttributeDec(writer, "repeatcount", node.repeatcount);
    writer.EndElement();
}

}  // namespace

int ADXMacro::Write(XMLWriter* writer) const {
    if (writer == nullptr) return 0;
    writer->StartElement("ADXMACRO");
    WriteBaseAttributes(writer);
    WriteAttributeDec(*writer, "repeatcount", repeatcount);
    WriteAttributeHex8UnlessZero(*writer, "flags", flags);
    WriteDesc(writer);
    for (const ADXMacroNode& node : nodes_) {
        if (node.command != nullptr) WriteNode(*writer, node);
    }
    writer->EndElement();
    return 1;
}

void ADXMacro::GetNode(std::uint32_t index, ADXMacroNode* out) const {
    if (out != nullptr && index < nodes_.size()) *out = nodes_[index];
}

void ADXMacro::AddNode(const ADXMacroNode* node) {
    if (node != nullptr) nodes_.push_back(*node);
}

void ADXMacro::SetNode(std::uint32_t index, const ADXMacroNode* node) {
    if (node == nullptr) return;
    const ADXMacroNode copy = *node;  // growing the array may move the node that was given
    if (index >= nodes_.size()) {
        if (index >= kNodeLimit) return;
        nodes_.resize(index + 1);
    }
    nodes_[index] = copy;
}

}  // namespace corvex
