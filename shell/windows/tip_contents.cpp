// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/windows/tip_contents.h"

namespace velmoriax::shell {

namespace {

base::CivilDate birthDate(const Process& process) {
    const auto& bio = process.record.bio;
    return {bio.birthYear, bio.birthMonth, bio.birthDay};
}

base::CivilDate today(const Process& process) {
    return base::civilDateOf(process.desktop.clock.now());
}

} // namespace

std::string balloonTextNow(Process& process) {
    return balloonText(birthDate(process), today(process), *process.tips);
}

PersonalTip personalTipNow(Process& process) {
    return personalTip(birthDate(process), today(process), *process.tips);
}

} // namespace velmoriax::shell
