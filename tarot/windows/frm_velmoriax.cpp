// SPDX-License-Identifier: GPL-3.0-or-later
#include "tarot/windows/frm_velmoriax.h"

#include "ui_frm_velmoriax.h"

namespace velmoriax::tarot {

frmVelmoriax::frmVelmoriax(shell::Process& process) :
    ModuleWindow(process, shell::Module::numbers), ui_(std::make_unique<Ui::frmVelmoriax>()) {
    ui_->setupUi(this);
    buildNavigation();
}

frmVelmoriax::~frmVelmoriax() = default;

void frmVelmoriax::ownLoad() {}

} // namespace velmoriax::tarot
