// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTimer>

class QToolButton;

namespace velmoriax::biorhythm {

/// The two arrows that move the date of reading. One that is held steps ten times a second; a click that is over before
/// the first tick makes its step as well. The left and right key step from either arrow.
class ReadingArrows : public QObject {
    Q_OBJECT

public:
    ReadingArrows(QToolButton& left, QToolButton& right);

    /// Stops an arrow that is held. The mouse may be released when the window is out of sight, and nobody tells then.
    void stop();

Q_SIGNALS:
    void held();
    void stepped(bool back);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void hold();
    void release(bool back);
    void repeat();
    bool arrowLeftDown() const; ///< the left one is held; else, while the timer runs, the right one

    QToolButton& left_;
    QTimer TimerButton_{this};
    bool hasStepped_ = false; ///< the arrow that is held has made a step already
};

} // namespace velmoriax::biorhythm
