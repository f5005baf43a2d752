// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTimer>

class QToolButton;

namespace velmoriax::biorhythm {

/// The two arrows that change the date of reading by a day. An arrow that is held steps ten times a second; a click
/// that ends before the first tick makes one step. The left and the right key make a step too when either arrow has the
/// focus.
class ReadingArrows : public QObject {
    Q_OBJECT

public:
    ReadingArrows(QToolButton& left, QToolButton& right);

    /// Ends the steps of an arrow that is held. A hidden window is not informed that the mouse was released.
    void stop();

Q_SIGNALS:
    void held();
    void stepped(bool back);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void press(bool left);
    void release(bool left);
    void repeat();

    QTimer TimerButton_{this};
    bool arrowLeftDown_ = false;
    bool arrowRightDown_ = false;
    bool hasStepped_ = false; ///< the arrow that is held has made a step
};

} // namespace velmoriax::biorhythm
