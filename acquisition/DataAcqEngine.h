// Carries out the commands of a definition on the serial line.
#pragma once

#include <atomic>
#include <cstdint>
#include <optional>
#include <vector>

#include "acquisition/DataAcqStatus.h"
#include "acquisition/QZSerial.h"
#include "session/base/StopWatch.h"

namespace corvex {

class ADXC160BaudListen;
class ADXCListenChatter;
class ADXCListenSilence;
class ADXCSendCommand;
class ADXCTrigger;
class ADXMacro;
class ADXObject;
class IDataAcqCallback;
struct ADXMacroNode;

// Results of commands. Any other is what the end callback returned; a negative one is failure.
inline constexpr std::int32_t kResultOk = 0;
inline constexpr std::int32_t kResultFail =
    static_cast<std::int32_t>(0x80004005);  // bad argument, unknown type, closed
inline constexpr std::int32_t kResultNoMemory = static_cast<std::int32_t>(0x8007000E);

// Runs one command at a time, blocking in the port's reads; moves bytes, keeps the status record and tells the
// callback. It checks counts and the framing of 160-baud data and nothing else: no checksum of any packet.
//
// What happens on the line is told by `status.code` alone. A command that timed out still returns what its end callback
// returns.
//
// A stop ends the command in hand with code 2, the macros around it too, and every wait within 50 ms. The request
// stands until ForgetStop: it can't fall between two commands, however short they are, and what is begun meanwhile ends
// at once. The write of a command is not interrupted, a reply that has come whole is a reply.
//
// A device that vanishes ends the command in hand in its own way, a wait of it within 50 ms, and the macros around it
// with the code of that command.
//
// Threads: one thread runs commands and owns all members. RequestStop and RequestCut may come from any other.
class DataAcqEngine {
public:
    static constexpr std::uint32_t kEcho = 1;  // in `flags`: sent bytes come back before the reply
    // A definition that asks for a larger buffer gets kResultNoMemory.
    static constexpr std::uint32_t kBufferLimit = 16U << 20U;
    // Macros within macros. One level more (a macro that holds itself gets there) ends every macro in hand with
    // kResultFail, their end callbacks called as ever.
    static constexpr std::uint32_t kNestingLimit = 256;

    explicit DataAcqEngine(ISerialPlatform& platform = SystemSerial());
    ~DataAcqEngine();
    DataAcqEngine(const DataAcqEngine&) = delete;
    DataAcqEngine& operator=(const DataAcqEngine&) = delete;

    // Nonzero on success; on failure the port is closed.
    int OpenPort(const char* path, std::uint32_t baud);

    // kResultFail when the command is null or of an unknown type, the port is closed or there is no callback.
    std::int32_t RunCommand(const ADXObject* command);

    // Runs the command in spite of a stop. What ends it is RequestCut, or that `limit` milliseconds have passed.
    std::int32_t RunWhole(const ADXObject* command, std::uint32_t limit);

    void RequestStop() { RaiseStop(kStop); }
    // A stop that ends a command under RunWhole too.
    void RequestCut() { RaiseStop(kCut); }
    // While nobody runs a command or asks for a stop.
    void ForgetStop() { stopRequested.store(0, std::memory_order_relaxed); }

    // The commands themselves, as RunCommand calls them. Null is a bad argument.
    std::int32_t RunMacro(const ADXMacro* macro);
    std::int32_t RunSendCommand(const ADXCSendCommand* command);
    std::int32_t RunListenSilence(const ADXCListenSilence* command);
    std::int32_t RunListenChatter(const ADXCListenChatter* command);
    std::int32_t Run160BaudListen(const ADXC160BaudListen* command);
    std::int32_t RunTrigger(const ADXCTrigger* command);

    std::uint32_t flags = 0;
    QZSerial port;
    QZSerial* portRef;                     // all use goes through it
    IDataAcqCallback* callback = nullptr;  // not owned; to be set before a command is run
    DataAcqStatus status;
    enum Stop : std::uint32_t { kStop = 1, kCut = 2 };
    std::atomic<std::uint32_t> stopRequested{0};  // 0, or the strongest Stop that was asked for

private:
    using Buffer = std::vector<std::uint8_t>;

    void RaiseStop(Stop stop);
    bool StopRequested() const;
    // False when the buffer can't be had. Buffers begin as zeros.
    static bool Allocate(Buffer& buffer, std::uint32_t size);
    void SetReadTimeouts(std::uint32_t interval, std::uint32_t total);

    void RunNodes(const ADXMacro& macro);
    bool RunNode(const ADXMacroNode& node);
    void Delay(std::uint32_t milliseconds);
    // The code of a read that came short, for which `otherwise` stands unless a stop cut it.
    std::uint32_t CodeOfShortRead(std::uint32_t otherwise) const;
    std::uint32_t Exchange(const ADXCSendCommand& command, Buffer& reply, Buffer& echo);
    std::uint32_t SilenceVerdict(std::uint32_t totaltimeout);
    std::uint32_t ChatterVerdict(const ADXCListenChatter& command, Buffer& window);
    bool FindSync(std::uint32_t packetsize);
    void ReadPacket(Buffer& packet);
    bool ReadFramedByte(std::uint8_t& byte);

    std::optional<StopWatch> whole_;  // while RunWhole runs: since its beginning
    std::uint32_t wholeLimit_ = 0;    // milliseconds
    std::uint32_t nesting_ = 0;       // macros in hand
    bool tooDeep_ = false;            // set at the nesting limit until the outermost macro has ended
};

}  // namespace corvex
