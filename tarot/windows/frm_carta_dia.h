// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/windows/module_window.h"
#include "tarot/day_view.h"
#include "tarot/windows/tarot_context.h"
#include "widgets/second_timer.h"

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
    FrmCartaDia(shell::WindowContext& context, TarotContext& tarot);
    ~FrmCartaDia() override;

    void returnFromTray() override;

protected:
    void beforeOptions() override;
    void ownLoad() override;
    bool isRefresh() const override { return state().refreshingView; }
    void onHidden() override;
    void onMinimised(bool toSystray) override;
    void onUnload() override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void setUpControls();
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
    void hideAgain();
    void refresh();

    void describeCard();
    void tellChangeOfSign();
    void showSignText();
    void clickMoon();
    void showMoonDetails();
    void closeMoonDetails();

    TarotContext& tarot_;
    std::unique_ptr<Ui::FrmCartaDia> ui_;
    widgets::SecondTimer krono_;
    QTimer timerPlus_;
    MinuteCounts minutes_;
    bool hideAgainIsDue_ = false; ///< the midnight card has been shown for its time
    std::int16_t dayCard_ = 0;    ///< of today; what a click on the card describes
};

} // namespace velmoriax::tarot
