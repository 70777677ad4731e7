// What the header shows, which commands it offers, and what it refuses.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "apps/editor/HeaderModel.h"
#include "definition/ADXCSendCommand.h"
#include "definition/ADXCTrigger.h"
#include "definition/ADXMacro.h"
#include "definition/ADXValue.h"
#include "tests/support/DefinitionTestHelper.h"

namespace corvex {
namespace {

using test::Add;
using test::AddTitled;
using test::Length;

class HeaderModelTest : public ::testing::Test {
protected:
    HeaderModelTest() {
        definition_.SetAuthor("A. Nother", 9);
        definition_.SetUserVersion("1.2", 3);
        definition_.SetDesc("one\ntwo\r\nthree\rfour", 19);
        definition_.baud = 160;
        definition_.flags = 0x81;
        value_ = Add<ADXValue>(definition_, "RPM");
        send_ = AddTitled<ADXCSendCommand>(definition_, "SEND", "Ask");
        macro_ = AddTitled<ADXMacro>(definition_, "LOOP", "Loop");
        trigger_ = Add<ADXCTrigger>(definition_, "BELL");
        definition_.monitorcmd = macro_;
    }
    static std::vector<std::string> Labels(const HeaderModel& model, HeaderCommand command) {
        std::vector<std::string> labels;
        for (const CommandChoice& choice : model.Choices(command))
            labels.push_back(choice.label);
        return labels;
    }
    static void ExpectRefused(const HeaderModel& model, const HeaderFields& fields, HeaderField field,
                              const std::string& words) {
        const auto problem = model.Validate(fields);
        ASSERT_TRUE(problem) << words;
        EXPECT_EQ(problem->field, field) << problem->message;
        EXPECT_NE(problem->message.find(words), std::string::npos) << problem->message;
    }

