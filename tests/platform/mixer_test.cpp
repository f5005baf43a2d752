// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/mixer.h"

#include "support/fakes.h"
#include "tarot/ambient_sound.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <fstream>
#include <thread>
#include <unistd.h>

namespace velmoriax::desktop {
namespace {

using namespace std::chrono_literals;
namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;
using Mode = platform::Media::Mode;

/// A song of one note that is held for half a second: a tempo of 120, so 96 ticks a beat make 192 ticks a second.
std::string shortSong() {
    const std::string track("\x00\xC0\x13\x00\x90\x3C\x70\x60\x80\x3C\x00\x00\xFF\x2F\x00", 15);
    return std::string("MThd\0\0\0\x06\0\0\0\x01\0\x60MTrk\0\0\0\x0F", 22) + track;
}

/// The mixer on a sound device that writes its samples into a file, so that a test can hear.
struct SoundOnDisk : testing::Test {
    fs::path folder = fs::temp_directory_path() / ("velmoriax-sound-" + std::to_string(::getpid()));
    fs::path samples = folder / "samples";

    SoundOnDisk() {
        fs::create_directories(folder);
        ::setenv("SDL_AUDIODRIVER", "disk", 1);
        ::setenv("SDL_DISKAUDIOFILE", samples.c_str(), 1);
        ::unsetenv("SDL_SOUNDFONTS");
    }
    ~SoundOnDisk() override { fs::remove_all(folder); }

    std::string song(const std::string& name, const std::string& bytes) const {
        std::ofstream(folder / name, std::ios::binary) << bytes;
        return (folder / name).string();
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
};

TEST_F(SoundOnDisk, PlaysEachWaveSoundOnce) {
    const DiskFiles files({VELMORIAX_DATA_DIR, VELMORIAX_DATA_DIR});
    Mixer mixer(files, VELMORIAX_LIBRARY_DIR);
    for (const char* name : {"boop.wav", "Trumpet.wav", "Url.wav"}) {
        fs::remove(samples);
        mixer.playWav(name);
        EXPECT_TRUE(isHeard()) << name;
        EXPECT_TRUE(fallsSilent()) << name;
        // The device closes after a while of silence: the file grows no more.
        EXPECT_TRUE(comesTrue([this] {
            const auto before = length();
            std::this_thread::sleep_for(300ms);
            return length() == before;
        })) << name;
    }
}

TEST_F(SoundOnDisk, PlaysTheSuppliedSongUntilItIsSwitchedOff) {
    const DiskFiles files({VELMORIAX_DATA_DIR, VELMORIAX_DATA_DIR});
    Mixer mixer(files, VELMORIAX_LIBRARY_DIR);
    const int device = mixer.open(files.applicationDirectory() + "\\Are You Lonesome Tonight.mid");
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
    const DiskFiles files({folder, folder});
    Mixer mixer(files, VELMORIAX_LIBRARY_DIR);
    test::FakeEvents events;
    test::FakeFiles memory;
    shell::OptionsStore options(memory);
    const tarot::AmbientServices services{mixer, events, options, folder.string()};
    tarot::AmbientSound sound;
    tarot::openMidiDevice(sound, song("short.mid", shortSong()), services);
    ASSERT_TRUE(isHeard());
    ASSERT_TRUE(comesTrue([&] { return mixer.mode(sound.midiDeviceId) == Mode::stopped; }));
    ASSERT_TRUE(fallsSilent());

    tarot::tickMidi(sound, mixer);
    EXPECT_EQ(mixer.mode(sound.midiDeviceId), Mode::playing);
    EXPECT_TRUE(isHeard());
    tarot::switchAmbientOff(sound, services);
    EXPECT_TRUE(fallsSilent());
}

TEST_F(SoundOnDisk, StaysSilentAndQuickWithoutASong) {
    const std::string header = shortSong().substr(0, 22);
    const std::pair<std::string, const char*> cases[]{
        {(folder / "missing.mid").string(), "missing"},
        {folder.string(), "a folder"},
        {song("empty.mid", ""), "empty"},
        {song("text.mid", "no song at all"), "not MIDI"},
        {song("wave.mid", "RIFF\x24\0\0\0WAVEfmt "), "another kind of sound"},
        {song("cut.mid", shortSong().substr(0, 12)), "cut off in the header"},
        {song("damaged.mid", header + std::string(15, '\xFF')), "a track of rubbish"},
        {song("huge.mid", shortSong() + std::string(5U << 20U, '\0')), "larger than any song"},
    };
    const DiskFiles files({folder, folder});
    Mixer mixer(files, VELMORIAX_LIBRARY_DIR);
    for (const auto& [path, why] : cases) {
        fs::remove(samples);
        const int device = openQuickly(mixer, path);
        EXPECT_TRUE(comesTrue([&] { return mixer.mode(device) == Mode::none; })) << why;
        EXPECT_FALSE(soundsBehind(0)) << why;
        mixer.close(device);
    }
    mixer.playWav("missing.wav");
    mixer.playWav("text.mid");
    EXPECT_TRUE(fallsSilent());
}

TEST_F(SoundOnDisk, StaysSilentAndQuickWithoutADeviceOrASoundFont) {
    const std::string path = song("short.mid", shortSong());
    const std::pair<const char*, const char*> cases[]{{"SDL_AUDIODRIVER", "nosuchdriver"},
                                                      {"SDL_SOUNDFONTS", "/nonexistent/font.sf2"}};
    for (const auto& [variable, value] : cases) {
        const char* before = std::getenv(variable);
        const std::string kept = before ? before : "";
        ::setenv(variable, value, 1);
        const DiskFiles files({folder, folder});
        Mixer mixer(files, VELMORIAX_LIBRARY_DIR);
        const int device = openQuickly(mixer, path);
        EXPECT_TRUE(comesTrue([&] { return mixer.mode(device) == Mode::none; })) << variable;
        ::setenv(variable, kept.c_str(), 1);
    }
}

TEST_F(SoundOnDisk, EndsCleanlyWhileASongIsLoaded) {
    const DiskFiles files({VELMORIAX_DATA_DIR, VELMORIAX_DATA_DIR});
    for (const auto pause : {0ms, 5ms, 40ms, 120ms}) {
        Mixer mixer(files, VELMORIAX_LIBRARY_DIR);
        const int device = mixer.open(files.applicationDirectory() + "\\Are You Lonesome Tonight.mid");
        mixer.play(device);
        mixer.stop(device);
        mixer.play(device);
        std::this_thread::sleep_for(pause);
    }
}

} // namespace
} // namespace velmoriax::desktop
