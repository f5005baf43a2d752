// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/files.h"

#include <QByteArray>
#include <QImage>
#include <QPainterPath>
#include <QPixmap>
#include <QWidget>

namespace velmoriax::widgets {

/// Reads a picture of the program. Throws RunTimeError File not found or Invalid picture, naming the file.
QImage loadPicture(const platform::Files& files, const std::string& path);

/// True for the keys that click a picture: Space and both Enter keys.
bool isClickKey(const QKeyEvent& event);

/// A picture that is never stretched: it takes the largest place of its own proportions and is drawn at the screen's
/// pixel ratio. It can be clicked, by keyboard too, and carries a name for those who cannot see it.
class PictureBox : public QWidget {
    Q_OBJECT

public:
    explicit PictureBox(QWidget* parent = nullptr);

    void setPicture(const QImage& picture);
    const QImage& picture() const;

    /// Takes a picture of the program that is decoded when it is drawn for the first time: a large one takes as long as
    /// the rest of a window's load. Throws as `loadPicture` does when the file is missing or begins like no picture.
    void setPictureFile(const platform::Files& files, const std::string& path);

    /// The tip of the picture, which is its accessible name as well when it tells what is shown. A tip that tells what
    /// a click does is followed by `setAccessibleName`.
    void setTip(const QString& tip);

    /// Rounds the corners by a share of the width: 0.045 for a card.
    void setCornerRadius(double shareOfWidth);

    /// A picture that answers clicks takes the keyboard focus, and the pointer on it is a hand.
    void setClickable(bool clickable);

    QSize sizeHint() const override;
    bool hasHeightForWidth() const override { return false; }

    /// Where the picture itself is within the box.
    QRect pictureRect() const;

    /// Whether a point of the box is on the drawn picture: what is beside it in a wide or high box, and outside its
    /// round corners, answers nothing.
    bool isOnPicture(QPoint position) const;

Q_SIGNALS:
    void clicked();
    void pressed();
    void released();

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;

private:
    void takeSize(QSize size);
    void followPointer(QPoint position);
    QPainterPath outlineIn(const QRectF& place) const;
    const QPixmap& scaledPicture();

    mutable QImage picture_;
    mutable QByteArray encoded_; ///< until it is decoded
    QSize pictureSize_;
    QPixmap scaled_;
    double scaledRatio_ = 0;
    double cornerShare_ = 0;
    bool clickable_ = false;
    bool pressedInside_ = false;
    bool keyHeld_ = false;
};

} // namespace velmoriax::widgets
