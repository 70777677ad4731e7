#include <cstring>
#include <map>
#include <string>
#include <vector>

#include "checking/CheckContext.h"
#include "export/text/ObjectNames.h"
#include "export/text/TextFormat.h"

namespace corvex {

namespace {

void CheckId(CheckContext& context, const ADXObject& object) {
    const std::size_t length = std::strlen(object.Id());
    const bool command = object.IsOneOf(kCommandTypes);
    if (length == 0)
        context.Warn(&object, "no-id", "has no id: nothing can refer to it reliably");
    else if (length == ADXObject::kIdLength && command)
        context.Warn(&object, "long-id",
                     "its id has 15 characters: it is hashed whole but cannot be found by its text, so no macro and no "
                     "header can name it; use 14 at most");
    else if (length == ADXObject::kIdLength)
        context.Note(&object, "long-id", "its id has 15 characters: links by hash work, a search by its text does not");
    const SourcePart* source = context.SourceOf(object);
    const std::string written(source != nullptr ? source->start.Attribute("id") : "");
    if (written.size() > ADXObject::kIdLength)
        context.Warn(
            &object, "cut-id",
            Printf("the file gives the id \"%s\"; only the first 15 characters count", DisplayText(written).c_str()));
}

void CheckSharedHash(CheckContext& context, const std::vector<const ADXObject*>& owners) {
    const ADXObject& first = *owners.front();
    for (std::size_t i = 1; i < owners.size(); ++i) {
        const ADXObject& other = *owners[i];
        const bool sameid = std::strcmp(first.Id(), other.Id()) == 0;
        context.Error(
            &other, sameid ? "duplicate-id" : "duplicate-hash",
            Printf("shares %s %s with the %s, which every link finds instead", sameid ? "its id and hash" : "the hash",
                   HashText(other.GetIdHash()).c_str(), NameOf(first).c_str()));
    }
}

}  // namespace

void CheckIdentities(CheckContext& context) {
    std::map<std::uint32_t, std::vector<const ADXObject*>> owners;
    for (const auto& object : context.Definition().Objects()) {
        CheckId(context, *object);
        if (object->GetIdHash() != 0) owners[object->GetIdHash()].push_back(object.get());
    }
    for (const auto& [hash, list] : owners)
        CheckSharedHash(context, list);
}

}  // namespace corvex
