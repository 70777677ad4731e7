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
    EXPECT_EQ(EscapedText(std::string(1000, '"').c_str()).size(), 6000u);
}

TEST(WriterForms, WritesElementsInTheirFormsAndLeavesOutWhatIsZeroOrEmpty) {
    EXPECT_EQ(Written([](XMLWriter& writer) {
                  WriteElementHex8(writer, "a", 0xAB);
                  WriteElementHex2(writer, "b", 0xA);
                  WriteElementHex2(writer, "c", 0xFFFFFFFF);
                  WriteElementDec(writer, "d", 0xFFFFFFFF);
                  WriteElementTextUnlessEmpty(writer, "e", "<&>");
                  WriteElementHex8UnlessZero(writer, "f", 0);
                  WriteElementTextUnlessEmpty(writer, "g", "");
                  WriteElementTextUnlessEmpty(writer, "h", nullptr);
              }),
              "<a>0x000000AB</a>\n<b>0x0A</b>\n<c>0xFFFFFFFF</c>\n<d>4294967295</d>\n<e><&></e>\n");
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

}  // namespace
}  // namespace corvex
