#include <gtest/gtest.h>

#include <cstring>
#include <limits>

#include "controls/window/CommonControls.h"
#include "definition/ADXListView.h"
#include "tests/views/DashTestHelper.h"
#include "tests/views/ListTestHelper.h"
#include "views/ItemListPage.h"

namespace corvex::test {
namespace {

constexpr float kNone = std::numeric_limits<float>::quiet_NaN(), kEndless = std::numeric_limits<float>::infinity();
constexpr float kLargest = std::numeric_limits<float>::max();

// Dash and list of a definition that nobody would write, in windows that nobody would open.
class OddDefinitionTest : public DashTest {
protected:
    OddDefinitionTest() { list = AddTitled<ADXListView>(session.definition, "LIST", "List"); }

    // On a dial, on a readout and in a row.
    void ShowEverywhere(ADXValue* value) {
        AddEntry(kAnalogGaugeType, value);
        AddEntry(kDigitalReadoutType, value);
        AddRow(value);
    }
    void AddRow(ADXObject* item) {
        ADXLVENTRY entry;
        entry.SetItem(item);
        list->AddEntry(&entry);
    }
    ADXValue* AddValue(const char* equation) {
        auto* const value = AddTitled<ADXValue>(session.definition, equation, equation);
        value->SetEquation(equation, static_cast<std::uint32_t>(std::strlen(equation)));
        ShowEverywhere(value);
        return value;
    }
    void ShowBoth() {
        CreateDashPage(session);
        CreateItemListPage(session);
        RefreshDashPage(session);
        RefreshItemListPage(session);
        ShowFrame();
    }
    void Sample(const std::vector<std::uint8_t>& bytes) {
        Store(bytes, kCommand);
        Update(bytes);
        RepaintList();
        PaintAll();
    }
    void PaintAll() const {
        ::RedrawWindow(frame, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    }

    std::string Cell(int row, int column) const { return CellOf(Item(session.listPage, IDC_LIST_VIEW), row, column); }
    void SampleInEverySize() {
        for (const auto& [width, height] : {std::pair{1, 1}, std::pair{20000, 1}, std::pair{1, 20000},
                                            std::pair{20000, 40}, std::pair{0, 0}, std::pair{650, 400}}) {
            ResizeFrame(width, height);
            for (const int page : {1, 2}) {
                TabSheet::selectPage(sheet, page);
                for (const std::uint8_t byte : {std::uint8_t{0}, std::uint8_t{5}, std::uint8_t{255}})
                    Sample({byte, byte, byte});
            }
        }
    }

    ADXListView* list = nullptr;
};

TEST_F(OddDefinitionTest, NumbersOfEveryKindAreSurvivedInEverySize) {
    for (const char* const equation : {"X*1e308", "X/0", "0/0", "-X/0", "1e38*X", "0-1e39", "X/3"})
        AddValue(equation);
    const struct {
        float low, high, alarmLow, alarmHigh;
        std::uint8_t digits;
    } scales[] = {{5, 5, 5, 5, 0},
                  {100, -100, 50, -50, 255},
                  {kNone, kNone, kNone, kNone, 200},
                  {-kEndless, kEndless, kEndless, -kEndless, 128},
                  {-kLargest, kLargest, kLargest, -kLargest, 127},
                  {1e-38F, 2e-38F, 0, 0, 40}};
    for (const auto& scale : scales) {
        ADXValue* const value = AddValue("X");
        value->rangelow = scale.low;
        value->rangehigh = scale.high;
        value->alarmlow = scale.alarmLow;
        value->alarmhigh = scale.alarmHigh;
        value->digcount = scale.digits;
        value->flags = ADXValue::kAlarmHigh | ADXValue::kAlarmLow;
    }
    ShowBoth();
    SampleInEverySize();
    const std::size_t before = AllGdiObjects();
    SampleInEverySize();
    EXPECT_EQ(before, AllGdiObjects());
}

TEST_F(OddDefinitionTest, LongTextsWithEveryCharacterAreDataAlone) {
    std::string text;
    while (text.size() < 10000)
        text += "%n%s&\t\n\x01\xFF";
    const auto length = static_cast<std::uint32_t>(text.size());
    speed->SetTitle(text.c_str(), length);
    speed->SetUnits(text.c_str(), length);
    fan->SetTitle(text.c_str(), length);
    fan->SetTrueString(text.c_str(), length);
    fan->SetFalseString(text.c_str(), length);
    ShowEverywhere(speed);
    AddEntry(kStatusGaugeType, fan);
    AddRow(fan);
    ADXLVENTRY heading;
    heading.entrytype = ADXLVENTRY::kHeadingRow;
    heading.title.Set(text.c_str(), length);
    list->AddEntry(&heading);
    dashboard->SetTitle(text.c_str(), length);
    list->SetTitle(text.c_str(), length);
    ShowBoth();
    for (const int page : {1, 2}) {
        TabSheet::selectPage(sheet, page);
        Sample({1, 2, 1});
    }
    EXPECT_EQ(text.substr(0, 100), TextOfGauge(Gauge(0), AGM_GETTITLE));
    DigitalReadoutInfo info{};
    DigitalReadoutGetInfo(Gauge(1), &info);
    EXPECT_EQ(text.substr(0, 79), info.title);
    EXPECT_EQ(text.substr(0, 49), info.units);
    EXPECT_EQ(text.substr(0, 100), TextOfGauge(Gauge(2), SGM_GETTRUETEXT));
    EXPECT_EQ(text.substr(0, 255), Cell(0, 2));
    EXPECT_EQ(text.substr(0, 39), Cell(1, 1));
    EXPECT_EQ(text, Cell(2, 2));
    Press(Gauge(2), {VK_ESCAPE});
}

}  // namespace
}  // namespace corvex::test
