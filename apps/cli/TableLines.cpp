#include "apps/cli/TableLines.h"

#include <algorithm>

#include "export/text/TextFormat.h"

namespace corvex {

namespace {

constexpr std::size_t kAgeWidth = 4;
constexpr std::size_t kSmallestTitle = 12;
constexpr std::size_t kGap = 3;  // between columns of rows

// The widths of one row's parts.
struct Shape {
    std::size_t title = 0, value = 1, units = 0;
    // Title, blank, mark and value, blank and units, blank and age.
    std::size_t Width() const { return title + 2 + value + 1 + units + 1 + kAgeWidth; }
};

Shape ShapeOf(const std::vector<LiveRow>& rows) {
    Shape shape;
    for (const LiveRow& row : rows) {
        shape.title = std::max(shape.title, DisplayWidth(row.title));
        shape.value = std::max(shape.value, DisplayWidth(row.value));
        shape.units = std::max(shape.units, DisplayWidth(row.units));
    }
    // Numbers of an engine take no more; a longer state name gets what is there and no place of its own.
    shape.title = std::min<std::size_t>(shape.title, 32);
    shape.value = std::clamp<std::size_t>(shape.value, 9, 16);
    shape.units = std::min<std::size_t>(shape.units, 8);
    return shape;
}

// The fewest columns that hold all rows, each as wide as the screen lets it be.
std::size_t FitColumns(Shape& shape, std::size_t count, std::size_t width, std::size_t height) {
    std::size_t columns = (count + height - 1) / std::max<std::size_t>(height, 1);
    Shape smallest = shape;
    smallest.title = std::min(shape.title, kSmallestTitle);
    const std::size_t most = std::max<std::size_t>((width + kGap) / (smallest.Width() + kGap), 1);
    columns = std::clamp<std::size_t>(columns, 1, most);
    const std::size_t each = (width + kGap) / columns - kGap;
    const std::size_t rest = shape.Width() - shape.title;
    shape.title = each > rest ? std::min(shape.title, each - rest) : 0;
    return columns;
}

std::string Cell(const LiveRow& row, const Shape& shape, bool colours) {
    std::string value(1, row.alarm ? '!' : ' ');
    value += PadLeft(CutToWidth(row.value, shape.value), shape.value);
    if (row.alarm && colours) value = Coloured(value, row.colour);
    return PadRight(CutToWidth(row.title, shape.title), shape.title) + ' ' + value + ' ' +
           PadRight(CutToWidth(row.units, shape.units), shape.units) + ' ' + PadLeft(AgeText(row.age), kAgeWidth);
}

}  // namespace

std::string AgeText(double seconds) {
    if (seconds < 0.0) return "-";
    if (seconds < 9.95) return Printf("%.1fs", seconds);
    if (seconds < 99.5) return Printf("%.0fs", seconds);
    if (seconds < 5970.0) return Printf("%.0fm", seconds / 60.0);
    return seconds < 3600000.0 ? Printf("%.0fh", seconds / 3600.0) : "-";
}

std::string Coloured(const std::string& text, std::uint32_t colour) {
    return Printf("\x1b[38;2;%u;%u;%um", colour & 0xFF, (colour >> 8) & 0xFF, (colour >> 16) & 0xFF) + text +
           "\x1b[39m";
}

std::vector<std::string> TableLines(const std::vector<LiveRow>& rows, std::size_t width, std::size_t height,
                                    bool colours) {
    height = std::max<std::size_t>(height, 1);
    Shape shape = ShapeOf(rows);
    const std::size_t columns = FitColumns(shape, rows.size(), width, height);
    const bool all = rows.size() <= columns * height;
    // When some rows find no place, the last line tells how many.
    const std::size_t deep = all ? (rows.size() + columns - 1) / columns : height - 1;
    std::vector<std::string> lines;
    for (std::size_t y = 0; y < deep; ++y) {
        std::string line;
        for (std::size_t x = 0; x < columns && x * deep + y < rows.size(); ++x) {
            if (x != 0) line += std::string(kGap, ' ');
            line += Cell(rows[x * deep + y], shape, colours);
        }
        // A screen narrower than one row shows what of it fits; colours would be cut in two there.
        if (shape.Width() > width) line = CutToWidth(Cell(rows[y], shape, false), width);
        lines.push_back(line);
    }
    if (!all)
        lines.push_back(CutToWidth(
            Printf("%u more; enlarge the window", static_cast<unsigned>(rows.size() - columns * deep)), width));
    return lines;
}

}  // namespace corvex
