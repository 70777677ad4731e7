#include <gtest/gtest.h>

#include <string>

#include "definition/ADXBitmask.h"
#include "definition/ADXCSendCommand.h"
#include "definition/ADXDefinition.h"
#include "definition/ADXMacro.h"
#include "definition/ADXValue.h"
#include "tests/support/DefinitionCompare.h"
#include "tests/support/DefinitionTestHelper.h"
#include "tests/support/Listed.h"

namespace corvex {
namespace {

std::string Order(const ADXDefinition& definition) {
    std::string ids;
    for (const auto& object : definition.Objects()) {
        ids += object->Id();
    }
    return ids;
}

std::unique_ptr<ADXObject> Named(const char* id) {
    auto object = std::make_unique<ADXValue>();
    object->SetId(id);
    return object;
}

TEST(ADXDefinition, ClearPutsEverythingBack) {
    ADXDefinition definition;
    test::Add<ADXMacro>(definition, "A");
    definition.flags = 1;
    definition.baud = 160;
    definition.connectcmd = definition.monitorcmd = definition.disconnectcmd = definition.GetObject(kTypeAny, 0);
    definition.SetAuthor("Me", 2);
    definition.SetDesc("It", 2);
    definition.SetUserVersion("1", 1);
    definition.Clear();
    EXPECT_EQ(FirstDifference(definition, ADXDefinition()), "");
}

TEST(ADXDefinitionTexts, MeasureNothingFromTheirLimitOn) {
    ADXDefinition definition;
    const std::string text(2000, 'x');
    for (const std::uint32_t past : {0u, 1u}) {
        definition.SetUserVersion(text.c_str(), 19 + past);
        definition.SetAuthor(text.c_str(), 59 + past);
        definition.SetDesc(text.c_str(), 1023 + past);
        EXPECT_EQ(definition.GetUserVersion(nullptr, 0), past == 0 ? 19u : 0u);
        EXPECT_EQ(definition.GetAuthor(nullptr, 0), past == 0 ? 59u : 0u);
        EXPECT_EQ(definition.GetDesc(nullptr, 0), past == 0 ? 1023u : 0u);
    }
    char out[100] = "old";
    EXPECT_EQ(definition.GetAuthor(out, sizeof out), 1u) << "one byte of an author of 60 characters";
    EXPECT_STREQ(out, "");
    EXPECT_EQ(out[1], 'l');
    EXPECT_EQ(definition.Author().Length(), 60u);
}

TEST(ADXDefinitionTexts, CountTheTerminatorWhenSet) {
    ADXDefinition definition;
    definition.SetAuthor("", 5);
    definition.SetDesc("text", 0);
    definition.SetUserVersion(nullptr, 5);
    char out[20] = "old";
    EXPECT_EQ(definition.GetAuthor(out, sizeof out), 0u);
    EXPECT_STREQ(out, "");
    EXPECT_FALSE(definition.Author().IsSet() || definition.Desc().IsSet() || definition.UserVersion().IsSet());
    definition.SetAuthor("Somebody", 8);
    EXPECT_EQ(definition.GetAuthor(out, sizeof out), 9u);
    EXPECT_STREQ(out, "Somebody");
    EXPECT_EQ(definition.GetAuthor(out, 5), 5u);
    EXPECT_STREQ(out, "Some");
}

TEST(ADXDefinitionGetObject, CountsTheObjectsOfTheMask) {
    ADXDefinition definition;
    EXPECT_EQ(definition.GetObject(kTypeAny, 0), nullptr);
    ADXObject* first = test::Add<ADXValue>(definition, "A");
    ADXObject* command = test::Add<ADXCSendCommand>(definition, "B");
    ADXObject* second = test::Add<ADXValue>(definition, "C");
    ADXObject* flag = test::Add<ADXBitmask>(definition, "D");
    const struct {
        std::uint32_t mask, n;
        const ADXObject* object;
    } cases[] = {{kTypeValue, 0, first}, {kTypeValue, 1, second},  {kTypeValue, 2, nullptr},
                 {0x0000004C, 2, flag},  {0x00120000, 0, command}, {0, 0, nullptr},
                 {kTypeAny, 3, flag},    {kTypeAny, 4, nullptr},   {kTypeAny, 0xFFFFFFFF, nullptr}};
    for (const auto& one : cases)
        EXPECT_EQ(definition.GetObject(one.mask, one.n), one.object) << one.mask << ", " << one.n;
}

TEST(ADXDefinitionFind, ComparesIdsAndHashesExactlyAndTakesTheFirst) {
    ADXDefinition definition;
    EXPECT_EQ(definition.FindById("RPM"), nullptr);
    test::Add<ADXValue>(definition, nullptr);  // never got an id
    EXPECT_EQ(definition.FindById(""), nullptr);
    ADXObject* first = test::Add<ADXValue>(definition, "RPM");
    test::Add<ADXValue>(definition, "RPM");
    ADXObject* empty = test::Add<ADXValue>(definition, "");
    ADXObject* longest = test::Add<ADXValue>(definition, "ABCDEFGHIJKLMNO");
    const std::pair<const char*, const ADXObject*> cases[] = {
        {"RPM", first},
        {"rpm", nullptr},
        {"RPMX", nullptr},
        {nullptr, nullptr},
        {"", empty},
        // The copy of an id of 15 characters is 14 long, and that is what it answers to.
        {"ABCDEFGHIJKLMNO", nullptr},
        {"ABCDEFGHIJKLMN", longest},
    };
    for (const auto& [id, object] : cases)
        EXPECT_EQ(definition.FindById(id), object) << (id != nullptr ? id : "null");
    for (const bool indexed : {false, true}) {
        if (indexed) definition.IndexHashes();
        EXPECT_EQ(definition.FindByHash(HashId("ABCDEFGHIJKLMNO", 15)), longest) << indexed;
        EXPECT_EQ(definition.FindByHash(HashId("RPM", 3)), first) << indexed;
        EXPECT_EQ(definition.FindByHash(1), nullptr) << indexed;
        EXPECT_EQ(definition.FindByHash(0), nullptr) << "nobody's hash";
    }
    // What comes later is found as well, by the front and by the end.
    for (const ADXObject* const key : {static_cast<const ADXObject*>(nullptr), ADXDefinition::kAppend}) {
        definition.IndexHashes();
        auto late = std::make_unique<ADXValue>();
        late->SetId(key == nullptr ? "FRONT" : "END");
        const ADXObject* const added = late.get();
        definition.InsertAfter(std::move(late), key);
        EXPECT_EQ(definition.FindByHash(added->GetIdHash()), added);
    }
    definition.IndexHashes();
    definition.Clear();
    EXPECT_EQ(definition.FindByHash(HashId("RPM", 3)), nullptr);
}

TEST(ADXDefinitionFindValueByType, ComparesBothHalves) {
    ADXDefinition definition;
    auto* other = test::Add<ADXValue>(definition, "A");
    auto* value = test::Add<ADXValue>(definition, "B");
    EXPECT_EQ(definition.FindValueByType(0), nullptr);
    other->unittype = value->unittype = 2;
    value->datatype = 0x8001;
    EXPECT_EQ(definition.FindValueByType(0x80010002), value);
    EXPECT_EQ(definition.FindValueByType(0x00000002), other);
    EXPECT_EQ(definition.FindValueByType(0x00028001), nullptr);
}

TEST(ADXDefinitionIsHashUnique, LooksAtAllOthers) {
    ADXDefinition definition;
    EXPECT_EQ(definition.IsHashUnique(nullptr, 0x86F344BB), 1);
    ADXObject* first = test::Add<ADXValue>(definition, "A");
    EXPECT_EQ(definition.IsHashUnique(nullptr, 0x86F344BB), 0);
    EXPECT_EQ(definition.IsHashUnique(nullptr, 5), 1);
    EXPECT_EQ(definition.IsHashUnique(first, 5), 1);
    test::Add<ADXValue>(definition, "A");
    EXPECT_EQ(definition.IsHashUnique(first, 5), 0);
}

TEST(ADXDefinitionUpdateValues, CapturesWhatBelongsToTheCommandOrToAny) {
    ADXDefinition definition;
    auto* any = test::AddValue(definition, "A", "X");
    auto* own = test::AddValue(definition, "B", "X");
    auto* other = test::AddValue(definition, "C", "X");
    auto* flag = test::Add<ADXBitmask>(definition, "D");
    own->parentcmdidhash = flag->parentcmdidhash = 7;
    own->packetoffset = flag->packetoffset = 1;
    other->parentcmdidhash = 8;
    const std::uint8_t packet[] = {0x11, 0x22};
    definition.UpdateValues(PacketView(packet, 2), 7);
    // Fields outside the packet are left alone.
    definition.UpdateValues(PacketView(packet, 1), 7);
    definition.UpdateValues(nullptr, 7);
    EXPECT_EQ(test::Listed(any->GetRaw(nullptr), own->GetRaw(nullptr), flag->GetRaw(nullptr), other->GetRaw(nullptr)),
              test::Listed(0x11, 0x22, 0x22, 0));
}

TEST(ADXDefinitionInsert, PlacesByKeyAndByIndexAndAppendsWhereThereIsNone) {
    ADXDefinition definition;
    EXPECT_EQ(definition.InsertAfter(nullptr, nullptr), 0);
    EXPECT_EQ(definition.InsertAt(nullptr, 0), 0);
    EXPECT_EQ(definition.InsertAfter(Named("A"), ADXDefinition::kAppend), 1);
    definition.InsertAfter(Named("B"), ADXDefinition::kAppend);
    definition.InsertAfter(Named("F"), nullptr);
    definition.InsertAfter(Named("M"), definition.FindById("A"));
    const ADXValue stranger;
    definition.InsertAfter(Named("S"), &stranger);
    EXPECT_EQ(Order(definition), "FAMBS");
    EXPECT_EQ(definition.InsertAt(Named("1"), 0), 1);
    definition.InsertAt(Named("2"), 0xFFFFFFFF);
    definition.InsertAt(Named("3"), 1);
    definition.InsertAt(Named("4"), 7);
    EXPECT_EQ(Order(definition), "13FAMBS42");
}

}  // namespace
}  // namespace corvex
