// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/audio_player.h"

#include <chrono>
#include <future>
#include <memory>

namespace velmoriax::desktop {

namespace {

constexpr std::uintmax_t largestSong = 4U << 20U;
constexpr std::uintmax_t largestWave = 64U << 20U;

/// How long opening a song waits for the answer that the file is none: enough for a disk that is spinning, too short to
/// be noticed.
constexpr std::chrono::milliseconds longestWait{10};

/// The bytes of a file; none when it is missing, unreadable or too large to be a sound.
std::string soundBytes(const DiskFiles& files, const std::string& path, std::uintmax_t largest) {
    std::error_code error;
    const std::uintmax_t size = std::filesystem::file_size(files.readPath(path), error);
    return error || size > largest ? std::string() : files.read(path).bytes;
}

} // namespace

AudioPlayer::AudioPlayer(const DiskFiles& files, std::string pluginFolder) :
    files_(files), thread_(std::move(pluginFolder), [this](SoundDevice& device) {
        if (const auto end = device.songEnd()) change(end->number, end->playable ? Mode::stopped : Mode::none);
    }) {}

void AudioPlayer::playWav(const std::string& name) {
    thread_.post([this, path = files_.applicationDirectory() + "\\" + name](SoundDevice& device) {
        device.playWave(soundBytes(files_, path, largestWave));
    });
}

int AudioPlayer::newDevice() {
    const std::scoped_lock lock(guard_);
    mode_ = Mode::stopped;
    return openDevice_ = ++lastDevice_;
}

bool AudioPlayer::change(int device, Mode mode) {
    const std::scoped_lock lock(guard_);
    if (device != openDevice_ || mode_ == Mode::none) return false;
    mode_ = mode;
    return true;
}

int AudioPlayer::open(const std::string& path) {
    const int number = newDevice();
    const auto isSong = std::make_shared<std::promise<bool>>();
    auto answer = isSong->get_future();
    thread_.post([this, number, path, isSong](SoundDevice& device) {
        const bool taken = device.takeSong(number, soundBytes(files_, path, largestSong));
        if (!taken) change(number, Mode::none);
        isSong->set_value(taken);
    });
    const bool known = answer.wait_for(longestWait) == std::future_status::ready;
    return known && !answer.get() ? 0 : number;
}

void AudioPlayer::play(int device) {
    if (!change(device, Mode::playing)) return;
    thread_.post([this, device](SoundDevice& sound) {
        const bool stillWanted = mode(device) == Mode::playing;
        if (stillWanted && !sound.startSong()) change(device, Mode::none);
    });
}

platform::SongPlayer::Mode AudioPlayer::mode(int device) const {
    const std::scoped_lock lock(guard_);
    return device == openDevice_ ? mode_ : Mode::none;
}

void AudioPlayer::halt(int device) {
    // A song that was halted starts from its beginning, so that stopping it rewinds it as well.
    if (change(device, Mode::stopped)) thread_.post([](SoundDevice& sound) { sound.stopSong(); });
}

void AudioPlayer::rewind(int device) {
    halt(device);
}

void AudioPlayer::stop(int device) {
    halt(device);
}

void AudioPlayer::close(int device) {
    {
        const std::scoped_lock lock(guard_);
        if (device == 0 || device != openDevice_) return;
        openDevice_ = 0;
        mode_ = Mode::none;
    }
    thread_.post([](SoundDevice& sound) { sound.dropSong(); });
}

void AudioPlayer::closeAll() {
    close(openDevice_);
}

} // namespace velmoriax::desktop
