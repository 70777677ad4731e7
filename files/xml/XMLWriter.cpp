#include "files/xml/XMLWriter.h"

#include <algorithm>
#include <charconv>
#include <cstdarg>
#include <cstring>

#include "platform/FileStream.h"

namespace corvex {

namespace {

// The digits of "%f" without its decimal comma in some locales. The largest float takes 47 characters.
class FloatText {
public:
    explicit FloatText(float value)
        : end_(
              std::to_chars(text_, text_ + sizeof text_, static_cast<double>(value), std::chars_format::fixed, 6).ptr) {
    }
    operator std::string_view() const { return {text_, static_cast<std::size_t>(end_ - text_)}; }

private:
    char text_[64];
    const char* end_;
};

class IntText {
public:
    explicit IntText(std::int32_t value) : end_(std::to_chars(text_, text_ + sizeof text_, value).ptr) {}
    operator std::string_view() const { return {text_, static_cast<std::size_t>(end_ - text_)}; }

private:
    char text_[16];
    const char* end_;
};

std::string_view EntityFor(const char& character) {
    switch (character) {
        case '"':
            return "&quot;";
        case '&':
            return "&amp;";
        case '\'':
            return "&apos;";
        case '<':
            return "&lt;";
        case '>':
            return "&gt;";
        default:
            return {&character, 1};
    }
}

}  // namespace

XMLWriter::~XMLWriter() {
    Close();
}

int XMLWriter::Open(const char* path) {
    Close();
    file.reset(OpenToWrite(path));
    if (!file) return 0;
    // The buffer is ours, so that the file is written in whole blocks.
    std::setvbuf(file.get(), nullptr, _IONBF, 0);
    buffer = std::make_unique<char[]>(kBufferSize);
    Begin(buffer.get(), kBufferSize);
    return 1;
}

int XMLWriter::OpenMemory(char* memory, std::size_t size) {
    Close();
    if (memory == nullptr) return 0;
    Begin(memory, size);
    return 1;
}

void XMLWriter::Begin(char* output, std::size_t size) {
    writepos = output;
    remaining = size;
    memorylength_ = 0;
    namepos = names;
    nameoffsets.clear();
    SetIndent(4);
    pretty = true;
    tagclosed = true;
    needindent = false;
    failed_ = false;
}

void XMLWriter::Close() {
    if (file) {
        FlushBuffer();
        // Some file systems tell of a full disk only now.
        if (std::fclose(file.release()) != 0) failed_ = true;
    }
    buffer.reset();
    writepos = nullptr;
    remaining = 0;
}

void XMLWriter::SetIndent(std::uint32_t spaces) {
    indentlen = std::min<std::uint32_t>(spaces, sizeof indent - 1);
    std::memset(indent, ' ', indentlen);
    indent[indentlen] = '\0';
}

int XMLWriter::StartElement(std::string_view name) {
    if (!IsOpen()) return 0;
    if (!tagclosed) {
        CloseStartTag();
        WriteLineEnd();
    }
    WriteIndent();
    const int pushed = PushName(name);
    Write("<");
    Write(name);
    tagclosed = false;
    return pushed;
}

int XMLWriter::EndElement() {
    if (!IsOpen() || nameoffsets.empty()) return 0;
    const std::string_view name = PopName();
    if (!tagclosed) {
        Write(" />");
        tagclosed = true;
    } else {
        if (needindent) WriteIndent();
        Write("</");
        Write(name);
        Write(">");
        if (name.empty()) failed_ = true;
    }
    WriteLineEnd();
    needindent = true;
    return 1;
}

int XMLWriter::WriteAttribute(std::string_view name, std::string_view value) {
    if (!IsOpen() || tagclosed) return 0;
    Write(" ");
    Write(name);
    Write("=\"");
    Write(value);
    Write("\"");
    return 1;
}

int XMLWriter::WriteAttributeFormat(std::string_view name, const char* format, ...) {
    char value[kFormatSize];
    std::va_list arguments;
    va_start(arguments, format);
    const int length = std::vsnprintf(value, sizeof value, format, arguments);
    va_end(arguments);
    if (length < 0) return 0;
    return WriteAttribute(name, {value, std::min(static_cast<std::size_t>(length), sizeof value - 1)});
}

int XMLWriter::WriteAttributeInt(std::string_view name, std::int32_t value) {
    return WriteAttribute(name, IntText(value));
}

int XMLWriter::WriteAttributeFloat(std::string_view name, float value) {
    return WriteAttribute(name, FloatText(value));
}

int XMLWriter::WriteText(std::string_view text) {
    if (!IsOpen()) return 0;
    CloseStartTag();
    Write(text);
    needindent = false;
    return 1;
}

int XMLWriter::WriteElementText(std::string_view name, std::string_view text) {
    const int started = StartElement(name);
    WriteText(text);
    EndElement();
    return started;
}

int XMLWriter::WriteElementInt(std::string_view name, std::int32_t value) {
    return WriteElementText(name, IntText(value));
}

int XMLWriter::WriteElementFloat(std::string_view name, float value) {
    return WriteElementText(name, FloatText(value));
}

int XMLWriter::WriteComment(std::string_view text) {
    if (!IsOpen()) return 0;
    CloseStartTag();
    WriteLineEnd();
    WriteIndent();
    Write("<!-- ");
    Write(text);
    Write(" -->");
    WriteLineEnd();
    needindent = true;
    return 1;
}

std::size_t XMLWriter::Escape(const char* src, std::size_t srcmax, char* dst, std::size_t dstmax) {
    if (src == nullptr || dst == nullptr || dstmax == 0) return 0;
    std::size_t length = 0;
    for (std::size_t i = 0; i < srcmax && src[i] != '\0' && length + 1 < dstmax; ++i) {
        const std::string_view piece = EntityFor(src[i]);
        std::memcpy(dst + length, piece.data(), piece.size());
        length += piece.size();
    }
    dst[length] = '\0';
    return length + 1;
}

void XMLWriter::CloseStartTag() {
    if (tagclosed) return;
    Write(">");
    tagclosed = true;
}

void XMLWriter::WriteLineEnd() {
    if (pretty) Write(file ? "\r\n" : "\n");
}

void XMLWriter::WriteIndent() {
    for (std::size_t level = 0; level < nameoffsets.size(); ++level) {
        Write({indent, indentlen});
    }
}

int XMLWriter::PushName(std::string_view name) {
    const auto used = static_cast<std::size_t>(namepos - names);
    nameoffsets.push_back(static_cast<std::uint32_t>(used));
    if (name.size() > kNameStackSize - used) return 0;
    namepos = std::copy(name.begin(), name.end(), namepos);
    return 1;
}

// The text stays valid until the next push.
std::string_view XMLWriter::PopName() {
    char* const begin = names + nameoffsets.back();
    nameoffsets.pop_back();
    const std::string_view name(begin, static_cast<std::size_t>(namepos - begin));
    namepos = begin;
    return name;
}

void XMLWriter::Write(std::string_view bytes) {
    while (file && bytes.size() >= remaining) {
        writepos = std::copy_n(bytes.begin(), remaining, writepos);
        bytes.remove_prefix(remaining);
        FlushBuffer();
    }
    if (bytes.size() > remaining) {
        failed_ = true;
        bytes = bytes.substr(0, remaining);
    }
    writepos = std::copy(bytes.begin(), bytes.end(), writepos);
    remaining -= bytes.size();
    if (!file) memorylength_ += bytes.size();
}

void XMLWriter::FlushBuffer() {
    const auto length = static_cast<std::size_t>(writepos - buffer.get());
    if (std::fwrite(buffer.get(), 1, length, file.get()) != length) failed_ = true;
    writepos = buffer.get();
    remaining = kBufferSize;
}

}  // namespace corvex
