#include "tests/support/MemoryFiles.h"

#include <algorithm>
#include <cstring>

namespace corvex::test {

class MemoryFiles::File final : public IFile {
public:
    File(MemoryFiles& owner, std::shared_ptr<Bytes> bytes, bool writable)
        : owner_(owner), bytes_(std::move(bytes)), writable_(writable) {}

    std::optional<std::uint32_t> Read(void* bytes, std::uint32_t count) override {
        owner_.reads.fetch_add(1);
        if (owner_.failReads) return std::nullopt;
        const std::lock_guard lock(owner_.mutex_);
        if (position_ >= bytes_->size()) return 0;
        const std::uint64_t got = std::min<std::uint64_t>(count, bytes_->size() - position_);
        std::memcpy(bytes, bytes_->data() + position_, static_cast<std::size_t>(got));
        position_ += got;
        return static_cast<std::uint32_t>(got);
    }

    bool Write(const void* bytes, std::uint32_t count) override {
        const std::lock_guard lock(owner_.mutex_);
        const std::uint64_t number = owner_.writes.fetch_add(1);
        if (number < owner_.written_.size()) owner_.written_[static_cast<std::size_t>(number)] = {position_, count};
        const std::uint64_t taken = std::min<std::uint64_t>({count, Allowed(count), RoomHere()});
        if (taken != 0) {
            if (bytes_->size() < position_ + taken) bytes_->resize(static_cast<std::size_t>(position_ + taken));
            std::memcpy(bytes_->data() + position_, bytes, static_cast<std::size_t>(taken));
            position_ += taken;
        }
        return writable_ && taken == count;
    }

    std::uint64_t Position() const override { return position_; }

    bool Seek(std::uint64_t offset) override {
        if (owner_.failSeeks) return false;
        position_ = offset;
        return true;
    }

    std::optional<std::uint64_t> Size() const override {
        if (owner_.failSize) return std::nullopt;
        const std::lock_guard lock(owner_.mutex_);
        return bytes_->size();
    }

    bool EndHere() override {
        owner_.ends.fetch_add(1);
        const std::lock_guard lock(owner_.mutex_);
        if (owner_.failEndHere || !writable_ || position_ > owner_.room) return false;
        bytes_->resize(static_cast<std::size_t>(position_));
        return true;
    }

private:
    std::uint64_t Allowed(std::uint32_t count) {
        if (!writable_) return 0;
        Fault& fault = owner_.fault_;
        if (fault.good == kNoLimit) return count;
        if (fault.good != 0) {
            --fault.good;
            return count;
        }
        fault.good = kNoLimit;
        return fault.taken;
    }
    std::uint64_t RoomHere() const { return position_ < owner_.room ? owner_.room - position_ : 0; }

    MemoryFiles& owner_;
    const std::shared_ptr<Bytes> bytes_;
    const bool writable_;
    std::uint64_t position_ = 0;
};

std::unique_ptr<IFile> MemoryFiles::Open(const std::string& path, FileAccess access, std::string* error) {
    const std::lock_guard lock(mutex_);
    auto found = files_.find(path);
    if (failOpen || (found == files_.end() && access != FileAccess::kCreate)) {
        if (error != nullptr) *error = "no such file";
        return nullptr;
    }
    if (found == files_.end()) found = files_.emplace(path, std::make_shared<Bytes>()).first;
    if (access == FileAccess::kCreate) found->second->clear();
    return std::make_unique<File>(*this, found->second, access != FileAccess::kRead);
}

void MemoryFiles::Put(const std::string& path, Bytes bytes) {
    const std::lock_guard lock(mutex_);
    files_[path] = std::make_shared<Bytes>(std::move(bytes));
}

MemoryFiles::Bytes MemoryFiles::Get(const std::string& path) const {
    const std::lock_guard lock(mutex_);
    const auto found = files_.find(path);
    return found == files_.end() ? Bytes() : *found->second;
}

bool MemoryFiles::Has(const std::string& path) const {
    const std::lock_guard lock(mutex_);
    return files_.count(path) != 0;
}

void MemoryFiles::Reserve(const std::string& path, std::size_t bytes) {
    const std::lock_guard lock(mutex_);
    auto& file = files_[path];
    if (!file) file = std::make_shared<Bytes>();
    file->reserve(bytes);
}

void MemoryFiles::FailWriteAfter(std::uint64_t good, std::uint32_t taken) {
    const std::lock_guard lock(mutex_);
    fault_ = {good, taken};
}

std::vector<MemoryFiles::Written> MemoryFiles::Writes() const {
    const std::lock_guard lock(mutex_);
    const auto count = std::min<std::uint64_t>(writes.load(), written_.size());
    return {written_.begin(), written_.begin() + static_cast<std::ptrdiff_t>(count)};
}

}  // namespace corvex::test
