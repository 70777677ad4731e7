#include "export/text/TextFormat.h"

#include <algorithm>
#include <cstdarg>
#include <cstdio>

namespace corvex {

namespace {

// The length of the well-formed UTF-8 sequence at `at`, or 0.
std::size_t SequenceLength(std::string_view text, std::size_t at) {
    const auto lead = static_cast<unsigned char>(text[at]);
    std::size_t length = 0;
    if (lead < 0x80) return 1;
    if (lead >= 0xC2 && lead < 0xE0) length = 2;
    if (lead >= 0xE0 && lead < 0xF0) length = 3;
    if (lead >= 0xF0 && lead < 0xF5) length = 4;
    if (length == 0 || at + length > text.size()) return 0;
    for (std::size_t i = 1; i < length; ++i) {
        if ((static_cast<unsigned char>(text[at + i]) & 0xC0) != 0x80) return 0;
    }
    return length;
}

void AppendLatin1(std::string& out, char byte) {
    const auto code = static_cast<unsigned char>(byte);
    if (code < 0xA0) {
        out += ' ';
        return;
    }
    out += static_cast<char>(0xC0 | (code >> 6));
    out += static_cast<char>(0x80 | (code & 0x3F));
}

std::string Blanks(std::size_t count) {
    return std::string(count, ' ');
}

}  // namespace

std::string Printf(const char* format, ...) {
    va_list args;
    va_start(args, format);
    va_list again;
    va_copy(again, args);
    const int length = std::vsnprintf(nullptr, 0, format, args);
    va_end(args);
    std::string text(length > 0 ? static_cast<std::size_t>(length) : 0, '\0');
    if (length > 0) std::vsnprintf(text.data(), text.size() + 1, format, again);
    va_end(again);
    return text;
}

std::string Counted(std::size_t count, std::string_view noun) {
    std::string text = std::to_string(count) + ' ' + std::string(noun);
    if (count == 1) return text;
    const bool sibilant = text.ends_with("sh") || text.ends_with("ch") || text.ends_with('s');
    if (text.ends_with("ry") || text.ends_with("ly")) return text.replace(text.size() - 1, 1, "ies");
    return text + (sibilant ? "es" : "s");
}

std::string HashText(std::uint32_t hash) {
    return Printf("0x%.8X", hash);
}

std::string Utf8Text(std::string_view text) {
    std::string out;
    for (std::size_t i = 0; i < text.size();) {
        const std::size_t length = SequenceLength(text, i);
        if (length == 0) {
            AppendLatin1(out, text[i++]);
        } else {
            out += text.substr(i, length);
            i += length;
        }
    }
    return out;
}

std::string DisplayText(std::string_view text) {
    std::string out = Utf8Text(text);
    std::replace_if(
        out.begin(), out.end(),
        [](char c) {
            const auto code = static_cast<unsigned char>(c);
            return code < 0x20 || code == 0x7F;
        },
        ' ');
    return out;
}

std::size_t DisplayWidth(std::string_view text) {
    return static_cast<std::size_t>(
        std::count_if(text.begin(), text.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }));
}

std::string CutToWidth(std::string_view text, std::size_t width) {
    if (DisplayWidth(text) <= width) return std::string(text);
    if (width == 0) return {};
    std::size_t end = 0;
    for (std::size_t columns = 0; end < text.size(); ++end) {
        const bool starts = (static_cast<unsigned char>(text[end]) & 0xC0) != 0x80;
        if (starts && ++columns == width) break;
    }
    return std::string(text.substr(0, end)) + '~';
}

std::string CutMiddle(std::string_view text, std::size_t width) {
    const std::size_t all = DisplayWidth(text);
    if (all <= width || width < 3) return CutToWidth(text, width);
    const std::size_t front = width / 2;
    const std::size_t skipped = all - (width - front - 1);  // characters in front of those kept at the end
    std::size_t at = 0;
    for (std::size_t columns = 0; at < text.size(); ++at) {
        const bool starts = (static_cast<unsigned char>(text[at]) & 0xC0) != 0x80;
        if (starts && columns++ == skipped) break;
    }
    return CutToWidth(text, front + 1) + std::string(text.substr(at));
}

std::string PadRight(std::string_view text, std::size_t width) {
    const std::size_t columns = DisplayWidth(text);
    return std::string(text) + Blanks(width > columns ? width - columns : 0);
}

std::string PadLeft(std::string_view text, std::size_t width) {
    const std::size_t columns = DisplayWidth(text);
    return Blanks(width > columns ? width - columns : 0) + std::string(text);
}

std::string AlignColumns(const std::vector<std::vector<std::string>>& rows, std::string_view indent) {
    std::vector<std::size_t> widths;
    for (const auto& row : rows) {
        if (row.size() > widths.size()) widths.resize(row.size());
        for (std::size_t i = 0; i < row.size(); ++i)
            widths[i] = std::max(widths[i], DisplayWidth(row[i]));
    }
    std::string text;
    for (const auto& row : rows) {
        std::string line(indent);
        for (std::size_t i = 0; i < row.size(); ++i) {
            if (i != 0) line += "  ";
            line += PadRight(row[i], widths[i]);
        }
        line.erase(line.find_last_not_of(' ') + 1);
        text += line + '\n';
    }
    return text;
}

}  // namespace corvex
