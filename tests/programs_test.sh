#!/bin/sh
# SPDX-License-Identifier: MIT
# Starts both programs and ends them as the desktop does. Without a crossword, what they leave tells
# their language: the English one keeps the script that the Serbian one does not start with.
#     programs_test.sh PROGRAM_FOLDER
set -eu
programs=$1
folder=$(mktemp -d)
trap 'rm -r "$folder"' EXIT

expect() {
  cp "$programs/$1" "$folder"
  # On a busy machine it takes a program longer to listen to the desktop.
  for seconds in 0.5 2 8 30; do
    timeout --preserve-status "$seconds" "$folder/$1" && break
  done
  grep "$2" "$folder/m_kalvon_ini.txt"
  rm "$folder/m_kalvon_ini.txt"
}

expect kalvon Pismo:Latinica
expect kalvon-en Pismo:Cirilica
