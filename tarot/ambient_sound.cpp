// SPDX-License-Identifier: GPL-3.0-or-later
#include "tarot/ambient_sound.h"

namespace velmoriax::tarot {

namespace {

constexpr std::string_view suppliedSong = "\\Are You Lonesome Tonight.mid";

constexpr std::string_view songRefused =
    "This song cannot be remembered. Its path may have more than 254 characters or letters that the options file "
    "cannot "
    "hold, or the file cannot be written.\n\nThe song chosen before is kept. A copy of the new one in a folder with a "
    "short and simple name can be chosen.";

void playChosenSong(AmbientSound& sound, const AmbientServices& services) {
    const std::string chosen = services.options.option(shell::key::songAmbient);
    sound.midiFile = chosen.empty() ? services.applicationDirectory + std::string(suppliedSong) : chosen;
    openMidiDevice(sound, sound.midiFile, services);
}

} // namespace

void openMidiDevice(AmbientSound& sound, const std::string& path, const AmbientServices& services) {
    if (sound.midiDeviceId != 0) services.songs.close(sound.midiDeviceId);
    sound.midiDeviceId = 0;
    const int own = ++sound.requests;
    const int opened = services.songs.open(path);
    services.events.processEvents();
    if (own != sound.requests) return services.songs.close(opened);
    sound.midiDeviceId = opened;
    services.songs.play(opened);
    sound.timerOn = true;
}

void closeAllMidi(AmbientSound& sound, platform::SongPlayer& songs) {
    ++sound.requests;
    songs.closeAll();
    sound.midiDeviceId = 0;
    sound.timerOn = false;
}

void tickMidi(const AmbientSound& sound, platform::SongPlayer& songs) {
    if (sound.midiDeviceId == 0 || songs.mode(sound.midiDeviceId) != platform::SongPlayer::Mode::stopped) return;
    songs.rewind(sound.midiDeviceId);
    songs.play(sound.midiDeviceId);
}

void stopMidi(AmbientSound& sound, platform::SongPlayer& songs) {
    ++sound.requests;
    songs.stop(sound.midiDeviceId);
    songs.close(sound.midiDeviceId);
}

bool startAmbient(AmbientSound& sound, const AmbientServices& services) {
    sound.timerOn = false;
    const std::string wanted = services.options.option(shell::key::soundAmbient);
    if (!wanted.empty() && wanted != ambientOnWord) return false;
    playChosenSong(sound, services);
    return true;
}

void switchAmbientOn(AmbientSound& sound, const AmbientServices& services) {
    const int own = sound.requests + 1;
    playChosenSong(sound, services);
    if (own == sound.requests) services.options.setOption(shell::key::soundAmbient, ambientOnWord);
}

void switchAmbientOff(AmbientSound& sound, const AmbientServices& services) {
    closeAllMidi(sound, services.songs);
    services.options.setOption(shell::key::soundAmbient, ambientOffWord);
}

void chooseSong(platform::MessageBoxes& boxes, const AmbientServices& services) {
    const auto song = boxes.askFile("Open file...", services.applicationDirectory, "Files mid (*.mid*)");
    if (!song) return;
    const std::string before = services.options.option(shell::key::songAmbient);
    services.options.setOption(shell::key::songAmbient, *song);
    if (services.options.option(shell::key::songAmbient) == *song) return;
    services.options.setOption(shell::key::songAmbient, before);
    boxes.show(platform::BoxIcon::warning, std::string(songRefused));
}

} // namespace velmoriax::tarot
