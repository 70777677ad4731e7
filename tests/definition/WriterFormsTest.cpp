#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "definition/WriterForms.h"
#include "files/xml/XMLWriter.h"

namespace corvex {
namespace {

std::string Written(const std::function<void(XMLWriter&)>& write) {
    char memory[1000];
    XMLWriter writer;
    EXPECT_EQ(writer.OpenMemory(memory, sizeof memory), 1);
    write(writer);
    writer.Close();
    return {memory, writer.MemoryLength()};
}

TEST(WriterForms, EscapesUpToALimit) {
    EXPECT_EQ(EscapedText("a<b"), "a&lt;b");
    EXPECT_EQ(EscapedText("\"\"\"", 2), "&quot;&quot;");
    EXPECT_EQ(EscapedText(nullptr), "");
    EXPECT_EQ(EscapedText(""), "");
    EXPECT_EQ(EscapedText("abc", 0), "");
}

TEST(WriterForms, EscapesTextsOfNothingButQuotes) {
    const std::string quotes(1000, '"');
    EXPECT_EQ(EscapedText(quotes.c_str()).size(), 6000u);
}

TEST(WriterForms, WritesElementsInTheirForms) {
    EXPECT_EQ(Written([](XMLWriter& writer) { WriteElementHex8(writer, "a", 0xAB); }), "<a>0x000000AB</a>\n");
    EXPECT_EQ(Written([](XMLWriter& writer) { WriteElementHex2(writer, "a", 0xA); }), "<a>0x0A</a>\n");
    EXPECT_EQ(Written([](XMLWriter& writer) { WriteElementHex2(writer, "a", 0xFFFFFFFF); }), "<a>0xFFFFFFFF</a>\n");
    EXPECT_EQ(Written([](XMLWriter& writer) { WriteElementDec(writer, "a", 0xFFFFFFFF); }), "<a>4294967295</a>\n");
    EXPECT_EQ(Written([](XMLWriter& writer) { WriteElementTextUnlessEmpty(writer, "a", "<&>"); }), "<a><&></a>\n");
}

TEST(WriterForms, WritesAttributesInTheirForms) {
    EXPECT_EQ(Written([](XMLWriter& writer) {
                  writer.StartElement("e");
                  WriteAttributeHex8(writer, "a", 0);
                  WriteAttributeDec(writer, "b", 0xFFFFFFFF);
                  WriteAttributeHex8UnlessZero(writer, "c", 0);
                  WriteAttributeHex8UnlessZero(writer, "d", 1);
                  writer.EndElement();
              }),
              "<e a=\"0x00000000\" b=\"4294967295\" d=\"0x00000001\" />\n");
}

TEST(WriterForms, LeavesOutWhatIsZeroOrEmpty) {
    EXPECT_EQ(Written([](XMLWriter& writer) {
                  WriteElementHex8UnlessZero(writer, "a", 0);
                  WriteElementTextUnlessEmpty(writer, "a", "");
                  WriteElementTextUnlessEmpty(writer, "a", nullptr);
              }),
              "");
}

}  // namespace
}  // namespace corvex
