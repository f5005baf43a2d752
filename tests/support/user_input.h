// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QTest>
#include <QWheelEvent>
#include <qtestspontaneevent.h>

/// What a user does with keyboard and mouse, as events that take the way of the real ones.
namespace velmoriax::test {

/// Gives a control the focus, in a window that is active.
inline void focus(QWidget& control) {
    QWidget& window = *control.window();
    window.show();
    window.activateWindow();
    if (!QTest::qWaitForWindowActive(&window)) throw std::logic_error("the window does not become active");
    control.setFocus();
}

/// Types a text over all that a control holds, key by key, and leaves it uncommitted.
inline void typeInto(QWidget& control, const QString& text) {
    focus(control);
    QTest::keySequence(&control, QKeySequence::SelectAll);
    QTest::keyClicks(&control, text);
}

/// Presses Alt and a letter, and waits as long as a button is drawn as pressed before it acts.
inline void pressMnemonic(QWidget& window, Qt::Key letter) {
    constexpr int longerThanPressed = 150; // ms
    QTest::keyClick(&window, letter, Qt::AltModifier);
    QTest::qWait(longerThanPressed);
}

/// Turns the wheel over the middle of a control.
inline void wheelOver(QWidget& control, int notches) {
    const QPointF middle = QRectF(control.rect()).center();
    QWheelEvent event(middle, control.mapToGlobal(middle), {}, {0, notches * QWheelEvent::DefaultDeltasPerStep},
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&event); // only then what a control ignores reaches the control around it
    qApp->notify(&control, &event);            // sendEvent() would reset that
}

/// Pastes a text at the cursor of a line.
inline void pasteInto(QLineEdit& line, const QString& text) {
    focus(line);
    QGuiApplication::clipboard()->setText(text);
    QTest::keySequence(&line, QKeySequence::Paste);
}

/// Presses the left button over one row of a list, moves to another and releases.
inline void dragOver(QAbstractItemView& list, int from, int to) {
    const auto middleOf = [&](int row) { return list.visualRect(list.model()->index(row, 0)).center(); };
    QTest::mousePress(list.viewport(), Qt::LeftButton, {}, middleOf(from));
    QMouseEvent move(QEvent::MouseMove, middleOf(to), list.viewport()->mapToGlobal(middleOf(to)), Qt::NoButton,
                     Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(list.viewport(), &move);
    QTest::mouseRelease(list.viewport(), Qt::LeftButton, {}, middleOf(to));
}

} // namespace velmoriax::test
