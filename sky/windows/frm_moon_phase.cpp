// SPDX-License-Identifier: GPL-3.0-or-later
#include "sky/windows/frm_moon_phase.h"

#include "sky/moon_engine.h"
#include "sky/moon_illumination.h"
#include "sky/moon_texts.h"
#include "sky/time_zone_shift.h"
#include "ui_frm_moon_phase.h"
#include "widgets/conversions.h"
#include "widgets/look.h"
#include "widgets/topmost.h"

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

} // namespace

FrmMoonPhase::FrmMoonPhase(shell::WindowContext& context) :
    SecondaryWindow(context, floating), ui_(std::make_unique<Ui::FrmMoonPhase>()), timer1_(this) {
    ui_->setupUi(this);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setMouseTracking(true);
    widgets::look::asTitle(*ui_->LabelResum);
    widgets::look::asQuiet(*ui_->LabelAd);
    ui_->LabelDetall->installEventFilter(this);
    timer1_.setObjectName(QStringLiteral("Timer1"));
    connect(&timer1_, &QTimer::timeout, this, &FrmMoonPhase::tick);
}

FrmMoonPhase::~FrmMoonPhase() = default;

void FrmMoonPhase::load() {
    widgets::Topmost(*this);
    timer1_.start(tickMs);
    tick();
}

void FrmMoonPhase::tick() {
    const base::DateValue moonMoment = localToUniversal(desktop().clock.now(), desktop().zone);
    lit_ = {moonMoment, moonIllumination(moonMoment)};
    refreshMoonDetails();
}

void FrmMoonPhase::refreshMoonDetails() {
    const MoonDetails details = sky::refreshMoonDetails(MoonEngine(desktop().events), lit_, showPrevious_);
    if (!isLoaded()) return; // events have run inside, the end of this window among them
    ui_->LabelDetall->setText(widgets::qtText(details.labelDetall));
    ui_->LabelInfo->setText(widgets::qtText(details.labelInfo));
    ui_->LabelResum->setText(widgets::qtText(details.labelResum));
    ui_->LabelAd->setText(widgets::qtText(details.labelAd));
}

void FrmMoonPhase::LabelDetall_Click() {
    showPrevious_ = !showPrevious_;
    ui_->LabelAd->setText(widgets::qtText(moonListHint(!showPrevious_))); // the refresh writes over it at once
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
    painter.fillRect(rect(), widgets::look::panel());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(widgets::look::gold());
    painter.drawRoundedRect(QRectF(rect()).adjusted(3.5, 3.5, -3.5, -3.5), frameRadius, frameRadius);
}

} // namespace velmoriax::sky
