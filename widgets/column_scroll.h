// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QScrollArea>

namespace velmoriax::widgets {

/// A column of controls that scrolls up and down when the font is large, and never sideways: it is as wide as its
/// widest row.
class ColumnScroll : public QScrollArea {
    Q_OBJECT

public:
    explicit ColumnScroll(QWidget* parent = nullptr) : QScrollArea(parent) {}

    QSize minimumSizeHint() const override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace velmoriax::widgets
