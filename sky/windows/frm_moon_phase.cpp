// SPDX-License-Identifier: GPL-3.0-or-later
#include "sky/windows/frm_moon_phase.h"

#include "shell/windows/look.h"
#include "shell/windows/topmost.h"
#include "sky/moon_engine.h"
#include "sky/moon_illumination.h"
#include "sky/moon_texts.h"
#include "sky/time_zone_shift.h"
#include "ui_frm_moon_phase.h"

#include <QLabel>
#include <QMouseEvent>
#include <QPainter>

namespace velmoriax::sky {

namespace {

constexpr int tickMs = 1000;
constexpr double frameRadius = 6;

/// The pointer rests on the picture that the window explains: it must not take the focus or a place in the taskbar.
constexpr Qt::WindowFlags floating =
    Qt::Tool | Qt::FramelessWindowHint | Qt::X11BypassWindowManagerHint | Qt::WindowDoesNotAcceptFocus;

QString text(const std::string& utf8) {
    return QString::fromStdString(utf8);
}

} // namespace

FrmMoonPhase::FrmMoonPhase(shell::Process& process) :
    SecondaryWindow(process, floating), ui_(std::make_unique<Ui::FrmMoonPhase>()), timer1_(this) {
    ui_->setupUi(this);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setMouseTracking(true);
    shell::look::asTitle(*ui_->LabelResum);
    shell::look::asQuiet(*ui_->LabelAd);
    ui_->LabelDetall->installEventFilter(this);
    timer1_.setObjectName(QStringLiteral("Timer1"));
    connect(&timer1_, &QTimer::timeout, this, &FrmMoonPhase::tick);
}

FrmMoonPhase::~FrmMoonPhase() = default;

void FrmMoonPhase::load() {
    shell::Topmost(*this);
    timer1_.start(tickMs);
    tick();
}

void FrmMoonPhase::tick() {
    moonMoment_ = localToUniversal(desktop().clock.now(), desktop().zone);
    moonIllumination(moonMoment_, record().sky);
    refreshMoonDetails();
}

void FrmMoonPhase::refreshMoonDetails() {
    const MoonDetails details =
        sky::refreshMoonDetails(MoonEngine(desktop().events), moonMoment_, showPrevious_, record().sky);
    if (!isLoaded()) return; // events have run inside, the end of this window among them
    ui_->LabelDetall->setText(text(details.labelDetall));
    ui_->LabelInfo->setText(text(details.labelInfo));
    ui_->LabelResum->setText(text(details.labelResum));
    ui_->LabelAd->setText(text(details.labelAd));
}

void FrmMoonPhase::LabelDetall_Click() {
    showPrevious_ = !showPrevious_;
    ui_->LabelAd->setText(text(moonListHint(!showPrevious_))); // the refresh writes over it at once
    refreshMoonDetails();
}

bool FrmMoonPhase::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::MouseButtonRelease) return SecondaryWindow::eventFilter(watched, event);
    const auto& mouse = static_cast<QMouseEvent&>(*event);
    const bool inside = ui_->LabelDetall->rect().contains(mouse.position().toPoint());
    if (mouse.button() == Qt::LeftButton && inside) LabelDetall_Click();
    return true;
}

void FrmMoonPhase::mouseMoveEvent(QMouseEvent* event) {
    const bool overLabel = qobject_cast<QLabel*>(childAt(event->position().toPoint())) != nullptr;
    if (!overLabel) unload();
}

void FrmMoonPhase::onUnload() {
    timer1_.stop();
}

void FrmMoonPhase::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), shell::look::panel());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(shell::look::gold());
    painter.drawRoundedRect(QRectF(rect()).adjusted(3.5, 3.5, -3.5, -3.5), frameRadius, frameRadius);
}

} // namespace velmoriax::sky
