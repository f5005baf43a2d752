// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/question_box.h"

#include "widgets/one_line_text.h"

#include <QKeyEvent>
#include <QMimeData>

namespace velmoriax::widgets {

namespace {

struct Measure {
    int lines;
    int letters;
};
constexpr Measure usual{3, 22};
constexpr Measure fewest{1, 14};

} // namespace

QuestionBox::QuestionBox(QWidget* parent) : QPlainTextEdit(parent) {
    setTabChangesFocus(true);
    setLineWrapMode(QPlainTextEdit::WidgetWidth);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

QSize QuestionBox::sizeOf(int lines, int letters) const {
    const QFontMetrics metrics = fontMetrics();
    const int rim = 2 * (frameWidth() + static_cast<int>(document()->documentMargin())) + metrics.lineSpacing() / 2;
    return {metrics.averageCharWidth() * letters + rim, metrics.lineSpacing() * lines + rim};
}

QSize QuestionBox::sizeHint() const {
    return sizeOf(usual.lines, usual.letters);
}

QSize QuestionBox::minimumSizeHint() const {
    return sizeOf(fewest.lines, fewest.letters);
}

void QuestionBox::keyPressEvent(QKeyEvent* event) {
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!isEnter) return QPlainTextEdit::keyPressEvent(event);
    if (!event->isAutoRepeat()) Q_EMIT asked();
}

void QuestionBox::insertFromMimeData(const QMimeData* source) {
    insertPlainText(oneLine(source->text()));
}

} // namespace velmoriax::widgets
