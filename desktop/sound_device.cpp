// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/sound_device.h"

#include <QLibrary>

namespace velmoriax::desktop {

namespace {

class SilentDevice : public SoundDevice {
    void playWave(std::string) override {}
    bool takeSong(int, std::string) override { return false; }
    bool startSong() override { return false; }
    void stopSong() override {}
    void dropSong() override {}
    std::optional<SongEnd> songEnd() override { return std::nullopt; }
    bool staysOpen() override { return false; }
};

} // namespace

std::unique_ptr<SoundDevice> loadSoundDevice(const std::string& pluginFolder) {
    using Maker = SoundDevice*();
    const auto make = reinterpret_cast<Maker*>(
        QLibrary::resolve(QString::fromStdString(pluginFolder + "/velmoriax_sound.so"), "velmoriaxSoundDevice"));
    if (!make) return std::make_unique<SilentDevice>();
    return std::unique_ptr<SoundDevice>(make());
}

} // namespace velmoriax::desktop
