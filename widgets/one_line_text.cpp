// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/one_line_text.h"

#include <QLineEdit>
#include <QRegularExpression>

#include <algorithm>

namespace velmoriax::widgets {

namespace {

/// How many characters two texts have in common at their beginnings.
qsizetype commonBeginning(const QString& a, const QString& b) {
    return std::mismatch(a.begin(), a.end(), b.begin(), b.end()).first - a.begin();
}

/// What was inserted ends at the cursor, and begins where the new text differs from the old one.
void cleanInserted(QLineEdit& line, const QString& before) {
    const QString text = line.text();
    const qsizetype end = line.cursorPosition();
    const qsizetype begin = std::min(end, commonBeginning(text, before));
    const QString inserted = text.mid(begin, end - begin), clean = oneLine(inserted);
    if (clean == inserted) return;
    line.setText(text.left(begin) + clean + text.mid(end));
    line.setCursorPosition(static_cast<int>(begin + clean.size()));
}

} // namespace

QString oneLine(QString text) {
    static const QRegularExpression atEnds(QStringLiteral("^[\\r\\n\\t\\v\\f\\x{85}\\x{2028}\\x{2029}]+|"
                                                          "[\\r\\n\\t\\v\\f\\x{85}\\x{2028}\\x{2029}]+$"));
    static const QRegularExpression inside(QStringLiteral("[\\r\\n\\t\\v\\f\\x{85}\\x{2028}\\x{2029}]+"));
    return text.remove(atEnds).replace(inside, QStringLiteral(" "));
}

void keepOneLine(QLineEdit& line) {
    QObject::connect(&line, &QLineEdit::textChanged, &line, [&line, before = line.text()](const QString& text) mutable {
        const QString previous = std::exchange(before, text);
        if (line.isModified()) cleanInserted(line, previous);
    });
}

} // namespace velmoriax::widgets
