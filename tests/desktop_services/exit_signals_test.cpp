// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/exit_signals.h"
#include "support/qt_application.h"

#include <QTest>

#include <gtest/gtest.h>

#include <csignal>

namespace velmoriax::desktop {
namespace {

TEST(ExitSignals, EachOneIsReported) {
    test::application();
    int reported = 0;
    const ExitSignals exits([&] { ++reported; });
    for (const int number : {SIGTERM, SIGINT, SIGHUP}) {
        const int before = reported;
        std::raise(number);
        EXPECT_TRUE(QTest::qWaitFor([&] { return reported == before + 1; })) << number;
        std::signal(number, SIG_DFL);
    }
}

} // namespace
} // namespace velmoriax::desktop
