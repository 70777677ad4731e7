#include "controls/statusgauge/StatusGaugeModel.h"

namespace corvex {

void StatusGaugeModel::AddFlags(std::uint32_t bits) {
    flags = bits == 0 ? 0 : flags | bits;
}

std::string_view StatusGaugeModel::Word() const {
    const GaugeText& text = state != 0 ? trueText : falseText;
    return text.View().substr(0, kWordSize - 1);
}

}  // namespace corvex
