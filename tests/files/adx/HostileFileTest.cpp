// Files that are cut, damaged or made to do harm end in a result.
#include <gtest/gtest.h>

#include <random>
#include <string>

#include "definition/ADXMacro.h"
#include "tests/files/adx/ADXTestHelper.h"
#include "tests/support/DefinitionGenerator.h"

namespace corvex {
namespace {

// A whole file of every type, small enough to be cut everywhere.
std::string WholeFile() {
    ADXDefinition definition;
    GenerateDefinition(11, definition);
    return SaveText(definition);
}

void ExpectResult(std::string_view bytes) {
    ADXDefinition definition;
    const ParseResult result = ParseText(bytes, definition);
    ASSERT_TRUE(result.ok == 0 || result.error.empty());
    ASSERT_LT(result.error.size(), std::size_t{ADXDefinition::kErrorSize});
}

TEST(HostileFile, AFileCutAtAnyLengthEndsInAResult) {
    const std::string text = WholeFile();
    std::size_t failures = 0;
    for (std::size_t length = 0; length < text.size(); length += length < 4000 ? 1 : 7) {
        ADXDefinition definition;
        const ParseResult result = ParseText(std::string_view(text).substr(0, length), definition);
        ASSERT_TRUE(result.ok == 1 || definition.connectcmd == nullptr) << length;
        failures += result.ok == 0;
    }
    EXPECT_GT(failures, text.size() / 20);
}

TEST(HostileFile, DamagedBytesEndInAResult) {
    const std::string whole = WholeFile();
    std::mt19937 random(3);
    for (int i = 0; i < 400; ++i) {
        std::string text = whole;
        for (std::size_t n = 1 + random() % 20; n > 0; --n) {
            text[random() % text.size()] = static_cast<char>(random());
        }
        ExpectResult(text);
    }
}

TEST(HostileFile, ShuffledElementsEndInAResult) {
    const std::string text = WholeFile();
    std::vector<std::string> lines;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = std::min(text.find('\n', at), text.size() - 1);
        lines.push_back(text.substr(at, end + 1 - at));
        at = end + 1;
    }
    std::mt19937 random(4);
    for (int i = 0; i < 100; ++i) {
        std::string shuffled = kRoot;
        for (std::size_t n = 0; n < lines.size(); ++n)
            shuffled += lines[random() % lines.size()];
        ExpectResult(shuffled);
    }
}

TEST(HostileFile, DeepNestingKeepsOneObject) {
    std::string text = kRoot;
    for (int i = 0; i < 20000; ++i)
        text += "<ADXVALUE><ADXLISTVIEW><entrycount>255</entrycount>";
    ADXDefinition definition;
    EXPECT_EQ(ParseText(text, definition).ok, 1);
    EXPECT_EQ(definition.GetCount(), 0u);
}

TEST(HostileFile, ManyObjectsAndLinksLoad) {
    std::string text = kRoot;
    for (int i = 0; i < 20000; ++i) {
        const std::string id = std::to_string(i);
        text += "<ADXMACRO id='" + id + "'><NODE commandID='" + id + "'/><NODE commandID='none'/></ADXMACRO>";
    }
    ADXDefinition definition;
    ASSERT_EQ(ParseText(text, definition).ok, 1);
    ASSERT_EQ(definition.GetCount(), 20000u);
    ADXMacroNode node;
    Get<ADXMacro>(definition, 19999).GetNode(0, &node);
    EXPECT_EQ(node.command, definition.GetObject(kTypeAny, 19999));
}

}  // namespace
}  // namespace corvex
