#include "logging/LogContent.h"

#include <algorithm>
#include <filesystem>
#include <memory>
#include <string_view>
#include <system_error>

#include "logging/DataLogEngine.h"

namespace corvex {

namespace {

bool ReadAll(IFile& file, std::uint8_t* bytes, std::uint32_t count) {
    return file.Read(bytes, count).value_or(0) == count;
}

// Where the item table ends that follows a header; beyond the file's end when it is not whole.
std::uint64_t EndOfTable(IFile& file) {
    constexpr std::uint64_t kNotWhole = ~std::uint64_t{0};
    std::uint8_t word[4];
    if (!ReadAll(file, word, sizeof word)) return kNotWhole;
    const std::uint32_t count =
        word[0] | std::uint32_t{word[1]} << 8U | std::uint32_t{word[2]} << 16U | std::uint32_t{word[3]} << 24U;
    for (std::uint32_t i = 0; i < count; ++i) {
        std::uint8_t bytes[kLogItemBytes];
        std::uint8_t mask[0xFF];
        if (!ReadAll(file, bytes, kLogItemBytes)) return kNotWhole;
        const LogItemFields item = DecodeItem(bytes);
        if (!ReadAll(file, mask, item.maskLength)) return kNotWhole;
    }
    return file.Position();
}

// A recording writes its table first, then its header over zeros, and only then a record. What died in between, as on a
// full disk, is no log yet, and nothing is lost with it.
bool IsFailedStart(const std::string& path) {
    const std::unique_ptr<IFile> file = SystemFiles().Open(path, FileAccess::kRead);
    std::uint8_t header[kLogHeaderBytes];
    if (!file || !ReadAll(*file, header, kLogHeaderBytes)) return false;
    if (std::any_of(std::begin(header), std::end(header), [](std::uint8_t byte) { return byte != 0; })) return false;
    return file->Size().value_or(~std::uint64_t{0}) <= EndOfTable(*file);
}

}  // namespace

LogContent LookIntoLog(const std::string& path) {
    std::error_code unknown;
    const std::uintmax_t size = std::filesystem::file_size(path, unknown);
    if (unknown || size == 0) return LogContent::kNothing;
    DataLogEngine log;
    if (log.Open(path.c_str(), kLogForLooking) != kLogSuccess)
        return IsFailedStart(path) ? LogContent::kNothing : LogContent::kForeign;
    // It stands behind its item table, which is where the records begin, whatever a damaged header says.
    return log.FileSize() > log.Position() ? LogContent::kRecords : LogContent::kNothing;
}

bool IsLogName(const std::string& path) {
    constexpr std::string_view kExtension = ".xdl";
    if (path.size() < kExtension.size()) return false;
    return std::equal(kExtension.begin(), kExtension.end(), path.end() - kExtension.size(),
                      [](char a, char b) { return a == (b >= 'A' && b <= 'Z' ? b - 'A' + 'a' : b); });
}

bool HoldsLog(const std::string& path) {
    const LogContent content = LookIntoLog(path);
    return content == LogContent::kRecords || (content == LogContent::kForeign && IsLogName(path));
}

}  // namespace corvex
