// SPDX-License-Identifier: GPL-3.0-or-later
#include "biorhythm/windows/frm_profiles.h"

#include "biorhythm/bio_texts.h"
#include "biorhythm/profile_store.h"
#include "biorhythm/windows/form_mod.h"
#include "biorhythm/windows/profile_view.h"
#include "shell/windows/window_registry.h"
#include "ui_frm_profiles.h"
#include "widgets/conversions.h"

namespace velmoriax::biorhythm {

FrmProfiles::FrmProfiles(shell::WindowContext& context) :
    SecondaryWindow(context), ui_(std::make_unique<Ui::FrmProfiles>()) {
    ui_->setupUi(this);
    connect(ui_->CmdBorrar, &QPushButton::clicked, this, &FrmProfiles::deleteRecord);
    connect(ui_->CmdMod, &QPushButton::clicked, this, &FrmProfiles::modifyRecord);
    connect(ui_->CmdExit, &QPushButton::clicked, this, &FrmProfiles::exit);
}

FrmProfiles::~FrmProfiles() = default;

void FrmProfiles::load() {
    state().noTrayAdd = true;
    centreOverModule();
    ListaPerfiles();
}

void FrmProfiles::onUnload() {
    state().noTrayAdd = false;
}

void FrmProfiles::ListaPerfiles() {
    QStringList lines;
    for (const std::string& line : profileLines(desktop().files)) lines << widgets::qtText(line);
    ui_->ListProfiles->clear();
    ui_->ListProfiles->addItems(lines);
}

std::string FrmProfiles::selectedRecord() const {
    // Not the current entry: the list makes its first one current when it gets the focus, without any choice of the
    // user.
    const auto chosen = ui_->ListProfiles->selectedItems();
    return chosen.isEmpty() ? std::string() : chosen.first()->text().toStdString();
}

void FrmProfiles::deleteRecord() {
    removeProfileLines(desktop().files, desktop().boxes, selectedRecord(), deleteMessages);
    ListaPerfiles();
}

void FrmProfiles::modifyRecord() {
    if (selectedRecord().empty())
        return desktop().boxes.show(platform::BoxIcon::warning, std::string(text::chooseRecord),
                                    std::string(text::chooseRecordTitle));
    windows().touch<FormMod>().showNormalState();
}

/// Only this button updates the list of the view; the close box of the window does not.
void FrmProfiles::exit() {
    if (ProfileView* view = windows().loaded<ProfileView>()) view->reloadProfiles();
    close();
}

} // namespace velmoriax::biorhythm
