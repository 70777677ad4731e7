// What stands in a definition file before the loader has judged it.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace corvex {

// The loader forgives much and forgets what it forgave: rows that it drops, links that it cannot resolve, words that it
// does not know. Whoever explains a file needs them, and the line that each object starts on.
struct FileFacts {
    // Counts are of elements as they stand, before any rule of the loader.
    struct Object {
        std::uint32_t type = 0;
        std::uint32_t line = 0;  // of the start tag, from 1
        std::string id, title;
        bool baseflags = false;            // given and not zero
        std::uint32_t rows = 0;            // of a table, a list view, a dashboard or a monitor
        std::uint32_t rowsBeforeSize = 0;  // list view: rows before "entrycount"
        std::uint32_t rowsBeforeType = 0;  // table: rows before "outputtype"
        bool entrycountGiven = false;
        std::uint32_t entrycount = 0;
        bool outputtypeGiven = false;
        std::uint32_t outputtype = 0;
        std::vector<std::uint32_t> serieshashes;  // of a monitor, one for each series
        std::string equation;
        std::string vars;                  // the letters of VAR elements
        std::uint32_t bytes = 0;           // tokens of "bytestring"
        std::string bytesize;              // its "size" as written
        std::vector<std::string> unknown;  // names of elements and attributes that mean nothing there
        std::vector<std::string> toolong;  // names of those whose text the loader cuts
    };

    std::vector<Object> objects;  // in the order of the file, which is that of a loaded definition
    std::uint32_t headerline = 0;
    std::optional<std::uint32_t> objectcount;  // with "commandcount"
    std::string connectcmd, monitorcmd, disconnectcmd;
    std::vector<std::string> unknown, toolong;  // of the header and the top level
    std::uint32_t formatline = 0;               // of "ADXFORMAT", 0 when there is none

    // The place of the reader's complaint; line 0 when there is none.
    std::string error;
    std::uint32_t errorline = 0, errorcolumn = 0;
};

// Reads the file once more on its own. Never fails: a damaged file gives what stands before the damage.
FileFacts ReadFileFacts(const char* path);

}  // namespace corvex
