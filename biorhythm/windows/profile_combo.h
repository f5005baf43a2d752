// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

#include <optional>
#include <string>
#include <vector>

class QComboBox;

namespace velmoriax::biorhythm {

/// The names of the saved profiles in a combo box, which is hidden while there are none.
class ProfileCombo {
public:
    explicit ProfileCombo(QComboBox& box) : box_(box) {}

    /// Replaces the names and selects one of them, or none.
    void fill(const std::vector<std::string>& names, std::optional<std::size_t> selected);

    /// Adds a name at the end and selects it.
    void append(const std::string& name);

    /// The text of the combo box: the main profile's name.
    QString profileMainName() const;
    QStringList names() const;
    std::size_t count() const;

    /// After a choice of the user: it is kept, or the entry that was selected before is selected again.
    void keepChoice();
    void undoChoice();

private:
    QComboBox& box_;
    int kept_ = -1; ///< the entry that was selected last and kept
};

} // namespace velmoriax::biorhythm
