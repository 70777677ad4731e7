// Every control under random messages: whatever a page, the system or a careless hand sends, in any order and size,
// nothing breaks and nothing is left behind.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <functional>
#include <limits>
#include <ostream>
#include <random>
#include <string>
#include <vector>

#include "controls/RegisterControlClasses.h"
#include "controls/analoggauge/AnalogGauge.h"
#include "controls/chart/ChartBlocks.h"
#include "controls/chart2d/Chart2D.h"
#include "controls/chart3d/Chart3D.h"
#include "controls/datachart/DataChart.h"
#include "controls/digitalreadout/DigitalReadout.h"
#include "controls/grid/Grid.h"
#include "controls/proptree/PropTreeContainer.h"
#include "controls/richstatic/RichStatic.h"
#include "controls/scope/Scope.h"
#include "controls/statusgauge/StatusGauge.h"
#include "controls/tabsheet/TabSheet.h"
#include "controls/textprogress/TextProgress.h"
#include "tests/controls/window/ShownControl.h"
#include "tests/support/AttackRounds.h"

namespace corvex {
namespace {

// The kinds of parameters, a letter each: a number of any size (n), an index or a count (i), a place on the client (m),
// a pointer to memory enough for anything, or null (p), the length of what that holds (l), a tick or null (k), a size
// in pixels (b), as an endless one takes its time, a font or null (f), null alone (0).
struct StormMessage {
    UINT message;
    char first, second;
};

constexpr StormMessage kOfTheSystem[] = {
    {WM_SETTEXT, '0', 'p'},       {WM_GETTEXT, 'l', 'p'},   {WM_GETTEXTLENGTH, '0', '0'},
    {WM_SIZE, 'n', 'n'},          {WM_SETREDRAW, 'i', '0'}, {WM_SETREDRAW, 'n', '0'},
    {WM_SETFOCUS, '0', '0'},      {WM_KILLFOCUS, '0', '0'}, {WM_KEYDOWN, 'n', 'n'},
    {WM_KEYUP, 'n', 'n'},         {WM_CHAR, 'n', 'n'},      {WM_GETDLGCODE, '0', '0'},
    {WM_LBUTTONDOWN, 'n', 'm'},   {WM_LBUTTONUP, 'n', 'm'}, {WM_MOUSEMOVE, 'n', 'm'},
    {WM_LBUTTONDBLCLK, 'n', 'm'}, {WM_RBUTTONUP, 'n', 'm'}, {WM_CAPTURECHANGED, '0', '0'},
    {WM_CANCELMODE, '0', '0'},    {WM_TIMER, 'i', '0'},     {WM_CONTEXTMENU, '0', 'n'},
    {WM_HSCROLL, 'n', '0'},       {WM_VSCROLL, 'n', '0'},   {WM_MOUSEWHEEL, 'n', 'm'},
    {WM_SETFONT, 'f', 'i'},       {WM_ENABLE, 'i', '0'},    {WM_PAINT, '0', '0'},
};

using Random = std::mt19937;

struct StormKind {
    const char* name;
    std::vector<StormMessage> messages;
    // Operations that have no message.
    std::function<void(HWND, Random&)> operation = nullptr;
};
void PrintTo(const StormKind& kind, std::ostream* out) {
    *out << kind.name;
}

// A row of messages whose parameters are alike.
void AddRow(std::vector<StormMessage>& messages, UINT first, UINT last, const char* parameters) {
    for (UINT message = first; message <= last; ++message)
        messages.push_back({message, parameters[0], parameters[1]});
}
struct Row {
    UINT first, last;
    const char* parameters;
};
std::vector<StormMessage> Rows(std::initializer_list<Row> rows) {
    std::vector<StormMessage> messages;
    for (const Row& row : rows)
        AddRow(messages, row.first, row.last, row.parameters);
    return messages;
}

float AnyFloat(Random& random) {
    constexpr float kOdd[] = {0.0F,
                              -1.0F,
                              1e30F,
                              -1e30F,
                              1e-40F,
                              std::numeric_limits<float>::infinity(),
                              -std::numeric_limits<float>::infinity(),
                              std::numeric_limits<float>::quiet_NaN()};
    return random() % 2 == 0 ? kOdd[random() % std::size(kOdd)] : static_cast<float>(random() % 2000) - 1000.0F;
}

void OperateReadout(HWND window, Random& random) {
    switch (random() % 5) {
        case 0:
            DigitalReadoutSetValue(window, AnyFloat(random));
            break;
        case 1:
            DigitalReadoutSetHighLimit(window, AnyFloat(random));
            break;
        case 2:
            DigitalReadoutSetFormat(window, random() % 2 == 0 ? 0 : -1, random());
            break;
        case 3:
            DigitalReadoutSetColor(window, random() % 12, random());
            break;
        default:
            DigitalReadoutSetTitle(window, random() % 2 == 0 ? nullptr : std::string(random() % 200, 'm').c_str());
    }
}

void OperateSheet(HWND window, Random& random) {
    const int index = static_cast<int>(random() % 6) - 1;
    switch (random() % 5) {
        case 0:
            TabSheet::addWindowPage(
                window, ::CreateWindowExA(0, "STATIC", "", WS_POPUP, 0, 0, 50, 50, nullptr, nullptr, nullptr, nullptr),
                "page", index);
            break;
        case 1:
            TabSheet::selectPage(window, index);
            break;
        case 2:
            TabSheet::detach(window);
            break;
        case 3:
            TabSheet::dock(window);
            break;
        default:
            // The last one would take the sheet along.
            if (TabSheet::pageCount(window) > 2) TabSheet::removePage(window, index, true);
    }
}

void OperateChart(HWND window, Random& random) {
    auto* const series = reinterpret_cast<DataChartSeries*>(::SendMessageA(window, DCM_GETSERIES, random() % 4, 0));
    auto* const axis = reinterpret_cast<DataChartAxis*>(::SendMessageA(window, DCM_GETAXIS, random() % 4, 0));
    if (axis != nullptr) axis->setRange(AnyFloat(random), AnyFloat(random));
    if (series == nullptr) return;
    series->addSample(AnyFloat(random), AnyFloat(random));
    if (random() % 4 == 0) series->setXAxis(axis);
}

void OperateChart2D(HWND window, Random& random) {
    auto* const series = reinterpret_cast<IQZChart2DSeries*>(::SendMessageA(window, CH2M_GETSERIES, random() % 3, 0));
    if (series == nullptr) return;
    series->addPoint({.x = AnyFloat(random), .y = AnyFloat(random)});
}

const StormKind kStormKinds[] = {
    {kAnalogGaugeClass, Rows({{AGM_SETFLAGS, AGM_SETCOLOR, "nn"},
                              {AGM_GETCOLOR, AGM_GETCOLOR, "n0"},
                              {AGM_SETRANGE, AGM_SETRANGE, "pp"},
                              {AGM_SETVALUE, AGM_GETVALUE, "pi"},
                              {AGM_SETSWEEP, AGM_SETSWEEP, "pp"},
                              {AGM_RESETMIN, AGM_RESETMAX, "00"},
                              {AGM_SETTITLE, AGM_GETUNITS, "pl"},
                              {AGM_SETDIGITS, AGM_SETDIGITS, "nn"},
                              {AGM_SETALARM, AGM_GETALARM, "ip"},
                              {AGM_CLEARALARMS, AGM_CLEARALARMS, "00"}})},
    {kDigitalReadoutClass, {}, &OperateReadout},
    {kStatusGaugeClass, Rows({{SGM_SETFLAGS, SGM_SETSTATE, "nn"}, {SGM_SETTITLE, SGM_GETFALSETEXT, "pl"}})},
    {kDataChartClass, Rows({{DCM_ADDSERIES, DCM_REPAINT, "i0"}}), &OperateChart},
    {kScopeClass, Rows({{SCM_ADDSAMPLE, SCM_ADDSAMPLE, "0p"},
                        {SCM_SETYRANGE, SCM_SETYRANGE, "pp"},
                        {SCM_SETXLABEL, SCM_SETYLABEL, "0p"},
                        {SCM_SETTEXTCOLOR, SCM_SETBACKCOLOR, "0n"},
                        {SCM_SETDECIMALS, SCM_GETVISIBLESAMPLES, "0n"},
                        {SCM_SETSTEP, SCM_SETSTEP, "0i"},
                        {SCM_SETDATA, SCM_SETDATA, "pl"},
                        {SCM_GETDATA, SCM_SETUSERVALUE, "nn"},
                        {SCM_SETSAMPLEWIDTH, SCM_SETSAMPLEWIDTH, "0i"},
                        {SCM_SETMESSAGE, SCM_SETMESSAGE, "np"}})},
    {kGridClass, Rows({{GRM_SETSTYLE, GRM_CLEARSTYLE, "nn"},
                       {GRM_PUTCELL, GRM_PUTCELL, "np"},
                       {GRM_CLEARALL, GRM_CLEARALL, "00"},
                       {GRM_SETSIZE, GRM_SETCURSOR, "ii"},
                       {GRM_GETCELLTYPE, GRM_GETCURSORCOL, "nn"},
                       {GRM_GETSELECTION, GRM_GETSELECTION, "pp"},
                       {GRM_SETSELECTION, GRM_SETTITLEHEIGHT, "nn"},
                       {GRM_SETTITLEFONT, GRM_SETHEADINGFONT, "00"},
                       {GRM_SETCURSOR, GRM_SETCURSOR, "ii"},
                       {GRM_SETCOLWIDTH, GRM_SETCOLWIDTH, "in"},
                       {GRM_SETROWHEIGHT, GRM_SETROWHEIGHT, "in"},
                       {GRM_COPY, GRM_GETCELLTEXTLENGTH, "nn"},
                       {GRM_GETCELLRECT, GRM_GETCELLRECT, "np"}})},
    {kChart2DClass,
     Rows({{CH2M_SETSTYLE, CH2M_REPAINT, "nn"},
           {CH2M_SETTITLE, CH2M_SETTITLE, "0p"},
           {CH2M_SETLABELCALLBACK, CH2M_SETLABELCALLBACK, "00"},
           {CH2M_ADDSERIES, CH2M_CLEARSELECTION, "ni"},
           {CH2M_SETCOLOR, CH2M_GETCOLOR, "nn"},
           {CH2M_SETXRANGE, CH2M_GETYLIMITS, "pp"},
           {CH2M_SETYTITLE, CH2M_GETXTITLE, "pl"},
           {CH2M_SETXTICKCOUNT, CH2M_GETYTICKCOUNT, "0i"},
           {CH2M_SETXTICK, CH2M_SETYTICK, "0k"},
           {CH2M_CLEARTICKS, CH2M_CLEARYTICKS, "ni"},
           {CH2M_SETSUBTITLE, CH2M_GETSUBTITLE, "0p"}}),
     &OperateChart2D},
    {kChart3DClass, Rows({{CH3M_SETSTYLE, CH3M_REPAINT, "nn"},
                          {CH3M_ADDPLOT, CH3M_ADDPLOT, "ni"},
                          {CH3M_DELETEPLOT, CH3M_CLEARSELECTION, "ni"},
                          {CH3M_SETTITLE, CH3M_SETTITLE, "0p"},
                          {CH3M_SETCOLOR, CH3M_GETCOLOR, "nn"},
                          {CH3M_SETXRANGE, CH3M_GETVERTRANGE, "pp"},
                          {CH3M_SETXTITLE, CH3M_SETVERTTITLE, "pl"},
                          {CH3M_SETXTICKCOUNT, CH3M_GETVERTTICKCOUNT, "0i"},
                          {CH3M_SETXTICK, CH3M_SETVERTTICK, "0k"},
                          {CH3M_GETXTICK, CH3M_GETVERTTICK, "ik"},
                          {CH3M_SETSUBTITLE, CH3M_SETSUBTITLE, "0p"},
                          {CH3M_SETLABELCALLBACK, CH3M_SETLABELCALLBACK, "00"},
                          {CH3M_SETBOXSIZE, CH3M_SETBOXSIZE, "0b"},
                          {CH3M_GETBOXSIZE, CH3M_GETBOXSIZE, "0p"},
                          {CH3M_SETXLIMITS, CH3M_GETVERTLIMITS, "pp"},
                          {CH3M_SETROTATION, CH3M_GETSCALE, "pi"}})},
    {kRichStaticClass, Rows({{RSM_SETBACKCOLOR, RSM_SETTEXTCOLOR, "0n"}})},
    {kTextProgressClass, Rows({{TPM_SETRANGEWORDS, TPM_SETRANGE, "nn"},
                               {TPM_GETRANGE, TPM_GETRANGE, "np"},
                               {TPM_GETPOS, TPM_SETBARCOLOR, "nn"},
                               {TPM_SETTEXTCOLOR, TPM_GETVERTICAL, "nn"},
                               {TPM_GETRANGEPTRS, TPM_GETRANGEPTRS, "pp"},
                               {TPM_SETBACKCOLOR, TPM_SETBACKCOLOR, "nn"}})},
    {kTabSheetClass, Rows({{TSM_PAGECONTEXTMENU, TSM_PAGECONTEXTMENU, "0n"}}), &OperateSheet},
    {kPropTreeClass, {{WM_COMMAND, 'i', '0'}, {WM_COMMAND, 'n', '0'}, {WM_CLOSE, '0', '0'}}},
};

class ControlStormTest : public ::testing::TestWithParam<StormKind> {
protected:
    void Round(HWND window);
    void Resize(HWND window);
    std::intptr_t Parameter(char kind);
    std::intptr_t AnyNumber();
    void* Memory();

