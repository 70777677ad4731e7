#include "bench/logging/GeneratedLog.h"

#include <cstdio>
#include <memory>
#include <vector>

#include "definition/ADXObject.h"
#include "logging/LogFormat.h"
#include "logging/LogItem.h"

namespace corvex {

namespace {

constexpr std::uint32_t kPollMs = 95;
constexpr std::size_t kPiece = 1U << 20U;

using Bytes = std::vector<std::uint8_t>;

// A linear congruential generator, so that every machine draws the same.
class Random {
public:
    std::uint32_t Below(std::uint32_t bound) {
        state_ = state_ * 6364136223846793005U + 1442695040888963407U;
        return static_cast<std::uint32_t>(state_ >> 33U) % bound;
    }

private:
    std::uint64_t state_ = 20260701;
};

// One reply after the other.
class Engine {
public:
    explicit Engine(std::uint32_t size) : reply_(size, 0) {}

    const Bytes& Next() {
        ++poll_;
        for (std::size_t i = 0; i < reply_.size(); ++i)
            reply_[i] = ByteAt(i);
        if (reply_.size() > 3) PutFrame();
        return reply_;
    }

private:
    // A third stand, a third drift by ones, a third rise and fall with periods of their own.
    std::uint8_t ByteAt(std::size_t i) {
        const auto place = static_cast<std::uint32_t>(i);
        if (place % 3 == 0) return static_cast<std::uint8_t>(place * 37U & 0xFFU);
        if (place % 3 == 1) return static_cast<std::uint8_t>((reply_[i] + random_.Below(3) + 255U) & 0xFFU);
        const std::uint32_t period = 40 + place * 7, phase = poll_ % period;
        const std::uint32_t up = phase < period / 2 ? phase : period - phase;
        return static_cast<std::uint8_t>(20U + up * 400U / period);
    }

    void PutFrame() {
        const std::size_t last = reply_.size() - 1;
        reply_[0] = 0xF4;
        reply_[1] = static_cast<std::uint8_t>((0x52U + reply_.size()) & 0xFFU);
        reply_[2] = 0x01;
        std::uint32_t sum = 0;
        for (std::size_t i = 0; i < last; ++i)
            sum += reply_[i];
        reply_[last] = static_cast<std::uint8_t>((0x100U - (sum & 0xFFU)) & 0xFFU);
    }

    Bytes reply_;
    Random random_;
    std::uint32_t poll_ = 0;
};

// Counts what went out, and remembers the first failure.
class Output {
public:
    explicit Output(const std::string& path) : file_(std::fopen(path.c_str(), "wb"), &std::fclose) {
        good_ = file_ != nullptr;
    }

    void Put(const std::uint8_t* bytes, std::size_t count) {
        piece_.insert(piece_.end(), bytes, bytes + count);
        if (piece_.size() >= kPiece) Flush();
    }

    bool Finish() {
        Flush();
        return good_ && std::fflush(file_.get()) == 0;
    }

private:
    void Flush() {
        if (good_) good_ = std::fwrite(piece_.data(), 1, piece_.size(), file_.get()) == piece_.size();
        piece_.clear();
    }

    std::unique_ptr<std::FILE, int (*)(std::FILE*)> file_;
    Bytes piece_;
    bool good_ = false;
};

void PutHead(Output& out, const LogHeader& header, std::uint32_t commandId, std::uint32_t size) {
    std::uint8_t bytes[kLogHeaderBytes];
    EncodeHeader(header, bytes);
    out.Put(bytes, sizeof bytes);
    const std::uint8_t one[] = {1, 0, 0, 0};
    out.Put(one, sizeof one);
    const Bytes mask = LogMask::AllSet().Bytes();
    LogItemFields item;
    item.commandId = commandId;
    item.type = kTypeSendCommand;
    item.packedSize = item.fullSize = size;
    item.maskLength = static_cast<std::uint16_t>(mask.size());
    std::uint8_t fields[kLogItemBytes];
    EncodeItem(item, fields);
    out.Put(fields, sizeof fields);
    out.Put(mask.data(), mask.size());
}

LogHeader HeaderOf(std::uint64_t dataOffset, std::uint64_t end, std::uint32_t records) {
    LogHeader header;
    header.version = kLogVersion;
    header.dataOffset = static_cast<std::uint32_t>(dataOffset);
    header.endMark = static_cast<std::uint32_t>(end + 1);
    header.startTime = {2026, 7, 3, 1, 12, 34, 56, 789};
    header.sampleCount = records;
    return header;
}

}  // namespace

std::string WriteGeneratedLog(const std::string& path, std::uint32_t records, std::uint32_t commandId,
                              std::uint32_t size) {
    const std::uint64_t dataOffset = kLogHeaderBytes + 4 + kLogItemBytes + LogMask::AllSet().Bytes().size();
    const std::uint64_t stride = std::uint64_t{kLogRecordBytes} + size, end = dataOffset + stride * records;
    if (end >= kNeverEnded) return "so long a log has no offsets";
    Output out(path);
    PutHead(out, HeaderOf(dataOffset, end, records), commandId, size);
    Engine engine(size);
    Random jitter;
    LogRecord record;
    for (std::uint32_t i = 0; i < records; ++i) {
        record.nextOffset = static_cast<std::uint32_t>(dataOffset + stride * (i + std::uint64_t{1}));
        std::uint8_t head[kLogRecordBytes];
        EncodeRecord(record, head);
        out.Put(head, sizeof head);
        const Bytes& reply = engine.Next();
        out.Put(reply.data(), reply.size());
        record.timeMs += kPollMs - 2 + jitter.Below(5);
    }
    return out.Finish() ? std::string() : path + ": cannot be written";
}

}  // namespace corvex
