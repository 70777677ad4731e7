#include "tests/controls/chart3d/PlainChart3D.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace corvex {

int PlainPlot::Selected() const {
    int count = 0;
    for (const Point3D& point : points)
        count += static_cast<int>(point.flags & 1);
    return count;
}

void PlainPlot::Deselect() {
    for (Point3D& point : points)
        point.flags &= ~1U;
}

PlainChart3D::PlainChart3D(const FakeChart& real)
    : style(real.machine.chart.style),
      space(real.machine.chart.space),
      width(real.machine.chart.width),
      height(real.machine.chart.height) {
    for (const auto& plot : real.machine.chart.plots)
        plots.push_back(
            {plot->getFlags(), plot->getPointRadius(), plot->Rows(), plot->Columns(), 0, 0, plot->Points()});
}

YUpPoint PlainChart3D::PlaceOf(const Point3D& point) const {
    Chart3DSpace seen = space;
    seen.normalises = (style & 0x20) != 0;
    return Projection(seen).Project(point).at;
}

void PlainChart3D::Key(std::uint32_t key) {
    if (key == 0x10) shift = true;
    if (key == 0x11) control = true;
    bool changed = false;
    const auto when = [&](bool condition, float& number, float by) {
        if (condition) number += by;
        changed = changed || condition;
    };
    float &pitch = space.rotation[0], &yaw = space.rotation[1];
    float &x = space.translation[0], &y = space.translation[1];
    if (control && !shift) {
        when(key == 0x25, yaw, -0.05F);
        when(key == 0x27, yaw, 0.05F);
        when(key == 0x26, pitch, -0.05F);
        when(key == 0x28, pitch, 0.05F);
    } else if (shift && !control) {
        when(key == 0x25 && x >= -300.0F, x, -2.0F);
        when(key == 0x27 && x <= 300.0F, x, 2.0F);
        when(key == 0x26 && y <= 300.0F, y, 2.0F);
        when(key == 0x28 && y >= -300.0F, y, -2.0F);
    } else if (shift && control) {
        const bool down = key == 0xDB && space.scale[0] >= 0.2F;
        for (float& factor : space.scale) {
            when(down, factor, -0.02F);
            when(key == 0xDD, factor, 0.02F);
        }
    }
    if (changed) ++repaints;
}

void PlainChart3D::KeyUp(std::uint32_t key) {
    if (key == 0x10) shift = false;
    if (key == 0x11) control = false;
}

void PlainChart3D::Down(YUpPoint place, bool isControl, bool isShift) {
    Up();
    button = captured = true;
    control = isControl;
    shift = isShift;
    start = last = place;
    bool found = false;
    for (std::size_t i = 0; i < plots.size(); ++i) {
        PlainPlot& plot = plots[i];
        if ((plot.flags & 0x18) == 0 || (plot.flags & 0x200) != 0) continue;
        found = false;
        int row = 0, column = 0;
        for (int r = 0; r < plot.rows && !found; ++r) {
            for (int c = 0; c < plot.columns && !found; ++c) {
                const YUpPoint at = PlaceOf(plot.At(r, c));
                found = std::abs(at.x - place.x) <= plot.radius && std::abs(at.y - place.y) <= plot.radius;
                row = r;
                column = c;
            }
        }
        if (!found) continue;
        if ((plot.flags & 7) != 0) dragging = true;
        Point3D& point = plot.At(row, column);
        if (plot.Selected() >= 2 && !control && (point.flags & 1) != 0) {
            plot.lastRow = row;
            plot.lastColumn = column;
            lastPlot = i;
            continue;
        }
        if (plot.Selected() >= 2 && control && (point.flags & 1) != 0) {
            point.flags &= ~1U;
            ++repaints;
            continue;
        }
        if ((plot.flags & 8) != 0 || !control) plot.Deselect();
        if ((point.flags & 1) == 0) {
            point.flags |= 1;
            plot.lastRow = row;
            plot.lastColumn = column;
            lastPlot = i;
            Tell(1224, static_cast<int>(i), row, column);
            ++repaints;
        }
    }
    if (!found && !control) {
        for (PlainPlot& plot : plots)
            plot.Deselect();
        ++repaints;
    }
    for (const PlainPlot& plot : plots)
        banding = banding || ((plot.flags & 0x10) != 0 && (plot.flags & 0x200) == 0);
}

