// What the acquisition engine tells the program.
#pragma once

#include <cstdint>

#include "acquisition/DataAcqStatus.h"

namespace corvex {

// Results are 32-bit signed: 0 goes on, a negative one refuses (at a beginning) or becomes the result of the command
// (at an end). The order of the operations is part of the design. Called on the thread that runs the command; the byte
// pointers hold during the call. At least `count` bytes may be read, but a null pointer comes with a 160-baud packet
// that never began, whatever its count.
class IDataAcqCallback {
public:
    virtual ~IDataAcqCallback() = default;
    virtual std::int32_t OnWrite(const DataAcqStatus* status, const std::uint8_t* bytes, std::uint32_t count) = 0;
    virtual std::int32_t OnRead(const DataAcqStatus* status, const std::uint8_t* bytes, std::uint32_t count) = 0;
    virtual std::int32_t OnListenSilenceBegin(const DataAcqStatus* status) = 0;
    virtual std::int32_t OnListenSilenceEnd(const DataAcqStatus* status) = 0;
    virtual std::int32_t OnListenChatterBegin(const DataAcqStatus* status) = 0;
    virtual std::int32_t OnListenChatterEnd(const DataAcqStatus* status) = 0;
    virtual std::int32_t OnSendCommandBegin(const DataAcqStatus* status) = 0;
    virtual std::int32_t OnSendCommandEnd(const DataAcqStatus* status, const std::uint8_t* reply,
                                          std::uint32_t count) = 0;
    virtual std::int32_t OnMacroBegin(const DataAcqStatus* status) = 0;
    virtual std::int32_t OnMacroEnd(const DataAcqStatus* status) = 0;
    virtual std::int32_t On160BaudBegin(const DataAcqStatus* status) = 0;
    virtual std::int32_t On160BaudEnd(const DataAcqStatus* status, const std::uint8_t* packet, std::uint32_t count) = 0;
    virtual std::int32_t OnTrigger(const DataAcqStatus* status) = 0;
};

}  // namespace corvex
