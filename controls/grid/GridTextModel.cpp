#include "controls/grid/GridTextModel.h"

#include <algorithm>

namespace corvex {

namespace {

constexpr std::size_t kTypedLength = 511;  // of a text, beyond which nobody looks
constexpr int kLetters = 26;

// ASCII alone: the user's locale must not decide what a number is.
bool IsBlank(char c) {
    return c == ' ' || (c >= '\t' && c <= '\r');
}

bool IsLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

// Cuts the next field off a text, with what ends it.
std::string_view TakeField(std::string_view& text) {
    const std::size_t end = std::min(text.find_first_of("\t\r\n"), text.size());
    const std::string_view field = text.substr(0, end);
    text.remove_prefix(end);
    text.remove_prefix(text.starts_with("\r\n") ? 2 : text.empty() ? 0 : 1);
    return field;
}

}  // namespace

GridCellType GridTypeOf(std::string_view text) {
    text = text.substr(0, kTypedLength);
    const auto start = static_cast<std::size_t>(std::find_if_not(text.begin(), text.end(), &IsBlank) - text.begin());
    int digits = 0, points = 0;
    for (std::size_t i = start; i < text.size(); ++i) {
        const char c = text[i];
        // A sign behind a leading blank makes text too.
        if (IsLetter(c) || IsBlank(c) || ((c == '+' || c == '-') && i != 0)) return GridCellType::kText;
        if (IsDigit(c)) ++digits;
        if (c == '.') ++points;
    }
    return digits > 0 && points <= 1 ? GridCellType::kNumber : GridCellType::kText;
}

std::string GridColumnLetters(int column) {
    const int high = (column - 1) / kLetters, low = (column - 1) % kLetters + 1;
    return {high == 0 ? ' ' : static_cast<char>(high + 0x40), static_cast<char>(low + 0x40)};
}

int CountLines(std::string_view text) {
    return static_cast<int>(std::count(text.begin(), text.end(), '\n')) + 1;
}

std::optional<GridFields> ParseGridFields(std::string_view text, int mostRows, int mostColumns) {
    if (text.empty()) return std::nullopt;
    const auto tabs = std::count(text.begin(), text.end(), '\t');
    const int lines = std::max(1, CountLines(text) - (text.ends_with('\n') ? 1 : 0));
    const auto columns = tabs / lines + 1;
    if (lines > mostRows || columns > mostColumns) return std::nullopt;
    GridFields fields{lines, static_cast<int>(columns), {}};
    for (auto i = lines * columns; i > 0; --i)
        fields.texts.emplace_back(TakeField(text).substr(0, kGridFieldLength));
    return fields;
}

}  // namespace corvex
