#include "definition/ADXLookupTable.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <utility>

#include "definition/Truncation.h"
#include "definition/WriterForms.h"
#include "files/xml/XMLWriter.h"

namespace corvex {

// A binary search that settles off the ends and on a hit as saved definitions expect it. The last key is never probed,
// so a number equal to it counts as lying before it, and the lower-key mode gives the entry below.
ADXLookupTable::Selection ADXLookupTable::Select(float x) const {
    const Entry* entry = entries_.data();
    const std::size_t count = entries_.size();
    if (count == 0) return {};
    if (count == 1) return {entry, entry, true};
    std::size_t low = 0;
    std::size_t high = count - 1;
    while (low < high) {
        const std::size_t middle = (low + high) / 2;
        if (entry[middle].input < x) {
            low = middle + 1;
        } else if (entry[middle].input > x) {
            high = middle;
        } else {
            return {&entry[middle], &entry[middle], true};
        }
    }
    const bool above = high == count - 1 && entry[high].input < x;
    if (!above && low != 0) --low;
    return {&entry[low], &entry[high], false};
}

const ADXLookupTable::Entry* ADXLookupTable::ChooseText(float x) const {
    const auto [low, high, exact] = Select(x);
    if (low == nullptr || exact) return low;
    switch (lookupmode_) {
        case kInterpolate:
        case kLower:
            return low;
        case kNearest:
            return IsHigherNearer(x, *low, *high) ? high : low;
        case kHigher:
            return high;
        default:
            return entries_.data();
    }
}

float ADXLookupTable::ChooseNumber(float x) const {
    const auto [low, high, exact] = Select(x);
    if (low == nullptr) return 0.0F;
    if (exact) return low->output;
    switch (lookupmode_) {
        case kInterpolate: {
            if (low == high) return low->output;
            const float t = (x - low->input) / (high->input - low->input);
            return low->output + (high->output - low->output) * t;
        }
        case kNearest:
            return IsHigherNearer(x, *low, *high) ? high->output : low->output;
        case kLower:
            return low->output;
        case kHigher:
            return high->output;
        default:
            return 0.0F;
    }
}

bool ADXLookupTable::IsHigherNearer(float x, const Entry& low, const Entry& high) {
    const float below = x - low.input;
    const float above = high.input - x;
    return above <= below;
}

float ADXLookupTable::Convert(float x) const {
    return outputtype_ == kText ? 0.0F : ChooseNumber(x);
}

std::uint32_t ADXLookupTable::ConvertToText(float x, char* out, std::uint32_t size) const {
    if (outputtype_ != kText || out == nullptr || size == 0) return 0;
    const Entry* entry = ChooseText(x);
    if (entry == nullptr) return 0;
    entry->text.CopyTo(out, size);
    return static_cast<std::uint32_t>(entry->text.Length());
}

std::uint32_t ADXLookupTable::Format(float x, char* out, std::uint32_t size, float* result, int digcount) const {
    const bool usable = out != nullptr && size != 0;
    if (outputtype_ == kText && usable) {
        const std::uint32_t length = ConvertToText(x, out, size);
        if (length != 0) return length;
    }
    const float number = Convert(x);
    if (result != nullptr) *result = number;
    if (!usable) return 0;
    char text[100] = "";
    switch (outputtype_) {
        case kHexadecimal:
            std::snprintf(text, sizeof text, "0x%.2X", static_cast<unsigned>(TruncateToWord(number)));
            break;
        case kInteger:
            std::snprintf(text, sizeof text, "%i", static_cast<int>(TruncateToInt32(number)));
            break;
        case kFloat:
            std::snprintf(text, sizeof text, "%.*f", digcount, static_cast<double>(number));
            break;
        default:
            break;
    }
    const std::size_t length = std::strlen(text);
    const std::size_t copied = std::min<std::size_t>(length, size - 1);
    std::memcpy(out, text, copied);
    out[copied] = '\0';
    return static_cast<std::uint32_t>(length);
}

int ADXLookupTable::AddEntry(float input, float output) {
    if (outputtype_ == kText) return -1;
    Entry entry;
    entry.input = input;
    entry.output = output;
    return Insert(std::move(entry));
}

int ADXLookupTable::AddEntryText(float input, const char* text, std::uint32_t len) {
    if (outputtype_ != kText || text == nullptr || len == 0) return -1;
    Entry entry;
    entry.input = input;
    entry.text.Set(text, len);
    return Insert(std::move(entry));
}

int ADXLookupTable::Insert(Entry entry) {
    // Most tables come sorted.
    const bool last = entries_.empty() || entries_.back().input < entry.input;
    const auto place = last ? entries_.end() : std::find_if(entries_.begin(), entries_.end(), [&](const Entry& other) {
        return other.input == entry.input || other.input > entry.input;
    });
    const auto index = static_cast<int>(place - entries_.begin());
    if (place != entries_.end() && place->input == entry.input) {
        *place = std::move(entry);
    } else {
        entries_.insert(place, std::move(entry));
    }
    return index;
}

float ADXLookupTable::RemoveEntry(std::uint32_t index) {
    if (index >= entries_.size()) return 0.0F;
    const float input = entries_[index].input;
    entries_.erase(entries_.begin() + static_cast<std::ptrdiff_t>(index));
    return input;
}

int ADXLookupTable::GetEntry(std::uint32_t index, float* input, float* output) const {
    if (index >= entries_.size()) return 0;
    if (input != nullptr) *input = entries_[index].input;
    if (output != nullptr) *output = entries_[index].output;
    return 1;
}

int ADXLookupTable::GetEntryText(std::uint32_t index, float* input, char* out, std::uint32_t size) const {
    if (index >= entries_.size()) return 0;
    if (input != nullptr) *input = entries_[index].input;
    entries_[index].text.CopyTo(out, size);
    return 1;
}

std::uint32_t ADXLookupTable::SetOutputType(std::uint32_t type) {
    const std::uint32_t old = std::exchange(outputtype_, type);
    if (type == old) return old;
    if (type == kText) {
        if (lookupmode_ == kInterpolate) lookupmode_ = kNearest;
        for (Entry& entry : entries_) {
            char text[20];  // a longer number is cut
            std::snprintf(text, sizeof text, "%f", static_cast<double>(entry.output));
            entry.output = 0.0F;
            entry.text.Set(text, sizeof text);
        }
    } else if (old == kText) {
        for (Entry& entry : entries_) {
            entry.text.Clear();
        }
    }
    return old;
}

void ADXLookupTable::SetLookupMode(std::uint32_t mode) {
    lookupmode_ = mode == kInterpolate && outputtype_ == kText ? std::uint32_t{kNearest} : mode;
}

void ADXLookupTable::Reset() {
    entries_.clear();
    inputtype = 3;
    outputtype_ = kFloat;
    lookupmode_ = kInterpolate;
}

int ADXLookupTable::Write(XMLWriter* writer) const {
    if (writer == nullptr) return 0;
    writer->StartElement("ADXLOOKUPTABLE");
    WriteBaseAttributes(writer);
    WriteDesc(writer);
    WriteElementHex8UnlessZero(*writer, "flags", flags);
    WriteElementDec(*writer, "inputtype", inputtype);
    WriteElementDec(*writer, "outputtype", outputtype_);
    WriteElementDec(*writer, "lookupmode", lookupmode_);
    WriteElementDec(*writer, "entrycount", GetEntryCount());
    for (const Entry& entry : entries_) {
        writer->StartElement("tableentry");
        writer->WriteAttributeFloat("input", entry.input);
        if (outputtype_ == kText) {
            writer->WriteAttribute("output", entry.text.IsSet() ? entry.text.CStr() : "");
        } else {
            writer->WriteAttributeFloat("output", entry.output);
        }
        writer->EndElement();
    }
    writer->EndElement();
    return 1;
}

}  // namespace corvex
