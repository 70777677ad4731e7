#include "controls/splash/SplashTexts.h"

#include <algorithm>

namespace corvex {

void SplashTexts::Set(SplashText item) {
    if (item.text.size() > kMaximumLength) item.text.resize(kMaximumLength);
    const auto known = std::find_if(items_.begin(), items_.end(),
                                    [&](const SplashText& other) { return other.itemId == item.itemId; });
    if (known == items_.end()) {
        items_.push_back(std::move(item));
    } else {
        *known = std::move(item);
    }
}

}  // namespace corvex
