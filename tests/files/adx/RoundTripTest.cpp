// What is saved and loaded again is the same definition.
#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "definition/ADXValue.h"
#include "tests/files/adx/ADXTestHelper.h"
#include "tests/support/DefinitionCompare.h"
#include "tests/support/DefinitionGenerator.h"

namespace corvex {
namespace {

// All but the root and the time.
std::string SavedObjects(const ADXDefinition& definition) {
    const std::string text = SaveText(definition);
    return text.substr(text.find("-->"));
}

TEST(RoundTrip, RandomDefinitionsComeBackTheSame) {
    std::uint32_t objects = 0;
    for (std::uint32_t seed = 0; seed < 300; ++seed) {
        ADXDefinition definition, loaded;
        GenerateDefinition(seed, definition);
        objects += definition.GetCount();
        SaveAndLoad(definition, loaded);
        ASSERT_EQ(FirstDifference(definition, loaded), "") << "seed " << seed;
        ASSERT_EQ(SavedObjects(definition), SavedObjects(loaded)) << "seed " << seed;
    }
    EXPECT_GT(objects, 300u * 12u);
}

TEST(RoundTrip, ARandomDefinitionHoldsEveryTypeAndTheComparisonSeesASingleChange) {
    std::uint32_t types = 0;
    ADXDefinition definition, other, same;
    GenerateDefinition(5, definition);
    GenerateDefinition(6, other);
    GenerateDefinition(5, same);
    for (const auto& object : definition.Objects())
        types |= object->GetType();
    EXPECT_EQ(types & ~(kTypeValue | kTypeBitmask), 0x003F03B0u);
    EXPECT_GT(DescribeDefinition(definition).size(), 100u);
    EXPECT_NE(FirstDifference(definition, other), "");
    EXPECT_EQ(FirstDifference(definition, same), "");
    same.GetObject(kTypeAny, 3)->SetTitle("another", 7);
    EXPECT_NE(FirstDifference(definition, same), "");
}

TEST(RoundTrip, ExamplesComeBackTheSame) {
    std::uint32_t objects = 0;
    for (const auto& entry : std::filesystem::directory_iterator(CORVEX_SOURCE_DIR "/examples")) {
        const std::filesystem::path& path = entry.path();
        if (path.extension() != ".adx") continue;
        ADXDefinition definition, loaded;
        char error[ADXDefinition::kErrorSize] = "";
        ASSERT_EQ(definition.Load(path.string().c_str(), error), 1) << path << ": " << error;
        EXPECT_NE(definition.monitorcmd, nullptr) << path;
        objects += definition.GetCount();
        SaveAndLoad(definition, loaded);
        EXPECT_EQ(FirstDifference(definition, loaded), "") << path;
    }
    EXPECT_GT(objects, 30u);
}

}  // namespace
}  // namespace corvex
