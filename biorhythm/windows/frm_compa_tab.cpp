// SPDX-License-Identifier: GPL-3.0-or-later
#include "biorhythm/windows/frm_compa_tab.h"

#include "biorhythm/bio_texts.h"
#include "biorhythm/cycle_engine.h"
#include "biorhythm/profile_store.h"
#include "biorhythm/windows/bio_colours.h"
#include "biorhythm/windows/profile_view.h"
#include "shell/windows/window_registry.h"
#include "ui_frm_compa_tab.h"
#include "widgets/conversions.h"
#include "widgets/look.h"

namespace velmoriax::biorhythm {

FrmCompaTab::FrmCompaTab(shell::WindowContext& context, BiorhythmState& biorhythms) :
    SecondaryWindow(context), biorhythms_(biorhythms), ui_(std::make_unique<Ui::FrmCompaTab>()) {
    ui_->setupUi(this);
    for (const char* caption : {"Actual", "General", "Exit"}) ui_->SSTab1->addTab(QString::fromLatin1(caption));
    widgets::look::asTitle(*ui_->LabelProMain);
    showLabels(firstCompatibilityLabels());
    connect(ui_->ListProfiles, &widgets::ChoiceList::chosenByMouse, this, &FrmCompaTab::chooseProfile);
    connect(ui_->ListProfiles, &QListWidget::itemSelectionChanged, this, [this] {
        const bool byKey =
            QGuiApplication::mouseButtons() == Qt::NoButton; // a click is handled when the button is released
        if (byKey && !chosenName().isEmpty()) chooseProfile();
    });
    connect(ui_->CheckPlot, &QCheckBox::toggled, this, &FrmCompaTab::plotToggled);
    connect(ui_->SSTab1, &QTabBar::currentChanged, this, &FrmCompaTab::turnTo);
}

FrmCompaTab::~FrmCompaTab() = default;

void FrmCompaTab::load() {
    const ProfileView* view = windows().loaded<ProfileView>();
    if (!view) return unload();
    state().noTrayAdd = true;
    centreOverModule();
    listProfiles(*view);
    const QSignalBlocker quiet(ui_->CheckPlot);
    ui_->CheckPlot->setChecked(options().leerDibujarSecundario() == "1");
    const base::CivilTime clock = base::civilTimeOf(desktop().clock.now());
    takeMainCycles(compatibility_, cyclesAt(livedIn(biorhythms_.view, clock)));
    chooseStoredProfile();
}

void FrmCompaTab::listProfiles(const ProfileView& view) {
    ui_->LabelProMain->setText(QStringLiteral("Main profile: ") + view.profileMainName());
    const QSignalBlocker quiet(ui_->ListProfiles);
    ui_->ListProfiles->addItems(view.profileNames());
}

void FrmCompaTab::chooseStoredProfile() {
    const QString stored = widgets::qtText(options().leerNombreSecundario());
    const auto found = ui_->ListProfiles->findItems(stored, Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (found.isEmpty()) return;
    {
        const QSignalBlocker quiet(ui_->ListProfiles);
        ui_->ListProfiles->setCurrentItem(found.last());
    }
    chooseProfile();
}

void FrmCompaTab::onUnload() {
    state().noTrayAdd = false;
}

/// Empty when the view is not loaded.
QString FrmCompaTab::profileMainName() const {
    const ProfileView* view = windows().loaded<ProfileView>();
    return view ? view->profileMainName() : QString();
}

QString FrmCompaTab::chosenName() const {
    const auto chosen = ui_->ListProfiles->selectedItems();
    return chosen.isEmpty() ? QString() : chosen.first()->text();
}

bool FrmCompaTab::mainIsChosen() const {
    return chosenName() == profileMainName();
}

/// People are identified by name: another person of the main profile's name counts as the main one.
void FrmCompaTab::chooseProfile() {
    showResults(!mainIsChosen());
    if (mainIsChosen())
        return desktop().boxes.show(platform::BoxIcon::warning, std::string(text::sameProfile),
                                    std::string(text::errorInfoTitle));
    const std::string name = chosenName().toStdString();
    const bool readable = loadSecondProfile(desktop().files, name, biorhythms_.second);
    if (!readable) {
        showResults(false); // the figures shown are another person's
        return desktop().boxes.show(platform::BoxIcon::warning, unreadableProfile(name));
    }
    compare();
    storeSecondName(options(), biorhythms_.second, name);
    showSecondName(ui_->CheckPlot->isChecked(), chosenName());
    drawChart();
    turnTo(ui_->SSTab1->currentIndex());
}

void FrmCompaTab::showResults(bool visible) {
    for (QWidget* label : std::initializer_list<QWidget*>{ui_->LabelInfo, ui_->LabelFis, ui_->LabelEmo, ui_->LabelInte,
                                                          ui_->LabelIntu, ui_->hairline, ui_->LabelMedia})
        label->setVisible(visible);
}

void FrmCompaTab::compare() {
    SecondProfile& second = biorhythms_.second;
    const BioViewState& shown = biorhythms_.view;
    const base::CivilTime clock = base::civilTimeOf(desktop().clock.now());
    showLabels(ui_->SSTab1->currentIndex() == actualTab
                   ? showActual(compatibility_, second, shown.reading, clock)
                   : showGeneral(compatibility_, shown.birth.date, second.secondDate));
}

void FrmCompaTab::showLabels(const CompatibilityLabels& labels) {
    const std::array<QLabel*, cycleCount> cycles{ui_->LabelFis, ui_->LabelEmo, ui_->LabelInte, ui_->LabelIntu};
    for (std::size_t i = 0; i < cycleCount; ++i) cycles[i]->setText(widgets::qtText(labels.cycles[i]));
    ui_->LabelMedia->setText(widgets::qtText(labels.mean));
}

void FrmCompaTab::turnTo(int tab) {
    if (tab == exitTab) {
        close();
        return;
    }
    const std::string main = profileMainName().toStdString();
    const SecondProfile& second = biorhythms_.second;
    const base::CivilTime clock = base::civilTimeOf(desktop().clock.now());
    ui_->LabelInfo->setText(widgets::qtText(
        tab == actualTab ? actualHeading(main, second.profileSecondName, biorhythms_.view.reading, clock)
                         : generalHeading(main, second.profileSecondName)));
    compare();
}

void FrmCompaTab::plotToggled(bool checked) {
    if (mainIsChosen()) return;
    SecondProfile& second = biorhythms_.second;
    storeDrawSecond(options(), second, checked);
    const QString name = widgets::qtText(second.profileSecondName);
    if (!checked || !name.isEmpty()) showSecondName(checked, name);
    drawChart();
}

void FrmCompaTab::showSecondName(bool visible, const QString& name) {
    ProfileView* view = windows().loaded<ProfileView>();
    if (!view) return;
    if (visible) return view->showSecondName(name);
    view->hideSecondName();
}

void FrmCompaTab::drawChart() {
    if (ProfileView* view = windows().loaded<ProfileView>()) view->mschart();
}

} // namespace velmoriax::biorhythm
