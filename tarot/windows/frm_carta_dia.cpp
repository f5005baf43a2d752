// SPDX-License-Identifier: GPL-3.0-or-later
#include "tarot/windows/frm_carta_dia.h"

#include "base/date_text.h"
#include "biorhythm/bio_gauge.h"
#include "biorhythm/profile_files.h"
#include "shell/window_position.h"
#include "shell/windows/look.h"
#include "shell/windows/moon_picture.h"
#include "shell/windows/notifications.h"
#include "shell/windows/topmost.h"
#include "shell/windows/window_place.h"
#include "shell/windows/window_registry.h"
#include "sky/moon_engine.h"
#include "sky/moon_pictures.h"
#include "sky/time_zone_shift.h"
#include "sky/windows/frm_moon_phase.h"
#include "sky/zodiac.h"
#include "tarot/drawn_card.h"
#include "tarot/windows/card_description.h"
#include "tarot/windows/hover_watch.h"
#include "tarot/windows/sign_display.h"
#include "tarot/windows/tarot_pictures.h"
#include "ui_frm_carta_dia.h"

#include <QKeyEvent>

#include <array>

namespace velmoriax::tarot {

namespace {

constexpr int kronoAfterMs = 40; ///< behind the hub's tick, whose texts are copied
constexpr int timerPlusMs = 60000;
constexpr int signGap = 8;              ///< between the pane about the sign and what it leaves free
constexpr double detailsBelowTop = 1.7; ///< where the moon details stand, in heights of their own
constexpr std::string_view welcome = "Welcome to Velmoriax, change the birth date to calculate biorhythms.";

QString text(const std::string& utf8) {
    return QString::fromStdString(utf8);
}

void keepPlaceWhenHidden(QWidget& control) {
    QSizePolicy policy = control.sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    control.setSizePolicy(policy);
}

} // namespace

FrmCartaDia::FrmCartaDia(shell::Process& process) :
    ModuleWindow(process, shell::Module::cardOfDay), ui_(std::make_unique<Ui::FrmCartaDia>()),
    krono_(kronoAfterMs, this), timerPlus_(this) {
    record().sky.cardOfDaySign = {}; // the season that it told is not carried over to another window
    openTarotPictures();
    ui_->setupUi(this);
    dressControls();
    buildNavigation();
    connectControls();
    watchHovers();
    prepareTimers();
}

FrmCartaDia::~FrmCartaDia() = default;

void FrmCartaDia::dressControls() {
    shell::look::asTitle(*ui_->LblDate);
    shell::look::asTitle(*ui_->LabelZod);
    for (QLabel* label : {ui_->LblTime, ui_->LblUptime, ui_->LabelFase, ui_->LabelBioInfo})
        shell::look::asQuiet(*label);
    ui_->ImgCartadia->setCornerRadius(cardCornerShare);
    for (shell::PictureBox* picture : {ui_->ImgCartadia, ui_->ImgLuna}) picture->setClickable(true);
    for (shell::PictureBox* picture : {ui_->ImgLuna, ui_->ImageZod}) picture->setCornerRadius(roundPicture);
    ui_->ImgLuna->setTip(tr("Click para ver anteriores"));
    ui_->Imageasc->setPicture(QImage(QStringLiteral(":/tarot/trend_up.png")));
    ui_->Imageasc->setTip(tr("Upward trend"));
    ui_->Imagedesc->setPicture(QImage(QStringLiteral(":/tarot/trend_down.png")));
    ui_->Imagedesc->setTip(tr("Downward trend"));
    keepPlaceWhenHidden(*ui_->ImageAlert);
}

void FrmCartaDia::connectControls() {
    connect(ui_->ImgCartadia, &shell::PictureBox::clicked, this, &FrmCartaDia::describeCard);
    connect(ui_->ImgLuna, &shell::PictureBox::clicked, this, &FrmCartaDia::clickMoon);
    connect(ui_->ImageAlert, &QToolButton::clicked, this, &FrmCartaDia::tellChangeOfSign);
    connect(ui_->PictActualize, &QToolButton::clicked, this, &FrmCartaDia::refresh);
}

void FrmCartaDia::watchHovers() {
    auto* sign = new HoverWatch(*ui_->ImageZod, HoverWatch::Keys::whilePressed);
    sign->setObjectName(QStringLiteral("zodHover"));
    connect(sign, &HoverWatch::opened, this, &FrmCartaDia::showSignText);
    connect(sign, &HoverWatch::closed, ui_->TextZod, &QWidget::hide);
    auto* moon = new HoverWatch(*ui_->ImgLuna);
    moon->setObjectName(QStringLiteral("moonHover"));
    connect(moon, &HoverWatch::opened, this, &FrmCartaDia::showMoonDetails);
    connect(moon, &HoverWatch::closed, this, &FrmCartaDia::closeMoonDetails);
}

void FrmCartaDia::prepareTimers() {
    krono_.setObjectName(QStringLiteral("krono"));
    timerPlus_.setObjectName(QStringLiteral("TimerPlus"));
    connect(&krono_, &QTimer::timeout, this, &FrmCartaDia::tickSecond);
    connect(&timerPlus_, &QTimer::timeout, this, &FrmCartaDia::tickMinute);
}

// ---- The load routine

void FrmCartaDia::beforeOptions() {
    if (const auto place = shell::storedPlace(record().options)) {
        shell::moveToPlace(*this, *place);
        desktop().events.letRun();
    }
}

void FrmCartaDia::ownLoad() {
    constexpr std::array steps{&FrmCartaDia::showDate,    &FrmCartaDia::showCardOfToday, &FrmCartaDia::showSignOfNow,
                               &FrmCartaDia::startTimers, &FrmCartaDia::drawDayMoon,     &FrmCartaDia::loadBirth,
                               &FrmCartaDia::DrawBioMedia};
    for (const auto step : steps) {
        (this->*step)();
        if (!isLoaded()) return; // events have run inside, the program's exit among them
    }
}

void FrmCartaDia::showDate() {
    ui_->LblDate->setText(text(cardOfDayDateLine(base::civilDateOf(desktop().clock.now()))));
}

void FrmCartaDia::showCardOfToday() {
    const std::string today = base::shortDateText(base::civilDateOf(desktop().clock.now()));
    const DrawnCard drawn =
        sumcartdia(today, desktop().files.applicationDirectory(), record().options.holders.tipocartas, record().cards)
            .drawn;
    dayCard_ = drawn.card;
    ui_->ImgCartadia->setPictureFile(desktop().files, drawn.picturePath);
    ui_->ImgCartadia->setTip(text(drawn.tip));
}

void FrmCartaDia::showSignOfNow() {
    const sky::SignReading& sign = sky::signoZod({desktop().files, desktop().zone}, desktop().clock.now(),
                                                 record().options.holders.hemisferio, record().sky);
    showSign(sign, desktop().files, {*ui_->ImageZod, *ui_->LabelZod, *ui_->ImageAlert});
}

void FrmCartaDia::startTimers() {
    copyTexts();
    krono_.begin();
    if (!timerPlus_.isActive()) timerPlus_.start(timerPlusMs);
}

void FrmCartaDia::drawDayMoon() {
    const base::DateValue moment = sky::localToUniversal(desktop().clock.now(), desktop().zone);
    const std::string name = sky::drawDayMoon(sky::MoonEngine(desktop().events), moment, record().sky);
    if (!isLoaded()) return;
    ui_->ImgLuna->setPicture(shell::moonPicture(desktop().files, name, record().options.holders.hemisferio));
}

void FrmCartaDia::loadBirth() {
    biorhythm::loadBirthTime(desktop().files, record().bio);
    biorhythm::loadBirth(desktop().files, record().bio);
    if (biorhythm::birthDateIsSet(record().bio)) return;
    record().alerts.alertText = welcome;
    QTimer::singleShot(isVisible() ? 0 : shell::untilFirstWindowStandsMs, this, [&process = process()] {
        if (process.notification) process.notification->show(std::string(welcome));
        process.desktop.sounds.playWav("Url.wav");
    });
}

void FrmCartaDia::DrawBioMedia() {
    const biorhythm::BioGauge gauge = biorhythm::drawBioMedia(record().bio, desktop().clock.now());
    ui_->LabelBioMedia->setText(text(gauge.labelBioMedia));
    ui_->LabelBioInfo->setText(text(gauge.labelBioInfo));
    ui_->PicMediaBio->draw(gauge);
    ui_->Imageasc->setVisible(gauge.trend == biorhythm::Trend::rising);
    ui_->Imagedesc->setVisible(gauge.trend == biorhythm::Trend::falling);
}

// ---- The timers

void FrmCartaDia::copyTexts() {
    ui_->LblGetTime->setText(text(base::timeText(base::civilTimeOf(desktop().clock.now()))));
    ui_->LblGetUptime->setText(text(record().agent.LblUptime));
    ui_->LblDias->setText(text(record().agent.LblDias));
}

void FrmCartaDia::tickSecond() {
    copyTexts();
    const std::string clock = ui_->LblGetTime->text().toStdString();
    switch (midnightStep(clock, record().options.holders.muteCod, record().shell.refreshingView)) {
    case MidnightStep::showNewDay:
        return showNewDay();
    case MidnightStep::hideAgain:
        hideToTray();
        record().shell.refreshingView = false;
        return;
    case MidnightStep::none:
        return;
    }
}

void FrmCartaDia::showNewDay() {
    record().shell.refreshingView = true;
    load();
    if (!isLoaded()) return;
    shell::Topmost(*this); // and so it stays: nothing lowers it again
    desktop().sounds.playWav("Trumpet.wav");
}

void FrmCartaDia::tickMinute() {
    const MinuteWork work = minuteTick(record().gaugeTicks, minutes_);
    if (work.gauge) DrawBioMedia();
    if (work.sign) showSignOfNow();
    if (work.moon) drawDayMoon();
}

// ---- What the user does

void FrmCartaDia::refresh() {
    if (record().shell.viewLoading) return;
    shell::ShellState& flags = record().shell; // outlives this window, should the load end in the program's exit
    flags.refreshingView = true;
    load();
    flags.refreshingView = false;
}

void FrmCartaDia::describeCard() {
    record().cards.currentCard = dayCard_;
    showCardDescription(record().cards, desktop().boxes);
}

void FrmCartaDia::tellChangeOfSign() {
    const base::CivilDate today = base::civilDateOf(desktop().clock.now());
    desktop().boxes.show(platform::BoxIcon::information,
                         sky::changeOfSignMessage(record().sky.cardOfDaySign, today, desktop().zone), "Info");
}

void FrmCartaDia::showSignText() {
    const QRect body = ui_->centralwidget->contentsRect();
    const QRect sign(ui_->ImageZod->mapTo(ui_->centralwidget, QPoint()), ui_->ImageZod->size());
    const QRect leftOfSign(body.topLeft(), QPoint(sign.left() - signGap, ui_->ARButtonBio->y() - signGap));
    ui_->TextZod->showIn(leftOfSign, text(sky::signDescription(desktop().files, record().sky.currentSignIndex)));
}

void FrmCartaDia::clickMoon() {
    auto& details = process().windows.touch(sky::FrmMoonPhase::windowName, process());
    static_cast<sky::FrmMoonPhase&>(details).LabelDetall_Click();
    if (details.isLoaded() && !details.isVisible()) showMoonDetails();
}

void FrmCartaDia::showMoonDetails() {
    auto& details = process().windows.touch(sky::FrmMoonPhase::windowName, process());
    if (!details.isLoaded()) return; // the mouse has left the picture meanwhile
    details.adjustSize();
    const auto below = static_cast<int>(detailsBelowTop * details.height());
    details.move(shell::onScreen({QPoint(x() - ui_->ImgLuna->width(), y() + below), details.size()}).topLeft());
    details.show();
}

void FrmCartaDia::closeMoonDetails() {
    process().windows.unload(sky::FrmMoonPhase::windowName);
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
    if (toSystray) shell::closeNotification(process());
}

void FrmCartaDia::onUnload() {
    // A window that goes while the midnight card stands must not leave the next one believing that it is a refresh.
    record().shell.refreshingView = false;
    if (!(windowState() & (Qt::WindowMinimized | Qt::WindowMaximized)))
        shell::storePlace(record().options, shell::placeOf(*this));
    closeMoonDetails();
}

} // namespace velmoriax::tarot
