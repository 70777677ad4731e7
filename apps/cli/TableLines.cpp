#include "apps/cli/TableLines.h"

#include <algorithm>
#include <span>

#include "export/text/TextFormat.h"

namespace corvex {

namespace {

constexpr std::size_t kAgeWidth = 4;
constexpr std::size_t kSmallestTitle = 12;
constexpr std::size_t kGap = 3;  // between columns of rows

// The widths of one row's parts.
struct Shape {
    std::size_t title = 0, value = 1, units = 0;
    std::size_t held = 1;  // of the values as they are now
    // Title, blank, mark and value, blank and units, blank and age.
    std::size_t Width() const { return title + 2 + value + 1 + units + 1 + kAgeWidth; }
};

Shape ShapeOf(std::span<const LiveRow> rows) {
    Shape shape;
    for (const LiveRow& row : rows) {
        shape.title = std::max(shape.title, DisplayWidth(row.title));
        shape.held = std::max(shape.held, DisplayWidth(row.value));
        shape.units = std::max(shape.units, DisplayWidth(row.units));
    }
    // Numbers of an engine take no more; a longer state name gets what is there and no place of its own.
    shape.title = std::min<std::size_t>(shape.title, 32);
    shape.held = std::min<std::size_t>(shape.held, 16);
    shape.value = std::max<std::size_t>(shape.held, 9);
    shape.units = std::min<std::size_t>(shape.units, 8);
    return shape;
}

// The fewest columns that hold all rows, as many as there is room for with titles that still say something.
std::size_t FitColumns(std::span<const LiveRow> rows, std::size_t width, std::size_t height) {
    const std::size_t columns = (rows.size() + height - 1) / height;
    Shape smallest = ShapeOf(rows);
    smallest.title = std::min(smallest.title, kSmallestTitle);
    const std::size_t most = std::max<std::size_t>((width + kGap) / (smallest.Width() + kGap), 1);
    return std::clamp<std::size_t>(columns, 1, most);
}

std::size_t WidthOf(const std::vector<Shape>& shapes) {
    std::size_t width = (shapes.size() - 1) * kGap;
    for (const Shape& shape : shapes)
        width += shape.Width();
    return width;
}

// Narrows the columns until they fit, or nothing is left to take: always the widest of a part, so that a column of
// short titles keeps them whole. Titles go first, then the places of digits that are not there, units, titles again.
void GiveWay(std::vector<Shape>& shapes, std::size_t width) {
    struct Step {
        std::size_t Shape::*part;
        std::size_t least;
    };
    constexpr Step kSteps[] = {
        {&Shape::title, kSmallestTitle}, {&Shape::value, 0}, {&Shape::units, 3}, {&Shape::title, 0}};
    for (const Step& step : kSteps) {
        const auto spare = [&](const Shape& shape) {
            const std::size_t least = step.part == &Shape::value ? shape.held : step.least;
            return shape.*step.part > least ? shape.*step.part : 0;
        };
        while (WidthOf(shapes) > width) {
            Shape& widest = *std::ranges::max_element(shapes, {}, spare);
            if (spare(widest) == 0) break;
            --(widest.*step.part);
        }
    }
}

std::string Cell(const LiveRow& row, const Shape& shape, bool colours) {
    std::string value(1, row.alarm ? '!' : ' ');
    value += PadLeft(CutToWidth(row.value, shape.value), shape.value);
    if (row.alarm && colours) value = Coloured(value, row.colour);
    return PadRight(CutMiddle(row.title, shape.title), shape.title) + ' ' + value + ' ' +
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
    const std::size_t columns = FitColumns(rows, width, height);
    const bool all = rows.size() <= columns * height;
    // When some rows find no place, the last line tells how many.
    const std::size_t deep = all ? (rows.size() + columns - 1) / columns : height - 1;
    std::vector<Shape> shapes;
    for (std::size_t x = 0; x < columns; ++x) {
        const std::size_t first = std::min(x * deep, rows.size());
        shapes.push_back(ShapeOf(std::span(rows).subspan(first, std::min(deep, rows.size() - first))));
    }
    GiveWay(shapes, width);
    std::vector<std::string> lines;
    for (std::size_t y = 0; y < deep; ++y) {
        std::string line;
        for (std::size_t x = 0; x < columns && x * deep + y < rows.size(); ++x) {
            if (x != 0) line += std::string(kGap, ' ');
            line += Cell(rows[x * deep + y], shapes[x], colours);
        }
        // A screen narrower than one row shows what of it fits; colours would be cut in two there.
        if (WidthOf(shapes) > width) line = CutToWidth(Cell(rows[y], shapes[0], false), width);
        lines.push_back(line);
    }
    if (!all)
        lines.push_back(CutToWidth(
            Printf("%u more; enlarge the window", static_cast<unsigned>(rows.size() - columns * deep)), width));
    return lines;
}

}  // namespace corvex
