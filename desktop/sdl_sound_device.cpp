// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/midi_length.h"
#include "desktop/sound_device.h"

#include <SDL.h>
#include <SDL_mixer.h>

#include <array>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <set>

namespace velmoriax::desktop {

namespace {

using namespace std::chrono_literals;
namespace fs = std::filesystem;

constexpr int rate = 44100;
constexpr int channels = 2;
constexpr int bufferSamples = 2048;
constexpr int waveChannel = 0;
constexpr auto silenceBeforeClosing = 1s;

/// A song whose tracks are damaged ends after a buffer or two. If it counted as played it would be started again for
/// ever.
constexpr auto shortestSong = 400ms;

/// The last notes of a song may fade for so long before it starts again. The synthesizer would go on for seconds, until
/// nothing reverberates any more.
constexpr auto release = 250ms;

bool isMidi(const std::string& bytes) {
    return bytes.starts_with("MThd") && bytes.find("MTrk") != std::string::npos;
}

/// Folders of General MIDI sound fonts on the distributions, and the names to prefer in them: the first one is small
/// and so is loaded at once.
constexpr std::array fontFolders{"/usr/share/sounds/sf2", "/usr/share/soundfonts", "/usr/share/sounds/sf3"};
constexpr std::array fontNames{"TimGM6mb.sf2", "default-GM.sf2", "default.sf2"};

std::string anyFontIn(const fs::path& folder) {
    std::set<std::string> fonts;
    std::error_code error;
    for (fs::directory_iterator file(folder, error), end; !error && file != end; file.increment(error))
        if (file->path().extension() == ".sf2" || file->path().extension() == ".sf3")
            fonts.insert(file->path().string());
    return fonts.empty() ? std::string() : *fonts.begin();
}

/// Empty when there is none: then songs stay silent.
std::string soundFont() {
    std::error_code error;
    for (const char* folder : fontFolders)
        for (const char* name : fontNames)
            if (fs::exists(fs::path(folder) / name, error)) return (fs::path(folder) / name).string();
    for (const char* folder : fontFolders)
        if (std::string font = anyFontIn(folder); !font.empty()) return font;
    return {};
}

int isThere(const char* font, void*) {
    std::error_code error;
    return fs::is_regular_file(font, error) ? 1 : 0;
}

/// False when there is no sound font: a song would play on without a sound, and keep the device open. The user's own
/// choice in the environment comes first: the mixer reads that itself when no other is named.
bool chooseSoundFont() {
    const char* chosen = std::getenv("SDL_SOUNDFONTS");
    Mix_SetSoundFonts(chosen && *chosen ? nullptr : soundFont().c_str());
    return Mix_EachSoundFont(isThere, nullptr) != 0;
}

SDL_RWops* memoryFile(const std::string& bytes) {
    return SDL_RWFromConstMem(bytes.data(), static_cast<int>(bytes.size()));
}

/// The device of SDL's mixer library.
class SdlSoundDevice : public SoundDevice {
public:
    SdlSoundDevice();
    ~SdlSoundDevice() override;
    SdlSoundDevice(const SdlSoundDevice&) = delete;
    SdlSoundDevice& operator=(const SdlSoundDevice&) = delete;

    void playWave(std::string bytes) override;
    bool takeSong(int number, std::string bytes) override;
    bool startSong() override;
    void stopSong() override;
    void dropSong() override;
    std::optional<SongEnd> songEnd() override;
    bool staysOpen() override;

private:
    using Clock = std::chrono::steady_clock;

    bool open();
    void close();
    bool loadSong();
    void freeWave();
    void freeMusic();

    bool isOpen_ = false;
    Clock::time_point lastSound_;

    std::string waveBytes_;
    Mix_Chunk* wave_ = nullptr;

