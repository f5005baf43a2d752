// SPDX-License-Identifier: GPL-3.0-or-later
#include "biorhythm/second_profile.h"

#include "biorhythm/cycle_engine.h"
#include "biorhythm/profile_store.h"

namespace velmoriax::biorhythm {

void readDrawSecond(shell::OptionsStore& options, SecondProfile& second) {
    second.drawSecondFlag = options.leerDibujarSecundario() == "1";
}

void readSecondProfile(const platform::Files& files, shell::OptionsStore& options, SecondProfile& second) {
    readDrawSecond(options, second);
    second.profileSecondName = options.leerNombreSecundario();
    if (second.drawSecondFlag && !second.profileSecondName.empty())
        loadSecondProfile(files, second.profileSecondName, second);
}

bool loadSecondProfile(const platform::Files& files, std::string_view name, SecondProfile& second) {
    const auto birth = findProfile(files, name);
    if (!birth) return false;
    second.secondDate = birth->date;
    second.secondTime = birth->time;
    return true;
}

void storeSecondName(shell::OptionsStore& options, SecondProfile& second, const std::string& name) {
    options.setOption(shell::key::nombreSecundario, name);
    second.profileSecondName = name;
}

void storeDrawSecond(shell::OptionsStore& options, SecondProfile& second, bool draw) {
    options.setOption(shell::key::dibujarSecundario, draw ? "1" : "0");
    second.drawSecondFlag = draw;
}

void computeSecondLived(SecondProfile& second, base::CivilDate reading, base::CivilTime clock) {
    const Lived age = livedOf({second.secondDate, second.secondTime}, reading, clock);
    second.secondWholeDays = age.wholeDays;
    second.secondMinutesLeft = age.minutesLeftAtBirth;
    second.secondLivedAtMidnight = age.livedAtMidnight;
    second.secondLived = age.lived;
}

} // namespace velmoriax::biorhythm
