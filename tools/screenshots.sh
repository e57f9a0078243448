#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Renews the pictures of the manual and of the README: starts the built program on a display of its
# own, uses it by mouse and keys, and keeps what its windows hold.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source tools/packages.sh

pictures=$PWD/manual/slike
built=$PWD/build/release/program/kalvon
# Its name is seen in the pictures, so it is always the same.
scratch=${TMPDIR:-/tmp}/ukrstenice

started=()
stop_all() {
  local i
  for ((i = ${#started[@]} - 1; i >= 0; i--)); do
    kill "${started[i]}" 2>/dev/null || true
    wait "${started[i]}" 2>/dev/null || true
  done
  rm -r "$scratch"
}

start_display() {
  Xvfb -displayfd 3 -screen 0 1024x768x24 3>"$scratch/display" 2>"$scratch/log" &
  started+=($!)
  wait_until "the display" test -s "$scratch/display"
  DISPLAY=:$(<"$scratch/display")
  export DISPLAY
  openbox &>/dev/null &
  started+=($!)
}

# Repeats a command until it succeeds.
wait_until() {
  local what=$1 attempt
  shift
  for ((attempt = 0; attempt < 100; attempt++)); do
    if "$@" >/dev/null 2>&1; then
      return
    fi
    sleep 0.1
  done
  give_up "Waited in vain for $what."
}

# The frame of a window carries no name, so the name finds its content.
find_window() {
  window=$(xdotool search --onlyvisible --name "$1" | tail -1)
  [[ -n $window ]]
}

use_window() {
  wait_until "the window $1" find_window "$1"
  sleep 0.5
}

use_main_window() {
  use_window '^Vostrand KALVON'
}

# The pauses are for the program to paint: nothing tells from outside when it is done.
press() {
  xdotool mousemove --window "$window" "$1" "$2" click "${3:-1}"
  sleep 0.3
}

keys() {
  xdotool key --delay 60 "$@"
  sleep 0.4
}

# Clicks a cell of the view, by its column and row.
press_cell() {
  press $((200 + 28 * $1 - 14)) $((44 + 28 * $2 - 14))
}

picture() {
  import -window "$window" -strip -colors 256 "PNG8:$pictures/$1.png"
  echo "$1.png"
}

start_program() {
  local script=$1
  printf '%s\r\n' 'Vostrand Kalvon Multimedia' "Staza:c:${scratch//\//\\}" "Pismo:$script" \
    'Tastatura:YU ASCII' >"$scratch/m_kalvon_ini.txt"
  "$scratch/kalvon" 2>"$scratch/log" &
  program=$!
  started+=("$program")
  use_main_window
}

# Opens the dialog and goes down its list to a crossword.
choose_crossword() {
  local file
  keys alt+u
  use_window '^Ucitavanje'
  for file in "$scratch"/*.qvm; do
    [[ ${file##*/} != "$1" ]] || return 0
    keys Down
  done
  give_up "There is no crossword $1."
}

load_chosen() {
  keys Return
  sleep 1
  use_main_window
}

close_program() {
  keys alt+k
  wait "$program" || give_up "The program did not end well: $(<"$scratch/log")"
}

# Selects a word, across or down, by its first cell. After a load the direction is across, and a
# second click on the same cell turns it.
select_down() {
  press_cell "$1" "$2"
  press_cell "$1" "$2"
}

# Words across, as they are typed under YU ASCII: column and row of the first cell, letters. None
# begins in the word before it, which would turn the direction.
solve_half() {
  local column row letters i key names
  while read -r column row letters; do
    names=()
    for ((i = 0; i < ${#letters}; i++)); do
      key=${letters:i:1}
      names+=("${key_names[$key]:-$key}")
    done
    press_cell "$column" "$row"
    keys "${names[@]}" Return
  done <<'WORDS'
11 1 baza
9 3 poqubac
3 4 ikra
8 4 savet
1 5 nokat
7 5 meda
1 6 atar
1 7 nora
4 8 xada
2 9 irig
7 9 reka
2 10 du}an
1 13 novisad
9 13 uro{
9 14 qudi
2 15 adam
WORDS
}
declare -A key_names=(['{']=braceleft ['}']=braceright)

take_title() {
  start_program Latinica
  picture naslov
  close_program
}

take_loading_solving_and_options() {
  start_program Latinica
  choose_crossword velika.qvm
  picture ucitavanje
  load_chosen
  solve_half
  select_down 7 5
  picture resavanje
  keys alt+s alt+o
  use_window '^Opcije'
  picture opcije
  keys alt+d
  use_main_window
  close_program
}

# Of the crossword that was saved half solved.
take_cyrillic() {
  start_program Cirilica
  choose_crossword velika.qvm
  load_chosen
  select_down 7 5
  picture cirilica
  close_program
}

# The clues stand at the head of their lists once their words are selected.
take_media() {
  start_program Latinica
  choose_crossword velika.qvm
  load_chosen
  select_down 1 11
  press 60 278 3
  picture slika
  press 60 400
  press_cell 10 12
  press_cell 10 12
  press 60 52 3
  sleep 1
  picture video
  close_program
}

take_installments() {
  start_program Latinica
  choose_crossword leto1001.qvm
  load_chosen
  picture nastavci
  close_program
}

require_packages "${virtual_display_packages[@]}" "${screenshot_packages[@]}"
[[ -x $built ]] || give_up "Build the program first: ./run, or the preset release."
export XDG_STATE_HOME=$scratch/state XDG_CONFIG_HOME=$scratch/config
mkdir "$scratch" || give_up "$scratch is in the way: it has to be made here."
trap stop_all EXIT
cp "$built" build/release/made_samples/* "$scratch"
mkdir -p "$pictures"
start_display
take_title
take_loading_solving_and_options
take_cyrillic
take_media
take_installments
cp "$pictures/resavanje.png" docs/pictures/solving.png
