// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/date_value.h"

#include <QDate>
#include <QString>

#include <string_view>

/// Conversions between texts and dates of the layers below and those of the toolkit.
namespace velmoriax::widgets {

inline QString qtText(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

inline QDate qtDate(base::CivilDate date) {
    return {date.year, date.month, date.day};
}

inline base::CivilDate civilDate(QDate date) {
    return {date.year(), date.month(), date.day()};
}

} // namespace velmoriax::widgets
