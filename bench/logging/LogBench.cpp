// A walk over a long log against two reads from the system for each record, the memory it takes, and a jump to the
// middle. Exit 1 when the ratio, the allocations or the memory are not what they have to be.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string>
#include <vector>

#include "bench/logging/GeneratedLog.h"
#include "logging/DataLogEngine.h"
#include "tests/support/AllocationCount.h"

namespace corvex {
namespace {

constexpr std::uint32_t kRecords = 1'000'000, kFewRecords = 10'000;
constexpr std::uint32_t kCommand = 0xA6607299, kSize = 63;
constexpr double kWantedRatio = 4.0;
constexpr long kAllowedGrowth = 256;  // KB of the peak from the short log to the long one
constexpr int kRounds = 3;

[[noreturn]] void Fail(const std::string& why) {
    std::fprintf(stderr, "bench_log: %s\n", why.c_str());
    std::exit(1);
}

// The best round counts: what else the machine does only ever adds time.
double Milliseconds(const std::function<void()>& work) {
    double best = 1e12;
    for (int round = 0; round < kRounds; ++round) {
        const auto start = std::chrono::steady_clock::now();
        work();
        const std::chrono::duration<double, std::milli> took = std::chrono::steady_clock::now() - start;
        best = std::min(best, took.count());
    }
    return best;
}

// KB of memory that this process has held at most; 0 where the system does not tell.
long PeakMemory() {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        if (line.rfind("VmHWM:", 0) == 0) return std::atol(line.c_str() + 6);
    }
    return 0;
}

void Walk(const std::string& path, std::uint32_t records) {
    DataLogEngine log;
    if (log.Open(path.c_str(), kLogForLooking) != kLogSuccess) Fail("cannot open " + path);
    log.GoToData();
    LogRecord record;
    const LogItem* item = nullptr;
    std::uint8_t data[kSize];
    std::uint32_t count = 0, sum = 0;
    while (log.ReadRecord(&record, data, kSize, &item) == kLogSuccess) {
        ++count;
        sum += record.timeMs + data[kSize - 1];
    }
    benchmark::DoNotOptimize(sum);
    if (count != records) Fail("records are missing");
}

// As one would write it first: the head of a record, then its data, straight from the system.
void WalkUnbuffered(const std::string& path, std::uint64_t dataOffset, std::uint32_t records) {
    const std::unique_ptr<IFile> file = SystemFiles().Open(path, FileAccess::kRead);
    if (!file || !file->Seek(dataOffset)) Fail("cannot open " + path);
    std::uint8_t head[kLogRecordBytes], data[kSize];
    std::uint32_t count = 0, sum = 0;
    while (file->Read(head, sizeof head) == sizeof head && file->Read(data, kSize) == kSize) {
        ++count;
        sum += DecodeRecord(head).timeMs + data[kSize - 1];
    }
    benchmark::DoNotOptimize(sum);
    if (count != records) Fail("records are missing");
}

bool CompareWalks(const std::string& path) {
    const std::uint64_t dataOffset = kLogHeaderBytes + 4 + kLogItemBytes + LogMask::AllSet().Bytes().size();
    const double ours = Milliseconds([&] { Walk(path, kRecords); });
    const double plain = Milliseconds([&] { WalkUnbuffered(path, dataOffset, kRecords); });
    std::printf("walk of %u records of 12 + %u bytes: %.1f ms, two reads each %.1f ms, ratio %.1f (at least %.0f)\n",
                kRecords, kSize, ours, plain, plain / ours, kWantedRatio);
    return plain / ours >= kWantedRatio;
}

bool CompareMemory(const std::string& few, const std::string& many) {
    std::uint64_t before = testing::AllocationCount();
    Walk(few, kFewRecords);
    const std::uint64_t fewAllocations = testing::AllocationCount() - before;
    const long fewPeak = PeakMemory();
    before = testing::AllocationCount();
    Walk(many, kRecords);
    const std::uint64_t manyAllocations = testing::AllocationCount() - before;
    const long manyPeak = PeakMemory();
    std::printf("memory of a walk of %u and of %u records: peak %ld and %ld KB, %llu and %llu allocations\n",
                kFewRecords, kRecords, fewPeak, manyPeak, static_cast<unsigned long long>(fewAllocations),
                static_cast<unsigned long long>(manyAllocations));
    return fewAllocations == manyAllocations && manyPeak - fewPeak <= kAllowedGrowth;
}

void ShowSeek(const std::string& path) {
    DataLogEngine log;
    if (log.Open(path.c_str(), kLogForLooking) != kLogSuccess) Fail("cannot open " + path);
    const double byCount = Milliseconds([&] {
        if (log.Seek(kRecords / 2, kSeekFromStart) != kLogSuccess) Fail("no seek");
    });
    const std::uint32_t time = log.CurrentTime();
    const double byTime = Milliseconds([&] {
        if (log.Seek(time, kSeekFromStart | kSeekTime) != kLogSuccess) Fail("no seek");
    });
    std::printf("seek to the middle: %.2f ms by count, %.2f ms by time\n", byCount, byTime);
}

}  // namespace
}  // namespace corvex

int main() {
    using namespace corvex;
    const std::filesystem::path folder = std::filesystem::temp_directory_path();
    const std::string few = (folder / "bench_log_few.xdl").string(), many = (folder / "bench_log_many.xdl").string();
    for (const auto& [path, records] : {std::pair(few, kFewRecords), std::pair(many, kRecords)}) {
        const std::string error = WriteGeneratedLog(path, records, kCommand, kSize);
        if (!error.empty()) Fail(error);
    }
    bool good = CompareMemory(few, many);  // first: nothing else must have raised the peak
    good = CompareWalks(many) && good;
    ShowSeek(many);
    std::filesystem::remove(few);
    std::filesystem::remove(many);
    return good ? 0 : 1;
}
