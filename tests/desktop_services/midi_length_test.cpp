// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/midi_length.h"
#include "support/helpers.h"

namespace velmoriax::desktop {
namespace {

using namespace std::chrono_literals;

std::string chunk(const std::string& kind, const std::string& bytes) {
    const auto size = static_cast<char>(bytes.size());
    return kind + std::string(3, '\0') + size + bytes;
}

std::string song(const std::string& division, const std::vector<std::string>& tracks) {
    std::string bytes = chunk("MThd", std::string("\0\1\0\1", 4) + division);
    for (const std::string& track : tracks) bytes += chunk("MTrk", track);
    return bytes;
}

const std::string quarterOf96("\0\x60", 2);
const std::string note("\0\x90\x3C\x40", 4);   ///< at once
const std::string offAfter96("\x60\x3C\0", 3); ///< with running status
const std::string end("\0\xFF\x2F\0", 4);
const std::string twiceAsSlow("\0\xFF\x51\3\x0F\x42\x40", 7); ///< a second for a quarter note

TEST(MidiLength, IsTheTimeOfTheLongestTrackWithItsTempos) {
    EXPECT_EQ(midiLength(song(quarterOf96, {note + offAfter96 + end})), 500ms);
    EXPECT_EQ(midiLength(song(quarterOf96, {twiceAsSlow + note + offAfter96 + end})), 1s);
    EXPECT_EQ(midiLength(song(quarterOf96, {note + offAfter96 + twiceAsSlow + "\x60" + note.substr(1) + end})), 1500ms);
    EXPECT_EQ(midiLength(song(quarterOf96, {twiceAsSlow + end, note + offAfter96 + "\x81\x40\xFF\x2F" + '\0'})), 3s)
        << "the tempo of one track holds for all; the rest to the end of the track counts";
    EXPECT_EQ(midiLength(song("\xE7\x28", {note + offAfter96 + end})), 96ms) << "25 frames of 40 ticks";
}

TEST(MidiLength, IsUnknownForWhatIsNoWholeSong) {
    const std::string whole = song(quarterOf96, {note + offAfter96 + end});
    for (std::size_t size = 0; size + 4 < whole.size(); ++size)
        EXPECT_EQ(midiLength(whole.substr(0, size)), std::nullopt) << size;
    EXPECT_EQ(midiLength(song(quarterOf96, {})), std::nullopt);
    EXPECT_EQ(midiLength(song(quarterOf96, {std::string(15, '\xFF')})), std::nullopt);
    EXPECT_EQ(midiLength(test::bytesOf(VELMORIAX_DATA_DIR "/Are You Lonesome Tonight.mid")).has_value(), true);
}

} // namespace
} // namespace velmoriax::desktop
