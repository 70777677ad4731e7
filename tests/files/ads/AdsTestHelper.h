// Legacy definitions out of a few words.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "definition/ADXDefinition.h"
#include "files/ads/AdsReader.h"

namespace corvex {

using AdsTexts = std::vector<std::string>;

// A block of these fields.
std::string AdsBlock(const AdsTexts& fields);

// The thirteen fields of a header; `records` are the fields of its command records, all in a row.
std::string AdsHeaderBlock(const std::string& version = "1.2", const std::string& baud = "8192",
                           const std::string& count = "0", const AdsTexts& records = {});

// The nine fields of a command record.
AdsTexts AdsRecord(const std::string& name, const std::string& bytes, const std::string& total,
                   const std::string& checksum, const std::string& master = "0");

// An item with this type and number, and the fields of its class.
std::string AdsItem(int type, const std::string& number, const AdsTexts& fields, int separator = 0);

// The fields of a value of one operation, up to the offset; byte 1, 8 bits unless told.
struct AdsValueText {
    std::string operation = "0", factor = "1.0", offset = "0.0";
    std::string byte = "1", bits = "8";
    std::string alarmhigh = "255", alarmlow = "0", rangehigh = "255", rangelow = "0", table = "-1";
    AdsTexts Fields() const;
};

// The fields of a table.
AdsTexts AdsTable(const std::string& data, const std::string& size = "256", const std::string& type = "2");

// The reader's result for a text, and the definition that it makes.
struct AdsImport {
    explicit AdsImport(std::string_view text);

    // The object with that id, which must be of the class's type.
    template <class T>
    T& Get(const char* id) const {
        ADXObject* object = definition.FindById(id);
        if (object == nullptr || object->GetType() != T().GetType()) throw "no object of that id and type";
        return static_cast<T&>(*object);
    }

    AdsReader reader;
    ADXDefinition definition;
};

// A file with one of everything, small enough to be cut everywhere.
std::string WholeAdsFile();

}  // namespace corvex
