// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSpinBox>

namespace velmoriax::widgets {

/// A bounded number that is stepped or typed. What is typed counts when it is complete, not at each key: a number
/// outside the bounds can be typed, is shown in another colour, and then becomes the nearest bound. A value set from
/// code emits its signal inside the call, as one set by the user does. Its text is a control with a name of its own.
class SpinBox : public QSpinBox {
    Q_OBJECT
    Q_PROPERTY(QString face READ face WRITE setFace)

public:
    explicit SpinBox(QWidget* parent = nullptr);

    /// The object name of the text.
    QString face() const;
    void setFace(const QString& name);

    /// Takes what is typed.
    void commitTyped();

    /// Sets the value without a signal.
    void showValue(int value);

protected:
    QValidator::State validate(QString& text, int& position) const override;
    void fixup(QString& text) const override;
    void showEvent(QShowEvent* event) override;

private:
    void markOutside();
};

/// The twelve months by name; a number or the beginning of a name can be typed.
class MonthSpinBox : public SpinBox {
    Q_OBJECT

public:
    explicit MonthSpinBox(QWidget* parent = nullptr);

protected:
    QString textFromValue(int value) const override;
    int valueFromText(const QString& text) const override;
    QValidator::State validate(QString& text, int& position) const override;
};

} // namespace velmoriax::widgets
