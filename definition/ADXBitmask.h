// One flag of a reply: a masked comparison shown as one of two texts.
#pragma once

#include <cstdint>

#include "definition/ADXItem.h"
#include "definition/PacketView.h"

namespace corvex {

class ADXDefinition;

// Threads: as ADXValue; there is no evaluator, so testing is safe anywhere.
// Colours are 0x00BBGGRR words.
class ADXBitmask : public ADXItem {
public:
    enum Flag : std::uint32_t { kLowByteFirst = kFlagLowByteFirst, kAlarmOnSet = 0x4, kAlarmOnNotSet = 0x8 };
    enum Operation : std::uint32_t { kAnd = 0, kXor = 1 };

    static constexpr std::uint32_t kType = kTypeBitmask;

    ADXBitmask() : ADXItem(kType) {}
    int Write(XMLWriter* writer) const override;

    // 1 when `operand` AND (or XOR) the word equals `result`; 0 otherwise and for any other bitop.
    // A default bitmask is always set.
    int IsSet(const ADXDefinition& definition, PacketView packet, std::uint32_t offset = 0, std::uint32_t options = 0);
    // The same, but the raw word stays as it was: for a look at a packet that may be of another command.
    int WouldBeSet(PacketView packet) const;
    // As IsSet, and the text that belongs to it.
    int GetText(char* out, std::uint32_t size, const ADXDefinition& definition, PacketView packet,
                std::uint32_t offset = 0, std::uint32_t options = 0);

    // Store the colour if `out` isn't null; return the flag word that enables the alarm, 0 when it is off.
    std::uint32_t GetAlarmOnSet(std::uint32_t* out) const;
    std::uint32_t GetAlarmOnNotSet(std::uint32_t* out) const;
    // 1 the colour when set, 2 the colour when not set; any other gives 0 or does nothing.
    std::uint32_t GetColor(int which) const;
    void SetColor(int which, std::uint32_t color);

    void SetTrueString(const char* text, std::uint32_t len) { truestring_.SetUnlessEmpty(text, len); }
    void SetFalseString(const char* text, std::uint32_t len) { falsestring_.SetUnlessEmpty(text, len); }
    // Copy the text, or an empty one; return the stored text's length measured up to 512.
    std::uint32_t GetTrueString(char* out, std::uint32_t size) const;
    std::uint32_t GetFalseString(char* out, std::uint32_t size) const;
    const char* TrueString() const { return truestring_.IsSet() ? truestring_.CStr() : ""; }
    const char* FalseString() const { return falsestring_.IsSet() ? falsestring_.CStr() : ""; }

    // Bits of flags: which of the two states is an alarm.
    bool HasAlarmOnSet() const { return (flags & kAlarmOnSet) != 0; }
    bool HasAlarmOnNotSet() const { return (flags & kAlarmOnNotSet) != 0; }

    std::uint32_t operand = 0;  // the mask
    std::uint32_t result = 0;   // the word that means "set"
    std::uint32_t bitop = kAnd;
    std::uint32_t alarmonsetcolor = 255;       // red
    std::uint32_t alarmonnotsetcolor = 65280;  // green

private:
    int Compare(std::uint32_t word) const;

    OwnedText truestring_, falsestring_;
};

}  // namespace corvex
