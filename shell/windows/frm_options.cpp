// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/windows/frm_options.h"

#include "desktop/tray.h"
#include "shell/modules.h"
#include "shell/option_values.h"
#include "shell/windows/module_window.h"
#include "shell/windows/window_registry.h"
#include "ui_frm_options.h"
#include "widgets/conversions.h"
#include "widgets/look.h"

#include <QAbstractButton>

namespace velmoriax::shell {

namespace {

template<typename Work>
void forEachOption(const QWidget& window, Work work) {
    for (std::size_t i = 0; i < optionCount; ++i) {
        const auto option = static_cast<Option>(i);
        work(option, *window.findChild<QAbstractButton*>(widgets::qtText(controlName(option))));
    }
}

} // namespace

FrmOptions::FrmOptions(WindowContext& context) :
    SecondaryWindow(context), ui_(std::make_unique<Ui::FrmOptions>()),
    dialog_(context.options, context.state, {context.desktop.autostart, context.desktop.boxes, context.desktop.taskBar},
            context.windows.modules()) {
    ui_->setupUi(this);
    widgets::look::asQuiet(*ui_->LabelPanelTip);
    for (const ModuleInfo* module : context.windows.modules())
        ui_->Combolist->addItem(widgets::qtText(module->initialText));
    for (const AlertLevel& level : alertLevels) ui_->ComboBio->addItem(widgets::qtText(level.caption));
    connectOptions();
    connectList(*ui_->Combolist, OptionList::Combolist);
    connectList(*ui_->ComboBio, OptionList::ComboBio);
    connect(ui_->ARButtonAcep, &QPushButton::clicked, this, &FrmOptions::closeByButton);
}

FrmOptions::~FrmOptions() = default;

void FrmOptions::load() {
    dialog_.LeerIni(options().fileName(), optionsSection, {});
    showState();
    ui_->LabelPanelTip->setVisible(desktop().tray.reachable() && !desktop().tray.reportsPointer());
    centreOverModule();
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
    if (ModuleWindow* module = ModuleWindow::loadedIn(windows())) module->ctxSysTray1().tooltipsSwitched();
}

void FrmOptions::closeByButton() {
    dialog_.accept();
    unload();
}

} // namespace velmoriax::shell
