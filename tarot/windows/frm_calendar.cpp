// SPDX-License-Identifier: GPL-3.0-or-later
#include "tarot/windows/frm_calendar.h"

#include "base/date_text.h"
#include "shell/windows/look.h"
#include "shell/windows/moon_picture.h"
#include "shell/windows/night_calendar.h"
#include "sky/moon_engine.h"
#include "sky/moon_texts.h"
#include "sky/zodiac.h"
#include "tarot/day_view.h"
#include "tarot/windows/card_description.h"
#include "tarot/windows/card_picture.h"
#include "tarot/windows/sign_display.h"
#include "tarot/windows/tarot_pictures.h"
#include "ui_frm_calendar.h"

#include <QFocusEvent>

namespace velmoriax::tarot {

namespace {

constexpr int signGap = 8; ///< between the pane about the sign and what it leaves free

QString text(const std::string& utf8) {
    return QString::fromStdString(utf8);
}

QDate toDate(base::CivilDate date) {
    return {date.year, date.month, date.day};
}

base::CivilDate civilDate(QDate date) {
    return {date.year(), date.month(), date.day()};
}

} // namespace

FrmCalendar::FrmCalendar(shell::Process& process) :
    ModuleWindow(process, shell::Module::anotherDay), ui_(std::make_unique<Ui::FrmCalendar>()) {
    openTarotPictures();
    ui_->setupUi(this);
    dressControls();
    buildNavigation();
    connectControls();
}

FrmCalendar::~FrmCalendar() = default;

void FrmCalendar::dressControls() {
    shell::makeNightCalendar(*ui_->Calendar1);
    shell::look::asTitle(*ui_->LabelZod);
    for (QLabel* label : {ui_->LblFecha, ui_->LabelFase}) shell::look::asQuiet(*label);
    ui_->Imgfechasel->setCornerRadius(cardCornerShare);
    ui_->Imgfechasel->setClickable(true);
    for (shell::PictureBox* picture : {ui_->ImgLuna, ui_->ImageZod}) picture->setCornerRadius(roundPicture);
    ui_->ImageZod->installEventFilter(this);
}

void FrmCalendar::connectControls() {
    connect(ui_->Calendar1, &QCalendarWidget::clicked, this, &FrmCalendar::pick);
    connect(ui_->Calendar1, &QCalendarWidget::activated, this, &FrmCalendar::pick);
    connect(ui_->Imgfechasel, &shell::PictureBox::clicked, this, &FrmCalendar::describeCard);
    connect(ui_->ImageAlert, &QToolButton::clicked, this, &FrmCalendar::tellChangeOfSign);
    connect(ui_->ImageZod, &shell::PictureBox::pressed, this, &FrmCalendar::showSignText);
    connect(ui_->ImageZod, &shell::PictureBox::released, ui_->TextZod, &QWidget::hide);
}

void FrmCalendar::ownLoad() {
    ui_->Calendar1->setSelectedDate(toDate(base::civilDateOf(desktop().clock.now())));
    showOwnBack(*ui_->Imgfechasel);
    ui_->Calendar1->setFocus();
}

// ---- A day is picked

void FrmCalendar::pick(QDate day) {
    const base::CivilDate date = civilDate(day);
    sky::clearChange(record().sky.anotherDaySign);
    ui_->TxtFecha->setText(text(chosenDateLine(date)));
    sumcartdia(date);
    showSignOf(date);
    drawDateMoon(date);
}

void FrmCalendar::sumcartdia(base::CivilDate date) {
    const DrawnCard drawn = tarot::sumcartdia(base::shortDateText(date), desktop().files.applicationDirectory(),
                                              record().options.holders.tipocartas, record().cards)
                                .drawn;
    dateCard_ = drawn.card;
    showCard(*ui_->Imgfechasel, drawn, desktop().files);
}

void FrmCalendar::showSignOf(base::CivilDate date) {
    const sky::SignReading& sign =
        sky::signoZodCalendar(desktop().files, date, record().options.holders.hemisferio, record().sky);
    showSign(sign, desktop().files, {*ui_->ImageZod, *ui_->LabelZod, *ui_->ImageAlert});
}

void FrmCalendar::drawDateMoon(base::CivilDate date) {
    const sky::DateMoon moon = sky::drawDateMoon(sky::MoonEngine(desktop().events), date, record().sky);
    if (!isLoaded()) return; // events have run inside, the end of this window among them
    if (!moon.pictureName.empty())
        ui_->ImgLuna->setPicture(
            shell::moonPicture(desktop().files, moon.pictureName, record().options.holders.hemisferio));
    ui_->ImgLuna->setTip(text(moon.tip));
    ui_->LabelFase->show();
}

// ---- What is told about it

void FrmCalendar::describeCard() {
    record().cards.currentCard = dateCard_;
    showCardDescription(record().cards, desktop().boxes);
}

void FrmCalendar::tellChangeOfSign() {
    desktop().boxes.show(platform::BoxIcon::information,
                         sky::changeOfSignMessageCalendar(record().sky.anotherDaySign, desktop().zone), "Info");
}

void FrmCalendar::showSignText() {
    const QRect body = ui_->centralwidget->contentsRect();
    const int rightEdge = ui_->ImageZod->mapTo(ui_->centralwidget, QPoint()).x() - signGap;
    const QRect leftOfSign(body.topLeft(), QPoint(rightEdge, ui_->ARButtonHoy->y() - signGap));
    ui_->TextZod->showIn(leftOfSign, text(sky::signDescription(desktop().files, record().sky.currentSignIndex)));
}

bool FrmCalendar::eventFilter(QObject* watched, QEvent* event) {
    // A key or button that is let go elsewhere is not told to the picture.
    if (event->type() == QEvent::FocusOut) ui_->TextZod->hide();
    return ModuleWindow::eventFilter(watched, event);
}

void FrmCalendar::onHidden() {
    ui_->TextZod->hide();
}

} // namespace velmoriax::tarot
