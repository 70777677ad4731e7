// Reads a legacy text definition (.ads) into its items.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <unordered_set>
#include <vector>

#include "files/ads/ALDLItem.h"
#include "files/ads/AdsHeader.h"
#include "files/ads/AdsInput.h"

namespace corvex {

class AdsFieldReader;

// What a file held that found no place, for whoever tells the user.
struct AdsLosses {
    bool header = false;              // true when the file had a header block at all
    std::uint32_t extracommands = 0;  // command records beyond the tenth
    std::uint32_t otheritems = 0;     // of a type that becomes nothing
    std::uint32_t renumbered = 0;     // items that came with a number already taken
    std::uint32_t cutfields = 0;      // fields of more than 255 characters
    std::uint32_t cuttables = 0;      // tables that say they are larger than anything the file justifies
    std::uint32_t tablelines = 0;     // lines of tables that name no slot
};

// Blocks follow one another in no nesting: every "{" outside of a block begins one, the first of the file the header,
// each later one an item. There are no errors: a damaged file gives fields in wrong places, or defaults. Memory stays
// in proportion to the file: tables keep 256 slots each, and what they have above that is limited, over all of
// them, to kSlotsPerByte for each byte of the file so far and to kSlotReserve.
//
// Built for one import and used by one thread. May be used again; a new read drops what the last one left.
class AdsReader {
public:
    static constexpr std::uint32_t kSlotReserve = 65536;
    static constexpr std::uint32_t kSlotsPerByte = 16;

    AdsReader() = default;
    AdsReader(const AdsReader&) = delete;
    AdsReader& operator=(const AdsReader&) = delete;

    // 1 when the file was read. 0 for a null or empty path and for a file that can't be opened or not be read.
    int Read(const char* path);
    // The same from bytes in memory; always 1.
    int ReadMemory(const void* bytes, std::size_t size);

    const AdsHeader& Header() const { return header_; }
    const AdsLosses& Losses() const { return losses_; }
    // Each list in the order of the file, owned here.
    const std::vector<std::unique_ptr<ALDLValue>>& Values() const { return values_; }
    const std::vector<std::unique_ptr<ALDLBit>>& Bits() const { return bits_; }
    const std::vector<std::unique_ptr<ALDLLookupTable>>& Tables() const { return tables_; }
    const std::vector<std::unique_ptr<ALDLDash>>& Dashes() const { return dashes_; }

private:
    void Reset();
    void ReadBlocks(AdsInput& input);
    void ReadItem(AdsFieldReader& fields);
    void ReadTable(AdsFieldReader& fields, ALDLLookupTable& table);
    void Renumber();
    void LinkTables();

    AdsHeader header_;
    AdsLosses losses_;
    std::vector<std::unique_ptr<ALDLValue>> values_;
    std::vector<std::unique_ptr<ALDLBit>> bits_;
    std::vector<std::unique_ptr<ALDLLookupTable>> tables_;
    std::vector<std::unique_ptr<ALDLDash>> dashes_;
    std::unordered_set<std::uint32_t> numbers_;  // of all items in the lists
    std::vector<ALDLItem*> flagged_;             // items with kNumberTaken, in the order of the file
    std::uint32_t moreslots_ = 0;                // above the first 256 of each table
};

// The steps of an import. 1 or 0, as AdsReader::Read; 0 for a null reader.
int ReadAds(const char* path, AdsReader* reader);

}  // namespace corvex
