#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "session/PortDigit.h"

namespace corvex::test {
namespace {

AppSettings AfterTyping(const std::string& typed, const char* port = "COM1") {
    AppSettings settings;
    std::strncpy(settings.comport, port, sizeof settings.comport);  // with zeros behind
    StorePortDigit(settings, typed);
    return settings;
}

TEST(PortDigitTest, ChangesTheDigitAloneAndShowsIt) {
    const struct {
        const char *port, *typed, *name, *shown;
    } rows[] = {
        {"COM1", "3", "COM3", "3"},   {"LPT1x", "2", "LPT2x", "2"},
        {"COM1", "10", "COM:", "10"},  // a larger number gives no digit, and is shown as that number
        {"COM1", "12", "COM<", "12"}, {"COM1", "99", "COM\x93", "99"},
        {"COM1", "", "COM0", "0"},  // what begins with no number is zero
        {"COM1", "x", "COM0", "0"},   {"COM1", "5x", "COM5", "5"},
        {"CO", "7", "CO", ""},  // a short name shows nothing and stays short
    };
    for (const auto& row : rows) {
        const AppSettings settings = AfterTyping(row.typed, row.port);
        EXPECT_STREQ(row.name, settings.comport) << row.typed;
        EXPECT_EQ(row.shown, PortDigitText(settings)) << row.typed;
    }
    EXPECT_EQ("1", PortDigitText(AppSettings()));
    EXPECT_STREQ("COM/", AfterTyping("-1").comport);
}

TEST(PortDigitTest, ANumberBeyondAllBoundsChangesOneByteAlone) {
    for (const char* typed : {"99999999999999999999", "-99999999999999999999"})
        EXPECT_EQ(4U, std::strlen(AfterTyping(typed).comport));
}

}  // namespace
}  // namespace corvex::test
