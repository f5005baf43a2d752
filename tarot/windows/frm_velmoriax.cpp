// SPDX-License-Identifier: GPL-3.0-or-later
#include "tarot/windows/frm_velmoriax.h"

#include "tarot/modules.h"
#include "tarot/numbers_reading.h"
#include "tarot/windows/card_description.h"
#include "tarot/windows/card_picture.h"
#include "ui_frm_velmoriax.h"
#include "widgets/conversions.h"
#include "widgets/default_button.h"
#include "widgets/look.h"

namespace velmoriax::tarot {

namespace {

/// Wide enough for the result line of every card, in the line's own font.
void makeRoomForResults(QLineEdit& line) {
    int widest = 0;
    for (const MajorCard& card : majorArcana)
        widest = std::max(widest, line.fontMetrics().horizontalAdvance(widgets::qtText(resultLineOf(card))));
    line.setMinimumWidth(widest + line.fontMetrics().averageCharWidth());
}

} // namespace

frmVelmoriax::frmVelmoriax(shell::WindowContext& context, TarotContext& tarot) :
    ModuleWindow(context, numbersModule), tarot_(tarot), ui_(std::make_unique<Ui::frmVelmoriax>()),
    results_(numbersLog, "MnuRegResult", *this, context) {
    ui_->setupUi(this);
    widgets::look::asTitle(*ui_->Text2);
    makeRoomForResults(*ui_->Text2);
    ui_->ImgVelmoriax->setCornerRadius(cardCornerShare);
    ui_->ImgVelmoriax->setClickable(true);
    buildNavigation();
    connectControls();
}

frmVelmoriax::~frmVelmoriax() = default;

void frmVelmoriax::connectControls() {
    connect(ui_->ARButtonAcep, &QPushButton::clicked, this, &frmVelmoriax::submit);
    connect(ui_->ARButtonReset, &QPushButton::clicked, this, &frmVelmoriax::reset);
    connect(ui_->ImgVelmoriax, &widgets::PictureBox::clicked, this, &frmVelmoriax::describeCard);
    new widgets::DefaultButton(*ui_->ARButtonAcep);
    connect(ui_->text1, &QLineEdit::textChanged, this, [this] { update(); });
}

void frmVelmoriax::ownLoad() {
    results_.load();
    showOwnBack(*ui_->ImgVelmoriax);
    ui_->text1->setFocus();
}

void frmVelmoriax::submit() {
    const auto reading =
        SumarUnidades(ui_->text1->text().toStdString(), deckInUse(desktop().files, options()), tarot_.state.cards);
    if (!reading) {
        desktop().boxes.show(platform::BoxIcon::warning, std::string(numbersWarning), "Info");
        ui_->text1->clear();
        return;
    }
    numberCard_ = reading->drawn.card;
    ui_->Text2->setText(widgets::qtText(reading->resultLine));
    showCard(*ui_->ImgVelmoriax, reading->drawn, desktop().files);
    results_.keep(reading->record);
}

void frmVelmoriax::reset() {
    ui_->text1->clear();
    ui_->Text2->clear();
    showMajorBack(*ui_->ImgVelmoriax, desktop().files);
    ui_->text1->setFocus();
}

void frmVelmoriax::describeCard() {
    tarot_.state.cards.currentCard = numberCard_;
    showCardDescription(tarot_.state.cards, state(), desktop().boxes);
}

} // namespace velmoriax::tarot
