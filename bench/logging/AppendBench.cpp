// What it costs to keep one sample: by the log, by a bare write of the same bytes, and by a database that commits each;
// what it adds that the log is brought to the disk meanwhile, and how long a disk that is slow at that holds anybody.
// Exit 1 when a sample is more than one write, or allocates.
#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "definition/ADXObject.h"
#include "logging/DataLogEngine.h"
#include "tests/support/AllocationCount.h"
#include "tests/support/ForwardingFile.h"

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

using SteadyClock = std::chrono::steady_clock;

double Milliseconds(SteadyClock::duration time) {
    return std::chrono::duration<double, std::milli>(time).count();
}

// How the log is brought to the disk: not at all, as the machine does it, or by a disk that takes `least` for it.
struct SyncKind {
    bool syncs = false;
    std::chrono::milliseconds least{0};
};

// How long what was written waits until a sync begins. Any thread.
class SyncWaits {
public:
    void Wrote() {
        const std::lock_guard lock(mutex_);
        if (!waits_) oldest_ = SteadyClock::now();
        waits_ = true;
    }
    void Begins() {
        const std::lock_guard lock(mutex_);
        ++syncs_;
        if (waits_) worst_ = std::max(worst_, SteadyClock::now() - oldest_);
        waits_ = false;
    }
    double Worst() const { return Milliseconds(worst_); }
    unsigned Syncs() const { return syncs_; }

private:
    std::mutex mutex_;
    SteadyClock::time_point oldest_;
    SteadyClock::duration worst_{0};
    bool waits_ = false;
    unsigned syncs_ = 0;
};

class SlowSync final : public IFileSync {
public:
    SlowSync(std::unique_ptr<IFileSync> sync, SyncWaits& waits, std::chrono::milliseconds least)
        : sync_(std::move(sync)), waits_(waits), least_(least) {}
    bool Sync() override {
        waits_.Begins();
        const auto end = SteadyClock::now() + least_;
        const bool good = sync_->Sync();
        std::this_thread::sleep_until(end);
        return good;
    }

private:
    const std::unique_ptr<IFileSync> sync_;
    SyncWaits& waits_;
    const std::chrono::milliseconds least_;
};

class SyncedFile final : public test::ForwardingFile {
public:
    SyncedFile(std::unique_ptr<IFile> file, SyncWaits& waits, SyncKind kind)
        : ForwardingFile(std::move(file)), waits_(waits), kind_(kind) {}
    bool Write(const void* bytes, std::uint32_t count) override {
        const bool written = ForwardingFile::Write(bytes, count);
        waits_.Wrote();
        return written;
    }
    std::unique_ptr<IFileSync> OpenSync() override {
        if (!kind_.syncs) return nullptr;
        std::unique_ptr<IFileSync> sync = ForwardingFile::OpenSync();
        if (!sync) Fail("the file cannot be synced");
        return std::make_unique<SlowSync>(std::move(sync), waits_, kind_.least);
    }

private:
    SyncWaits& waits_;
    const SyncKind kind_;
};

class SyncedFiles final : public IFileSystem {
public:
    explicit SyncedFiles(SyncKind kind) : kind_(kind) {}
    std::unique_ptr<IFile> Open(const std::string& path, FileAccess access, std::string* error) override {
        std::unique_ptr<IFile> file = SystemFiles().Open(path, access, error);
        return file ? std::make_unique<SyncedFile>(std::move(file), waits, kind_) : nullptr;
    }
    SyncWaits waits;

private:
    const SyncKind kind_;
};

// Counts the calls to the system on their way.
class CountedFile final : public test::ForwardingFile {
public:
    CountedFile(std::unique_ptr<IFile> file, std::uint64_t& writes, bool syncs)
        : ForwardingFile(std::move(file)), writes_(writes), syncs_(syncs) {}
    bool Write(const void* bytes, std::uint32_t count) override {
        ++writes_;
        return ForwardingFile::Write(bytes, count);
    }
    std::unique_ptr<IFileSync> OpenSync() override { return syncs_ ? ForwardingFile::OpenSync() : nullptr; }

private:
    std::uint64_t& writes_;
    const bool syncs_;
};

class CountedFiles final : public IFileSystem {
public:
    explicit CountedFiles(bool syncs) : syncs_(syncs) {}
    std::unique_ptr<IFile> Open(const std::string& path, FileAccess access, std::string* error) override {
        std::unique_ptr<IFile> file = SystemFiles().Open(path, access, error);
        return file ? std::make_unique<CountedFile>(std::move(file), writes, syncs_) : nullptr;
    }
    std::uint64_t writes = 0;

private:
    const bool syncs_;
};

