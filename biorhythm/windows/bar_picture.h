// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "biorhythm/cycle_table.h"

#include <QWidget>

namespace velmoriax::biorhythm {

/// The four cycles as bars up and down from a zero line, with their names below and the scale at the side.
class BarPicture : public QWidget {
    Q_OBJECT

public:
    explicit BarPicture(QWidget* parent = nullptr);

    /// Heights of the bars, -1 to 1.
    void setBars(const CycleValues& bars);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QRectF field() const;
    void paintScale(QPainter& painter) const;
    void paintBars(QPainter& painter) const;

    CycleValues bars_{};
};

} // namespace velmoriax::biorhythm
