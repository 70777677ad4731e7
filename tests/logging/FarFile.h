// A file of more than 4 GiB that costs nothing: a head, zeros, and a tail.
#pragma once

#include <algorithm>
#include <cstring>
#include <memory>

#include "platform/File.h"
#include "tests/support/LogBytes.h"

namespace corvex::test {

class FarFile final : public IFile {
public:
    FarFile(Bytes head, std::uint64_t tailAt, Bytes tail)
        : head_(std::move(head)), tailAt_(tailAt), tail_(std::move(tail)) {}

    std::optional<std::uint32_t> Read(void* bytes, std::uint32_t count) override {
        const std::uint64_t size = tailAt_ + tail_.size();
        const std::uint64_t left = position_ < size ? size - position_ : 0;
        const auto got = static_cast<std::uint32_t>(std::min<std::uint64_t>(count, left));
        std::memset(bytes, 0, got);
        Copy(head_, 0, static_cast<std::uint8_t*>(bytes), got);
        Copy(tail_, tailAt_, static_cast<std::uint8_t*>(bytes), got);
        position_ += got;
        return got;
    }
    bool Write(const void*, std::uint32_t) override { return false; }
    std::uint64_t Position() const override { return position_; }
    bool Seek(std::uint64_t offset) override {
        position_ = offset;
        return true;
    }
    std::optional<std::uint64_t> Size() const override { return tailAt_ + tail_.size(); }
    bool EndHere() override { return false; }

private:
    void Copy(const Bytes& part, std::uint64_t at, std::uint8_t* bytes, std::uint32_t count) const {
        const std::uint64_t from = std::max(at, position_), to = std::min(at + part.size(), position_ + count);
        if (from < to) std::memcpy(bytes + (from - position_), part.data() + (from - at), to - from);
    }

    const Bytes head_;
    const std::uint64_t tailAt_;
    const Bytes tail_;
    std::uint64_t position_ = 0;
};

// Whatever is opened.
class FarFiles final : public IFileSystem {
public:
    explicit FarFiles(FarFile file) : file_(std::move(file)) {}

    std::unique_ptr<IFile> Open(const std::string&, FileAccess, std::string*) override {
        return std::make_unique<FarFile>(file_);
    }

private:
    const FarFile file_;
};

}  // namespace corvex::test
