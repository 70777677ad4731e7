#pragma once

#include <chrono>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <string_view>

namespace corvex {

// A folder of its own for one test, gone with the object.
class TempFolder {
public:
    TempFolder() {
        std::random_device seed;
        do {
            const auto tick = std::chrono::steady_clock::now().time_since_epoch().count();
            path_ = std::filesystem::temp_directory_path() /
                    ("corvex_xml_" + std::to_string(seed()) + "_" + std::to_string(tick));
        } while (!std::filesystem::create_directory(path_));
    }
    ~TempFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    std::string Path(std::string_view name) const { return (path_ / name).string(); }
    std::string Write(std::string_view name, std::string_view bytes) const {
        std::ofstream(path_ / name, std::ios::binary) << bytes;
        return Path(name);
    }
    std::string Read(std::string_view name) const {
        std::ifstream in(path_ / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(in), {}};
    }

private:
    std::filesystem::path path_;
};

}  // namespace corvex
