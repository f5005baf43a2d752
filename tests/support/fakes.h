// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/date_value.h"
#include "platform/autostart.h"
#include "platform/clock.h"
#include "platform/document_opener.h"
#include "platform/files.h"
#include "platform/message_boxes.h"
#include "platform/notification.h"
#include "platform/pending_events.h"
#include "platform/program_paths.h"
#include "platform/random_source.h"
#include "platform/song_player.h"
#include "platform/sounds.h"
#include "platform/task_bar.h"
#include "platform/time_zone.h"
#include "support/helpers.h"

#include <deque>
#include <functional>
#include <map>
#include <set>

/// Fakes of the desktop's services, which a test controls.
namespace velmoriax::test {

struct FakeClock : platform::Clock {
    base::DateValue moment = base::dateValueOf({2026, 11, 15}, {12, 0, 0});
    base::DateValue now() const override { return moment; }
    void set(base::CivilDate date, base::CivilTime time = {}) { moment = base::dateValueOf(date, time); }
};

struct FakeZone : platform::TimeZone {
    platform::ZoneInfo info{platform::ZoneInfo::State::standard, 0, 0};
    platform::ZoneInfo current() const override { return info; }
};

/// Files in memory, under the paths of the file system.
struct FakeFiles : platform::Files {
    std::string directory = "/home/ann/velmoriax";
    std::map<std::string, std::string> contents; ///< by file-system path
    std::set<std::string> unreadable;
    bool readOnly = false;
    bool temporaryFolderMissing = false;
    bool temporaryNameFails = false;
    int temporaryCount = 0;

    /// A file of the application directory by its literal, such as "\\bio.dat".
    std::string& at(const std::string& literal) { return contents[native(directory + literal)]; }
    bool has(const std::string& literal) const { return contents.contains(native(directory + literal)); }

    std::string applicationDirectory() const override { return directory; }
    Content read(const std::string& path) const override {
        if (unreadable.contains(native(path))) return {Status::unreadable, {}};
        const auto found = contents.find(native(path));
        return found == contents.end() ? Content{} : Content{Status::read, found->second};
    }
    bool exists(const std::string& path) const override { return contents.contains(native(path)); }
    bool replace(const std::string& path, const std::string& bytes) override {
        if (readOnly) return false;
        contents[native(path)] = bytes;
        return true;
    }
    bool append(const std::string& path, const std::string& bytes) override {
        if (readOnly) return false;
        contents[native(path)] += bytes;
        return true;
    }
    bool remove(const std::string& path) override { return !readOnly && contents.erase(native(path)) > 0; }
    bool rename(const std::string& from, const std::string& to) override {
        const auto found = contents.find(native(from));
        if (readOnly || found == contents.end()) return false;
        contents[native(to)] = found->second;
        if (native(to) != native(from)) contents.erase(native(from));
        return true;
    }
    std::optional<std::string> temporaryFolder() const override {
        return temporaryFolderMissing ? std::nullopt : std::optional<std::string>("/tmp");
    }
    std::optional<std::string> createTemporaryFile(const std::string& folder, const std::string& prefix) override {
        if (temporaryNameFails) return std::nullopt;
        const std::string path = folder + "/" + prefix + std::to_string(++temporaryCount);
        contents[path] = "";
        return path;
    }

private:
    std::string native(const std::string& path) const { return platform::fileSystemPath(path, directory); }
};

struct FakeSounds : platform::Sounds {
    std::vector<std::string> played;
    void playWav(const std::string& name) override { played.push_back(name); }
};

/// A song player in which only the songs of the test can be opened, and a song ends when the test calls `ends`.
struct FakeSongPlayer : platform::SongPlayer {
    std::set<std::string> songs;
    std::vector<std::string> starts; ///< the songs in the order in which they began to play
    int opens = 0;
    int openDevice = 0;
    std::string song;
    Mode songMode = Mode::none;

