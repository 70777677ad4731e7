// The legacy example of the source tree, read from its file and converted.
#include <gtest/gtest.h>

#include <set>

#include "definition/ADXDefinition.h"
#include "definition/ADXValue.h"
#include "files/ads/AdsConverter.h"
#include "files/ads/AdsReader.h"

namespace corvex {
namespace {

class AdsExample : public ::testing::Test {
protected:
    AdsExample() {
        EXPECT_EQ(ReadAds(CORVEX_SOURCE_DIR "/examples/kestrel-legacy.ads", &reader), 1);
        EXPECT_EQ(ConvertAds(&definition, &reader), 1);
    }

    ADXValue& Value(const char* id) {
        ADXObject* object = definition.FindById(id);
        if (object == nullptr || object->GetType() != kTypeValue) throw "no value of that id";
        return static_cast<ADXValue&>(*object);
    }
    std::string Shown(const char* id) {
        char text[40] = "";
        Value(id).Format(text, sizeof text, definition, {packet, sizeof packet});
        return text;
    }

    AdsReader reader;
    ADXDefinition definition;
    const std::uint8_t packet[21] = {0x19, 0x00, 88, 160, 100, 0x12, 0xAB, 3, 120, 66, 65, 0x81};
};

TEST_F(AdsExample, LosesNothingButItsDash) {
    const AdsLosses& losses = reader.Losses();
    EXPECT_TRUE(losses.header);
    EXPECT_EQ(reader.Dashes().size(), 1u);
    EXPECT_EQ(losses.otheritems, 2u);
    EXPECT_EQ(losses.extracommands + losses.renumbered + losses.cutfields + losses.cuttables + losses.tablelines, 0u);
}

TEST_F(AdsExample, HasEveryOperationAndEveryType) {
    std::set<std::uint32_t> operations;
    for (const auto& value : reader.Values()) {
        if (value->bSeparator == 0) operations.insert(value->dwOperation);
    }
    EXPECT_EQ(operations, (std::set<std::uint32_t>{0, 1, 2, 3, 4, 5, 6}));
    EXPECT_EQ(reader.Bits().size(), 3u);
    EXPECT_EQ(reader.Tables().size(), 1u);
    // Three commands, a table, nine values, three bits and the view.
    EXPECT_EQ(definition.GetCount(), 17u);
}

TEST_F(AdsExample, ComputesItsValues) {
    const std::pair<const char*, double> numbers[] = {{"10", 800.0}, {"11", 88.0}, {"12", 80.0}, {"13", 1.7},
                                                      {"16", 120.0}, {"17", 66.0}, {"19", 70.0}};  // 19 by its table
    for (const auto& [id, number] : numbers)
        EXPECT_EQ(Value(id).Compute(definition, {packet, sizeof packet}), number) << id;
    EXPECT_EQ(Shown("14"), "12AB");
    EXPECT_EQ(Shown("15"), "08");
    EXPECT_EQ(Value("16").alarmhigh, 80.0F);
    EXPECT_EQ(Value("19").rangelow, -40.0F);
}

}  // namespace
}  // namespace corvex
