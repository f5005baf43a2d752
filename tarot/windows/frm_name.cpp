// SPDX-License-Identifier: GPL-3.0-or-later
#include "tarot/windows/frm_name.h"

#include "tarot/modules.h"
#include "tarot/names_reading.h"
#include "tarot/windows/card_description.h"
#include "tarot/windows/card_picture.h"
#include "ui_frm_name.h"

#include <QKeyEvent>

namespace velmoriax::tarot {

namespace {

bool isEnterKey(const QEvent& event) {
    if (event.type() != QEvent::KeyPress && event.type() != QEvent::KeyRelease) return false;
    const int key = static_cast<const QKeyEvent&>(event).key();
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

} // namespace

FrmName::FrmName(shell::WindowContext& context, TarotContext& tarot) :
    ModuleWindow(context, namesModule), tarot_(tarot), ui_(std::make_unique<Ui::FrmName>()),
    results_(namesLog, "MnuRecResults", *this, context) {
    ui_->setupUi(this);
    ui_->ImgNombre->setCornerRadius(cardCornerShare);
    ui_->ImgNombre->setClickable(true);
    buildNavigation();
    connectControls();
}

FrmName::~FrmName() = default;

void FrmName::connectControls() {
    connect(ui_->ARButtonAcep, &QPushButton::clicked, this, &FrmName::submit);
    connect(ui_->ARButtonReset, &QPushButton::clicked, this, &FrmName::reset);
    connect(ui_->ImgNombre, &widgets::PictureBox::clicked, this, &FrmName::describeCard);
    for (QWidget* control : ui_->centralwidget->findChildren<QWidget*>()) control->installEventFilter(this);
}

bool FrmName::eventFilter(QObject* watched, QEvent* event) {
    if (!isEnterKey(*event)) return ModuleWindow::eventFilter(watched, event);
    // The key's release is swallowed with it: the control that has the focus by then has not been pressed.
    if (event->type() == QEvent::KeyPress) focusNextChild();
    return true;
}

void FrmName::ownLoad() {
    results_.load();
    showOwnBack(*ui_->ImgNombre);
    ui_->Text1nom->setFocus();
}

NameFields FrmName::typedNames() const {
    return {ui_->Text1nom->text().toStdString(), ui_->Text2nom->text().toStdString(),
            ui_->Text1ape->text().toStdString(), ui_->Text2ape->text().toStdString()};
}

void FrmName::submit() {
    const NamesReading reading = readNames(typedNames(), deckInUse(desktop().files, options()), tarot_.state.cards);
    for (int i = 0; i < reading.refusedFields && isLoaded(); ++i)
        desktop().boxes.show(platform::BoxIcon::warning, std::string(namesWarning), "Info");
    if (!reading.drawn || !isLoaded()) return; // another module may have been opened behind a box
    nameCard_ = reading.drawn->card;
    showCard(*ui_->ImgNombre, *reading.drawn, desktop().files);
    results_.keep(reading.record);
}

void FrmName::reset() {
    for (QLineEdit* field : {ui_->Text1nom, ui_->Text2nom, ui_->Text1ape, ui_->Text2ape}) field->clear();
    showMajorBack(*ui_->ImgNombre, desktop().files);
    ui_->Text1nom->setFocus();
}

void FrmName::describeCard() {
    tarot_.state.cards.currentCard = nameCard_;
    showCardDescription(tarot_.state.cards, state(), desktop().boxes);
}

} // namespace velmoriax::tarot
