#include "tests/files/adx/ADXTestHelper.h"

#include "files/adx/ADXParser.h"
#include "tests/support/DefinitionCompare.h"
#include "tests/support/TestFolder.h"

namespace corvex {

ParseResult ParseText(std::string_view text, ADXDefinition& definition, IProgress* progress) {
    ADXParser parser;
    const int ok = parser.ParseMemory(text.data(), text.size(), definition, progress);
    return {ok, parser.GetError()};
}

void ParseObjects(const std::string& objects, ADXDefinition& definition) {
    const ParseResult result = ParseText(kRoot + objects, definition);
    EXPECT_EQ(result.ok, 1) << result.error;
    EXPECT_EQ(result.error, "");
}

std::string SaveText(const ADXDefinition& definition) {
    const test::TestFolder folder;
    EXPECT_EQ(definition.Save(folder.Name("saved.adx").c_str()), 1);
    return folder.Content("saved.adx");
}

void SaveAndLoad(const ADXDefinition& definition, ADXDefinition& loaded) {
    const test::TestFolder folder;
    const std::string path = folder.Name("saved.adx");
    char error[ADXDefinition::kErrorSize] = "";
    EXPECT_EQ(definition.Save(path.c_str()), 1);
    EXPECT_EQ(loaded.Load(path.c_str(), error), 1) << error;
    EXPECT_STREQ(error, "");
}

void ExpectLines(const ADXDefinition& definition, const std::vector<std::string>& lines) {
    for (const std::string& line : lines) {
        const std::string member = line.substr(0, line.find(" = "));
        EXPECT_EQ(member + " = " + DescribeMember(definition, member), line);
    }
}

void ExpectObjects(std::span<const ObjectsCase> cases) {
    for (const ObjectsCase& one : cases) {
        SCOPED_TRACE(std::string(one.behaviour) + ": " + one.objects.substr(0, 300));
        ADXDefinition definition;
        ParseObjects(one.objects, definition);
        ExpectLines(definition, one.lines);
    }
}

}  // namespace corvex
