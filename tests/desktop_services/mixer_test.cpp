// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/mixer.h"
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

/// A song of one note that is held for half a second: a tempo of 120, so 96 ticks a beat make 192 ticks a second.
std::string shortSong() {
    const std::string track("\x00\xC0\x13\x00\x90\x3C\x70\x60\x80\x3C\x00\x00\xFF\x2F\x00", 15);
    return std::string("MThd\0\0\0\x06\0\0\0\x01\0\x60MTrk\0\0\0\x0F", 22) + track;
}

/// The mixer on a sound device that writes its samples into a file, so that a test can hear.
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
    /// The loudest 16-bit sample behind a place. What the synthesizer gives without a note is not quite 0: it dithers.
    int loudness(std::uintmax_t start) const {
        std::ifstream file(samples, std::ios::binary);
        file.seekg(static_cast<std::streamoff>(start));
        int loudest = 0;
        for (std::int16_t sample = 0; file.read(reinterpret_cast<char*>(&sample), sizeof sample);)
            loudest = std::max(loudest, std::abs(static_cast<int>(sample)));
        return loudest;
    }
    bool soundsBehind(std::uintmax_t start) const { return loudness(start) > 32; }
    static bool comesTrue(const std::function<bool()>& condition) {
        for (const auto end = Clock::now() + 20s; Clock::now() < end; std::this_thread::sleep_for(20ms))
            if (condition()) return true;
        return false;
    }
    /// Whether something is heard from this moment on.
    bool isHeard() const {
        return comesTrue([this, start = length()] { return soundsBehind(start); });
    }
    /// The song's device, playing. Of three times the quickest counts, since the machine may be busy with other things.
    static int openQuickly(Mixer& mixer, const std::string& path) {
        int device = 0;
        auto quickest = Clock::duration::max();
        for (int i = 0; i < 3; ++i) {
            const auto start = Clock::now();
            device = mixer.open(path);
            mixer.play(device);
            quickest = std::min(quickest, Clock::now() - start);
        }
        EXPECT_LT(quickest, 50ms) << path;
        return device;
    }
    /// Whether it falls silent, and stays so.
    bool fallsSilent() const {
        return comesTrue([this] {
            const auto start = length();
            std::this_thread::sleep_for(300ms);
            return !soundsBehind(start);
        });
    }
    /// Whether the device closes: the file grows no more.
    bool comesToRest() const {
        return comesTrue([this] {
            const auto before = length();
            std::this_thread::sleep_for(300ms);
            return length() == before;
        });
    }
};

TEST_F(SoundOnDisk, PlaysEachWaveSoundOnce) {
    Mixer mixer(supplied, VELMORIAX_PLUGIN_DIR);
    for (const char* name : {"boop.wav", "Trumpet.wav", "Url.wav"}) {
        fs::remove(samples);
        mixer.playWav(name);
        EXPECT_TRUE(isHeard()) << name;
        EXPECT_TRUE(comesToRest()) << name;
    }
}

TEST_F(SoundOnDisk, PlaysTheSuppliedSongUntilItIsSwitchedOff) {
    Mixer mixer(supplied, VELMORIAX_PLUGIN_DIR);
    const int device = mixer.open(suppliedSong);
    ASSERT_NE(device, 0);
    mixer.play(device);
    EXPECT_EQ(mixer.mode(device), Mode::playing);
    EXPECT_TRUE(isHeard());
    mixer.playWav("boop.wav");
    EXPECT_TRUE(isHeard());
    mixer.closeAll();
    EXPECT_EQ(mixer.mode(device), Mode::none);
    EXPECT_TRUE(fallsSilent());
}

TEST_F(SoundOnDisk, GoesRoundWhenTheSongHasEnded) {
    Mixer mixer(files_, VELMORIAX_PLUGIN_DIR);
    const int device = mixer.open(song("short.mid", shortSong()));
    for (int round = 0; round < 2; ++round) {
        mixer.rewind(device);
        mixer.play(device);
        EXPECT_EQ(mixer.mode(device), Mode::playing);
        ASSERT_TRUE(isHeard());
        ASSERT_TRUE(comesTrue([&] { return mixer.mode(device) == Mode::stopped; }));
        ASSERT_TRUE(fallsSilent());
    }
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
    Mixer mixer(files_, VELMORIAX_PLUGIN_DIR);
    for (const auto& [path, why] : rows) {
        const int device = openQuickly(mixer, path);
        EXPECT_TRUE(comesTrue([&] { return mixer.mode(device) == Mode::none; })) << why;
        EXPECT_FALSE(soundsBehind(0)) << why;
        mixer.close(device);
    }
    for (const char* name : {"missing.wav", "text.mid"}) mixer.playWav(name);
    EXPECT_TRUE(fallsSilent());
    EXPECT_FALSE(soundsBehind(0));
}

TEST_F(SoundOnDisk, StaysSilentAndQuickWithoutADeviceOrASoundFont) {
    const std::string path = song("short.mid", shortSong());
    for (const auto& [name, value] : test::Table<const char*, const char*>{
             {"SDL_AUDIODRIVER", "nosuchdriver"}, {"SDL_SOUNDFONTS", "/nonexistent/font.sf2"}}) {
        const test::Variable variable(name, value);
        Mixer mixer(files_, VELMORIAX_PLUGIN_DIR);
        const int device = openQuickly(mixer, path);
        EXPECT_TRUE(comesTrue([&] { return mixer.mode(device) == Mode::none; })) << name;
    }
}

TEST_F(SoundOnDisk, EndsCleanlyWhileASongIsLoaded) {
    for (const auto pause : {0ms, 5ms, 40ms, 120ms}) {
        Mixer mixer(supplied, VELMORIAX_PLUGIN_DIR);
        const int device = mixer.open(suppliedSong);
        mixer.play(device);
        mixer.stop(device);
        mixer.play(device);
        std::this_thread::sleep_for(pause);
    }
    const auto written = length();
    std::this_thread::sleep_for(200ms);
    EXPECT_EQ(length(), written) << "nothing plays on behind the mixer's back";
}

} // namespace
} // namespace velmoriax::desktop
