// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/sound_thread.h"

#include <chrono>

namespace velmoriax::desktop {

namespace {

constexpr std::chrono::milliseconds idleInterval{50};

} // namespace

SoundThread::~SoundThread() {
    {
        const std::scoped_lock lock(guard_);
        ending_ = true;
    }
    wake_.notify_one();
    if (thread_.joinable()) thread_.join();
}

void SoundThread::post(Job job) {
    {
        const std::scoped_lock lock(guard_);
        jobs_.push_back(std::move(job));
    }
    wake_.notify_one();
    if (!thread_.joinable()) thread_ = std::thread([this] { run(); });
}

void SoundThread::run() {
    const auto device = loadSoundDevice(pluginFolder_);
    bool deviceOpen = false;
    while (const Job job = nextJob(deviceOpen)) {
        job(*device);
        onIdle_(*device);
        deviceOpen = device->staysOpen();
    }
}

/// The next job, an empty one after each idle interval, and none at the end.
SoundThread::Job SoundThread::nextJob(bool deviceOpen) {
    std::unique_lock lock(guard_);
    const auto isCalled = [this] { return ending_ || !jobs_.empty(); };
    if (deviceOpen)
        wake_.wait_for(lock, idleInterval, isCalled);
    else
        wake_.wait(lock, isCalled);
    if (ending_) return nullptr;
    if (jobs_.empty()) return [](SoundDevice&) {};
    Job first = std::move(jobs_.front());
    jobs_.pop_front();
    return first;
}

} // namespace velmoriax::desktop
