#include <gtest/gtest.h>

#include "files/xml/SAXParser.h"
#include "tests/support/AllocationCount.h"

namespace corvex {
namespace {

class EventCounter final : public ISAXCallback {
public:
    std::size_t events = 0;
    std::int32_t StartDocument() override { return Count(); }
    std::int32_t EndDocument() override { return Count(); }
    std::int32_t StartElement(const char16_t*, std::uint32_t, const SAXAttribute*, std::uint32_t) override {
        return Count();
    }
    std::int32_t Characters(const char16_t*, std::uint32_t, std::int32_t) override { return Count(); }
    std::int32_t EndElement(const char16_t*, std::uint32_t) override { return Count(); }
    std::int32_t StartCDATA() override { return Count(); }
    std::int32_t CDATA(const char16_t*, std::uint32_t, std::int32_t) override { return Count(); }
    std::int32_t EndCDATA() override { return Count(); }
    std::int32_t Error(std::int32_t, const char*) override { return Count(); }

private:
    std::int32_t Count() {
        ++events;
        return 0;
    }
};

TEST(SAXAllocation, IsNoneDuringAParse) {
    std::string text = "<a>";
    for (int i = 0; i < 2000; ++i)
        text += "<b c='&lt;' d=\"2\">text<![CDATA[x]]></b><!-- c -->";
    EventCounter counter;
    SAXParser parser;
    parser.SetCallback(&counter);
    const std::uint64_t before = testing::AllocationCount();
    ASSERT_GT(before, 0U);
    EXPECT_EQ(parser.ParseMemory(text.data(), text.size()), 0);
    EXPECT_EQ(testing::AllocationCount(), before);
    EXPECT_EQ(counter.events, 2000 * 6 + 3U);
    EXPECT_EQ(parser.ParseMemory("<a &", 4), SAXParser::kSyntaxError);
    EXPECT_EQ(testing::AllocationCount(), before);
}

}  // namespace
}  // namespace corvex