    void ends() { songMode = Mode::stopped; }
    int open(const std::string& path) override {
        ++opens;
        if (!songs.contains(path)) return 0;
        song = path;
        songMode = Mode::stopped;
        return openDevice = opens;
    }
    void play(int device) override {
        if (mode(device) == Mode::none) return;
        songMode = Mode::playing;
        starts.push_back(song);
    }
    Mode mode(int device) const override { return device != 0 && device == openDevice ? songMode : Mode::none; }
    void rewind(int device) override { stop(device); }
    void stop(int device) override {
        if (mode(device) != Mode::none) songMode = Mode::stopped;
    }
    void close(int device) override {
        if (device == openDevice) openDevice = 0;
    }
    void closeAll() override { openDevice = 0; }
};

struct FakeOpener : platform::DocumentOpener {
    std::vector<std::string> opened;
    bool open(const std::string& target) override {
        opened.push_back(target);
        return true;
    }
};

/// Records the boxes and returns the answers that the test has prepared; without one, No and cancel.
struct FakeBoxes : platform::MessageBoxes {
    struct Shown {
        platform::BoxIcon icon;
        std::string text;
        std::string title;
        bool operator==(const Shown&) const = default;
    };
    std::vector<Shown> shown;
    std::vector<std::string> questions;
    std::deque<bool> yesNoAnswers;
    std::deque<std::optional<std::string>> textAnswers;
    std::deque<std::optional<std::string>> fileAnswers;
    std::function<void()> whileOpen; ///< runs while a box is open

    void show(platform::BoxIcon icon, const std::string& text, const std::string& title) override {
        shown.push_back({icon, text, title});
        if (whileOpen) whileOpen();
    }
    bool askYesNo(const std::string& text, const std::string&) override {
        questions.push_back(text);
        return take(yesNoAnswers).value_or(false);
    }
    std::optional<std::string> askText(const std::string& prompt, const std::string&) override {
        questions.push_back(prompt);
        return take(textAnswers).value_or(std::nullopt);
    }
    std::optional<std::string> askFile(const std::string& title, const std::string&, const std::string&) override {
        questions.push_back(title);
        return take(fileAnswers).value_or(std::nullopt);
    }

private:
    template<typename Answer>
    static std::optional<Answer> take(std::deque<Answer>& answers) {
        if (answers.empty()) return std::nullopt;
        Answer first = answers.front();
        answers.pop_front();
        return first;
    }
};

/// The boxes of a test, in their order.
using Shown = std::vector<FakeBoxes::Shown>;

struct FakeNotification : platform::Notification {
    std::vector<std::string> texts;
    bool open = false;
    bool opens = true; ///< whether the window is up after a slide
    void slideUp(const std::string& text) override {
        texts.push_back(text);
        open = opens;
    }
    void show(const std::string& text) override {
        if (!open) slideUp(text);
    }
    void slideDown() override { open = false; }
    void close() override { open = false; }
    bool isOpen() const override { return open; }
};

struct FakeRandom : platform::RandomSource {
    std::deque<float> numbers; ///< returned in this order, then 0
    int seeds = 0;
    void seedFromClock() override { ++seeds; }
    float uniform() override {
        if (numbers.empty()) return 0;
        const float first = numbers.front();
        numbers.pop_front();
        return first;
    }
};

struct FakeEvents : platform::PendingEvents {
    int runs = 0;
    int depth = 0;
    std::function<void()> whatRuns;
    void processEvents() override {
        ++runs;
        ++depth;
        if (whatRuns) whatRuns();
        --depth;
    }
    bool isProcessing() const override { return depth > 0; }
};

struct FakeTaskBar : platform::TaskBar {
    std::optional<platform::TaskBarPosition> where;
    std::optional<platform::TaskBarPosition> position() const override { return where; }
};

struct FakeAutostart : platform::Autostart {
    std::set<std::string> entries;
    int writes = 0;
    bool write(const std::string& name) override {
        ++writes;
        entries.insert(name);
        return true;
    }
    bool erase(const std::string& name) override { return entries.erase(name) > 0; }
};

} // namespace velmoriax::test
