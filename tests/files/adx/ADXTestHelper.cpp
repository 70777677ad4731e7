#include "tests/files/adx/ADXTestHelper.h"

#include <gtest/gtest.h>

#include <atomic>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>

#include "files/adx/ADXParser.h"

namespace corvex {

ParseResult ParseText(std::string_view text, ADXDefinition& definition, IProgress* progress) {
    ADXParser parser;
    const int ok = parser.ParseMemory(text.data(), text.size(), definition, progress);
    return {ok, parser.GetError()};
}

void ParseObjects(const std::string& objects, ADXDefinition& definition) {
    const ParseResult result = ParseText(kRoot + objects, definition);
    EXPECT_EQ(result.ok, 1) << result.error;
    EXPECT_EQ(result.error, "");
}

bool Contains(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

TempFile::TempFile() {
    static std::atomic<unsigned> serial{0};
    static const unsigned process = std::random_device()();
    path_ = ::testing::TempDir() + "corvex_adx_" + std::to_string(process) + '_' + std::to_string(serial++) + ".adx";
}

TempFile::~TempFile() {
    std::error_code ignored;
    std::filesystem::remove(path_, ignored);
}

void TempFile::Write(std::string_view bytes) const {
    std::ofstream file(path_, std::ios::binary);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    ASSERT_TRUE(file.good()) << path_;
}

std::string TempFile::Read() const {
    std::ifstream file(path_, std::ios::binary);
    EXPECT_TRUE(file.good()) << path_;
    return {std::istreambuf_iterator<char>(file), {}};
}

std::string SaveText(const ADXDefinition& definition) {
    const TempFile file;
    EXPECT_EQ(definition.Save(file.Path()), 1);
    return file.Read();
}

std::string SaveTextWithoutTime(const ADXDefinition& definition) {
    std::string text = SaveText(definition);
    const std::size_t begin = text.find("<!-- Written ");
    const std::size_t end = text.find("-->\r\n", begin);
    if (begin == std::string::npos || end == std::string::npos) {
        ADD_FAILURE() << "no comment of the time in " << text.substr(0, 200);
        return text;
    }
    return text.erase(begin, end + 5 - begin);
}

void SaveAndLoad(const ADXDefinition& definition, ADXDefinition& loaded) {
    const TempFile file;
    char error[ADXDefinition::kErrorSize] = "";
    EXPECT_EQ(definition.Save(file.Path()), 1);
    EXPECT_EQ(loaded.Load(file.Path(), error), 1) << error;
    EXPECT_STREQ(error, "");
}

}  // namespace corvex
