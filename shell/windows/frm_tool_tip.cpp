// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/windows/frm_tool_tip.h"

#include "shell/tray_tip.h"
#include "shell/windows/popup_pictures.h"
#include "shell/windows/screen_measures.h"
#include "ui_frm_tool_tip.h"
#include "widgets/conversions.h"
#include "widgets/look.h"
#include "widgets/topmost.h"
#include "widgets/turned_picture.h"

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>

#include <algorithm>

namespace velmoriax::shell {

namespace {

constexpr Qt::WindowFlags smallWindow =
    Qt::ToolTip | Qt::FramelessWindowHint | Qt::X11BypassWindowManagerHint | Qt::WindowDoesNotAcceptFocus;
constexpr double roundMoon = 0.5; ///< no square of dark sky around it
constexpr double titleShare = 1.15;

const QScreen* screenUnder(QPoint pointer) {
    const QScreen* screen = QGuiApplication::screenAt(pointer);
    return screen ? screen : QGuiApplication::primaryScreen();
}

} // namespace

FrmToolTip::FrmToolTip(WindowContext& context) :
    SecondaryWindow(context, smallWindow), ui_(std::make_unique<Ui::FrmToolTip>()) {
    openPopupPictures();
    ui_->setupUi(this);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setMouseTracking(true);
    widgets::look::asTitle(*ui_->LblTitle);
    QFont title = ui_->LblTitle->font();
    title.setPointSizeF(font().pointSizeF() * titleShare);
    ui_->LblTitle->setFont(title);
    ui_->ImgLuna->setCornerRadius(roundMoon);
    widgets::look::asQuiet(*ui_->LabelDate);
    ui_->back->setBack(QStringLiteral(":/popups/tooltip.png"));
    // The whole surface is one: what moves over a label moves over the window.
    for (QWidget* part : findChildren<QWidget*>()) part->setAttribute(Qt::WA_TransparentForMouseEvents);
}

FrmToolTip::~FrmToolTip() = default;

void FrmToolTip::load() {
    if (state().viewLoading || !state().trayBusy) return;
    const QPoint pointer = QCursor::pos();
    const ScreenMeasures screen = withTaskBar(measuresOf(screenUnder(pointer)), desktop().taskBar.position());
    if (!personalTipFits(screen, pointer.y(), state().taskBarAtBottom)) return;
    if (!state().tipShown) {
        fill();
        if (!isLoaded()) return; // events have run inside, a click on the icon among them
        const QSize size(std::max(ui_->back->backSize().width(), sizeHint().width()), sizeHint().height());
        resize(size);
        move(personalTipLeft(screen, size.width(), pointer.x()), personalTipTop(screen, size.height()));
        state().tipShown = true;
    }
    refreshTipMoon();
    if (!isLoaded()) return;
    setWindowState(windowState() & ~(Qt::WindowMinimized | Qt::WindowMaximized));
    show();
    widgets::Topmost(*this);
}

void FrmToolTip::fill() {
    const Subsystems& subsystems = context().subsystems;
    const PersonalTip tip = personalTip(subsystems.alerts.birthDate(), desktop().clock.now(), subsystems.tipLines);
    if (!tip.date.empty()) ui_->LabelDate->setText(widgets::qtText(tip.date));
    ui_->LblToolTip->setText(widgets::qtText(tip.lines));
}

void FrmToolTip::refreshTipMoon() {
    const base::PictureChoice moon = context().subsystems.tipPicture.tipPicture(desktop().clock.now());
    ui_->ImgLuna->setPicture(widgets::loadChoice(desktop().files, moon));
}

void FrmToolTip::mouseMoveEvent(QMouseEvent*) {
    state().tipShown = false;
    unload();
}

} // namespace velmoriax::shell
