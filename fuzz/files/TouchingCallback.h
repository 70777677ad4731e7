#pragma once

#include <cstdint>
#include <cstdlib>
#include <cstring>

#include "files/xml/SAXParser.h"

namespace corvex {

// Reads every character it is given and stops the program where the parser breaks a promise of its own.
class TouchingCallback final : public ISAXCallback {
public:
    // refused is the count of the event that is answered with a refusal, 0 for none.
    explicit TouchingCallback(std::uint32_t refused) : refused_(refused) {}

    void CheckResult(std::int32_t result) const {
        if (errors_ > 1 || ended_ > 1 || (result == SAXParser::kOk) != (ended_ == 1 && !refusedone_)) std::abort();
        if ((result == SAXParser::kSyntaxError) != (errors_ == 1)) std::abort();
        if ((result == SAXParser::kRefused) != refusedone_) std::abort();
    }

    std::int32_t StartDocument() override { return Answer(); }
    std::int32_t EndDocument() override {
        ++ended_;
        return Answer();
    }
    std::int32_t StartElement(const char16_t* name, std::uint32_t length, const SAXAttribute* attributes,
                              std::uint32_t count) override {
        std::uint32_t total = length;
        Touch(name, length);
        for (std::uint32_t i = 0; i < count; ++i) {
            Touch(attributes[i].name, attributes[i].nameLength);
            Touch(attributes[i].value, attributes[i].valueLength);
            total += attributes[i].nameLength + attributes[i].valueLength;
        }
        if (length == 0 || total > 2048 || count > 32) std::abort();
        return Answer();
    }
    std::int32_t Characters(const char16_t* text, std::uint32_t length, std::int32_t more) override {
        if (length == 0) std::abort();
        return Piece(text, length, more);
    }
    std::int32_t EndElement(const char16_t* name, std::uint32_t length) override {
        if (length == 0) std::abort();
        return Piece(name, length, 0);
    }
    std::int32_t StartCDATA() override { return Answer(); }
    std::int32_t CDATA(const char16_t* text, std::uint32_t length, std::int32_t more) override {
        return Piece(text, length, more);
    }
    std::int32_t EndCDATA() override { return Answer(); }
    std::int32_t Error(std::int32_t code, const char* message) override {
        if (code != SAXParser::kSyntaxError || std::strlen(message) >= 160) std::abort();
        ++errors_;
        return 0;
    }

private:
    void Touch(const char16_t* text, std::uint32_t length) {
        for (std::uint32_t i = 0; i < length; ++i)
            sum_ = sum_ * 31 + text[i];
    }
    std::int32_t Piece(const char16_t* text, std::uint32_t length, std::int32_t more) {
        if (length > 2048 || (more == 1 && length < 2046)) std::abort();
        Touch(text, length);
        return Answer();
    }
    std::int32_t Answer() {
        if (errors_ != 0 || refusedone_) std::abort();
        refusedone_ = ++events_ == refused_;
        return refusedone_ ? -1 : 0;
    }

    std::uint32_t refused_;
    std::uint32_t events_ = 0;
    std::uint32_t errors_ = 0;
    std::uint32_t ended_ = 0;
    bool refusedone_ = false;
    volatile std::uint32_t sum_ = 0;  // so that no read is left out
};

}  // namespace corvex
