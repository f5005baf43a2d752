// SPDX-License-Identifier: GPL-3.0-or-later
#include "biorhythm/windows/frm_bio.h"

#include "base/date_text.h"
#include "biorhythm/bio_chart.h"
#include "biorhythm/bio_texts.h"
#include "biorhythm/modules.h"
#include "biorhythm/profile_files.h"
#include "biorhythm/profile_store.h"
#include "biorhythm/view_dates.h"
#include "biorhythm/windows/bio_colours.h"
#include "biorhythm/windows/cycle_row.h"
#include "biorhythm/windows/date_spin_boxes.h"
#include "biorhythm/windows/form_mod.h"
#include "biorhythm/windows/form_snap.h"
#include "biorhythm/windows/frm_compa_tab.h"
#include "biorhythm/windows/frm_profiles.h"
#include "biorhythm/windows/reading_arrows.h"
#include "shell/windows/notifications.h"
#include "shell/windows/secondary_window.h"
#include "shell/windows/window_registry.h"
#include "ui_frm_bio.h"
#include "widgets/conversions.h"
#include "widgets/look.h"

#include <algorithm>

/// The pictures lie in a static library: its resource has to be asked for by name, outside any namespace.
static void openPictures() {
    Q_INIT_RESOURCE(bio_pictures);
}

