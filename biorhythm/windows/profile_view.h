// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QString>
#include <QStringList>

#include <string_view>

namespace velmoriax::biorhythm {

/// The Biorhythm view, as the windows beside it see and change it.
class ProfileView {
public:
    static constexpr std::string_view windowName = "frmBio";

    virtual ~ProfileView() = default;

    /// The text of the profile list: the main profile's name.
    virtual QString profileMainName() const = 0;
    virtual QStringList profileNames() const = 0;

    /// Fills the profile list anew after the file was edited. The person shown stays.
    virtual void listProfilesAnew() = 0;

    virtual void showSecondName(const QString& name) = 0;
    virtual void hideSecondName() = 0;

    /// Draws the chart alone, for the age that was computed last.
    virtual void mschart() = 0;

    /// The view in the pixels of its screen.
    virtual QImage picture() = 0;
};

} // namespace velmoriax::biorhythm
