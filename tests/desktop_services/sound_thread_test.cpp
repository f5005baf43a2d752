// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/sound_thread.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <future>
#include <vector>

namespace velmoriax::desktop {
namespace {

using namespace std::chrono_literals;

/// Without the sound library the thread has a device that stays silent, which is all that these tests need.
const std::string noLibrary = "/nonexistent";

TEST(SoundThread, RunsJobsInTheirOrderOnOneThreadOfItsOwn) {
    std::vector<int> order;
    std::vector<std::thread::id> threads;
    int jobsBefore = 0;
    std::promise<void> finished;
    SoundThread thread(noLibrary, [&](SoundDevice&) {
        if (++jobsBefore == 20) finished.set_value();
    });
    for (int i = 0; i < 20; ++i)
        thread.post([&, i](SoundDevice&) {
            order.push_back(jobsBefore == i ? i : -1);
            threads.push_back(std::this_thread::get_id());
        });
    ASSERT_EQ(finished.get_future().wait_for(20s), std::future_status::ready);
    for (int i = 0; i < 20; ++i) {
        EXPECT_EQ(order[static_cast<std::size_t>(i)], i);
        EXPECT_EQ(threads[static_cast<std::size_t>(i)], threads[0]);
    }
    EXPECT_NE(threads[0], std::this_thread::get_id());
}

TEST(SoundThread, EndsAfterTheJobThatIsRunningAndDropsTheOthers) {
    std::promise<void> begun;
    std::atomic<bool> ended = false;
    std::atomic<bool> nextRan = false;
    {
        SoundThread thread(noLibrary, [](SoundDevice&) {});
        thread.post([&](SoundDevice&) {
            begun.set_value();
            std::this_thread::sleep_for(100ms);
            ended = true;
        });
        thread.post([&](SoundDevice&) { nextRan = true; });
        begun.get_future().wait();
    }
    EXPECT_TRUE(ended);
    EXPECT_FALSE(nextRan);
}

} // namespace
} // namespace velmoriax::desktop
