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
#include "biorhythm/windows/profile_combo.h"
#include "biorhythm/windows/reading_arrows.h"
#include "shell/windows/notifications.h"
#include "shell/windows/secondary_window.h"
#include "shell/windows/window_registry.h"
#include "ui_frm_bio.h"
#include "widgets/conversions.h"
#include "widgets/date_picker.h"
#include "widgets/look.h"

/// The pictures are in a static library, whose resources are initialised by name and outside any namespace.
static void initPictures() {
    Q_INIT_RESOURCE(bio_pictures);
}

namespace velmoriax::biorhythm {

namespace {

constexpr int halfMinute = 30000;    ///< ms
constexpr int timeCaptionPrefix = 6; ///< characters of "Time: "

std::array<CycleRow, cycleCount> cycleRows(const Ui::frmBio& ui) {
    return {{{*ui.NameFis, *ui.LabelFis, *ui.Fisascmini, *ui.Fisdescmini},
             {*ui.NameEmo, *ui.LabelEmo, *ui.Emoascmini, *ui.Emodescmini},
             {*ui.NameInte, *ui.LabelInte, *ui.Inteascmini, *ui.Intedescmini},
             {*ui.NameIntu, *ui.LabelInt, *ui.Intuascmini, *ui.Intudescmini}}};
}

} // namespace

frmBio::frmBio(shell::WindowContext& context, BiorhythmState& biorhythms) :
    ModuleWindow(context, biorhythmsModule), biorhythms_(biorhythms), ui_(std::make_unique<Ui::frmBio>()) {
    initPictures();
    ui_->setupUi(this);
    birthBoxes_ = std::make_unique<DateSpinBoxes>(*ui_->vsbDayBirth, *ui_->vsbMonthBirth, *ui_->vsbYearBirth);
    readingBoxes_ = std::make_unique<DateSpinBoxes>(*ui_->vsbDayBio, *ui_->vsbMonthBio, *ui_->vsbYearBio);
    profiles_ = std::make_unique<ProfileCombo>(*ui_->ComboProfiles);
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
}

void frmBio::connectDateBoxes() {
    birthBoxes_->changed = [this](base::CivilDate date) { takeBirth(date); };
    readingBoxes_->changed = [this](base::CivilDate date) { takeReading(date); };
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
    connect(ui_->DTPicker1, &widgets::DatePicker::dateChanged, this, &frmBio::takeTarget);
    connect(arrows_, &ReadingArrows::held, this, [this] { view().manualDate = true; });
    connect(arrows_, &ReadingArrows::stepped, this,
            [this](bool back) { goToReading(back ? dayBefore(view().reading) : dayAfter(view().reading)); });
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
    profiles_->fill(names, selectedAtLoad(names, options().leerPerfilBio()));
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
    const base::CivilMoment reading{view().reading, base::civilTimeOf(desktop().clock.now())};
    SecondProfile& second = biorhythms_.second;
    ui_->MSChart1->showChart(biorhythm::mschart(livedIn(view(), reading.time), second, profiles_->count(), reading));
    if (!drawsSecond(second, profiles_->count())) hideSecondName();
}

QString frmBio::profileMainName() const {
    return profiles_->profileMainName();
}

QStringList frmBio::profileNames() const {
    return profiles_->names();
}

void frmBio::reloadProfiles() {
    const auto names = biorhythm::profileNames(desktop().files);
    profiles_->fill(names, selectedAfterEdit(names, options().leerPerfilBio()));
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

void frmBio::takeBirth(base::CivilDate date) {
    takeBirthDate(view(), date);
    birthBoxes_->show(view().birth.date);
    calcBio();
}

void frmBio::takeReading(base::CivilDate date) {
    takeReadingDate(view(), date);
    calcBio();
}

/// The days are counted from today until the next calculation, which counts them from the date of reading.
void frmBio::takeTarget() {
    view().finalDate = widgets::civilDate(ui_->DTPicker1->date());
    setFinalDate(biorhythms_.bio, view().finalDate);
    ui_->LblRest->setNum(base::daysBetween(base::civilDateOf(desktop().clock.now()), view().finalDate));
}

/// Sets the three spin boxes at once: one after the other they would pass through dates that the user did not choose.
void frmBio::goToReading(base::CivilDate date) {
    if (date != view().reading) takeReading(date);
}

void frmBio::hideEvent(QHideEvent* event) {
    arrows_->stop();
    ModuleWindow::hideEvent(event);
}

void frmBio::pickProfile() {
    const std::string name = profileMainName().toStdString();
    if (!biorhythm::pickProfile(desktop().files, options(), view(), name)) {
        profiles_->undoChoice();
        return desktop().boxes.show(platform::BoxIcon::warning, unreadableProfile(name));
    }
    save();
    profiles_->keepChoice();
    showBirth();
    calcBio();
    takeTimeOfBirth();
}

void frmBio::saveProfile() {
    const std::string time = ui_->LabelHoraBirth->text().mid(timeCaptionPrefix).toStdString();
    const auto name = biorhythm::saveProfile(desktop().files, desktop().boxes, options(), {view().birth.date, time});
    if (name) profiles_->append(*name);
}

void frmBio::editProfiles() {
    auto& list = windows().touch<FrmProfiles>();
    list.ListaPerfiles(); // for a window that is open already
    list.showNormalState();
}

void frmBio::compareProfiles() {
    if (profiles_->count() < 2)
        return desktop().boxes.show(platform::BoxIcon::warning, std::string(text::tooFewProfiles),
                                    std::string(text::errorInfoTitle));
    windows().touch<FrmCompaTab>().showNormalState();
}

void frmBio::takeSnapshot() {
    windows().touch<FormSnap>();
    windows().unload(FormSnap::windowName);
}

void frmBio::withNotificationClosed(const std::function<void(const AlertOutlets&)>& show) {
    shell::closeNotification(context());
    if (context().notification) show({*context().notification, desktop().sounds});
}

void frmBio::alertByHand() {
    biorhythms_.alerts.manualAlert = true;
    withNotificationClosed([this](const AlertOutlets& outlets) {
        const AlertRun run{options().holders.alertLevel, desktop().clock.now(), view().reading};
        biorhythm::alertByHand(biorhythms_.alerts, biorhythms_.bio, run, outlets);
    });
}

void frmBio::showHelp() {
    if (!helpIsDue(biorhythms_.alerts, biorhythms_.bio)) return;
    withNotificationClosed([this](const AlertOutlets& outlets) { showHelpLines(biorhythms_.alerts, outlets); });
}

bool frmBio::event(QEvent* event) {
    // Not inside the activation: the slide of the notification processes events.
    if (event->type() == QEvent::WindowActivate) QTimer::singleShot(0, this, &frmBio::showHelp);
    return ModuleWindow::event(event);
}

void frmBio::onMinimised(bool toSystray) {
    if (toSystray) shell::closeNotification(context());
}

/// The next module reads what was set, before this one is unloaded.
void frmBio::onHandOver() {
    save();
}

/// Saved when the window is hidden to the tray or closed, and not only when it is unloaded: tip and alerts then use
/// what was set. Minimising saves nothing.
void frmBio::onHidden() {
    save();
}

void frmBio::onUnload() {
    unloadDependentWindows();
    biorhythms_.alerts.welcomeShown = false;
    biorhythms_.alerts.manualAlert = false;
    save();
}

void frmBio::save() {
    saveBioState(desktop().files, biorhythms_.bio, view().birth, view().finalDate);
}

/// The windows that work on this view are unloaded with it. While one of them was open the next module could not add
/// its tray icon, without which a hidden program cannot be reached; so it adds the icon now.
void frmBio::unloadDependentWindows() {
    for (const auto name : {FormMod::windowName, FrmProfiles::windowName, FrmCompaTab::windowName})
        windows().unload(name);
    shell::ModuleWindow* next = ModuleWindow::loadedIn(windows());
    if (state().closingAll || !next || next == this || next->ctxSysTray1().isAdded()) return;
    next->addTrayIcon();
}

} // namespace velmoriax::biorhythm
