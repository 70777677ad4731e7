#include "tests/files/ads/AdsTestHelper.h"

#include <gtest/gtest.h>

#include "files/ads/AdsConverter.h"

namespace corvex {
namespace {

AdsTexts Joined(AdsTexts first, const AdsTexts& second) {
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

}  // namespace

std::string AdsBlock(const AdsTexts& fields) {
    std::string text = "{\n";
    for (const std::string& field : fields)
        text.append("\tname\t=").append(field).append(";\n");
    return text.append("}\n");
}

std::string AdsHeaderBlock(const std::string& version, const std::string& baud, const std::string& count,
                           const AdsTexts& records) {
    return AdsBlock(Joined(
        {version, "V 1", "Title", "Author", "Engine", "1991", "T", "MASK", "Comments", baud, "0xABCD", "0x12", count},
        records));
}

AdsTexts AdsRecord(const std::string& name, const std::string& bytes, const std::string& total,
                   const std::string& checksum, const std::string& master) {
    return {name, bytes, total, checksum, "20", "3", master, "0", "-1"};
}

std::string AdsItem(int type, const std::string& number, const AdsTexts& fields, int separator) {
    return AdsBlock(Joined({std::to_string(type), "comment", std::to_string(separator), "1", number}, fields));
}

AdsTexts AdsValueText::Fields() const {
    return {byte,      "1", bits,     operation, factor,    offset,   "Title", "Units",
            alarmhigh, "1", alarmlow, "0",       rangehigh, rangelow, table};
}

AdsTexts AdsTable(const std::string& data, const std::string& size, const std::string& type) {
    return {type, size, "4", "Table", "0", "0", data};
}

AdsImport::AdsImport(std::string_view text) {
    EXPECT_EQ(reader.ReadMemory(text.data(), text.size()), 1);
    EXPECT_EQ(ConvertAds(&definition, &reader), 1);
}

std::string WholeAdsFile() {
    std::string text = "// a banner\n";
    text += AdsHeaderBlock("1.2", "8192", "2",
                           Joined(AdsRecord("One", "F4,57,01,00", "5", "1", "1"), AdsRecord("Two", "F4", "1", "0")));
    text += AdsItem(6, "1", {"1", "10", "0", ""});
    text += AdsItem(1, "10", AdsValueText{.operation = "6", .table = "40"}.Fields());
    text += AdsItem(1, "11", AdsValueText{.operation = "1", .factor = "1e2"}.Fields());
    text += AdsItem(2, "20", {"2", "1", "3", "Bit", "1", "0", "On", "Off"});
    text += AdsItem(5, "40", AdsTable("0,1\n2,5\n300,7\n", "302"));
    text += AdsItem(5, "40", AdsTable("0,1\n2,5\n", "3", "1"));
    return text;
}

}  // namespace corvex
