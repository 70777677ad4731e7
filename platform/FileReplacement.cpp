#include "platform/FileReplacement.h"

#include <charconv>
#include <cstdint>
#include <filesystem>
#include <string_view>
#include <system_error>
#include <vector>

#include "platform/RunningProcess.h"

namespace corvex {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view kEnd = ".new";

// The number in "NUMBER.new"; false for any other text.
bool ReadOwner(std::string_view text, std::uint32_t* owner) {
    if (!text.ends_with(kEnd)) return false;
    text.remove_suffix(kEnd.size());
    const auto [rest, error] = std::from_chars(text.data(), text.data() + text.size(), *owner);
    return error == std::errc() && rest == text.data() + text.size();
}

// What a fresh name begins with, up to its maker's number.
std::string_view BeginningOf(std::string_view fresh) {
    fresh.remove_suffix(kEnd.size());
    const std::size_t last = fresh.find_last_not_of("0123456789");
    return fresh.substr(0, last == std::string_view::npos ? 0 : last + 1);
}

std::vector<fs::path> AbandonedLike(const fs::path& beginning) {
    std::vector<fs::path> found;
    const std::string name = beginning.filename().string();
    const fs::path folder = beginning.has_parent_path() ? beginning.parent_path() : fs::path(".");
    std::error_code failed;
    for (fs::directory_iterator entry(folder, failed), end; !failed && entry != end; entry.increment(failed)) {
        const std::string other = entry->path().filename().string();
        std::uint32_t owner = 0;
        if (!other.starts_with(name) || !ReadOwner(std::string_view(other).substr(name.size()), &owner)) continue;
        std::error_code unknown;
        if (entry->is_regular_file(unknown) && !ProcessRuns(owner)) found.push_back(entry->path());
    }
    return found;
}

}  // namespace

void SweepAbandoned(const std::string& path, const std::function<bool(const std::string&)>& mayGo) {
    const std::string fresh = FreshNameFor(path);
    if (fresh.empty()) return;
    const fs::path beginning(BeginningOf(fresh));
    // A name of a number alone, as beside a path of the greatest length, might be anybody's.
    if (!beginning.has_filename()) return;
    for (const fs::path& file : AbandonedLike(beginning)) {
        std::error_code ignored;
        if (!mayGo || mayGo(file.string())) fs::remove(file, ignored);
    }
}

}  // namespace corvex
