// What the elements of an object say in other forms than those that are saved. Every member in its saved form is read
// by RoundTripTest.
#include <gtest/gtest.h>

#include <string>

#include "files/adx/ObjectReader.h"
#include "tests/files/adx/ADXTestHelper.h"

namespace corvex {
namespace {

const ObjectsCase kReadObjects[] = {
    {"TheHeadersTextsResolveEntities",
     "<ADXHEADER><author>Me &amp; you</author></ADXHEADER>",
     {"header author = \"Me & you\""}},
    {"TheHashIsTheIdsWhateverTheFileSays", "<ADXVALUE id='RPM' idhash='0x12345678'/>", {"0 idhash = 3440169435"}},
    {"AValueOfNothingHasItsDefaults",
     "<ADXVALUE></ADXVALUE>",
     {"0 idhash = 0", "0 sizeinbits = 8", "0 outputtype = 3", "0 digcount = 2", "0 rangehigh = 255",
      "0 alarmhigh = 255"}},
    {"TheLowHalfOfAUnitTypeCounts", "<ADXVALUE><unittype>70000</unittype></ADXVALUE>", {"0 unittype = 4464"}},
    {"ALookupThatIsNotThereKeepsItsHash",
     "<ADXVALUE><MATH equation='A' lookupidhash='0x5'/></ADXVALUE>",
     {"0 lookupidhash = 5", "0 lookup = none"}},
    {"ARangeKeepsTheEndThatIsNotGiven",
     "<ADXVALUE><range low='3'/><alarms high='4'/></ADXVALUE>",
     {"0 rangelow = 3", "0 rangehigh = 255", "0 alarmlow = 0", "0 alarmhigh = 4"}},
    {"AVariableBeforeItsEquationIsLost",
     "<ADXVALUE><VAR varID='X' type='link' linkIDHash='1'/><MATH equation='X'/></ADXVALUE>",
     {"0 var = X 0 0"}},
    {"TheKindOfAVariableMindsItsCase",
     "<ADXVALUE><MATH equation='X'><VAR varID='X' type='LINK'/></MATH></ADXVALUE>",
     {"0 var = X 0 0"}},
    {"VariablesWithoutALetterAreIgnored",
     "<ADXVALUE><MATH equation='X'><VAR/><VAR varID=''/><VAR varID='Y' type='link'/></MATH></ADXVALUE>",
     {"0 var = X 0 0"}},
    {"TheOperationOfABitmaskMindsItsCase",
     "<ADXBITMASK><bitop>XOR</bitop><bitop>and</bitop></ADXBITMASK>",
     {"0 bitop = 1"}},
    {"RowsOfNumbersAreSortedAndALaterKeyReplacesItsLike",
     "<ADXLOOKUPTABLE><outputtype>3</outputtype><lookupmode>2</lookupmode><entrycount>77</entrycount>"
     "<tableentry input='20' output='2.5'/><tableentry input='10' output='1'/><tableentry input='20' output='3'/>"
     "<tableentry/></ADXLOOKUPTABLE>",
     {"0 lookupmode = 2", "0 entries = 3", "0 input = 0, 10, 20", "0 output = 0, 1, 3"}},
    // Texts can't be interpolated.
    {"RowsOfEmptyTextAreRefused",
     "<ADXLOOKUPTABLE><outputtype>5</outputtype><tableentry input='1' output='one'/><tableentry input='2'/>"
     "<tableentry input='3' output=''/></ADXLOOKUPTABLE>",
     {"0 lookupmode = 1", "0 entries = 1", "0 output text = one"}},
    {"RowsAreReadAsTheOutputTypeSaysAtTheirPlace",
     "<ADXLOOKUPTABLE><tableentry input='1' output='7'/><outputtype>5</outputtype></ADXLOOKUPTABLE>",
     {"0 output text = 7.000000"}},
    {"RowsOfAListFillItsSlotsByPosition",
     "<ADXLISTVIEW><entrycount>3</entrycount><ADXLVENTRY entrytype='1' title='Head &quot;' color='00FF0000'/>"
     "<ADXLVENTRY entrytype='0' itemidhash='0x86F344BB'/></ADXLISTVIEW><ADXVALUE id='A'/>",
     {"0 row entrytype = 1, 0, 0", "0 row title = Head \", , ", "0 row color = 16711680, 0, 0",
      "0 row item = none, object 1, none"}},
    {"EachListCountsItsRowsFromZero",
     "<ADXLISTVIEW><entrycount>1</entrycount><ADXLVENTRY color='7'/></ADXLISTVIEW>"
     "<ADXLISTVIEW><entrycount>1</entrycount><ADXLVENTRY color='7'/></ADXLISTVIEW>",
     {"1 row color = 7"}},
    {"AHostileEntryCountIsIgnored",
     "<ADXLISTVIEW><entrycount>4294967295</entrycount><ADXLVENTRY/></ADXLISTVIEW>"
     "<ADXLISTVIEW><entrycount>256</entrycount></ADXLISTVIEW><ADXLISTVIEW><entrycount>-1</entrycount></ADXLISTVIEW>",
     {"0 entries = 0", "1 entries = 0", "2 entries = 0"}},
    {"AGaugeOfNothingCoversThePage",
     "<ADXDASHBOARD><ADXDGENTRY/></ADXDASHBOARD>",
     {"0 gauge left = 0", "0 gauge right = 100", "0 gauge bottom = 100", "0 gauge item = none"}},
    {"ASeriesOfAnItemAloneHasALineOfOne",
     "<ADXMONITOR><ADXMONSERIES itemidhash='0x86F344BB'/></ADXMONITOR><ADXVALUE id='A'/>",
     {"0 series linewidth = 1", "0 series item = object 1"}},
};

TEST(ObjectReader, ReadsAsTold) {
    ExpectObjects(kReadObjects);
}

}  // namespace
}  // namespace corvex
