// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/windows/frm_options.h"

#include "shell/modules.h"
#include "shell/option_values.h"
#include "shell/windows/module_window.h"
#include "shell/windows/window_registry.h"
#include "ui_frm_options.h"

#include <QAbstractButton>

namespace velmoriax::shell {

namespace {

QString text(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

template<typename Work>
void forEachOption(const QWidget& window, Work work) {
    for (std::size_t i = 0; i < optionCount; ++i) {
        const auto option = static_cast<Option>(i);
        work(option, *window.findChild<QAbstractButton*>(text(controlName(option))));
    }
}

} // namespace

FrmOptions::FrmOptions(Process& process) :
    SecondaryWindow(process), ui_(std::make_unique<Ui::FrmOptions>()),
    dialog_(process.record, {process.desktop.autostart, process.desktop.boxes, process.desktop.taskBar}) {
    ui_->setupUi(this);
    for (const ModuleRow& row : modules) ui_->Combolist->addItem(text(row.initialText));
    for (const AlertLevel& level : alertLevels) ui_->ComboBio->addItem(text(level.caption));
    connectOptions();
    connectList(*ui_->Combolist, OptionList::Combolist);
    connectList(*ui_->ComboBio, OptionList::ComboBio);
    connect(ui_->ARButtonAcep, &QPushButton::clicked, this, &FrmOptions::closeByButton);
}

FrmOptions::~FrmOptions() = default;

void FrmOptions::load() {
    dialog_.LeerIni(record().options.fileName(), optionsSection, {});
    showState();
    standOverModule();
}

void FrmOptions::connectOptions() {
    forEachOption(*this, [this](Option option, QAbstractButton& button) {
        connect(&button, &QAbstractButton::clicked, this, [this, option] {
            dialog_.click(option);
            showState();
            if (option == Option::CheckTooltips) tellTray();
        });
    });
}

void FrmOptions::connectList(QComboBox& box, OptionList list) {
    connect(&box, &QComboBox::activated, this, [this, list](int entry) { dialog_.choose(list, entry); });
}

void FrmOptions::showState() {
    const OptionControls& state = dialog_.state();
    forEachOption(*this, [&](Option option, QAbstractButton& button) {
        button.setChecked(state[option].on);
        button.setEnabled(state[option].enabled);
    });
    ui_->Combolist->setCurrentIndex(state[OptionList::Combolist]);
    ui_->ComboBio->setCurrentIndex(state[OptionList::ComboBio]);
}

/// The icon's text depends on whether tips are on, and so does whether its timers run.
void FrmOptions::tellTray() {
    if (ModuleWindow* module = process().windows.loadedModule()) module->ctxSysTray1().tooltipsSwitched();
}

void FrmOptions::closeByButton() {
    dialog_.accept();
    unload();
}

} // namespace velmoriax::shell
