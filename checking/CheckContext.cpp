#include "checking/CheckContext.h"

#include <algorithm>

#include "export/text/ObjectNames.h"
#include "export/text/TextFormat.h"

namespace corvex {

const char* SeverityName(Severity severity) {
    switch (severity) {
        case Severity::kError:
            return "error";
        case Severity::kWarning:
            return "warning";
        case Severity::kNote:
            return "note";
    }
    return "note";
}

std::size_t CountSeverity(const std::vector<Finding>& findings, Severity severity) {
    return static_cast<std::size_t>(std::count_if(
        findings.begin(), findings.end(), [&](const Finding& finding) { return finding.severity == severity; }));
}

CheckContext::CheckContext(const ADXDefinition& definition, const SourceRecord* source)
    : definition_(definition), source_(source) {
    for (const auto& object : definition.Objects()) {
        // The first in list order wins, as in every lookup by hash.
        if (object->GetIdHash() != 0) byhash_.emplace(object->GetIdHash(), object.get());
        if (object->IsOneOf(kPacketTypes)) packets_.push_back(object.get());
    }
}

const SourcePart* CheckContext::SourceOf(const ADXObject& object) const {
    return source_ == nullptr ? nullptr : source_->Find(object);
}

const ADXObject* CheckContext::Find(std::uint32_t hash) const {
    const auto found = byhash_.find(hash);
    return found == byhash_.end() ? nullptr : found->second;
}

Finding& CheckContext::Add(Severity severity, const ADXObject* object, const char* kind, std::string text) {
    Finding finding{severity, kind, {}, std::move(text), 0, false};
    if (object != nullptr) {
        finding.object = NameOf(*object);
        if (const SourcePart* source = SourceOf(*object)) finding.line = source->start.line;
    } else if (source_ != nullptr) {
        finding.line = source_->Header().start.line;
    }
    findings_.push_back(std::move(finding));
    return findings_.back();
}

void CheckContext::Error(const ADXObject* object, const char* kind, std::string text) {
    Add(Severity::kError, object, kind, std::move(text));
}

void CheckContext::Warn(const ADXObject* object, const char* kind, std::string text) {
    Add(Severity::kWarning, object, kind, std::move(text));
}

void CheckContext::Note(const ADXObject* object, const char* kind, std::string text) {
    Add(Severity::kNote, object, kind, std::move(text));
}

void CheckContext::Lost(Severity severity, const ADXObject* object, std::string text) {
    Add(severity, object, "lost-on-save", std::move(text)).lostonsave = true;
}

void CheckContext::RequireLink(const ADXObject& owner, const char* attribute, std::uint32_t hash, std::uint32_t mask,
                               const char* effect) {
    if (hash == 0) return;
    const ADXObject* target = Find(hash);
    if (target == nullptr) {
        Error(&owner, "unresolved-link",
              Printf("%s %s names no object of this definition; %s", attribute, HashText(hash).c_str(), effect));
    } else if (!target->IsOneOf(mask)) {
        Error(&owner, "wrong-link",
              Printf("%s %s names the %s, which cannot stand there; %s", attribute, HashText(hash).c_str(),
                     NameOf(*target).c_str(), effect));
    }
}

std::string WhyIdNotFound(const CheckContext& context, const std::string& id) {
    const std::string stored = id.substr(0, ADXObject::kIdLength);
    const ADXObject* longer = nullptr;
    for (const auto& object : context.Definition().Objects()) {
        const std::string own = object->Id();
        if (own.size() == ADXObject::kIdLength && own.substr(0, own.size() - 1) == stored.substr(0, own.size() - 1))
            longer = object.get();
    }
    if (longer == nullptr) return "no object has that id";
    return Printf("the %s has it, but an id of 15 characters cannot be found by its text", NameOf(*longer).c_str());
}

}  // namespace corvex
