#pragma once

#include <cstdint>
#include <string>

namespace corvex {

// Writes a finished log of so many records of one send command, `size` bytes each: a poll of some 95 ms, replies that
// begin with a message header and end with their checksum, and between them bytes as an engine in traffic gives them
// (some stand, some drift, some rise and fall). The same arguments give the same bytes. Streams, so
// the length costs no memory. Returns an empty text, or why the file could not be written.
std::string WriteGeneratedLog(const std::string& path, std::uint32_t records, std::uint32_t commandId,
                              std::uint32_t size);

}  // namespace corvex
