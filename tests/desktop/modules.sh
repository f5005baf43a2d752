# SPDX-License-Identifier: GPL-3.0-or-later
# The titles of the six modules, and the keys that switch between them. To be sourced after lib.sh.

declare -A title=(
  [card]='The Card of Day...' [other]='Another Day...' [oracle]=ORACLE [names]=Names [numbers]=Numbers [bio]=Biorhythms)

# The keys that open another module: a shortcut, or a menu and the index of its entry (from 0).
declare -A way=(
  [card:bio]='alt+b' [card:oracle]='alt+o' [card:numbers]='alt+n' [card:names]='alt+a' [card:other]='alt+d'
  [other:card]='alt+t' [other:names]='alt+a' [other:numbers]='alt+n' [other:oracle]='alt+o' [other:bio]='alt+b'
  [numbers:bio]='alt+v 0' [numbers:oracle]='alt+v 1' [numbers:card]='alt+v 2' [numbers:other]='alt+v 3'
  [numbers:names]='alt+v 4'
  [names:bio]='alt+v 0' [names:card]='alt+v 1' [names:numbers]='alt+v 2' [names:other]='alt+v 3' [names:oracle]='alt+v 4'
  [oracle:bio]='alt+v 0' [oracle:card]='alt+v 1' [oracle:numbers]='alt+v 2' [oracle:other]='alt+v 3'
  [oracle:names]='alt+v 4'
  [bio:names]='alt+g 0' [bio:oracle]='alt+g 1' [bio:card]='alt+g 2' [bio:other]='alt+g 3' [bio:numbers]='alt+g 4')

press() { # KEY [DOWN_COUNT]
  xdotool key --clearmodifiers "$1"
  [ $# -gt 1 ] || return 0
  sleep 0.3
  for ((down = 0; down < $2; ++down)); do xdotool key Down; done
  xdotool key Return
}

go() { # FROM TO
  local id
  id=$(window_id "${title[$1]}")
  xdotool windowactivate --sync "$id" 2> /dev/null || xdotool windowfocus "$id"
  sleep 0.1
  # shellcheck disable=SC2086
  press ${way[$1:$2]}
  wait_for 5 window_is "${title[$2]}" || fail "$1 to $2: the windows are: $(window_titles)"
  wait_for 5 one_icon || fail "$1 to $2: $(tray_icons) icons in the tray"
}
