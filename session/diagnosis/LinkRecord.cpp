#include "session/diagnosis/LinkRecord.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "acquisition/DataAcqStatus.h"
#include "definition/ADXCSendCommand.h"

namespace corvex {

namespace {

constexpr double kShortestPatience = 1.5;  // seconds

}  // namespace

void LinkCounts::AddLength(LengthCount added) {
    if (added.count == 0) return;
    for (LengthCount& place : lengths) {
        if (place.count != 0 && place.length != added.length) continue;
        place = {added.length, place.count + added.count};
        return;
    }
}

void LinkCounts::Add(const LinkCounts& more) {
    out += more.out;
    in += more.in;
    echo += more.echo;
    good += more.good;
    cut += more.cut;
    silent += more.silent;
    onlyEcho += more.onlyEcho;
    other += more.other;
    longestGap = std::max(longestGap, more.longestGap);
    for (const LengthCount& length : more.lengths)
        AddLength(length);
}

void LinkRecord::Begin(double now, const std::string& portName, bool asksSomething) {
    *this = LinkRecord();
    begun = lastEnd_ = now;
    port = portName;
    asks = asksSomething;
}

void LinkRecord::Refuse(double now, const std::string& reason) {
    refusal = reason;
    refusedAt = now;
}

void LinkRecord::Vanish(double now, const std::string& reason) {
    lost = reason;
    lostAt = now;
    gapKnown_ = false;
}

void LinkRecord::Return(double now) {
    lost.reset();
    returned = true;
    lastEnd_ = now;
    bad.Forget(settings.echo);
}

void LinkRecord::Add(const ReplyEvent& event, const LineSettings& now) {
    if (now.echo != settings.echo) {
        bad.Forget(now.echo);
        goods.Forget(now.echo);
    }
    settings = now;
    LinkCounts& counts = CellAt(event.t);
    const auto* const command = As<ADXCSendCommand>(event.command);
    const ReplyKind kind = KindOf(event, now.echo);
    if (command != nullptr && kind != ReplyKind::kUnsent) counts.out += command->size();
    if (event.expected) counts.in += static_cast<std::uint32_t>(event.reply.size());
    switch (kind) {
        case ReplyKind::kNone:
            return;
        case ReplyKind::kGood:
            if (now.echo && command != nullptr) counts.echo += command->size();
            AddGood(event, counts);
            break;
        case ReplyKind::kSilent:
        case ReplyKind::kNoSync:
            ++counts.silent;
            break;
        case ReplyKind::kOnlyEcho:
            ++counts.onlyEcho;
            counts.echo += static_cast<std::uint32_t>(event.reply.size());
            break;
        case ReplyKind::kShort:
            counts.AddLength({static_cast<std::uint32_t>(event.reply.size()), 1});
            [[fallthrough]];
        case ReplyKind::kBadFraming:
            ++counts.cut;
            break;
        default:
            ++counts.other;
    }
    if (kind != ReplyKind::kGood) bad.Add(event);
    lastEnd_ = event.t;
}

void LinkRecord::AddGood(const ReplyEvent& event, LinkCounts& counts) {
    const double gap = event.t - (gapKnown_ ? lastGood : lastEnd_);
    if (gapKnown_) counts.longestGap = std::max(counts.longestGap, gap);
    gaps_[gapCount_++ % kGaps] = gap;
    gapKnown_ = true;
    lastGood = event.t;
    ++good;
    ++counts.good;
    lost.reset();
    returned = false;
    if (bad.Any()) bad.Forget(settings.echo);
    goods.Add(event);
}

LinkCounts& LinkRecord::CellAt(double now) {
    const auto second = static_cast<std::int64_t>(std::floor(now));
    Cell& cell = cells_[static_cast<std::size_t>(second % kSeconds)];
    if (cell.second != second) cell = {second, {}};
    return cell.counts;
}

LinkCounts LinkRecord::Lately(double now, int seconds) const {
    const auto last = static_cast<std::int64_t>(std::floor(now));
    LinkCounts sum;
    for (const Cell& cell : cells_) {
        if (cell.second >= 0 && cell.second <= last && cell.second > last - seconds) sum.Add(cell.counts);
    }
    return sum;
}

double LinkRecord::UsualGap() const {
    const std::size_t count = std::min(gapCount_, kGaps);
    if (count == 0) return 0.0;
    std::vector<double> sorted(gaps_.begin(), gaps_.begin() + static_cast<std::ptrdiff_t>(count));
    std::ranges::sort(sorted);
    return sorted[count / 2];
}

double LinkRecord::DeadAfter() const {
    return std::max(kShortestPatience, 3.0 * UsualGap());
}

}  // namespace corvex
