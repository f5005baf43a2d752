// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QApplication;
class QWidget;
class QColor;

/// The one look of all windows: a night observatory. Midnight grounds, warm ivory text, old-gold accents and hairlines,
/// a serif for titles and card names.
namespace velmoriax::widgets::look {

/// Sets palette, fonts and style sheet for the whole program.
void apply(QApplication& application);

QColor background(); ///< the windows' midnight blue, also under the moon pictures
QColor panel();      ///< grounds of fields and lists
QColor text();       ///< text
QColor gold();       ///< accents and hairlines
QColor quietText();

/// Marks a label as a title or a card name: serif, larger, gold.
void asTitle(QWidget& label);

/// Sets the serif of the cards for a pane of text, in a size for reading.
void asReading(QWidget& pane);

/// Marks a label as secondary: quieter text.
void asQuiet(QWidget& label);

} // namespace velmoriax::widgets::look
