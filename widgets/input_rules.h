// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

class QApplication;

/// Rules that hold for the controls of every window.
namespace velmoriax::widgets {

/// Takes the number or date that is typed into the focused control and is not taken yet. Whoever acts without a key or
/// a click in the window (the tray, a signal, the end of the session) calls it first.
void commitTypedValue();

/// Filters the application's events so that
/// - a shortcut or a click on another control acts on what was typed before it;
/// - the wheel changes a control only when it has the focus, and never gives the focus;
/// - text that is pasted or dropped into a line is one line: line ends and tabs at its ends are removed, others become
///   spaces.
class InputRules : public QObject {
    Q_OBJECT

public:
    explicit InputRules(QApplication& application);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace velmoriax::widgets
