// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/windows/module_window.h"
#include "tarot/windows/tarot_context.h"

#include <QDate>

#include <memory>

namespace Ui {
class FrmCalendar;
}

namespace velmoriax::tarot {

/// The card of any day, with the sign and the Moon of its noon. Nothing is worked out before a day is picked, not even
/// for the day that is marked when the window opens.
class FrmCalendar : public shell::ModuleWindow {
    Q_OBJECT

public:
    FrmCalendar(shell::WindowContext& context, TarotContext& tarot);
    ~FrmCalendar() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void ownLoad() override;
    void onHidden() override;

private:
    void setUpControls();
    void connectControls();

    void pick(QDate day);
    void sumcartdia(base::CivilDate date);
    void showSignOf(base::CivilDate date);
    void drawDateMoon(base::CivilDate date);

    void describeCard();
    void tellChangeOfSign();
    void showSignText();

    TarotContext& tarot_;
    std::unique_ptr<Ui::FrmCalendar> ui_;
    std::int16_t dateCard_ = 0;  ///< of the picked day; 0 before the first pick
    base::CivilDate pickedDate_; ///< of the latest pick
};

} // namespace velmoriax::tarot
