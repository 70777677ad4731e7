// The definition that an editor works on, and its way from and to a file.
#pragma once

#include <array>
#include <memory>
#include <string>

#include "definition/ADXDefinition.h"

namespace corvex {

// A fresh document is an empty definition. Every page of an editor changes the one definition of its document; nothing
// reaches a file but by Save. One thread.
class DocumentModel {
public:
    // Reads the file in the place of what was there. False: `error` says why, never empty, and the document is of no
    // use until the next Load.
    //
    // A command of the header that names no object is kept: the header then points to a bare ADXObject of that id, of
    // type kTypeObject, which belongs to the document and is in no list. Otherwise the next save would drop it.
    bool Load(const std::string& path, std::string& error);

    // Writes the file whole or leaves the old one as it was. False: `error` says why. What would not be read back, as
    // texts that the format does not escape, is found before a file is touched.
    bool Save(const std::string& path, std::string& error) const;

    ADXDefinition& Definition() { return definition_; }
    const ADXDefinition& Definition() const { return definition_; }

private:
    bool ReadsBack(std::string& error) const;
    ADXObject* Missing(std::size_t place, const char* id);

    ADXDefinition definition_;
    std::array<std::unique_ptr<ADXObject>, 3> missing_;  // what stands for the header's commands that name nothing
};

}  // namespace corvex
