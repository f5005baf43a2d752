// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/audio_player.h"
#include "support/disk_fixture.h"

#include <algorithm>
#include <chrono>
#include <thread>

namespace velmoriax::desktop {
namespace {

using namespace std::chrono_literals;
namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;
using Mode = platform::SongPlayer::Mode;

/// A song of one note that is held for half a second: 96 ticks at a tempo of 120, which has 192 a second.
std::string shortSong() {
    const std::string track("\x00\xC0\x13\x00\x90\x3C\x70\x60\x80\x3C\x00\x00\xFF\x2F\x00", 15);
    return std::string("MThd\0\0\0\x06\0\0\0\x01\0\x60MTrk\0\0\0\x0F", 22) + track;
}

/// The player on a sound device that writes its samples into a file, so that a test can examine them.
struct SoundOnDisk : test::DiskFixture {
    fs::path samples = root_ / "samples";
    test::Variable driver{"SDL_AUDIODRIVER", "disk"};
    test::Variable device{"SDL_DISKAUDIOFILE", samples};
    test::Variable noFont{"SDL_SOUNDFONTS", ""};
    DiskFiles supplied{{VELMORIAX_DATA_DIR, VELMORIAX_DATA_DIR}};
    std::string suppliedSong = supplied.applicationDirectory() + "\\Are You Lonesome Tonight.mid";

