// What the engines tell a callback about the command in hand.
#pragma once

#include <cstdint>

namespace corvex {

class ADXObject;

// How a command ended on the line. Not the same as its result: a command that timed out has ended in its own regular
// way.
enum DataAcqCode : std::uint32_t {
    kCodeSuccess = 0,
    kCodeRefused = 1,         // 160-baud listen: the begin callback refused
    kCodeStopped = 2,         // by request
    kCodeTimeout = 4,         // the noise never stopped, or the pattern was not seen
    kCodeShortWrite = 5,      // fewer bytes went out than asked
    kCodeShortReply = 6,      // reply or echo
    kCodeBadFraming = 7,      // 160-baud listen: a data byte was badly framed
    kCodeNoSync = 8,          // 160-baud listen: no packet sync
    kCodeNodeSucceeded = 10,  // macro: ended early by a node with flag 2
    kCodeNodeFailed = 11,     // macro: ended early by a node with flag 1
};

// One record, reused for every command. A callback may read it during the call and must not keep the pointer.
struct DataAcqStatus {
    std::uint32_t source = 0;            // 0 the live line, 1 log playback
    const ADXObject* command = nullptr;  // being executed; not owned
    // idhash of the command. Set by sends only; at the end of a 160-baud listen it is that of the last send, and
    // callbacks file such packets under it.
    std::uint32_t commandId = 0;
    std::uint32_t code = kCodeSuccess;
    std::uint32_t sampleIndex = 0;  // record number, in playback only
};

}  // namespace corvex
