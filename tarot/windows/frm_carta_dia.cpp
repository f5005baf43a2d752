// SPDX-License-Identifier: GPL-3.0-or-later
#include "tarot/windows/frm_carta_dia.h"

#include "base/date_text.h"
#include "shell/window_position.h"
#include "shell/windows/look.h"
#include "shell/windows/window_place.h"
#include "tarot/windows/card_description.h"
#include "ui_frm_carta_dia.h"

namespace velmoriax::tarot {

FrmCartaDia::FrmCartaDia(shell::Process& process) :
    ModuleWindow(process, shell::Module::cardOfDay), ui_(std::make_unique<Ui::FrmCartaDia>()) {
    ui_->setupUi(this);
    shell::look::asTitle(*ui_->LblDate);
    ui_->ImgCartadia->setCornerRadius(cardCornerShare);
    ui_->ImgCartadia->setClickable(true);
    connect(ui_->ImgCartadia, &shell::PictureBox::clicked, this, &FrmCartaDia::describeCard);
    buildNavigation();
}

FrmCartaDia::~FrmCartaDia() = default;

void FrmCartaDia::beforeOptions() {
    if (const auto place = shell::storedPlace(record().options)) {
        shell::moveToPlace(*this, *place);
        desktop().events.letRun();
    }
}

void FrmCartaDia::ownLoad() {
    const base::CivilDate today = base::civilDateOf(desktop().clock.now());
    ui_->LblDate->setText(QString::fromStdString(base::longDateText(today) + " (" +
                                                 std::string(base::weekdayRuler(base::weekdayOf(today))) + ")"));
    showCardOfToday();
}

void FrmCartaDia::showCardOfToday() {
    const std::string today = base::shortDateText(base::civilDateOf(desktop().clock.now()));
    const DateReading reading =
        sumcartdia(today, desktop().files.applicationDirectory(), record().options.holders.tipocartas, record().cards);
    dayCard_ = reading.card;
    ui_->ImgCartadia->setPicture(shell::loadPicture(desktop().files, reading.picturePath));
    ui_->ImgCartadia->setTip(QString::fromStdString(reading.name));
}

void FrmCartaDia::describeCard() {
    record().cards.currentCard = dayCard_;
    showCardDescription(record().cards, desktop().boxes);
}

void FrmCartaDia::onUnload() {
    if (!(windowState() & (Qt::WindowMinimized | Qt::WindowMaximized)))
        shell::storePlace(record().options, shell::placeOf(*this));
}

} // namespace velmoriax::tarot
