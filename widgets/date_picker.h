// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QComboBox>
#include <QDate>

class QCalendarWidget;

namespace velmoriax::widgets {

/// A date as month/day/year that is typed, stepped with the arrow keys at the cursor, or picked in a calendar that
/// drops down. What is typed counts when it is complete: at Return, when the focus leaves, or by commitTyped(). The
/// years are 100 to 9999; months and weekdays are in English.
class DatePicker : public QComboBox {
    Q_OBJECT

public:
    explicit DatePicker(QWidget* parent = nullptr);

    QDate date() const { return date_; }
    void setDate(QDate date);

    /// Takes the typed date, or shows the last one again when the text is none.
    void commitTyped();

    void showPopup() override;

Q_SIGNALS:
    void dateChanged(QDate date);

protected:
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void pick(QDate date);
    void step(int steps);
    QWidget& dropDown();

    QDate date_ = QDate(2000, 1, 1);
    QWidget* dropDown_ = nullptr;         ///< created when it is first shown
    QCalendarWidget* calendar_ = nullptr; ///< in the drop-down
};

} // namespace velmoriax::widgets
