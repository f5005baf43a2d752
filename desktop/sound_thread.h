// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "desktop/sound_device.h"

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>

namespace velmoriax::desktop {

/// The thread that owns the sound device. Jobs run on it one after another in the order in which they were posted, so
/// that a song is opened before it is played and closed before the next one is opened, although no caller waits. The
/// thread starts with the first job and sleeps without waking while nothing sounds.
class SoundThread {
public:
    using Job = std::function<void(SoundDevice&)>;

    /// `pluginFolder` holds the sound library. `onIdle` runs on the thread after each job, and every 50 ms
    /// while the device is open.
    SoundThread(std::string pluginFolder, Job onIdle) :
        pluginFolder_(std::move(pluginFolder)), onIdle_(std::move(onIdle)) {}

    /// Waits for the job under way, drops those that wait and closes the device.
    ~SoundThread();

    void post(Job job);

private:
    void run();
    Job nextJob(bool deviceOpen);

    std::string pluginFolder_;
    Job onIdle_;
    std::mutex guard_;
    std::condition_variable wake_;
    std::deque<Job> jobs_;
    bool ending_ = false;
    std::thread thread_;
};

} // namespace velmoriax::desktop
