// Every dash and list of every example fits into windows from the smallest size to a large screen.
#include <gtest/gtest.h>

#include <array>
#include <cmath>

#include "controls/analoggauge/AnalogGaugePaint.h"
#include "controls/digitalreadout/DigitalReadoutPaint.h"
#include "controls/gauge/GaugeFont.h"
#include "controls/gauge/GaugeNumberModel.h"
#include "controls/statusgauge/StatusGaugePaint.h"
#include "definition/ADXBitmask.h"
#include "definition/ADXListView.h"
#include "definition/ADXValue.h"
#include "tests/controls/window/FigureRecorder.h"
#include "tests/views/DashTestHelper.h"
#include "tests/views/ListTestHelper.h"
#include "views/DashLayoutModel.h"

namespace corvex::test {
namespace {

// What the page has of such a window: frame, menu, bars and tabs take the rest.
struct PageSize {
    int width, height;
};
constexpr PageSize kExamplePages[] = {{650 - 16, 500 - 118},  {768 - 16, 576 - 118},  {900 - 16, 660 - 118},
                                      {1440 - 16, 810 - 118}, {1366 - 16, 700 - 118}, {1900 - 16, 1000 - 118}};
constexpr double kSpare = 1.1;  // other systems' fonts are wider

struct TextBox {
    std::string text;
    double left, top, right, bottom;  // pixels
    bool Meets(const TextBox& other) const {
        return left < other.right && other.left < right && top < other.bottom && other.top < bottom;
    }
};

// Of a text that is drawn in such a font, by the program's own rules.
SIZE ExtentOf(const std::string& text, int height, int weight) {
    const TestBitmap bitmap(1, 1, 0);
    const OwnedFont font = MakeGaugeFont(height, weight);
    const SelectGuard selected(bitmap.Dc(), font.Get());
    SIZE size{};
    ::GetTextExtentPoint32A(bitmap.Dc(), text.data(), static_cast<int>(text.size()), &size);
    return size;
}

// "text X,Y align A font Arial H W Q P ..." in logical units of a square of `side`, which fills the client area.
TextBox BoxOf(const std::string& figure, int side, const PageSize& client) {
    int x = 0, y = 0, height = 0, weight = 0;
    unsigned align = 0;
    EXPECT_EQ(5, std::sscanf(figure.c_str(), "text %d,%d align %u font Arial %d %d", &x, &y, &align, &height, &weight));
    const double xScale = std::max(1.0, static_cast<double>(client.width) / side);
    const double yScale = std::max(1.0, static_cast<double>(client.height) / side);
    const std::string text = figure.substr(figure.find(": ") + 2);
    const SIZE size = ExtentOf(text, static_cast<int>(std::lround(height * yScale)), weight);
    const double width = size.cx * kSpare, tall = size.cy;
    const unsigned across = align & TA_CENTER, down = align & TA_BASELINE;
    TextBox box{text, x * xScale, y * yScale, 0, 0};
    if (across == TA_CENTER) box.left -= width / 2;
    if (across == TA_RIGHT) box.left -= width;
    if (down == TA_BOTTOM) box.top -= tall;
    if (down == TA_BASELINE) box.top -= 0.8 * tall;
    box.right = box.left + width;
    box.bottom = box.top + 0.9 * tall;  // what no letter reaches
    box.top += 0.15 * tall;
    return box;
}

void ExpectFits(const Figures& figures, int side, const PageSize& client, const std::string& name) {
    EXPECT_GE(client.width, side) << name;
    EXPECT_GE(client.height, side) << name;
    std::vector<TextBox> boxes;
    for (const std::string& figure : FiguresOfKind(figures, "text"))
        boxes.push_back(BoxOf(figure, side, client));
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        const TextBox& box = boxes[i];
        EXPECT_TRUE(box.left >= 0 && box.top >= -1 && box.right <= client.width && box.bottom <= client.height + 1)
            << name << ": \"" << box.text << "\" is cut";
        for (std::size_t j = 0; j < i; ++j)
            EXPECT_FALSE(box.Meets(boxes[j])) << name << ": \"" << box.text << "\" on \"" << boxes[j].text << '"';
    }
}

void ExpectDialFits(const ADXValue& value, float shown, const PageSize& client, const std::string& name) {
    AnalogGaugeModel model;
    model.title.Set(value.Title(), std::strlen(value.Title()));
    model.units.Set(value.Units(), std::strlen(value.Units()));
    model.digits = value.digcount;
    model.scale.rangeMinimum = value.rangelow;
    model.scale.rangeMaximum = value.rangehigh;
    for (const float number : {value.rangelow, value.rangehigh, shown})
        model.SetValue(number);
    const RECT area{0, 0, client.width, client.height};
    ExpectFits(FiguresOf([&](HDC dc) { PaintAnalogGauge(dc, area, model); }), AnalogGaugeModel::kSide, client, name);
}

void ExpectReadoutFits(const ADXValue& value, float shown, const PageSize& client, const std::string& name) {
    DigitalReadoutModel model;
    model.SetTitle(value.Title());
    model.SetUnits(value.Units());
    const bool floating = value.outputtype == ADXValue::kFloat;
    model.SetFormat(floating ? 1 : 0, floating ? value.digcount : 1);
    model.SetValue(shown);
    const RECT area{0, 0, client.width, client.height};
    ExpectFits(FiguresOf([&](HDC dc) { PaintDigitalReadout(dc, area, model); }), 100, client, name);
}

void ExpectLampFits(const ADXBitmask& bit, std::uint32_t state, const PageSize& client, const std::string& name) {
    char trueText[100] = "", falseText[100] = "";
    bit.GetTrueString(trueText, sizeof trueText);
    bit.GetFalseString(falseText, sizeof falseText);
    StatusGaugeModel model;
    model.state = state;
    model.title.Set(bit.Title(), std::strlen(bit.Title()));
    model.trueText.Set(trueText, std::strlen(trueText));
    model.falseText.Set(falseText, std::strlen(falseText));
    const RECT area{0, 0, client.width, client.height};
    ExpectFits(FiguresOf([&](HDC dc) { PaintStatusGauge(dc, area, model); }), 100, client, name);
}

// The numbers of the range that take the most room, and what the dial shows over its middle.
std::array<float, 4> WidestOf(const ADXValue& value) {
    const float step = std::pow(10.0F, -static_cast<float>(value.digcount));
    return {value.rangelow, value.rangelow + step, value.rangehigh - step, value.rangehigh};
}

void ExpectEntryFits(const ADXDGENTRY& entry, const PageSize& client, const std::string& name) {
    if (const auto* bit = As<ADXBitmask>(entry.item)) {
        for (const std::uint32_t state : {0U, 1U})
            ExpectLampFits(*bit, state, client, name);
        return;
    }
    const auto& value = *As<ADXValue>(entry.item);
    for (const float shown : WidestOf(value))
        (entry.gaugetype == kAnalogGaugeType ? ExpectDialFits : ExpectReadoutFits)(value, shown, client, name);
}

class ExampleFitTest : public ::testing::TestWithParam<const char*> {
protected:
    ExampleFitTest() {
        const std::string path = std::string(CORVEX_SOURCE_DIR "/examples/") + GetParam();
        EXPECT_EQ(1, definition.Load(path.c_str()));
    }
    ADXDefinition definition;
};

TEST_P(ExampleFitTest, NoTextOfADashIsCutOrRunsIntoAnother) {
    for (const PageSize& page : kExamplePages) {
        const PixelArea area{0, 24, page.width, page.height};  // below the combo box
        for (std::uint32_t n = 0; const auto* dash = As<ADXDashboard>(definition.GetObject(kTypeDashboard, n)); ++n) {
            for (std::uint32_t i = 0; i < dash->GetEntryCount(); ++i) {
                ADXDGENTRY entry = *dash->GetEntry(i);
                ASSERT_NE(nullptr, entry.item);
                const PixelArea place = GaugePlace(entry, area);
                const PageSize client{place.right - place.left, place.bottom - place.top};
                ExpectEntryFits(entry, client,
                                Printed("%dx%d %s %s", page.width, page.height, dash->Id(), entry.item->Id()));
            }
        }
    }
}

TEST_P(ExampleFitTest, NoTextOfAListIsCut) {
    constexpr int kValueWidth = 100 - 12, kTitleWidth = 634 - 100 - 12 - 17, kBoldHeight = 14;  // less a scroll bar
    for (std::uint32_t n = 0; const auto* list = As<ADXListView>(definition.GetObject(kTypeListView, n)); ++n) {
        for (std::uint32_t i = 0; i < list->GetEntryCount(); ++i) {
            const ADXLVENTRY& entry = *list->GetEntry(i);
            if (entry.item == nullptr) continue;
            std::vector<std::string> texts;
            if (auto* value = As<ADXValue>(entry.item)) {
                for (const float number : WidestOf(*value))
                    texts.push_back(FormatDecimals(number, value->digcount, 40) + ' ' + value->Units());
            } else {
                char text[100] = "";
                As<ADXBitmask>(entry.item)->GetTrueString(text, sizeof text);
                texts.emplace_back(text);
                As<ADXBitmask>(entry.item)->GetFalseString(text, sizeof text);
                texts.emplace_back(text);
            }
            for (const std::string& text : texts)
                EXPECT_LE(ExtentOf(text, kBoldHeight, FW_SEMIBOLD).cx * kSpare, kValueWidth) << entry.item->Id();
            EXPECT_LE(ExtentOf(entry.item->Title(), kBoldHeight, FW_SEMIBOLD).cx * kSpare, kTitleWidth);
        }
    }
}

// A dial has eleven marks with numbers; each is a multiple of the distance to the next.
TEST_P(ExampleFitTest, EveryScaleHasRoundMarks) {
    for (std::uint32_t n = 0; const auto* value = As<ADXValue>(definition.GetObject(kTypeValue, n)); ++n) {
        const double step = (static_cast<double>(value->rangehigh) - static_cast<double>(value->rangelow)) / 10;
        const double digit = step / std::pow(10.0, std::floor(std::log10(step) + 1e-6));
        const bool round = std::abs(digit - 1) < 1e-4 || std::abs(digit - 2) < 1e-4 || std::abs(digit - 2.5) < 1e-4 ||
                           std::abs(digit - 5) < 1e-4;
        EXPECT_TRUE(round) << value->Id() << " has a mark every " << step;
        EXPECT_NEAR(std::remainder(static_cast<double>(value->rangelow), step), 0, step * 1e-4) << value->Id();
    }
}

// A lamp is red when its flag is not set.
TEST_P(ExampleFitTest, LampsOfDashesAreGreenInTheGoodState) {
    for (std::uint32_t n = 0; const auto* dash = As<ADXDashboard>(definition.GetObject(kTypeDashboard, n)); ++n) {
        for (std::uint32_t i = 0; i < dash->GetEntryCount(); ++i) {
            const auto* bit = As<ADXBitmask>(dash->GetEntry(i)->item);
            if (bit == nullptr) continue;
            char good[100] = "";
            bit->GetTrueString(good, sizeof good);
            const std::set<std::string> kGood{"good", "off", "normal", "running"};
            EXPECT_TRUE(kGood.contains(good)) << bit->Id() << ' ' << good;
            EXPECT_EQ(0, bit->GetAlarmOnSet(nullptr)) << bit->Id();
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Examples, ExampleFitTest,
                         ::testing::Values("harrier-8192.adx", "merlin-160.adx", "osprey-multi.adx"),
                         [](const auto& info) { return std::string(info.param, std::strcspn(info.param, "-")); });

}  // namespace
}  // namespace corvex::test
