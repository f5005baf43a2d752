// SPDX-License-Identifier: GPL-3.0-or-later
#include "biorhythm/windows/cycle_row.h"

#include "biorhythm/windows/bio_colours.h"
#include "widgets/conversions.h"

#include <QLabel>

namespace velmoriax::biorhythm {

void setColour(QWidget& label, const QColor& colour) {
    QPalette palette = label.palette();
    if (palette.color(QPalette::WindowText) == colour) return;
    palette.setColor(QPalette::WindowText, colour);
    label.setPalette(palette);
}

void CycleRow::setUp(const QColor& cycleColour) const {
    setColour(name, cycleColour);
    up.setPixmap(QPixmap(QStringLiteral(":/bio/trend_up.png")));
    down.setPixmap(QPixmap(QStringLiteral(":/bio/trend_down.png")));
    up.hide();
    down.hide();
}

void CycleRow::show(const CycleShown& cycle) const {
    value.setText(widgets::qtText(cycle.caption));
    setColour(value, colourOf(cycle.colour));
    if (cycle.trend == shell::Trend::level) return;
    up.setVisible(cycle.trend == shell::Trend::rising);
    down.setVisible(cycle.trend == shell::Trend::falling);
}

} // namespace velmoriax::biorhythm
