// The base of every definition object: what it is called, what it is, and the hash by which others find it.
#pragma once

#include <cstdint>

#include "definition/OwnedText.h"

namespace corvex {

class XMLWriter;

// One bit per class, so that a lookup can select several classes with one mask.
enum ADXType : std::uint32_t {
    kTypeObject = 0x00000002,  // a bare ADXObject; never in a definition
    kTypeValue = 0x00000004,
    kTypeBitmask = 0x00000008,
    kTypeDashboard = 0x00000010,
    kTypeMonitor = 0x00000020,
    kTypeHistogram = 0x00000080,
    kTypeListView = 0x00000100,
    kTypeLookupTable = 0x00000200,
    kTypeMacro = 0x00010000,
    kTypeSendCommand = 0x00020000,
    kTypeListenSilence = 0x00040000,
    kTypeListenChatter = 0x00080000,
    kType160BaudListen = 0x00100000,
    kTypeTrigger = 0x00200000,
    kTypeAny = 0xFFFFFFFF,
};
inline constexpr std::uint32_t kCommandTypes = 0x003F0000;
inline constexpr std::uint32_t kPacketTypes = kTypeSendCommand | kType160BaudListen;  // their replies carry values
inline constexpr std::uint32_t kItemTypes = kTypeValue | kTypeBitmask;

// The id hash: a table-driven rotating exclusive or over the bytes as they are. Modulus 0xFFFFFFFF leaves the sum
// whole. A null pointer hashes to 0, an empty text to 0xDC379ACF. Part of the file formats: files and logs store these
// numbers.
std::uint32_t HashId(const void* bytes, std::uint32_t length, std::uint32_t modulus = 0xFFFFFFFF);

// Whether what names this parent command belongs to the command: 0 stands for any.
constexpr bool BelongsToCommand(std::uint32_t parentcmdidhash, std::uint32_t commandId) {
    return parentcmdidhash == 0 || parentcmdidhash == commandId;
}

// Objects live on the heap, owned by the one list of their ADXDefinition; every other holder keeps a plain pointer or
// an idhash. Built on the user-interface thread and read-only afterwards, but for the raw words of values and bitmasks.
class ADXObject {
public:
    // An id holds this many characters.
    static constexpr std::uint32_t kIdLength = 15;

    ADXObject() : ADXObject(kTypeObject) {}
    virtual ~ADXObject() = default;
    ADXObject(const ADXObject&) = delete;
    ADXObject& operator=(const ADXObject&) = delete;

    // Writes the object as its element. 1 on success, 0 when the writer is null. The base writes nothing and returns 1.
    virtual int Write(XMLWriter* writer) const;

    // Null clears the text.
    void SetTitle(const char* text, std::uint32_t len) { title_.Set(text, len); }
    void SetDesc(const char* text, std::uint32_t len) { desc_.Set(text, len); }
    // Copy at most size-1 characters with a terminator; return the copied length.
    std::uint32_t GetTitle(char* out, std::uint32_t size) const;
    std::uint32_t GetDesc(char* out, std::uint32_t size) const;
    // The texts whole, never null; for readers that need no copy.
    const char* Title() const { return title_.IsSet() ? title_.CStr() : ""; }
    const char* Desc() const { return desc_.IsSet() ? desc_.CStr() : ""; }

    // Stores at most 15 characters and their hash. Null: empty id and hash 0. The empty text: hash 0xDC379ACF.
    void SetId(const char* text);
    // Copies under a limit of min(size, 15) including the terminator, so a reader never gets more than 14 characters:
    // an id of exactly 15 is hashed and saved whole, and yet can't be found by its text. Definitions live with it.
    std::uint32_t GetId(char* out, std::uint32_t size) const;
    // The id as stored, up to 15 characters.
    const char* Id() const { return id_; }

    std::uint32_t GetIdHash() const { return idhash_; }
    std::uint32_t GetType() const { return objecttype_; }
    // Whether the type is one bit of these.
    bool IsOneOf(std::uint32_t types) const { return (objecttype_ & types) != 0; }
    std::uint32_t GetBaseFlags() const { return baseflags_; }
    void SetBaseFlags(std::uint32_t flags) { baseflags_ = flags; }

protected:
    explicit ADXObject(std::uint32_t type) : objecttype_(type) {}

    // "id", "idhash", "title" and, when not zero, "baseflags" on the open start tag.
    void WriteBaseAttributes(XMLWriter* writer) const;
    // The "desc" element, when there is one.
    void WriteDesc(XMLWriter* writer) const;

private:
    OwnedText title_, desc_;
    std::uint32_t objecttype_;
    char id_[kIdLength + 1] = {};
    std::uint32_t idhash_ = 0;
    std::uint32_t baseflags_ = 0;  // opaque: loaded and saved, tested by nothing
};

// The object as one of class T, null when it is null or of another class.
template <class T>
T* As(ADXObject* object) {
    return object != nullptr && object->IsOneOf(T::kType) ? static_cast<T*>(object) : nullptr;
}
template <class T>
const T* As(const ADXObject* object) {
    return As<T>(const_cast<ADXObject*>(object));
}

}  // namespace corvex
