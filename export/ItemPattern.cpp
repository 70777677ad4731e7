#include "export/ItemPattern.h"

#include "definition/ADXDefinition.h"
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

namespace {

// Calls `use` with each part until it answers true; whether it did.
template <class Use>
bool AnyPart(std::string_view text, char between, Use use) {
    for (;;) {
        const std::size_t end = text.find(between);
        if (use(text.substr(0, end))) return true;
        if (end == text.npos) return false;
        text.remove_prefix(end + 1);
    }
}

}  // namespace

bool ItemMatches(const std::string& patterns, const ADXObject& item) {
    if (patterns.empty()) return true;
    const std::string title = Utf8Text(item.Title()), id = Utf8Text(item.Id());
    const auto matches = [&](std::string_view pattern) {
        return MatchesPattern(pattern, title) || MatchesPattern(pattern, id);
    };
    return AnyPart(patterns, '\n', [&](std::string_view line) {
        return matches(line) || (line.find(',') != line.npos && AnyPart(line, ',', matches));
    });
}

ItemChoice::ItemChoice(const ADXDefinition& definition, const std::string& patterns) {
    for (const auto& object : definition.Objects()) {
        if (object->IsOneOf(kItemTypes) && ItemMatches(patterns, *object)) items_.insert(object.get());
    }
}

}  // namespace corvex
