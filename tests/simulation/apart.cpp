// SPDX-License-Identifier: GPL-3.0-or-later
#include "apart.h"

#include "desktop/application.h"
#include "laws.h"
#include "widgets/input_rules.h"

#include <cstdio>
#include <cstdlib>
#include <functional>
#include <malloc.h>
#include <sstream>
#include <sys/wait.h>
#include <unistd.h>

extern "C" [[gnu::weak]] std::size_t __sanitizer_get_current_allocated_bytes();

namespace velmoriax::simulation {

namespace {

/// The child's end of the pipe: each line is written at once, so that the parent has the trace of a crash as well.
class Report : public platform::FatalStop {
public:
    explicit Report(int descriptor) : file_(::fdopen(descriptor, "w")) {}
    void line(char kind, const std::string& text) const {
        std::string escaped = text;
        std::ranges::replace(escaped, '\n', '|');
        std::fprintf(file_, "%c%s\n", kind, escaped.c_str());
        std::fflush(file_);
    }
    [[noreturn]] void stop(const base::RunTimeError& error) override {
        line(allowed && *allowed ? 'T' : 'W', std::string("fatal stop: ") + error.what());
        std::_Exit(EXIT_SUCCESS);
    }
    const bool* allowed = nullptr; ///< whether the simulation has made a fault of the kind that is fatal

private:
    std::FILE* file_;
};

Report* current = nullptr;

/// One application for all children: each inherits it as it was before any window.
class Stop : public platform::FatalStop {
    [[noreturn]] void stop(const base::RunTimeError& error) override { current->stop(error); }
};

void prepareApplication() {
    static const bool once = [] {
        static Stop stop;
        static int argc = 1;
        static char name[] = "simulation";
        static char* argv[] = {name, nullptr};
        qputenv("QT_QPA_PLATFORM", "offscreen");
        qputenv("QT_HASH_SEED", "0");
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
        auto* application = new desktop::Application(argc, argv, stop);
        QApplication::setQuitOnLastWindowClosed(false);
        new widgets::InputRules(*application);
        return true;
    }();
    static_cast<void>(once);
}

void runSteps(const Sequence& steps, Simulation& simulation, Report& report) {
    simulation.listener = [&report](const std::string& line) { report.line('T', line); };
    auto wrong = simulation.run(steps);
    if (!wrong) wrong = brokenAfterRest(simulation);
    if (wrong) report.line('W', *wrong);
}

std::size_t allocatedKilobytes() {
    const std::size_t bytes =
        __sanitizer_get_current_allocated_bytes ? __sanitizer_get_current_allocated_bytes() : mallinfo2().uordblks;
    return bytes / 1024;
}

void runDays(int days, Simulation& simulation, Report& report) {
    for (const int more : {days, 11 * days}) {
        simulation.runDays(more, static_cast<Step>(more));
        report.line('T', std::to_string(allocatedKilobytes()));
        if (!simulation.broken.empty()) report.line('W', simulation.broken);
    }
}

Outcome readReport(int descriptor, pid_t child) {
    Outcome outcome;
    std::FILE* file = ::fdopen(descriptor, "r");
    char* line = nullptr;
    std::size_t size = 0;
    while (::getline(&line, &size, file) > 0) {
        std::string text(line + 1);
        text.pop_back();
        if (*line == 'W')
            outcome.wrong = text;
        else
            outcome.trace.push_back(text);
    }
    std::free(line);
    std::fclose(file);
    int status = 0;
    ::waitpid(child, &status, 0);
    if (WIFSIGNALED(status)) outcome.wrong = "the process dies by signal " + std::to_string(WTERMSIG(status));
    if (WIFEXITED(status) && WEXITSTATUS(status) != 0)
        outcome.wrong = "the process ends with status " + std::to_string(WEXITSTATUS(status));
    return outcome;
}

/// What is wrong, without what was found, which may differ from run to run.
std::string kindOf(const std::string& wrong) {
    return wrong.substr(0, wrong.find(" Found: "));
}

Outcome inChild(const std::function<void(Simulation&, Report&)>& run) {
    prepareApplication();
    int ends[2];
    if (::pipe(ends) != 0) std::abort();
    std::fflush(nullptr);
    const pid_t child = ::fork();
    if (child == 0) {
        ::close(ends[0]);
        Report report(ends[1]);
        current = &report;
        Simulation simulation;
        report.allowed = &simulation.filesFail;
        simulation.fatalStop = [&report](const base::RunTimeError& error) { report.stop(error); };
        run(simulation, report);
        std::_Exit(EXIT_SUCCESS);
    }
    ::close(ends[1]);
    return readReport(ends[0], child);
}

} // namespace

std::string Outcome::traceText() const {
    std::ostringstream all;
    for (const std::string& line : trace) all << line << '\n';
    return all.str();
}

Outcome runApart(const Sequence& steps) {
    return inChild([&](Simulation& simulation, Report& report) { runSteps(steps, simulation, report); });
}

std::vector<std::size_t> allocatedAfter(int days) {
    const Outcome outcome = inChild([&](Simulation& simulation, Report& report) { runDays(days, simulation, report); });
    std::vector<std::size_t> kilobytes;
    for (const std::string& line : outcome.trace) kilobytes.push_back(std::stoul(line));
    return outcome.wrong.empty() ? kilobytes : std::vector<std::size_t>{};
}

Outcome shortened(Sequence steps, Outcome outcome) {
    const std::string kind = kindOf(outcome.wrong);
    for (std::size_t chunk = steps.size() / 2; chunk > 0; chunk /= 2)
        for (std::size_t begin = 0; begin < steps.size();) {
            Sequence fewer = steps;
            const auto from = fewer.begin() + static_cast<std::ptrdiff_t>(begin);
            fewer.erase(from, from + static_cast<std::ptrdiff_t>(std::min(chunk, steps.size() - begin)));
            Outcome shorter = runApart(fewer);
            if (kindOf(shorter.wrong) != kind) {
                begin += chunk;
                continue;
            }
            steps = std::move(fewer);
            outcome = std::move(shorter);
        }
    return outcome;
}

} // namespace velmoriax::simulation
