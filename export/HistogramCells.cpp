#include "export/HistogramCells.h"

namespace corvex {

std::string AxisKeyText(float key) {
    char text[kHistogramTextRoom];
    ADXHistogram::PrintNumber(text, sizeof text, static_cast<double>(key));
    return text;
}

std::string AxisKeyText(const ADXLookupTable& axis, std::uint32_t index) {
    float key = 0.0F;
    return axis.GetEntry(index, &key, nullptr) == 0 ? std::string() : AxisKeyText(key);
}

std::string HistogramCellText(const ADXHistogram& histogram, int mode, std::uint32_t row, std::uint32_t col) {
    char text[kHistogramTextRoom] = {};
    histogram.GetCellValue(mode, row, col, text, sizeof text);
    return text;
}

std::string HistogramClipboardText(const ADXHistogram& histogram, int mode, const HistogramPart& part) {
    std::string all;
    bool first = true;
    ForEachHistogramText(
        histogram, mode, part,
        [&](const std::string& text) {
            if (!first) all += '\t';
            all += text;
            first = false;
        },
        [&] {
            all += "\r\n";
            first = true;
        });
    return all;
}

}  // namespace corvex
