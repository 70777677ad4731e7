#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "definition/ADXBitmask.h"
#include "definition/ADXHistogram.h"
#include "tests/support/DefinitionTestHelper.h"
#include "tests/support/WrittenText.h"

namespace corvex {
namespace {

class ADXHistogramTest : public testing::Test {
protected:
    ADXHistogramTest() {
        histogram.SetCols(5);
        histogram.SetXMax(100);
        histogram.SetRows(3);
        histogram.SetYMin(-10);
        histogram.SetYMax(10);
    }

    // Adds samples to the cell of row 0 and column 0.
    void Add(std::initializer_list<float> samples) {
        for (const float z : samples) {
            histogram.AddPoint(0, -10, z);
        }
    }

    double Value(int mode) {
        char out[40] = "unchanged";
        const double value = histogram.GetCellValue(mode, 0, 0, out, sizeof out);
        text = out;
        return value;
    }

    std::int32_t Column(float x) { return histogram.AddPoint(x, 0, 1) >> 16; }

    ADXHistogram histogram;
    std::string text;
};

TEST_F(ADXHistogramTest, StartsWithItsDefaults) {
    const ADXHistogram fresh;
    EXPECT_EQ(fresh.GetType(), 0x00000080u);
    EXPECT_EQ(fresh.xidhash, 0u);
    EXPECT_EQ(fresh.yidhash, 0u);
    EXPECT_EQ(fresh.zidhash, 0u);
    EXPECT_EQ(fresh.flags, 0u);
    EXPECT_EQ(fresh.GetRows(), 0u);
    EXPECT_EQ(fresh.GetCols(), 0u);
    EXPECT_EQ(fresh.GetXMin(), 0.0F);
    EXPECT_EQ(fresh.GetXMax(), 0.0F);
    EXPECT_EQ(fresh.GetYMin(), 0.0F);
    EXPECT_EQ(fresh.GetYMax(), 0.0F);
    EXPECT_EQ(fresh.GetHistorySize(), 10u);
    EXPECT_EQ(fresh.GetTotalSampleCount(), 0u);
    EXPECT_EQ(fresh.parentcmdidhash, 0u);
    EXPECT_EQ(fresh.GetX(), nullptr);
    EXPECT_EQ(fresh.XTable().GetEntryCount(), 0u);
}

TEST_F(ADXHistogramTest, PutsBinCentresOnTheAxis) {
    const float keys[] = {0, 25, 50, 75, 100};
    ASSERT_EQ(histogram.XTable().GetEntryCount(), 5u);
    EXPECT_EQ(histogram.XTable().GetLookupMode(), 1u);
    for (std::uint32_t i = 0; i < 5; ++i) {
        float input = -1;
        float output = -1;
        histogram.XTable().GetEntry(i, &input, &output);
        EXPECT_EQ(input, keys[i]);
        EXPECT_EQ(output, static_cast<float>(i));
    }
    EXPECT_EQ(histogram.YTable().GetEntryCount(), 3u);
}

TEST_F(ADXHistogramTest, PicksTheNearestColumn) {
    EXPECT_EQ(Column(12), 0);
    EXPECT_EQ(Column(13), 1);
    EXPECT_EQ(Column(12.5F), 1);
    EXPECT_EQ(Column(1000), 4);
    EXPECT_EQ(Column(-5), 0);
}

TEST_F(ADXHistogramTest, ReturnsTheCell) {
    EXPECT_EQ(histogram.AddPoint(75, 10, 1), 3 << 16 | 2);
    EXPECT_EQ(histogram.GetSampleCount(2, 3), 1u);
    EXPECT_EQ(histogram.GetTotalSampleCount(), 1u);
}

TEST_F(ADXHistogramTest, RecordsNothingWithoutRowsOrColumns) {
    histogram.SetRows(0);
    histogram.AddPoint(0, 0, 1);
    EXPECT_EQ(histogram.GetSampleCount(0, 0), 0u);
    histogram.SetRows(3);
    histogram.SetCols(0);
    histogram.AddPoint(0, 0, 1);
    EXPECT_EQ(histogram.GetSampleCount(1, 0), 0u);
    EXPECT_EQ(Value(ADXHistogram::kCountTotal), 0.0);
    EXPECT_EQ(text, "");
}

TEST_F(ADXHistogramTest, CountsAllSamplesAndKeepsTheLastTen) {
    Add({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11});
    EXPECT_EQ(histogram.GetSampleCount(0, 0), 10u);
    float sample = 0;
    EXPECT_EQ(histogram.GetSample(0, 0, 0, &sample), 1);
    EXPECT_EQ(sample, 11.0F);
    EXPECT_EQ(histogram.GetSample(0, 0, 9, &sample), 1);
    EXPECT_EQ(sample, 2.0F);
    EXPECT_EQ(histogram.GetSample(0, 0, 10, &sample), 0);
    EXPECT_EQ(histogram.GetSample(0, 0, 0, nullptr), 0);
    EXPECT_EQ(Value(ADXHistogram::kCountKept), 10.0);
    EXPECT_EQ(Value(ADXHistogram::kCountTotal), 11.0);
    EXPECT_EQ(text, "11");
}

TEST_F(ADXHistogramTest, ShowsOneSample) {
    Add({5});
    EXPECT_EQ(Value(ADXHistogram::kLast), 5.0);
    EXPECT_EQ(text, "5");
    EXPECT_EQ(Value(ADXHistogram::kCountKept), 1.0);
    EXPECT_EQ(Value(ADXHistogram::kMeanKept), 5.0);
    EXPECT_EQ(Value(ADXHistogram::kDeviationKept), 0.0);
    EXPECT_EQ(text, "0");
    EXPECT_EQ(Value(ADXHistogram::kMinimum), std::numeric_limits<float>::max());
    EXPECT_EQ(text, "-2147483648");
    EXPECT_EQ(Value(ADXHistogram::kMaximum), 5.0);
    EXPECT_EQ(Value(ADXHistogram::kMeanTotal), 5.0);
}

TEST_F(ADXHistogramTest, ShowsOneSampleBelowZero) {
    Add({-5});
    EXPECT_EQ(Value(ADXHistogram::kMinimum), -5.0);
    EXPECT_EQ(Value(ADXHistogram::kMaximum), std::numeric_limits<float>::min());
    EXPECT_EQ(text, "0.000");
}

TEST_F(ADXHistogramTest, ShowsMeanAndDeviation) {
    Add({1, 2, 3});
    EXPECT_EQ(Value(ADXHistogram::kMeanKept), 2.0);
    EXPECT_EQ(text, "2");
    EXPECT_EQ(Value(ADXHistogram::kDeviationKept), 1.0);
    EXPECT_EQ(text, "1");
}

TEST_F(ADXHistogramTest, ShowsTheSpanOnceBothEndsAreSeeded) {
    Add({1, 2, 3});  // each sets the maximum alone
    EXPECT_EQ(Value(ADXHistogram::kMaximum), 3.0);
    EXPECT_EQ(Value(ADXHistogram::kMinimum), std::numeric_limits<float>::max());
    EXPECT_EQ(Value(ADXHistogram::kRange), -std::numeric_limits<float>::max());
    Add({2});
    EXPECT_EQ(Value(ADXHistogram::kMinimum), 2.0);
    EXPECT_EQ(Value(ADXHistogram::kRange), 1.0);
}

TEST_F(ADXHistogramTest, ShowsThreeDecimalsOfAFraction) {
    Add({1, 2});
    EXPECT_EQ(Value(ADXHistogram::kMeanKept), 1.5);
    EXPECT_EQ(text, "1.500");
}

TEST_F(ADXHistogramTest, HidesARoundingErrorInTheDeviation) {
    Add({10.0F, 10.04F});  // a variance of 0.0008
    EXPECT_EQ(Value(ADXHistogram::kDeviationKept), 0.0);
    histogram.Clear();
    Add({10.0F, 10.1F});  // 0.005
    EXPECT_GT(Value(ADXHistogram::kDeviationKept), 0.05);
}

TEST_F(ADXHistogramTest, HasNoValueForOtherModesAndEmptyCells) {
    for (int mode = -1; mode < 13; ++mode) {
        EXPECT_EQ(Value(mode), 0.0) << mode;
        EXPECT_EQ(text, "") << mode;
    }
    Add({5});
    for (const int mode : {-1, 4, 5, 6, 12}) {
        EXPECT_EQ(Value(mode), 0.0) << mode;
        EXPECT_EQ(text, "") << mode;
    }
    EXPECT_EQ(histogram.GetCellValue(ADXHistogram::kLast, 0, 0, nullptr, 40), 5.0);
    EXPECT_EQ(histogram.GetCellValue(ADXHistogram::kLast, 3, 0, nullptr, 0), 0.0);
}

TEST_F(ADXHistogramTest, KeepsTheLastAxisWhenARangeLosesItsWidth) {
    histogram.SetXMax(0);
    EXPECT_EQ(Column(1000), 4);
    EXPECT_EQ(histogram.XTable().GetEntryCount(), 5u);
}

TEST_F(ADXHistogramTest, GivesEverySampleColumnZeroWithoutAnAxis) {
    ADXHistogram fresh;
    fresh.SetRows(2);
    fresh.SetCols(2);
    EXPECT_EQ(fresh.AddPoint(1000, 1000, 1), 0);
    EXPECT_EQ(fresh.GetSampleCount(0, 0), 1u);
}

TEST_F(ADXHistogramTest, IgnoresSamplesThatAnOldAxisPlacesOutside) {
    histogram.SetXMax(0);  // the axis of five stays
    histogram.SetCols(2);
    EXPECT_EQ(Column(1000), 4);
    EXPECT_EQ(histogram.GetSampleCount(1, 4), 0u);
    EXPECT_EQ(histogram.GetTotalSampleCount(), 1u);
}

TEST_F(ADXHistogramTest, PutsEverySampleIntoTheOnlyBin) {
    histogram.SetCols(1);
    EXPECT_EQ(Column(-1000), 0);
    EXPECT_EQ(Column(1000), 0);
    EXPECT_EQ(histogram.GetSampleCount(1, 0), 2u);
}

TEST_F(ADXHistogramTest, TurnsAnAxisAround) {
    histogram.SetXMin(100);
    histogram.SetXMax(0);
    EXPECT_EQ(Column(0), 4);
    EXPECT_EQ(Column(100), 0);
}

TEST_F(ADXHistogramTest, SurvivesNumbersThatAreNone) {
    const float nan = std::numeric_limits<float>::quiet_NaN();
    const float infinity = std::numeric_limits<float>::infinity();
    EXPECT_EQ(Column(nan), 2);
    EXPECT_EQ(Column(infinity), 4);
    EXPECT_EQ(Column(-infinity), 0);
    Add({nan, infinity});
    Value(ADXHistogram::kMeanKept);
    Value(ADXHistogram::kDeviationKept);
    Value(ADXHistogram::kMeanTotal);
    Value(ADXHistogram::kLast);
    histogram.SetXMin(nan);
    EXPECT_GE(Column(5), 0);
    histogram.SetXMin(-3.4028235E38F);
    histogram.SetXMax(3.4028235E38F);
    EXPECT_GE(Column(5), 0);
}

TEST_F(ADXHistogramTest, CutsHostileSizes) {
    histogram.SetRows(0xFFFFFFFF);
    histogram.SetCols(0xFFFFFFFF);
    EXPECT_EQ(histogram.GetRows(), ADXHistogram::kAxisLimit);
    EXPECT_EQ(histogram.GetCols(), ADXHistogram::kAxisLimit);
    histogram.SetHistorySize(0xFFFFFFFF);
    EXPECT_EQ(histogram.AddPoint(1000, 1000, 1), 0x0FFF0FFF);
    EXPECT_EQ(histogram.GetSampleCount(4095, 4095), 1u);
    EXPECT_EQ(histogram.XTable().GetEntryCount(), ADXHistogram::kAxisLimit);
}

TEST_F(ADXHistogramTest, SavesSizesAsTheyWereGiven) {
    histogram.SetRows(5000);
    histogram.SetCols(0xFFFFFFFF);
    EXPECT_NE(test::WrittenText(histogram).find("<rows>5000</rows>"), std::string::npos);
    EXPECT_NE(test::WrittenText(histogram).find("<cols>4294967295</cols>"), std::string::npos);
}

TEST_F(ADXHistogramTest, ThrowsCellsAwayOnResize) {
    Add({5});
    histogram.SetRows(3);
    EXPECT_EQ(histogram.GetSampleCount(0, 0), 0u);
    EXPECT_EQ(Value(ADXHistogram::kCountTotal), 0.0);
    EXPECT_EQ(histogram.GetTotalSampleCount(), 1u);
}

TEST_F(ADXHistogramTest, ClearKeepsTheHistorySize) {
    histogram.SetHistorySize(4);
    histogram.SetHistorySize(0);
    Add({5, 6});
    histogram.Clear();
    EXPECT_EQ(histogram.GetHistorySize(), 4u);
    EXPECT_EQ(histogram.GetTotalSampleCount(), 0u);
    EXPECT_EQ(histogram.GetSampleCount(0, 0), 0u);
    EXPECT_EQ(Value(ADXHistogram::kMaximum), 0.0);
}

TEST_F(ADXHistogramTest, LosesTheHistoryAloneWithANewHistorySize) {
    Add({5});
    histogram.SetHistorySize(4);
    EXPECT_EQ(histogram.GetSampleCount(0, 0), 0u);
    EXPECT_EQ(Value(ADXHistogram::kCountTotal), 1.0);
}

TEST_F(ADXHistogramTest, TakesValuesAlone) {
    ADXValue value;
    ADXBitmask flag;
    EXPECT_EQ(histogram.SetX(&value), 1);
    EXPECT_EQ(histogram.SetX(&flag), 0);
    EXPECT_EQ(histogram.SetX(nullptr), 0);
    EXPECT_EQ(histogram.GetX(), &value);
    EXPECT_EQ(histogram.SetY(&value), 1);
    EXPECT_EQ(histogram.SetZ(&value), 1);
    EXPECT_EQ(histogram.GetY(), &value);
    EXPECT_EQ(histogram.GetZ(), &value);
}

TEST_F(ADXHistogramTest, SamplesItsThreeValues) {
    ADXDefinition definition;
    auto* x = test::AddValue(definition, "X", "X");
    auto* y = test::AddValue(definition, "Y", "X-10");
    auto* z = test::AddValue(definition, "Z", "X");
    y->packetoffset = 1;
    z->packetoffset = 2;
    z->parentcmdidhash = 7;
    histogram.SetX(x);
    histogram.SetY(y);
    histogram.SetZ(z);
    const std::uint8_t packet[] = {50, 20, 42};
    EXPECT_EQ(histogram.AddSample(definition, nullptr, 7), -1);
    EXPECT_EQ(histogram.GetTotalSampleCount(), 0u);
    EXPECT_EQ(histogram.AddSample(definition, PacketView(packet, 3), 8), 2 << 16 | 2);
    float sample = -1;
    histogram.GetSample(2, 2, 0, &sample);
    EXPECT_EQ(sample, 0.0F);  // z belongs to another command and has no word yet
    histogram.AddSample(definition, PacketView(packet, 3), 7);
    histogram.GetSample(2, 2, 0, &sample);
    EXPECT_EQ(sample, 42.0F);
}

TEST_F(ADXHistogramTest, CountsAValueThatIsNotSetAsZero) {
    ADXDefinition definition;
    const std::uint8_t packet[] = {1};
    EXPECT_EQ(histogram.AddSample(definition, PacketView(packet, 1), 0), 1);  // x 0, y 0: the middle row
}

TEST_F(ADXHistogramTest, WritesItself) {
    ADXValue x;
    x.SetId("A");
    ADXValue z;
    z.SetId("RPM");
    histogram.SetId("A");
    histogram.SetDesc("d", 1);
    histogram.flags = 1;
    histogram.parentcmdidhash = 2;
    histogram.yidhash = 0x55;
    histogram.SetX(&x);
    histogram.SetZ(&z);
    histogram.SetHistorySize(20);
    EXPECT_EQ(test::WrittenText(histogram),
              "<ADXHISTOGRAM id=\"A\" idhash=\"0x86F344BB\" title=\"\">\n"
              "    <desc>d</desc>\n"
              "    <flags>0x00000001</flags>\n"
              "    <parentcmdidhash>0x00000002</parentcmdidhash>\n"
              "    <rows>3</rows>\n"
              "    <cols>5</cols>\n"
              "    <xmin>0.000000</xmin>\n"
              "    <xmax>100.000000</xmax>\n"
              "    <ymin>-10.000000</ymin>\n"
              "    <ymax>10.000000</ymax>\n"
              "    <historysize>20</historysize>\n"
              "    <xidhash>0x86F344BB</xidhash>\n"
              "    <zidhash>0xCD0CD1DB</zidhash>\n"
              "</ADXHISTOGRAM>\n");
    EXPECT_EQ(histogram.Write(nullptr), 0);
}

}  // namespace
}  // namespace corvex
