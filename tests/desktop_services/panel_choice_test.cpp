// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/panel_choice.h"
#include "support/helpers.h"

namespace velmoriax::desktop {
namespace {

using Position = platform::TaskBarPosition;
using enum Position::Edge;

constexpr QRect noIcon;

TEST(PanelChoice, TakesThePanelWithTheIconThenTheOneAtTheBottomThenTheThickest) {
    const QRect screen(0, 0, 1280, 800);
    const QRect second(1280, 100, 1000, 700);
    const test::Table<QRect, QRect, QRect, std::optional<Position>, const char*> rows{
        {screen, screen, noIcon, std::nullopt, "no panel"},
        {screen, {0, 0, 1280, 770}, noIcon, Position{0, 770, 1280, 800, bottomEdge}, "one at the bottom"},
        {screen, {0, 30, 1280, 770}, noIcon, Position{0, 0, 1280, 30, topEdge}, "one at the top"},
        {screen, {0, 0, 1200, 800}, noIcon, Position{1200, 0, 1280, 800, rightEdge}, "one at the right"},
        {screen, {50, 0, 1230, 800}, noIcon, Position{0, 0, 50, 800, leftEdge}, "one at the left"},
        {screen, {0, 40, 1280, 730}, noIcon, Position{0, 770, 1280, 800, bottomEdge}, "the bottom, although thinner"},
        {screen, {0, 40, 1280, 730}, {1200, 8, 24, 24}, Position{0, 0, 1280, 40, topEdge}, "the one with the icon"},
        {screen, screen, {1200, 758, 24, 24}, Position{0, 739, 1280, 800, bottomEdge}, "one that reserves nothing"},
        {screen,
         screen,
         {1244, 300, 24, 24},
         Position{1231, 0, 1280, 800, rightEdge},
         "one at the right that does not"},
        {screen,
         {0, 40, 1280, 760},
         {600, 778, 20, 20},
         Position{0, 775, 1280, 800, bottomEdge},
         "beside one that does"},
        {screen, screen, {600, 400, 24, 24}, std::nullopt, "an icon in the midst of the screen"},
        {screen, {50, 30, 1230, 770}, noIcon, Position{0, 0, 50, 800, leftEdge}, "none at the bottom: the thicker"},
        {second, {1320, 100, 960, 700}, noIcon, Position{1280, 100, 1320, 800, leftEdge}, "beside another screen"},
        {second, {1280, 100, 960, 700}, noIcon, Position{2240, 100, 2280, 800, rightEdge}, "beside another screen"},
    };
    for (const auto& [area, work, icon, panel, why] : rows) EXPECT_EQ(panelOf(area, work, icon), panel) << why;
}

TEST(PanelChoice, ReadsTheBandsThatAWindowReserves) {
    const QSize desktop(2280, 800);
    using Bands = std::vector<QRect>;
    EXPECT_EQ(reservedBands({50, 0, 0, 0, 10, 799, 0, 0, 0, 0, 0, 0}, desktop), (Bands{{0, 10, 50, 790}}));
    EXPECT_EQ(reservedBands({0, 40, 0, 0, 0, 0, 100, 799, 0, 0, 0, 0}, desktop), (Bands{{2240, 100, 40, 700}}));
    EXPECT_EQ(reservedBands({0, 0, 30, 25, 0, 0, 0, 0, 0, 1279, 1280, 2279}, desktop),
              (Bands{{0, 0, 1280, 30}, {1280, 775, 1000, 25}}));
    EXPECT_TRUE(reservedBands({50, 0, 0, 0, 10, 799, 0, 0, 0, 0, 0}, desktop).empty()) << "a number is missing";
}

TEST(PanelChoice, CutsEachBandOffTheEdgeThatItRunsAlong) {
    const QRect screen(0, 0, 1280, 800);
    const test::Table<QRect, QRect> rows{
        {{0, 770, 1280, 30}, {0, 0, 1280, 770}},
        {{0, 0, 1280, 30}, {0, 30, 1280, 770}},
        {{0, 0, 50, 800}, {50, 0, 1230, 800}},
        {{1230, 0, 50, 800}, {0, 0, 1230, 800}},
        {{1280, 0, 50, 800}, screen},
    };
    for (const auto& [band, work] : rows) EXPECT_EQ(workArea(screen, 1, {band}), work) << band.x() << ", " << band.y();
    EXPECT_EQ(workArea(screen, 1, {{0, 770, 1280, 30}, {0, 0, 50, 800}}), QRect(50, 0, 1230, 770));
    EXPECT_EQ(workArea({1280, 100, 2000, 1400}, 2, {{1280, 100, 2000, 60}}), QRect(1280, 130, 1000, 670))
        << "two native pixels make a logical one, but the corner is the same";
}

} // namespace
} // namespace velmoriax::desktop
