#include <gtest/gtest.h>

#include "controls/grid/GridTextModel.h"

namespace corvex {
namespace {

TEST(GridTextModelTest, ANumberIsDigitsWithOnePointAndASignAtTheVeryStart) {
    for (const char* const number : {"0", "12", "1.5", ".5", "5.", "-5", "+5", " 5", "\t7", "5%", "1,000"})
        EXPECT_EQ(GridTypeOf(number), GridCellType::kNumber) << number;
    for (const char* const text :
         {"", " ", ".", "-", "1.2.3", "5-3", "5-", "5+", " -5", "1 2", "5 ", "1e5", "0x1", "abc", "\xE4", "--5"})
        EXPECT_EQ(GridTypeOf(text), GridCellType::kText) << text;
    EXPECT_EQ(GridTypeOf(std::string(511, '1') + "x"), GridCellType::kNumber) << "behind where anybody looks";
    EXPECT_EQ(GridTypeOf(std::string(510, '1') + "x"), GridCellType::kText);
}

TEST(GridTextModelTest, ColumnsHaveABlankAndALetterAndThenTwo) {
    const std::pair<int, const char*> cases[] = {{1, " A"},  {26, " Z"}, {27, "AA"}, {28, "AB"},
                                                 {52, "AZ"}, {53, "BA"}, {256, "IV"}};
    for (const auto& [column, letters] : cases)
        EXPECT_EQ(GridColumnLetters(column), letters) << column;
}

TEST(GridTextModelTest, FieldsAreCutOutOfWhatSpreadsheetsAndEditorsPut) {
    using Texts = std::vector<std::string>;
    const struct {
        std::string text;
        int rows, columns;
        Texts texts;
    } cases[] = {
        {"a\tb\r\nc\td\r\n", 2, 2, {"a", "b", "c", "d"}},
        {"a\tb\nc\td", 2, 2, {"a", "b", "c", "d"}},
        {"a\tb\nc\td\n", 2, 2, {"a", "b", "c", "d"}},
        {"alone", 1, 1, {"alone"}},
        {"\r\n", 1, 1, {""}},
        {"\t\t\r\n", 1, 3, {"", "", ""}},
        {"a\r\n\r\nb\r\n", 3, 1, {"a", "", "b"}},
        {"a\tb\r\nc\r\n", 2, 1, {"a", "b"}},  // by the average
        {"a\rb", 1, 1, {"a"}},
        {std::string(300, 'x'), 1, 1, {std::string(255, 'x')}},
    };
    for (const auto& [text, rows, columns, texts] : cases) {
        const auto fields = ParseGridFields(text, 10, 10);
        ASSERT_TRUE(fields) << text;
        EXPECT_EQ(fields->rows, rows) << text;
        EXPECT_EQ(fields->columns, columns) << text;
        EXPECT_EQ(fields->texts, texts) << text;
    }
    EXPECT_FALSE(ParseGridFields("", 10, 10));
    EXPECT_FALSE(ParseGridFields("a\tb", 10, 1)) << "of two fields into one column nothing";
    EXPECT_FALSE(ParseGridFields("a\nb", 1, 10));
    EXPECT_FALSE(ParseGridFields(std::string(100000, '\n'), 32000, 256));
}

}  // namespace
}  // namespace corvex
