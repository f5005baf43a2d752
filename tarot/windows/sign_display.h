// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/files.h"
#include "sky/sky_state.h"

#include <QLabel>
#include <QToolButton>

namespace velmoriax::widgets {
class PictureBox;
}

namespace velmoriax::tarot {

/// The corners of a picture that is a disk: Moon and signs.
inline constexpr double roundPicture = 0.5;

/// The controls in which a window shows the sign.
struct SignControls {
    widgets::PictureBox& ImageZod;
    QLabel& LabelZod;
    QToolButton& ImageAlert;
};

/// Shows a sign in the controls. If its picture is missing, the picture shown before stays: nothing about
/// the signs stops the program.
void showSign(const sky::SignReading& sign, const platform::Files& files, const SignControls& controls);

/// "TextZod": the text about a sign, in a pane over a part of the window while the user asks for it.
class SignPane : public QLabel {
    Q_OBJECT

public:
    explicit SignPane(QWidget* parent = nullptr);

    /// Shows a text in the middle of the place, as large as it needs. Where there is not enough space, its letters are
    /// made smaller.
    void showIn(const QRect& place, const QString& text);

private:
    void fitFont(const QSize& room);
};

} // namespace velmoriax::tarot
