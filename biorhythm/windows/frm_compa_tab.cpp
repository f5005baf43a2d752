// SPDX-License-Identifier: GPL-3.0-or-later
#include "biorhythm/windows/frm_compa_tab.h"

#include "biorhythm/bio_texts.h"
#include "biorhythm/windows/bio_colours.h"
#include "biorhythm/windows/frm_bio.h"
#include "biorhythm/windows/qt_values.h"
#include "shell/windows/look.h"
#include "ui_frm_compa_tab.h"

namespace velmoriax::biorhythm {

FrmCompaTab::FrmCompaTab(shell::Process& process) : SecondaryWindow(process), ui_(std::make_unique<Ui::FrmCompaTab>()) {
    ui_->setupUi(this);
    for (const char* caption : {"Actual", "General", "Exit"}) ui_->SSTab1->addTab(QString::fromLatin1(caption));
    shell::look::asTitle(*ui_->LabelProMain);
    showLabels(firstCompatibilityLabels());
    connect(ui_->ListProfiles, &QListWidget::itemClicked, this, &FrmCompaTab::chooseProfile);
    connect(ui_->ListProfiles, &QListWidget::itemSelectionChanged, this, [this] {
        const bool byKey = QGuiApplication::mouseButtons() == Qt::NoButton; // a click comes when the button goes up
        if (byKey && !chosenName().isEmpty()) chooseProfile();
    });
    connect(ui_->CheckPlot, &QCheckBox::toggled, this, &FrmCompaTab::plotToggled);
    connect(ui_->SSTab1, &QTabBar::currentChanged, this, &FrmCompaTab::turnTo);
}

FrmCompaTab::~FrmCompaTab() = default;

frmBio& FrmCompaTab::view() const {
    return *frmBio::loadedIn(process());
}

void FrmCompaTab::load() {
    record().shell.noTrayAdd = true;
    standOverModule();
    ui_->LabelProMain->setText(QStringLiteral("Main profile: ") + view().mainName());
    {
        const QSignalBlocker quiet(ui_->ListProfiles);
        ui_->ListProfiles->addItems(view().profileNames());
    }
    const QSignalBlocker quiet(ui_->CheckPlot);
    ui_->CheckPlot->setChecked(record().options.leerDibujarSecundario() == "1");
    takeMainCycles(compatibility_, record().bio.cycle);
    const QString stored = qtText(record().options.leerNombreSecundario());
    const auto found = ui_->ListProfiles->findItems(stored, Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (found.isEmpty()) return;
    {
        const QSignalBlocker quietToo(ui_->ListProfiles);
        ui_->ListProfiles->setCurrentItem(found.last());
    }
    chooseProfile();
}

void FrmCompaTab::onUnload() {
    record().shell.noTrayAdd = false;
}

QString FrmCompaTab::chosenName() const {
    const auto chosen = ui_->ListProfiles->selectedItems();
    return chosen.isEmpty() ? QString() : chosen.first()->text();
}

bool FrmCompaTab::mainIsChosen() const {
    return chosenName() == view().mainName();
}

/// A person is known by name: another one of the main profile's name is taken for the same.
void FrmCompaTab::chooseProfile() {
    showResults(!mainIsChosen());
    if (mainIsChosen())
        return desktop().boxes.show(platform::BoxIcon::warning, std::string(text::sameProfile),
                                    std::string(text::errorInfoTitle));
    const std::string name = chosenName().toStdString();
    const bool readable = loadSecondProfile(desktop().files, name, record().second);
    if (!readable) return showResults(false); // nobody's figures are to stand under this name
    compare();
    storeSecondName(record().options, record().second, name);
    if (ui_->CheckPlot->isChecked())
        view().showSecondName(chosenName());
    else
        view().hideSecondName();
    view().mschart();
    turnTo(ui_->SSTab1->currentIndex());
}

void FrmCompaTab::showResults(bool visible) {
    for (QWidget* label : std::initializer_list<QWidget*>{ui_->LabelInfo, ui_->LabelFis, ui_->LabelEmo, ui_->LabelInte,
                                                          ui_->LabelIntu, ui_->hairline, ui_->LabelMedia})
        label->setVisible(visible);
}

void FrmCompaTab::compare() {
    SecondProfile& second = record().second;
    const BioViewState& shown = record().bioView;
    const base::CivilTime clock = base::civilTimeOf(desktop().clock.now());
    showLabels(ui_->SSTab1->currentIndex() == actualTab
                   ? showActual(compatibility_, second, shown.reading, clock)
                   : showGeneral(compatibility_, shown.birth.date, second.secondDate));
}

void FrmCompaTab::showLabels(const CompatibilityLabels& labels) {
    const std::array<QLabel*, cycleCount> cycles{ui_->LabelFis, ui_->LabelEmo, ui_->LabelInte, ui_->LabelIntu};
    for (std::size_t i = 0; i < cycleCount; ++i) cycles[i]->setText(QString::fromStdString(labels.cycles[i]));
    ui_->LabelMedia->setText(QString::fromStdString(labels.mean));
}

void FrmCompaTab::turnTo(int tab) {
    if (tab == exitTab) {
        close();
        return;
    }
    const std::string main = view().mainName().toStdString();
    const SecondProfile& second = record().second;
    const base::CivilTime clock = base::civilTimeOf(desktop().clock.now());
    ui_->LabelInfo->setText(QString::fromStdString(
        tab == actualTab ? actualHeading(main, second.profileSecondName, record().bioView.reading, clock)
                         : generalHeading(main, second.profileSecondName)));
    compare();
}

void FrmCompaTab::plotToggled(bool checked) {
    if (mainIsChosen()) return;
    SecondProfile& second = record().second;
    storeDrawSecond(record().options, second, checked);
    if (!checked)
        view().hideSecondName();
    else if (!second.profileSecondName.empty())
        view().showSecondName(qtText(second.profileSecondName));
    view().mschart();
}

} // namespace velmoriax::biorhythm
