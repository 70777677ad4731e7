// Files on a disk that takes as long as the test says.
#pragma once

#include <condition_variable>
#include <cstdint>
#include <memory>
#include <mutex>
#include <string>
#include <utility>

#include "tests/support/ForwardingFile.h"

namespace corvex::test {

// Every sync is held until Release, and then ends well unless `fails`. Outlives its files and their syncs. Any thread.
class HeldSyncs final : public IFileSystem {
public:
    explicit HeldSyncs(IFileSystem& files = SystemFiles()) : files_(files) {}

    std::unique_ptr<IFile> Open(const std::string& path, FileAccess access, std::string* error = nullptr) override {
        std::unique_ptr<IFile> file = files_.Open(path, access, error);
        return file ? std::make_unique<HeldFile>(*this, std::move(file)) : nullptr;
    }

    // Those that are held, and all to come.
    void Release() {
        const std::lock_guard lock(mutex_);
        released_ = true;
        changed_.notify_all();
    }
    unsigned Begun() const {
        const std::lock_guard lock(mutex_);
        return begun_;
    }
    unsigned Done() const {
        const std::lock_guard lock(mutex_);
        return done_;
    }
    bool fails = false;  // set before the first one

private:
    class HeldSync final : public IFileSync {
    public:
        explicit HeldSync(HeldSyncs& owner) : owner_(owner) {}
        bool Sync() override { return owner_.Hold(); }

    private:
        HeldSyncs& owner_;
    };

    class HeldFile final : public ForwardingFile {
    public:
        HeldFile(HeldSyncs& owner, std::unique_ptr<IFile> file) : ForwardingFile(std::move(file)), owner_(owner) {}
        std::unique_ptr<IFileSync> OpenSync() override { return std::make_unique<HeldSync>(owner_); }

    private:
        HeldSyncs& owner_;
    };

    bool Hold() {
        std::unique_lock lock(mutex_);
        ++begun_;
        changed_.wait(lock, [this] { return released_; });
        ++done_;
        return !fails;
    }

    IFileSystem& files_;
    mutable std::mutex mutex_;
    std::condition_variable changed_;
    bool released_ = false;
    unsigned begun_ = 0, done_ = 0;
};

}  // namespace corvex::test
