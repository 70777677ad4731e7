#include "session/RecordingItems.h"
#include "tests/session/SessionTestHelper.h"
#include "tests/support/Listed.h"

namespace corvex::test {
namespace {

TEST(RecordingItemsTest, TakesEachCommandThatBringsAReply) {
    ADXDefinition definition;
    Add<ADXValue>(definition, "VALUE");
    auto* first = AddSend(definition, "FIRST", {1}, 63);
    first->packetoffset = 3;
    first->packetsize = 60;
    AddSend(definition, "SILENT", {2}, 9)->flags = 0xFFFFFFFE;
    auto* listen = Add<ADXC160BaudListen>(definition, "LISTEN");
    listen->packetsize = 20;
    Add<ADXCTrigger>(definition, "TRIGGER");
    Add<ADXCListenSilence>(definition, "SILENCE");
    AddMacro(definition, "MACRO", {first});
    auto* last = AddSend(definition, "LAST", {3}, 200);
    last->flags = 3;

    DataLogEngine log;
    AddRecordingItems(log, definition);
    ASSERT_EQ(3U, log.ItemCount());
    const ADXObject* const objects[] = {first, listen, last};
    const std::uint32_t types[] = {0x20000, 0x100000, 0x20000}, sizes[] = {63, 20, 200};
    for (std::uint32_t i = 0; i < 3; ++i) {
        const LogItem& item = *log.GetItem(i);
        EXPECT_EQ(Listed(objects[i]->GetIdHash(), types[i], sizes[i], sizes[i]),
                  Listed(item.commandId, item.type, item.packedSize, item.fullSize));
        EXPECT_EQ(Bytes(15, 0xFF), item.mask.Bytes());
    }
}

}  // namespace
}  // namespace corvex::test
