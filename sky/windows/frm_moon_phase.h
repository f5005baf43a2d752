// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/windows/secondary_window.h"
#include "sky/moon_texts.h"

#include <QTimer>

#include <memory>

namespace Ui {
class FrmMoonPhase;
}

namespace velmoriax::sky {

/// The Moon of this moment, second by second: illumination, age, the four next or previous phases and a summary. It
/// floats above the other windows without taking the keyboard, and is gone as soon as the mouse touches its free
/// background.
class FrmMoonPhase : public shell::SecondaryWindow {
    Q_OBJECT

public:
    static constexpr std::string_view windowName = "FrmMoonPhase";

    explicit FrmMoonPhase(shell::WindowContext& context);
    ~FrmMoonPhase() override;

    void load() override;

    /// Changes between the next and the previous phases.
    void LabelDetall_Click();

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void onUnload() override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void tick();
    void refreshMoonDetails();

    std::unique_ptr<Ui::FrmMoonPhase> ui_;
    QTimer timer1_;
    LitMoment lit_{}; ///< the present in universal time, as of the latest tick
    bool showPrevious_ = false;
};

} // namespace velmoriax::sky
