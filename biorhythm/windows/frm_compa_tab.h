// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "biorhythm/biorhythm_state.h"
#include "biorhythm/compatibility.h"
#include "shell/windows/secondary_window.h"

#include <memory>

namespace Ui {
class FrmCompaTab;
}

namespace velmoriax::biorhythm {

class ProfileView;

/// Compares the main profile with a second one, on the date of reading and for all time, and sets whether the chart of
/// the view draws the second one.
class FrmCompaTab : public shell::SecondaryWindow {
    Q_OBJECT

public:
    static constexpr std::string_view windowName = "FrmCompaTab";

    FrmCompaTab(shell::WindowContext& context, BiorhythmState& biorhythms);
    ~FrmCompaTab() override;

    void load() override;

protected:
    void onUnload() override;

private:
    enum Tab { actualTab, generalTab, exitTab };

    QString profileMainName() const;
    QString chosenName() const;
    bool mainIsChosen() const;

    void listProfiles(const ProfileView& view);
    void chooseStoredProfile();
    void chooseProfile();
    void showResults(bool visible);
    void compare();
    void showLabels(const CompatibilityLabels& labels);
    void turnTo(int tab);
    void plotToggled(bool checked);
    void showSecondName(bool visible, const QString& name);
    void drawChart();

    BiorhythmState& biorhythms_;
    std::unique_ptr<Ui::FrmCompaTab> ui_;
    Compatibility compatibility_;
};

} // namespace velmoriax::biorhythm
