// SPDX-License-Identifier: GPL-3.0-or-later
#include "tarot/windows/frm_calendar.h"

#include "ui_frm_calendar.h"

namespace velmoriax::tarot {

FrmCalendar::FrmCalendar(shell::Process& process) :
    ModuleWindow(process, shell::Module::anotherDay), ui_(std::make_unique<Ui::FrmCalendar>()) {
    ui_->setupUi(this);
    buildNavigation();
}

FrmCalendar::~FrmCalendar() = default;

void FrmCalendar::ownLoad() {}

} // namespace velmoriax::tarot
