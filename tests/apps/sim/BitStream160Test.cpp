#include <gtest/gtest.h>

#include "apps/sim/BitStream160.h"
#include "tests/apps/sim/SimTestHelper.h"

namespace corvex {
namespace {

using test::Bytes;

// The receiver's rule, over bytes that are all there.
class Receiver {
public:
    explicit Receiver(Bytes stream, std::size_t from) : stream_(std::move(stream)), place_(from) {}

    // The next packet; empty when the sync is not found or a byte is badly framed.
    Bytes Next(std::size_t size) {
        std::size_t ones = 0;
        for (std::size_t reads = 0; ones < 9; ++reads) {
            if (reads == size * 18 || place_ == stream_.size()) return {};
            ones = stream_[place_++] == 0 ? ones + 1 : 0;
        }
        Bytes packet;
        for (std::size_t i = 0; i < size; ++i) {
            if (place_ + 9 > stream_.size() || stream_[place_] == 0) return {};
            unsigned byte = 0;
            for (std::size_t bit = 1; bit < 9; ++bit)
                byte = byte << 1 | (stream_[place_ + bit] == 0 ? 1U : 0U);
            packet.push_back(static_cast<std::uint8_t>(byte));
            place_ += 9;
        }
        return packet;
    }

private:
    Bytes stream_;
    std::size_t place_;
};

Bytes StreamOf(const std::vector<Bytes>& packets) {
    Bytes stream;
    for (const Bytes& packet : packets) {
        const Bytes bits = EncodeStreamPacket(packet);
        stream.insert(stream.end(), bits.begin(), bits.end());
    }
    return stream;
}

TEST(BitStream160, TakesNineBitsAByteAndTenForTheSync) {
    EXPECT_EQ(EncodeStreamPacket(Bytes(20)).size(), 190U);
    EXPECT_EQ(EncodeStreamPacket(Bytes{0x81}),
              (Bytes{0xFE, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0xFE, 0, 0xFE, 0xFE, 0xFE, 0xFE, 0xFE, 0xFE, 0}));
}

TEST(BitStream160, IsReceivedPacketByPacketWhereverTheReceiverBegins) {
    std::vector<Bytes> packets;
    for (unsigned n = 0; n < 40; ++n) {
        Bytes packet(20);
        for (std::size_t i = 0; i < packet.size(); ++i)
            packet[i] = static_cast<std::uint8_t>(n * 37 + i * i * 11);
        packet[n % 20] = 0xFF;
        packet.back() = 0xFF;  // ones right up to the next sync
        packets.push_back(packet);
    }
    const Bytes stream = StreamOf(packets);
    for (std::size_t begin = 0; begin < 190; ++begin) {
        Receiver receiver(stream, begin);
        const std::size_t first = begin <= 1 ? 0 : 1;  // the packet under way at the start is lost
        for (std::size_t n = first; n < packets.size(); ++n)
            ASSERT_EQ(receiver.Next(20), packets[n]) << begin;
    }
}

TEST(BitStream160, LetsAReceiverOfOneByteFindItsStep) {
    const Bytes stream = StreamOf(std::vector<Bytes>(60, Bytes{0xFF}));
    for (std::size_t begin = 0; begin < 19; ++begin) {
        Receiver receiver(stream, begin);
        bool found = false;
        for (int tries = 0; tries < 20 && !found; ++tries)
            found = receiver.Next(1) == Bytes{0xFF};
        EXPECT_TRUE(found) << begin;
        EXPECT_EQ(receiver.Next(1), Bytes{0xFF}) << begin;
    }
}

}  // namespace
}  // namespace corvex
