// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/mixer.h"

#include <chrono>
#include <future>
#include <memory>

namespace velmoriax::desktop {

namespace {

constexpr std::uintmax_t largestSong = 4U << 20U;
constexpr std::uintmax_t largestWave = 64U << 20U;

/// How long the opening waits to hear that a file is no song: long for a disk that is awake, nothing for the eye.
constexpr std::chrono::milliseconds patience{10};

/// The bytes of a file; none when it is missing, unreadable or too large to be a sound.
std::string soundBytes(const DiskFiles& files, const std::string& path, std::uintmax_t largest) {
    std::error_code error;
    const std::uintmax_t size = std::filesystem::file_size(files.readPath(path), error);
    return error || size > largest ? std::string() : files.read(path).bytes;
}

} // namespace

Mixer::Mixer(const DiskFiles& files, std::string pluginFolder) :
    files_(files), thread_(std::move(pluginFolder), [this](SoundDevice& device) {
        if (const auto end = device.songEnd()) change(end->number, end->playable ? Mode::stopped : Mode::none);
    }) {}

void Mixer::playWav(const std::string& name) {
    thread_.give([this, path = files_.applicationDirectory() + "\\" + name](SoundDevice& device) {
        device.playWave(soundBytes(files_, path, largestWave));
    });
}

int Mixer::newDevice() {
    const std::scoped_lock lock(guard_);
    mode_ = Mode::stopped;
    return openDevice_ = ++lastDevice_;
}

bool Mixer::change(int device, Mode mode) {
    const std::scoped_lock lock(guard_);
    if (device != openDevice_ || mode_ == Mode::none) return false;
    mode_ = mode;
    return true;
}

int Mixer::open(const std::string& path) {
    const int number = newDevice();
    const auto isSong = std::make_shared<std::promise<bool>>();
    auto answer = isSong->get_future();
    thread_.give([this, number, path, isSong](SoundDevice& device) {
        const bool taken = device.takeSong(number, soundBytes(files_, path, largestSong));
        if (!taken) change(number, Mode::none);
        isSong->set_value(taken);
    });
    const bool known = answer.wait_for(patience) == std::future_status::ready;
    return known && !answer.get() ? 0 : number;
}

void Mixer::play(int device) {
    if (!change(device, Mode::playing)) return;
    thread_.give([this, device](SoundDevice& sound) {
        const bool stillWanted = mode(device) == Mode::playing;
        if (stillWanted && !sound.startSong()) change(device, Mode::none);
    });
}

platform::SongPlayer::Mode Mixer::mode(int device) const {
    const std::scoped_lock lock(guard_);
    return device == openDevice_ ? mode_ : Mode::none;
}

void Mixer::halt(int device) {
    // A song that is halted begins anew at the next start, so that stopping it rewinds it as well.
    if (change(device, Mode::stopped)) thread_.give([](SoundDevice& sound) { sound.stopSong(); });
}

void Mixer::rewind(int device) {
    halt(device);
}

void Mixer::stop(int device) {
    halt(device);
}

void Mixer::close(int device) {
    {
        const std::scoped_lock lock(guard_);
        if (device == 0 || device != openDevice_) return;
        openDevice_ = 0;
        mode_ = Mode::none;
    }
    thread_.give([](SoundDevice& sound) { sound.dropSong(); });
}

void Mixer::closeAll() {
    close(openDevice_);
}

} // namespace velmoriax::desktop
