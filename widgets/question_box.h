// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPlainTextEdit>

namespace velmoriax::widgets {

/// A box for one question: a sentence that wraps. It holds a single line: Enter asks, and a line end that is pasted in
/// becomes a space, so that a record of the log keeps its lines.
class QuestionBox : public QPlainTextEdit {
    Q_OBJECT

public:
    explicit QuestionBox(QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void asked();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void insertFromMimeData(const QMimeData* source) override;

private:
    QSize sizeOf(int lines, int letters) const;
};

} // namespace velmoriax::widgets
