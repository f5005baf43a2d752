// SPDX-License-Identifier: GPL-3.0-or-later
#include "tarot/windows/frm_oracle.h"

#include "tarot/modules.h"
#include "tarot/windows/card_description.h"
#include "tarot/windows/card_picture.h"
#include "tarot/windows/tarot_pictures.h"
#include "ui_frm_oracle.h"
#include "widgets/calendar.h"
#include "widgets/conversions.h"
#include "widgets/look.h"

#include <QDate>
#include <QShortcut>

namespace velmoriax::tarot {

namespace {

/// What the frame of a suit's box takes off the half turn. The final card is turned whole.
constexpr int suitRim = 4;

constexpr QMargins monthViewMargins{8, 8, 8, 8};

/// The size of the pane with a card's text, in lines and letters.
constexpr int textLines = 9;
constexpr int fewestTextLines = 3;
constexpr int textLetters = 96;
constexpr int textRim = 26; ///< pixels above and below the lines: frame, padding and the document's own margin

/// The back of a card, by the suit's name in the headings.
constexpr std::array<const char*, 4> facedDown{"Wands card, face down", "Cups card, face down",
                                               "Swords card, face down", "Coins card, face down"};

} // namespace

Frmoracle::Frmoracle(shell::WindowContext& context, TarotContext& tarot) :
    ModuleWindow(context, oracleModule), tarot_(tarot), ui_(std::make_unique<Ui::Frmoracle>()),
    results_(oracleLog, "MnuRegResult", *this, context), state_(tarot.state.oracle) {
    openTarotPictures();
    ui_->setupUi(this);
    suits_ = {{{Suit::batons, ui_->TxtBas, ui_->ARButtonAcepBas, ui_->imgbas},
               {Suit::cups, ui_->TxtCop, ui_->ARButtonAcepCop, ui_->imgcop},
               {Suit::swords, ui_->TxtEsp, ui_->ARButtonAcepEsp, ui_->imgesp},
               {Suit::golds, ui_->TxtOr, ui_->ARButtonAcepOr, ui_->imgor}}};
    setUpControls();
    buildNavigation();
    connectSuits();
    connectControls();
}

Frmoracle::~Frmoracle() = default;

void Frmoracle::setUpControls() {
    for (const SuitControls& controls : suits_) controls.card->setCornerRadius(cardCornerShare);
    ui_->imgfinal->setCornerRadius(cardCornerShare);
    ui_->ImageSoundMidOn->setPicture(QImage(QStringLiteral(":/oracle/sound_on.png")));
    ui_->ImageSoundMidOff->setPicture(QImage(QStringLiteral(":/oracle/sound_off.png")));
    for (auto* image : {ui_->ImageSoundMidOn, ui_->ImageSoundMidOff}) {
        image->setTip(QStringLiteral("On/Off"));
        image->setClickable(true);
    }
    ui_->ImageSoundMidOff->setAccessibleName(tr("Song off: switch it on"));

    widgets::setUpCalendar(*ui_->MonthView1);
    ui_->MonthView1->setAttribute(Qt::WA_StyledBackground);
    ui_->MonthView1->setContentsMargins(monthViewMargins);
    ui_->MonthView1->hide();
    setUpTextPane();
}

void Frmoracle::setUpTextPane() {
    widgets::look::asReading(*ui_->TxtEdit);
    const QFontMetrics metrics = ui_->TxtEdit->fontMetrics();
    ui_->TxtEdit->setMinimumHeight(metrics.lineSpacing() * fewestTextLines + textRim);
    ui_->TxtEdit->setMaximumHeight(metrics.lineSpacing() * textLines + textRim);
    ui_->TxtEdit->setMaximumWidth(metrics.averageCharWidth() * textLetters);
    ui_->TxtEdit->hide();
}

void Frmoracle::connectSuits() {
    for (const SuitControls& controls : suits_) {
        connect(controls.accept, &QPushButton::clicked, this, [this, controls] { read(controls); });
        connect(controls.question, &widgets::QuestionBox::asked, this, [this, controls] { read(controls); });
        connect(controls.card, &widgets::PictureBox::clicked, this, [this, controls] {
            openText(openSuitText(controls.suit, state_, desktop().files.applicationDirectory()));
        });
    }
}

void Frmoracle::connectControls() {
    connect(ui_->ARButtonResult, &QPushButton::clicked, this, &Frmoracle::showResultant);
    connect(ui_->ARButtonReset, &QPushButton::clicked, this, &Frmoracle::reset);
    connect(ui_->imgfinal, &widgets::PictureBox::clicked, this,
            [this] { openText(openFinalText(state_, desktop().files.applicationDirectory())); });

    connect(ui_->XPButton1, &QPushButton::clicked, this, &Frmoracle::askDate);
    connect(ui_->MonthView1, &QCalendarWidget::clicked, this, &Frmoracle::pickDate);
    connect(ui_->MonthView1, &QCalendarWidget::activated, this, &Frmoracle::pickDate);
    auto* leave = new QShortcut(Qt::Key_Escape, ui_->MonthView1);
    leave->setContext(Qt::WidgetWithChildrenShortcut);
    connect(leave, &QShortcut::activated, this, &Frmoracle::leaveMonthView);

    connect(ui_->ImageSoundMidOn, &widgets::PictureBox::clicked, this, [this] { switchSound(false); });
    connect(ui_->ImageSoundMidOff, &widgets::PictureBox::clicked, this, [this] { switchSound(true); });
    timerMidi_.setObjectName(QStringLiteral("TimerMidi"));
    timerMidi_.setInterval(timerMidiMs);
    connect(&timerMidi_, &QTimer::timeout, this, [this] { tickMidi(sound_, desktop().songs); });
}

OracleServices Frmoracle::reader() const {
    return {options(), desktop().random, desktop().files.applicationDirectory(), tarot_.state.cards};
}

AmbientServices Frmoracle::ambience() const {
    return {desktop().songs, desktop().events, options(), desktop().files.applicationDirectory()};
}

void Frmoracle::ownLoad() {
    state_ = {};
    state_.readingDate = base::civilDateOf(desktop().clock.now());
    readThrowOption(options());
    ui_->XPButton1->setText(widgets::qtText(dateButtonCaption(state_.readingDate)));
    results_.load();
    showBacks();
    followState();
    ui_->TxtBas->setFocus();
    changeSound([this] { return startAmbient(sound_, ambience()); });
}

void Frmoracle::ownCommand(std::string_view name) {
    if (name == "MnuEliSound") return chooseSong(desktop().boxes, ambience());
    results_.run(name);
}

// ---- the reading

void Frmoracle::read(const SuitControls& controls) {
    const auto reading = drawSuitCard(controls.suit, controls.question->toPlainText().toStdString(), state_, reader());
    followState();
    if (!reading) return;
    const DrawnCard& drawn = reading->drawn;
    showCard(*controls.card, drawn, desktop().files, suitRim);
    controls.card->setAccessibleName(
        widgets::qtText(spokenCard(spokenName(controls.suit, drawn.card), drawn.orientation)));
    results_.keep(reading->record);
}

void Frmoracle::showResultant() {
    const auto reading =
        drawFinalCard(ui_->TxtEsp->toPlainText().toStdString(), desktop().clock.now(), state_, reader());
    followState();
    if (!reading) return;
    const DrawnCard& drawn = reading->drawn;
    showCard(*ui_->imgfinal, drawn, desktop().files);
    ui_->imgfinal->setAccessibleName(widgets::qtText(spokenCard(drawn.tip, drawn.orientation)));
    results_.keep(reading->record);
}

void Frmoracle::reset() {
    resetReading(state_);
    ui_->TxtEdit->hide();
    for (const SuitControls& controls : suits_) controls.question->clear();
    showBacks();
    followState();
    ui_->TxtEsp->setFocus();
}

void Frmoracle::showBacks() {
    const QImage back = widgets::loadPicture(desktop().files, suitBackPath(desktop().files.applicationDirectory()));
    for (const SuitControls& controls : suits_) {
        controls.card->setPicture(back);
        controls.card->setAccessibleName(tr(facedDown[static_cast<std::size_t>(controls.suit)]));
    }
    showMajorBack(*ui_->imgfinal, desktop().files);
    ui_->imgfinal->setAccessibleName(tr("Final card, face down"));
}

/// A card can be clicked as long as it has a text to show, and a reading that has started holds its date.
void Frmoracle::followState() {
    for (const SuitControls& controls : suits_) controls.card->setClickable(isDrawn(controls.suit, state_));
    ui_->imgfinal->setClickable(state_.finalDrawn);
    if (state_.readingStarted) ui_->MonthView1->hide();
}

void Frmoracle::openText(const std::optional<std::string>& path) {
    if (!path) return;
    ui_->TxtEdit->setPlainText(widgets::qtText(cardText(desktop().files, *path)));
    ui_->TxtEdit->show();
    ui_->TxtEdit->setFocus(); // so that the keys scroll it
}

// ---- the date of the reading

void Frmoracle::askDate() {
    const auto offered = dateToOffer(state_, base::civilDateOf(desktop().clock.now()));
    if (!offered)
        return desktop().boxes.show(platform::BoxIcon::warning, std::string(dateWarning),
                                    std::string(dateWarningTitle));
    ui_->MonthView1->setSelectedDate(widgets::qtDate(*offered));
    placeMonthView();
    ui_->MonthView1->show();
    ui_->MonthView1->raise();
    ui_->MonthView1->setFocus();
}

/// Under its button, within the window.
void Frmoracle::placeMonthView() {
    QWidget& view = *ui_->MonthView1;
    view.adjustSize();
    const QRect button = ui_->XPButton1->geometry();
    QRect place(QPoint(), view.sizeHint());
    place.moveCenter(button.center());
    place.moveTop(button.bottom() + 1);
    const QRect window = ui_->centralwidget->rect();
    place.moveLeft(std::clamp(place.left(), 0, std::max(0, window.width() - place.width())));
    view.setGeometry(place);
}

void Frmoracle::resizeEvent(QResizeEvent* event) {
    ModuleWindow::resizeEvent(event);
    if (ui_->MonthView1->isVisible()) QTimer::singleShot(0, this, &Frmoracle::placeMonthView);
}

void Frmoracle::leaveMonthView() {
    ui_->MonthView1->hide();
    ui_->XPButton1->setFocus();
}

void Frmoracle::pickDate(QDate day) {
    chooseDate(state_, widgets::civilDate(day));
    ui_->XPButton1->setText(widgets::qtText(dateButtonCaption(state_.readingDate)));
    followState();
    leaveMonthView();
}

// ---- the song

void Frmoracle::switchSound(bool on) {
    changeSound([this, on] {
        (on ? switchAmbientOn : switchAmbientOff)(sound_, ambience());
        return on;
    });
}

/// Events are processed while a song is opened: the window may be unloaded meanwhile, or the switch be used again.
void Frmoracle::changeSound(const std::function<bool()>& change) {
    const int own = ++soundChanges_;
    const bool on = change();
    if (!isLoaded() || own != soundChanges_) return;
    showSwitch(on);
    followTimer();
}

void Frmoracle::showSwitch(bool on) {
    const bool focused = ui_->ImageSoundMidOn->hasFocus() || ui_->ImageSoundMidOff->hasFocus();
    ui_->ImageSoundMidOn->setAccessibleName(sound_.midiDeviceId != 0
                                                ? tr("Song on: switch it off")
                                                : tr("Song on, but it cannot be played: switch it off"));
    ui_->ImageSoundMidOn->setVisible(on);
    ui_->ImageSoundMidOff->setVisible(!on);
    if (focused) (on ? ui_->ImageSoundMidOn : ui_->ImageSoundMidOff)->setFocus();
}

void Frmoracle::followTimer() {
    if (sound_.timerOn)
        timerMidi_.start();
    else
        timerMidi_.stop();
}

void Frmoracle::beforeClose() {
    stopMidi(sound_, desktop().songs);
}

} // namespace velmoriax::tarot
