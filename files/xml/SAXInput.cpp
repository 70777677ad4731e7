#include "files/xml/SAXInput.h"

#include <algorithm>
#include <cstring>

#include "platform/FileStream.h"

namespace corvex {

void SAXInput::Begin(ISAXCallback* receiver) {
    Close();
    receiver_ = receiver;
    receiver_->line = 1;
    receiver_->column = 0;
    wide = false;
    swap = false;
    pushback = false;
    current = 0;
    readpos = readbuffer;
    readbuffer[0] = 0;
}

bool SAXInput::OpenFile(const char* path, ISAXCallback* receiver) {
    Begin(receiver);
    file.reset(OpenToRead(path));
    if (!file) return false;
    // A buffer of our own, for the library would allocate one at the first read.
    std::setvbuf(file.get(), filebuffer_, _IOFBF, kFileBufferSize);
    return true;
}

void SAXInput::OpenMemory(const void* data, std::size_t size, ISAXCallback* receiver) {
    Begin(receiver);
    source_ = static_cast<const unsigned char*>(data);
    sourceleft_ = size;
}

void SAXInput::Close() {
    file.reset();
    source_ = nullptr;
    sourceleft_ = 0;
}

SAXInput::Status SAXInput::ReadBlock() {
    std::size_t count = 0;
    if (file) {
        count = std::fread(readbuffer, 1, kBlockSize, file.get());
        if (count == 0 && std::ferror(file.get()) != 0) return Status::ReadError;
    } else if (sourceleft_ != 0) {
        count = std::min(sourceleft_, kBlockSize);
        std::memcpy(readbuffer, source_, count);
        source_ += count;
        sourceleft_ -= count;
    }
    std::memset(readbuffer + count, 0, sizeof readbuffer - kBlockSize);
    readpos = readbuffer;
    return Status::Ok;
}

SAXInput::Status SAXInput::DetectEncoding(bool& recognized) {
    const Status status = ReadBlock();
    const unsigned char first = readbuffer[0];
    const unsigned char second = readbuffer[1];
    recognized = true;
    if (first == 0xFF && second == 0xFE) {
        wide = true;
        readpos += 2;
    } else if (first == 0xFE && second == 0xFF) {
        wide = true;
        swap = true;
        readpos += 2;
    } else if (first == 0 && second == '<') {
        wide = true;
        swap = true;
    } else if (first == '<') {
        wide = second == 0;
    } else {
        recognized = false;
    }
    return status;
}

char16_t SAXInput::UnitAt(const unsigned char* at) const {
    const unsigned low = swap ? at[1] : at[0];
    const unsigned high = swap ? at[0] : at[1];
    return static_cast<char16_t>(high << 8 | low);
}

// Of a wide input the whole unit is tested for zero, so that either half of a character may be.
SAXInput::Status SAXInput::NextFromBlock() {
    if (AtBlockEnd()) {
        const Status status = ReadBlock();
        if (status != Status::Ok) return status;
        if (AtBlockEnd()) return Status::End;
    }
    if (wide) {
        const char16_t unit = UnitAt(readpos);
        readpos += 2;
        Take(unit);
    } else {
        Take(Widen(*readpos++));
    }
    return Status::Ok;
}

}  // namespace corvex
