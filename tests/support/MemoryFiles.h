// Files that live in memory and fail when the test says so.
#pragma once

#include <atomic>
#include <cstdint>
#include <limits>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "platform/File.h"

namespace corvex::test {

// Nothing is shared out exclusively: one engine may read what another still writes. Outlives its files. Any thread.
class MemoryFiles final : public IFileSystem {
public:
    using Bytes = std::vector<std::uint8_t>;
    struct Written {
        std::uint64_t offset, count;
    };
    static constexpr std::uint64_t kNoLimit = std::numeric_limits<std::uint64_t>::max();

    std::unique_ptr<IFile> Open(const std::string& path, FileAccess access, std::string* error = nullptr) override;

    void Put(const std::string& path, Bytes bytes);
    Bytes Get(const std::string& path) const;  // empty for none
    bool Has(const std::string& path) const;
    // So that a test of allocations sees those of the code that is tested alone.
    void Reserve(const std::string& path, std::size_t bytes);

    // The write after so many good ones takes `taken` of its bytes and fails; the ones after it are good again.
    void FailWriteAfter(std::uint64_t good, std::uint32_t taken = 0);
    // A disk: no file grows beyond it, a write that would takes what fits and fails.
    std::atomic<std::uint64_t> room{kNoLimit};
    std::atomic<bool> failOpen{false}, failReads{false}, failSeeks{false}, failSize{false}, failEndHere{false};

    // Of all files so far.
    std::atomic<std::uint64_t> reads{0}, writes{0}, ends{0};
    std::vector<Written> Writes() const;  // the first 4096

private:
    class File;
    struct Fault {
        std::uint64_t good = kNoLimit;
        std::uint32_t taken = 0;
    };

    mutable std::mutex mutex_;
    std::map<std::string, std::shared_ptr<Bytes>> files_;
    Fault fault_;
    std::vector<Written> written_ = std::vector<Written>(4096);
};

}  // namespace corvex::test
