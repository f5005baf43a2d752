// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "biorhythm/bio_view.h"

class QColor;
class QLabel;
class QWidget;

namespace velmoriax::biorhythm {

/// Sets the colour of a label's text; does nothing when the label has it already.
void setColour(QWidget& label, const QColor& colour);

/// The labels of one cycle in the view: its name, its value, and the two small arrows of which one is shown.
struct CycleRow {
    QLabel& name;
    QLabel& value;
    QLabel& up;
    QLabel& down;

    /// Before the first calculation: the name in the cycle's colour, no arrow.
    void setUp(const QColor& cycleColour) const;

    /// A level cycle leaves the arrows as they are.
    void show(const CycleShown& cycle) const;
};

} // namespace velmoriax::biorhythm
