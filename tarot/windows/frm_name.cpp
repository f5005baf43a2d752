// SPDX-License-Identifier: GPL-3.0-or-later
#include "tarot/windows/frm_name.h"

#include "ui_frm_name.h"

namespace velmoriax::tarot {

FrmName::FrmName(shell::Process& process) :
    ModuleWindow(process, shell::Module::names), ui_(std::make_unique<Ui::FrmName>()) {
    ui_->setupUi(this);
    buildNavigation();
}

FrmName::~FrmName() = default;

void FrmName::ownLoad() {}

} // namespace velmoriax::tarot
