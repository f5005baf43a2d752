// SPDX-License-Identifier: GPL-3.0-or-later
#include "biorhythm/windows/frm_bio.h"

#include "ui_frm_bio.h"

namespace velmoriax::biorhythm {

frmBio::frmBio(shell::Process& process) :
    ModuleWindow(process, shell::Module::biorhythms), ui_(std::make_unique<Ui::frmBio>()) {
    ui_->setupUi(this);
    buildNavigation();
}

frmBio::~frmBio() = default;

void frmBio::ownLoad() {}

} // namespace velmoriax::biorhythm
