// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractButton>

namespace velmoriax::shell {
struct AverageGauge;
}

namespace velmoriax::tarot {

/// The average gauge: a bar over the whole width, up from the middle line for a positive day and down for a negative
/// one. It answers clicks like a button; its value is its accessible name.
class GaugeBox : public QAbstractButton {
    Q_OBJECT

public:
    explicit GaugeBox(QWidget* parent = nullptr);

    /// Clears the drawing area and draws the bar.
    void draw(const shell::AverageGauge& gauge);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    /// The drawing area inside frame and ticks.
    QRectF area() const;
    void paintFrame(QPainter& painter) const;

    float value_ = 0;
    QColor colour_;
};

} // namespace velmoriax::tarot
