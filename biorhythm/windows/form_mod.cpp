// SPDX-License-Identifier: GPL-3.0-or-later
#include "biorhythm/windows/form_mod.h"

#include "biorhythm/profile_editor.h"
#include "biorhythm/profile_store.h"
#include "biorhythm/windows/frm_profiles.h"
#include "biorhythm/windows/qt_values.h"
#include "shell/windows/window_registry.h"
#include "ui_form_mod.h"

namespace velmoriax::biorhythm {

FormMod::FormMod(shell::Process& process) : SecondaryWindow(process), ui_(std::make_unique<Ui::FormMod>()) {
    ui_->setupUi(this);
    setWindowModality(Qt::ApplicationModal);
    openPicker(*ui_->DTPicker1);
    connect(ui_->CmdAcept, &QPushButton::clicked, this, &FormMod::submit);
    connect(ui_->TextName, &QLineEdit::returnPressed, this, &FormMod::submit);
    connect(ui_->CmdCancel, &QPushButton::clicked, this, &FormMod::close);
}

FormMod::~FormMod() = default;

FrmProfiles* FormMod::list() const {
    return static_cast<FrmProfiles*>(process().windows.loaded("FrmProfiles"));
}

void FormMod::load() {
    const std::string line = list() ? list()->selectedRecord() : std::string();
    const auto copy = copyWithoutProfile(desktop().files, desktop().boxes, line, modifyMessages);
    if (!copy) return unload();
    tempPath_ = *copy;
    standOverModule();
    showRecord(line);
}

void FormMod::showRecord(const std::string& line) {
    const EditedProfile edited = editedProfile(line);
    ui_->TextName->setText(QString::fromStdString(edited.name));
    ui_->DTPicker1->setDate(qtDate(edited.date.value_or(base::civilDateOf(desktop().clock.now()))));
    ui_->VScrollHora->setValue(edited.time.hour);
    ui_->VScrollMinuto->setValue(edited.time.minute);
}

void FormMod::submit() {
    const base::CivilTime time{ui_->VScrollHora->value(), ui_->VScrollMinuto->value(), 0};
    submitProfile(desktop().files, tempPath_, ui_->TextName->text().toStdString(), civilDate(ui_->DTPicker1->date()),
                  time);
    if (list()) list()->ListaPerfiles();
    close();
}

} // namespace velmoriax::biorhythm
