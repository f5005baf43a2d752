// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

namespace velmoriax::widgets {

/// Opens what explains a picture when the mouse moves on it: at the fifth move inside, and not after a time. From
/// the first move on the mouse is held, so that the move that leaves the picture is seen, wherever it goes; there all
/// is closed and the mouse released. It is released as well when the window hides, loses the focus or is behind a box.
class HoverWatch : public QObject {
    Q_OBJECT

public:
    /// Whether the keys of a click open it too, for as long as one is pressed.
    enum class Keys { none, whilePressed };

    explicit HoverWatch(QWidget& picture, Keys keys = Keys::none);
    ~HoverWatch() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void opened();
    void closed();

private:
    void moved(QPoint position);
    void used(QEvent& event);
    void enter();
    void leave();

    QWidget& picture_;
    QPointer<QWidget> window_; ///< watched while the mouse is held
    Keys keys_;
    int moves_ = 0; ///< inside the picture since the mouse came
};

} // namespace velmoriax::widgets
