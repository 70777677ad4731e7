#include <gtest/gtest.h>

#include <cstdio>
#include <limits>

#include "files/xml/XMLWriter.h"
#include "tests/support/TestFolder.h"

namespace corvex {
namespace {

// What is written to memory, with LF line ends. Each call must succeed; what must not is done with the writer itself.
class Script {
public:
    Script() { EXPECT_NE(writer.OpenMemory(memory_.data(), memory_.size()), 0); }

    Script& Start(std::string_view name) { return Did(writer.StartElement(name)); }
    Script& End() { return Did(writer.EndElement()); }
    Script& Text(std::string_view text) { return Did(writer.WriteText(text)); }
    Script& Element(std::string_view name, std::string_view text) { return Did(writer.WriteElementText(name, text)); }
    Script& Comment(std::string_view text) { return Did(writer.WriteComment(text)); }
    Script& Attribute(std::string_view name, std::string_view value) { return Did(writer.WriteAttribute(name, value)); }
    std::string Written() const { return memory_.substr(0, writer.MemoryLength()); }

    XMLWriter writer;

private:
    Script& Did(int result) {
        EXPECT_EQ(result, 1);
        return *this;
    }

    std::string memory_ = std::string(100000, '#');
};

TEST(XMLWriter, LaysElementsOutByWhatTheyHold) {
    EXPECT_EQ(Script().Start("a").End().Written(), "<a />\n") << "nothing";
    EXPECT_EQ(Script().Start("a").Text("x & <y>").End().Written(), "<a>x & <y></a>\n") << "text, on its line";
    EXPECT_EQ(Script().Start("a").Start("b").Element("c", "x").Start("d").End().End().Element("e", "").End().Written(),
              "<a>\n    <b>\n        <c>x</c>\n        <d />\n    </b>\n    <e></e>\n</a>\n")
        << "children";
    EXPECT_EQ(Script().Start("a").Start("b").End().Text("x").End().Written(), "<a>\n    <b />\nx</a>\n")
        << "text behind a child";
    EXPECT_EQ(Script().Start("a").Comment("x -- y").End().Written(), "<a>\n    <!-- x -- y -->\n</a>\n")
        << "a comment, on a line of its own";
    EXPECT_EQ(Script().Start("a").Attribute("b", "1").End().Comment("c").Element("d", "1").Written(),
              "<a b=\"1\" />\n\n<!-- c -->\n<d>1</d>\n")
        << "several at the top";
}

TEST(XMLWriter, WritesAttributesUnchanged) {
    Script script;
    script.Start("a").Attribute("b", "1 & \"<'\xE9").Attribute("c", "");
    EXPECT_EQ(script.writer.WriteAttributeInt("d", -2147483647 - 1), 1);
    EXPECT_EQ(script.writer.WriteAttributeFloat("e", 1.5F), 1);
    EXPECT_EQ(script.writer.WriteAttributeFormat("f", "0x%.8X", 0xABCDU), 1);
    EXPECT_EQ(script.End().Written(),
              "<a b=\"1 & \"<'\xE9\" c=\"\" d=\"-2147483648\" e=\"1.500000\" f=\"0x0000ABCD\" />\n");
}

TEST(XMLWriter, RefusesAttributesOutsideAStartTag) {
    Script script;
    EXPECT_EQ(script.writer.WriteAttribute("x", "1"), 0);
    script.Start("a").Text("t");
    EXPECT_EQ(script.writer.WriteAttribute("x", "1"), 0);
    EXPECT_EQ(script.writer.WriteAttributeFormat("x", "%d", 1), 0);
    EXPECT_EQ(script.writer.WriteAttributeInt("x", 1), 0);
    EXPECT_EQ(script.writer.WriteAttributeFloat("x", 1), 0);
    script.End().Start("b").Comment("c");
    EXPECT_EQ(script.writer.WriteAttribute("x", "1"), 0);
    EXPECT_EQ(script.End().Written(), "<a>t</a>\n<b>\n    <!-- c -->\n</b>\n");
}

TEST(XMLWriter, CutsAFormattedValueTo255Characters) {
    for (const std::size_t length : {254U, 255U, 256U, 5000U}) {
        Script script;
        script.Start("a");
        EXPECT_EQ(script.writer.WriteAttributeFormat("b", "%s", std::string(length, 'v').c_str()), 1);
        EXPECT_EQ(script.End().Written(), "<a b=\"" + std::string(std::min<std::size_t>(length, 255), 'v') + "\" />\n");
    }
}

TEST(XMLWriter, WritesElementsWithNumbersAsPrintfDoes) {
    Script script;
    EXPECT_EQ(script.writer.WriteElementInt("a", 2147483647), 1);
    std::string expected = "<a>2147483647</a>\n";
    for (const float value : {0.0F, -0.0F, 0.5F, -0.1F, 0.0000005F, 16777216.0F, 1e10F, -2.5e-7F, 3.4028235e38F, 1e-45F,
                              -std::numeric_limits<float>::infinity()}) {
        char text[64];
        std::snprintf(text, sizeof text, "<a>%f</a>\n", static_cast<double>(value));
        expected += text;
        EXPECT_EQ(script.writer.WriteElementFloat("a", value), 1);
    }
    EXPECT_EQ(script.Written(), expected);
    EXPECT_TRUE(expected.ends_with("<a>-inf</a>\n"));
}

TEST(XMLWriter, SetsTheIndentUpTo8) {
    for (const std::uint32_t spaces : {0U, 1U, 7U, 8U, 9U, 4000000000U}) {
        Script script;
        script.writer.SetIndent(spaces);
        EXPECT_EQ(script.Start("a").Start("b").Written(), "<a>\n" + std::string(std::min(spaces, 8U), ' ') + "<b");
    }
}

TEST(XMLWriter, LeavesLineEndsOutWhenNotPretty) {
    Script script;
    script.writer.SetPretty(false);
    script.writer.SetIndent(0);
    EXPECT_EQ(script.Start("a").Element("b", "x").Comment("c").End().Written(), "<a><b>x</b><!-- c --></a>");
}

TEST(XMLWriter, StacksNamesOf255BytesInAll) {
    for (const std::size_t length : {153U, 154U}) {
        const std::string outer(100, 'o'), inner(length, 'i');
        Script script;
        script.writer.SetIndent(0);
        EXPECT_EQ(script.Start(outer).Start(inner).Start("x").End().Text("t").End().End().Written(),
                  "<" + outer + ">\n<" + inner + ">\n<x />\nt</" + inner + ">\n</" + outer + ">\n");
        EXPECT_FALSE(script.writer.Failed());
    }
}

TEST(XMLWriter, WritesANameThatDoesNotFitTheStackWithoutItsEndTag) {
    const std::string outer(200, 'o'), inner(56, 'i');
    Script script;
    script.Start(outer);
    EXPECT_EQ(script.writer.StartElement(inner), 0);
    script.Text("x").End();
    EXPECT_TRUE(script.writer.Failed());
    script.End();
    EXPECT_EQ(script.writer.EndElement(), 0);
    EXPECT_EQ(script.Written(), "<" + outer + ">\n    <" + inner + ">x</>\n</" + outer + ">\n");
}

TEST(XMLWriter, NestsDeeplyOnceTheStackIsFull) {
    Script script;
    script.writer.SetIndent(0);
    for (int i = 0; i < 300; ++i)
        EXPECT_EQ(script.writer.StartElement("n"), i < 255 ? 1 : 0);
    for (int i = 0; i < 300; ++i)
        script.End();
    EXPECT_EQ(script.writer.EndElement(), 0);
    const std::string text = script.Written();
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

TEST(XMLWriter, DoesNothingWhenNotOpenAndEndsNoElementThatIsNot) {
    XMLWriter writer;
    EXPECT_EQ(writer.StartElement("a"), 0);
    EXPECT_EQ(writer.WriteAttribute("b", "c"), 0);
    EXPECT_EQ(writer.WriteText("d"), 0);
    EXPECT_EQ(writer.WriteElementText("e", "f"), 0);
    EXPECT_EQ(writer.WriteComment("g"), 0);
    EXPECT_EQ(writer.EndElement(), 0);
    EXPECT_EQ(writer.OpenMemory(nullptr, 10), 0);
    const test::TestFolder folder;
    EXPECT_EQ(writer.Open(folder.Name("missing/a.adx").c_str()), 0);
    EXPECT_EQ(writer.StartElement("a"), 0);
    writer.Close();
    EXPECT_FALSE(writer.Failed());
    Script script;
    EXPECT_EQ(script.writer.EndElement(), 0);
    script.Start("a").End();
    EXPECT_EQ(script.writer.EndElement(), 0);
    EXPECT_FALSE(script.writer.Failed());
    EXPECT_EQ(script.Written(), "<a />\n");
}

TEST(XMLWriter, WritesAFileWithCRLFOverTheOneThatWasThere) {
    const test::TestFolder folder;
    XMLWriter writer;
    ASSERT_NE(writer.Open(folder.Put("a.adx", std::string(1000, 'o')).c_str()), 0);
    writer.StartElement("a");
    writer.WriteElementText("b", "x\ny");
    writer.WriteComment("c");
    writer.EndElement();
    writer.Close();
    EXPECT_FALSE(writer.Failed());
    EXPECT_EQ(folder.Content("a.adx"), "<a>\r\n    <b>x\ny</b>\r\n\r\n    <!-- c -->\r\n</a>\r\n");
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

}  // namespace
}  // namespace corvex
