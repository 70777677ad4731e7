// What a grid holds, cell by cell, headers included.
#pragma once

#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

#include "controls/grid/GridTerms.h"

namespace corvex {

// One cell. Small, as there may be millions of them.
class GridCell {
public:
    // 24 bits; the top byte of the word is never touched.
    std::uint32_t Fill() const { return fill_ & kColourBits; }
    void SetFill(std::uint32_t colour) { fill_ = (fill_ & ~kColourBits) | (colour & kColourBits); }
    std::uint32_t TextColour() const { return textColour_ & kColourBits; }
    void SetTextColour(std::uint32_t colour) { textColour_ = (textColour_ & ~kColourBits) | (colour & kColourBits); }

    // "" for none. Valid until another one is set.
    std::string_view Text() const { return text_ ? std::string_view(text_.get()) : std::string_view(); }
    // Copies it. False, and the former text stays, for want of memory.
    bool SetText(std::string_view text);

    bool IsProtected() const { return Has(kProtected); }
    void SetProtected(bool isIt) { Set(kProtected, isIt); }
    bool IsChanged() const { return Has(kChanged); }
    void SetChanged(bool isIt) { Set(kChanged, isIt); }

    // Bits of GridAlign; 0 for no alignment of its own.
    std::uint32_t Align() const;
    void SetAlign(std::uint32_t bits);

private:
    static constexpr std::uint32_t kColourBits = 0xFFFFFF;
    static constexpr std::uint16_t kProtected = 0x02, kChanged = 0x04;

    bool Has(std::uint16_t bit) const { return (attributes_ & bit) != 0; }
    void Set(std::uint16_t bit, bool isIt) {
        attributes_ = static_cast<std::uint16_t>(isIt ? attributes_ | bit : attributes_ & ~bit);
    }

    std::unique_ptr<char[]> text_;
    std::uint32_t fill_ = 0xFFFFFF, textColour_ = 0x000000;
    std::uint16_t attributes_ = 0;  // with the alignment in the high byte
};

// On one thread.
class GridCellStore {
public:
    // Throws std::bad_alloc.
    GridCellStore(int bodyRows, int bodyColumns);

    // Of the body. What lies in the old and in the new size keeps its cells, the others are fresh. False, and all
    // stays, for want of memory.
    bool Resize(int bodyRows, int bodyColumns);
    void ClearTexts();
    void ClearChanged();

    // Both with the header.
    int Rows() const { return static_cast<int>(rows_.size()); }
    int Columns() const { return columns_; }
    bool Has(int row, int column) const { return row >= 0 && row < Rows() && column >= 0 && column < columns_; }
    // One that there is. Valid until the next Resize.
    GridCell& At(int row, int column) { return Row(row)[column]; }
    const GridCell& At(int row, int column) const { return Row(row)[column]; }
    // Null for an address outside of the grid.
    GridCell* Find(std::uint32_t cell);

private:
    using Cells = std::unique_ptr<GridCell[]>;
    GridCell* Row(int row) const { return rows_[static_cast<std::size_t>(row)].get(); }
    template <class Change>
    void ForEach(const Change& change);

    std::vector<Cells> rows_;
    int columns_ = 0;
};

}  // namespace corvex
