// Maps one number to another number or to a text, through a sorted table.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "definition/ADXObject.h"

namespace corvex {

// Strictly ascending by input; all arithmetic is done in 32-bit floats. A number off the ends takes the end entry:
// nothing is extrapolated. Something that is no number takes the entry that is probed first, in the middle. Filled at
// load and constant afterwards; reading is safe from any thread.
class ADXLookupTable : public ADXObject {
public:
    enum Output : std::uint32_t { kHexadecimal = 0, kInteger = 1, kUnformatted = 2, kFloat = 3, kText = 5 };
    enum Mode : std::uint32_t { kInterpolate = 0, kNearest = 1, kLower = 2, kHigher = 3 };

    static constexpr std::uint32_t kType = kTypeLookupTable;

    ADXLookupTable() : ADXObject(kType) {}
    int Write(XMLWriter* writer) const override;

    // The number for x. 0.0 for an empty table and for one with text output.
    float Convert(float x) const;
    // Copies the text for x, limited by size, and returns its whole length; 0 on a table without text output.
    std::uint32_t ConvertToText(float x, char* out, std::uint32_t size) const;
    // The whole display step: text into `out`, the number into `result` unless null. Returns the length of the text.
    // An empty text table and an unformatted table give an empty text.
    std::uint32_t Format(float x, char* out, std::uint32_t size, float* result, int digcount) const;

    // Keep the table sorted; an entry of the same input is replaced. Return the entry's index, or -1 for an entry that
    // is refused: a null or empty text, a text for a table of numbers, a number for a table of texts.
    int AddEntry(float input, float output);
    int AddEntryText(float input, const char* text, std::uint32_t len);
    // Room for so many entries, so that adding them moves none.
    void Reserve(std::uint32_t count) { entries_.reserve(count); }
    float RemoveEntry(std::uint32_t index);  // the entry's input, or 0.0 past the end
    // Return 0 past the end, else fill what isn't null and return 1.
    int GetEntry(std::uint32_t index, float* input, float* output) const;
    int GetEntryText(std::uint32_t index, float* input, char* out, std::uint32_t size) const;
    std::uint32_t GetEntryCount() const { return static_cast<std::uint32_t>(entries_.size()); }

    // Converts the entries and returns the old type. Texts become 0.0; numbers become "%f" texts, and interpolation
    // becomes nearest, since texts can't be mixed.
    std::uint32_t SetOutputType(std::uint32_t type);
    std::uint32_t GetOutputType() const { return outputtype_; }
    void SetLookupMode(std::uint32_t mode);
    std::uint32_t GetLookupMode() const { return lookupmode_; }
    void Reset();

    std::uint32_t flags = 0;      // loaded and saved, tested nowhere
    std::uint32_t inputtype = 3;  // loaded and saved, tested nowhere

private:
    struct Entry {
        float input = 0.0F;
        float output = 0.0F;  // with text output the text counts instead
        OwnedText text;
    };
    struct Selection {
        const Entry* low = nullptr;
        const Entry* high = nullptr;
        bool exact = false;  // one entry, whatever the mode
    };
    Selection Select(float x) const;
    const Entry* ChooseText(float x) const;
    float ChooseNumber(float x) const;
    static bool IsHigherNearer(float x, const Entry& low, const Entry& high);
    int Insert(Entry entry);

    std::uint32_t outputtype_ = kFloat;
    std::uint32_t lookupmode_ = kInterpolate;
    std::vector<Entry> entries_;
};

}  // namespace corvex