void Begin(DataLogEngine& log, const std::string& path) {
    LogItem item;
    item.commandId = kCommand;
    item.type = kTypeSendCommand;
    item.packedSize = item.fullSize = kSize;
    item.mask = LogMask::AllSet();
    if (log.Open(path.c_str(), kLogForWriting) != kLogSuccess || log.AddItem(item) != kLogSuccess ||
        log.StartRecording() != kLogSuccess)
        Fail("no recording");
}

// One recording at 50 times the pace of a fast line.
struct PacedCost {
    double mean = 0.0, worst = 0.0;  // of AddSample, microseconds and milliseconds
    double worstWait = 0.0;          // for a sync to begin, milliseconds
    unsigned syncs = 0;
};

PacedCost MeasurePaced(const std::string& path, const std::vector<std::uint8_t>& reply, SyncKind kind) {
    constexpr int kSeconds = 6, kPace = 1000;
    SyncedFiles files(kind);
    PacedCost cost;
    SteadyClock::duration worst{0}, all{0};
    {
        DataLogEngine log(files);
        Begin(log, path);
        const auto start = SteadyClock::now();
        for (int i = 0; i < kSeconds * kPace; ++i) {
            std::this_thread::sleep_until(start + std::chrono::microseconds(i * (1'000'000 / kPace)));
            const auto before = SteadyClock::now();
            if (log.AddSample(kCommand, reply.data(), kSize) != kLogSuccess) Fail("a sample was not written");
            const auto took = SteadyClock::now() - before;
            all += took;
            worst = std::max(worst, took);
        }
        cost.syncs = files.waits.Syncs();
    }
    cost.mean = Milliseconds(all) * 1000.0 / (kSeconds * kPace);
    cost.worst = Milliseconds(worst);
    cost.worstWait = files.waits.Worst();
    return cost;
}

void PrintPaced(const std::string& path, const std::vector<std::uint8_t>& reply) {
    using namespace std::chrono_literals;
    struct {
        const char* name;
        SyncKind kind;
        PacedCost best;
    } runs[] = {{"without syncs", {}, {}},
                {"with them", {true, 0ms}, {}},
                {"on a disk that takes 2 s for one", {true, 2s}, {}}};
    for (int round = 0; round < 3; ++round) {
        for (auto& run : runs) {
            const PacedCost cost = MeasurePaced(path, reply, run.kind);
            if (round == 0 || cost.mean < run.best.mean) run.best.mean = cost.mean;
            run.best.worst = std::max(run.best.worst, cost.worst);
            run.best.worstWait = std::max(run.best.worstWait, cost.worstWait);
            run.best.syncs += cost.syncs;
        }
    }
    for (const auto& run : runs)
        std::printf(
            "a sample every millisecond, %s: ratio %.2f, worst hold %.2f ms, %u syncs, longest wait for one %.0f ms\n",
            run.name, run.best.mean / runs[0].best.mean, run.best.worst, run.best.syncs, run.best.worstWait);
}

struct LogCost {
    Times times;
    std::uint64_t writes = 0, allocations = 0;  // of all samples after the first of the last round
};

LogCost MeasureLog(const std::string& path, const std::vector<std::uint8_t>& reply, bool syncs) {
    LogCost cost;
    CountedFiles files(syncs);
    for (int round = 0; round < kRounds; ++round) {
        DataLogEngine log(files);
        const auto add = [&](std::uint32_t) {
            if (log.AddSample(kCommand, reply.data(), kSize) != kLogSuccess) Fail("a sample was not written");
        };
        Begin(log, path);
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
    const LogCost log = MeasureLog(path, reply, false), synced = MeasureLog(path, reply, true);
    const double committed = MeasureDatabase(path + ".db", reply).best;
    std::printf(
        "keeping a sample of 12 + %u bytes: %.2f us; bare write %.2f us, ratio %.2f; SQLite (WAL, NORMAL, a commit "
        "each) %.2f us, ratio %.1f\n",
        kSize, log.times.best, bare, log.times.best / bare, committed, committed / log.times.best);
    std::printf("as fast as it goes, brought to the disk meanwhile: ratio %.2f\n", synced.times.best / log.times.best);
    PrintPaced(path, reply);
    for (const char* suffix : {"", ".db", ".db-wal", ".db-shm"})
        std::filesystem::remove(path + suffix);
    std::printf("%u samples after the first: %llu writes, %llu allocations\n", kSamples,
                static_cast<unsigned long long>(log.writes), static_cast<unsigned long long>(log.allocations));
    return log.writes == kSamples && log.allocations == 0 ? 0 : 1;
}
