#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "definition/ADXBitmask.h"
#include "definition/ADXHistogram.h"
#include "tests/support/DefinitionTestHelper.h"

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
    const float nan = std::numeric_limits<float>::quiet_NaN(), infinity = std::numeric_limits<float>::infinity();
    const std::pair<float, int> cases[] = {{12.0F, 0}, {13.0F, 1}, {12.5F, 1},    {1000.0F, 4},
                                           {-5.0F, 0}, {nan, -1},  {infinity, 4}, {-infinity, 0}};
    for (const auto& [x, column] : cases)
        EXPECT_EQ(Column(x), column) << x;
    EXPECT_EQ(histogram.AddPoint(75, 10, 1), 3 << 16 | 2);
    EXPECT_EQ(histogram.GetSampleCount(2, 3), 1u);
}

TEST_F(ADXHistogramTest, ShowsEachStatisticOfACell) {
    constexpr float kLargest = std::numeric_limits<float>::max();
    const struct {
        std::initializer_list<float> samples;
        int mode;
        double value;
        const char* text;
    } cases[] = {
        {{5}, ADXHistogram::kLast, 5, "5"},
        {{5}, ADXHistogram::kCountKept, 1, "1"},
        {{5}, ADXHistogram::kMeanKept, 5, "5"},
        {{5}, ADXHistogram::kDeviationKept, 0, "0"},
        {{5}, ADXHistogram::kMinimum, kLargest, "340282346638528859811704183484516925440"},
        {{5}, ADXHistogram::kMaximum, 5, "5"},
        {{5}, ADXHistogram::kMeanTotal, 5, "5"},
        {{-5}, ADXHistogram::kMinimum, -5, "-5"},
        {{-5}, ADXHistogram::kMaximum, std::numeric_limits<float>::min(), "0.000"},
        {{1, 2, 3}, ADXHistogram::kMeanKept, 2, "2"},
        {{1, 2, 3}, ADXHistogram::kDeviationKept, 1, "1"},
        {{1, 2}, ADXHistogram::kMeanKept, 1.5, "1.500"},
        // Each sets the maximum alone, until one is below it.
        {{1, 2, 3}, ADXHistogram::kMaximum, 3, "3"},
        {{1, 2, 3}, ADXHistogram::kMinimum, kLargest, "340282346638528859811704183484516925440"},
        {{1, 2, 3}, ADXHistogram::kRange, -kLargest, "-34028234663852885981170418348451692544"},
        {{1, 2, 3, 2}, ADXHistogram::kMinimum, 2, "2"},
        {{1, 2, 3, 2}, ADXHistogram::kRange, 1, "1"},
    };
    for (const auto& one : cases) {
        SCOPED_TRACE(testing::Message() << one.mode << " of " << testing::PrintToString(one.samples));
        histogram.Clear();
        Add(one.samples);
        EXPECT_EQ(Value(one.mode), one.value);
        EXPECT_EQ(text, one.text);
    }
}

TEST_F(ADXHistogramTest, HidesARoundingErrorInTheDeviation) {
    Add({10.0F, 10.04F});  // a variance of 0.0008
    EXPECT_EQ(Value(ADXHistogram::kDeviationKept), 0.0);
    histogram.Clear();
    Add({10.0F, 10.1F});  // 0.005
    EXPECT_GT(Value(ADXHistogram::kDeviationKept), 0.05);
}

TEST_F(ADXHistogramTest, HasNoValueForOtherModesAndEmptyCells) {
    for (int mode = -1; mode < 13; ++mode)
        EXPECT_EQ(std::pair(Value(mode), text), std::pair(0.0, std::string())) << mode;
    Add({5});
    for (const int mode : {-1, 4, 5, 6, 12})
        EXPECT_EQ(std::pair(Value(mode), text), std::pair(0.0, std::string())) << mode;
    EXPECT_EQ(histogram.GetCellValue(ADXHistogram::kLast, 0, 0, nullptr, 40), 5.0);
    EXPECT_EQ(histogram.GetCellValue(ADXHistogram::kLast, 3, 0, nullptr, 0), 0.0);
}

TEST_F(ADXHistogramTest, KeepsTheLastAxisWhenARangeLosesItsWidth) {
    histogram.SetXMax(0);
    EXPECT_EQ(Column(1000), 4);
    EXPECT_EQ(histogram.XTable().GetEntryCount(), 5u);
    // Samples that it places outside are counted and kept nowhere.
    histogram.SetCols(2);
    EXPECT_EQ(Column(1000), 4);
    EXPECT_EQ(histogram.GetSampleCount(1, 4), 0u);
    EXPECT_EQ(histogram.GetTotalSampleCount(), 2u);
}

