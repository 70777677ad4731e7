#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <string_view>
#include <vector>

namespace corvex {

// Writes indented XML elements to a file, through a buffer of 16384 bytes, or into memory.
//
// Texts and values are written as they are; Escape is the only escaping there is, and the caller's to use. Operations
// return 1, or 0 on a failed condition: nothing open, an attribute outside a start tag, no element to end. A full disk
// or a filled memory does not change what they return: ask Failed() after Close. One thread; opened, written and closed
// once, though it may be opened anew afterwards. Lines end in CR LF in a file, in LF in memory.
class XMLWriter {
public:
    static constexpr std::size_t kBufferSize = 16384;
    static constexpr std::size_t kNameStackSize = 255;  // bytes of the names of all open elements together
    static constexpr std::size_t kFormatSize = 256;     // WriteAttributeFormat's value with its terminator

    XMLWriter() = default;
    ~XMLWriter();
    XMLWriter(const XMLWriter&) = delete;
    XMLWriter& operator=(const XMLWriter&) = delete;

    // Creates or truncates the file. 0 when it does not open, as a null path does not. path is in the system's narrow
    // encoding. Where the system knows such a thing, nobody else opens the file meanwhile.
    [[nodiscard]] int Open(const char* path);
    // Writes to the caller's size bytes, not terminated; what does not fit is dropped and makes Failed() true.
    [[nodiscard]] int OpenMemory(char* memory, std::size_t size);
    // Writes what is buffered and closes. Elements still open stay without end tags. Idempotent.
    void Close();

    // Something did not reach the file or the memory since Open, or an element was closed without its name. What a
    // file's buffer still holds is known only after Close.
    bool Failed() const { return failed_; }
    // Bytes in the caller's memory since OpenMemory.
    std::size_t MemoryLength() const { return memorylength_; }

    // Spaces per level, at most 8; 4 after Open.
    void SetIndent(std::uint32_t spaces);
    // Whether line ends are written; true after Open. The indent is written all the same.
    void SetPretty(bool on) { pretty = on; }

    // A name that does not fit the name stack is written here, and counts as a level, but its end tag would come out
    // as "</>": 0 then, and Failed() once that happens.
    int StartElement(std::string_view name);
    int EndElement();

    int WriteAttribute(std::string_view name, std::string_view value);
    // The value is cut to 255 bytes.
    int WriteAttributeFormat(std::string_view name, const char* format, ...) __attribute__((format(printf, 3, 4)));
    int WriteAttributeInt(std::string_view name, std::int32_t value);
    int WriteAttributeFloat(std::string_view name, float value);  // as "%f", whatever the locale

    int WriteText(std::string_view text);
    int WriteElementText(std::string_view name, std::string_view text);
    int WriteElementInt(std::string_view name, std::int32_t value);
    int WriteElementFloat(std::string_view name, float value);
    // On a line of its own, which begins with a line end even where one was just written. Two hyphens in the text are
    // not looked for.
    int WriteComment(std::string_view text);

    // Copies src, up to its terminator or srcmax characters, with " & ' < > as entities, and terminates it. Returns
    // the length plus one, or 0 for a null pointer or no room. dstmax counts the terminator, but is tested before each
    // character of src only: dst must have five bytes more than dstmax.
    static std::size_t Escape(const char* src, std::size_t srcmax, char* dst, std::size_t dstmax);

private:
    struct FileCloser {
        void operator()(std::FILE* open) const { std::fclose(open); }
    };

    bool IsOpen() const { return writepos != nullptr; }
    void Begin(char* output, std::size_t size);
    int PushName(std::string_view name);
    std::string_view PopName();
    void Write(std::string_view bytes);
    void FlushBuffer();
    void WriteLineEnd();
    void WriteIndent();
    void CloseStartTag();

    std::unique_ptr<std::FILE, FileCloser> file;
    std::unique_ptr<char[]> buffer;
    char* writepos = nullptr;  // null when nothing is open
    std::size_t remaining = 0;
    std::size_t memorylength_ = 0;
    char names[kNameStackSize + 1] = {};
    char* namepos = names;
    std::vector<std::uint32_t> nameoffsets;
    std::uint32_t indentlen = 4;
    char indent[9] = "    ";
    bool pretty = true;
    bool tagclosed = true;
    bool needindent = false;
    bool failed_ = false;
};

}  // namespace corvex
