// One number of a reply: where it sits in the packet and how it becomes an engineering value.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "definition/ADXItem.h"
#include "definition/EquationEvaluator.h"
#include "definition/PacketView.h"

namespace corvex {

class ADXDefinition;
class ADXLookupTable;

// One variable of an equation. Every occurrence of a letter has an entry of its own.
struct ADXVar {
    enum Type : std::uint32_t { kNative = 0, kLink = 1 };

    bool IsLink() const { return type == kLink; }

    std::uint32_t type = kNative;  // native: the value's own packet field; link: another value
    char varid = 0;                // the letter
    std::uint32_t linkidhash = 0;  // of the linked ADXValue
};

// Holds no history; the only run-time state is the last raw word.
//
// Threads: GetRaw runs on the acquisition or playback thread, and may store the raw word while another thread reads it.
// Everything else drives the evaluator and belongs to the one thread that shows samples (session/SampleViews.h): the
// pages' thread where there are windows; the worker that brings the samples in a tool whose main thread waits for it.
//
// Links are followed by hash at every computation. A chain deeper than kLinkDepth, or a computation that runs through
// more than kLinkBudget linked values (only a cycle, or a definition made to be slow, gets there), is cut: the variable
// keeps the number of the one before it, as with a link that does not resolve.
class ADXValue : public ADXItem {
public:
    static constexpr std::uint32_t kType = kTypeValue;
    static constexpr unsigned kLinkDepth = 32;
    static constexpr unsigned kLinkBudget = 4096;

    enum Flag : std::uint32_t { kSigned = 0x1, kLowByteFirst = kFlagLowByteFirst, kAlarmHigh = 0x4, kAlarmLow = 0x8 };
    enum Output : std::uint32_t { kHexadecimal = 0, kInteger = 1, kUnsigned = 2, kFloat = 3 };

    ADXValue() : ADXItem(kType) {}
    int Write(XMLWriter* writer) const override;

    // The raw word as a number. Signed fields are 8, 16 or 32 bits wide; a signed field of any other width is 0.0.
    double GetNative(PacketView packet, std::uint32_t offset = 0, std::uint32_t options = 0);
    // The engineering value. Without an equation that parsed: 0.0.
    double Compute(const ADXDefinition& definition, PacketView packet, std::uint32_t offset = 0,
                   std::uint32_t options = 0);
    // The value as text (integers as Truncation.h cuts them), at most size-1 characters and always terminated; returns
    // the equation's output before any table. An outputtype that is none of the four leaves the buffer as it was.
    double Format(char* out, std::size_t size, const ADXDefinition& definition, PacketView packet,
                  std::uint32_t offset = 0, std::uint32_t options = 0);

    // Parses the equation and makes one native variable per letter of it. 1, or 0 when the memory can't be had.
    // An equation that does not parse keeps its text, and its variables are those of the last one that parsed.
    int SetEquation(const char* text, std::uint32_t len);
    // Returns the length plus one, or 1 when there is none.
    std::uint32_t GetEquation(char* out, std::uint32_t size) const;
    const EquationEvaluator& Equation() const { return equation_; }

    // Replaces the first entry of the same letter; 0 when the equation has no such letter.
    int SetVar(const ADXVar& var);
    int GetVar(std::uint32_t index, ADXVar* out) const;  // 0 past the end or for a null pointer
    const std::vector<ADXVar>& Vars() const { return vars_; }
    // Whether a letter stands for another value, and whether one stands for the value's own field.
    bool HasLinks() const;
    bool ReadsField() const;
    std::uint32_t GetVarCount() const { return static_cast<std::uint32_t>(vars_.size()); }

    void SetUnits(const char* text, std::uint32_t len) { units_.SetUnlessEmpty(text, len); }
    // Returns the copied length plus one, or 1 when empty or when `out` is unusable.
    std::uint32_t GetUnits(char* out, std::uint32_t size) const;
    const char* Units() const { return units_.IsSet() ? units_.CStr() : ""; }

    // Bits of flags: the field is a two's complement number; the alarm limit of that side is watched.
    bool IsSigned() const { return (flags & kSigned) != 0; }
    bool HasHighAlarm() const { return (flags & kAlarmHigh) != 0; }
    bool HasLowAlarm() const { return (flags & kAlarmLow) != 0; }

    std::uint32_t outputtype = kFloat;
    std::uint8_t digcount = 2;
    float alarmlow = 0.0F, alarmhigh = 255.0F;
    float rangelow = 0.0F, rangehigh = 255.0F;  // ends of the display scale; a value is never clamped to them
    std::uint16_t unittype = 0, datatype = 0;   // opaque; compared by FindValueByType alone
    std::uint32_t lookupidhash = 0;
    ADXLookupTable* lookup = nullptr;  // not owned; set from lookupidhash when links are resolved

private:
    struct LinkWalk;
    double ComputeLinked(const ADXDefinition& definition, PacketView packet, std::uint32_t offset,
                         std::uint32_t options, LinkWalk& walk);
    void FormatNumber(char* out, std::size_t size, double value) const;
    void WriteMath(XMLWriter& writer) const;

    EquationEvaluator equation_;
    std::vector<ADXVar> vars_;
    OwnedText units_;
};

}  // namespace corvex
