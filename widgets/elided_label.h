// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>

namespace velmoriax::widgets {

/// One line of text that is shortened where there is not enough space; its tip has the whole of it then.
class ElidedLabel : public QLabel {
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget* parent = nullptr) : QLabel(parent) {}

    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QString shortened() const;
};

} // namespace velmoriax::widgets
