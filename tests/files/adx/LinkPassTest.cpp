#include <gtest/gtest.h>

#include <random>

#include "definition/ADXCTrigger.h"
#include "definition/ADXDashboard.h"
#include "definition/ADXMacro.h"
#include "files/adx/LinkPass.h"
#include "tests/files/adx/ADXTestHelper.h"
#include "tests/support/AdxText.h"

namespace corvex {
namespace {

using test::AdxHash;

const std::string kA = AdxHash("A");

const ObjectsCase kLinks[] = {
    {"AMacroReachesALaterCommand",
     "<ADXMACRO id='M'><NODE commandID='LATER'/></ADXMACRO><ADXCTRIGGER id='LATER'/>",
     {"0 node command = object 1"}},
    {"AMacroMayNameItself", "<ADXMACRO id='M'><NODE commandID='M'/></ADXMACRO>", {"0 node command = object 0"}},
    {"IdsMindTheirCaseAndTheFirstMatchWins",
     "<ADXMACRO><NODE commandID='a'/><NODE commandID='A'/></ADXMACRO><ADXCTRIGGER id='A'/><ADXCTRIGGER id='A'/>",
     {"0 node command = none, object 1"}},
    {"AnIdOf15CharactersIsOutOfAMacrosReach",
     "<ADXMACRO><NODE commandID='ABCDEFGHIJKLMNO'/></ADXMACRO><ADXCTRIGGER id='ABCDEFGHIJKLMNO'/>",
     {"0 node command = none"}},
    {"ACommandThatWasNeverGivenIsNotLookedUp",
     "<ADXHEADER></ADXHEADER><ADXMACRO id=''><NODE/><NODE commandID=''/></ADXMACRO><ADXCTRIGGER/>",
     {"header connectcmd = none", "header monitorcmd = none", "header disconnectcmd = none",
      "0 node command = none, none"}},
    {"HeaderIdsAreHeldTo14Characters",
     "<ADXHEADER><connectcmd>ABCDEFGHIJKLMNO</connectcmd><monitorcmd>ABCDEFGHIJKLMNXYZ</monitorcmd></ADXHEADER>"
     "<ADXCTRIGGER id='ABCDEFGHIJKLMN'/>",
     {"header connectcmd = object 0", "header monitorcmd = object 0"}},
    {"HeaderCommandsMayBeAnyObject",
     "<ADXHEADER><connectcmd>V</connectcmd></ADXHEADER><ADXVALUE id='V'/>",
     {"header connectcmd = object 0"}},
    // The hash of a row that leads nowhere stays.
    {"HeadingRowsOfAListAreNotResolved",
     "<ADXVALUE id='A'/><ADXLISTVIEW><entrycount>3</entrycount><ADXLVENTRY entrytype='0' itemidhash='" + kA +
         "'/><ADXLVENTRY entrytype='1' itemidhash='" + kA + "'/><ADXLVENTRY itemidhash='0x1'/></ADXLISTVIEW>",
     {"1 row item = object 0, none, none", "1 row itemidhash = 2264089787, 2264089787, 1"}},
    {"AMonitorSeriesThatLeadsNowhereIsRemoved",
     "<ADXMONITOR><ADXMONSERIES linewidth='2' itemidhash='0x1'/><ADXMONSERIES linewidth='3' itemidhash='" + kA +
         "'/><ADXMONSERIES linewidth='4'/></ADXMONITOR><ADXVALUE id='A'/>",
     {"0 series linewidth = 3", "0 series item = object 1"}},
    {"AGaugeThatLeadsNowhereStays",
     "<ADXDASHBOARD><ADXDGENTRY itemidhash='0x1'/></ADXDASHBOARD>",
     {"0 gauge item = none"}},
    // The first object of the second hash is no table.
    {"AValueTakesALookupTableAlone",
     "<ADXVALUE><MATH lookupidhash='" + kA + "'/></ADXVALUE><ADXVALUE><MATH lookupidhash='" + AdxHash("RPM") +
         "'/></ADXVALUE><ADXLOOKUPTABLE id='A'/><ADXBITMASK id='RPM'/><ADXLOOKUPTABLE id='RPM'/>",
     {"0 lookup = object 2", "1 lookup = none", "1 lookupidhash = 3440169435"}},
    {"AHistogramTakesValuesAlone",
     "<ADXHISTOGRAM><xidhash>" + kA + "</xidhash><zidhash>" + AdxHash("V") +
         "</zidhash></ADXHISTOGRAM><ADXBITMASK id='A'/><ADXVALUE id='V'/>",
     {"0 x = none", "0 xidhash = 2264089787", "0 z = object 2"}},
    {"HashZeroIsNobodys", "<ADXVALUE/><ADXDASHBOARD><ADXDGENTRY/></ADXDASHBOARD>", {"1 gauge item = none"}},
};

TEST(LinkPass, LinksAsTold) {
    ExpectObjects(kLinks);
}

TEST(LinkPass, FindsWhatTheListItselfWouldFind) {
    std::mt19937 random(7);
    ADXDefinition definition;
    auto* const dashboard = new ADXDashboard;
    auto* const macro = new ADXMacro;
    definition.InsertAt(std::unique_ptr<ADXObject>(dashboard), 0);
    for (int i = 0; i < 400; ++i) {
        auto trigger = std::make_unique<ADXCTrigger>();
        // Few ids, so that many objects share one.
        if (random() % 10 != 0) trigger->SetId(std::to_string(random() % 150).c_str());
        definition.InsertAt(std::move(trigger), 0xFFFFFFFF);
    }
    definition.InsertAt(std::unique_ptr<ADXObject>(macro), 200);
    for (std::uint32_t i = 0; i < 200; ++i) {
        const std::string id = std::to_string(i);
        ADXDGENTRY gauge;
        gauge.itemidhash = HashId(id.data(), static_cast<std::uint32_t>(id.size()));
        dashboard->AddEntry(&gauge);
        ADXMacroNode node;
        id.copy(node.commandid, 15);
        macro->AddNode(&node);
    }
    ResolveLinks(definition, {});
    int found = 0;
    for (std::uint32_t i = 0; i < 200; ++i) {
        const ADXDGENTRY& gauge = *dashboard->GetEntry(i);
        ADXMacroNode node;
        macro->GetNode(i, &node);
        EXPECT_EQ(gauge.item, definition.FindByHash(gauge.itemidhash)) << i;
        EXPECT_EQ(node.command, definition.FindById(std::to_string(i).c_str())) << i;
        found += gauge.item != nullptr;
    }
    EXPECT_GT(found, 100);
    EXPECT_LT(found, 200);
}

}  // namespace
}  // namespace corvex
