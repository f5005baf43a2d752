# SPDX-License-Identifier: GPL-3.0-or-later
# What the tests on the real desktop share. To be sourced by a script that runs on a virtual desktop and gets the
# built program folder as its first argument. Each test works on a copy of that folder, with a home folder of its own.

set -euo pipefail

program_folder=$(mktemp -d)
cp -r "$1/." "$program_folder"
find "$program_folder" -maxdepth 1 \( -name '*.ini' -o -name '*.dat' -o -name 'perfiles.txt' \) -delete
rm -rf "$program_folder/logs"
export HOME="$program_folder/home" XDG_CONFIG_HOME="$program_folder/home/.config"
unset XDG_DATA_HOME
mkdir -p "$HOME"
# options LINES: the options file of a test. Alerts are off and a birth date is set, so that no notification covers
# what a test examines, unless the test asks for one.
options() {
  printf '[opciones]\r\nNivel Alertas=None\r\n%b' "$1" > "$program_folder/opciones.ini"
}
options ''
printf '15,3,1980\r\n' > "$program_folder/bio.dat"

# The first key of a new server changes the keyboard, and the window manager then grabs its keys again: it misses a key that
# is pressed in that moment.
xdotool key Shift_L
sleep 0.3

program=''
panel='' # the panel that a test starts by itself

cleanup() {
  stop_program
  end_panel
  rm -rf "$program_folder"
}
trap cleanup EXIT

fail() {
  echo "FAILED: $*" >&2
  import -window root "${TEST_PICTURE:-/tmp/velmoriax-failed.png}" 2> /dev/null || true
  exit 1
}

start_program() {
  "$program_folder/Velmoriax" &
  program=$!
}

stop_program() {
  [ -z "$program" ] && return
  kill "$program" 2> /dev/null || true
  wait "$program" 2> /dev/null || true
  program=''
}

end_panel() {
  [ -z "$panel" ] && return
  kill "$panel" 2> /dev/null || true
  wait "$panel" 2> /dev/null || true
  panel=''
}

is_running() { kill -0 "$program" 2> /dev/null; }

# wait_for SECONDS COMMAND...: until the command succeeds.
wait_for() {
  local tries=$(($1 * 20)); shift
  for ((i = 0; i < tries; ++i)); do
    "$@" > /dev/null 2>&1 && return 0
    sleep 0.05
  done
  return 1
}

# The program's windows as the window manager knows them, one title a line.
window_titles() {
  local id
  for id in $(xprop -root _NET_CLIENT_LIST | grep -o '0x[0-9a-f]*'); do
    xprop -id "$id" WM_CLASS 2> /dev/null | grep -q Velmoriax || continue
    xprop -id "$id" _NET_WM_NAME 2> /dev/null | sed 's/^[^"]*"\(.*\)"$/\1/'
  done
}

# grep reads to the end: one that exits early would end window_titles with a broken pipe, which counts as a failure.
has_window() { window_titles | grep -x "$1" > /dev/null; }
window_is() { [ "$(window_titles)" = "$1" ]; }
no_window() { [ -z "$(window_titles)" ]; }
press_in() { # TITLE KEY: focuses the window, as a user does before typing
  xdotool windowactivate --sync "$(window_id "$1")"
  sleep 0.3
  xdotool key --clearmodifiers "$2"
}
window_id() { xdotool search --onlyvisible --name "^$1\$" | head -n 1; }

# How many icons the panel shows: small windows of the program inside the panel's.
tray_icons() { xwininfo -root -tree | grep -cE '"Velmoriax" "Velmoriax"\) +[0-9]{2}x[0-9]{2}\+' || true; }
one_icon() { [ "$(tray_icons)" = 1 ]; }
no_icon() { [ "$(tray_icons)" = 0 ]; }

# What the window manager does not know: tips, menus, the notification. "TITLE WxH+X+Y" each.
popups() {
  xwininfo -root -children |
    sed -nE 's/^ +0x[0-9a-f]+ "([^"]*)": \("Velmoriax" "Velmoriax"\) +([0-9]+x[0-9]+)\+[^ ]* +(\+[^ ]*)$/\1 \2\3/p'
}

# Where the icon is: "X Y" of its middle.
icon_place() {
  xwininfo -root -tree | grep -E '"Velmoriax" "Velmoriax"\) +[0-9]{2}x[0-9]{2}\+' |
    sed -E 's/.* ([0-9]+)x([0-9]+)\+[^ ]* +\+([0-9]+)\+([0-9]+).*/\1 \2 \3 \4/' |
    awk '{ print int($3 + $1 / 2), int($4 + $2 / 2) }'
}

click_icon() { # BUTTON
  # shellcheck disable=SC2046
  xdotool mousemove $(icon_place) click "$1"
}

# answer_box TITLE: closes a box by its default button.
answer_box() {
  xdotool windowactivate --sync "$(window_id "$1")" 2> /dev/null || xdotool windowfocus "$(window_id "$1")"
  sleep 0.2
  xdotool key --clearmodifiers Return
}
