#include <gtest/gtest.h>

#include <random>

#include "definition/ADXBitmask.h"
#include "definition/ADXCTrigger.h"
#include "definition/ADXDashboard.h"
#include "definition/ADXHistogram.h"
#include "definition/ADXListView.h"
#include "definition/ADXLookupTable.h"
#include "definition/ADXMacro.h"
#include "definition/ADXMonitor.h"
#include "definition/ADXValue.h"
#include "files/adx/LinkPass.h"
#include "tests/files/adx/ADXTestHelper.h"

namespace corvex {
namespace {

const ADXObject* NodeCommand(const ADXMacro& macro, std::uint32_t index) {
    ADXMacroNode node;
    macro.GetNode(index, &node);
    return node.command;
}

TEST(LinkPass, AMacroReachesALaterCommand) {
    ADXDefinition definition;
    ParseObjects("<ADXMACRO id='M'><NODE commandID='LATER'/></ADXMACRO><ADXCTRIGGER id='LATER'/>", definition);
    EXPECT_EQ(NodeCommand(Get<ADXMacro>(definition), 0), definition.GetObject(kTypeAny, 1));
}

TEST(LinkPass, AMacroMayNameItself) {
    ADXDefinition definition;
    ParseObjects("<ADXMACRO id='M'><NODE commandID='M'/></ADXMACRO>", definition);
    EXPECT_EQ(NodeCommand(Get<ADXMacro>(definition), 0), definition.GetObject(kTypeAny, 0));
}

TEST(LinkPass, IdsMindTheirCaseAndTheFirstMatchWins) {
    ADXDefinition definition;
    ParseObjects(
        "<ADXMACRO><NODE commandID='a'/><NODE commandID='A'/></ADXMACRO><ADXCTRIGGER id='A'/><ADXCTRIGGER id='A'/>",
        definition);
    EXPECT_EQ(NodeCommand(Get<ADXMacro>(definition), 0), nullptr);
    EXPECT_EQ(NodeCommand(Get<ADXMacro>(definition), 1), definition.GetObject(kTypeAny, 1));
}

TEST(LinkPass, AnIdOf15CharactersIsOutOfAMacrosReach) {
    ADXDefinition definition;
    ParseObjects("<ADXMACRO><NODE commandID='ABCDEFGHIJKLMNO'/></ADXMACRO><ADXCTRIGGER id='ABCDEFGHIJKLMNO'/>",
                 definition);
    EXPECT_EQ(NodeCommand(Get<ADXMacro>(definition), 0), nullptr);
}

TEST(LinkPass, ACommandThatWasNeverGivenIsNotLookedUp) {
    ADXDefinition definition;
    ParseObjects("<ADXHEADER></ADXHEADER><ADXMACRO id=''><NODE/><NODE commandID=''/></ADXMACRO><ADXCTRIGGER/>",
                 definition);
    EXPECT_EQ(definition.connectcmd, nullptr);
    EXPECT_EQ(definition.monitorcmd, nullptr);
    EXPECT_EQ(definition.disconnectcmd, nullptr);
    EXPECT_EQ(NodeCommand(Get<ADXMacro>(definition), 0), nullptr);
    EXPECT_EQ(NodeCommand(Get<ADXMacro>(definition), 1), nullptr);
}

TEST(LinkPass, HeaderIdsAreHeldTo14Characters) {
    ADXDefinition definition;
    ParseObjects(
        "<ADXHEADER><connectcmd>ABCDEFGHIJKLMNO</connectcmd><monitorcmd>ABCDEFGHIJKLMNXYZ</monitorcmd></ADXHEADER>"
        "<ADXCTRIGGER id='ABCDEFGHIJKLMN'/>",
        definition);
    EXPECT_EQ(definition.connectcmd, definition.GetObject(kTypeAny, 0));
    EXPECT_EQ(definition.monitorcmd, definition.GetObject(kTypeAny, 0));
}

TEST(LinkPass, HeaderCommandsMayBeAnyObject) {
    ADXDefinition definition;
    ParseObjects("<ADXHEADER><connectcmd>V</connectcmd></ADXHEADER><ADXVALUE id='V'/>", definition);
    EXPECT_EQ(definition.connectcmd, definition.GetObject(kTypeAny, 0));
}

TEST(LinkPass, HeadingRowsOfAListAreNotResolved) {
    ADXDefinition definition;
    ParseObjects(
        "<ADXVALUE id='A'/><ADXLISTVIEW><entrycount>3</entrycount><ADXLVENTRY entrytype='0' itemidhash='0x86F344BB'/>"
        "<ADXLVENTRY entrytype='1' itemidhash='0x86F344BB'/><ADXLVENTRY entrytype='0' itemidhash='0x1'/></ADXLISTVIEW>",
        definition);
    const auto& view = Get<ADXListView>(definition, 1);
    EXPECT_EQ(view.GetEntry(0)->item, definition.GetObject(kTypeAny, 0));
    EXPECT_EQ(view.GetEntry(1)->item, nullptr);
    EXPECT_EQ(view.GetEntry(2)->item, nullptr);
    EXPECT_EQ(view.GetEntry(2)->itemidhash, 1u) << "the hash of a row that leads nowhere stays";
}

TEST(LinkPass, AMonitorSeriesThatLeadsNowhereIsRemoved) {
    ADXDefinition definition;
    ParseObjects(
        "<ADXMONITOR><ADXMONSERIES linewidth='2' itemidhash='0x1'/><ADXMONSERIES linewidth='3' "
        "itemidhash='0x86F344BB'/><ADXMONSERIES linewidth='4'/></ADXMONITOR><ADXVALUE id='A'/>",
        definition);
    const auto& monitor = Get<ADXMonitor>(definition);
    ASSERT_EQ(monitor.GetEntryCount(), 1u);
    EXPECT_EQ(monitor.GetEntry(0)->linewidth, 3);
}

TEST(LinkPass, AGaugeThatLeadsNowhereStays) {
    ADXDefinition definition;
    ParseObjects("<ADXDASHBOARD><ADXDGENTRY itemidhash='0x1'/></ADXDASHBOARD>", definition);
    ASSERT_EQ(Get<ADXDashboard>(definition).GetEntryCount(), 1u);
    EXPECT_EQ(Get<ADXDashboard>(definition).GetEntry(0)->item, nullptr);
}

TEST(LinkPass, AValueTakesALookupTableAlone) {
    ADXDefinition definition;
    ParseObjects(
        "<ADXVALUE><MATH lookupidhash='0x86F344BB'/></ADXVALUE><ADXVALUE><MATH lookupidhash='0xCD0CD1DB'/></ADXVALUE>"
        "<ADXLOOKUPTABLE id='A'/><ADXBITMASK id='RPM'/><ADXLOOKUPTABLE id='RPM'/>",
        definition);
    EXPECT_EQ(Get<ADXValue>(definition, 0).lookup, definition.GetObject(kTypeAny, 2));
    EXPECT_EQ(Get<ADXValue>(definition, 1).lookup, nullptr) << "the first object of the hash is no table";
    EXPECT_EQ(Get<ADXValue>(definition, 1).lookupidhash, 0xCD0CD1DBu);
}

TEST(LinkPass, AHistogramTakesValuesAlone) {
    ADXDefinition definition;
    ParseObjects("<ADXHISTOGRAM><xidhash>0x86F344BB</xidhash></ADXHISTOGRAM><ADXBITMASK id='A'/>", definition);
    EXPECT_EQ(Get<ADXHistogram>(definition).GetX(), nullptr);
    EXPECT_EQ(Get<ADXHistogram>(definition).xidhash, 0x86F344BBu);
}

TEST(LinkPass, HashZeroIsNobodys) {
    ADXDefinition definition;
    ParseObjects("<ADXVALUE/><ADXDASHBOARD><ADXDGENTRY/></ADXDASHBOARD>", definition);
    EXPECT_EQ(Get<ADXDashboard>(definition, 1).GetEntry(0)->item, nullptr);
}

TEST(LinkPass, FindsWhatTheListItselfWouldFind) {
    std::mt19937 random(7);
    ADXDefinition definition;
    ADXDashboard* dashboard = nullptr;
    ADXMacro* macro = nullptr;
    for (int i = 0; i < 400; ++i) {
        // Few ids, so that many objects share one.
        const std::string id = std::to_string(random() % 150);
        std::unique_ptr<ADXObject> object;
        if (i % 100 == 0) {
            auto made = std::make_unique<ADXDashboard>();
            dashboard = made.get();
            object = std::move(made);
        } else if (i % 100 == 50) {
            auto made = std::make_unique<ADXMacro>();
            macro = made.get();
            object = std::move(made);
        } else {
            object = std::make_unique<ADXCTrigger>();
        }
        if (random() % 10 != 0) object->SetId(id.c_str());
        definition.InsertAt(std::move(object), 0xFFFFFFFF);
    }
    for (std::uint32_t i = 0; i < 200; ++i) {
        ADXDGENTRY gauge;
        gauge.itemidhash = HashId(std::to_string(i).data(), static_cast<std::uint32_t>(std::to_string(i).size()));
        dashboard->AddEntry(&gauge);
        ADXMacroNode node;
        std::to_string(i).copy(node.commandid, 15);
        macro->AddNode(&node);
    }
    ResolveLinks(definition, {});
    int found = 0;
    for (std::uint32_t i = 0; i < 200; ++i) {
        const ADXDGENTRY& gauge = *dashboard->GetEntry(i);
        EXPECT_EQ(gauge.item, definition.FindByHash(gauge.itemidhash)) << i;
        EXPECT_EQ(NodeCommand(*macro, i), definition.FindById(std::to_string(i).c_str())) << i;
        found += gauge.item != nullptr;
    }
    EXPECT_GT(found, 100);
    EXPECT_LT(found, 200);
}

}  // namespace
}  // namespace corvex
