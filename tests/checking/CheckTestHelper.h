// Definitions out of a few lines of text, and what the checker finds in them.
#pragma once

#include <string>
#include <vector>

#include "checking/Finding.h"
#include "tests/support/TestFolder.h"

namespace corvex {

// A file in a folder of its own, which is there for the life of the object.
class TempFile {
public:
    explicit TempFile(const std::string& text, const std::string& suffix = ".adx")
        : path_(folder_.Put("corvex" + suffix, text)) {}

    const std::string& Path() const { return path_; }

private:
    const test::TestFolder folder_;
    const std::string path_;
};

// The format line, a sane header, a send command POLL (packet of 20 bytes), a macro MONITOR that runs it, and
// `objects`.
std::string DefinitionWith(const std::string& objects);

// A value with this equation, at packetoffset 0 of POLL; `more` goes among its children.
std::string ValueText(const std::string& id, const std::string& equation, const std::string& more = "");

// Any object, with the id for its title.
std::string Object(const std::string& element, const std::string& id, const std::string& inside = "");

// Loads the text as a file and checks it.
std::vector<Finding> CheckText(const std::string& text);

// The findings of one kind.
std::vector<Finding> OfKind(const std::vector<Finding>& findings, const std::string& kind);

// "severity kind object: text" lines, for messages and comparisons.
std::string Lines(const std::vector<Finding>& findings);

}  // namespace corvex
