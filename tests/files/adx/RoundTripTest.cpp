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

TEST(RoundTrip, RandomDefinitionsComeBackTheSame) {
    std::uint32_t objects = 0;
    for (std::uint32_t seed = 0; seed < 300; ++seed) {
        ADXDefinition definition;
        GenerateDefinition(seed, definition);
        objects += definition.GetCount();
        ADXDefinition loaded;
        SaveAndLoad(definition, loaded);
        ASSERT_EQ(FirstDifference(definition, loaded), "") << "seed " << seed;
        ASSERT_EQ(SaveTextWithoutTime(definition), SaveTextWithoutTime(loaded)) << "seed " << seed;
    }
    EXPECT_GT(objects, 300u * 12u);
}

TEST(RoundTrip, ARandomDefinitionHoldsEveryType) {
    std::uint32_t types = 0;
    ADXDefinition definition;
    GenerateDefinition(5, definition);
    for (const auto& object : definition.Objects())
        types |= object->GetType();
    EXPECT_EQ(types & ~(kTypeValue | kTypeBitmask), 0x003F03B0u);
    ADXDefinition other;
    GenerateDefinition(6, other);
    EXPECT_NE(FirstDifference(definition, other), "");
    ADXDefinition same;
    GenerateDefinition(5, same);
    EXPECT_EQ(FirstDifference(definition, same), "");
}

TEST(RoundTrip, TheComparisonSeesASingleChange) {
    ADXDefinition definition;
    GenerateDefinition(5, definition);
    const std::size_t lines = DescribeDefinition(definition).size();
    EXPECT_GT(lines, 100u);
    ADXDefinition changed;
    GenerateDefinition(5, changed);
    changed.GetObject(kTypeAny, 3)->SetTitle("another", 7);
    EXPECT_NE(FirstDifference(definition, changed), "");
}

TEST(RoundTrip, TheOrderOfObjectsIsKept) {
    ADXDefinition definition;
    ParseObjects("<ADXVALUE id='C'/><ADXMACRO id='A'/><ADXBITMASK id='D'/><ADXVALUE id='B'/>", definition);
    ADXDefinition loaded;
    SaveAndLoad(definition, loaded);
    std::string order;
    for (const auto& object : loaded.Objects())
        order += object->Id();
    EXPECT_EQ(order, "CADB");
}

std::vector<std::filesystem::path> Examples() {
    std::vector<std::filesystem::path> paths;
    for (const auto& entry : std::filesystem::directory_iterator(CORVEX_SOURCE_DIR "/examples")) {
        if (entry.path().extension() == ".adx") paths.push_back(entry.path());
    }
    return paths;
}

TEST(RoundTrip, ExamplesComeBackTheSame) {
    const auto paths = Examples();
    ASSERT_FALSE(paths.empty());
    for (const auto& path : paths) {
        ADXDefinition definition;
        char error[ADXDefinition::kErrorSize] = "";
        ASSERT_EQ(definition.Load(path.string().c_str(), error), 1) << path << ": " << error;
        EXPECT_GT(definition.GetCount(), 0u) << path;
        EXPECT_NE(definition.monitorcmd, nullptr) << path;
        ADXDefinition loaded;
        SaveAndLoad(definition, loaded);
        EXPECT_EQ(FirstDifference(definition, loaded), "") << path;
    }
}

TEST(RoundTrip, EquationsThatDoNotParseKeepTheirText) {
    ADXDefinition definition;
    ParseObjects("<ADXVALUE id='V'><MATH equation='(X+'/></ADXVALUE>", definition);
    ADXDefinition loaded;
    SaveAndLoad(definition, loaded);
    EXPECT_EQ(FirstDifference(definition, loaded), "");
    char text[16];
    Get<ADXValue>(loaded).GetEquation(text, sizeof text);
    EXPECT_STREQ(text, "(X+");
}

}  // namespace
}  // namespace corvex
