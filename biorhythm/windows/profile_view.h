// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QString>
#include <QStringList>

#include <string_view>

namespace velmoriax::biorhythm {

/// What the other windows of the biorhythms need of the Biorhythm view.
class ProfileView {
public:
    static constexpr std::string_view windowName = "frmBio";

    virtual ~ProfileView() = default;

    /// The main profile's name, as the list of names shows it; empty when none is selected.
    virtual QString profileMainName() const = 0;
    virtual QStringList profileNames() const = 0;

    /// Reads the names from the file again after it was edited. The dates of the view are not changed.
    virtual void reloadProfiles() = 0;

    /// Show the second profile's name, or hide it.
    virtual void showSecondName(const QString& name) = 0;
    virtual void hideSecondName() = 0;

    /// Draws only the chart, for the age that was computed last.
    virtual void mschart() = 0;

    /// A picture of the view at the resolution of its screen.
    virtual QImage picture() = 0;
};

} // namespace velmoriax::biorhythm
