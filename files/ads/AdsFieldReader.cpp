#include "files/ads/AdsFieldReader.h"

#include "files/ads/AdsNumber.h"
#include "files/adx/TextForms.h"

namespace corvex {

bool AdsFieldReader::SkipToField() {
    while (!ended_) {
        const int c = input_.Next();
        if (c == '=') return true;
        ended_ = c == '}' || c == AdsInput::kEnd;
    }
    return false;
}

std::optional<std::string_view> AdsFieldReader::Next(float minimum) {
    if (!SkipToField()) return std::nullopt;
    std::size_t length = 0;
    for (int c = input_.Next(); c != ';'; c = input_.Next()) {
        if (c == AdsInput::kEnd) {
            ended_ = true;
            return std::nullopt;
        }
        if (length < kFieldLength) field_[length] = static_cast<char>(c);
        ++length;
    }
    ++taken_;
    if (length > kFieldLength) ++cut_;
    if (version_ < minimum) return std::nullopt;
    const std::string_view text(field_.data(), length < kFieldLength ? length : kFieldLength);
    // Texts end at their first NUL.
    return text.substr(0, text.find('\0'));
}

void AdsFieldReader::Text(std::string& out, std::size_t size, float minimum) {
    if (const auto text = Next(minimum)) out = text->substr(0, size - 1);
}

void AdsFieldReader::Integer(std::int32_t& out, float minimum) {
    if (const auto text = Next(minimum)) out = static_cast<std::int32_t>(DecimalWord(*text));
}

void AdsFieldReader::Word(std::uint32_t& out, float minimum) {
    if (const auto text = Next(minimum)) out = DecimalWord(*text);
}

void AdsFieldReader::HexWord(std::uint32_t& out, float minimum) {
    if (const auto text = Next(minimum)) out = HexText(*text);
}

void AdsFieldReader::Double(double& out) {
    if (const auto text = Next(kFirstVersion)) out = PlainDecimal(*text);
}

void AdsFieldReader::Float(float& out, float minimum) {
    if (const auto text = Next(minimum)) out = PlainDecimalFloat(*text);
}

}  // namespace corvex
