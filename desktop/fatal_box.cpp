// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/fatal_box.h"

#include <QApplication>
#include <QMessageBox>

#include <cstdlib>

namespace velmoriax::desktop {

void FatalBox::stop(const base::RunTimeError& error) {
    QMessageBox box(QMessageBox::Critical, QApplication::applicationDisplayName(),
                    QString::fromStdString(error.message()), QMessageBox::Ok);
    box.setTextFormat(Qt::PlainText);
    box.exec();
    if (removeIcon) removeIcon();
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents, 50);
    std::_Exit(EXIT_FAILURE);
}

} // namespace velmoriax::desktop
