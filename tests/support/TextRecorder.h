// A text control that keeps its text in a string.
#pragma once

#include <cstddef>
#include <mutex>
#include <string>

#include "session/base/DebugOutput.h"

namespace corvex::test {

// Callable from any thread.
class TextRecorder final : public ITextAppender {
public:
    std::size_t TextLength() override {
        const std::lock_guard<std::mutex> guard(lock_);
        return text_.size();
    }
    void Append(const char* text) override {
        const std::lock_guard<std::mutex> guard(lock_);
        text_ += text;
    }
    void Clear() override {
        const std::lock_guard<std::mutex> guard(lock_);
        text_.clear();
    }
    std::string Text() const {
        const std::lock_guard<std::mutex> guard(lock_);
        return text_;
    }

private:
    mutable std::mutex lock_;
    std::string text_;
};

}  // namespace corvex::test
