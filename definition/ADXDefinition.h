// The document: a small header and the one owning list of all objects of a definition.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

#include "definition/ADXObject.h"
#include "definition/PacketView.h"

namespace corvex {

class ADXValue;

// Told how a load or a save gets on. Called on the thread that loads or saves.
class IProgress {
public:
    virtual ~IProgress() = default;
    virtual void SetRange(std::uint32_t maximum) = 0;
    virtual void Step() = 0;
    virtual void SetPosition(std::uint32_t position) = 0;
};

// Commands and items live in one list alike, in file order, and the type mask tells them apart. Links between objects,
// and the three commands of the header, point into the list and die with it. Lookups return null when there is nothing
// to find.
//
// Threads: one thread loads, clears and edits; the acquisition thread may call UpdateValues and FindByHash meanwhile
// only as long as the list is not being changed.
class ADXDefinition {
public:
    static constexpr std::uint32_t kDefaultBaud = 8192;
    static constexpr std::uint32_t kErrorSize = 256;

    ADXDefinition() = default;
    ~ADXDefinition() = default;
    ADXDefinition(const ADXDefinition&) = delete;
    ADXDefinition& operator=(const ADXDefinition&) = delete;

    void Clear();

    // Clears and reads the file. 1 on success. 0 on failure, with the reader's text in `error` (kErrorSize bytes, may
    // be null) and whatever had been read left in the list, its links unresolved.
    int Load(const char* path, char* error = nullptr, IProgress* progress = nullptr);
    // 1 on success, 0 when the file can't be written whole beside the old one, which then stands as it was.
    int Save(const char* path, IProgress* progress = nullptr) const;

    // An empty text leaves the field unset.
    void SetUserVersion(const char* text, std::uint32_t len) { userversion_.SetUnlessEmpty(text, len); }
    void SetAuthor(const char* text, std::uint32_t len) { author_.SetUnlessEmpty(text, len); }
    void SetDesc(const char* text, std::uint32_t len) { desc_.SetUnlessEmpty(text, len); }
    // Measure the text against a limit of 20, 60 and 1024 characters; a text that reaches its limit measures 0. Null
    // `out` or zero size: that length. Otherwise copy min(length + 1, size) bytes and return that count, which includes
    // the terminator; with no text an empty buffer and 0.
    std::uint32_t GetUserVersion(char* out, std::uint32_t size) const;
    std::uint32_t GetAuthor(char* out, std::uint32_t size) const;
    std::uint32_t GetDesc(char* out, std::uint32_t size) const;
    // The texts whole, null when unset.
    const OwnedText& UserVersion() const { return userversion_; }
    const OwnedText& Author() const { return author_; }
    const OwnedText& Desc() const { return desc_; }

    // kEcho in flags: sent bytes come back before the reply.
    bool HasEcho() const { return (flags & kEcho) != 0; }
    void SetEcho(bool on) { flags = on ? flags | kEcho : flags & ~kEcho; }

    std::uint32_t GetCount() const { return static_cast<std::uint32_t>(objects_.size()); }
    // The n-th object, from 0, among those with a bit of `mask`, in list order.
    ADXObject* GetObject(std::uint32_t mask, std::uint32_t n) const;
    // Exact comparison with what GetId gives, so at most 14 characters; first match wins.
    ADXObject* FindById(const char* id) const;
    // First in list order; hash 0 is nobody's.
    ADXObject* FindByHash(std::uint32_t hash) const;
    // Makes FindByHash fast in a list of any length, until an object is added or all are cleared: for whoever only
    // reads from now on. No object's hash may change meanwhile.
    void IndexHashes();
    // First value whose unittype (low half) and datatype (high half) make the word; word 0 finds none.
    ADXValue* FindValueByType(std::uint32_t word) const;
    // 1 when no other object has the hash: the object's own when one is given, else the argument.
    int IsHashUnique(const ADXObject* object, std::uint32_t hash) const;

    // Captures the raw words of all values and bitmasks that belong to the command or to any. Allocates nothing.
    // Objects whose field is not inside the packet keep their word.
    void UpdateValues(PacketView packet, std::uint32_t commandId);

    // Take the object over. 0 for null, else 1. InsertAfter: key null inserts at the front, kAppend appends, any other
    // goes after that object, or last when it isn't in the list. InsertAt: an index at or past the end appends, so -1
    // appends.
    static const ADXObject* const kAppend;
    int InsertAfter(std::unique_ptr<ADXObject> object, const ADXObject* key);
    int InsertAt(std::unique_ptr<ADXObject> object, std::uint32_t index);

    // The first object from list index `first` on that refers to `target`, and its index (-1 for none) if `index` isn't
    // null. Macros, list views, values and dashboards are examined; histograms, monitors, bitmasks and tables are not.
    ADXObject* FindReferrer(const ADXObject* target, std::uint32_t first, std::int32_t* index = nullptr) const;

    // The list, for walks in order.
    const std::vector<std::unique_ptr<ADXObject>>& Objects() const { return objects_; }

    static constexpr std::uint32_t kEcho = 1;
    std::uint32_t flags = 0;
    std::uint32_t baud = kDefaultBaud;
    ADXObject* connectcmd = nullptr;     // run once at connect; not owned, like the two below
    ADXObject* monitorcmd = nullptr;     // run again and again while connected
    ADXObject* disconnectcmd = nullptr;  // run once at disconnect

private:
    OwnedText userversion_, author_, desc_;
    std::vector<std::unique_ptr<ADXObject>> objects_;
    std::vector<std::pair<std::uint32_t, ADXObject*>> hashes_;  // sorted, the first of equal ones alone; may be empty
};

}  // namespace corvex
