// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/mixer.h"

#include <SDL.h>
#include <SDL_mixer.h>

namespace velmoriax::desktop {

namespace {

constexpr int rate = 44100;
constexpr int bufferSamples = 2048;
constexpr int silenceCheckMs = 250;
constexpr int waveChannel = 0;

} // namespace

Mixer::Mixer(const platform::Files& files) : files_(files) {
    SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
    silenceWatch_.setInterval(silenceCheckMs);
    QObject::connect(&silenceWatch_, &QTimer::timeout, [this] { closeWhenSilent(); });
}

Mixer::~Mixer() {
    if (!deviceOpen_) return;
    Mix_HaltChannel(-1);
    freeChunk();
    Mix_CloseAudio();
    SDL_QuitSubSystem(SDL_INIT_AUDIO);
}

bool Mixer::openDevice() {
    if (deviceOpen_) return true;
    if (SDL_InitSubSystem(SDL_INIT_AUDIO) != 0) return false;
    if (Mix_OpenAudio(rate, MIX_DEFAULT_FORMAT, MIX_DEFAULT_CHANNELS, bufferSamples) != 0) {
        SDL_QuitSubSystem(SDL_INIT_AUDIO);
        return false;
    }
    deviceOpen_ = true;
    silenceWatch_.start();
    return true;
}

void Mixer::closeWhenSilent() {
    if (Mix_Playing(-1) != 0) return;
    silenceWatch_.stop();
    freeChunk();
    Mix_CloseAudio();
    SDL_QuitSubSystem(SDL_INIT_AUDIO);
    deviceOpen_ = false;
}

void Mixer::freeChunk() {
    if (chunk_) Mix_FreeChunk(chunk_);
    chunk_ = nullptr;
}

void Mixer::playWav(const std::string& name) {
    auto content = files_.read(files_.applicationDirectory() + "\\" + name);
    if (content.status != platform::Files::Status::read || !openDevice()) return;
    Mix_HaltChannel(waveChannel);
    freeChunk();
    chunkBytes_ = std::move(content.bytes);
    chunk_ = Mix_LoadWAV_RW(SDL_RWFromConstMem(chunkBytes_.data(), static_cast<int>(chunkBytes_.size())), 1);
    if (chunk_) Mix_PlayChannel(waveChannel, chunk_, 0);
}

} // namespace velmoriax::desktop
