// SPDX-License-Identifier: GPL-3.0-or-later
#include "biorhythm/windows/form_mod.h"

#include "biorhythm/bio_texts.h"
#include "biorhythm/profile_editor.h"
#include "biorhythm/profile_store.h"
#include "biorhythm/windows/profile_list.h"
#include "shell/windows/window_registry.h"
#include "ui_form_mod.h"
#include "widgets/conversions.h"
#include "widgets/date_picker.h"
#include "widgets/default_button.h"

namespace velmoriax::biorhythm {

FormMod::FormMod(shell::WindowContext& context) : SecondaryWindow(context), ui_(std::make_unique<Ui::FormMod>()) {
    ui_->setupUi(this);
    setWindowModality(Qt::ApplicationModal);
    connect(ui_->CmdAcept, &QPushButton::clicked, this, &FormMod::submit);
    new widgets::DefaultButton(*ui_->CmdAcept);
    connect(ui_->CmdCancel, &QPushButton::clicked, this, &FormMod::close);
}

FormMod::~FormMod() = default;

void FormMod::load() {
    const ProfileList* list = windows().loaded<ProfileList>();
    const std::string line = list ? list->selectedRecord() : std::string();
    const auto copy = copyWithoutProfile(desktop().files, desktop().boxes, line, modifyMessages);
    if (!copy) return unload();
    tempPath_ = *copy;
    centreOverModule();
    showRecord(line);
}

void FormMod::showRecord(const std::string& line) {
    const EditedProfile edited = editedProfile(line);
    ui_->TextName->setText(widgets::qtText(edited.name));
    ui_->DTPicker1->setDate(widgets::qtDate(edited.date.value_or(base::civilDateOf(desktop().clock.now()))));
    ui_->VScrollHora->setValue(edited.time.hour);
    ui_->VScrollMinuto->setValue(edited.time.minute);
}

void FormMod::submit() {
    const base::CivilTime time{ui_->VScrollHora->value(), ui_->VScrollMinuto->value(), 0};
    const bool replaced = submitProfile(desktop().files, tempPath_, ui_->TextName->text().toStdString(),
                                        {widgets::civilDate(ui_->DTPicker1->date()), time});
    if (!replaced) desktop().boxes.show(platform::BoxIcon::warning, std::string(text::recordNotReplaced));
    if (ProfileList* list = windows().loaded<ProfileList>()) list->ListaPerfiles();
    close();
}

} // namespace velmoriax::biorhythm
