// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "biorhythm/bio_state.h"
#include "platform/files.h"

/// The three small files of the person now shown: birth date, time of birth and target date. Each is one line of
/// integers between commas. Reading a file that is missing or malformed throws RunTimeError with the file's name: file
/// not found, input past its end (empty, too few numbers), type mismatch (words, further fields, dates and times that
/// do not exist) or overflow (beyond 16 bits). No number is corrected or rounded. A write that fails throws a path or
/// file access error and leaves the old content.
namespace velmoriax::biorhythm {

/// "bio.dat" into the birth date; years 1900 to 2100.
void loadBirth(const platform::Files& files, BioState& state);

/// "horabio.dat" into the time of birth.
void loadBirthTime(const platform::Files& files, BioState& state);

/// "biofinal.dat" into the target date; `today` when the file holds three zeros.
void loadFinalDate(const platform::Files& files, BioState& state, base::CivilDate today);

/// Sets the birth and the target date in `state` and writes "bio.dat", "biofinal.dat" and "horabio.dat", in this order.
void saveBioState(platform::Files& files, BioState& state, const base::CivilMoment& birth, base::CivilDate target);

/// Sets the time of birth in `state` and writes only "horabio.dat".
void saveBirthTime(platform::Files& files, BioState& state, base::CivilTime time);

/// For the first start: writes each of the three files that is missing, with the values that mean "not set". A file
/// that exists is not changed, whatever it holds.
void createMissingProfileFiles(platform::Files& files);

} // namespace velmoriax::biorhythm
