// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/windows/module_window.h"
#include "tarot/ambient_sound.h"
#include "tarot/oracle_view.h"
#include "tarot/windows/result_menu.h"
#include "tarot/windows/tarot_context.h"

#include <QTimer>

#include <array>
#include <functional>
#include <memory>

class QDate;
class QPushButton;

namespace Ui {
class Frmoracle;
}

namespace velmoriax::widgets {
class PictureBox;
class QuestionBox;
} // namespace velmoriax::widgets

namespace velmoriax::tarot {

/// The oracle: four questions, each with its card, the final card, the date of the reading and the song behind it.
class Frmoracle : public shell::ModuleWindow {
    Q_OBJECT

public:
    Frmoracle(shell::WindowContext& context, TarotContext& tarot);
    ~Frmoracle() override;

protected:
    void ownLoad() override;
    void ownCommand(std::string_view name) override;
    void beforeClose() override;
    void resizeEvent(QResizeEvent* event) override;

private:
    struct SuitControls {
        Suit suit;
        widgets::QuestionBox* question;
        QPushButton* accept;
        widgets::PictureBox* card;
    };

    void setUpControls();
    void setUpTextPane();
    void connectSuits();
    void connectControls();

    void read(const SuitControls& controls);
    void showResultant();
    void reset();
    void showBacks();
    void followState();

    void askDate();
    void placeMonthView();
    void leaveMonthView();
    void pickDate(QDate day);

    void openText(const std::optional<std::string>& path);

    void switchSound(bool on);
    void changeSound(const std::function<bool()>& change);
    void showSwitch(bool on);
    void followTimer();

    OracleServices reader() const;
    AmbientServices ambience() const;

    TarotContext& tarot_;
    std::unique_ptr<Ui::Frmoracle> ui_;
    std::array<SuitControls, 4> suits_;
    ResultMenu results_;
    OracleState& state_; ///< the process's record; a reading begins anew with the window
    AmbientSound sound_;
    int soundChanges_ = 0;
    QTimer timerMidi_{this};
};

} // namespace velmoriax::tarot
