// A folder of a test's own, and a program that seems to lie in it.
#pragma once

#include <atomic>
#include <chrono>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <system_error>

#include "platform/ProgramPlace.h"

namespace corvex::test {

// Gone with all that is in it when the test ends.
class TestFolder {
public:
    TestFolder() {
        static std::atomic<int> number{0};
        // The same tests of other builds may run at this moment: the one that makes it has it.
        do {
            const auto stamp = std::chrono::steady_clock::now().time_since_epoch().count();
            const std::string name = "corvex_" + std::to_string(stamp) + "_" + std::to_string(++number);
            path_ = std::filesystem::temp_directory_path() / name;
        } while (!std::filesystem::create_directory(path_));
    }
    ~TestFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    TestFolder(const TestFolder&) = delete;
    TestFolder& operator=(const TestFolder&) = delete;

    const std::filesystem::path& Path() const { return path_; }
    std::string Name(const std::string& file) const { return (path_ / file).string(); }
    bool Has(const std::string& file) const { return std::filesystem::exists(path_ / file); }
    // Every byte as it is. The file's whole name.
    std::string Put(const std::string& file, const std::string& bytes) const {
        std::ofstream(path_ / file, std::ios::binary) << bytes;
        return Name(file);
    }
    std::string Content(const std::string& file) const {
        std::ifstream opened(path_ / file, std::ios::binary);
        return {std::istreambuf_iterator<char>(opened), {}};
    }
    std::size_t FileCount() const {
        return static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator(path_), {}));
    }

private:
    std::filesystem::path path_;
};

// Where the test says.
class FixedProgramPlace final : public IProgramPlace {
public:
    FixedProgramPlace() = default;
    explicit FixedProgramPlace(const TestFolder& folder) : file(folder.Name("corvex.exe")) {}

    std::string FileName(void* module) override { return module == nullptr ? file : moduleFile; }
    char Separator() override { return separator; }
    ScreenSize Screen() override { return screen; }

    std::string file, moduleFile;
    char separator = static_cast<char>(std::filesystem::path::preferred_separator);
    ScreenSize screen{1280, 1024};
};

// The folder that bare names are looked for in; the old one comes back.
class ScopedCurrentFolder {
public:
    explicit ScopedCurrentFolder(const TestFolder& folder) : previous_(std::filesystem::current_path()) {
        std::filesystem::current_path(folder.Path());
    }
    ~ScopedCurrentFolder() {
        std::error_code ignored;
        std::filesystem::current_path(previous_, ignored);
    }
    ScopedCurrentFolder(const ScopedCurrentFolder&) = delete;
    ScopedCurrentFolder& operator=(const ScopedCurrentFolder&) = delete;

private:
    std::filesystem::path previous_;
};

}  // namespace corvex::test
