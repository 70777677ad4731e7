// A file that hands everything on to another, for those who change one thing about it.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "platform/File.h"

namespace corvex::test {

class ForwardingFile : public IFile {
public:
    explicit ForwardingFile(std::unique_ptr<IFile> file) : file_(std::move(file)) {}

    std::optional<std::uint32_t> Read(void* bytes, std::uint32_t count) override { return file_->Read(bytes, count); }
    bool Write(const void* bytes, std::uint32_t count) override { return file_->Write(bytes, count); }
    std::uint64_t Position() const override { return file_->Position(); }
    bool Seek(std::uint64_t offset) override { return file_->Seek(offset); }
    std::optional<std::uint64_t> Size() const override { return file_->Size(); }
    bool EndHere() override { return file_->EndHere(); }
    bool Close() override { return file_->Close(); }
    bool StandsAt(const std::string& path) const override { return file_->StandsAt(path); }
    std::unique_ptr<IFileSync> OpenSync() override { return file_->OpenSync(); }

private:
    const std::unique_ptr<IFile> file_;
};

}  // namespace corvex::test
