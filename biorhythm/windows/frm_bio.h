// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "biorhythm/biorhythm_state.h"
#include "biorhythm/windows/profile_view.h"
#include "shell/windows/module_window.h"

#include <QTimer>

#include <functional>
#include <memory>

namespace Ui {
class frmBio;
}

namespace velmoriax::biorhythm {

class DateSpinBoxes;
class ReadingArrows;

/// The Biorhythm view: birth, time of birth and date of reading on spin boxes; the four cycles as numbers, bars and
/// chart.
class frmBio : public shell::ModuleWindow, public ProfileView {
    Q_OBJECT

public:
    using ProfileView::windowName;

    frmBio(shell::WindowContext& context, BiorhythmState& biorhythms);
    ~frmBio() override;

    /// Computes everything and shows it, the chart included.
    void calcBio();

    QString profileMainName() const override;
    QStringList profileNames() const override;
    void listProfilesAnew() override;
    void showSecondName(const QString& name) override;
    void hideSecondName() override;
    void mschart() override;
    QImage picture() override { return grab().toImage().convertToFormat(QImage::Format_RGB32); }

protected:
    void ownLoad() override;
    void onHidden() override;
    void onMinimised(bool toSystray) override;
    void onUnload() override;
    bool event(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    BioViewState& view() const { return biorhythms_.view; }

    void setUpControls();
    void connectDateBoxes();
    void connectTimeOfBirth();
    void connectReading();
    void connectProfiles();

    void showBirth();
    void showTimeControls(bool visible);
    void show(const BioShown& shown);
    void fillProfiles(const std::vector<std::string>& names, std::optional<std::size_t> selected);
    void showSecondAtLoad();

    void askTimeOfBirth();
    void takeTimeOfBirth();
    void takeTarget();
    void goToReading(base::CivilDate date);
    void stepReading(bool back);
    void pickProfile();
    void saveProfile();
    void editProfiles();
    void compareProfiles();
    void takeSnapshot();

    void alertByHand();
    void showHelp();
    void notify(const std::function<void(const AlertOutlets&)>& tell);
    void unloadBeside();

    BiorhythmState& biorhythms_;
    std::unique_ptr<Ui::frmBio> ui_;
    std::unique_ptr<DateSpinBoxes> birthBoxes_;
    std::unique_ptr<DateSpinBoxes> readingBoxes_;
    ReadingArrows* arrows_;
    QTimer TimerBio_{this};
    int shownProfile_ = -1; ///< the entry of the profile list that was chosen last
};

} // namespace velmoriax::biorhythm
