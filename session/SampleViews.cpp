#include "session/SampleViews.h"

#include <utility>

namespace corvex {

void SampleViews::Register(SampleViewKind kind, ISampleView* view) {
    views_[static_cast<std::uint32_t>(kind)] = view;
    toDraw_ &= ~BitOf(kind);
    Announce();
}

void SampleViews::Announce() {
    std::uint32_t wanted = 0;
    for (std::uint32_t i = 0; i < kSampleViewKinds; ++i) {
        if (views_[i] != nullptr && views_[i]->WantsSamples()) wanted |= 1U << i;
    }
    wanted_.store(wanted, std::memory_order_relaxed);
}

// Asked here once more: a view may have been hidden while the sample was on its way.
void SampleViews::Read(const PublishedSample& sample) {
    for (std::uint32_t i = 0; i < kSampleViewKinds; ++i) {
        if ((sample.views & 1U << i) == 0 || views_[i] == nullptr || !views_[i]->WantsSamples()) continue;
        views_[i]->Read(sample);
        toDraw_ |= 1U << i;
    }
}

void SampleViews::Draw() {
    const std::uint32_t drawn = std::exchange(toDraw_, 0U);
    for (std::uint32_t i = 0; i < kSampleViewKinds; ++i) {
        if ((drawn & 1U << i) != 0 && views_[i] != nullptr) views_[i]->Draw();
    }
}

}  // namespace corvex
