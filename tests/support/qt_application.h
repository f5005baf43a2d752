// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QApplication>

/// The font library never frees its caches.
extern "C" [[gnu::weak]] const char* __lsan_default_suppressions() {
    return "leak:libfontconfig\n";
}

namespace velmoriax::test {

/// The application of the tests, on the offscreen platform.
inline QApplication& application() {
    static int argc = 1;
    static char name[] = "test";
    static char* argv[] = {name, nullptr};
    // A test may have set it with the sizes of the screens.
    static const bool offscreen = qEnvironmentVariable("QT_QPA_PLATFORM").startsWith(QLatin1String("offscreen")) ||
                                  qputenv("QT_QPA_PLATFORM", "offscreen");
    static QApplication* const instance = offscreen ? new QApplication(argc, argv) : nullptr;
    return *instance;
}

} // namespace velmoriax::test
