// A 3-D chart on show, for the tests of its window.
#pragma once

#include <cstring>
#include <limits>
#include <random>
#include <vector>

#include "controls/chart3d/Chart3D.h"
#include "controls/window/GdiObjects.h"
#include "tests/controls/chart/ChartWindowTest.h"

namespace corvex {

inline constexpr float kInfinity = std::numeric_limits<float>::infinity();
inline constexpr int kHeight = 200;

inline WPARAM At(int index) {
    return static_cast<WPARAM>(index);
}

// Where a point of the y-up space lies for the mouse.
inline LPARAM Place(int x, int y) {
    return MAKELPARAM(x, kHeight - y);
}

struct ToldOfChart {
    ToldOfChart(UINT tellsCode, IQZChart3DPlot* tellsPlot, int tellsRow, int tellsColumn)
        : code(tellsCode), plot(tellsPlot), row(tellsRow), column(tellsColumn) {}
    explicit ToldOfChart(const Chart3DNotification& block)
        : ToldOfChart(block.header.code, block.plot, block.row, block.column) {}
    UINT code;
    IQZChart3DPlot* plot;
    int row, column;
    friend bool operator==(const ToldOfChart&, const ToldOfChart&) = default;
};
inline void PrintTo(const ToldOfChart& told, std::ostream* out) {
    *out << told.code << " " << told.plot << " " << told.row << " " << told.column;
}

// A chart of 300 by 200 pixels, unturned, with its box at 0, 0: a point stands at its x and its height. One plot of 2
// rows and 2 columns has points at 50 and 100.
class Chart3DTest : public ChartWindowTest<Chart3DNotification, ToldOfChart> {
protected:
    Chart3DTest() : ChartWindowTest(RegisterOnce(), 300, kHeight) {
        const float size = 255.0F, none[3] = {};
        Send(CH3M_SETBOXSIZE, 0, L(&size));
        Send(CH3M_SETROTATION, W(none));
        Send(CH3M_SETTRANSLATION, W(none));
        plot = AddPlot();
    }
    static const char* RegisterOnce() {
        Chart3D::Register(::GetModuleHandleA(nullptr));
        return kChart3DClass;
    }
    IQZChart3DPlot* AddPlot() const {
        auto* const added = reinterpret_cast<IQZChart3DPlot*>(Send(CH3M_ADDPLOT, 99, 0));
        added->setGridSize(2, 2);
        for (int i = 0; i < 4; ++i)
            added->setPoint(i / 2, i % 2,
                            {50.0F * static_cast<float>(i % 2 + 1), 0, 50.0F * static_cast<float>(i / 2 + 1)}, 0);
        return added;
    }
    std::vector<float> Floats(UINT message, bool isVector) const {
        std::vector<float> values(3, -77.0F);
        Send(message, W(values.data()), isVector ? 0 : L(&values[1]));
        return values;
    }

    IQZChart3DPlot* plot = nullptr;
};

}  // namespace corvex
