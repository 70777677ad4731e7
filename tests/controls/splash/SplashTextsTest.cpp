#include <gtest/gtest.h>

#include "controls/splash/SplashTexts.h"
#include "tests/controls/window/PaintTestHelper.h"

namespace corvex {
namespace {

SplashText Item(int id, std::string text, OwnedFont font = OwnedFont()) {
    SplashText item;
    item.itemId = id;
    item.text = std::move(text);
    item.font = std::move(font);
    return item;
}

std::vector<std::string> TextsOf(const SplashTexts& texts) {
    std::vector<std::string> all;
    for (const SplashText& item : texts.Items())
        all.push_back(item.text);
    return all;
}

using Strings = std::vector<std::string>;

TEST(SplashTextsTest, AddsTextsInOrderAndReplacesThatOfAKnownId) {
    SplashTexts texts;
    texts.Set(Item(7, "first"));
    texts.Set(Item(3, "second"));
    EXPECT_EQ(TextsOf(texts), (Strings{"first", "second"}));
    SplashText changed = Item(7, "third");
    changed.colour = 0x123456;
    changed.rectangle = {1, 2, 3, 4};
    texts.Set(std::move(changed));
    EXPECT_EQ(TextsOf(texts), (Strings{"third", "second"}));
    EXPECT_EQ(texts.Items()[0].colour, 0x123456u);
    EXPECT_EQ(texts.Items()[0].rectangle.bottom, 4);
}

TEST(SplashTextsTest, CutsATextAt254Characters) {
    SplashTexts texts;
    texts.Set(Item(1, std::string(254, 'x')));
    texts.Set(Item(2, std::string(255, 'y')));
    EXPECT_EQ(TextsOf(texts), (Strings{std::string(254, 'x'), std::string(254, 'y')}));
}

TEST(SplashTextsTest, OwnsTheFontsAndDropsTheReplaced) {
    const std::size_t before = LiveGdiObjects();
    {
        SplashTexts texts;
        texts.Set(Item(1, "text", MakeTestFont()));
        texts.Set(Item(2, "text", MakeTestFont()));
        EXPECT_EQ(LiveGdiObjects(), before + 2);
        texts.Set(Item(1, "text", MakeTestFont()));
        EXPECT_EQ(LiveGdiObjects(), before + 2);
        texts.Set(Item(2, "text"));
        EXPECT_EQ(LiveGdiObjects(), before + 1);
    }
    EXPECT_EQ(LiveGdiObjects(), before);
}

}  // namespace
}  // namespace corvex
