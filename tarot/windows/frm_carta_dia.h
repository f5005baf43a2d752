// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/windows/module_window.h"
#include "shell/windows/second_timer.h"
#include "tarot/day_view.h"

#include <QTimer>

#include <memory>

namespace Ui {
class FrmCartaDia;
}

namespace velmoriax::tarot {

/// The card of today, with the Moon, the sign and the average biorhythm of this moment. One second after midnight it
/// shows the new day's card over all other windows.
class FrmCartaDia : public shell::ModuleWindow {
    Q_OBJECT

public:
    explicit FrmCartaDia(shell::Process& process);
    ~FrmCartaDia() override;

    void returnFromTray() override;

protected:
    void beforeOptions() override;
    void ownLoad() override;
    bool isRefresh() const override { return record().shell.refreshingView; }
    void onHidden() override;
    void onMinimised(bool toSystray) override;
    void onUnload() override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void dressControls();
    void connectControls();
    void watchHovers();
    void prepareTimers();

    // The steps of the load routine.
    void showDate();
    void showCardOfToday();
    void showSignOfNow();
    void startTimers();
    void drawDayMoon();
    void loadBirth();
    void DrawBioMedia();

    void tickSecond();
    void tickMinute();
    void copyTexts();
    void showNewDay();
    void refresh();

    void describeCard();
    void tellChangeOfSign();
    void showSignText();
    void clickMoon();
    void showMoonDetails();
    void closeMoonDetails();

    std::unique_ptr<Ui::FrmCartaDia> ui_;
    shell::SecondTimer krono_;
    QTimer timerPlus_;
    MinuteCounts minutes_;
    std::int16_t dayCard_ = 0; ///< of today; what a click on the card describes
};

} // namespace velmoriax::tarot
