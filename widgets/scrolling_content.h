// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QScrollArea>

namespace velmoriax::widgets {

/// The content of a window. It is as large as the window and never smaller than its controls need; what does not fit on
/// the screen then, with large letters, is scrolled to.
class ScrollingContent : public QScrollArea {
    Q_OBJECT

public:
    explicit ScrollingContent(QWidget* content);

    /// What the content needs, as far as the screen has space for it.
    QSize minimumSizeHint() const override;
    QSize sizeHint() const override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    QSize onScreen(QSize size) const;
    void fitContent();
};

/// Lets the content of a window scroll: the central widget of a main window, or else what its layout holds.
void makeScrollable(QWidget& window);

} // namespace velmoriax::widgets
