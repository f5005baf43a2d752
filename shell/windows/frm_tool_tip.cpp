// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/windows/frm_tool_tip.h"

#include "shell/windows/look.h"
#include "shell/windows/moon_picture.h"
#include "shell/windows/screen_measures.h"
#include "shell/windows/tip_contents.h"
#include "shell/windows/topmost.h"
#include "sky/moon_pictures.h"
#include "sky/time_zone_shift.h"
#include "ui_frm_tool_tip.h"

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

FrmToolTip::FrmToolTip(Process& process) :
    SecondaryWindow(process, smallWindow), ui_(std::make_unique<Ui::FrmToolTip>()) {
    ui_->setupUi(this);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setMouseTracking(true);
    look::asTitle(*ui_->LblTitle);
    QFont title = ui_->LblTitle->font();
    title.setPointSizeF(font().pointSizeF() * titleShare);
    ui_->LblTitle->setFont(title);
    ui_->ImgLuna->setCornerRadius(roundMoon);
    look::asQuiet(*ui_->LabelDate);
    ui_->back->setBack(QStringLiteral(":/popups/tooltip.png"));
    // The whole surface is one: what moves over a label moves over the window.
    for (QWidget* part : findChildren<QWidget*>()) part->setAttribute(Qt::WA_TransparentForMouseEvents);
}

FrmToolTip::~FrmToolTip() = default;

void FrmToolTip::load() {
    if (record().shell.viewLoading || !record().shell.trayBusy) return;
    const QPoint pointer = QCursor::pos();
    const ScreenMeasures screen = measuresOf(screenUnder(pointer));
    if (!personalTipMayStand(screen, pointer.y(), record().shell.taskBarAtBottom)) return;
    if (!record().shell.tipShown) {
        fill();
        if (!isLoaded()) return; // events have run inside, a click on the icon among them
        const QSize size(std::max(ui_->back->backSize().width(), sizeHint().width()), sizeHint().height());
        resize(size);
        move(personalTipLeft(screen, size.width(), pointer.x()), personalTipTop(screen, size.height()));
        record().shell.tipShown = true;
    }
    refreshTipMoon();
    if (!isLoaded()) return;
    setWindowState(windowState() & ~(Qt::WindowMinimized | Qt::WindowMaximized));
    show();
    Topmost(*this);
}

void FrmToolTip::fill() {
    const PersonalTip tip = personalTipNow(process());
    if (!tip.date.empty()) ui_->LabelDate->setText(QString::fromStdString(tip.date));
    ui_->LblToolTip->setText(QString::fromStdString(tip.lines));
}

void FrmToolTip::refreshTipMoon() {
    const base::DateValue moment = sky::localToUniversal(desktop().clock.now(), desktop().zone);
    const std::string name = sky::drawDayMoon(sky::MoonEngine(desktop().events), moment, record().sky);
    ui_->ImgLuna->setPicture(moonPicture(desktop().files, name, record().options.holders.hemisferio));
}

void FrmToolTip::mouseMoveEvent(QMouseEvent*) {
    record().shell.tipShown = false;
    unload();
}

} // namespace velmoriax::shell
