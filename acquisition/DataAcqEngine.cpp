#include "acquisition/DataAcqEngine.h"

#include <algorithm>
#include <new>

#include "acquisition/IDataAcqCallback.h"
#include "definition/ADXC160BaudListen.h"
#include "definition/ADXCListenChatter.h"
#include "definition/ADXCListenSilence.h"
#include "definition/ADXCSendCommand.h"
#include "definition/ADXCTrigger.h"
#include "definition/ADXMacro.h"

namespace corvex {

DataAcqEngine::DataAcqEngine(ISerialPlatform& platform) : port(platform), portRef(&port) {
    port.giveUp = [this] { return StopRequested(); };
}

DataAcqEngine::~DataAcqEngine() {
    portRef->Close();
}

int DataAcqEngine::OpenPort(const char* path, std::uint32_t baud) {
    if (portRef->Open(path, baud) == 0) return 0;
    if (portRef->SetTimeouts(300, 0, 2000, 0, 110, QZSerial::kAllTimeouts) != 0 && portRef->SetQueues(1024, 512) != 0) {
        return 1;
    }
    // Nothing will run on it, and no other program could use it.
    portRef->Close();
    return 0;
}

std::int32_t DataAcqEngine::RunCommand(const ADXObject* command) {
    if (command == nullptr || !portRef->IsOpen() || callback == nullptr) return kResultFail;
    if (const auto* macro = As<ADXMacro>(command)) return RunMacro(macro);
    if (const auto* send = As<ADXCSendCommand>(command)) return RunSendCommand(send);
    if (const auto* silence = As<ADXCListenSilence>(command)) return RunListenSilence(silence);
    if (const auto* chatter = As<ADXCListenChatter>(command)) return RunListenChatter(chatter);
    if (const auto* listen = As<ADXC160BaudListen>(command)) return Run160BaudListen(listen);
    if (const auto* trigger = As<ADXCTrigger>(command)) return RunTrigger(trigger);
    return kResultFail;
}

std::int32_t DataAcqEngine::RunWhole(const ADXObject* command, std::uint32_t limit) {
    wholeLimit_ = limit;
    whole_.emplace();
    const std::int32_t result = RunCommand(command);
    whole_.reset();
    return result;
}

void DataAcqEngine::RaiseStop(Stop stop) {
    std::uint32_t asked = stopRequested.load(std::memory_order_relaxed);
    while (asked < stop && !stopRequested.compare_exchange_weak(asked, stop, std::memory_order_relaxed)) {
    }
}

// A machine without a counter has no time to be over: the limit is then none.
bool DataAcqEngine::StopRequested() const {
    const std::uint32_t asked = stopRequested.load(std::memory_order_relaxed);
    if (!whole_) return asked != 0;
    return asked >= kCut || whole_->Elapsed() * 1000.0 >= wholeLimit_;
}

std::uint32_t DataAcqEngine::CodeOfShortRead(std::uint32_t otherwise) const {
    return portRef->WasCut() ? std::uint32_t{kCodeStopped} : otherwise;
}

bool DataAcqEngine::Allocate(Buffer& buffer, std::uint32_t size) {
    if (size > kBufferLimit) return false;
    try {
        buffer.assign(std::max(size, 1U), 0);
    } catch (const std::bad_alloc&) {
        return false;
    }
    return true;
}

void DataAcqEngine::SetReadTimeouts(std::uint32_t interval, std::uint32_t total) {
    portRef->SetTimeouts(interval, 0, total, 0, 300, QZSerial::kAllTimeouts);
}

std::int32_t DataAcqEngine::RunSendCommand(const ADXCSendCommand* command) {
    if (command == nullptr) return kResultFail;
    status.code = kCodeSuccess;
    status.command = command;
    status.commandId = command->GetIdHash();
    // Without a reply the count passed on is that of the bytes sent: they too must lie within the buffer.
    Buffer reply;
    Buffer echo;
    if (!Allocate(reply, std::max(command->replysize, command->size())) || !Allocate(echo, command->size())) {
        return kResultNoMemory;
    }
    if (const std::int32_t begin = callback->OnSendCommandBegin(&status); begin < 0) return begin;
    SetReadTimeouts(75, command->replytimeout);
    QZSerial::Purge(portRef, true, true);
    const std::uint32_t count = Exchange(*command, reply, echo);
    return callback->OnSendCommandEnd(&status, reply.data(), count);
}

// The count of the last read or write.
std::uint32_t DataAcqEngine::Exchange(const ADXCSendCommand& command, Buffer& reply, Buffer& echo) {
    const std::uint32_t size = command.size();
    std::uint32_t count = 0;
    if (size != 0) count = portRef->Write(command.bytestring(), size);
    if (count != size) {
        status.code = kCodeShortWrite;
        return count;
    }
    if (StopRequested()) {
        status.code = kCodeStopped;
        return count;
    }
    if (!command.ExpectsReply()) return count;
    if ((flags & kEcho) != 0 && size != 0) {
        count = portRef->Read(echo.data(), size);
        if (count != size) {
            status.code = CodeOfShortRead(kCodeShortReply);
            return count;
        }
    }
    count = portRef->Read(reply.data(), command.replysize);
    if (count != command.replysize) status.code = CodeOfShortRead(kCodeShortReply);
    return count;
}

std::int32_t DataAcqEngine::RunTrigger(const ADXCTrigger* command) {
    status.code = kCodeSuccess;
    status.command = command;
    if (command == nullptr) return kResultFail;
    return callback->OnTrigger(&status);
}

}  // namespace corvex
