#include "export/LogSummary.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

#include "logging/LogWalk.h"

namespace corvex {

namespace {

constexpr std::size_t kCountedLengths = 65536;

// The median interval by counting, whose memory does not grow with the log, and what may turn out to be gaps.
class IntervalCounter {
public:
    // A log from elsewhere may go back in time; that is no interval.
    void Add(std::uint32_t fromMs, std::uint32_t toMs) {
        if (toMs < fromMs) return;
        const std::uint32_t length = toMs - fromMs;
        ++counts_[std::min<std::size_t>(length, kCountedLengths - 1)];
        ++sum_;
        if (length > LogSummary::kShortestGap) long_.push_back({fromMs, length});
    }

    std::uint32_t Median() const {
        std::uint64_t seen = 0;
        for (std::size_t length = 0; length < counts_.size() && sum_ != 0; ++length) {
            seen += counts_[length];
            if (seen * 2 >= sum_) return static_cast<std::uint32_t>(length);
        }
        return 0;
    }

    std::vector<LogSummary::Gap> Gaps() const {
        const std::uint64_t limit = std::uint64_t{LogSummary::kGapFactor} * Median();
        std::vector<LogSummary::Gap> gaps;
        std::copy_if(long_.begin(), long_.end(), std::back_inserter(gaps),
                     [=](const LogSummary::Gap& gap) { return gap.lengthMs > limit; });
        return gaps;
    }

private:
    std::vector<std::uint32_t> counts_ = std::vector<std::uint32_t>(kCountedLengths);
    std::uint64_t sum_ = 0;
    std::vector<LogSummary::Gap> long_;
};

}  // namespace

LogSummary SummarizeLog(DataLogEngine& log) {
    LogSummary summary;
    summary.header = log.header;
    summary.fileSize = log.FileSize();
    for (std::uint32_t i = 0; i < log.ItemCount(); ++i)
        summary.items.push_back({*log.GetItem(i), 0, 0, 0});

    IntervalCounter intervals;
    LogWalk walk(log);
    while (walk.Next()) {
        const std::uint32_t time = walk.Record().timeMs;
        if (walk.Records() == 1)
            summary.firstMs = time;
        else
            intervals.Add(summary.lastMs, time);
        summary.lastMs = time;
        LogSummary::Item& item = summary.items[walk.Record().itemIndex];
        if (item.records++ == 0) item.firstMs = time;
        item.lastMs = time;
    }
    summary.records = walk.Records();
    summary.unknown = walk.Unknown();
    summary.result = walk.Result();
    summary.gap = walk.Gap();
    summary.left = walk.Left();
    summary.damaged = walk.Damaged();
    summary.medianMs = intervals.Median();
    summary.gaps = intervals.Gaps();
    return summary;
}

double RecordRate(std::uint32_t records, std::uint32_t firstMs, std::uint32_t lastMs) {
    return records < 2 || lastMs <= firstMs ? 0.0 : (records - 1) * 1000.0 / (lastMs - firstMs);
}

}  // namespace corvex
