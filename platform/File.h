// Files that are read and written at any place, straight through to the system.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace corvex {

enum class FileAccess {
    kCreate,     // read and write; made anew, an old one of that name emptied
    kReadWrite,  // must be there, and may be written to
    kRead,       // must be there
};

// An open file and its position, in bytes from the start. Nothing is kept back: what Write has returned true for is the
// system's, and outlives this process however that ends. One thread at a time. Closed by its destructor.
class IFile {
public:
    virtual ~IFile() = default;

    // Reads on from the position, which moves by what was read: the bytes read, fewer only at the end of the file. No
    // value when the system could not read.
    virtual std::optional<std::uint32_t> Read(void* bytes, std::uint32_t count) = 0;
    // Writes at the position, which moves by what was written, in one call to the system. False when not all could be
    // written; a part of it may then be in the file.
    [[nodiscard]] virtual bool Write(const void* bytes, std::uint32_t count) = 0;

    virtual std::uint64_t Position() const = 0;
    // May lie past the end. False when the system refuses, as it does for a pipe.
    [[nodiscard]] virtual bool Seek(std::uint64_t offset) = 0;
    // No value when the system cannot tell.
    virtual std::optional<std::uint64_t> Size() const = 0;
    // Makes the file end at the position: cuts it off, or fills it up with zeros.
    [[nodiscard]] virtual bool EndHere() = 0;
    // Ends all use of it, ahead of the destructor. False when the system tells only now that something was not written.
    [[nodiscard]] virtual bool Close() { return true; }
};

// Where files come from. Any thread.
class IFileSystem {
public:
    virtual ~IFileSystem() = default;
    // Null when it could not be opened; `error`, when given, then has the system's reason in words. Where the system
    // knows such a thing, nobody else may open the file meanwhile, but for others that read when this one reads too.
    // Narrow names in the system's own code page.
    virtual std::unique_ptr<IFile> Open(const std::string& path, FileAccess access, std::string* error = nullptr) = 0;
};

// The machine's own files.
IFileSystem& SystemFiles();

}  // namespace corvex
