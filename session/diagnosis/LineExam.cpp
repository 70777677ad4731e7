#include "session/diagnosis/LineExam.h"

#include <algorithm>
#include <array>

#include "acquisition/DataAcqEngine.h"
#include "acquisition/IDataAcqCallback.h"
#include "definition/ADXC160BaudListen.h"
#include "definition/ADXCSendCommand.h"
#include "definition/ADXDefinition.h"
#include "session/base/StopWatch.h"
#include "session/diagnosis/PolledCommands.h"

namespace corvex {

namespace {

constexpr double kLongestListen = 2.0;   // seconds
constexpr std::uint32_t kLook = 20;      // milliseconds of one read
constexpr std::uint32_t kLateMs = 1000;  // that a reply may come after its time and is still seen
constexpr std::uint32_t kCommandLimit = 5000;
constexpr std::size_t kMostBytes = 1U << 16U;

// Nobody looks at what the connect command brings; of a stream's packets the codes are counted.
class ExamCallback final : public IDataAcqCallback {
public:
    using Status = const DataAcqStatus*;
    using Packet = const std::uint8_t*;

    std::int32_t OnWrite(Status, Packet, std::uint32_t) override { return kResultOk; }
    std::int32_t OnRead(Status, Packet, std::uint32_t) override { return kResultOk; }
    std::int32_t OnListenSilenceBegin(Status) override { return kResultOk; }
    std::int32_t OnListenSilenceEnd(Status) override { return kResultOk; }
    std::int32_t OnListenChatterBegin(Status) override { return kResultOk; }
    std::int32_t OnListenChatterEnd(Status) override { return kResultOk; }
    std::int32_t OnSendCommandBegin(Status) override { return kResultOk; }
    std::int32_t OnSendCommandEnd(Status, Packet, std::uint32_t) override { return kResultOk; }
    std::int32_t OnMacroBegin(Status) override { return kResultOk; }
    std::int32_t OnMacroEnd(Status) override { return kResultOk; }
    std::int32_t On160BaudBegin(Status) override { return kResultOk; }
    std::int32_t On160BaudEnd(Status status, Packet, std::uint32_t) override {
        ++(status->code == kCodeSuccess ? good : bad);
        return kResultOk;
    }
    std::int32_t OnTrigger(Status) override { return kResultOk; }

    std::uint32_t good = 0, bad = 0;
};

class LineExam {
public:
    LineExam(const ADXDefinition& definition, const ExamPlan& plan, ISerialPlatform& platform)
        : definition_(definition), plan_(plan), engine_(platform) {
        engine_.flags = definition.HasEcho() ? DataAcqEngine::kEcho : 0;
        engine_.callback = &callback_;
    }

    LineFindings Run() {
        if (engine_.OpenPort(plan_.port.c_str(), definition_.baud) == 0) {
            const std::string why = engine_.port.LastError();
            found_.refusal = why.empty() ? "the port cannot be opened" : why;
            return found_;
        }
        const std::vector<const ADXObject*> polled = PolledCommands(definition_);
        if (polled.empty()) return found_;
        Listen();
        if (definition_.connectcmd != nullptr && definition_.monitorcmd != nullptr)
            engine_.RunWhole(definition_.connectcmd, kCommandLimit);
        if (const auto* const send = As<ADXCSendCommand>(polled.front()))
            AskOn(*send);
        else
            ListenForPackets(*polled.front());
        if (definition_.disconnectcmd != nullptr && found_.lost.empty())
            engine_.RunWhole(definition_.disconnectcmd, kCommandLimit);
        return found_;
    }

private:
    double Seconds() const { return watch_.Elapsed(); }
    bool Ends() {
        found_.lost = engine_.port.LastError();
        return !found_.lost.empty() || Seconds() >= plan_.seconds || (plan_.stop && plan_.stop());
    }

    std::uint32_t Read(std::uint8_t* bytes, std::uint32_t count, std::uint32_t milliseconds) {
        engine_.port.SetTimeouts(0, 0, milliseconds, 0, 0,
                                 QZSerial::kReadInterval | QZSerial::kReadMultiplier | QZSerial::kReadConstant);
        return engine_.port.Read(bytes, count);
    }

