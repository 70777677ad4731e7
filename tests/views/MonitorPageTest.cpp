#include <gtest/gtest.h>

#include "definition/ADXBitmask.h"
#include "definition/ADXValue.h"
#include "tests/views/MenuDriver.h"
#include "tests/views/PageTestHelper.h"
#include "views/MonitorPage.h"

namespace corvex::test {
namespace {

constexpr std::uint32_t kCommand = 0x1111, kOther = 0x2222;

class MonitorPageTest : public PageTest {
protected:
    MonitorPageTest() {
        speed = AddTitled<ADXValue>(session.definition, "SPEED", "Speed");
        load = AddTitled<ADXValue>(session.definition, "LOAD", "Load");
        for (ADXValue* value : {speed, load}) {
            value->SetEquation("X", 1);
            value->rangelow = 0;
            value->rangehigh = 200;
        }
        speed->SetUnits("km/h", 4);
        load->packetoffset = 1;
        engine = AddTitled<ADXMonitor>(session.definition, "ENGINE", "Engine");
        CreateMonitorPage(session);
    }

    MonitorPage& State() const { return *static_cast<MonitorPage*>(session.monitorState); }
    const MonitorChart& Chart(std::size_t index = 0) const { return State().Charts().at(index); }
    DataChartSeries* Series(std::uint32_t index, std::size_t chart = 0) const {
        return reinterpret_cast<DataChartSeries*>(::SendMessageA(Chart(chart).window, DCM_GETSERIES, index, 0));
    }
    LRESULT Ask(UINT message) const { return ::SendMessageA(Chart().window, message, 0, 0); }
    // The page with these on the first chart.
    void Fill(const std::vector<ADXObject*>& items) {
        for (ADXObject* const item : items) {
            const ADXMONSERIES entry{.linecolor = 0x112233, .axiscolor = 0x336699, .linewidth = 3, .item = item};
            engine->AddEntry(&entry);
        }
        RefreshMonitorPage(session);
    }
    void ShowSpeed() {
        Fill({speed});
        TabSheet::selectPage(sheet, 1);
        ShowFrame();
        ::UpdateWindow(frame);
    }
    void Publish(double t, std::vector<std::uint8_t> bytes, std::uint32_t command = kCommand) {
        session.PublishSample(t, PacketView(bytes.data(), static_cast<std::uint32_t>(bytes.size())), command);
    }
    bool HasScrollBar() const { return (StyleOfWindow(Page(1)) & WS_HSCROLL) != 0; }
    SCROLLINFO ScrollBar() const {
        SCROLLINFO bar{};
        bar.cbSize = sizeof bar;
        bar.fMask = SIF_ALL;
        ::GetScrollInfo(Page(1), SB_HORZ, &bar);
        return bar;
    }
    // A right click on the first chart, and the keys down to a row of its menu.
    Strings PressRow(int row) {
        Strings rows;
        std::vector<WPARAM> keys(static_cast<std::size_t>(row) + 1, VK_DOWN);
        if (row >= 0) keys.push_back(VK_RETURN);
        WorkMenu([this] { ::SendMessageA(Chart().window, WM_CONTEXTMENU, 0, MAKELPARAM(40, 60)); }, keys,
                 [&](HMENU menu) { rows = RowsOf(menu); });
        return rows;
    }

