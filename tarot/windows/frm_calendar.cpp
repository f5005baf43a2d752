// SPDX-License-Identifier: GPL-3.0-or-later
#include "tarot/windows/frm_calendar.h"

#include "base/date_text.h"
#include "sky/moon_engine.h"
#include "sky/moon_pictures.h"
#include "sky/moon_texts.h"
#include "sky/zodiac.h"
#include "tarot/day_view.h"
#include "tarot/modules.h"
#include "tarot/windows/card_description.h"
#include "tarot/windows/card_picture.h"
#include "tarot/windows/sign_display.h"
#include "tarot/windows/tarot_pictures.h"
#include "ui_frm_calendar.h"
#include "widgets/calendar.h"
#include "widgets/conversions.h"
#include "widgets/look.h"
#include "widgets/turned_picture.h"

#include <QFocusEvent>

namespace velmoriax::tarot {

namespace {

constexpr int signGap = 8; ///< between the pane about the sign and what it leaves free

} // namespace

FrmCalendar::FrmCalendar(shell::WindowContext& context, TarotContext& tarot) :
    ModuleWindow(context, anotherDayModule), tarot_(tarot), ui_(std::make_unique<Ui::FrmCalendar>()) {
    openTarotPictures();
    ui_->setupUi(this);
    setUpControls();
    buildNavigation();
    connectControls();
}

FrmCalendar::~FrmCalendar() = default;

void FrmCalendar::setUpControls() {
    widgets::setUpCalendar(*ui_->Calendar1);
    widgets::look::asTitle(*ui_->LabelZod);
    for (QLabel* label : {ui_->LblFecha, ui_->LabelFase}) widgets::look::asQuiet(*label);
    ui_->Imgfechasel->setCornerRadius(cardCornerShare);
    ui_->Imgfechasel->setClickable(true);
    for (widgets::PictureBox* picture : {ui_->ImgLuna, ui_->ImageZod}) picture->setCornerRadius(roundPicture);
    ui_->ImageZod->installEventFilter(this);
}

void FrmCalendar::connectControls() {
    connect(ui_->Calendar1, &QCalendarWidget::clicked, this, &FrmCalendar::pick);
    connect(ui_->Calendar1, &QCalendarWidget::activated, this, &FrmCalendar::pick);
    connect(ui_->Imgfechasel, &widgets::PictureBox::clicked, this, &FrmCalendar::describeCard);
    connect(ui_->ImageAlert, &QToolButton::clicked, this, &FrmCalendar::tellChangeOfSign);
    connect(ui_->ImageZod, &widgets::PictureBox::pressed, this, &FrmCalendar::showSignText);
    connect(ui_->ImageZod, &widgets::PictureBox::released, ui_->TextZod, &QWidget::hide);
}

void FrmCalendar::ownLoad() {
    ui_->Calendar1->setSelectedDate(widgets::qtDate(base::civilDateOf(desktop().clock.now())));
    showOwnBack(*ui_->Imgfechasel);
    ui_->Calendar1->setFocus();
}

// ---- A day is picked

void FrmCalendar::pick(QDate day) {
    const base::CivilDate date = widgets::civilDate(day);
    pickedDate_ = date;
    sky::clearChange(tarot_.sky.anotherDaySign);
    ui_->TxtFecha->setText(widgets::qtText(chosenDateLine(date)));
    sumcartdia(date);
    showSignOf(date);
    drawDateMoon(date);
}

void FrmCalendar::sumcartdia(base::CivilDate date) {
    const DrawnCard drawn =
        tarot::sumcartdia(base::shortDateText(date), deckInUse(desktop().files, options()), tarot_.state.cards).drawn;
    dateCard_ = drawn.card;
    showCard(*ui_->Imgfechasel, drawn, desktop().files);
}

void FrmCalendar::showSignOf(base::CivilDate date) {
    const sky::SignReading& sign =
        sky::signoZodCalendar(desktop().files, date, options().holders.hemisferio, tarot_.sky);
    showSign(sign, desktop().files, {*ui_->ImageZod, *ui_->LabelZod, *ui_->ImageAlert});
}

void FrmCalendar::drawDateMoon(base::CivilDate date) {
    const sky::DateMoon moon = sky::drawDateMoon(sky::MoonEngine(desktop().events), date);
    // Events were processed inside: the window may be unloaded, or another day may be picked.
    if (!isLoaded() || date != pickedDate_) return;
    if (!moon.pictureName.empty())
        ui_->ImgLuna->setPicture(widgets::loadChoice(
            desktop().files, sky::moonPicture(desktop().files, moon.pictureName, options().holders.hemisferio)));
    ui_->ImgLuna->setTip(widgets::qtText(moon.tip));
    ui_->LabelFase->show();
}

// ---- Information about the day

void FrmCalendar::describeCard() {
    tarot_.state.cards.currentCard = dateCard_;
    showCardDescription(tarot_.state.cards, state(), desktop().boxes);
}

void FrmCalendar::tellChangeOfSign() {
    desktop().boxes.show(platform::BoxIcon::information,
                         sky::changeOfSignMessageCalendar(tarot_.sky.anotherDaySign, desktop().zone), "Info");
}

void FrmCalendar::showSignText() {
    const QRect body = ui_->centralwidget->contentsRect();
    const int rightEdge = ui_->ImageZod->mapTo(ui_->centralwidget, QPoint()).x() - signGap;
    const QRect leftOfSign(body.topLeft(), QPoint(rightEdge, ui_->ARButtonHoy->y() - signGap));
    ui_->TextZod->showIn(leftOfSign,
                         widgets::qtText(sky::signDescription(desktop().files, tarot_.sky.currentSignIndex)));
}

bool FrmCalendar::eventFilter(QObject* watched, QEvent* event) {
    // The picture gets no event for a key or button that is released elsewhere.
    if (event->type() == QEvent::FocusOut) ui_->TextZod->hide();
    return ModuleWindow::eventFilter(watched, event);
}

void FrmCalendar::onHidden() {
    ui_->TextZod->hide();
}

} // namespace velmoriax::tarot
