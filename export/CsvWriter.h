// Writes comma-separated values: fields quoted where they need it, lines ended by a line feed.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "export/text/ITextSink.h"

namespace corvex {

// Gathers a large piece before it goes to the sink. After a failed write everything more is dropped. One thread.
class CsvWriter {
public:
    static constexpr std::size_t kPiece = 1U << 18U;

    // The sink outlives the writer.
    explicit CsvWriter(ITextSink& sink);
    CsvWriter(const CsvWriter&) = delete;
    CsvWriter& operator=(const CsvWriter&) = delete;

    // One field each.
    void Text(std::string_view text);
    // The shortest decimal that reads back to the same double; "nan", "inf" and "-inf". Returns what it has written,
    // until the next call.
    std::string_view Number(double number);
    // A text that needs no quotes.
    void Plain(std::string_view text);
    void Flag(bool set);  // 1 or 0
    // Seconds with three decimals.
    void Milliseconds(std::uint32_t milliseconds);

    void EndRow();
    // Hands on what was gathered. False when anything could not be written since the beginning.
    [[nodiscard]] bool Flush();
    bool Good() const { return good_; }

private:
    char* Room(std::size_t count);
    void Separate();
    void Append(std::string_view text);

    ITextSink& sink_;
    std::vector<char> piece_;
    std::size_t used_ = 0;
    bool first_ = true;  // in its row
    bool good_ = true;
};

}  // namespace corvex
