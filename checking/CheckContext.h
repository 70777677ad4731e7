// What the single checks share: the definition, the index of hashes, and the list that findings go to.
#pragma once

#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

#include "checking/Finding.h"
#include "checking/SourceRecord.h"
#include "definition/ADXDefinition.h"

namespace corvex {

class CheckContext {
public:
    CheckContext(const ADXDefinition& definition, const SourceRecord* source);

    const ADXDefinition& Definition() const { return definition_; }
    // Null when there is no file; for one object also when it did not come from there.
    const SourceRecord* Source() const { return source_; }
    const SourcePart* SourceOf(const ADXObject& object) const;

    // The commands that bring packets, in list order.
    const std::vector<const ADXObject*>& PacketCommands() const { return packets_; }

    // As ADXDefinition::FindByHash, in constant time.
    const ADXObject* Find(std::uint32_t hash) const;

    // A null object means the definition as a whole.
    void Error(const ADXObject* object, const char* kind, std::string text);
    void Warn(const ADXObject* object, const char* kind, std::string text);
    void Note(const ADXObject* object, const char* kind, std::string text);
    // Of the finding that was added last: a place in the file that is nearer than the beginning of its object.
    void Place(std::uint32_t line) { findings_.back().line = line; }
    // What a save loses, or what makes the saved file unreadable.
    void Lost(Severity severity, const ADXObject* object, std::string text);

    // "unresolved-link" unless the hash names an object with a bit of `mask`; 0 is nobody's and no link.
    // `attribute` is where the hash stands, `effect` what comes of it.
    void RequireLink(const ADXObject& owner, const char* attribute, std::uint32_t hash, std::uint32_t mask,
                     const char* effect);

    std::vector<Finding> TakeFindings() { return std::move(findings_); }

private:
    Finding& Add(Severity severity, const ADXObject* object, const char* kind, std::string text);

    const ADXDefinition& definition_;
    const SourceRecord* source_;
    std::unordered_map<std::uint32_t, const ADXObject*> byhash_;
    std::vector<const ADXObject*> packets_;
    std::vector<Finding> findings_;
};

// Why no object is found by this id text, as far as it can be told.
std::string WhyIdNotFound(const CheckContext& context, const std::string& id);

// The checks, one unit for each subject. CheckDefinition runs them over the whole and over each object.
void CheckHeader(CheckContext& context);
void CheckIdentities(CheckContext& context);
void CheckCycles(CheckContext& context);
void CheckLinks(CheckContext& context, const ADXObject& object);
void CheckCommand(CheckContext& context, const ADXObject& object);
void CheckField(CheckContext& context, const ADXObject& object);
void CheckEquation(CheckContext& context, const ADXObject& object);
void CheckTable(CheckContext& context, const ADXObject& object);
void CheckView(CheckContext& context, const ADXObject& object);
void CheckSavedTexts(CheckContext& context, const ADXObject& object);
void CheckSavedHeader(CheckContext& context);
// Of an object, or of the header when it is null.
void CheckSourceText(CheckContext& context, const ADXObject* object, const SourcePart& source);

}  // namespace corvex
