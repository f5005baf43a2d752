// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "dice.h"
#include "simulated_time.h"
#include "support/fakes.h"

#include <QCoreApplication>

#include <map>

/// Services of the simulated desktop beside the fakes that all tests use.
namespace velmoriax::simulation {

/// The clock on the wall: simulated time from a date on, plus what it was set forward or back.
class WallClock : public platform::Clock {
public:
    base::DateValue now() const override {
        const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(simulatedTime() + set_).count();
        constexpr int ofDay = 86400;
        const auto days = static_cast<std::int32_t>(seconds / ofDay);
        const int second = static_cast<int>(seconds % ofDay);
        return base::dateValueOf(base::civilDateOfDay(base::dayNumber({2026, 1, 1}) + days),
                                 {second / 3600, second / 60 % 60, second % 60});
    }
    void setForward(std::chrono::seconds by) { set_ += by; }

private:
    Nanoseconds set_ = std::chrono::hours(12);
};

/// Processes the toolkit's events, and lets the simulation act before.
class YieldingEvents : public platform::PendingEvents {
public:
    std::function<void()> yield;

    void processEvents() override {
        ++depth_;
        yield();
        QCoreApplication::processEvents();
        --depth_;
    }
    bool isProcessing() const override { return depth_ > 0; }

private:
    int depth_ = 0;
};

/// Boxes during which the simulation acts, and which are answered by chance.
class SimulatedBoxes : public platform::MessageBoxes {
public:
    YieldingEvents* events = nullptr;
    Dice* dice = nullptr;
    int open = 0;
    int named = 0; ///< profiles

    void show(platform::BoxIcon, const std::string&, const std::string&) override { whileOpen(); }
    bool askYesNo(const std::string&, const std::string&) override {
        whileOpen();
        return !dice->oneIn(3);
    }
    std::optional<std::string> askText(const std::string&, const std::string&) override {
        whileOpen();
        if (dice->oneIn(4)) return std::nullopt;
        return "Person" + std::to_string(1000 + ++named);
    }
    std::optional<std::string> askFile(const std::string&, const std::string& folder, const std::string&) override {
        whileOpen();
        if (dice->oneIn(3)) return std::nullopt;
        return folder + (dice->oneIn(2) ? "/own.mid" : "/gone.mid");
    }

private:
    void whileOpen() {
        ++open;
        events->processEvents();
        --open;
    }
};

/// A song player that keeps every device, so that one that is forgotten goes on playing.
class Devices : public platform::SongPlayer {
public:
    int open(const std::string& path) override {
        closeAll();
        if (path.ends_with("gone.mid")) return 0;
        modes_[++last_] = Mode::stopped;
        return last_;
    }
    void play(int device) override { change(device, Mode::playing); }
    Mode mode(int device) const override {
        const auto found = modes_.find(device);
        return found == modes_.end() ? Mode::none : found->second;
    }
    void rewind(int device) override { change(device, Mode::stopped); }
    void stop(int device) override { change(device, Mode::stopped); }
    void close(int device) override { modes_.erase(device); }
    void closeAll() override { modes_.clear(); }

    void endSong() {
        for (auto& [device, mode] : modes_) mode = Mode::stopped;
    }
    bool isPlaying() const {
        return std::ranges::any_of(modes_, [](const auto& each) { return each.second == Mode::playing; });
    }

private:
    void change(int device, Mode mode) {
        if (modes_.contains(device)) modes_[device] = mode;
    }

    std::map<int, Mode> modes_;
    int last_ = 0;
};

} // namespace velmoriax::simulation
