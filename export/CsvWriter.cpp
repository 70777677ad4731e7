#include "export/CsvWriter.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstring>

namespace corvex {

namespace {

constexpr std::size_t kLongestNumber = 40;

}  // namespace

CsvWriter::CsvWriter(ITextSink& sink) : sink_(sink), piece_(kPiece) {}

// At least so many bytes behind used_; `count` is below kPiece.
char* CsvWriter::Room(std::size_t count) {
    if (piece_.size() - used_ < count) static_cast<void>(Flush());
    return piece_.data() + used_;
}

void CsvWriter::Append(std::string_view text) {
    while (!text.empty()) {
        char* const room = Room(1);
        const std::size_t count = std::min(text.size(), piece_.size() - used_);
        std::memcpy(room, text.data(), count);
        used_ += count;
        text.remove_prefix(count);
    }
}

void CsvWriter::Separate() {
    if (!first_) {
        *Room(1) = ',';
        ++used_;
    }
    first_ = false;
}

void CsvWriter::Text(std::string_view text) {
    Separate();
    if (text.find_first_of(",\"\r\n") == std::string_view::npos) {
        Append(text);
        return;
    }
    Append("\"");
    for (std::size_t quote = text.find('"'); quote != std::string_view::npos; quote = text.find('"')) {
        Append(text.substr(0, quote + 1));
        Append("\"");
        text.remove_prefix(quote + 1);
    }
    Append(text);
    Append("\"");
}

void CsvWriter::Plain(std::string_view text) {
    Separate();
    Append(text);
}

std::string_view CsvWriter::Number(double number) {
    Separate();
    char* const room = Room(kLongestNumber);
    // The sign of a NaN differs between processors.
    const double unsignedIfNaN = std::isnan(number) ? std::fabs(number) : number;
    char* const end = std::to_chars(room, room + kLongestNumber, unsignedIfNaN).ptr;
    used_ = static_cast<std::size_t>(end - piece_.data());
    return {room, static_cast<std::size_t>(end - room)};
}

void CsvWriter::Flag(bool set) {
    Separate();
    *Room(1) = set ? '1' : '0';
    ++used_;
}

void CsvWriter::Milliseconds(std::uint32_t milliseconds) {
    Separate();
    char* const room = Room(kLongestNumber);
    char* end = std::to_chars(room, room + kLongestNumber, milliseconds / 1000).ptr;
    const std::uint32_t rest = milliseconds % 1000;
    *end++ = '.';
    for (const std::uint32_t place : {100U, 10U, 1U})
        *end++ = static_cast<char>('0' + rest / place % 10);
    used_ = static_cast<std::size_t>(end - piece_.data());
}

void CsvWriter::EndRow() {
    *Room(1) = '\n';
    ++used_;
    first_ = true;
}

bool CsvWriter::Flush() {
    if (good_ && used_ != 0) good_ = sink_.Write(piece_.data(), used_);
    used_ = 0;
    return good_;
}

}  // namespace corvex
