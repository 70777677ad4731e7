#include "controls/grid/GridFonts.h"

#include <algorithm>

namespace corvex {

namespace {

constexpr int kGridFontHeight = 14;
constexpr DWORD kGridFontPitchAndFamily = 0x32;

std::shared_ptr<OwnedFont> MakeGridFont(int weight) {
    return std::make_shared<OwnedFont>(::CreateFontA(kGridFontHeight, 0, 0, 0, weight, FALSE, FALSE, FALSE,
                                                     ANSI_CHARSET, OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS,
                                                     PROOF_QUALITY, kGridFontPitchAndFamily, "Arial"));
}

}  // namespace

GridFonts::GridFonts() : fonts_{MakeGridFont(FW_THIN), MakeGridFont(FW_NORMAL), MakeGridFont(FW_SEMIBOLD)} {}

void GridFonts::Adopt(GridFont role, HFONT font) {
    if (font == nullptr) return;
    const auto known = std::find_if(fonts_.begin(), fonts_.end(), [&](const auto& one) { return one->Get() == font; });
    const std::shared_ptr<OwnedFont> adopted = known == fonts_.end() ? std::make_shared<OwnedFont>(font) : *known;
    fonts_[static_cast<std::size_t>(role)] = adopted;
}

GridTextSize GridFonts::Measure(HDC dc, GridFont font, std::string_view line) const {
    const SelectGuard selected(dc, Get(font));
    SIZE size{};
    ::GetTextExtentPoint32A(dc, line.data(), static_cast<int>(line.size()), &size);
    return {static_cast<int>(size.cx), static_cast<int>(size.cy)};
}

}  // namespace corvex
