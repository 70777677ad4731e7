#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <memory>

#include "files/xml/CharClass.h"
#include "files/xml/ISAXCallback.h"

namespace corvex {

// The characters of one document, from a file or from memory, and the place reached in it.
//
// The input is taken in blocks of 2048 bytes. A zero inside a block ends that block, so that the rest of it is dropped,
// and a block that begins with a zero ends the document: files that were padded with zeros still load.
class SAXInput {
public:
    enum class Status { Ok, End, ReadError };

    SAXInput() = default;
    SAXInput(const SAXInput&) = delete;
    SAXInput& operator=(const SAXInput&) = delete;

    // False when the file does not open. The position counts in the receiver, which is not owned.
    [[nodiscard]] bool OpenFile(const char* path, ISAXCallback* receiver);
    void OpenMemory(const void* data, std::size_t size, ISAXCallback* receiver);
    void Close();

    // Reads the first block and tells the width of the characters. recognized is false for an input that begins neither
    // with a less-than sign nor with a 16-bit mark.
    Status DetectEncoding(bool& recognized);

    // Moves to the next character, or stays on the one pushed back.
    Status Next() {
        if (pushback) {
            pushback = false;
            return Status::Ok;
        }
        if (!wide && *readpos != 0) {
            Take(Widen(*readpos++));
            return Status::Ok;
        }
        return NextFromBlock();
    }
    char16_t Current() const { return current; }
    void PushBack() { pushback = true; }

    // The bytes up to the first one in the class Stop, at most limit of them, taken as characters: for narrow input
    // only, else none. They are stored at to; seen gathers their classes. Stop must contain NUL, LF
    // and CR, so that each byte of the run is one column and the run ends with the block.
    template <std::uint8_t Stop>
    std::size_t TakeRun(char16_t* to, std::size_t limit, std::uint8_t& seen);
    template <std::uint8_t Stop>
    void SkipRun();

private:
    static constexpr std::size_t kBlockSize = 2048;
    static constexpr std::size_t kFileBufferSize = 16384;

    struct FileCloser {
        void operator()(std::FILE* open) const { std::fclose(open); }
    };

    // A byte is widened with its sign: saved definitions were always read so, 0xE9 as 0xFFE9.
    static char16_t Widen(unsigned char byte) { return static_cast<char16_t>(static_cast<signed char>(byte)); }
    void Take(char16_t character) {
        current = character;
        if (character == u'\n') {
            ++receiver_->line;
            receiver_->column = 0;
        } else if (character != u'\r') {
            ++receiver_->column;
        }
    }
    char16_t UnitAt(const unsigned char* at) const;
    bool AtBlockEnd() const { return wide ? UnitAt(readpos) == 0 : *readpos == 0; }
    void Begin(ISAXCallback* receiver);
    Status ReadBlock();
    Status NextFromBlock();

    ISAXCallback* receiver_ = nullptr;
    const unsigned char* readpos = readbuffer;
    const unsigned char* source_ = nullptr;  // what is left of a memory input
    std::size_t sourceleft_ = 0;
    bool wide = false;
    bool swap = false;
    bool pushback = false;
    char16_t current = 0;
    // Two zeros end the block; two more stand behind an odd last byte of a wide input, which is read with one of them.
    unsigned char readbuffer[kBlockSize + 4] = {};
    char filebuffer_[kFileBufferSize];
    std::unique_ptr<std::FILE, FileCloser> file;  // uses filebuffer_, so it goes first
};

template <std::uint8_t Stop>
std::size_t SAXInput::TakeRun(char16_t* to, std::size_t limit, std::uint8_t& seen) {
    if (wide || pushback) return 0;
    const unsigned char* from = readpos;
    std::uint8_t classes = 0;
    std::size_t taken = 0;
    for (; taken < limit; ++taken) {
        const std::uint8_t kind = kCharClass[from[taken]];
        if (kind & Stop) break;
        classes = static_cast<std::uint8_t>(classes | kind);
        to[taken] = Widen(from[taken]);
    }
    readpos = from + taken;
    receiver_->column += static_cast<std::uint32_t>(taken);
    seen = static_cast<std::uint8_t>(seen | classes);
    return taken;
}

template <std::uint8_t Stop>
void SAXInput::SkipRun() {
    if (wide || pushback) return;
    const unsigned char* from = readpos;
    while (!(kCharClass[*from] & Stop))
        ++from;
    receiver_->column += static_cast<std::uint32_t>(from - readpos);
    readpos = from;
}

}  // namespace corvex