void PlainChart3D::DoubleClick(YUpPoint place, bool isControl, bool isShift) {
    for (PlainPlot& plot : plots)
        plot.Deselect();
    Down(place, isControl, isShift);
}

void PlainChart3D::Move(YUpPoint place) {
    if (!button || place == last) return;
    const auto dx = static_cast<float>(place.x - last.x), dy = static_cast<float>(last.y - place.y);
    const int up = place.y - last.y;
    last = place;
    if (control || shift || dragging) pointerHidden = true;
    if (control && shift) {
        float scale = space.scale[0] - dy * 0.01F;
        if (scale < 0.05F) scale = 0.05F;
        space.scale = {scale, scale, scale};
        ++repaints;
    } else if (control) {
        float& pitch = space.rotation[0];
        space.rotation[1] += dx * 0.01F;
        pitch += dy * 0.01F;
        if (pitch < -1.57F) pitch = -1.57F;
        if (pitch > 1.57F) pitch = 1.57F;
        ++repaints;
    } else if (shift) {
        panned = true;
        space.translation[0] += dx * 0.45F;
        space.translation[1] -= dy * 0.45F;
        ++repaints;
    } else if (dragging) {
        Drag(up);
    } else if (banding) {
        Band();
    }
}

void PlainChart3D::Drag(int up) {
    const ChartRange range = space.ranges[2];
    float whole = 0.0F;
    if (space.boxSize != 0.0F) whole = static_cast<float>(up) * (range.maximum - range.minimum) / space.boxSize;
    bool any = false;
    for (std::size_t i = 0; i < plots.size(); ++i) {
        PlainPlot& plot = plots[i];
        if ((plot.flags & 4) == 0) continue;
        any = true;
        float by = whole;
        for (const Point3D& point : plot.points) {
            if ((point.flags & 1) == 0) continue;
            if (point.z + by < limits.minimum) {
                by = limits.minimum - point.z;
            } else if (point.z + by > limits.maximum) {
                by = limits.maximum - point.z;
            }
        }
        for (int row = 0; row < plot.rows; ++row) {
            for (int column = 0; column < plot.columns; ++column) {
                if ((plot.At(row, column).flags & 1) == 0) continue;
                plot.At(row, column).z += by;
                Tell(1225, static_cast<int>(i), row, column);
            }
        }
    }
    if (!any) return;
    Recompute();
    ++repaints;
}

void PlainChart3D::Band() {
    band = YUpBox{start, last};
    for (std::size_t i = 0; i < plots.size(); ++i) {
        PlainPlot& plot = plots[i];
        if ((plot.flags & 0x18) == 0 || (plot.flags & 0x200) != 0) continue;
        plot.Deselect();
        for (int row = 0; row < plot.rows; ++row) {
            for (int column = 0; column < plot.columns; ++column) {
                const YUpPoint at = PlaceOf(plot.At(row, column));
                if (at.x < std::min(start.x, last.x) || at.x > std::max(start.x, last.x)) continue;
                if (at.y < std::min(start.y, last.y) || at.y > std::max(start.y, last.y)) continue;
                plot.At(row, column).flags |= 1;
                plot.lastRow = row;
                plot.lastColumn = column;
                lastPlot = i;
            }
        }
    }
    ++repaints;
}

void PlainChart3D::Up() {
    if (dragging) Tell(1226);
    if (banding) ++repaints;
    button = dragging = banding = pointerHidden = captured = false;
    band.reset();
}

PlainChart3D::Extents PlainChart3D::Measured() const {
    Extents extents;
    for (const PlainPlot& plot : plots) {
        for (const Point3D& point : plot.points) {
            const float numbers[] = {point.x, point.y, point.z};
            for (int axis = 0; axis < 3; ++axis) {
                if (!std::isfinite(numbers[axis])) continue;
                extents.minimum[axis] = std::min(extents.minimum[axis], numbers[axis]);
                extents.maximum[axis] = std::max(extents.maximum[axis], numbers[axis]);
            }
        }
    }
    return extents;
}

