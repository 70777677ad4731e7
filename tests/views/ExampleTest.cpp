#include <gtest/gtest.h>

#include <algorithm>

#include "tests/views/DashTestHelper.h"
#include "tests/views/ListTestHelper.h"

namespace corvex::test {
namespace {

struct Size {
    int width, height;
};
constexpr Size kSizes[] = {{650, 500}, {1280, 800}, {1920, 1080}};

// The example definition, with a packet in which everything that can be in alarm on the dash is.
class ExampleTest : public PageTest {
protected:
    ExampleTest() {
        CreateDashPage(session);
        CreateItemListPage(session);
        EXPECT_EQ(1, session.definition.Load(CORVEX_SOURCE_DIR "/examples/harrier-8192.adx"));
        RefreshDashPage(session);
        RefreshItemListPage(session);
        Arrive();
    }
    void Arrive() {
        std::vector<std::uint8_t> bytes(59, 100);
        bytes[0x00] = 150;   // speed of 4800, limit 4600
        bytes[0x05] = 210;   // coolant at 117 degrees, limit 108
        bytes[0x08] = 110;   // 11 volts, limit 11.5
        bytes[0x15] = 100;   // knock
        bytes[0x26] = 1;     // oil pressure
        bytes[0x36] = 0x01;  // closed loop
        bytes[0x37] = 0x14;  // converter clutch, fan
        bytes[0x38] = 0x31;  // check engine lamp, two faults; no fuel pump
        const std::uint32_t poll = HashId("POLL", 4);
        Store(bytes, poll);
        Publish(bytes, poll);
    }
    void ShowIn(const Size& size, int tab, const std::string& name) {
        TabSheet::selectPage(sheet, tab);
        ResizeFrame(size.width, size.height);
        ShowFrame();
        SavePicture(frame, name + "-" + std::to_string(size.width));
    }
};

TEST_F(ExampleTest, ItsDashHasEveryKindOfGaugeAndOfAlarm) {
    for (const Size& size : kSizes)
        ShowIn(size, 1, "dash");
    const DashPage& page = *PageOf<DashPage>(session.dashPage);
    ASSERT_EQ(7U, page.Gauges().size());
    std::set<std::string> classes;
    int high = 0, low = 0, lamps = 0;
    for (const HWND gauge : page.Gauges()) {
        classes.insert(ClassNameOf(gauge));
        const ADXDGENTRY& entry = *EntryOf(gauge);
        ASSERT_NE(nullptr, entry.item);
        if (entry.gaugetype == kStatusGaugeType) {
            lamps += static_cast<const ADXBitmask&>(*entry.item).GetAlarmOnNotSet(nullptr) != 0 ? 1 : 0;
        } else {
            const auto& value = static_cast<const ADXValue&>(*entry.item);
            high += (value.flags & ADXValue::kAlarmHigh) != 0 ? 1 : 0;
            low += (value.flags & ADXValue::kAlarmLow) != 0 ? 1 : 0;
        }
    }
    EXPECT_EQ(3U, classes.size());
    for (const int count : {high, low, lamps})
        EXPECT_GT(count, 0);
}

TEST_F(ExampleTest, ItsListHasHeadingsAndAlarmsInEverySize) {
    for (const Size& size : kSizes) {
        ShowIn(size, 2, "list");
        const HWND list = Item(session.listPage, IDC_LIST_VIEW);
        const Colours colours = ColoursOf(list);
        for (const COLORREF colour : {0x0000FFU, 0x4080FFU, 0xC04000U, 0x000000U})
            EXPECT_EQ(1U, colours.count(colour)) << std::hex << colour;
    }
    Choose(Page(2), IDC_LIST_COMBO, 1);
    ShowIn(kSizes[0], 2, "list-bits");
}

}  // namespace
}  // namespace corvex::test
