// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

class QPushButton;

namespace velmoriax::widgets {

/// Makes a button the one that Return presses wherever in its window the focus is in a control that has no use for the
/// key. It is drawn as the default button only as long as that is so.
class DefaultButton : public QObject {
public:
    explicit DefaultButton(QPushButton& button);

private:
    void follow(QWidget* focused);

    QPushButton& button_;
};

} // namespace velmoriax::widgets
