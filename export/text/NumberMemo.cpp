#include "export/text/NumberMemo.h"

#include <algorithm>

namespace corvex {

std::string_view NumberMemo::Find(std::uint32_t word) const {
    const Entry& entry = entries_[word & 0xFFU];
    if (entry.word != word) return {};
    return {entry.text.data(), entry.length};
}

void NumberMemo::Keep(std::uint32_t word, std::string_view text) {
    Entry& entry = entries_[word & 0xFFU];
    if (text.size() > entry.text.size()) return;
    entry.word = word;
    entry.length = static_cast<std::uint8_t>(text.size());
    std::copy(text.begin(), text.end(), entry.text.begin());
}

}  // namespace corvex
