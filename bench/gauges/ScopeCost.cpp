#include "bench/gauges/ScopeCost.h"

#include <cstdio>
#include <memory>
#include <vector>

#include "bench/desktop/Figures.h"
#include "controls/scope/Scope.h"
#include "tests/controls/window/ShownControl.h"

namespace corvex::bench {

namespace {

constexpr int kScopeWidths[] = {100, 500, 1500}, kScopeHeight = 300, kScopeRounds = 400;

// The window's copies for one sample: the trace onto itself, frame and trace onto a bitmap, and that onto the screen.
class PixelCopies {
public:
    explicit PixelCopies(const ShownControl& shown) : screen_(shown.Window()), size_(ClientOf(shown.Window())) {}
    void Run() const {
        constexpr int kStep = 3;
        Copy(trace_.dc.Get(), trace_, size_.right - kStep, kStep, SRCCOPY);
        Copy(sheet_.dc.Get(), frame_, shown_.right, 0, SRCCOPY);
        Copy(sheet_.dc.Get(), trace_, shown_.right, 0, SRCPAINT);
        Copy(screen_.Get(), sheet_, shown_.right, 0, SRCCOPY);
    }

private:
    struct Layer {
        Layer(HDC like, const RECT& size)
            : dc(like),
              bitmap(::CreateCompatibleBitmap(like, size.right, size.bottom)),
              selected(dc.Get(), bitmap.Get()) {}
        const MemoryDc dc;
        const OwnedBitmap bitmap;
        const SelectGuard selected;
    };
    void Copy(HDC to, const Layer& from, LONG width, int shift, DWORD operation) const {
        ::BitBlt(to, 0, 0, static_cast<int>(width), size_.bottom, from.dc.Get(), shift, 0, operation);
    }
    // The screen may be narrower than the window.
    static RECT ShownOf(HDC dc) {
        RECT shown{};
        ::GetClipBox(dc, &shown);
        return shown;
    }

    const ClientDc screen_;
    const RECT size_, shown_ = ShownOf(screen_.Get());
    const Layer frame_{screen_.Get(), size_}, trace_{screen_.Get(), size_}, sheet_{screen_.Get(), size_};
};

struct MeasuredScope {
    explicit MeasuredScope(int width) : shown(kScopeClass, width, kScopeHeight), copies(shown) {}
    const ShownControl shown;
    const PixelCopies copies;
    std::vector<double> alone, drawn, copied;
};

}  // namespace

void PrintScopeCost() {
    Scope::Register(::GetModuleHandleA(nullptr));
    // One kind of round after the other, so that noise hits all alike.
    std::vector<std::unique_ptr<MeasuredScope>> all;
    for (const int width : kScopeWidths)
        all.push_back(std::make_unique<MeasuredScope>(width));
    for (int round = 0; round < kScopeRounds; ++round) {
        const double sample = round % 20 - 10.0;
        for (const auto& scope : all) {
            const auto add = [&] { scope->shown.Send(SCM_ADDSAMPLE, 0, L(&sample)); };
            scope->alone.push_back(Microseconds(add));
            scope->drawn.push_back(Microseconds([&] {
                add();
                ::UpdateWindow(scope->shown.Window());
            }));
            scope->copied.push_back(Microseconds([&] { scope->copies.Run(); }));
        }
    }
    for (std::size_t i = 0; i < all.size(); ++i) {
        const double drawn = Median(all[i]->drawn), copied = Median(all[i]->copied);
        std::printf(
            "scope of %d pixels: a sample %.0f us, until it is on the screen %.0f us; its copies alone %.0f us, "
            "the rest %.0f us (wanted: no more with the width)\n",
            kScopeWidths[i], Median(all[i]->alone), drawn, copied, drawn - copied);
    }
}

}  // namespace corvex::bench