    const StormKind& kind = GetParam();
    // Of its own in each shuffled run.
    Random random{static_cast<unsigned>(::testing::UnitTest::GetInstance()->random_seed())};
    // Floats, texts and numbers, each of them everywhere. Room behind for the longest that any message takes.
    alignas(16) std::array<char, 65536> memory{};
    TickBlock tick{};
    float size = 0.0F;
};

std::intptr_t ControlStormTest::AnyNumber() {
    switch (random() % 5) {
        case 0:
            return static_cast<std::int32_t>(random());
        case 1:
            return random() % 2 == 0 ? std::numeric_limits<std::int32_t>::max()
                                     : std::numeric_limits<std::int32_t>::min();
        case 2:
            return static_cast<std::intptr_t>(random() % 0x10000) << (random() % 2 * 16);
        default:
            return static_cast<std::intptr_t>(random() % 40) - 2;
    }
}

void* ControlStormTest::Memory() {
    if (random() % 8 == 0) return nullptr;
    char* const place = memory.data() + random() % 64 * 16;
    for (std::size_t i = 0; i < 4; ++i) {
        const float value = AnyFloat(random);
        std::memcpy(place + 4 * i, &value, sizeof value);
    }
    if (random() % 2 == 0) std::fill_n(place, random() % 300, static_cast<char>(random() % 255 + 1));
    return place;
}

std::intptr_t ControlStormTest::Parameter(char type) {
    switch (type) {
        case 'n':
            return AnyNumber();
        case 'i':
            return static_cast<std::intptr_t>(random() % 20);
        case 'm':
            return MAKELPARAM(random() % 400 - 50, random() % 300 - 50);
        case 'p':
            return reinterpret_cast<std::intptr_t>(Memory());
        case 'l':
            return static_cast<std::intptr_t>(random() % 300);
        case 'k':
            tick = {random() % 20, AnyFloat(random), static_cast<char*>(Memory()), random() % 60};
            return random() % 8 == 0 ? 0 : reinterpret_cast<std::intptr_t>(&tick);
        case 'b':
            size = static_cast<float>(random() % 1000);
            return reinterpret_cast<std::intptr_t>(&size);
        case 'f':
            return random() % 2 == 0 ? 0 : reinterpret_cast<std::intptr_t>(::GetStockObject(SYSTEM_FONT));
        default:
            return 0;
    }
}

void ControlStormTest::Resize(HWND window) {
    constexpr int kSides[] = {0, 1, 20, 90, 300, 300, 700};
    const bool isHuge = random() % 100 == 0;
    const auto side = [&] { return isHuge ? 4000 : kSides[random() % std::size(kSides)]; };
    const int width = side(), height = side();
    ::SetWindowPos(window, nullptr, 0, 0, width, height, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    if (isHuge) ::SetWindowPos(window, nullptr, 0, 0, 200, 200, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void ControlStormTest::Round(HWND window) {
    const std::size_t own = kind.messages.size();
    const std::size_t choice = random() % (own + std::size(kOfTheSystem) + 3 + (kind.operation ? 20 : 0));
    if (choice < own + std::size(kOfTheSystem)) {
        const StormMessage& chosen = choice < own ? kind.messages[choice] : kOfTheSystem[choice - own];
        const auto first = static_cast<WPARAM>(Parameter(chosen.first));
        ::SendMessageA(window, chosen.message, first, Parameter(chosen.second));
    } else if (choice == own + std::size(kOfTheSystem)) {
        Resize(window);
    } else if (choice < own + std::size(kOfTheSystem) + 3) {
        ::RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
        Pump();
    } else {
        kind.operation(window, random);
    }
}

TEST_P(ControlStormTest, NothingBreaksAndNothingIsLeft) {
    ASSERT_TRUE(RegisterControlClasses(::GetModuleHandleA(nullptr)));
    const std::size_t before = LiveGdiObjects();
    constexpr unsigned kEach = 100;
    for (unsigned storm = 0; storm < test::AttackRounds(2000 / kEach); ++storm) {
        const ShownControl shown(kind.name, 300, 200);
        // One may close itself.
        for (unsigned round = 0; round < kEach && ::IsWindow(shown.Window()) != FALSE; ++round)
            Round(shown.Window());
    }
    Pump();
    EXPECT_EQ(LiveGdiObjects(), before);
}

INSTANTIATE_TEST_SUITE_P(Each, ControlStormTest, ::testing::ValuesIn(kStormKinds),
                         [](const auto& info) { return std::string(info.param.name); });

}  // namespace
}  // namespace corvex
