#include <gtest/gtest.h>

#include <string>

#include "definition/ADXDefinition.h"
#include "files/adx/ADXParser.h"

namespace corvex {
namespace {

// One word for each thing that it is told: "3 field units=V".
class ReadNotes final : public IReadObserver {
public:
    void ElementRead(const ADXElement& element, ElementUse use) override {
        const char* const uses[] = {"format", "header", "object", "field", "none"};
        text += std::to_string(element.Line()) + ' ' + uses[static_cast<int>(use)] + ' ' + std::string(element.Name());
        if (!element.Text().empty()) text += '=' + std::string(element.Text());
        if (element.IsTextCut()) text += " cut";
        for (const auto& [name, value] : element.Attributes())
            text += ' ' + name + ':' + (value.size() < 20 ? value : std::to_string(value.size()));
        text += element.IsAttributeCut() ? " cut\n" : "\n";
    }
    void HeaderEnded() override { text += "end of header\n"; }
    void ObjectEnded(const ADXObject& object) override { text += std::string("end of ") + object.Id() + '\n'; }

    std::string text;
};

std::string NotesOf(const std::string& text) {
    ReadNotes notes;
    ADXDefinition definition;
    ADXParser parser;
    parser.SetObserver(&notes);
    parser.ParseMemory(text.data(), text.size(), definition);
    return notes.text;
}

TEST(ReadObserverTest, HearsOfEachElementWhatItMeansAndWhereItStands) {
    EXPECT_EQ(NotesOf("<ADXFORMAT version='1'/>\n<what/>\n<ADXHEADER><baud>160</baud>\n<baut/></ADXHEADER>\n"
                      "<ADXVALUE\nid='A'><units>V</units>\n<unit a='1' b='2'/></ADXVALUE><units/>"),
              "1 format ADXFORMAT version:1\n2 none what\n3 header ADXHEADER\n3 field baud=160\n4 none baut\n"
              "end of header\n6 object ADXVALUE id:A\n6 field units=V\n7 none unit a:1 b:2\nend of A\n7 none units\n");
}

TEST(ReadObserverTest, KnowsWhatIsWrittenForOtherReadersOnly) {
    for (const char* element : {"ADXLOOKUPTABLE", "ADXDASHBOARD", "ADXMONITOR"}) {
        const std::string name = element;
        EXPECT_NE(NotesOf("<" + name + " id='A'><entrycount>1</entrycount></" + name + ">").find("field entrycount"),
                  std::string::npos)
            << name;
    }
}

TEST(ReadObserverTest, HearsOfTextsThatAreCut) {
    const std::string half(600, 'd');
    EXPECT_EQ(NotesOf("<a>" + half + "<!---->" + half + "</a>"), "1 none a=" + half + " cut\n");
    EXPECT_EQ(NotesOf("<a>" + half + "</a><b/>"), "1 none a=" + half + "\n1 none b\n");
    EXPECT_EQ(NotesOf("<a b='" + std::string(256, 'x') + "'/><a b=''/>"), "1 none a b:255 cut\n1 none a b:\n");
}

TEST(ReadObserverTest, ErrorsHaveTheirPlace) {
    const struct {
        const char* text;
        std::uint32_t line;
        std::optional<std::uint32_t> column;
    } cases[] = {
        {"<ADXFORMAT version='1'/>", 0, std::nullopt},
        {"<ADXFORMAT version='0.1'/>\n<ADXFORMAT version='1'/>", 1, std::nullopt},
        {"<ADXFORMAT version='0.1'/>\n<a b=c>", 2, 6},
    };
    for (const auto& tried : cases) {
        ADXDefinition definition;
        ADXParser parser;
        parser.ParseMemory(tried.text, std::string(tried.text).size(), definition);
        EXPECT_EQ(parser.GetErrorPlace().line, tried.line) << tried.text;
        EXPECT_EQ(parser.GetErrorPlace().column, tried.column) << tried.text;
    }
    ADXDefinition definition;
    ADXParser parser;
    EXPECT_EQ(parser.Parse("no such file", definition), 0);
    EXPECT_EQ(parser.GetErrorPlace().line, 0U);
}

}  // namespace
}  // namespace corvex
