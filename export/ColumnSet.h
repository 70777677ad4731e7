// The items of a definition as the columns of a table of records.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "definition/PacketView.h"

namespace corvex {

class ADXBitmask;
class ADXDefinition;
class ADXValue;
class CsvWriter;
class NumberMemo;
struct DecodedRecord;

// Values and bitmasks in definition order, those that a pattern chooses. What is shown in a row does not depend on
// which columns are chosen, nor on whether the rows before it were written. Drives the equation evaluators and the raw
// words, so nobody else uses the definition meanwhile; it outlives the set. One thread.
class ColumnSet {
public:
    ColumnSet(ADXDefinition& definition, const std::string& pattern);
    ~ColumnSet();
    ColumnSet(const ColumnSet&) = delete;
    ColumnSet& operator=(const ColumnSet&) = delete;

    std::size_t Count() const { return chosen_; }
    // "TITLE (UNITS)" or "TITLE" in UTF-8, without the end of the row; an item without a title goes by its id.
    void WriteHeader(CsvWriter& csv) const;
    // One field for each column, without the end of the row. `text`: as the program shows it.
    void WriteRow(CsvWriter& csv, const DecodedRecord& record, bool text);
    // Takes the raw words of a record that gets no row.
    void Follow(const DecodedRecord& record);

private:
    // One of the two pointers is set.
    struct Column {
        ADXValue* value;
        ADXBitmask* bitmask;
        std::uint32_t parent;  // idhash of its command; 0: any
        bool chosen;
        std::unique_ptr<NumberMemo> memo;  // of a value whose number hangs on its raw word alone
    };
    void WriteNumber(CsvWriter& csv, const Column& column, PacketView packet);
    void WriteField(CsvWriter& csv, const Column& column, const DecodedRecord& record, bool text);
    void Look(const Column& column, const DecodedRecord& record);

    ADXDefinition& definition_;
    std::vector<Column> columns_;  // all items
    std::size_t chosen_ = 0;
};

}  // namespace corvex
