// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/picture_box.h"

#include "base/run_time_error.h"
#include "widgets/accessible_role.h"

#include <QBuffer>
#include <QEnterEvent>
#include <QHelpEvent>
#include <QImageReader>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <utility>

namespace velmoriax::widgets {

namespace {

using base::RunTimeError;
using Code = RunTimeError::Code;

/// The format by the first bytes, so that the readers of other formats are not loaded only to be asked; none for
/// others.
const char* formatOf(const std::string& bytes) {
    if (bytes.starts_with("\xFF\xD8")) return "JPG";
    return bytes.starts_with("GIF8") ? "GIF" : nullptr;
}

std::string pictureBytes(const platform::Files& files, const std::string& path) {
    auto content = files.read(path);
    if (content.status != platform::Files::Status::read) throw RunTimeError(Code::fileNotFound, path);
    return std::move(content.bytes);
}

} // namespace

QImage loadPicture(const platform::Files& files, const std::string& path) {
    const std::string bytes = pictureBytes(files, path);
    QImage picture = QImage::fromData(QByteArray::fromStdString(bytes), formatOf(bytes));
    if (picture.isNull()) throw RunTimeError(Code::invalidPicture, path);
    return picture;
}

bool isClickKey(const QKeyEvent& event) {
    return event.key() == Qt::Key_Space || event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

PictureBox::PictureBox(QWidget* parent) : QWidget(parent) {
    setAccessibleRole(*this, QAccessible::Graphic);
    setMouseTracking(true);
    setMinimumSize(24, 24);
}

const QImage& PictureBox::picture() const {
    if (!encoded_.isEmpty()) picture_.loadFromData(std::exchange(encoded_, {}));
    return picture_;
}

void PictureBox::setPicture(const QImage& picture) {
    picture_ = picture;
    encoded_.clear();
    takeSize(picture.size());
}

void PictureBox::setPictureFile(const platform::Files& files, const std::string& path) {
    const std::string bytes = pictureBytes(files, path);
    QByteArray encoded = QByteArray::fromStdString(bytes);
    QBuffer buffer(&encoded);
    const QSize size = QImageReader(&buffer, formatOf(bytes)).size();
    if (!size.isValid()) throw RunTimeError(Code::invalidPicture, path);
    picture_ = {};
    encoded_ = encoded;
    takeSize(size);
}

void PictureBox::takeSize(QSize size) {
    pictureSize_ = size;
    scaled_ = {};
    updateGeometry();
    update();
}

void PictureBox::setTip(const QString& tip) {
    setToolTip(tip);
    setAccessibleName(tip);
}

void PictureBox::setCornerRadius(double shareOfWidth) {
    cornerShare_ = shareOfWidth;
    scaled_ = {};
    update();
}

void PictureBox::setClickable(bool clickable) {
    clickable_ = clickable;
    setFocusPolicy(clickable ? Qt::StrongFocus : Qt::NoFocus);
    followPointer(mapFromGlobal(QCursor::pos()));
}

QSize PictureBox::sizeHint() const {
    return pictureSize_.isEmpty() ? QSize(64, 64) : pictureSize_;
}

QRect PictureBox::pictureRect() const {
    const QSize size = pictureSize_.scaled(this->size(), Qt::KeepAspectRatio);
    return {QPoint((width() - size.width()) / 2, (height() - size.height()) / 2), size};
}

QPainterPath PictureBox::outlineIn(const QRectF& place) const {
    const double radius = cornerShare_ * place.width();
    QPainterPath outline;
    outline.addRoundedRect(place, radius, radius);
    return outline;
}

bool PictureBox::isOnPicture(QPoint position) const {
    return outlineIn(pictureRect()).contains(position);
}

const QPixmap& PictureBox::scaledPicture() {
    const double ratio = devicePixelRatioF();
    const QSize target = (QSizeF(pictureRect().size()) * ratio).toSize();
    if (scaled_.size() == target && scaledRatio_ == ratio) return scaled_;
    QImage drawn(target, QImage::Format_ARGB32_Premultiplied);
    drawn.fill(Qt::transparent);
    QPainter painter(&drawn);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.setPen(Qt::NoPen);
    const QImage fitted = picture().scaled(target, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    painter.fillPath(outlineIn(QRectF(QPointF(), QSizeF(target))), QBrush(fitted));
    painter.end();
    scaled_ = QPixmap::fromImage(drawn);
    scaled_.setDevicePixelRatio(ratio);
    scaledRatio_ = ratio;
    return scaled_;
}

void PictureBox::paintEvent(QPaintEvent*) {
    if (picture().isNull()) return;
    QPainter painter(this);
    const QRect place = pictureRect();
    painter.drawPixmap(place.topLeft(), scaledPicture());
    if (!hasFocus()) return;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
    painter.drawPath(outlineIn(QRectF(place).adjusted(1, 1, -1, -1)));
}

bool PictureBox::event(QEvent* event) {
    const bool besideIt =
        event->type() == QEvent::ToolTip && !isOnPicture(static_cast<const QHelpEvent*>(event)->pos());
    if (!besideIt) return QWidget::event(event);
    event->ignore();
    return true;
}

void PictureBox::followPointer(QPoint position) {
    setCursor(clickable_ && isOnPicture(position) ? Qt::PointingHandCursor : Qt::ArrowCursor);
}

void PictureBox::enterEvent(QEnterEvent* event) {
    followPointer(event->position().toPoint());
}

void PictureBox::mousePressEvent(QMouseEvent* event) {
    pressedInside_ = event->button() == Qt::LeftButton && isOnPicture(event->position().toPoint());
    if (pressedInside_) Q_EMIT pressed();
}

void PictureBox::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || !pressedInside_) return;
    pressedInside_ = false;
    Q_EMIT released();
    if (isOnPicture(event->position().toPoint())) Q_EMIT clicked();
}

void PictureBox::mouseMoveEvent(QMouseEvent* event) {
    followPointer(event->position().toPoint());
}

void PictureBox::keyPressEvent(QKeyEvent* event) {
    if (!clickable_ || !isClickKey(*event)) return QWidget::keyPressEvent(event);
    if (event->isAutoRepeat()) return;
    keyHeld_ = true;
    Q_EMIT pressed();
}

void PictureBox::keyReleaseEvent(QKeyEvent* event) {
    if (!clickable_ || !isClickKey(*event)) return QWidget::keyReleaseEvent(event);
    // A key that was pressed in another window, in the menu that led here, say, is no click when it comes up.
    if (event->isAutoRepeat() || !std::exchange(keyHeld_, false)) return;
    Q_EMIT released();
    Q_EMIT clicked();
}

} // namespace velmoriax::widgets
