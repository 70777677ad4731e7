// A text that an object owns: a string, or none at all.
#pragma once

#include <cstddef>
#include <optional>
#include <string>

namespace corvex {

// The length of a text that may be longer than `limit`: at most that. 0 for a null text.
std::size_t TextLength(const char* text, std::size_t limit);

// Tells "no text" from "empty text", which a saved file depends on. Texts end at their first NUL.
class OwnedText {
public:
    // Stores at most `len` characters; a null text leaves none.
    void Set(const char* text, std::size_t len);
    // As Set, but an empty result leaves none.
    void SetUnlessEmpty(const char* text, std::size_t len);
    void Clear() { text_.reset(); }

    bool IsSet() const { return text_.has_value(); }
    const char* CStr() const { return text_ ? text_->c_str() : nullptr; }
    std::size_t Length() const { return text_ ? text_->size() : 0; }

    // Copies at most size-1 characters and a terminator; returns the copied length.
    // Null or zero-sized buffer: 0 and nothing done. No text: an empty text and 0.
    std::size_t CopyTo(char* out, std::size_t size) const;

    // As CopyTo, but returns the copied length plus one, or 1 for no text or an unusable buffer.
    std::size_t CopyWithTerminator(char* out, std::size_t size) const;

private:
    std::optional<std::string> text_;
};

}  // namespace corvex
