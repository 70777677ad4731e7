#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "session/PortDigit.h"

namespace corvex::test {
namespace {

std::string After(const std::string& typed, const char* port = "COM1") {
    AppSettings settings;
    std::strcpy(settings.comport, port);
    StorePortDigit(settings, typed);
    return settings.comport;
}

TEST(PortDigitTest, ShowsTheDigitOfTheName) {
    AppSettings settings;
    EXPECT_EQ("1", PortDigitText(settings));
    settings.comport[3] = '9';
    EXPECT_EQ("9", PortDigitText(settings));
}

TEST(PortDigitTest, ChangesTheDigitAlone) {
    EXPECT_EQ("COM3", After("3"));
    EXPECT_EQ("COM9", After("9", "COM1"));
    EXPECT_EQ("LPT2x", After("2", "LPT1x"));
}

TEST(PortDigitTest, ALargerNumberGivesNoDigit) {
    EXPECT_EQ("COM:", After("10"));
    EXPECT_EQ("COM<", After("12"));
    EXPECT_EQ(std::string("COM") + static_cast<char>('0' + 99), After("99"));
}

TEST(PortDigitTest, WhatALargerNumberGaveIsShownAsThatNumber) {
    for (const char* typed : {"10", "12", "99"}) {
        AppSettings settings;
        StorePortDigit(settings, typed);
        EXPECT_EQ(typed, PortDigitText(settings));
    }
}

TEST(PortDigitTest, WhatBeginsWithNoNumberIsZero) {
    EXPECT_EQ("COM0", After(""));
    EXPECT_EQ("COM0", After("x"));
    EXPECT_EQ("COM5", After("5x"));
    EXPECT_EQ("COM/", After("-1"));
}

TEST(PortDigitTest, ANumberBeyondAllBoundsChangesOneByteAlone) {
    EXPECT_EQ(4U, After("99999999999999999999").size());
    EXPECT_EQ(4U, After("-99999999999999999999").size());
}

TEST(PortDigitTest, AShortNameShowsNothingAndStaysShort) {
    AppSettings settings;
    std::memset(settings.comport, 0, sizeof settings.comport);
    std::strcpy(settings.comport, "CO");
    EXPECT_EQ("", PortDigitText(settings));
    StorePortDigit(settings, "7");
    EXPECT_STREQ("CO", settings.comport);
}

}  // namespace
}  // namespace corvex::test
