// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "biorhythm/windows/picture_to_jpeg.h"
#include "shell/windows/secondary_window.h"

namespace velmoriax::biorhythm {

/// Saves a picture of the view as a JPEG file and opens it. The window is never shown: all its work is done when it is
/// loaded. When a step fails, the next ones are done all the same.
class FormSnap : public shell::SecondaryWindow {
    Q_OBJECT

public:
    static constexpr std::string_view windowName = "FormSnap";

    explicit FormSnap(shell::WindowContext& context);

    void load() override;

    /// The formats in which pictures can be written; a test can replace them.
    QByteArrayList encoders = pictureEncoders();

private:
    /// The view at the resolution of its screen; null when it is not loaded.
    QImage capture() const;
    std::string pathOf(const char* name) const;
};

} // namespace velmoriax::biorhythm
