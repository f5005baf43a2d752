// SPDX-License-Identifier: GPL-3.0-or-later
#include "biorhythm/windows/profile_combo.h"

#include "widgets/conversions.h"

#include <QComboBox>

namespace velmoriax::biorhythm {

void ProfileCombo::fill(const std::vector<std::string>& names, std::optional<std::size_t> selected) {
    QStringList texts;
    for (const std::string& name : names) texts << widgets::qtText(name);
    box_.clear();
    box_.addItems(texts);
    box_.setCurrentIndex(selected ? static_cast<int>(*selected) : -1);
    keepChoice();
    box_.setVisible(!names.empty());
}

void ProfileCombo::append(const std::string& name) {
    box_.addItem(widgets::qtText(name));
    box_.setCurrentIndex(box_.count() - 1);
    keepChoice();
    box_.show();
}

QString ProfileCombo::profileMainName() const {
    return box_.currentText();
}

QStringList ProfileCombo::names() const {
    QStringList names;
    for (int i = 0; i < box_.count(); ++i) names << box_.itemText(i);
    return names;
}

std::size_t ProfileCombo::count() const {
    return static_cast<std::size_t>(box_.count());
}

void ProfileCombo::keepChoice() {
    kept_ = box_.currentIndex();
}

void ProfileCombo::undoChoice() {
    box_.setCurrentIndex(kept_);
}

} // namespace velmoriax::biorhythm
