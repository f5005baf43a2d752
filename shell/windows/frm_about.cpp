// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/windows/frm_about.h"

#include "ui_frm_about.h"
#include "widgets/conversions.h"
#include "widgets/look.h"

#include <QGuiApplication>

namespace velmoriax::shell {

frmAbout::frmAbout(WindowContext& context) : SecondaryWindow(context), ui_(std::make_unique<Ui::frmAbout>()) {
    ui_->setupUi(this);
    setMouseTracking(true);
    widgets::look::asTitle(*ui_->LblTitle);
    widgets::look::asQuiet(*ui_->lblVersion);
    ui_->ARButtonAcep->setFocus();
    ui_->emblem->setPixmap(windowIcon().pixmap(64, 64));
    ui_->CommandInfo->setIcon(QIcon(QStringLiteral(":/look/pictures/help-24.png")));
    connectWays();
}

frmAbout::~frmAbout() = default;

void frmAbout::load() {
    text_ = aboutText(options(), desktop().files.applicationDirectory(),
                      QGuiApplication::applicationDisplayName().toStdString(),
                      QCoreApplication::applicationVersion().toStdString());
    setWindowTitle(widgets::qtText(text_.windowTitle));
    ui_->LblTitle->setText(widgets::qtText(text_.title));
    ui_->lblVersion->setText(widgets::qtText(text_.version));
    ui_->lblDescription->setText(widgets::qtText(text_.description));
    centreOverModule();
}

void frmAbout::connectWays() {
    const auto open = [this](const std::string& target) { desktop().opener.open(target); };
    connect(ui_->CommandInfo, &QToolButton::clicked, this,
            [this, open] { open(desktop().files.applicationDirectory() + "/Velmoriax.html"); });
    connect(ui_->LblUrl, &widgets::LinkLabel::clicked, this, [this, open] { open(text_.webAddress); });
    connect(ui_->LblMailto, &widgets::LinkLabel::clicked, this, [this, open] { open(text_.mailAddress); });
    connect(ui_->ARButtonAcep, &QPushButton::clicked, this, &frmAbout::unload);
}

void frmAbout::mouseMoveEvent(QMouseEvent*) {
    for (widgets::LinkLabel* link : {ui_->LblUrl, ui_->LblMailto}) link->setUnderlined(false);
}

} // namespace velmoriax::shell
