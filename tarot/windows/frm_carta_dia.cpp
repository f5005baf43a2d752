// SPDX-License-Identifier: GPL-3.0-or-later
#include "tarot/windows/frm_carta_dia.h"

#include "base/date_text.h"
#include "shell/window_position.h"
#include "shell/windows/module_switcher.h"
#include "shell/windows/notifications.h"
#include "shell/windows/window_place.h"
#include "shell/windows/window_registry.h"
#include "sky/moon_engine.h"
#include "sky/moon_pictures.h"
#include "sky/moon_texts.h"
#include "sky/time_zone_shift.h"
#include "sky/windows/frm_moon_phase.h"
#include "sky/zodiac.h"
#include "tarot/drawn_card.h"
#include "tarot/modules.h"
#include "tarot/windows/card_description.h"
#include "tarot/windows/sign_display.h"
#include "tarot/windows/tarot_pictures.h"
#include "ui_frm_carta_dia.h"
#include "widgets/conversions.h"
#include "widgets/hover_watch.h"
#include "widgets/look.h"
#include "widgets/topmost.h"
#include "widgets/turned_picture.h"

#include <QApplication>
#include <QKeyEvent>

#include <array>

namespace velmoriax::tarot {

namespace {

constexpr int kronoAfterMs = 40; ///< behind the hub's tick, whose texts are copied
constexpr int timerPlusMs = 60000;
constexpr int signGap = 8;              ///< between the pane about the sign and what it leaves free
constexpr double detailsBelowTop = 1.7; ///< top of the moon details, in their own heights
constexpr std::string_view welcome = "Welcome to Velmoriax, change the birth date to calculate biorhythms.";

void keepPlaceWhenHidden(QWidget& control) {
    QSizePolicy policy = control.sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    control.setSizePolicy(policy);
}

} // namespace

FrmCartaDia::FrmCartaDia(shell::WindowContext& context, TarotContext& tarot) :
    ModuleWindow(context, cardOfDayModule), tarot_(tarot), ui_(std::make_unique<Ui::FrmCartaDia>()),
    krono_(kronoAfterMs, this), timerPlus_(this) {
    tarot_.sky.cardOfDaySign = {}; // a season found earlier does not carry over to a new window
    openTarotPictures();
    ui_->setupUi(this);
    setUpControls();
    buildNavigation();
    connectControls();
    watchHovers();
    prepareTimers();
}

FrmCartaDia::~FrmCartaDia() = default;

void FrmCartaDia::setUpControls() {
    widgets::look::asTitle(*ui_->LblDate);
    widgets::look::asTitle(*ui_->LabelZod);
    for (QLabel* label : {ui_->LblTime, ui_->LblUptime, ui_->LabelFase, ui_->LabelBioInfo})
        widgets::look::asQuiet(*label);
    ui_->ImgCartadia->setCornerRadius(cardCornerShare);
    for (widgets::PictureBox* picture : {ui_->ImgCartadia, ui_->ImgLuna}) picture->setClickable(true);
    for (widgets::PictureBox* picture : {ui_->ImgLuna, ui_->ImageZod}) picture->setCornerRadius(roundPicture);
    ui_->ImgLuna->setTip(tr("Click para ver anteriores"));
    ui_->Imageasc->setPicture(QImage(QStringLiteral(":/tarot/trend_up.png")));
    ui_->Imageasc->setTip(tr("Upward trend"));
    ui_->Imagedesc->setPicture(QImage(QStringLiteral(":/tarot/trend_down.png")));
    ui_->Imagedesc->setTip(tr("Downward trend"));
    keepPlaceWhenHidden(*ui_->ImageAlert);
}

void FrmCartaDia::connectControls() {
    connect(ui_->ImgCartadia, &widgets::PictureBox::clicked, this, &FrmCartaDia::describeCard);
    connect(ui_->ImgLuna, &widgets::PictureBox::clicked, this, &FrmCartaDia::clickMoon);
    connect(ui_->ImageAlert, &QToolButton::clicked, this, &FrmCartaDia::tellChangeOfSign);
    connect(ui_->PictActualize, &QToolButton::clicked, this, &FrmCartaDia::refresh);
}

void FrmCartaDia::watchHovers() {
    auto* sign = new widgets::HoverWatch(*ui_->ImageZod, widgets::HoverWatch::Keys::whilePressed);
    sign->setObjectName(QStringLiteral("zodHover"));
    connect(sign, &widgets::HoverWatch::opened, this, &FrmCartaDia::showSignText);
    connect(sign, &widgets::HoverWatch::closed, ui_->TextZod, &QWidget::hide);
    auto* moon = new widgets::HoverWatch(*ui_->ImgLuna);
    moon->setObjectName(QStringLiteral("moonHover"));
    connect(moon, &widgets::HoverWatch::opened, this, &FrmCartaDia::showMoonDetails);
    connect(moon, &widgets::HoverWatch::closed, this, &FrmCartaDia::closeMoonDetails);
}

void FrmCartaDia::prepareTimers() {
    krono_.setObjectName(QStringLiteral("krono"));
    timerPlus_.setObjectName(QStringLiteral("TimerPlus"));
    connect(&krono_, &QTimer::timeout, this, &FrmCartaDia::tickSecond);
    connect(&timerPlus_, &QTimer::timeout, this, &FrmCartaDia::tickMinute);
}

// ---- The load routine

void FrmCartaDia::beforeOptions() {
    if (const auto place = shell::storedPlace(options())) {
        shell::moveToPlace(*this, *place);
        desktop().events.processEvents();
    }
}

void FrmCartaDia::ownLoad() {
    options().readAtCardOfDayLoad();
    constexpr std::array steps{&FrmCartaDia::showDate,    &FrmCartaDia::showCardOfToday, &FrmCartaDia::showSignOfNow,
                               &FrmCartaDia::startTimers, &FrmCartaDia::drawDayMoon,     &FrmCartaDia::loadBirth,
                               &FrmCartaDia::DrawBioMedia};
    for (const auto step : steps) {
        (this->*step)();
        if (!isLoaded()) return; // events have run inside, the program's exit among them
    }
}

void FrmCartaDia::showDate() {
    ui_->LblDate->setText(widgets::qtText(cardOfDayDateLine(base::civilDateOf(desktop().clock.now()))));
}

void FrmCartaDia::showCardOfToday() {
    const std::string today = base::shortDateText(base::civilDateOf(desktop().clock.now()));
    const DrawnCard drawn = sumcartdia(today, deckInUse(desktop().files, options()), tarot_.state.cards).drawn;
    dayCard_ = drawn.card;
    ui_->ImgCartadia->setPictureFile(desktop().files, drawn.cardPath);
    ui_->ImgCartadia->setTip(widgets::qtText(drawn.tip));
}

void FrmCartaDia::showSignOfNow() {
    const sky::SignReading& sign = sky::signoZod({desktop().files, desktop().zone}, desktop().clock.now(),
                                                 options().holders.hemisferio, tarot_.sky);
    showSign(sign, desktop().files, {*ui_->ImageZod, *ui_->LabelZod, *ui_->ImageAlert});
}

void FrmCartaDia::startTimers() {
    copyTexts();
    krono_.begin();
    if (!timerPlus_.isActive()) timerPlus_.start(timerPlusMs);
}

void FrmCartaDia::drawDayMoon() {
    const base::DateValue moment = sky::localToUniversal(desktop().clock.now(), desktop().zone);
    const sky::MoonEngine engine(desktop().events);
    const std::string name = sky::drawDayMoon(engine, moment);
    const std::string phase = sky::moonSummary(engine, {moment, sky::moonIllumination(moment)}).text;
    if (!isLoaded()) return;
    ui_->ImgLuna->setAccessibleName(widgets::qtText(phase));
    ui_->ImgLuna->setPicture(
        widgets::loadChoice(desktop().files, sky::moonPicture(desktop().files, name, options().holders.hemisferio)));
}

void FrmCartaDia::loadBirth() {
    if (tarot_.gauge.loadBirth()) return;
    tarot_.gauge.setWelcome(std::string(welcome));
    QTimer::singleShot(isVisible() ? 0 : shell::firstWindowDelayMs, this, [&context = context()] {
        if (context.notification) context.notification->show(std::string(welcome));
        context.desktop.sounds.playWav("Url.wav");
    });
}

void FrmCartaDia::DrawBioMedia() {
    const shell::AverageGauge gauge = tarot_.gauge.drawBioMedia(desktop().clock.now());
    ui_->LabelBioMedia->setText(widgets::qtText(gauge.labelBioMedia));
    ui_->LabelBioInfo->setText(widgets::qtText(gauge.labelBioInfo));
    ui_->PicMediaBio->draw(gauge);
    ui_->Imageasc->setVisible(gauge.trend == shell::Trend::rising);
    ui_->Imagedesc->setVisible(gauge.trend == shell::Trend::falling);
}

// ---- The timers

void FrmCartaDia::copyTexts() {
    ui_->LblGetTime->setText(widgets::qtText(base::timeText(base::civilTimeOf(desktop().clock.now()))));
    ui_->LblGetUptime->setText(widgets::qtText(context().agent.LblUptime));
    ui_->LblDias->setText(widgets::qtText(context().agent.LblDias));
}

void FrmCartaDia::tickSecond() {
    copyTexts();
    const std::string clock = ui_->LblGetTime->text().toStdString();
    switch (midnightStep(clock, options().holders.muteCod, state().refreshingView)) {
    case MidnightStep::showNewDay:
        hideAgainIsDue_ = false;
        return showNewDay();
    case MidnightStep::hideAgain:
        hideAgainIsDue_ = true;
        break;
    case MidnightStep::none:
        break;
    }
    if (hideAgainIsDue_) hideAgain();
}

/// Waits while a box of the window is open, which would be left alone on the screen.
void FrmCartaDia::hideAgain() {
    if (QApplication::activeModalWidget()) return;
    hideAgainIsDue_ = false;
    if (!state().refreshingView) return; // refreshed by hand meanwhile
    hideToTray();
    state().refreshingView = false;
}

void FrmCartaDia::showNewDay() {
    context().switcher.loadAnew([this] {
        state().refreshingView = true;
        load();
        if (!isLoaded()) return;
        widgets::Topmost(*this); // and so it stays: nothing lowers it again
        desktop().sounds.playWav("Trumpet.wav");
    });
}

void FrmCartaDia::tickMinute() {
    const MinuteWork work = minuteTick(tarot_.state.gaugeTicks, minutes_);
    if (work.gauge) DrawBioMedia();
    if (work.sign) showSignOfNow();
    if (work.moon) drawDayMoon();
}

// ---- What the user does

void FrmCartaDia::refresh() {
    if (state().viewLoading) return;
    context().switcher.loadAnew([this] {
        state().refreshingView = true;
        load();
        state().refreshingView = false;
    });
}

void FrmCartaDia::describeCard() {
    tarot_.state.cards.currentCard = dayCard_;
    showCardDescription(tarot_.state.cards, state(), desktop().boxes);
}

void FrmCartaDia::tellChangeOfSign() {
    const base::CivilDate today = base::civilDateOf(desktop().clock.now());
    desktop().boxes.show(platform::BoxIcon::information,
                         sky::changeOfSignMessage(tarot_.sky.cardOfDaySign, today, desktop().zone), "Info");
}

void FrmCartaDia::showSignText() {
    const QRect body = ui_->centralwidget->contentsRect();
    const QRect sign(ui_->ImageZod->mapTo(ui_->centralwidget, QPoint()), ui_->ImageZod->size());
    const QRect leftOfSign(body.topLeft(), QPoint(sign.left() - signGap, ui_->ARButtonBio->y() - signGap));
    ui_->TextZod->showIn(leftOfSign,
                         widgets::qtText(sky::signDescription(desktop().files, tarot_.sky.currentSignIndex)));
}

void FrmCartaDia::clickMoon() {
    auto& details = windows().touch<sky::FrmMoonPhase>();
    details.LabelDetall_Click();
    if (details.isLoaded() && !details.isVisible()) showMoonDetails();
}

void FrmCartaDia::showMoonDetails() {
    auto& details = windows().touch<sky::FrmMoonPhase>();
    if (!details.isLoaded()) return; // the mouse has left the picture meanwhile
    details.adjustSize();
    const auto below = static_cast<int>(detailsBelowTop * details.height());
    details.move(shell::fittedOnScreens({QPoint(x() - ui_->ImgLuna->width(), y() + below), details.size()}).topLeft());
    details.show();
}

void FrmCartaDia::closeMoonDetails() {
    windows().unload(sky::FrmMoonPhase::windowName);
}

void FrmCartaDia::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) return closeMoonDetails();
    ModuleWindow::keyPressEvent(event);
}

// ---- Coming and going

void FrmCartaDia::returnFromTray() {
    showNormalState();
    drawDayMoon();
}

void FrmCartaDia::onHidden() {
    closeMoonDetails();
}

void FrmCartaDia::onMinimised(bool toSystray) {
    closeMoonDetails();
    if (toSystray) shell::closeNotification(context());
}

void FrmCartaDia::onUnload() {
    // If this window is deleted while the midnight card is shown, the load of the next one must not be a refresh.
    state().refreshingView = false;
    if (!(windowState() & (Qt::WindowMinimized | Qt::WindowMaximized)))
        shell::storePlace(options(), shell::placeOf(*this));
    closeMoonDetails();
}

} // namespace velmoriax::tarot
