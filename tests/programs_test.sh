#!/bin/sh
# SPDX-License-Identifier: MIT
# programs_test.sh PROGRAM_FOLDER: each program, ended by the desktop, leaves its own script behind,
# the English one only if there is none.
set -eu
programs=$1
folder=$(mktemp -d)
export XDG_STATE_HOME="$folder/state" XDG_CONFIG_HOME="$folder/config"
trap 'rm -r "$folder"' EXIT

expect() {
  cp "$programs/$1" "$folder"
  # On a busy machine it takes a program longer to listen to the desktop.
  for seconds in 0.5 2 8 30; do
    timeout --preserve-status "$seconds" "$folder/$1" && break
  done
  grep "$2" "$folder/m_kalvon_ini.txt"
}

expect kalvon-en Pismo:Cirilica
rm "$folder/m_kalvon_ini.txt"
expect kalvon Pismo:Latinica
expect kalvon-en Pismo:Latinica
