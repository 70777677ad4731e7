#include "export/ItemPattern.h"

#include "definition/ADXObject.h"
#include "export/text/TextFormat.h"

namespace corvex {

namespace {

char Lower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c | 0x20) : c;
}

std::size_t AfterCharacter(std::string_view text, std::size_t at) {
    do
        ++at;
    while (at < text.size() && (static_cast<unsigned char>(text[at]) & 0xC0) == 0x80);
    return at;
}

}  // namespace

// Only the last star is ever tried again: what an earlier one took is settled once the text between them has matched.
bool MatchesPattern(std::string_view pattern, std::string_view text) {
    std::size_t p = 0, t = 0;
    std::size_t star = std::string_view::npos, resume = 0;
    while (t < text.size()) {
        if (p < pattern.size() && pattern[p] == '*') {
            star = p++;
            resume = t;
        } else if (p < pattern.size() && pattern[p] == '?') {
            ++p;
            t = AfterCharacter(text, t);
        } else if (p < pattern.size() && Lower(pattern[p]) == Lower(text[t])) {
            ++p;
            ++t;
        } else if (star != std::string_view::npos) {
            p = star + 1;
            t = ++resume;
        } else {
            return false;
        }
    }
    while (p < pattern.size() && pattern[p] == '*')
        ++p;
    return p == pattern.size();
}

bool ItemMatches(const std::string& pattern, const ADXObject& item) {
    if (pattern.empty()) return true;
    return MatchesPattern(pattern, Utf8Text(item.Title())) || MatchesPattern(pattern, Utf8Text(item.Id()));
}

}  // namespace corvex
