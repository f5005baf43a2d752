// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/default_button.h"

#include "widgets/focused_button.h"

#include <QApplication>
#include <QPushButton>

namespace velmoriax::widgets {

DefaultButton::DefaultButton(QPushButton& button) : QObject(&button), button_(button) {
    button.setDefault(true);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* focused) { follow(focused); });
}

void DefaultButton::follow(QWidget* focused) {
    const bool inWindow = focused && focused->window() == button_.window();
    if (inWindow) button_.setDefault(focused == &button_ || !usesReturn(*focused));
}

} // namespace velmoriax::widgets