TEST_F(ADXHistogramTest, GivesEverySampleColumnZeroWithoutAnAxis) {
    ADXHistogram fresh;
    fresh.SetRows(2);
    EXPECT_EQ(fresh.AddPoint(0, 0, 1), 0);
    EXPECT_EQ(fresh.GetSampleCount(0, 0), 0u) << "there are no columns";
    fresh.SetCols(2);
    EXPECT_EQ(fresh.AddPoint(1000, 1000, 1), 0);
    EXPECT_EQ(fresh.GetSampleCount(0, 0), 1u);
}

TEST_F(ADXHistogramTest, PutsEverySampleIntoTheOnlyBinAndTurnsAnAxisAround) {
    histogram.SetXMin(100);
    histogram.SetXMax(0);
    EXPECT_EQ(Column(0), 4);
    EXPECT_EQ(Column(100), 0);
    histogram.SetCols(1);
    EXPECT_EQ(Column(-1000), 0);
    EXPECT_EQ(Column(1000), 0);
    EXPECT_EQ(histogram.GetSampleCount(1, 0), 2u);
}

TEST_F(ADXHistogramTest, SurvivesNumbersThatAreNone) {
    const float nan = std::numeric_limits<float>::quiet_NaN();
    Add({nan, std::numeric_limits<float>::infinity()});
    for (int mode = 0; mode <= ADXHistogram::kRange; ++mode)
        Value(mode);
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

TEST_F(ADXHistogramTest, CountsAllSamplesAndGivesThoseThatAreKept) {
    Add({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11});
    EXPECT_EQ(histogram.GetSampleCount(0, 0), 10u);
    float sample = 0;
    EXPECT_EQ(histogram.GetSample(0, 0, 9, &sample), 1);
    EXPECT_EQ(sample, 2.0F);
    EXPECT_EQ(histogram.GetSample(0, 0, 10, &sample), 0);
    EXPECT_EQ(histogram.GetSample(0, 0, 0, nullptr), 0);
    EXPECT_EQ(Value(ADXHistogram::kCountKept), 10.0);
    EXPECT_EQ(Value(ADXHistogram::kCountTotal), 11.0);
    EXPECT_EQ(text, "11");
}

TEST_F(ADXHistogramTest, ThrowsCellsAwayOnResizeAndClearAndTheHistoryAloneWithItsSize) {
    Add({5});
    histogram.SetHistorySize(4);
    EXPECT_EQ(histogram.GetSampleCount(0, 0), 0u);
    EXPECT_EQ(Value(ADXHistogram::kCountTotal), 1.0);
    Add({5});
    histogram.SetRows(3);
    EXPECT_EQ(histogram.GetSampleCount(0, 0), 0u);
    EXPECT_EQ(Value(ADXHistogram::kCountTotal), 0.0);
    EXPECT_EQ(histogram.GetTotalSampleCount(), 2u);
    Add({5});
    histogram.Clear();
    EXPECT_EQ(histogram.GetHistorySize(), 4u);
    EXPECT_EQ(histogram.GetTotalSampleCount(), 0u);
    EXPECT_EQ(histogram.GetSampleCount(0, 0), 0u);
    EXPECT_EQ(Value(ADXHistogram::kMaximum), 0.0);
}

TEST_F(ADXHistogramTest, TakesValuesAlone) {
    ADXValue value;
    ADXBitmask flag;
    for (const auto set : {&ADXHistogram::SetX, &ADXHistogram::SetY, &ADXHistogram::SetZ}) {
        EXPECT_EQ((histogram.*set)(&value), 1);
        EXPECT_EQ((histogram.*set)(&flag), 0);
        EXPECT_EQ((histogram.*set)(nullptr), 0);
    }
    for (const auto get : {&ADXHistogram::GetX, &ADXHistogram::GetY, &ADXHistogram::GetZ})
        EXPECT_EQ((histogram.*get)(), &value);
}

TEST_F(ADXHistogramTest, SamplesItsThreeValues) {
    ADXDefinition definition;
    const std::uint8_t packet[] = {50, 20, 42};
    EXPECT_EQ(histogram.AddSample(definition, PacketView(packet, 1), 0), 1) << "a value that is not set counts as zero";
    histogram.Clear();
    auto* x = test::AddValue(definition, "X", "X");
    auto* y = test::AddValue(definition, "Y", "X-10");
    auto* z = test::AddValue(definition, "Z", "X");
    y->packetoffset = 1;
    z->packetoffset = 2;
    z->parentcmdidhash = 7;
    histogram.SetX(x);
    histogram.SetY(y);
    histogram.SetZ(z);
    EXPECT_EQ(histogram.AddSample(definition, nullptr, 7), -1);
    EXPECT_EQ(histogram.GetTotalSampleCount(), 0u);
    // z belongs to another command and has no word yet.
    for (const auto& [command, expected] : {std::pair{8U, 0.0F}, std::pair{7U, 42.0F}}) {
        EXPECT_EQ(histogram.AddSample(definition, PacketView(packet, 3), command), 2 << 16 | 2);
        float sample = -1;
        histogram.GetSample(2, 2, 0, &sample);
        EXPECT_EQ(sample, expected);
    }
}

}  // namespace
}  // namespace corvex