namespace velmoriax::biorhythm {

namespace {

constexpr int halfMinute = 30000;  ///< ms
constexpr int timeCaptionHead = 6; ///< characters of "Time: "

std::array<CycleRow, cycleCount> cycleRows(const Ui::frmBio& ui) {
    return {{{*ui.NameFis, *ui.LabelFis, *ui.Fisascmini, *ui.Fisdescmini},
             {*ui.NameEmo, *ui.LabelEmo, *ui.Emoascmini, *ui.Emodescmini},
             {*ui.NameInte, *ui.LabelInte, *ui.Inteascmini, *ui.Intedescmini},
             {*ui.NameIntu, *ui.LabelInt, *ui.Intuascmini, *ui.Intudescmini}}};
}

} // namespace

frmBio::frmBio(shell::WindowContext& context, BiorhythmState& biorhythms) :
    ModuleWindow(context, biorhythmsModule), biorhythms_(biorhythms), ui_(std::make_unique<Ui::frmBio>()) {
    openPictures();
    ui_->setupUi(this);
    birthBoxes_ = std::make_unique<DateSpinBoxes>(*ui_->vsbDayBirth, *ui_->vsbMonthBirth, *ui_->vsbYearBirth);
    readingBoxes_ = std::make_unique<DateSpinBoxes>(*ui_->vsbDayBio, *ui_->vsbMonthBio, *ui_->vsbYearBio);
    arrows_ = new ReadingArrows(*ui_->CmdArrowLeft, *ui_->CmdArrowRight);
    setUpControls();
    buildNavigation();
    connectDateBoxes();
    connectTimeOfBirth();
    connectReading();
    connectProfiles();
}

frmBio::~frmBio() = default;

void frmBio::setUpControls() {
    ui_->MSChart1->takeDrawing(loadPlotDrawing(desktop().pluginFolder, *ui_->MSChart1));
    const auto rows = cycleRows(*ui_);
    for (std::size_t i = 0; i < cycleCount; ++i) rows[i].setUp(colourOf(barTable[i].colour));
    ui_->CmdArrowLeft->setIcon(QIcon(QStringLiteral(":/look/pictures/arrow_left-24.png")));
    ui_->CmdArrowRight->setIcon(QIcon(QStringLiteral(":/look/pictures/arrow_right-24.png")));
    ui_->CmdAlert->setIcon(QIcon(QStringLiteral(":/bio/alert.png")));
    for (QLabel* label : {ui_->LabelGetTime, ui_->LabelLived, ui_->LabelRest, ui_->LabelAvg})
        widgets::look::asQuiet(*label);
    widgets::openPicker(*ui_->DTPicker1);
}

void frmBio::connectDateBoxes() {
    birthBoxes_->changed = [this](base::CivilDate date) {
        view().manualDate = false;
        view().birth.date = date;
        calcBio();
    };
    readingBoxes_->changed = [this](base::CivilDate date) {
        view().manualDate = true;
        view().reading = date;
        calcBio();
    };
    connect(&TimerBio_, &QTimer::timeout, this, [this] {
        if (halfHourIsOver(view())) calcBio();
    });
    TimerBio_.setObjectName(QStringLiteral("TimerBio"));
    TimerBio_.start(halfMinute);
}

void frmBio::connectTimeOfBirth() {
    connect(ui_->VScrollHora, &widgets::SpinBox::valueChanged, this, [this](int hour) {
        view().birth.time.hour = hour;
        calcBio();
    });
    connect(ui_->VScrollMinuto, &widgets::SpinBox::valueChanged, this, [this](int minute) {
        view().birth.time.minute = minute;
        calcBio();
    });
    connect(ui_->XPButtonHora, &QPushButton::clicked, this, &frmBio::askTimeOfBirth);
    connect(ui_->CommandOk, &QPushButton::clicked, this, &frmBio::takeTimeOfBirth);
}

void frmBio::connectReading() {
    connect(ui_->CmdHoy, &QPushButton::clicked, this, [this] {
        view().manualDate = false;
        calcBio();
    });
    connect(ui_->CmdGo, &QPushButton::clicked, this, [this] { goToReading(withinView(view().finalDate)); });
    connect(ui_->DTPicker1, &QDateEdit::dateChanged, this, &frmBio::takeTarget);
    connect(arrows_, &ReadingArrows::held, this, [this] { view().manualDate = true; });
    connect(arrows_, &ReadingArrows::stepped, this, &frmBio::stepReading);
}

void frmBio::connectProfiles() {
    connect(ui_->ComboProfiles, &QComboBox::activated, this, &frmBio::pickProfile);
    connect(ui_->XPButtonSave, &QPushButton::clicked, this, &frmBio::saveProfile);
    connect(ui_->XPButtonEdit, &QPushButton::clicked, this, &frmBio::editProfiles);
    connect(ui_->XPButtonCompa, &QPushButton::clicked, this, &frmBio::compareProfiles);
    connect(ui_->CmdAlert, &QPushButton::clicked, this, &frmBio::alertByHand);
    connect(ui_->CmdSnap, &QPushButton::clicked, this, &frmBio::takeSnapshot);
}

void frmBio::ownLoad() {
    auto& files = desktop().files;
    loadBioView(files, biorhythms_.bio, view(), base::civilDateOf(desktop().clock.now()));
    const QSignalBlocker quiet(ui_->DTPicker1);
    ui_->DTPicker1->setDate(widgets::qtDate(view().finalDate));
    showBirth();
    createProfileList(files);
    const auto names = biorhythm::profileNames(files);
    fillProfiles(names, selectedAtLoad(names, options().leerPerfilBio()));
    readSecondProfile(files, options(), biorhythms_.second);
    showSecondAtLoad();
    calcBio();
}

void frmBio::showSecondAtLoad() {
    const SecondProfile& second = biorhythms_.second;
    const bool drawn = second.drawSecondFlag && !second.profileSecondName.empty();
    if (drawn) return showSecondName(widgets::qtText(second.profileSecondName));
    hideSecondName();
}

void frmBio::showBirth() {
    birthBoxes_->show(view().birth.date);
    ui_->VScrollHora->showValue(view().birth.time.hour);
    ui_->VScrollMinuto->showValue(view().birth.time.minute);
    ui_->LabelHoraBirth->setText(widgets::qtText(birthTimeCaption(view().birth.time)));
}

void frmBio::calcBio() {
    const BioShown shown = biorhythm::calcBio(biorhythms_.bio, view(), desktop().clock.now());
    readingBoxes_->show(view().reading);
    show(shown);
    mschart();
}

void frmBio::show(const BioShown& shown) {
    ui_->lblDays->setText(widgets::qtText(shown.livedDays));
    ui_->LblRest->setNum(shown.remainingDays);
    ui_->LabelMedia->setText(widgets::qtText(shown.average));
    setColour(*ui_->LabelMedia, colourOf(shown.averageColour));
    ui_->LabelGetTime->setText(widgets::qtText(shown.time));
    const auto rows = cycleRows(*ui_);
    CycleValues bars{};
    for (std::size_t i = 0; i < cycleCount; ++i) {
        bars[i] = shown.cycles[i].bar;
        rows[i].show(shown.cycles[i]);
    }
    ui_->PicBio->setBars(bars);
}

void frmBio::mschart() {
    const auto profiles = static_cast<std::size_t>(ui_->ComboProfiles->count());
    const base::CivilTime clock = base::civilTimeOf(desktop().clock.now());
    SecondProfile& second = biorhythms_.second;
    ui_->MSChart1->showChart(biorhythm::mschart(biorhythms_.bio.lived, second, profiles, view().reading, clock));
    if (!drawsSecond(second, profiles)) hideSecondName();
}

QString frmBio::profileMainName() const {
    return ui_->ComboProfiles->currentText();
}

QStringList frmBio::profileNames() const {
    QStringList names;
    for (int i = 0; i < ui_->ComboProfiles->count(); ++i) names << ui_->ComboProfiles->itemText(i);
    return names;
}

void frmBio::listProfilesAnew() {
    const auto names = biorhythm::profileNames(desktop().files);
    fillProfiles(names, selectedAfterEdit(names, options().leerPerfilBio()));
}

void frmBio::fillProfiles(const std::vector<std::string>& names, std::optional<std::size_t> selected) {
    QStringList texts;
    for (const std::string& name : names) texts << widgets::qtText(name);
    ui_->ComboProfiles->clear();
    ui_->ComboProfiles->addItems(texts);
    shownProfile_ = selected ? static_cast<int>(*selected) : -1;
    ui_->ComboProfiles->setCurrentIndex(shownProfile_);
    ui_->ComboProfiles->setVisible(!names.empty());
}

void frmBio::showSecondName(const QString& name) {
    ui_->TextSecondProf->setText(name);
    ui_->TextSecondProf->setCursorPosition(0);
    ui_->TextSecondProf->show();
}

void frmBio::hideSecondName() {
    ui_->TextSecondProf->hide();
}

void frmBio::showTimeControls(bool visible) {
    ui_->timeOfBirth->setCurrentWidget(visible ? ui_->setting : ui_->asking);
}

void frmBio::askTimeOfBirth() {
    desktop().boxes.show(platform::BoxIcon::information, std::string(text::birthTimeAdvice));
    showTimeControls(true);
    ui_->VScrollHora->setFocus();
    ui_->VScrollHora->selectAll();
}

void frmBio::takeTimeOfBirth() {
    const bool hadFocus = ui_->CommandOk->hasFocus();
    showTimeControls(false);
    if (hadFocus) ui_->XPButtonHora->setFocus();
    saveBirthTime(desktop().files, biorhythms_.bio, view().birth.time);
    ui_->LabelHoraBirth->setText(widgets::qtText(birthTimeCaption(view().birth.time)));
}

/// Until the next calculation the days are counted from today, and only then from the date of reading.
void frmBio::takeTarget() {
    view().finalDate = widgets::civilDate(ui_->DTPicker1->date());
    setFinalDate(biorhythms_.bio, view().finalDate);
    ui_->LblRest->setNum(base::daysBetween(base::civilDateOf(desktop().clock.now()), view().finalDate));
}

/// The three spin boxes count as moved once, with the whole date: on the way from one month to another the day would
/// pass through dates that nobody asked for.
void frmBio::goToReading(base::CivilDate date) {
    if (date == view().reading) return;
    view().manualDate = true;
    view().reading = date;
    calcBio();
}

void frmBio::stepReading(bool back) {
    goToReading(back ? stepBack(view().reading) : stepOn(view().reading));
}

void frmBio::hideEvent(QHideEvent* event) {
    arrows_->stop();
    ModuleWindow::hideEvent(event);
}

void frmBio::pickProfile() {
    const std::string name = profileMainName().toStdString();
    if (!biorhythm::pickProfile(desktop().files, options(), biorhythms_.bio, view(), name))
        return ui_->ComboProfiles->setCurrentIndex(shownProfile_);
    shownProfile_ = ui_->ComboProfiles->currentIndex();
    showBirth();
    calcBio();
    takeTimeOfBirth();
}

void frmBio::saveProfile() {
    const std::string time = ui_->LabelHoraBirth->text().mid(timeCaptionHead).toStdString();
    const auto name = biorhythm::saveProfile(desktop().files, desktop().boxes, options(), view().birth.date, time);
    if (!name) return;
    ui_->ComboProfiles->addItem(widgets::qtText(*name));
    shownProfile_ = ui_->ComboProfiles->count() - 1;
    ui_->ComboProfiles->setCurrentIndex(shownProfile_);
    ui_->ComboProfiles->show();
}

void frmBio::editProfiles() {
    auto& list = windows().touch<FrmProfiles>();
    list.ListaPerfiles(); // it may stand open from before
    list.showNormalState();
}

void frmBio::compareProfiles() {
    if (ui_->ComboProfiles->count() < 2)
        return desktop().boxes.show(platform::BoxIcon::warning, std::string(text::tooFewProfiles),
                                    std::string(text::errorInfoTitle));
    windows().touch<FrmCompaTab>().showNormalState();
}

void frmBio::takeSnapshot() {
    windows().touch<FormSnap>();
    windows().unload(FormSnap::windowName);
}

void frmBio::notify(const std::function<void(const AlertOutlets&)>& tell) {
    shell::closeNotification(context());
    if (context().notification) tell({*context().notification, desktop().sounds});
}

void frmBio::alertByHand() {
    biorhythms_.alerts.manualAlert = true;
    notify([this](const AlertOutlets& outlets) {
        const AlertMoment moment{desktop().clock.now(), view().reading};
        biorhythm::alertByHand(biorhythms_.alerts, biorhythms_.bio, options().holders.alertLevel, moment, outlets);
    });
}

void frmBio::showHelp() {
    if (!helpIsDue(biorhythms_.alerts, biorhythms_.bio)) return;
    notify([this](const AlertOutlets& outlets) { showHelpLines(biorhythms_.alerts, outlets); });
}

bool frmBio::event(QEvent* event) {
    // The slide lets events run: it is not to begin inside the activation.
    if (event->type() == QEvent::WindowActivate) QTimer::singleShot(0, this, &frmBio::showHelp);
    return ModuleWindow::event(event);
}

void frmBio::onMinimised(bool toSystray) {
    if (toSystray) shell::closeNotification(context());
}

/// What was set stands in the files as soon as the window is out of sight: tip and alerts count with it.
void frmBio::onHidden() {
    saveBioState(desktop().files, biorhythms_.bio, view().birth, view().finalDate);
}

void frmBio::onUnload() {
    unloadBeside();
    biorhythms_.alerts.welcomeShown = false;
    biorhythms_.alerts.manualAlert = false;
    saveBioState(desktop().files, biorhythms_.bio, view().birth, view().finalDate);
}

/// The windows that work on this one go with it. While they stood the next module could not add its icon; a hidden
/// program would be out of reach.
void frmBio::unloadBeside() {
    const bool heldIconBack = state().noTrayAdd;
    for (const auto name : {FormMod::windowName, FrmProfiles::windowName, FrmCompaTab::windowName})
        windows().unload(name);
    shell::ModuleWindow* next = ModuleWindow::loadedIn(windows());
    if (!heldIconBack || state().closingAll || next == this || !next) return;
    next->addTrayIcon();
}

} // namespace velmoriax::biorhythm
