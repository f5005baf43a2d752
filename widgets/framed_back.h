// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPixmap>
#include <QWidget>

namespace velmoriax::widgets {

/// The back of a small window: a picture with a gold frame. In a window of another size than the picture's the frame
/// keeps its corners and its ornament at the right, and only what is between them is stretched.
class FramedBack : public QWidget {
    Q_OBJECT

public:
    explicit FramedBack(QWidget* parent = nullptr);

    /// A picture of the program's resources, drawn at two pixels to a logical one.
    void setBack(const QString& resource);

    /// The size of the picture in logical pixels.
    QSize backSize() const { return back_.size() / pixelsPerPoint; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    static constexpr int pixelsPerPoint = 2;

    QPixmap back_;
};

} // namespace velmoriax::widgets
