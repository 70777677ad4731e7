#include <gtest/gtest.h>

#include "controls/statusgauge/StatusGaugePaint.h"
#include "tests/controls/window/FigureRecorder.h"
#include "tests/controls/window/PaintTestHelper.h"

namespace corvex {
namespace {

constexpr char kTile[] = "rectangle 0,0,100,100 pen 0 0 000000 brush ffffff";  // of a new context
constexpr char kPaintedTitle[] = "text 50,6 align 6 font Arial 10 600 2 32 colour 000000 transparent: ";
constexpr char kWord[] = "text 50,50 align 6 font Arial 24 600 2 32 colour ";

void Store(GaugeText& text, const std::string& source) {
    text.Set(source.c_str(), source.size());
}

StatusGaugeModel Fan(std::uint32_t state) {
    StatusGaugeModel model;
    Store(model.title, "Fan");
    Store(model.trueText, "ON");
    Store(model.falseText, "OFF");
    model.state = state;
    return model;
}

Figures Painted(const StatusGaugeModel& model, int width, int height) {
    return FiguresOf([&](HDC dc) { PaintStatusGauge(dc, RECT{0, 0, width, height}, model); });
}

// The words that are drawn; a text without characters draws nothing and may leave a record or none.
Figures WordsIn(const Figures& figures) {
    Figures words;
    for (const std::string& line : FiguresOfKind(figures, "text")) {
        const std::string word = line.substr(line.find(": ") + 2);
        if (!word.empty()) words.push_back(word);
    }
    return words;
}

TEST(StatusGaugePaintTest, DrawsTileTitleAndTheWordOnItsBlock) {
    const std::pair<std::uint32_t, const char*> words[] = {
        {0, "000000 on 0000ff: OFF"}, {1, "000000 on 00ff00: ON"}, {2, "000000 on 0000ff: ON"}};
    for (const auto& [state, word] : words) {
        EXPECT_EQ(Painted(Fan(state), 500, 200),
                  (Figures{"mapping anisotropic window 100,100 viewport 500,200", kTile,
                           std::string(kPaintedTitle) + "Fan", std::string(kWord) + word}));
    }
}

TEST(StatusGaugePaintTest, DrawsInItsColours) {
    StatusGaugeModel model = Fan(1);
    model.titleColour = 0x111111;
    model.trueColour = 0x222222;
    model.trueFill = 0x333333;
    model.falseColour = 0x444444;
    model.falseFill = 0x555555;
    const Figures on = Painted(model, 60, 60);
    ASSERT_EQ(on.size(), 4u);
    EXPECT_EQ(on[0], "mapping anisotropic window 100,100 viewport 100,100");
    EXPECT_EQ(on[2], "text 50,6 align 6 font Arial 10 600 2 32 colour 111111 transparent: Fan");
    EXPECT_EQ(on[3], std::string(kWord) + "222222 on 333333: ON");
    model.state = 0;
    EXPECT_EQ(Painted(model, 60, 60)[3], std::string(kWord) + "444444 on 555555: OFF");
}

TEST(StatusGaugePaintTest, AbsentWordLeavesNoBlock) {
    for (const std::uint32_t state : {0u, 1u}) {
        StatusGaugeModel model = Fan(state);
        (state == 1 ? model.trueText : model.falseText).Set(nullptr, 0);
        EXPECT_EQ(WordsIn(Painted(model, 300, 300)), Figures{"Fan"});
        const TestBitmap bitmap(300, 300, 0x123456);
        PaintStatusGauge(bitmap.Dc(), RECT{0, 0, 300, 300}, model);
        // Nothing but the frame below the title, whose letters may be smoothed.
        EXPECT_EQ(bitmap.ColoursIn({0, 60, 300, 300}), (Colours{0x000000u, 0xFFFFFFu}));
    }
}

TEST(StatusGaugePaintTest, TitleIsDrawnWhenItIsThereAndShorterThan100Characters) {
    StatusGaugeModel model = Fan(1);
    for (const auto& [title, words] : {std::pair{std::string(), Figures{"ON"}},
                                       {std::string(99, 't'), Figures{std::string(99, 't'), "ON"}},
                                       {std::string(100, 't'), Figures{"ON"}}}) {
        Store(model.title, title);
        EXPECT_EQ(WordsIn(Painted(model, 300, 300)), words);
    }
}

TEST(StatusGaugePaintTest, RoundTileKeepsItsProportionsOnAGroundOfTheSystems) {
    StatusGaugeModel model = Fan(1);
    model.AddFlags(0x80);
    const Figures figures = Painted(model, 400, 150);
    ASSERT_GE(figures.size(), 3u);
    EXPECT_TRUE(figures[0].starts_with("fill 0,0,400,150"));
    EXPECT_EQ(figures[1], "mapping isotropic window 100,100 viewport 400,150");
    EXPECT_EQ(figures[2], kTile);

    const TestBitmap bitmap(400, 150, 0x123456);
    PaintStatusGauge(bitmap.Dc(), RECT{0, 0, 400, 150}, model);
    EXPECT_EQ(bitmap.At(149, 75), 0u);
    EXPECT_EQ(bitmap.ColoursIn({151, 0, 400, 150}), Colours{::GetSysColor(COLOR_WINDOW)});
}

}  // namespace
}  // namespace corvex
