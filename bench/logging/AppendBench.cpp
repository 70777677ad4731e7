// What it costs to keep one sample: by the log, by a bare write of the same bytes, and by a database that commits each.
// Exit 1 when a sample is more than one write, or allocates.
#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "definition/ADXObject.h"
#include "logging/DataLogEngine.h"
#include "tests/support/AllocationCount.h"

namespace corvex {
namespace {

constexpr std::uint32_t kSamples = 200'000, kCommits = 20'000;
constexpr std::uint32_t kCommand = 0xA6607299, kSize = 63;
constexpr int kRounds = 5;

[[noreturn]] void Fail(const char* why) {
    std::fprintf(stderr, "bench_append: %s\n", why);
    std::exit(1);
}

class Times {
public:
    void Measure(std::uint32_t count, const std::function<void(std::uint32_t)>& one) {
        const auto start = std::chrono::steady_clock::now();
        for (std::uint32_t i = 0; i < count; ++i)
            one(i);
        const std::chrono::duration<double, std::micro> took = std::chrono::steady_clock::now() - start;
        best = std::min(best, took.count() / count);
    }
    double best = 1e12;  // microseconds each; what else the machine does only ever adds
};

// Counts the calls to the system on their way.
class CountedFile final : public IFile {
public:
    CountedFile(std::unique_ptr<IFile> file, std::uint64_t& writes) : file_(std::move(file)), writes_(writes) {}
    std::optional<std::uint32_t> Read(void* bytes, std::uint32_t count) override { return file_->Read(bytes, count); }
    bool Write(const void* bytes, std::uint32_t count) override {
        ++writes_;
        return file_->Write(bytes, count);
    }
    std::uint64_t Position() const override { return file_->Position(); }
    bool Seek(std::uint64_t offset) override { return file_->Seek(offset); }
    std::optional<std::uint64_t> Size() const override { return file_->Size(); }
    bool EndHere() override { return file_->EndHere(); }

private:
    const std::unique_ptr<IFile> file_;
    std::uint64_t& writes_;
};

class CountedFiles final : public IFileSystem {
public:
    std::unique_ptr<IFile> Open(const std::string& path, FileAccess access, std::string* error) override {
        std::unique_ptr<IFile> file = SystemFiles().Open(path, access, error);
        return file ? std::make_unique<CountedFile>(std::move(file), writes) : nullptr;
    }
    std::uint64_t writes = 0;
};

struct LogCost {
    Times times;
    std::uint64_t writes = 0, allocations = 0;  // of all samples after the first of the last round
};

LogCost MeasureLog(const std::string& path, const std::vector<std::uint8_t>& reply) {
    LogCost cost;
    CountedFiles files;
    for (int round = 0; round < kRounds; ++round) {
        DataLogEngine log(files);
        LogItem item;
        item.commandId = kCommand;
        item.type = kTypeSendCommand;
        item.packedSize = item.fullSize = kSize;
        item.mask = LogMask::AllSet();
        const auto add = [&](std::uint32_t) {
            if (log.AddSample(kCommand, reply.data(), kSize) != kLogSuccess) Fail("a sample was not written");
        };
        if (log.Open(path.c_str(), kLogForWriting) != kLogSuccess || log.AddItem(item) != kLogSuccess ||
            log.StartRecording() != kLogSuccess)
            Fail("no recording");
        add(0);
        const std::uint64_t writes = files.writes, allocations = testing::AllocationCount();
        cost.times.Measure(kSamples, add);
        cost.writes = files.writes - writes;
        cost.allocations = testing::AllocationCount() - allocations;
    }
    return cost;
}

Times MeasureWrites(const std::string& path) {
    Times times;
    const std::vector<std::uint8_t> bytes(kLogRecordBytes + kSize, 0x42);
    for (int round = 0; round < kRounds; ++round) {
        const std::unique_ptr<IFile> file = SystemFiles().Open(path, FileAccess::kCreate);
        if (!file) Fail("no file");
        times.Measure(kSamples, [&](std::uint32_t) {
            if (!file->Write(bytes.data(), static_cast<std::uint32_t>(bytes.size()))) Fail("no write");
        });
    }
    return times;
}

using Database = std::unique_ptr<sqlite3, int (*)(sqlite3*)>;
using Statement = std::unique_ptr<sqlite3_stmt, int (*)(sqlite3_stmt*)>;

Database OpenDatabase(const std::string& path) {
    for (const char* suffix : {"", "-wal", "-shm"})
        std::filesystem::remove(path + suffix);
    sqlite3* raw = nullptr;
    if (sqlite3_open(path.c_str(), &raw) != SQLITE_OK) Fail("no database");
    Database database(raw, sqlite3_close);
    constexpr char kSetUp[] =
        "PRAGMA journal_mode=WAL; PRAGMA synchronous=NORMAL;"
        "CREATE TABLE sample(time INTEGER, item INTEGER, data BLOB);";
    if (sqlite3_exec(raw, kSetUp, nullptr, nullptr, nullptr) != SQLITE_OK) Fail("no table");
    return database;
}

Times MeasureDatabase(const std::string& path, const std::vector<std::uint8_t>& reply) {
    Times times;
    for (int round = 0; round < kRounds; ++round) {
        const Database database = OpenDatabase(path);
        sqlite3_stmt* raw = nullptr;
        if (sqlite3_prepare_v2(database.get(), "INSERT INTO sample VALUES(?,?,?)", -1, &raw, nullptr) != SQLITE_OK)
            Fail("no statement");
        const Statement insert(raw, sqlite3_finalize);
        times.Measure(kCommits, [&](std::uint32_t i) {
            sqlite3_bind_int64(raw, 1, i);
            sqlite3_bind_int(raw, 2, 0);
            sqlite3_bind_blob(raw, 3, reply.data(), static_cast<int>(reply.size()), SQLITE_STATIC);
            if (sqlite3_step(raw) != SQLITE_DONE) Fail("no commit");
            sqlite3_reset(raw);
        });
    }
    return times;
}

}  // namespace
}  // namespace corvex

int main() {
    using namespace corvex;
    const std::string path = (std::filesystem::temp_directory_path() / "bench_append").string();
    const std::vector<std::uint8_t> reply(kSize, 0x42);
    const double bare = MeasureWrites(path).best;
    const LogCost log = MeasureLog(path, reply);
    const double committed = MeasureDatabase(path + ".db", reply).best;
    for (const char* suffix : {"", ".db", ".db-wal", ".db-shm"})
        std::filesystem::remove(path + suffix);
    std::printf(
        "keeping a sample of 12 + %u bytes: %.2f us; bare write %.2f us, ratio %.2f; SQLite (WAL, NORMAL, a commit "
        "each) %.2f us, ratio %.1f\n",
        kSize, log.times.best, bare, log.times.best / bare, committed, committed / log.times.best);
    std::printf("%u samples after the first: %llu writes, %llu allocations\n", kSamples,
                static_cast<unsigned long long>(log.writes), static_cast<unsigned long long>(log.allocations));
    return log.writes == kSamples && log.allocations == 0 ? 0 : 1;
}
