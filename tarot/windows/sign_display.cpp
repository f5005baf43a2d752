// SPDX-License-Identifier: GPL-3.0-or-later
#include "tarot/windows/sign_display.h"

#include "base/run_time_error.h"
#include "widgets/conversions.h"
#include "widgets/picture_box.h"

#include <algorithm>
#include <cmath>

namespace velmoriax::tarot {

namespace {

constexpr int lettersOfLine = 62;
constexpr double smallestLetters = 7;

/// A line end at the end would open an empty line in the pane.
QString withoutLastLineEnd(QString text) {
    while (text.endsWith(u'\n') || text.endsWith(u'\r')) text.chop(1);
    return text;
}

} // namespace

void showSign(const sky::SignReading& sign, const platform::Files& files, const SignControls& controls) {
    try {
        controls.ImageZod.setPicture(widgets::loadPicture(files, sign.picturePath));
    } catch (const base::RunTimeError&) {
    }
    controls.ImageZod.setTip(widgets::qtText(sign.tip));
    controls.ImageZod.setClickable(true);
    controls.LabelZod.setText(widgets::qtText(sign.label));
    controls.ImageAlert.setVisible(sign.alertVisible);
    controls.ImageAlert.setToolTip(widgets::qtText(sign.alertTip));
    controls.ImageAlert.setAccessibleName(widgets::qtText(sign.alertTip));
}

SignPane::SignPane(QWidget* parent) : QLabel(parent) {
    setProperty("role", QStringLiteral("pane"));
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
}

void SignPane::showIn(const QRect& place, const QString& text) {
    setText(withoutLastLineEnd(text));
    const QSize room(std::min(place.width(), fontMetrics().averageCharWidth() * lettersOfLine), place.height());
    fitFont(room);
    const int height = heightForWidth(room.width());
    setGeometry(place.center().x() - room.width() / 2, place.center().y() - height / 2, room.width(), height);
    show();
    raise();
}

void SignPane::fitFont(const QSize& room) {
    QFont letters = parentWidget()->font();
    const double largest = letters.pointSizeF();
    const auto steps = static_cast<int>(std::floor(largest - smallestLetters));
    for (int step = 0; step <= steps; ++step) {
        letters.setPointSizeF(largest - step);
        setFont(letters);
        if (heightForWidth(room.width()) <= room.height()) return;
    }
}

} // namespace velmoriax::tarot