    ADXDefinition definition_;
    ADXObject *value_, *send_, *macro_, *trigger_;
};

TEST_F(HeaderModelTest, ShowsWhatTheDefinitionHoldsAndLeavesItByteForByte) {
    HeaderModel model(definition_);
    EXPECT_EQ(model.Fields().author, "A. Nother");
    EXPECT_EQ(model.Fields().version, "1.2");
    EXPECT_EQ(model.Fields().description, "one\r\ntwo\r\nthree\r\nfour");
    EXPECT_EQ(model.Fields().baud, "160");
    EXPECT_TRUE(model.Fields().echo);
    EXPECT_EQ(model.Fields().command[0], 0U);
    EXPECT_EQ(model.Fields().command[1], 2U);
    EXPECT_FALSE(model.Validate(model.Fields()));
    model.Apply(model.Fields());
    EXPECT_STREQ(definition_.Desc().CStr(), "one\ntwo\r\nthree\rfour");
    EXPECT_STREQ(definition_.Author().CStr(), "A. Nother");
    EXPECT_EQ(definition_.flags, 0x81U);
    EXPECT_EQ(definition_.monitorcmd, macro_);
}

TEST_F(HeaderModelTest, OffersNoneAndAllCommandsByTitleAndId) {
    AddTitled<ADXCTrigger>(definition_, "", "Nameless");
    Add<ADXCTrigger>(definition_, "");
    const HeaderModel model(definition_);
    const std::vector<std::string> expected = {"(none)", "Ask (SEND)", "Loop (LOOP)", "BELL", "Nameless", "(no title)"};
    EXPECT_EQ(Labels(model, HeaderCommand::kConnect), expected);
    EXPECT_EQ(Labels(model, HeaderCommand::kDisconnect), expected);
    EXPECT_EQ(model.ChoiceOf(HeaderCommand::kConnect, trigger_), 3U);
    EXPECT_EQ(model.ChoiceOf(HeaderCommand::kConnect, value_), 0U);
}

TEST_F(HeaderModelTest, ShowsWhatIsMissingOrNoCommandWhereItStands) {
    ADXObject ghost;
    ghost.SetId("GHOST");
    definition_.connectcmd = &ghost;
    definition_.disconnectcmd = value_;
    HeaderModel model(definition_);
    EXPECT_EQ(model.Choices(HeaderCommand::kConnect).at(1).label, "GHOST (not in this definition)");
    EXPECT_EQ(model.Choices(HeaderCommand::kDisconnect).at(1).label, "RPM (not a command)");
    EXPECT_EQ(model.Choices(HeaderCommand::kMonitor).at(1).label, "Ask (SEND)");
    EXPECT_EQ(model.Fields().command[0], 1U);
    EXPECT_EQ(model.Fields().command[2], 1U);
    EXPECT_FALSE(model.Validate(model.Fields()));
    model.Apply(model.Fields());
    EXPECT_EQ(definition_.connectcmd, &ghost);
    EXPECT_EQ(definition_.disconnectcmd, value_);
}

TEST_F(HeaderModelTest, AppliesWhatWasChanged) {
    HeaderModel model(definition_);
    HeaderFields fields = model.Fields();
    fields.author = "";
    fields.version = "2.0";
    fields.description = "all\r\nnew";
    fields.baud = " 8192 ";
    fields.echo = false;
    fields.command = {model.ChoiceOf(HeaderCommand::kConnect, send_), 0,
                      model.ChoiceOf(HeaderCommand::kDisconnect, trigger_)};
    ASSERT_FALSE(model.Validate(fields));
    model.Apply(fields);
    EXPECT_FALSE(definition_.Author().IsSet());
    EXPECT_STREQ(definition_.UserVersion().CStr(), "2.0");
    EXPECT_STREQ(definition_.Desc().CStr(), "all\r\nnew");
    EXPECT_EQ(definition_.baud, 8192U);
    EXPECT_EQ(definition_.flags, 0x80U);
    EXPECT_EQ(definition_.connectcmd, send_);
    EXPECT_EQ(definition_.monitorcmd, nullptr);
    EXPECT_EQ(definition_.disconnectcmd, trigger_);
    for (const char* blank : {"  \t ", "\r\n \r\n"}) {  // no text either
        definition_.SetDesc("old", 3);
        fields.description = blank;
        ASSERT_FALSE(model.Validate(fields));
        model.Apply(fields);
        EXPECT_FALSE(definition_.Desc().IsSet());
    }
}

TEST_F(HeaderModelTest, TakesWhatNobodyTouchedFromTheDefinitionAndNotFromAControl) {
    const HeaderModel model(definition_);
    HeaderFields shown = model.Fields();
    shown.author = "A? Nother";
    shown.version = "1,2";
    shown.description = "one two";
    HeaderFields now = shown;
    now.echo = false;
    now.baud = "9600";
    HeaderFields expected = model.Fields();
    expected.echo = false;
    expected.baud = "9600";
    EXPECT_EQ(model.Typed(shown, now), expected);

    now.author = "Somebody";
    now.description = "";
    expected.author = "Somebody";
    expected.description = "";
    EXPECT_EQ(model.Typed(shown, now), expected);
}

TEST_F(HeaderModelTest, TextsMayBeAsLongAsTheyAreReadBack) {
    const HeaderModel model(definition_);
    const struct {
        HeaderField field;
        std::string HeaderFields::*text;
        const char* name;
        std::size_t limit;
    } cases[] = {
        {HeaderField::kAuthor, &HeaderFields::author, "Author: ", 59},
        {HeaderField::kVersion, &HeaderFields::version, "Version: ", 19},
        {HeaderField::kDescription, &HeaderFields::description, "Description: ", 1023},
    };
    for (const auto& tried : cases) {
        HeaderFields fields = model.Fields();
        fields.*tried.text = std::string(tried.limit, 'x');
        EXPECT_FALSE(model.Validate(fields)) << tried.name;
        fields.*tried.text += 'x';
        const std::string words = std::string(tried.name).append(std::to_string(tried.limit + 1));
        ExpectRefused(model, fields, tried.field, words);
        fields.baud = "x";  // further down in the dialog
        ExpectRefused(model, fields, tried.field, words);
        fields.baud = "160";
        for (const char* character : {"<", "&"}) {
            fields.*tried.text = std::string("a").append(character);
            ExpectRefused(model, fields, tried.field, std::string("the character ").append(character));
        }
        for (const char* fine : {">", "\"", "'", "]]>", "\xE9\xFF", "a;b#c"}) {
            fields.*tried.text = fine;
            EXPECT_FALSE(model.Validate(fields)) << fine;
        }
    }
}

// The getters of the definition agree about the limits.
TEST_F(HeaderModelTest, TheLimitsAreThoseOfTheDefinition) {
    HeaderModel model(definition_);
    HeaderFields fields = model.Fields();
    fields.author = std::string(HeaderModel::kAuthorLength, 'a');
    fields.version = std::string(HeaderModel::kVersionLength, 'v');
    fields.description = std::string(HeaderModel::kDescriptionLength, 'd');
    model.Apply(fields);
    EXPECT_EQ(definition_.GetAuthor(nullptr, 0), HeaderModel::kAuthorLength);
    EXPECT_EQ(definition_.GetUserVersion(nullptr, 0), HeaderModel::kVersionLength);
    EXPECT_EQ(definition_.GetDesc(nullptr, 0), HeaderModel::kDescriptionLength);
    definition_.SetAuthor(std::string(HeaderModel::kAuthorLength + 1, 'a').c_str(), HeaderModel::kAuthorLength + 1);
    EXPECT_EQ(definition_.GetAuthor(nullptr, 0), 0U);
}

// Shown with line ends of two characters, it would not pass.
TEST_F(HeaderModelTest, ALongDescriptionIsMeasuredAsItIsKept) {
    std::string lines;
    while (lines.size() < 1000)
        lines += "x\n";
    definition_.SetDesc(lines.c_str(), static_cast<std::uint32_t>(lines.size()));
    const HeaderModel model(definition_);
    HeaderFields fields = model.Fields();
    EXPECT_GT(fields.description.size(), HeaderModel::kDescriptionLength);
    EXPECT_FALSE(model.Validate(fields));
    fields.description += "x";
    ExpectRefused(model, fields, HeaderField::kDescription, "Description: ");
}

TEST_F(HeaderModelTest, ABaudRateIsAWholeNumberInRange) {
    const HeaderModel model(definition_);
    HeaderFields fields = model.Fields();
    for (const char* good : {"1", "160", "8192", "1000000", "  9600", "9600\t", "0008192"}) {
        fields.baud = good;
        EXPECT_FALSE(model.Validate(fields)) << good;
    }
    for (const char* bad : {"", " ", "0", "1000001", "-1", "+1", "8192x", "81 92", "8192.0", "0x10", "4294967297",
                            "99999999999999999999", "baud"}) {
        fields.baud = bad;
        ExpectRefused(model, fields, HeaderField::kBaud, "Baud rate: enter a whole number from 1 to 1000000.");
    }
}

TEST_F(HeaderModelTest, RefusesCommandsThatTheHeaderCannotName) {
    const struct {
        ADXObject* object;
        const char* words;
    } cases[] = {{Add<ADXCTrigger>(definition_, ""), "has no id"},
                 {Add<ADXCTrigger>(definition_, "  "), "has no id"},
                 {Add<ADXCTrigger>(definition_, "A&B"), "the character & of its id"},
                 {Add<ADXCTrigger>(definition_, "ABCDEFGHIJKLMNO"), "15 characters"},
                 {Add<ADXCTrigger>(definition_, "LOOP"), "another object has the same id"}};
    ADXObject* const fits = Add<ADXCTrigger>(definition_, "NMLKJIHGFEDCBA");
    const HeaderModel model(definition_);
    for (const auto& tried : cases) {
        HeaderFields fields = model.Fields();
        fields.command[2] = model.ChoiceOf(HeaderCommand::kDisconnect, tried.object);
        ExpectRefused(model, fields, HeaderField::kDisconnect, "Disconnect command: ");
        ExpectRefused(model, fields, HeaderField::kDisconnect, tried.words);
    }
    HeaderFields fields = model.Fields();
    fields.command[0] = model.ChoiceOf(HeaderCommand::kConnect, fits);
    EXPECT_FALSE(model.Validate(fields));
    for (const std::size_t none : {std::size_t{99}, static_cast<std::size_t>(-1)}) {  // a combo box without a selection
        fields.command[0] = none;
        ExpectRefused(model, fields, HeaderField::kConnect, "Connect command: choose one");
    }
}

}  // namespace
}  // namespace corvex
