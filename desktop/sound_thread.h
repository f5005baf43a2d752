// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "desktop/sound_device.h"

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>

namespace velmoriax::desktop {

/// The thread that owns the sound device. Jobs run on it one after another in the order in which they were given, and
/// that is why the program's order of steps holds though none of them waits: a song is played after it was opened and
/// closed before the next one is. The thread begins with the first job and sleeps without waking while all is silent.
class SoundThread {
public:
    using Job = std::function<void(SoundDevice&)>;

    /// `pluginFolder` holds the sound library. `onIdle` runs on the thread after each job, and every 50 ms
    /// while the device is open.
    SoundThread(std::string pluginFolder, Job onIdle) :
        pluginFolder_(std::move(pluginFolder)), onIdle_(std::move(onIdle)) {}

    /// Waits for the job under way, drops those that wait and closes the device.
    ~SoundThread();

    void give(Job job);

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
