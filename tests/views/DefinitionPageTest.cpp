// What the pages that show one object of the definition do alike.
#include <ostream>

#include "definition/ADXDashboard.h"
#include "definition/ADXHistogram.h"
#include "definition/ADXListView.h"
#include "tests/views/PageTestHelper.h"
#include "views/DashPage.h"
#include "views/HistogramPage.h"
#include "views/ItemListPage.h"
#include "views/PageResources.h"

namespace corvex::test {
namespace {

struct PageKind {
    const char* title;
    void (*create)(SessionState&);
    void (*refresh)(SessionState&);
    void* SessionState::*window;
    int combo;
    ADXObject* (*add)(ADXDefinition&, const char* id, const std::string& title);
    ADXObject* (*current)(const SessionState&);
    void (*mislead)(SessionState&);  // to an object that is none
    std::optional<SampleViewKind> samples;
};
void PrintTo(const PageKind& kind, std::ostream* out) {
    *out << kind.title;
}

template <class Object>
ADXObject* AddObject(ADXDefinition& definition, const char* id, const std::string& title) {
    return AddTitled<Object>(definition, id, title);
}

template <auto kCurrent>
ADXObject* CurrentOf(const SessionState& session) {
    return session.*kCurrent;
}

template <class Object, Object* SessionState::*kCurrent>
void Mislead(SessionState& session) {
    session.*kCurrent = reinterpret_cast<Object*>(&session);
}

const PageKind kPages[] = {
    {"Dash", &CreateDashPage, &RefreshDashPage, &SessionState::dashPage, IDC_DASH_COMBO, &AddObject<ADXDashboard>,
     &CurrentOf<&SessionState::currentDashboard>, &Mislead<ADXDashboard, &SessionState::currentDashboard>,
     SampleViewKind::kDash},
    {"Item Lists", &CreateItemListPage, &RefreshItemListPage, &SessionState::listPage, IDC_LIST_COMBO,
     &AddObject<ADXListView>, &CurrentOf<&SessionState::currentListView>,
     &Mislead<ADXListView, &SessionState::currentListView>, SampleViewKind::kList},
    {"Histograms", &CreateHistogramPage, &RefreshHistogramPage, &SessionState::histogramPage, IDC_HISTOGRAM_COMBO,
     &AddObject<ADXHistogram>, &CurrentOf<&SessionState::currentHistogram>,
     &Mislead<ADXHistogram, &SessionState::currentHistogram>, std::nullopt},
};

class DefinitionPageTest : public PageTest, public ::testing::WithParamInterface<PageKind> {
protected:
    void AddTwo() {
        first = kind.add(session.definition, "A", "Engine");
        second = kind.add(session.definition, "B", "Gearbox");
    }
    HWND Combo() const { return Item(session.*kind.window, kind.combo); }
    void ChooseRow(int row) { Choose(Page(1), kind.combo, row); }
    ADXObject* Current() const { return kind.current(session); }

    const PageKind& kind = GetParam();
    ADXObject *first = nullptr, *second = nullptr;
};

TEST_P(DefinitionPageTest, IsATabOfTheSheet) {
    kind.create(session);
    ASSERT_EQ(2, TabSheet::pageCount(sheet));
    EXPECT_EQ(kind.title, Title(1));
    EXPECT_EQ(session.*kind.window, Page(1));
}

TEST_P(DefinitionPageTest, RefreshOffersAllAndGoesBackToTheFirst) {
    kind.create(session);
    AddTwo();
    for (int i = 0; i < 2; ++i) {
        kind.refresh(session);
        EXPECT_EQ((Strings{"Engine", "Gearbox"}), Rows(Combo()));
        EXPECT_EQ(first, Current());
        EXPECT_EQ(0, ::SendMessageA(Combo(), CB_GETCURSEL, 0, 0));
        ChooseRow(1);
        EXPECT_EQ(second, Current());
    }
    ChooseRow(-1);
    EXPECT_EQ(nullptr, Current());
}

TEST_P(DefinitionPageTest, AnEmptyDefinitionShowsNone) {
    AddTwo();
    kind.create(session);
    session.definition.Clear();
    ChooseRow(1);
    EXPECT_EQ(nullptr, Current()) << "taken although it is gone";
    kind.refresh(session);
    EXPECT_EQ(nullptr, Current());
    EXPECT_TRUE(Rows(Combo()).empty());
}

TEST_P(DefinitionPageTest, LeavesItsGroundToThePaint) {
    kind.create(session);
    EXPECT_TRUE(ErasesNothing(Page(1)));
}

TEST_P(DefinitionPageTest, WantsSamplesAsTheChosenTabOfAVisibleWindow) {
    if (!kind.samples) return;
    EXPECT_FALSE(Wants(*kind.samples));
    kind.create(session);
    ShowFrame();
    EXPECT_FALSE(Wants(*kind.samples));
    TabSheet::selectPage(sheet, 1);
    EXPECT_TRUE(Wants(*kind.samples));
    ShowFrame(false);
    EXPECT_FALSE(Wants(*kind.samples));
}

TEST_P(DefinitionPageTest, ItsEndIsKnown) {
    kind.create(session);
    EndFrame();
    EXPECT_EQ(nullptr, session.*kind.window);
    if (kind.samples) {
        EXPECT_FALSE(Wants(*kind.samples));
    }
    kind.mislead(session);
    kind.refresh(session);
    EXPECT_EQ(nullptr, Current());
}

INSTANTIATE_TEST_SUITE_P(Each, DefinitionPageTest, ::testing::ValuesIn(kPages),
                         [](const auto& info) { return std::to_string(info.index); });

}  // namespace
}  // namespace corvex::test
