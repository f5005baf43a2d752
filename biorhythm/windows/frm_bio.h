// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "biorhythm/alert_engine.h"
#include "biorhythm/bio_view.h"
#include "shell/windows/module_window.h"

#include <QTimer>

#include <functional>
#include <memory>

namespace Ui {
class frmBio;
}

namespace velmoriax::biorhythm {

class DateSteppers;
class ReadingArrows;

/// The Biorhythm view: birth, time of birth and date of reading on steppers; the four cycles as numbers, bars and
/// chart.
class frmBio : public shell::ModuleWindow {
    Q_OBJECT

public:
    explicit frmBio(shell::Process& process);
    ~frmBio() override;

    /// The view, while it is loaded.
    static frmBio* loadedIn(const shell::Process& process);

    /// Computes everything and shows it, the chart included.
    void calcBio();

    /// Draws the chart alone, for the age that was computed last.
    void mschart();

    // What the windows beside the view see and change of it.

    /// The text of the profile list: the main profile's name.
    QString mainName() const;
    QStringList profileNames() const;

    /// Fills the profile list anew after the file was edited. The person shown stays.
    void listProfilesAnew();

    void showSecondName(const QString& name);
    void hideSecondName();

protected:
    void ownLoad() override;
    void onHidden() override;
    void onMinimised(bool toSystray) override;
    void onUnload() override;
    bool event(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    BioViewState& view() const { return record().bioView; }

    void dress();
    void connectSteppers();
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

    std::unique_ptr<Ui::frmBio> ui_;
    std::unique_ptr<DateSteppers> birthSteppers_;
    std::unique_ptr<DateSteppers> readingSteppers_;
    ReadingArrows* arrows_;
    QTimer TimerBio_{this};
    int shownProfile_ = -1; ///< the entry of the profile list that was chosen last
};

} // namespace velmoriax::biorhythm