    ADXValue *speed = nullptr, *load = nullptr;
    ADXMonitor* engine = nullptr;
};

TEST_F(MonitorPageTest, StacksAChartForEachMonitorOverTheWholeWidth) {
    AddTitled<ADXMonitor>(session.definition, "TWO", std::string(160, 'f'));
    AddTitled<ADXMonitor>(session.definition, "THREE", "Three");
    RefreshMonitorPage(session);
    EXPECT_EQ(Page(1), State().Window());
    EXPECT_EQ(session.monitorPage, Page(1));
    ASSERT_EQ(3U, State().Charts().size());
    EXPECT_EQ(9000, ::GetDlgCtrlID(Chart(0).window));
    EXPECT_EQ(9001, ::GetDlgCtrlID(Chart(1).window));
    for (const auto& [width, height] : {std::pair{700, 420}, std::pair{1600, 801}}) {
        Resize(width, height);
        const RECT client = ClientOf(Page(1));
        const LONG share = client.bottom / 3;
        for (std::size_t i = 0; i < 3; ++i) {
            const LONG top = static_cast<LONG>(i) * share;
            EXPECT_EQ((RECT{0, top, client.right, top + share}), PlaceOf(Chart(i).window));
        }
    }
    SetMonitorsTime(session, 12.5);
    for (std::size_t i = 0; i < 3; ++i)
        EXPECT_EQ(12.5F, Chart(i).timeAxis->marker) << "the cursor of a playback";
}

TEST_F(MonitorPageTest, TheTimeAxisShowsTwentySecondsAndScrolls) {
    const DataChartAxis& time = *Chart().timeAxis;
    EXPECT_EQ(AxisPosition::kBottom, time.Position());
    EXPECT_EQ(20.0F, time.Maximum());
    EXPECT_EQ(20.0F, time.HighLimit());
    EXPECT_EQ("Time (M:S)", time.Title());
    EXPECT_EQ(0x70U, time.flags);
    EXPECT_EQ("1:05", time.LabelOf(65, nullptr));
    EXPECT_EQ(0.0F, time.marker);
}

TEST_F(MonitorPageTest, EachValueHasALineAndAnAxisOfItsOwnOnAlternateSides) {
    Fill({speed, AddTitled<ADXBitmask>(session.definition, "FAN", "Fan"), load, speed});
    EXPECT_EQ(3, Ask(DCM_GETSERIESCOUNT)) << "a bitmask is no value";
    EXPECT_EQ(4, Ask(DCM_GETAXISCOUNT));
    const DataChartSeries& first = *Series(0);
    EXPECT_EQ(0x112233U, first.colour);
    EXPECT_EQ(3, first.lineWidth);
    EXPECT_EQ(Chart().timeAxis, first.XAxis());
    const DataChartAxis& axis = *first.YAxis();
    EXPECT_EQ("km/h", axis.Title());
    EXPECT_EQ(200.0F, axis.Maximum());
    EXPECT_EQ(200.0F, axis.HighLimit());
    EXPECT_EQ(0x336699U, axis.textColour);
    EXPECT_EQ(0x336699U, axis.lineColour);
    const AxisPosition sides[] = {AxisPosition::kLeft, AxisPosition::kRight, AxisPosition::kLeft};
    for (std::uint32_t i = 0; i < 3; ++i)
        EXPECT_EQ(sides[i], Series(i)->YAxis()->Position());
}

TEST_F(MonitorPageTest, SamplesAreWantedWhileThereIsASeriesWhateverTabIsInFront) {
    EXPECT_FALSE(Wants(SampleViewKind::kMonitors));
    Fill({speed});
    EXPECT_NE(0U, session.views.Wanted() & BitOf(SampleViewKind::kMonitors));
    Publish(1.5, {77, 5});
    ASSERT_EQ(1U, Series(0)->Count());
    float x = 0, y = 0;
    Series(0)->getSample(&x, &y, 0);
    EXPECT_EQ(1.5F, x);
    EXPECT_EQ(77.0F, y);
}

TEST_F(MonitorPageTest, AnotherCommandsReplyLeavesAGapAndATriggerAddsThePresentValue) {
    speed->parentcmdidhash = kCommand;
    Fill({speed, load});
    Publish(1, {10, 20}, kOther);
    Publish(2, {11, 21});
    EXPECT_EQ(1U, Series(0)->Count());
    EXPECT_EQ(2U, Series(1)->Count());
    session.PublishSample(3.0, nullptr, kCommand, BitOf(SampleViewKind::kMonitors));
    ASSERT_EQ(2U, Series(0)->Count());
    float y = 0;
    Series(0)->getY(&y, 1);
    EXPECT_EQ(11.0F, y) << "of the last raw word";
}

TEST_F(MonitorPageTest, AChartIsPaintedOncePerSample) {
    Fill({load});
    ShowSpeed();
    const WindowSpy spy(Chart().window);
    Publish(0, {10, 20});
    EXPECT_EQ(1, spy.Paints()) << "two series";
    Publish(30, {200, 20});
    EXPECT_FALSE(::GetUpdateRect(Chart().window, nullptr, FALSE));
}

TEST_F(MonitorPageTest, AScrollBarComesWithTheFirstScroll) {
    ShowSpeed();
    Publish(20, {10, 20});
    EXPECT_FALSE(HasScrollBar());
    Publish(21, {10, 20});
    EXPECT_TRUE(HasScrollBar());
    EXPECT_EQ(24000 - 20, ScrollBar().nMax);
    EXPECT_EQ(20000U, ScrollBar().nPage);
    ClearMonitors(session);
    Publish(0, {10, 20});
    EXPECT_FALSE(HasScrollBar());
    Publish(30, {10, 20});
    EXPECT_TRUE(HasScrollBar());
    session.definition.Clear();
    RefreshMonitorPage(session);
    EXPECT_FALSE(HasScrollBar()) << "nor where there is no chart";
}

TEST_F(MonitorPageTest, WhileTheThumbIsHeldSamplesMoveNothing) {
    ShowSpeed();
    for (int t = 0; t <= 60; t += 5)
        Publish(t, {10, 20});
    DataChartAxis& time = *Chart().timeAxis;
    const auto scroll = [this](unsigned code) { ::SendMessageA(Page(1), WM_HSCROLL, MAKEWPARAM(code, 0), 0); };
    scroll(SB_THUMBTRACK);
    const float held = time.Minimum();
    EXPECT_EQ(held, static_cast<float>(ScrollBar().nPos / 1000.0));
    EXPECT_EQ(held + 20.0F, time.Maximum());
    Publish(300, {10, 20});
    EXPECT_EQ(held, time.Minimum());
    scroll(SB_ENDSCROLL);
    Publish(301, {10, 20});
    EXPECT_GT(time.Minimum(), 200.0F) << "it catches up";
}

TEST_F(MonitorPageTest, ClearingKeepsTheWidthAndBeginsAtZeroAndARefreshBeginsAnew) {
    ShowSpeed();
    Publish(1, {10, 20});
    Publish(100, {10, 20});
    Chart().timeAxis->setRange(50, 90);
    ClearMonitors(session);
    EXPECT_EQ(0U, Series(0)->Count());
    EXPECT_EQ(0.0F, Chart().timeAxis->Minimum());
    EXPECT_EQ(40.0F, Chart().timeAxis->Maximum());
    EXPECT_EQ(0.0F, Chart().timeAxis->LowLimit());
    EXPECT_EQ(40.0F, Chart().timeAxis->HighLimit());
    Publish(1, {10, 20});
    const HWND chart = Chart().window;
    RefreshMonitorPage(session);
    EXPECT_FALSE(::IsWindow(chart)) << "the charts are made anew";
    EXPECT_EQ(0U, Series(0)->Count());
}

TEST_F(MonitorPageTest, AValueChosenFromAllIsAddedInTheNextColour) {
    Fill(std::vector<ADXObject*>(10, load));
    EXPECT_EQ((Strings{"1 Speed", "2* Load"}), PressRow(-1));
    EXPECT_EQ(0U, session.monitorsChanged);
    PressRow(0);
    ASSERT_EQ(11U, engine->GetEntryCount());
    const ADXMONSERIES& entry = *engine->GetEntry(10);
    EXPECT_EQ(speed, entry.item);
    EXPECT_EQ(speed->GetIdHash(), entry.itemidhash);
    EXPECT_EQ(0x0000FFU, entry.linecolor) << "the eleventh takes the first colour again";
    EXPECT_EQ(0x0000FFU, entry.axiscolor);
    EXPECT_EQ(1, entry.linewidth);
    EXPECT_EQ(0, entry.linetype);
    EXPECT_EQ(11, Ask(DCM_GETSERIESCOUNT));
    EXPECT_EQ("km/h", Series(10)->YAxis()->Title());
    EXPECT_EQ(1U, session.monitorsChanged);
    EXPECT_TRUE(Wants(SampleViewKind::kMonitors));
}

TEST_F(MonitorPageTest, ACheckedValueIsRemovedWithItsAxis) {
    Fill({speed, load});
    Publish(1, {10, 20});
    const DataChartAxis* const stays = Series(1)->YAxis();
    PressRow(0);
    ASSERT_EQ(1U, engine->GetEntryCount());
    EXPECT_EQ(load, engine->GetEntry(0)->item);
    EXPECT_EQ(1, Ask(DCM_GETSERIESCOUNT));
    EXPECT_EQ(2, Ask(DCM_GETAXISCOUNT));
    EXPECT_EQ(stays, Series(0)->YAxis());
    EXPECT_EQ(1U, Series(0)->Count()) << "the others keep their samples";
    EXPECT_EQ(1U, session.monitorsChanged);
}

TEST_F(MonitorPageTest, ALoadWhileTheMenuIsOpenDropsTheChoice) {
    MainThread mainThread;
    MenuDriver driver({VK_DOWN, VK_RETURN}, [&](HMENU) {
        mainThread.Run([&] {
            session.definition.Clear();
            RefreshMonitorPage(session);
        });
    });
    ::SendMessageA(Chart().window, WM_CONTEXTMENU, 0, MAKELPARAM(40, 60));
    EXPECT_TRUE(driver.Came());
    EXPECT_EQ(0U, session.monitorsChanged);
    EXPECT_TRUE(State().Charts().empty());
}

TEST_F(MonitorPageTest, ItsEndIsKnown) {
    EndFrame();
    EXPECT_EQ(nullptr, session.monitorState);
    EXPECT_EQ(nullptr, session.monitorPage);
    RefreshMonitorPage(session);
    ClearMonitors(session);
    SetMonitorsTime(session, 1);
}

TEST(MonitorPageWithoutSheetTest, RefreshBeforeThereIsAPageDoesNothing) {
    SessionState session;
    RefreshMonitorPage(session);
    EXPECT_EQ(nullptr, session.monitorState);
}

}  // namespace
}  // namespace corvex::test
