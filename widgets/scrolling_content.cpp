// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/scrolling_content.h"

#include <QEvent>
#include <QLayout>
#include <QMainWindow>
#include <QMenuBar>
#include <QScreen>
#include <QScrollBar>
#include <QVBoxLayout>

#include <algorithm>

namespace velmoriax::widgets {

namespace {

constexpr int titleBarHeight = 32; ///< as far as can be known before the window manager has made one

int menuHeight(const QWidget& window) {
    const auto* main = qobject_cast<const QMainWindow*>(&window);
    return main && main->menuWidget() ? main->menuWidget()->sizeHint().height() : 0;
}

/// What a layout needs at a width: lines of text that wrap need more height the narrower they are.
QSize neededAt(const QWidget& content, int width) {
    QSize needed = content.minimumSizeHint().expandedTo(content.minimumSize());
    const QLayout* layout = content.layout();
    if (!layout || !layout->hasHeightForWidth()) return needed;
    needed.setHeight(std::max(needed.height(), layout->minimumHeightForWidth(std::max(width, needed.width()))));
    return needed;
}

} // namespace

ScrollingContent::ScrollingContent(QWidget* content) {
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidget(content);
    content->setAutoFillBackground(false);
    viewport()->setAutoFillBackground(false);
}

QSize ScrollingContent::onScreen(QSize size) const {
    const QSize free = screen()->availableGeometry().size() - QSize(0, titleBarHeight + menuHeight(*window()));
    const bool tooHigh = size.height() > free.height();
    const bool tooWide = size.width() > free.width();
    if (tooHigh) size.rwidth() += verticalScrollBar()->sizeHint().width();
    if (tooWide) size.rheight() += horizontalScrollBar()->sizeHint().height();
    return size.boundedTo(free);
}

QSize ScrollingContent::minimumSizeHint() const {
    return onScreen(widget()->minimumSizeHint().expandedTo(widget()->minimumSize()));
}

QSize ScrollingContent::sizeHint() const {
    QSize hint = widget()->sizeHint();
    const QLayout* layout = widget()->layout();
    if (layout && layout->hasHeightForWidth())
        hint.setHeight(std::max(hint.height(), layout->totalHeightForWidth(hint.width())));
    return onScreen(hint);
}

bool ScrollingContent::eventFilter(QObject* watched, QEvent* event) {
    if (watched == widget() && event->type() == QEvent::LayoutRequest) {
        updateGeometry();
        fitContent();
    }
    return QScrollArea::eventFilter(watched, event);
}

void ScrollingContent::resizeEvent(QResizeEvent* event) {
    QScrollArea::resizeEvent(event);
    fitContent();
}

/// A bar at one edge takes space from the other direction, so that both may be needed.
void ScrollingContent::fitContent() {
    const QSize area = maximumViewportSize();
    const QSize bars(verticalScrollBar()->sizeHint().width(), horizontalScrollBar()->sizeHint().height());
    QSize needed = neededAt(*widget(), area.width());
    const bool tooHigh = needed.height() > area.height();
    const bool tooWide = needed.width() > area.width() - (tooHigh ? bars.width() : 0);
    const QSize viewport = area - QSize(tooHigh ? bars.width() : 0, tooWide ? bars.height() : 0);
    needed = neededAt(*widget(), viewport.width());
    widget()->resize(needed.expandedTo(viewport));
}

void makeScrollable(QWidget& window) {
    if (auto* main = qobject_cast<QMainWindow*>(&window)) {
        if (QWidget* content = main->takeCentralWidget()) main->setCentralWidget(new ScrollingContent(content));
        return;
    }
    if (!window.layout()) return;
    auto* content = new QWidget;
    content->setLayout(window.layout());
    auto* area = new ScrollingContent(content);
    // The window still sees the mouse where no control is.
    for (QWidget* part : {content, area->viewport(), static_cast<QWidget*>(area)})
        part->setMouseTracking(window.hasMouseTracking());
    auto* layout = new QVBoxLayout(&window);
    layout->setContentsMargins({});
    layout->addWidget(area);
}

} // namespace velmoriax::widgets
