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
class ProfileCombo;
class ReadingArrows;

/// The Biorhythm view: birth date, time of birth and date of reading in spin boxes; the four cycles as numbers, bars
/// and chart.
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
    void reloadProfiles() override;
    void showSecondName(const QString& name) override;
    void hideSecondName() override;
    void mschart() override;
    QImage picture() override { return grab().toImage().convertToFormat(QImage::Format_RGB32); }

protected:
    void ownLoad() override;
    void onHandOver() override;
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
    void showSecondAtLoad();

    void askTimeOfBirth();
    void takeTimeOfBirth();
    void takeBirth(base::CivilDate date);
    void takeReading(base::CivilDate date);
    void takeTarget();
    void goToReading(base::CivilDate date);
    void pickProfile();
    void saveProfile();
    void editProfiles();
    void compareProfiles();
    void takeSnapshot();

    void alertByHand();
    void showHelp();
    void withNotificationClosed(const std::function<void(const AlertOutlets&)>& show);
    void save();
    void unloadDependentWindows();

    BiorhythmState& biorhythms_;
    std::unique_ptr<Ui::frmBio> ui_;
    std::unique_ptr<DateSpinBoxes> birthBoxes_;
    std::unique_ptr<DateSpinBoxes> readingBoxes_;
    std::unique_ptr<ProfileCombo> profiles_;
    ReadingArrows* arrows_;
    QTimer TimerBio_{this};
};

} // namespace velmoriax::biorhythm
