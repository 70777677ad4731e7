#include <gtest/gtest.h>

#include <functional>
#include <limits>

#include "files/xml/XMLWriter.h"
#include "tests/files/xml/SAXRecorder.h"
#include "tests/support/TestFolder.h"

namespace corvex {
namespace {

// What work writes to memory, with LF line ends.
std::string Written(const std::function<void(XMLWriter&)>& work) {
    std::string memory(100000, '#');
    XMLWriter writer;
    EXPECT_NE(writer.OpenMemory(memory.data(), memory.size()), 0);
    work(writer);
    memory.resize(writer.MemoryLength());
    return memory;
}

TEST(XMLWriter, ClosesAnElementWithoutContentAsEmpty) {
    EXPECT_EQ(Written([](XMLWriter& writer) {
                  EXPECT_EQ(writer.StartElement("a"), 1);
                  EXPECT_EQ(writer.EndElement(), 1);
              }),
              "<a />\n");
}

TEST(XMLWriter, ClosesAnElementWithTextOnItsLine) {
    EXPECT_EQ(Written([](XMLWriter& writer) {
                  writer.StartElement("a");
                  EXPECT_EQ(writer.WriteText("x & <y>"), 1);
                  writer.EndElement();
              }),
              "<a>x & <y></a>\n");
}

TEST(XMLWriter, IndentsChildrenAndTheClosingTag) {
    EXPECT_EQ(Written([](XMLWriter& writer) {
                  writer.StartElement("a");
                  writer.StartElement("b");
                  writer.WriteElementText("c", "x");
                  writer.StartElement("d");
                  writer.EndElement();
                  writer.EndElement();
                  writer.WriteElementText("e", "");
                  writer.EndElement();
              }),
              "<a>\n    <b>\n        <c>x</c>\n        <d />\n    </b>\n    <e></e>\n</a>\n");
}

TEST(XMLWriter, ClosesOnTheLineOfTextThatFollowsAChild) {
    EXPECT_EQ(Written([](XMLWriter& writer) {
                  writer.StartElement("a");
                  writer.StartElement("b");
                  writer.EndElement();
                  writer.WriteText("x");
                  writer.EndElement();
              }),
              "<a>\n    <b />\nx</a>\n");
}

TEST(XMLWriter, TakesSeveralTopLevelElements) {
    EXPECT_EQ(Written([](XMLWriter& writer) {
                  writer.StartElement("a");
                  writer.WriteAttributeFormat("version", "%.2f", 0.5);
                  writer.EndElement();
                  writer.WriteComment("c");
                  writer.WriteElementInt("b", 1);
              }),
              "<a version=\"0.50\" />\n\n<!-- c -->\n<b>1</b>\n");
}

TEST(XMLWriter, WritesACommentOnALineOfItsOwn) {
    EXPECT_EQ(Written([](XMLWriter& writer) {
                  writer.StartElement("a");
                  EXPECT_EQ(writer.WriteComment("x -- y"), 1);
                  EXPECT_EQ(writer.WriteAttribute("b", "1"), 0);
                  writer.EndElement();
              }),
              "<a>\n    <!-- x -- y -->\n</a>\n");
}

TEST(XMLWriter, WritesAttributesUnchanged) {
    EXPECT_EQ(Written([](XMLWriter& writer) {
                  writer.StartElement("a");
                  EXPECT_EQ(writer.WriteAttribute("b", "1 & \"<'\xE9"), 1);
                  EXPECT_EQ(writer.WriteAttribute("c", ""), 1);
                  EXPECT_EQ(writer.WriteAttributeInt("d", -2147483647 - 1), 1);
                  EXPECT_EQ(writer.WriteAttributeFloat("e", 1.5F), 1);
                  EXPECT_EQ(writer.WriteAttributeFormat("f", "0x%.8X", 0xABCDU), 1);
                  writer.EndElement();
              }),
              "<a b=\"1 & \"<'\xE9\" c=\"\" d=\"-2147483648\" e=\"1.500000\" f=\"0x0000ABCD\" />\n");
}

TEST(XMLWriter, RefusesAttributesOutsideAStartTag) {
    const std::string text = Written([](XMLWriter& writer) {
        EXPECT_EQ(writer.WriteAttribute("x", "1"), 0);
        writer.StartElement("a");
        writer.WriteText("t");
        EXPECT_EQ(writer.WriteAttribute("x", "1"), 0);
        EXPECT_EQ(writer.WriteAttributeFormat("x", "%d", 1), 0);
        EXPECT_EQ(writer.WriteAttributeInt("x", 1), 0);
        EXPECT_EQ(writer.WriteAttributeFloat("x", 1), 0);
        writer.EndElement();
        EXPECT_EQ(writer.WriteAttribute("x", "1"), 0);
    });
    EXPECT_EQ(text, "<a>t</a>\n");
}

TEST(XMLWriter, CutsAFormattedValueTo255Characters) {
    for (const std::size_t length : {254U, 255U, 256U, 5000U}) {
        const std::string value(length, 'v');
        const std::string text = Written([&](XMLWriter& writer) {
            writer.StartElement("a");
            EXPECT_EQ(writer.WriteAttributeFormat("b", "%s", value.c_str()), 1);
            writer.EndElement();
        });
        EXPECT_EQ(text, "<a b=\"" + std::string(std::min<std::size_t>(length, 255), 'v') + "\" />\n");
    }
}

TEST(XMLWriter, WritesElementsWithNumbers) {
    EXPECT_EQ(Written([](XMLWriter& writer) {
                  EXPECT_EQ(writer.WriteElementInt("a", 2147483647), 1);
                  EXPECT_EQ(writer.WriteElementFloat("b", -0.1F), 1);
                  EXPECT_EQ(writer.WriteElementText("c", "x"), 1);
              }),
              "<a>2147483647</a>\n<b>-0.100000</b>\n<c>x</c>\n");
}

TEST(XMLWriter, PrintsFloatsAsPrintfDoes) {
    for (const float value : {0.0F, -0.0F, 0.5F, 0.0000005F, 16777216.0F, 1e10F, -2.5e-7F, 3.4028235e38F, 1e-45F}) {
        char expected[64];
        std::snprintf(expected, sizeof expected, "<a>%f</a>\n", static_cast<double>(value));
        EXPECT_EQ(Written([&](XMLWriter& writer) { writer.WriteElementFloat("a", value); }), expected);
    }
    const float infinity = std::numeric_limits<float>::infinity();
    EXPECT_EQ(Written([&](XMLWriter& writer) { writer.WriteElementFloat("a", -infinity); }), "<a>-inf</a>\n");
}

TEST(XMLWriter, EndsNoElementThatIsNotOpen) {
    EXPECT_EQ(Written([](XMLWriter& writer) {
                  EXPECT_EQ(writer.EndElement(), 0);
                  writer.StartElement("a");
                  EXPECT_EQ(writer.EndElement(), 1);
                  EXPECT_EQ(writer.EndElement(), 0);
                  EXPECT_FALSE(writer.Failed());
              }),
              "<a />\n");
}

TEST(XMLWriter, SetsTheIndentUpTo8) {
    for (const std::uint32_t spaces : {0U, 1U, 7U, 8U, 9U, 4000000000U}) {
        const std::string text = Written([&](XMLWriter& writer) {
            writer.SetIndent(spaces);
            writer.StartElement("a");
            writer.StartElement("b");
        });
        EXPECT_EQ(text, "<a>\n" + std::string(std::min(spaces, 8U), ' ') + "<b");
    }
}

TEST(XMLWriter, LeavesLineEndsOutWhenNotPretty) {
    EXPECT_EQ(Written([](XMLWriter& writer) {
                  writer.SetPretty(false);
                  writer.SetIndent(0);
                  writer.StartElement("a");
                  writer.WriteElementText("b", "x");
                  writer.WriteComment("c");
                  writer.EndElement();
              }),
              "<a><b>x</b><!-- c --></a>");
}

TEST(XMLWriter, StacksNamesOf255BytesInAll) {
    for (const std::size_t length : {153U, 154U}) {
        const std::string outer(100, 'o');
        const std::string inner(length, 'i');
        const std::string text = Written([&](XMLWriter& writer) {
            writer.SetIndent(0);
            EXPECT_EQ(writer.StartElement(outer), 1);
            EXPECT_EQ(writer.StartElement(inner), 1);
            EXPECT_EQ(writer.StartElement("x"), 1);
            writer.EndElement();
            writer.WriteText("t");
            writer.EndElement();
            writer.EndElement();
            EXPECT_FALSE(writer.Failed());
        });
        EXPECT_EQ(text, "<" + outer + ">\n<" + inner + ">\n<x />\nt</" + inner + ">\n</" + outer + ">\n");
    }
}

TEST(XMLWriter, WritesANameThatDoesNotFitTheStackWithoutItsEndTag) {
    const std::string outer(200, 'o');
    const std::string inner(56, 'i');
    const std::string text = Written([&](XMLWriter& writer) {
        EXPECT_EQ(writer.StartElement(outer), 1);
        EXPECT_EQ(writer.StartElement(inner), 0);
        writer.WriteText("x");
        EXPECT_EQ(writer.EndElement(), 1);
        EXPECT_TRUE(writer.Failed());
        EXPECT_EQ(writer.EndElement(), 1);
        EXPECT_EQ(writer.EndElement(), 0);
    });
    EXPECT_EQ(text, "<" + outer + ">\n    <" + inner + ">x</>\n</" + outer + ">\n");
}

TEST(XMLWriter, NestsDeeplyOnceTheStackIsFull) {
    const std::string text = Written([](XMLWriter& writer) {
        writer.SetIndent(0);
        for (int i = 0; i < 300; ++i)
            EXPECT_EQ(writer.StartElement("n"), i < 255 ? 1 : 0);
        for (int i = 0; i < 300; ++i)
            EXPECT_EQ(writer.EndElement(), 1);
        EXPECT_EQ(writer.EndElement(), 0);
    });
    EXPECT_TRUE(text.ends_with("</n>\n</n>\n"));
    EXPECT_NE(text.find("</>\n</n>\n"), std::string::npos);
}

TEST(XMLWriter, StaysInsideTheCallersMemory) {
    const std::string whole = "<a>\n    <b>x</b>\n</a>\n";
    for (std::size_t size = 0; size <= whole.size() + 1; ++size) {
        std::string memory(size + 8, '#');
        XMLWriter writer;
        ASSERT_NE(writer.OpenMemory(memory.data(), size), 0);
        EXPECT_EQ(writer.StartElement("a"), 1);
        EXPECT_EQ(writer.WriteElementText("b", "x"), 1);
        EXPECT_EQ(writer.EndElement(), 1);
        writer.Close();
        const std::size_t kept = std::min(size, whole.size());
        EXPECT_EQ(writer.MemoryLength(), kept);
        EXPECT_EQ(memory, whole.substr(0, kept) + std::string(size + 8 - kept, '#'));
        EXPECT_EQ(writer.Failed(), size < whole.size()) << size;
    }
}

TEST(XMLWriter, DoesNothingWhenNotOpen) {
    XMLWriter writer;
    EXPECT_EQ(writer.StartElement("a"), 0);
    EXPECT_EQ(writer.WriteAttribute("b", "c"), 0);
    EXPECT_EQ(writer.WriteText("d"), 0);
    EXPECT_EQ(writer.WriteElementText("e", "f"), 0);
    EXPECT_EQ(writer.WriteComment("g"), 0);
    EXPECT_EQ(writer.EndElement(), 0);
    EXPECT_EQ(writer.OpenMemory(nullptr, 10), 0);
    writer.Close();
    EXPECT_FALSE(writer.Failed());
}

TEST(XMLWriter, WritesAFileWithCRLF) {
    const test::TestFolder folder;
    XMLWriter writer;
    ASSERT_NE(writer.Open(folder.Name("a.adx").c_str()), 0);
    writer.StartElement("a");
    writer.WriteElementText("b", "x\ny");
    writer.WriteComment("c");
    writer.EndElement();
    writer.Close();
    EXPECT_FALSE(writer.Failed());
    EXPECT_EQ(folder.Content("a.adx"), "<a>\r\n    <b>x\ny</b>\r\n\r\n    <!-- c -->\r\n</a>\r\n");
}

TEST(XMLWriter, TruncatesTheFileThatWasThere) {
    const test::TestFolder folder;
    const std::string path = folder.Put("a.adx", std::string(100000, 'o'));
    XMLWriter writer;
    ASSERT_NE(writer.Open(path.c_str()), 0);
    writer.Close();
    EXPECT_EQ(folder.Content("a.adx"), "");
}

TEST(XMLWriter, WritesWholeBlocksAndTheRestAtClose) {
    const test::TestFolder folder;
    const std::string path = folder.Name("a.adx");
    for (const std::size_t length : {16383U, 16384U, 16385U, 32767U, 32768U, 32769U, 100000U}) {
        std::string text(length, '\0');
        for (std::size_t i = 0; i < length; ++i)
            text[i] = static_cast<char>('a' + i % 23);
        XMLWriter writer;
        ASSERT_NE(writer.Open(path.c_str()), 0);
        // In two writes, so that the second meets a buffer partly filled.
        writer.WriteText(std::string_view(text).substr(0, 10000));
        EXPECT_EQ(std::filesystem::file_size(path), 0U);
        writer.WriteText(std::string_view(text).substr(10000));
        EXPECT_EQ(std::filesystem::file_size(path), length / 16384 * 16384) << length;
        writer.Close();
        EXPECT_FALSE(writer.Failed());
        EXPECT_EQ(folder.Content("a.adx"), text);
    }
}

TEST(XMLWriter, ClosesTwiceAndOpensAnew) {
    const test::TestFolder folder;
    XMLWriter writer;
    ASSERT_NE(writer.Open(folder.Name("a.adx").c_str()), 0);
    writer.SetIndent(2);
    writer.StartElement("left-open");
    writer.Close();
    writer.Close();
    EXPECT_EQ(writer.StartElement("a"), 0);
    EXPECT_EQ(folder.Content("a.adx"), "<left-open");
    ASSERT_NE(writer.Open(folder.Name("b.adx").c_str()), 0);
    writer.StartElement("a");
    writer.StartElement("b");
    writer.Close();
    EXPECT_EQ(folder.Content("b.adx"), "<a>\r\n    <b");
}

TEST(XMLWriter, ClosesWhatIsLeftOpenWithTheObject) {
    const test::TestFolder folder;
    {
        XMLWriter writer;
        ASSERT_NE(writer.Open(folder.Name("a.adx").c_str()), 0);
        writer.WriteElementInt("a", 7);
    }
    EXPECT_EQ(folder.Content("a.adx"), "<a>7</a>\r\n");
    EXPECT_TRUE(std::filesystem::remove(folder.Name("a.adx")));
}

TEST(XMLWriter, TellsAFileThatDoesNotOpen) {
    const test::TestFolder folder;
    XMLWriter writer;
    EXPECT_EQ(writer.Open(folder.Name("missing/a.adx").c_str()), 0);
    EXPECT_EQ(writer.StartElement("a"), 0);
}

TEST(XMLWriter, TellsOfAFullDisk) {
    // A device that is always full, where there is one.
    const char* full = "/dev/full";
    if (!std::filesystem::exists(full)) return;
    XMLWriter writer;
    ASSERT_NE(writer.Open(full), 0);
    EXPECT_EQ(writer.WriteElementText("a", "x"), 1);
    EXPECT_FALSE(writer.Failed());
    writer.Close();
    EXPECT_TRUE(writer.Failed());
    ASSERT_NE(writer.Open(full), 0);
    EXPECT_EQ(writer.WriteElementText("a", std::string(20000, 'x')), 1);
    EXPECT_TRUE(writer.Failed());
}

TEST(XMLWriter, WritesWhatTheParserReads) {
    const test::TestFolder folder;
    const std::string path = folder.Name("a.adx");
    char escaped[64];
    XMLWriter::Escape("<\"fuel\" & 'air'>", 64, escaped, 59);
    XMLWriter writer;
    ASSERT_NE(writer.Open(path.c_str()), 0);
    writer.StartElement("a");
    writer.WriteAttribute("title", escaped);
    writer.WriteComment("skipped");
    writer.WriteElementText("desc", escaped);
    writer.EndElement();
    writer.Close();
    SAXRecorder recorder;
    SAXParser parser;
    parser.SetCallback(&recorder);
    EXPECT_EQ(parser.ParseFile(path.c_str()), 0);
    EXPECT_EQ(recorder.events, (Events{"document", "<a title=[<\"fuel\" & 'air'>]", "<desc", "text0 <\"fuel\" & 'air'>",
                                       "/desc", "/a", "end"}));
}

}  // namespace
}  // namespace corvex
