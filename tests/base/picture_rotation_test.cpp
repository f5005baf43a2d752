// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/picture_rotation.h"
#include "support/helpers.h"

namespace velmoriax::base {
namespace {

/// A surface of pixels that are all different, with a filler behind each row that no turn may touch.
struct Picture {
    static constexpr std::uint8_t filler = 0xEE;
    std::vector<std::uint8_t> bytes;
    PixelSurface surface;

    Picture(int width, int height, int bytesPerPixel, int padding = 0) {
        const int bytesPerRow = width * bytesPerPixel + padding;
        bytes.assign(static_cast<std::size_t>(bytesPerRow * height), filler);
        std::uint8_t next = 1;
        for (int row = 0; row < height; ++row)
            for (int i = 0; i < width * bytesPerPixel; ++i)
                bytes[static_cast<std::size_t>(row * bytesPerRow + i)] = next++;
        surface = {bytes, width, height, bytesPerRow, bytesPerPixel};
    }
    Picture(const Picture&) = delete;
};

using Bytes = std::vector<std::uint8_t>;

TEST(RotatePicture, MapsThePixelsOfASquareInEachMode) {
    const test::Table<int, Bytes, const char*> rows{
        // of 1 2 3 / 4 5 6 / 7 8 9
        {turn::clockwise, {7, 4, 1, 8, 5, 2, 9, 6, 3}, "the left column becomes the top row"},
        {turn::half, {9, 8, 7, 6, 5, 4, 3, 2, 1}, "read backwards"},
        {turn::counterClockwise, {3, 6, 9, 2, 5, 8, 1, 4, 7}, "the right column becomes the top row"},
        {3, Bytes(9, 0), "a mode that copies nothing leaves black"},
        {-1, Bytes(9, 0), "below the modes likewise"},
    };
    for (const auto& [mode, expected, why] : rows) {
        Picture picture(3, 3, 1);
        rotatePicture(picture.surface, mode, 0, 0, 3, 3);
        EXPECT_EQ(picture.bytes, expected) << why;
    }
}

TEST(RotatePicture, KeepsTheOrderOfAPixelsBytesAndDoesNotShearPaddedRows) {
    Picture picture(3, 2, 2, 3);
    rotatePicture(picture.surface, turn::half, 0, 0, 3, 2);
    constexpr auto f = Picture::filler;
    EXPECT_EQ(picture.bytes, (Bytes{11, 12, 9, 10, 7, 8, f, f, f, 5, 6, 3, 4, 1, 2, f, f, f}));
}

TEST(RotatePicture, TurnsTheRectangleAloneAndCutsItAtTheEdge) {
    Picture inside(4, 3, 1);
    rotatePicture(inside.surface, turn::half, 1, 0, 2, 3);
    EXPECT_EQ(inside.bytes, (Bytes{1, 11, 10, 4, 5, 7, 6, 8, 9, 3, 2, 12}));

    Picture across(2, 2, 1);
    rotatePicture(across.surface, turn::half, 1, 1, 2, 2);
    EXPECT_EQ(across.bytes, (Bytes{1, 2, 3, 0})) << "what lies outside is black and comes in by the turn";
}

TEST(RotatePicture, TwoHalfTurnsAndFourQuarterTurnsRestoreThePicture) {
    for (const int mode : {turn::clockwise, turn::half, turn::counterClockwise}) {
        Picture picture(5, 5, 4, 1);
        const Bytes before = picture.bytes;
        for (int i = 0; i < (mode == turn::half ? 2 : 4); ++i) rotatePicture(picture.surface, mode, 1, 1, 4, 4);
        EXPECT_EQ(picture.bytes, before) << mode;
    }
}

TEST(RotatePicture, RefusesAQuarterTurnOfWhatIsNotSquareAndLeavesItUnchanged) {
    for (const int mode : {turn::clockwise, turn::counterClockwise}) {
        Picture picture(3, 2, 1);
        const Bytes before = picture.bytes;
        EXPECT_EQ(test::codeOf([&] { rotatePicture(picture.surface, mode, 0, 0, 3, 2); }),
                  base::RunTimeError::Code::subscriptOutOfRange);
        EXPECT_EQ(picture.bytes, before);
    }
}

} // namespace
} // namespace velmoriax::base