void PlainChart3D::Follow(bool xGrew, bool depthGrew, bool heightGrew) {
    const bool grew[] = {xGrew, depthGrew, heightGrew};
    for (unsigned axis = 0; axis < 3; ++axis) {
        if (!grew[axis] || (style & 0x80U << axis) == 0 || known->minimum[axis] > known->maximum[axis]) continue;
        space.ranges[axis] = {known->minimum[axis], known->maximum[axis]};
        Tell(1227 + axis);
    }
}

void PlainChart3D::Recompute() {
    known.reset();
    if ((style & 0x380) == 0) return;
    known = Measured();
    Follow(true, true, true);
}

void PlainChart3D::SetPoint(std::size_t plot, int row, int column, Point3D point) {
    if (plot >= plots.size() || !plots[plot].Has(row, column)) return;
    plots[plot].At(row, column) = point;
    if (!known || (style & 0x380) == 0) return Recompute();
    const Extents before = *known;
    known = Measured();
    bool grew[3], shrank = false;
    for (int axis = 0; axis < 3; ++axis) {
        grew[axis] = known->minimum[axis] < before.minimum[axis] || known->maximum[axis] > before.maximum[axis];
        shrank = shrank || known->minimum[axis] > before.minimum[axis] || known->maximum[axis] < before.maximum[axis];
    }
    Follow(grew[0] || shrank, grew[1] || shrank, grew[2] || shrank);
}

void PlainChart3D::SetPoints(std::size_t plot, const Point3D* points) {
    if (plot >= plots.size() || plots[plot].points.empty()) return;
    for (Point3D& point : plots[plot].points)
        point = *points++;
    Recompute();
}

void PlainChart3D::SetGrid(std::size_t plot, int rows, int columns) {
    if (plot >= plots.size()) return;
    PlainPlot& one = plots[plot];
    std::vector<Point3D> points;
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column)
            points.push_back(one.Has(row, column) ? one.At(row, column) : Point3D{});
    }
    one.points = points;
    one.rows = rows;
    one.columns = columns;
    if (!one.Has(one.lastRow, one.lastColumn)) one.lastRow = one.lastColumn = 0;
    known.reset();
}

void PlainChart3D::AddPlot(std::size_t index) {
    index = std::min(index, plots.size());
    plots.insert(plots.begin() + static_cast<std::ptrdiff_t>(index), PlainPlot{});
    if (lastPlot && *lastPlot >= index) ++*lastPlot;
}

void PlainChart3D::DeletePlot(std::size_t index) {
    if (index >= plots.size()) return;
    plots.erase(plots.begin() + static_cast<std::ptrdiff_t>(index));
    if (lastPlot == index) {
        lastPlot.reset();
    } else if (lastPlot && *lastPlot > index) {
        --*lastPlot;
    }
    known.reset();
}

void PlainChart3D::SetStyle(std::uint32_t bits) {
    style = bits == 0 ? 0 : style | bits;
    if ((bits & 0x380) != 0) Recompute();
}

void PlainChart3D::SetRange(std::size_t axis, float minimum, float maximum) {
    if ((style & 0x80U << axis) == 0) space.ranges[axis] = {minimum, maximum};
}

void PlainChart3D::SetBox(float size) {
    space.boxSize = size;
    space.pivot = {size / 2, size / 2, size / 2};
    if (panned) return;
    space.translation[0] = (static_cast<float>(width) - size) / 2;
    space.translation[1] = (static_cast<float>(height) - size) / 2;
}

void PlainChart3D::Size(int newWidth, int newHeight) {
    width = newWidth;
    height = newHeight;
    if ((style & 0x20) != 0) SetBox(static_cast<float>(std::min(width, height) / std::sqrt(3.0)));
    ++repaints;
}

}  // namespace corvex
