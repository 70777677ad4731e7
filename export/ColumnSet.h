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

// How values and bits are written.
enum class NumberForm {
    kExact,    // the shortest decimal that reads back the same
    kAsShown,  // with as many digits as the program shows
    kText,     // as the program shows them
};

// Values and bitmasks in definition order, those that a pattern chooses. What is shown in a row does not depend on
// which columns are chosen, nor on whether the rows before it were written. Drives the equation evaluators and the raw
// words, so nobody else uses the definition meanwhile; it outlives the set. One thread.
class ColumnSet {
public:
    ColumnSet(ADXDefinition& definition, const std::string& patterns);
    ~ColumnSet();
    ColumnSet(const ColumnSet&) = delete;
    ColumnSet& operator=(const ColumnSet&) = delete;

    std::size_t Count() const { return chosen_; }
    // "TITLE (UNITS)" or "TITLE" in UTF-8, without the end of the row; an item without a title goes by its id.
    void WriteHeader(CsvWriter& csv) const;
    // One field for each column, without the end of the row.
    void WriteRow(CsvWriter& csv, const DecodedRecord& record, NumberForm form);
    // What the columns are called, without units, and the command that each belongs to.
    struct Field {
        std::string name;
        std::uint32_t parent = 0;
    };
    std::vector<Field> Fields() const;
    // The numbers of a row, one for each of the fields; a bit is 1 or 0.
    void ReadRow(const DecodedRecord& record, std::vector<double>& numbers);
    // Takes the raw words of a record that gets no row.
    void Follow(const DecodedRecord& record);
    // Of the columns written, the names of those that a record of their own command did not reach to.
    std::vector<std::string> Outside() const;

private:
    // One of the two pointers is set.
    struct Column {
        ADXValue* value;
        ADXBitmask* bitmask;
        std::uint32_t parent;  // idhash of its command; 0: any
        bool chosen, outside;
        std::unique_ptr<NumberMemo> memo;  // of a value whose number hangs on its raw word alone
    };
    void WriteNumber(CsvWriter& csv, const Column& column, PacketView packet, NumberForm form);
    void WriteField(CsvWriter& csv, Column& column, const DecodedRecord& record, NumberForm form);
    static bool LiesOutside(const Column& column, PacketView packet);
    void Look(const Column& column, const DecodedRecord& record);

    ADXDefinition& definition_;
    std::vector<Column> columns_;  // all items
    std::size_t chosen_ = 0;
};

}  // namespace corvex
