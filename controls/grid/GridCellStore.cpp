#include "controls/grid/GridCellStore.h"

#include <algorithm>
#include <new>

namespace corvex {

namespace {

// The alignment byte of a cell's attributes.
constexpr std::uint32_t kAlignGiven = 0x80, kByteMiddle = 0x40, kByteBottom = 0x20, kByteCentre = 0x10,
                        kByteRight = 0x08;

}  // namespace

bool GridCell::SetText(std::string_view text) {
    std::unique_ptr<char[]> copy;
    if (!text.empty()) {
        copy.reset(new (std::nothrow) char[text.size() + 1]);
        if (!copy) return false;
        text.copy(copy.get(), text.size());
        copy[text.size()] = '\0';
    }
    text_ = std::move(copy);
    return true;
}

std::uint32_t GridCell::Align() const {
    const std::uint32_t byte = attributes_ >> 8;
    if ((byte & kAlignGiven) == 0) return 0;
    const std::uint32_t across = (byte & kByteCentre) != 0  ? kGridAlignCentre
                                 : (byte & kByteRight) != 0 ? kGridAlignRight
                                                            : kGridAlignLeft;
    const std::uint32_t down = (byte & kByteMiddle) != 0   ? kGridAlignMiddle
                               : (byte & kByteBottom) != 0 ? kGridAlignBottom
                                                           : kGridAlignTop;
    return across | down;
}

void GridCell::SetAlign(std::uint32_t bits) {
    std::uint32_t byte = 0;
    if (bits != 0) {
        byte = kAlignGiven;
        if ((bits & kGridAlignMiddle) != 0) {
            byte |= kByteMiddle;
        } else if ((bits & kGridAlignBottom) != 0) {
            byte |= kByteBottom;
        }
        if ((bits & kGridAlignCentre) != 0) {
            byte |= kByteCentre;
        } else if ((bits & kGridAlignRight) != 0) {
            byte |= kByteRight;
        }
    }
    attributes_ = static_cast<std::uint16_t>((attributes_ & 0xFF) | byte << 8);
}

GridCellStore::GridCellStore(int bodyRows, int bodyColumns) {
    if (!Resize(bodyRows, bodyColumns)) throw std::bad_alloc();
}

bool GridCellStore::Resize(int bodyRows, int bodyColumns) try {
    const auto rows = static_cast<std::size_t>(bodyRows) + 1;
    const int columns = bodyColumns + 1;
    const std::size_t keptWhole = columns == columns_ ? std::min(rows, rows_.size()) : 0;
    std::vector<Cells> fresh(rows);
    for (std::size_t i = keptWhole; i < rows; ++i)
        fresh[i] = std::make_unique<GridCell[]>(static_cast<std::size_t>(columns));
    // From here on nothing fails.
    std::move(rows_.begin(), rows_.begin() + static_cast<std::ptrdiff_t>(keptWhole), fresh.begin());
    for (std::size_t i = keptWhole; i < std::min(rows, rows_.size()); ++i)
        std::move(rows_[i].get(), rows_[i].get() + std::min(columns, columns_), fresh[i].get());
    rows_ = std::move(fresh);
    columns_ = columns;
    return true;
} catch (const std::bad_alloc&) {
    return false;
}

template <class Change>
void GridCellStore::ForEach(const Change& change) {
    for (const Cells& row : rows_)
        std::for_each(row.get(), row.get() + columns_, change);
}

void GridCellStore::ClearTexts() {
    ForEach([](GridCell& cell) { cell.SetText({}); });
}

void GridCellStore::ClearChanged() {
    ForEach([](GridCell& cell) { cell.SetChanged(false); });
}

GridCell* GridCellStore::Find(std::uint32_t cell) {
    const int row = RowOfCell(cell), column = ColumnOfCell(cell);
    return Has(row, column) ? &At(row, column) : nullptr;
}

}  // namespace corvex
