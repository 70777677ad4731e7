#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "controls/chart3d/SurfaceFigure.h"
#include "tests/controls/chart3d/Chart3DReference.h"

namespace corvex {
namespace {

TEST(SurfaceOrderTest, BeginsAtTheFarCorner) {
    for (int i = 0; i < 81; ++i) {
        const int a = i % 3, b = i / 3 % 3, c = i / 9 % 3, d = i / 27;
        const int far = std::max({a, b, c, d});
        const char* walk = far == b               ? "down down"
                           : far == c && far != d ? "down up"
                           : far == d && far != c ? "up down"
                           : far == c && far == d ? "down down"
                                                  : "up up";
        const SurfaceOrder order = OrderOf(a, b, c, d);
        EXPECT_EQ(std::string(order.rowsDescend ? "down" : "up") + (order.columnsDescend ? " down" : " up"), walk) << i;
    }
}

class SurfaceFigureTest : public ::testing::Test {
protected:
    std::vector<SurfaceQuad> QuadsOf(const QZChart3DPlot& plot) {
        std::vector<SurfaceQuad> quads;
        SurfaceFigure(plot, chart.model.Seen()).ForEachQuad([&](const SurfaceQuad& quad) { quads.push_back(quad); });
        return quads;
    }

    TestChart3D chart;
};

TEST_F(SurfaceFigureTest, OneRowOrColumnIsPointsWithoutQuads) {
    for (const auto& [rows, columns] : {std::pair{1, 5}, {5, 1}, {1, 1}}) {
        QZChart3DPlot& plot = chart.AddPlot(rows, columns);
        for (int i = 0; i < rows * columns; ++i)
            plot.setPoint(i / columns, i % columns, {20.0F * static_cast<float>(i), 50.0F, 100.0F, 0}, 0);
        EXPECT_TRUE(QuadsOf(plot).empty());
        const SurfaceFigure surface(plot, chart.model.Seen());
        for (int i = 0; i < rows * columns; ++i)
            EXPECT_TRUE(IsCut(surface.PlaceOf(i / columns, i % columns),
                              ReferenceProject(chart.model.space, plot.Points()[static_cast<std::size_t>(i)])));
    }
    for (const auto& [rows, columns] : {std::pair{0, 0}, {3, 0}, {0, 3}})
        EXPECT_TRUE(QuadsOf(chart.AddPlot(rows, columns)).empty());
}

TEST_F(SurfaceFigureTest, OneCellIsOneQuadAboutItsCorners) {
    const QZChart3DPlot& plot =
        chart.AddField(2, 2, [](int row, int column) { return static_cast<float>(30 * row + 20 * column); });
    const auto quads = QuadsOf(plot);
    ASSERT_EQ(quads.size(), 1u);
    EXPECT_EQ(quads[0].height, 25.0F);
    for (std::size_t i = 0; i < 4; ++i)
        EXPECT_EQ(quads[0].corners[i], chart.model.Seen().Project(plot.At(i == 1 || i == 2, i >= 2)).at);
}

TEST_F(SurfaceFigureTest, AHeightThatIsNotFiniteCountsAsTheMinimum) {
    chart.model.space.ranges[kVerticalAxis] = {8.0F, 88.0F};
    for (const float height : {kNone, kEndless, -kEndless}) {
        const QZChart3DPlot& plot =
            chart.AddField(2, 2, [&](int row, int column) { return row == column ? height : 48.0F; });
        EXPECT_EQ(QuadsOf(plot)[0].height, 28.0F);
        EXPECT_EQ(SurfaceFigure(plot, chart.model.Seen()).PlaceOf(0, 0),
                  chart.model.Seen().Project(0.0F, 8.0F, 0.0F).at);
    }
    EXPECT_EQ(QuadsOf(chart.AddField(2, 2, [](int, int) { return kHuge; }))[0].height, kHuge);
}

TEST_F(SurfaceFigureTest, RowsAreTheOuterLoop) {
    const QZChart3DPlot& plot =
        chart.AddField(3, 4, [](int row, int column) { return static_cast<float>(10 * row + column); });
    const auto walk = [&](float yaw) {
        chart.model.space.rotation[1] = yaw;
        std::string text;
        for (const SurfaceQuad& quad : QuadsOf(plot))
            text += std::to_string(std::lround(quad.height - 5.5F)) + " ";
        return text;
    };
    EXPECT_EQ(walk(0.7F), "10 11 12 0 1 2 ");
    EXPECT_EQ(walk(2.3F), "0 1 2 10 11 12 ");
    EXPECT_EQ(walk(3.9F), "2 1 0 12 11 10 ");
    EXPECT_EQ(walk(5.5F), "12 11 10 2 1 0 ");
}

// The corners are compared where they stand, not where a flat field would have them.
TEST_F(SurfaceFigureTest, TheHeightsOfTheCornersCount) {
    float height = 0.0F;
    const auto first = [&] {
        return QuadsOf(chart.AddField(3, 3,
                                      [&](int row, int column) {
                                          return row == 2 && column == 0
                                                     ? height
                                                     : static_cast<float>(10 * row + column) / 100.0F;
                                      }))[0]
            .height;
    };
    chart.model.space.rotation[1] = 0.2F;
    EXPECT_NEAR(first(), 0.1F, 0.06F) << "from the last row's first column";
    height = 255.0F;
    EXPECT_NEAR(first(), 0.165F, 0.01F) << "from the last row's last column";
}

// Of the triangle's point that is seen there.
std::optional<double> DepthAt(double x, double y, const ReferencePlace& p, const ReferencePlace& q,
                              const ReferencePlace& r) {
    const double area = (q.x - p.x) * (r.y - p.y) - (r.x - p.x) * (q.y - p.y);
    if (std::abs(area) < 1e-6) return std::nullopt;
    const double toQ = ((x - p.x) * (r.y - p.y) - (r.x - p.x) * (y - p.y)) / area;
    const double toR = ((q.x - p.x) * (y - p.y) - (x - p.x) * (q.y - p.y)) / area;
    if (toQ < 0 || toR < 0 || toQ + toR > 1) return std::nullopt;
    return p.depth + toQ * (q.depth - p.depth) + toR * (r.depth - p.depth);
}

// Every quad once, and never one that is farther over one that is nearer: looked at through a grid of eyes, each of
// which remembers how far away was what it saw last.
TEST_F(SurfaceFigureTest, NothingFarIsDrawnOverWhatIsNear) {
    constexpr int kSide = 5, kEyes = 50;
    std::mt19937 random(13);
    int looked = 0;
    for (int round = 0; round < 80; ++round) {
        Chart3DSpace& space = chart.model.space = RandomSpace(random);
        chart.model.style = space.normalises ? kChart3DNormalise : 0u;
        if (round % 3 == 0) space.rotation[0] += 3.1415927F;
        const ChartRange heights = space.ranges[kVerticalAxis];
        const QZChart3DPlot& plot = chart.AddField(kSide, kSide, [&](int row, int column) {
            const bool isCorner = row % (kSide - 1) == 0 && column % (kSide - 1) == 0;
            return isCorner ? heights.minimum : Between(random, heights.minimum, heights.maximum);
        });
        std::vector<ReferencePlace> places;
        for (const Point3D& point : plot.Points())
            places.push_back(ReferenceProject(space, point));
        const auto [left, right] = std::ranges::minmax(places, {}, &ReferencePlace::x);
        const auto [low, high] = std::ranges::minmax(places, {}, &ReferencePlace::y);
        std::vector<double> seen(kEyes * kEyes, HUGE_VAL);
        std::vector<bool> drawn(kSide * kSide);
        for (const SurfaceQuad& quad : QuadsOf(plot)) {
            std::array<std::size_t, 4> corners{};
            for (std::size_t i = 0; i < places.size(); ++i) {
                if (i / kSide == kSide - 1 || i % kSide == kSide - 1) continue;
                const std::array<std::size_t, 4> these{i, i + kSide, i + kSide + 1, i + 1};
                bool is = !drawn[i];
                for (std::size_t k = 0; k < 4; ++k)
                    is = is && IsCut(quad.corners[k], places[these[k]]);
                if (is) corners = these;
            }
            ASSERT_NE(corners[1], 0u) << "a quad that is none of the field's";
            drawn[corners[0]] = true;
            for (int eye = 0; eye < kEyes * kEyes; ++eye) {
                const double x = left.x + (right.x - left.x) * (eye % kEyes) / kEyes;
                const double y = low.y + (high.y - low.y) * (eye / kEyes) / kEyes;
                double& nearest = seen[static_cast<std::size_t>(eye)];
                const double before = nearest;
                // A steep quad may fold, and be seen twice.
                for (const std::size_t second : {1u, 2u}) {
                    const std::optional<double> depth =
                        DepthAt(x, y, places[corners[0]], places[corners[second]], places[corners[second + 1]]);
                    if (!depth) continue;
                    ASSERT_LE(*depth, before + 1.0)
                        << round << " pitch " << space.rotation[0] << " yaw " << space.rotation[1];
                    nearest = std::min(nearest, *depth);
                    ++looked;
                }
            }
        }
        EXPECT_EQ(std::ranges::count(drawn, true), (kSide - 1) * (kSide - 1));
    }
    EXPECT_GT(looked, 80'000);
}

}  // namespace
}  // namespace corvex