    std::string song(const std::string& name, const std::string& bytes) const {
        write(root_ / name, bytes);
        return root_ / name;
    }
    std::uintmax_t length() const {
        std::error_code error;
        const auto size = fs::file_size(samples, error);
        return error ? 0 : size;
    }
    /// The loudest 16-bit sample after a position. Without a note the synthesizer's samples are not quite 0: it
    /// dithers.
    int loudness(std::uintmax_t start) const {
        std::ifstream file(samples, std::ios::binary);
        file.seekg(static_cast<std::streamoff>(start));
        int loudest = 0;
        for (std::int16_t sample = 0; file.read(reinterpret_cast<char*>(&sample), sizeof sample);)
            loudest = std::max(loudest, std::abs(static_cast<int>(sample)));
        return loudest;
    }
    /// The longest time without a sound between the first and the last one.
    std::chrono::milliseconds longestSilence() const {
        std::ifstream file(samples, std::ios::binary);
        std::optional<int> lastHeard;
        int longest = 0, count = 0;
        for (std::int16_t sample = 0; file.read(reinterpret_cast<char*>(&sample), sizeof sample); ++count) {
            if (std::abs(static_cast<int>(sample)) <= 32) continue;
            longest = std::max(longest, count - lastHeard.value_or(count));
            lastHeard = count;
        }
        constexpr int samplesOfMs = 2 * 44100 / 1000;
        return std::chrono::milliseconds(longest / samplesOfMs);
    }
    bool soundsAfter(std::uintmax_t start) const { return loudness(start) > 32; }
    static bool becomesTrue(const std::function<bool()>& condition) {
        for (const auto end = Clock::now() + 20s; Clock::now() < end; std::this_thread::sleep_for(20ms))
            if (condition()) return true;
        return false;
    }
    /// Whether something is heard from this moment on.
    bool isHeard() const {
        return becomesTrue([this, start = length()] { return soundsAfter(start); });
    }
    /// The song's device, playing. The quickest of three attempts counts, since the machine may be busy with other
    /// things.
    static int openQuickly(AudioPlayer& player, const std::string& path) {
        int device = 0;
        auto quickest = Clock::duration::max();
        for (int i = 0; i < 3; ++i) {
            const auto start = Clock::now();
            device = player.open(path);
            player.play(device);
            quickest = std::min(quickest, Clock::now() - start);
        }
        EXPECT_LT(quickest, 50ms) << path;
        return device;
    }
    /// Whether it falls silent, and stays so.
    bool fallsSilent() const {
        return becomesTrue([this] {
            const auto start = length();
            std::this_thread::sleep_for(300ms);
            return !soundsAfter(start);
        });
    }
    /// Whether the device closes: the file does not grow any more.
    bool closesTheDevice() const {
        return becomesTrue([this] {
            const auto before = length();
            std::this_thread::sleep_for(300ms);
            return length() == before;
        });
    }
};

TEST_F(SoundOnDisk, PlaysEachWaveSoundOnce) {
    AudioPlayer player(supplied, VELMORIAX_PLUGIN_DIR);
    for (const char* name : {"boop.wav", "Trumpet.wav", "Url.wav"}) {
        fs::remove(samples);
        player.playWav(name);
        EXPECT_TRUE(isHeard()) << name;
        EXPECT_TRUE(closesTheDevice()) << name;
    }
}

TEST_F(SoundOnDisk, PlaysTheSuppliedSongUntilItIsSwitchedOff) {
    AudioPlayer player(supplied, VELMORIAX_PLUGIN_DIR);
    const int device = player.open(suppliedSong);
    ASSERT_NE(device, 0);
    player.play(device);
    EXPECT_EQ(player.mode(device), Mode::playing);
    EXPECT_TRUE(isHeard());
    player.playWav("boop.wav");
    EXPECT_TRUE(isHeard());
    player.closeAll();
    EXPECT_EQ(player.mode(device), Mode::none);
    EXPECT_TRUE(fallsSilent());
}

TEST_F(SoundOnDisk, PlaysASongAgainAfterItsEnd) {
    AudioPlayer player(files_, VELMORIAX_PLUGIN_DIR);
    const int device = player.open(song("short.mid", shortSong()));
    for (int turn = 0; turn < 2; ++turn) {
        player.rewind(device);
        player.play(device);
        EXPECT_EQ(player.mode(device), Mode::playing);
        ASSERT_TRUE(isHeard());
        ASSERT_TRUE(becomesTrue([&] { return player.mode(device) == Mode::stopped; }));
        ASSERT_TRUE(fallsSilent());
    }
}

/// The listener of the samples: a song that is started again as soon as it has ended leaves no gap that is heard.
TEST_F(SoundOnDisk, PlaysASongRoundAndRoundWithoutAGap) {
    AudioPlayer player(files_, VELMORIAX_PLUGIN_DIR);
    const int device = player.open(song("short.mid", shortSong()));
    for (int turn = 0; turn < 2; ++turn) {
        player.rewind(device);
        player.play(device);
        ASSERT_TRUE(becomesTrue([&] { return player.mode(device) == Mode::stopped; }));
        if (turn == 0) std::this_thread::sleep_for(500ms); // the window asks twice a second
    }
    player.close(device);
    EXPECT_LT(longestSilence(), 700ms);
}

TEST_F(SoundOnDisk, StaysSilentAndQuickWithoutASong) {
    const std::string header = shortSong().substr(0, 22);
    const test::Table<std::string, const char*> rows{
        {root_ / "missing.mid", "missing"},
        {root_, "a folder"},
        {song("empty.mid", ""), "empty"},
        {song("text.mid", "no song at all"), "not MIDI"},
        {song("wave.mid", "RIFF\x24\0\0\0WAVEfmt "), "another kind of sound"},
        {song("cut.mid", shortSong().substr(0, 12)), "cut off in the header"},
        {song("damaged.mid", header + std::string(15, '\xFF')), "a track of rubbish"},
        {song("huge.mid", shortSong() + std::string(5U << 20U, '\0')), "larger than any song"},
    };
    AudioPlayer player(files_, VELMORIAX_PLUGIN_DIR);
    for (const auto& [path, why] : rows) {
        const int device = openQuickly(player, path);
        EXPECT_TRUE(becomesTrue([&] { return player.mode(device) == Mode::none; })) << why;
        EXPECT_FALSE(soundsAfter(0)) << why;
        player.close(device);
    }
    for (const char* name : {"missing.wav", "text.mid"}) player.playWav(name);
    EXPECT_TRUE(fallsSilent());
    EXPECT_FALSE(soundsAfter(0));
}

TEST_F(SoundOnDisk, StaysSilentAndQuickWithoutADeviceOrASoundFont) {
    const std::string path = song("short.mid", shortSong());
    for (const auto& [name, value] : test::Table<const char*, const char*>{
             {"SDL_AUDIODRIVER", "nosuchdriver"}, {"SDL_SOUNDFONTS", "/nonexistent/font.sf2"}}) {
        const test::Variable variable(name, value);
        AudioPlayer player(files_, VELMORIAX_PLUGIN_DIR);
        const int device = openQuickly(player, path);
        EXPECT_TRUE(becomesTrue([&] { return player.mode(device) == Mode::none; })) << name;
    }
}

TEST_F(SoundOnDisk, EndsCleanlyWhileASongIsLoaded) {
    for (const auto pause : {0ms, 5ms, 40ms, 120ms}) {
        AudioPlayer player(supplied, VELMORIAX_PLUGIN_DIR);
        const int device = player.open(suppliedSong);
        player.play(device);
        player.stop(device);
        player.play(device);
        std::this_thread::sleep_for(pause);
    }
    const auto written = length();
    std::this_thread::sleep_for(200ms);
    EXPECT_EQ(length(), written) << "nothing is played after the end";
}

} // namespace
} // namespace velmoriax::desktop
