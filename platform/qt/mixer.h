// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/files.h"
#include "platform/sounds.h"

#include <QTimer>

struct Mix_Chunk;

namespace velmoriax::desktop {

/// Wave sounds through SDL's mixer. The sound device is opened when something sounds and closed when all is silent, so
/// that it neither keeps a laptop awake nor other programs mute. Without a device everything stays silent and quick.
class Mixer : public platform::Sounds {
public:
    explicit Mixer(const platform::Files& files);
    ~Mixer() override;

    void playWav(const std::string& name) override;

private:
    bool openDevice();
    void closeWhenSilent();
    void freeChunk();

    const platform::Files& files_;
    QTimer silenceWatch_;
    Mix_Chunk* chunk_ = nullptr;
    std::string chunkBytes_;
    bool deviceOpen_ = false;
};

} // namespace velmoriax::desktop