    int songNumber_ = 0;
    std::string songBytes_; ///< kept, since closing the device unloads the song
    Mix_Music* music_ = nullptr;
    std::optional<std::chrono::microseconds> songLength_; ///< nothing when it is not known
    bool songStarted_ = false;
    Clock::time_point songStart_;
};

SdlSoundDevice::SdlSoundDevice() {
    SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
    SDL_SetHint(SDL_HINT_AUDIO_DEVICE_APP_NAME, "Velmoriax");
}

SdlSoundDevice::~SdlSoundDevice() {
    close();
    Mix_Quit();
    SDL_Quit();
    SDL_TLSCleanup(); // what the library keeps for this thread
}

bool SdlSoundDevice::open() {
    lastSound_ = Clock::now();
    if (isOpen_) return true;
    if (SDL_InitSubSystem(SDL_INIT_AUDIO) != 0) return false;
    if (Mix_OpenAudio(rate, MIX_DEFAULT_FORMAT, channels, bufferSamples) != 0) {
        SDL_QuitSubSystem(SDL_INIT_AUDIO);
        return false;
    }
    isOpen_ = true;
    return true;
}

void SdlSoundDevice::close() {
    if (!isOpen_) return;
    freeWave();
    freeMusic();
    Mix_CloseAudio();
    SDL_QuitSubSystem(SDL_INIT_AUDIO);
    isOpen_ = false;
}

bool SdlSoundDevice::staysOpen() {
    if (!isOpen_) return false;
    if (Mix_Playing(-1) != 0 || Mix_PlayingMusic() != 0) lastSound_ = Clock::now();
    if (Clock::now() - lastSound_ > silenceBeforeClosing) close();
    return isOpen_;
}

void SdlSoundDevice::freeWave() {
    Mix_HaltChannel(waveChannel);
    if (wave_) Mix_FreeChunk(wave_);
    wave_ = nullptr;
}

void SdlSoundDevice::playWave(std::string bytes) {
    if (bytes.empty() || !open()) return;
    freeWave();
    waveBytes_ = std::move(bytes);
    wave_ = Mix_LoadWAV_RW(memoryFile(waveBytes_), 1);
    if (wave_) Mix_PlayChannel(waveChannel, wave_, 0);
}

bool SdlSoundDevice::takeSong(int number, std::string bytes) {
    dropSong();
    if (!isMidi(bytes)) return false;
    songNumber_ = number;
    songLength_ = midiLength(bytes);
    songBytes_ = std::move(bytes);
    return true;
}

bool SdlSoundDevice::loadSong() {
    if (music_) return true;
    if (!chooseSoundFont()) return false;
    music_ = Mix_LoadMUSType_RW(memoryFile(songBytes_), MUS_MID, 1);
    return music_ != nullptr;
}

bool SdlSoundDevice::startSong() {
    if (songBytes_.empty() || !open() || !loadSong() || Mix_PlayMusic(music_, 1) != 0) return false;
    songStarted_ = true;
    songStart_ = Clock::now();
    return true;
}

void SdlSoundDevice::stopSong() {
    if (music_) Mix_HaltMusic();
    songStarted_ = false;
}

void SdlSoundDevice::freeMusic() {
    SdlSoundDevice::stopSong();
    if (music_) Mix_FreeMusic(music_);
    music_ = nullptr;
}

void SdlSoundDevice::dropSong() {
    freeMusic();
    songBytes_.clear();
    songNumber_ = 0;
}

std::optional<SoundDevice::SongEnd> SdlSoundDevice::songEnd() {
    if (!songStarted_) return std::nullopt;
    const auto played = Clock::now() - songStart_;
    const bool lastNotePlayed = songLength_ && played > *songLength_ + release;
    if (Mix_PlayingMusic() != 0 && !lastNotePlayed) return std::nullopt;
    stopSong();
    return SongEnd{songNumber_, played > shortestSong};
}

} // namespace

} // namespace velmoriax::desktop

/// The one entry of the library.
extern "C" velmoriax::desktop::SoundDevice* velmoriaxSoundDevice() {
    return new velmoriax::desktop::SdlSoundDevice;
}
