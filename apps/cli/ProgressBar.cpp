#include "apps/cli/ProgressBar.h"

#include <algorithm>
#include <ostream>
#include <string>

#include "export/text/TextFormat.h"

namespace corvex {

namespace {

constexpr std::size_t kWidth = 40;
// "[", the bar, "] 100 %".
constexpr std::size_t kLineWidth = kWidth + 8;

}  // namespace

ProgressBar::ProgressBar(std::ostream& err, bool shown, IClock& clock)
    : err_(err), shown_(shown), clock_(clock), next_(shown ? clock.Counter() + clock.Frequency() / 2 : 0) {}

ProgressBar::~ProgressBar() {
    Clear();
}

void ProgressBar::Update(std::uint64_t done, std::uint64_t total) {
    if (!shown_) return;
    const std::int64_t now = clock_.Counter();
    if (now < next_) return;
    next_ = now + clock_.Frequency() / 10;
    const double share = total == 0 ? 1.0 : std::min(1.0, static_cast<double>(done) / static_cast<double>(total));
    const auto full = static_cast<std::size_t>(share * kWidth);
    err_ << "\r[" << std::string(full, '#') << std::string(kWidth - full, ' ') << ']'
         << Printf(" %3d %%", static_cast<int>(share * 100.0)) << std::flush;
    drawn_ = true;
}

void ProgressBar::Clear() {
    if (drawn_) err_ << '\r' << std::string(kLineWidth, ' ') << '\r' << std::flush;
    drawn_ = false;
}

}  // namespace corvex
