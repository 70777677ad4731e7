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

std::optional<std::string_view> AdsFieldReader::Next(float minimum, std::size_t limit) {
    if (!SkipToField()) return std::nullopt;
    field_.clear();
    bool cut = false;
    for (int c = input_.Next(); c != ';'; c = input_.Next()) {
        if (c == AdsInput::kEnd) {
            ended_ = true;
            return std::nullopt;
        }
        cut = field_.size() >= limit;
        if (!cut) field_.push_back(static_cast<char>(c));
    }
    ++taken_;
    if (cut) ++cut_;
    if (version_ < minimum) return std::nullopt;
    const std::string_view text(field_);
    // Texts end at their first NUL.
    return text.substr(0, text.find('\0'));
}

void AdsFieldReader::Text(std::string& out, std::size_t size, float minimum) {
    if (const auto text = Next(minimum)) out = text->substr(0, size - 1);
}

void AdsFieldReader::WholeText(std::string& out) {
    if (const auto text = Next(kFirstVersion, std::string::npos)) out = *text;
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
