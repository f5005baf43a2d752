// SPDX-License-Identifier: GPL-3.0-or-later
// Measures a program from outside, on the X desktop at hand: the time from its start to its first window, its memory,
// and how often it wakes up and what it computes while nothing happens.
//
//   whole_process STARTS IDLE_SECONDS PROGRAM [ARGUMENT...]
//
// Prints one line of numbers: median start in ms, proportional memory in MB, wake-ups a second, CPU in per cent of a
// core.
#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>
#include <xcb/xcb.h>

namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::duration;
namespace fs = std::filesystem;

/// The list of windows that the window manager keeps: a window is on the screen when it appears there.
class WindowList {
public:
    WindowList() : connection_(::xcb_connect(nullptr, nullptr)) {
        root_ = ::xcb_setup_roots_iterator(::xcb_get_setup(connection_)).data->root;
        constexpr char name[] = "_NET_CLIENT_LIST";
        const auto cookie = ::xcb_intern_atom(connection_, 0, sizeof name - 1, name);
        const std::unique_ptr<::xcb_intern_atom_reply_t, decltype(&std::free)> reply(
            ::xcb_intern_atom_reply(connection_, cookie, nullptr), &std::free);
        list_ = reply->atom;
        const std::uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
        ::xcb_change_window_attributes(connection_, root_, XCB_CW_EVENT_MASK, &events);
        ::xcb_flush(connection_);
    }
    ~WindowList() { ::xcb_disconnect(connection_); }
    WindowList(const WindowList&) = delete;
    WindowList& operator=(const WindowList&) = delete;

    int count() const {
        const auto cookie = ::xcb_get_property(connection_, 0, root_, list_, XCB_ATOM_WINDOW, 0, 1024);
        const std::unique_ptr<::xcb_get_property_reply_t, decltype(&std::free)> reply(
            ::xcb_get_property_reply(connection_, cookie, nullptr), &std::free);
        return reply ? static_cast<int>(reply->value_len) : 0;
    }

    /// Waits until the list is longer than that, or as short again. False when the desktop has gone.
    bool waitForMoreThan(int number) const {
        return waitUntil([=, this] { return count() > number; });
    }
    bool waitForAtMost(int number) const {
        return waitUntil([=, this] { return count() <= number; });
    }

private:
    template<typename Test>
    bool waitUntil(Test test) const {
        while (!test()) {
            const std::unique_ptr<::xcb_generic_event_t, decltype(&std::free)> event(::xcb_wait_for_event(connection_),
                                                                                     &std::free);
            if (!event) return false;
        }
        return true;
    }

    ::xcb_connection_t* connection_;
    ::xcb_window_t root_ = 0;
    ::xcb_atom_t list_ = 0;
};

::pid_t start(char** command) {
    const ::pid_t child = ::fork();
    if (child != 0) return child;
    ::execv(command[0], command);
    std::_Exit(127);
}

void end(::pid_t child) {
    ::kill(child, SIGTERM);
    ::waitpid(child, nullptr, 0);
}

double medianStart(int starts, char** command) {
    const WindowList windows;
    std::vector<double> times;
    const int before = windows.count();
    for (int i = 0; i < starts; ++i) {
        const auto begin = Clock::now();
        const ::pid_t child = start(command);
        windows.waitForMoreThan(before);
        times.push_back(duration<double, std::milli>(Clock::now() - begin).count());
        end(child);
        windows.waitForAtMost(before); // the window manager notices the end later
        std::this_thread::sleep_for(std::chrono::milliseconds(200));
    }
    std::ranges::sort(times);
    return times.empty() ? 0 : times[times.size() / 2];
}

long long fieldOf(const fs::path& file, const std::string& name) {
    std::ifstream lines(file);
    for (std::string word; lines >> word;)
        if (word == name) {
            long long value = 0;
            lines >> value;
            return value;
        }
    return 0;
}

struct Activity {
    long long wakeups = 0;
    double cpuSeconds = 0;
};

Activity activityOf(::pid_t process) {
    Activity activity;
    const fs::path folder = "/proc/" + std::to_string(process);
    for (const auto& task : fs::directory_iterator(folder / "task"))
        activity.wakeups += fieldOf(task.path() / "status", "voluntary_ctxt_switches:");
    std::ifstream stat(folder / "stat");
    std::string line;
    std::getline(stat, line);
    long long user = 0;
    long long system = 0;
    std::sscanf(line.substr(line.rfind(')') + 2).c_str(), "%*c %*d %*d %*d %*d %*d %*u %*u %*u %*u %*u %lld %lld",
                &user, &system);
    activity.cpuSeconds = static_cast<double>(user + system) / static_cast<double>(::sysconf(_SC_CLK_TCK));
    return activity;
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 4) {
        std::fputs("usage: whole_process STARTS IDLE_SECONDS PROGRAM [ARGUMENT...]\n", stderr);
        return 2;
    }
    const double startMs = medianStart(std::atoi(argv[1]), argv + 3);
    const int idleSeconds = std::atoi(argv[2]);
    const ::pid_t child = start(argv + 3);
    std::this_thread::sleep_for(std::chrono::seconds(idleSeconds > 0 ? 5 : 0));
    const Activity before = activityOf(child);
    std::this_thread::sleep_for(std::chrono::seconds(idleSeconds));
    const Activity after = activityOf(child);
    const auto memory = fieldOf("/proc/" + std::to_string(child) + "/smaps_rollup", "Pss:");
    end(child);
    std::printf("%.1f %.1f %.2f %.3f\n", startMs, static_cast<double>(memory) / 1024,
                static_cast<double>(after.wakeups - before.wakeups) / idleSeconds,
                100 * (after.cpuSeconds - before.cpuSeconds) / idleSeconds);
    return 0;
}
