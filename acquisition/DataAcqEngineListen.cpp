// The listening commands of the engine.
#include <algorithm>

#include "acquisition/DataAcqEngine.h"
#include "acquisition/IDataAcqCallback.h"
#include "acquisition/ReadSlices.h"
#include "definition/ADXC160BaudListen.h"
#include "definition/ADXCListenChatter.h"
#include "definition/ADXCListenSilence.h"
#include "session/base/StopWatch.h"

namespace corvex {

namespace {

// Received bytes that make one decoded byte: a start bit and eight data bits, each oversampled into a whole byte.
constexpr std::uint32_t kFrame = 9;

// Written so that a machine without a counter, where a time is no number, takes it as over.
bool Reached(std::uint32_t milliseconds, const StopWatch& watch) {
    return !(watch.Elapsed() * 1000.0 < milliseconds);
}
bool StillWithin(std::uint32_t milliseconds, const StopWatch& watch) {
    return watch.Elapsed() * 1000.0 <= milliseconds;
}

}  // namespace

std::int32_t DataAcqEngine::RunListenSilence(const ADXCListenSilence* command) {
    if (command == nullptr) return kResultFail;
    status.code = kCodeSuccess;
    status.command = command;
    if (command->silencelen == 0) {
        Delay(command->totaltimeout);
        return kResultOk;
    }
    SetReadTimeouts(command->silencelen, command->silencelen);
    if (const std::int32_t begin = callback->OnListenSilenceBegin(&status); begin < 0) return begin;
    status.code = SilenceVerdict(command->totaltimeout);
    return callback->OnListenSilenceEnd(&status);
}

// The last two milliseconds are spun away: a sleep would be coarser than the millisecond that definitions count on.
void DataAcqEngine::Delay(std::uint32_t milliseconds) {
    constexpr std::uint32_t kSpun = 2;
    IClock& clock = CurrentClock();
    const StopWatch watch;
    while (!Reached(milliseconds, watch)) {
        if (StopRequested()) {
            status.code = kCodeStopped;
            return;
        }
        const double left = milliseconds - watch.Elapsed() * 1000.0 - kSpun;
        if (left <= 0.0) continue;
        const double slice = std::min(left, double{ReadSlices::kLongest});
        clock.SleepUntil(clock.Counter() +
                         static_cast<std::int64_t>(slice * static_cast<double>(clock.Frequency()) / 1000.0));
    }
}

std::uint32_t DataAcqEngine::SilenceVerdict(std::uint32_t totaltimeout) {
    StopWatch watch;
    QZSerial::Purge(portRef, true, true);
    std::uint8_t byte = 0;
    while (portRef->Read(&byte, 1) != 0) {
        if (StopRequested()) return kCodeStopped;
        if (Reached(totaltimeout, watch)) return kCodeTimeout;
    }
    return CodeOfShortRead(kCodeSuccess);
}

std::int32_t DataAcqEngine::RunListenChatter(const ADXCListenChatter* command) {
    status.code = kCodeSuccess;
    status.command = command;
    if (command == nullptr || command->size() == 0 || command->bytestring() == nullptr) return kResultFail;
    Buffer window;
    if (!Allocate(window, command->size())) return kResultNoMemory;
    SetReadTimeouts(50, command->listentimeout);
    if (const std::int32_t begin = callback->OnListenChatterBegin(&status); begin < 0) return begin;
    status.code = ChatterVerdict(*command, window);
    return callback->OnListenChatterEnd(&status);
}

std::uint32_t DataAcqEngine::ChatterVerdict(const ADXCListenChatter& command, Buffer& window) {
    const StopWatch watch;
    const std::uint8_t* wanted = command.bytestring();
    if (portRef->Read(window.data(), command.size()) < command.size()) return CodeOfShortRead(kCodeTimeout);
    bool found = std::equal(window.begin(), window.end(), wanted);
    while (!found && StillWithin(command.listentimeout, watch)) {
        // The window moves even when no byte comes to fill it.
        std::copy(window.begin() + 1, window.end(), window.begin());
        if (portRef->Read(&window.back(), 1) != 0) found = std::equal(window.begin(), window.end(), wanted);
        if (StopRequested()) return kCodeStopped;
        if (portRef->Vanished()) break;
    }
    return found ? kCodeSuccess : kCodeTimeout;
}

// No purge: what waits in the queue is wanted. The timeouts are those of the command before.
std::int32_t DataAcqEngine::Run160BaudListen(const ADXC160BaudListen* command) {
    status.code = kCodeSuccess;
    status.command = command;
    const std::uint32_t packetsize = command != nullptr ? command->packetsize : 0;
    Buffer packet;
    bool began = false;
    // A null command or an empty packet is a bad argument, and yet the end callback is called and its return is the
    // result: callbacks count on an end for each listen.
    if (packetsize != 0) {
        if (callback->On160BaudBegin(&status) < 0) {
            status.code = kCodeRefused;
        } else {
            if (!Allocate(packet, packetsize)) return kResultNoMemory;
            began = true;
            if (FindSync(packetsize)) {
                ReadPacket(packet);
            } else {
                status.code = kCodeNoSync;
            }
        }
    }
    if (StopRequested()) status.code = kCodeStopped;
    return callback->On160BaudEnd(&status, began ? packet.data() : nullptr, packetsize);
}

// A start bit is never 0, so nine zeros in a row can't be data.
bool DataAcqEngine::FindSync(std::uint32_t packetsize) {
    std::uint32_t zeros = 0;
    for (std::uint32_t reads = 0; reads < packetsize * 2 * kFrame && !StopRequested(); ++reads) {
        std::uint8_t byte = 0;
        if (portRef->Read(&byte, 1) == 0) return false;
        zeros = byte == 0 ? zeros + 1 : 0;
        if (zeros == kFrame) return true;
    }
    return false;
}

void DataAcqEngine::ReadPacket(Buffer& packet) {
    for (std::uint8_t& byte : packet) {
        if (StopRequested()) return;
        // The rest of the packet is still worth having, if there is any.
        if (!ReadFramedByte(byte)) status.code = kCodeBadFraming;
        if (portRef->Vanished()) return;
    }
}

bool DataAcqEngine::ReadFramedByte(std::uint8_t& byte) {
    std::uint8_t bits[kFrame] = {};
    if (portRef->Read(bits, kFrame) != kFrame || bits[0] == 0) return false;
    std::uint32_t value = 0;
    for (std::uint32_t i = 1; i < kFrame; ++i)
        value = value << 1U | (bits[i] == 0 ? 1U : 0U);
    byte = static_cast<std::uint8_t>(value);
    return true;
}

}  // namespace corvex
