// SPDX-License-Identifier: GPL-3.0-or-later
#include "tarot/windows/frm_velmoriax.h"

#include "shell/windows/look.h"
#include "tarot/numbers_reading.h"
#include "tarot/windows/card_description.h"
#include "tarot/windows/card_picture.h"
#include "ui_frm_velmoriax.h"

namespace velmoriax::tarot {

namespace {

/// Wide enough for the result line of every card, in the line's own font.
void makeRoomForResults(QLineEdit& line) {
    int widest = 0;
    for (const MajorCard& card : majorArcana)
        widest = std::max(widest, line.fontMetrics().horizontalAdvance(QString::fromStdString(resultLineOf(card))));
    line.setMinimumWidth(widest + line.fontMetrics().averageCharWidth());
}

} // namespace

frmVelmoriax::frmVelmoriax(shell::Process& process) :
    ModuleWindow(process, shell::Module::numbers), ui_(std::make_unique<Ui::frmVelmoriax>()),
    results_(numbersLog, "MnuRegResult", *this, process) {
    ui_->setupUi(this);
    shell::look::asTitle(*ui_->Text2);
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
    connect(ui_->ImgVelmoriax, &shell::PictureBox::clicked, this, &frmVelmoriax::describeCard);
    connect(ui_->text1, &QLineEdit::returnPressed, this, &frmVelmoriax::submit);
    connect(ui_->text1, &QLineEdit::textChanged, this, [this] { update(); });
}

void frmVelmoriax::ownLoad() {
    results_.load();
    showOwnBack(*ui_->ImgVelmoriax);
    ui_->text1->setFocus();
}

void frmVelmoriax::submit() {
    const auto reading = SumarUnidades(ui_->text1->text().toStdString(), desktop().files.applicationDirectory(),
                                       record().options.holders.tipocartas, record().cards);
    if (!reading) {
        desktop().boxes.show(platform::BoxIcon::warning, std::string(numbersWarning), "Info");
        ui_->text1->clear();
        return;
    }
    numberCard_ = reading->drawn.card;
    ui_->Text2->setText(QString::fromStdString(reading->resultLine));
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
    record().cards.currentCard = numberCard_;
    showCardDescription(record().cards, desktop().boxes);
}

} // namespace velmoriax::tarot
