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

// Brings to the disk what was written to one file.
class IFileSync {
public:
    virtual ~IFileSync() = default;
    // Returns when all that was written before the call is on the disk, the file's entry in its folder included, as far
    // as the system lets that be known; a disk may take seconds. False when the system says that something is not. From
    // any thread, from several at once, and while the file is written: neither waits for the other.
    [[nodiscard]] virtual bool Sync() = 0;
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

    // Is this still the file that the name leads to? Another program may have removed it or put one in its place.
    virtual bool StandsAt(const std::string& /*path*/) const { return true; }
    // May outlive this, and counts as this one for who else may open the file. Null when there is none to have.
    virtual std::unique_ptr<IFileSync> OpenSync() { return nullptr; }
};

// Where files come from. Any thread.
class IFileSystem {
public:
    virtual ~IFileSystem() = default;
    // Null when it could not be opened; `error`, when given, then has the reason in words. A file has one at a time
    // that may write, and any number that read, before and meanwhile; one that is refused leaves it as it is. Outside
    // Windows that holds among those who ask here: other programs are not kept away. Narrow names in the system's own
    // code page.
    virtual std::unique_ptr<IFile> Open(const std::string& path, FileAccess access, std::string* error = nullptr) = 0;
};

// The machine's own files.
IFileSystem& SystemFiles();

}  // namespace corvex
