// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/fakes.h"
#include "tarot/ambient_sound.h"

namespace velmoriax::tarot {
namespace {

using Mode = platform::Media::Mode;

struct Ambient : testing::Test {
    test::FakeFiles files;
    test::FakeMedia media;
    test::FakeEvents events;
    shell::OptionsStore options{files};
    AmbientServices services{media, events, options, files.directory};
    AmbientSound sound;
    std::string supplied = files.directory + "\\Are You Lonesome Tonight.mid";

    Ambient() { media.songs = {supplied, "/music/own.mid"}; }
};

TEST_F(Ambient, StartsByTheTwoOptions) {
    using Starts = std::vector<std::string>;
    const test::Table<const char*, const char*, bool, Starts, const char*> rows{
        {"", "", true, {supplied}, "sound is on by default"},
        {"yes", "/music/own.mid", true, {"/music/own.mid"}, "the user's own song"},
        {"nop", "", false, {}, "switched off"},
        {"Yes", "", false, {}, "words are compared exactly"},
        {"yes", "/music/gone.mid", true, {}, "the switch stands on over a song that is missing"},
    };
    for (const auto& [wanted, song, on, starts, why] : rows) {
        options.setOption(shell::key::soundAmbient, wanted);
        options.setOption(shell::key::songAmbient, song);
        media.starts.clear();
        sound = {7, "", true};
        EXPECT_EQ(startAmbient(sound, services), on) << why;
        EXPECT_EQ(sound.timerOn, on) << why;
        EXPECT_EQ(media.starts, starts) << why;
        if (on) EXPECT_EQ(sound.midiDeviceId != 0, !starts.empty()) << why;
    }
}

TEST_F(Ambient, LetsEventsRunBetweenOpeningAndPlaying) {
    events.whatRuns = [this] {
        EXPECT_EQ(media.mode(media.openDevice), Mode::stopped);
        EXPECT_EQ(sound.midiDeviceId, 0) << "the device is known only afterwards";
        tickMidi(sound, media);
    };
    startAmbient(sound, services);
    EXPECT_EQ(events.runs, 1);
    EXPECT_EQ(media.starts.size(), 1U);
}

TEST_F(Ambient, BeginsAgainOnlyFromTheEnd) {
    startAmbient(sound, services);
    tickMidi(sound, media);
    EXPECT_EQ(media.starts.size(), 1U);
    media.ends();
    tickMidi(sound, media);
    EXPECT_EQ(media.starts, (std::vector{supplied, supplied}));
    stopMidi(sound, media);
    EXPECT_NE(sound.midiDeviceId, 0) << "the number stays when the window closes";
    tickMidi(sound, media);
    EXPECT_EQ(media.starts.size(), 2U);
}

TEST_F(Ambient, SwitchesAndTakesAChosenSongAtTheNextStart) {
    test::FakeBoxes boxes;
    startAmbient(sound, services);
    boxes.fileAnswers = {"/music/own.mid", std::nullopt};
    chooseSong(boxes, services);
    chooseSong(boxes, services);
    EXPECT_EQ(options.option(shell::key::songAmbient), "/music/own.mid") << "a cancel leaves it";
    EXPECT_EQ(media.song, supplied) << "what plays goes on";

    switchAmbientOff(sound, services);
    EXPECT_EQ(media.openDevice, 0);
    EXPECT_FALSE(sound.timerOn);
    EXPECT_EQ(options.option(shell::key::soundAmbient), "nop");
    switchAmbientOn(sound, services);
    EXPECT_EQ(media.starts.back(), "/music/own.mid");
    EXPECT_EQ(options.option(shell::key::soundAmbient), "yes");
}

} // namespace
} // namespace velmoriax::tarot
