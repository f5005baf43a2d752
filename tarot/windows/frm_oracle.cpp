// SPDX-License-Identifier: GPL-3.0-or-later
#include "tarot/windows/frm_oracle.h"

#include "ui_frm_oracle.h"

namespace velmoriax::tarot {

Frmoracle::Frmoracle(shell::Process& process) :
    ModuleWindow(process, shell::Module::oracle), ui_(std::make_unique<Ui::Frmoracle>()) {
    ui_->setupUi(this);
    buildNavigation();
}

Frmoracle::~Frmoracle() = default;

void Frmoracle::ownLoad() {}

} // namespace velmoriax::tarot
