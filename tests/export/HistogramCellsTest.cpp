#include <gtest/gtest.h>

#include <limits>

#include "export/HistogramCells.h"
#include "tests/support/DefinitionTestHelper.h"

namespace corvex::test {
namespace {

class HistogramCellsTest : public ::testing::Test {
protected:
    HistogramCellsTest() {
        histogram.SetCols(2);
        histogram.SetXMax(100);
        histogram.SetRows(3);
        histogram.SetYMax(1);
        histogram.AddPoint(0, 0, 5);
        histogram.AddPoint(100, 1, 1.25F);
    }
    static std::string NameOf(const ADXObject& object) { return object.Id(); }
    std::string Copied(int mode, const HistogramPart& part) { return HistogramClipboardText(histogram, mode, part); }

    ADXDefinition definition;
    ADXHistogram& histogram = *Add<ADXHistogram>(definition, "MAP");
};

TEST_F(HistogramCellsTest, KeysAreWholeOrHaveThreeDecimals) {
    const std::pair<float, const char*> keys[] = {{400.0F, "400"},   {29.4444F, "29.444"}, {-0.0F, "0"},
                                                  {-2.5F, "-2.500"}, {5e9F, "5000000000"}, {-3e9F, "-3000000000"}};
    for (const auto& [key, text] : keys)
        EXPECT_EQ(text, AxisKeyText(key));
}

TEST_F(HistogramCellsTest, TheTitleLeavesOutWhatIsNotSetAndKeepsTheLastVs) {
    EXPECT_EQ("MAP - ", HistogramTitle(histogram, &NameOf));
    histogram.SetX(AddValue(definition, "X", "X"));
    EXPECT_EQ("MAP - X vs ", HistogramTitle(histogram, &NameOf));
    histogram.SetZ(AddValue(definition, "Z", "X"));
    EXPECT_EQ("MAP - X vs Z", HistogramTitle(histogram, &NameOf));
    histogram.SetY(AddValue(definition, "Y", "X"));
    EXPECT_EQ("MAP - X vs Y vs Z", HistogramTitle(histogram, &NameOf));
}

TEST_F(HistogramCellsTest, ATableHasItsAxesAndAPartThoseOfThePart) {
    EXPECT_EQ("\t0\t100\r\n0\t5\t\r\n0.500\t\t\r\n1\t\t1.250\r\n", Copied(ADXHistogram::kLast, WholeOf(histogram)));
    EXPECT_EQ("\t100\r\n0.500\t\r\n1\t1\r\n", Copied(ADXHistogram::kCountTotal, {1, 3, 1, 2}));
}

TEST_F(HistogramCellsTest, AMinimumThatNothingHasSetIsWhole) {
    EXPECT_EQ("340282346638528859811704183484516925440", HistogramCellText(histogram, ADXHistogram::kMinimum, 0, 0));
}

TEST_F(HistogramCellsTest, AnAxisWithoutKeysHasEmptyHeads) {
    ADXHistogram& bare = *Add<ADXHistogram>(definition, "BARE");
    bare.SetCols(1);
    bare.SetRows(1);
    EXPECT_EQ("\t\r\n\t\r\n", HistogramClipboardText(bare, ADXHistogram::kLast, WholeOf(bare)));
}

}  // namespace
}  // namespace corvex::test
