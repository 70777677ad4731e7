// The header of a legacy text definition and the commands in it.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

namespace corvex {

class AdsFieldReader;

struct AdsCommand {
    static constexpr std::size_t kByteLimit = 10;

    std::string strCommandName = "New ALDL Data Command";
    std::array<std::uint8_t, kByteLimit> rgbtCommand{};
    std::uint32_t iTotalBytesInCommand = 0;
    std::int32_t bChecksumCommand = 1;
    std::uint32_t iNumBytesInPayload = 63;
    std::uint32_t iNumBytesBeforePayload = 0;
    std::int32_t bMaster = 0;
    std::int32_t bMonitor = 0;
    std::int32_t iChainTo = -1;
};

// Texts without a size of their own hold what a field holds.
struct AdsHeader {
    static constexpr std::size_t kCommandLimit = 10;

    float fDefFrmtVers = 0.0F;
    std::string strDefVersion = "Version 1.0";
    std::string strDefTitle = "New ALDL Datastream Definition";
    std::string strAuthor, strEngine, strYear, strVINCode, strCodeMask, strComments;
    std::uint32_t iBaud = 8192;
    std::uint32_t dwFlags = 0;
    std::uint32_t dwCSID = 0;
    std::uint32_t btNumDumpRequests = 0;  // as the file has it
    // What stands behind the records that the file holds keeps its defaults.
    std::array<AdsCommand, kCommandLimit> commands;

    // The records that count: btNumDumpRequests, but never more than there are.
    std::size_t CommandCount() const { return btNumDumpRequests < kCommandLimit ? btNumDumpRequests : kCommandLimit; }
};

// Reads a header block, and leaves the reader at the file's format version. Returns the command records that the file
// holds beyond the ten that there is room for; they are read and dropped.
std::uint32_t ReadHeader(AdsFieldReader& fields, AdsHeader& header);

}  // namespace corvex
