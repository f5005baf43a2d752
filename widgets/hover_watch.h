// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QWidget>

namespace velmoriax::widgets {

class PictureBox;

/// Opens what explains a picture when the mouse moves on it: at the fifth move on the picture, and not after a time. It
/// is closed when the mouse leaves the picture, and when the window hides, loses the focus or is behind a box. The
/// mouse is never held, so that any program can take it. While another window of the program, the one that was
/// opened, covers the pointer, its place is asked for from time to time: the moves are that window's.
class HoverWatch : public QObject {
    Q_OBJECT

public:
    /// Whether the keys of a click open it too, for as long as one is pressed.
    enum class Keys { none, whilePressed };

    explicit HoverWatch(PictureBox& picture, Keys keys = Keys::none);
    ~HoverWatch() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void opened();
    void closed();

private:
    void used(QEvent& event);
    void moved(QPoint position);
    void left();
    bool isPointerOnPicture() const;
    void enter();
    void leave();

    PictureBox& picture_;
    QPointer<QWidget> window_; ///< watched while the mouse is on the picture
    Keys keys_;
    int moves_ = 0;     ///< on the picture since the mouse came
    QTimer look_{this}; ///< runs while the pointer is covered
};

} // namespace velmoriax::widgets
