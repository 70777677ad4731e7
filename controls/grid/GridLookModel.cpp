#include "controls/grid/GridLookModel.h"

#include "controls/grid/GridTextModel.h"

namespace corvex {

namespace {

constexpr std::uint32_t kUnfocusedFill = 0xB4B4B4, kSelectionFill = 0xDBA280, kUnfocusedHeading = 0xDCDCDC;

// Of the system's text drawing.
constexpr unsigned kCentre = 0x01, kRight = 0x02, kMiddle = 0x04, kBottom = 0x08, kSingleLine = 0x20;
constexpr unsigned kPlain = 0x820;      // one line, ampersands as they are
constexpr unsigned kEllipsis = 0x8000;  // where it is cut
constexpr unsigned kHeading = 0x8835;   // centred in both directions, with an ellipsis
constexpr unsigned kEditing = 0x26;     // at the right, so that the end shows

std::uint32_t HeadingFill(const GridModel& grid, GridStyle marks, const GridAxis& along, int index) {
    if (!grid.Has(marks) || index == 0 || !along.IsSelected(index)) return grid.colours[kGridHeadingFill];
    return grid.Is(kGridFocused) ? grid.colours[kGridSelectedHeading] : kUnfocusedHeading;
}

std::uint32_t BodyFill(const GridModel& grid, const GridCell& cell, int row, int column) {
    const bool isFocused = grid.Is(kGridFocused), isOverlaid = grid.IsOverlaid(row, column);
    if (grid.IsSelected(row, column)) {
        // With an overlay the two change places, on purpose.
        if (isOverlaid) return blend(isFocused ? kUnfocusedFill : kSelectionFill, grid.colours[kGridOverlayFill]);
        const std::uint32_t fill = isFocused ? kSelectionFill : kUnfocusedFill;
        const bool isBlended = grid.Has(kGridCellColours) && grid.Has(kGridBlendSelection);
        return isBlended ? blend(fill, cell.Fill()) : fill;
    }
    if (isOverlaid) return grid.colours[kGridOverlayFill];
    if (cell.IsProtected()) return grid.colours[kGridProtectedFill];
    return grid.Has(kGridCellColours) ? cell.Fill() : grid.colours[kGridCellFill];
}

std::uint32_t TextColour(const GridModel& grid) {
    return grid.Is(kGridDisabled) ? kGridDisabledText : grid.colours[kGridCellText];
}

std::uint32_t BodyTextColour(const GridModel& grid, const GridCell& cell) {
    if (grid.Is(kGridDisabled)) return kGridDisabledText;
    if (cell.IsChanged() && grid.Has(kGridMarkChanged)) return grid.colours[kGridChangedText];
    return grid.Has(kGridCellColours) ? cell.TextColour() : grid.colours[kGridCellText];
}

unsigned OwnFormat(std::uint32_t align) {
    const unsigned across = (align & kGridAlignCentre) != 0 ? kCentre : (align & kGridAlignRight) != 0 ? kRight : 0;
    const unsigned down = (align & kGridAlignMiddle) != 0 ? kMiddle : (align & kGridAlignBottom) != 0 ? kBottom : 0;
    return kPlain | across | down;
}

// A text that is not cut short lies at the top of its cell, a number always in the middle.
unsigned FormatOf(const GridModel& grid, const GridCell& cell, std::string_view text, int column) {
    if (const std::uint32_t align = cell.Align(); align != 0) return OwnFormat(align);
    const unsigned cut = grid.Has(kGridEllipsis) ? kEllipsis | kMiddle : 0;
    if (column == 0 || GridTypeOf(text) == GridCellType::kNumber)
        return kPlain | kMiddle | cut | (grid.Has(kGridNumbersLeft) ? 0 : kRight);
    return kPlain | cut | (grid.Has(kGridTextRight) ? kRight : 0);
}

GridLook LookOfHeading(const GridModel& grid, int column) {
    GridLook look;
    const bool hasLetters = column > 0 && grid.Has(kGridColumnLetters);
    look.text = hasLetters ? GridColumnLetters(column) : std::string(grid.cells.At(0, column).Text());
    look.fill = HeadingFill(grid, kGridMarkColumns, grid.columns, column);
    look.textColour = TextColour(grid);
    look.format = kHeading;
    return look;
}

}  // namespace

GridLook LookOfCell(const GridModel& grid, int row, int column) {
    if (row == 0) return LookOfHeading(grid, column);
    const GridCell& cell = grid.cells.At(row, column);
    GridLook look;
    look.text = column == 0 && grid.Has(kGridRowNumbers) ? std::to_string(row) : std::string(cell.Text());
    look.fill = column == 0 ? HeadingFill(grid, kGridMarkRows, grid.rows, row) : BodyFill(grid, cell, row, column);
    look.textColour = column == 0 ? TextColour(grid) : BodyTextColour(grid, cell);
    look.format = FormatOf(grid, cell, look.text, column);
    if (grid.Is(kGridEditing) && row == grid.rows.cursor && column == grid.columns.cursor) {
        look.isBeingEdited = true;
        look.text = grid.edited;
        look.format = kEditing;
    }
    return look;
}

}  // namespace corvex