    void Listen() {
        const double begin = Seconds(), limit = std::min(kLongestListen, plan_.seconds / 2.0);
        double quietFrom = begin;
        std::array<std::uint8_t, 256> bytes;
        while (Seconds() - begin < limit && !Ends()) {
            const std::uint32_t count = Read(bytes.data(), static_cast<std::uint32_t>(bytes.size()), kLook);
            if (count == 0) continue;
            found_.heard += count;
            found_.longestQuiet = std::max(found_.longestQuiet, (Seconds() - quietFrom) * 1000.0);
            quietFrom = Seconds();
        }
        found_.longestQuiet = std::max(found_.longestQuiet, (Seconds() - quietFrom) * 1000.0);
        found_.heardSeconds = Seconds() - begin;
    }

    void AskOn(const ADXCSendCommand& command) {
        found_.asked = &command;
        do
            found_.answers.push_back(Ask(command));
        while (!Ends());
    }

    LineAnswer Ask(const ADXCSendCommand& command) {
        LineAnswer answer;
        std::vector<std::uint8_t> bytes(
            std::min<std::size_t>(std::size_t{command.size()} + command.replysize, kMostBytes));
        QZSerial::Purge(&engine_.port, true, true);
        const double begin = Seconds();
        const auto since = [&] { return (Seconds() - begin) * 1000.0; };
        const double limit = std::max(command.replytimeout, 1U) + kLateMs;
        if (engine_.port.Write(command.bytestring(), command.size()) != command.size()) return answer;
        std::size_t count = 0;
        bool decided = false;
        for (std::size_t wanted = command.size(); count < wanted && since() < limit;) {
            const std::uint32_t more = Read(bytes.data() + count, static_cast<std::uint32_t>(wanted - count), kLook);
            if (more != 0) answer.lastMs = since();
            count += more;
            if (count < wanted || decided) continue;
            // What begins with the request is its echo. Its bytes are waited for first, so that the time is right.
            decided = true;
            answer.echoed =
                command.size() != 0 && std::equal(bytes.begin(), bytes.begin() + command.size(), command.bytestring());
            if (answer.echoed) answer.echoMs = since();
            wanted = std::min(bytes.size(), std::size_t{command.replysize} + (answer.echoed ? command.size() : 0));
        }
        // A piece of the echo alone is no reply.
        if (!decided)
            answer.echoed = count != 0 && std::equal(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(count),
                                                     command.bytestring());
        const std::size_t skip = answer.echoed ? std::min<std::size_t>(count, command.size()) : 0;
        answer.reply.assign(bytes.begin() + static_cast<std::ptrdiff_t>(skip),
                            bytes.begin() + static_cast<std::ptrdiff_t>(count));
        AddWhatFollows(answer.reply);
        return answer;
    }

    // A reply that is longer than it should be goes on at once.
    void AddWhatFollows(std::vector<std::uint8_t>& reply) {
        std::array<std::uint8_t, 256> more;
        const std::uint32_t count =
            reply.empty() ? 0 : Read(more.data(), static_cast<std::uint32_t>(more.size()), kLook);
        reply.insert(reply.end(), more.begin(), more.begin() + count);
    }

    void ListenForPackets(const ADXObject& command) {
        found_.stream = true;
        // A listen reads under what the port was opened with, since it sets no times of its own.
        engine_.port.SetTimeouts(300, 0, 2000, 0, 110, QZSerial::kAllTimeouts);
        do
            engine_.RunCommand(&command);
        while (!Ends());
        found_.packets = callback_.good;
        found_.badPackets = callback_.bad;
    }

    const ADXDefinition& definition_;
    const ExamPlan& plan_;
    ExamCallback callback_;
    DataAcqEngine engine_;
    StopWatch watch_;
    LineFindings found_;
};

}  // namespace

LineFindings ExamineLine(const ADXDefinition& definition, const ExamPlan& plan, ISerialPlatform& platform) {
    return LineExam(definition, plan, platform).Run();
}

}  // namespace corvex
