// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "biorhythm/windows/picture_to_jpeg.h"
#include "shell/windows/secondary_window.h"

namespace velmoriax::biorhythm {

/// Takes a picture of the view and opens it. It is never shown: all its work is in its load. A step that fails is
/// passed over.
class FormSnap : public shell::SecondaryWindow {
    Q_OBJECT

public:
    static constexpr std::string_view windowName = "FormSnap";

    explicit FormSnap(shell::WindowContext& context);

    void load() override;

    /// What pictures can be written in; a test takes the encoder away.
    QByteArrayList encoders = pictureEncoders();

private:
    QImage capture() const;
    std::string pathOf(const char* name) const;
};

} // namespace velmoriax::biorhythm
