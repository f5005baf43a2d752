// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

/// The texts of the message boxes that the windows of the biorhythms show.
namespace velmoriax::biorhythm::text {

inline constexpr std::string_view birthTimeAdvice =
    "If you know your time of birth put it (Biorhythms will be more accurate), if not leave it to 12:00.";

inline constexpr std::string_view errorInfoTitle = "Error-Info";
inline constexpr std::string_view tooFewProfiles = "To use this feature must be more than one saved profile";
inline constexpr std::string_view sameProfile = "You should choose a different profile that the main";

inline constexpr std::string_view chooseRecordTitle = "ErrorInfo"; ///< without the hyphen of the other boxes
inline constexpr std::string_view chooseRecord = "You must choose a record";
inline constexpr std::string_view recordNotReplaced = "The working copy of the list is gone or cannot be written, so "
                                                      "the old record could not be replaced. The changed one "
                                                      "was added to the list; the old one can be deleted there.";

inline constexpr std::string_view snapshotSaved =
    "The picture has been saved in the application folder as mysnap.jpg"; ///< shown before the picture is written
inline constexpr std::string_view encoderErrorTitle = "Encoder Error";
inline constexpr std::string_view noEncoder =
    "Konnte keinen passenden Encoder ermitteln."; ///< in German, as users know it

} // namespace velmoriax::biorhythm::text
