// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QLineEdit;

namespace velmoriax::widgets {

/// Text for a line: line ends and tabs at its ends are removed; inside it a run of them becomes one space.
QString oneLine(QString text);

/// Makes one line of each text that is pasted or dropped into this control from now on.
void keepOneLine(QLineEdit& line);

} // namespace velmoriax::widgets
