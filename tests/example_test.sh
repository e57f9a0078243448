#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# example_test.sh EXAMPLE CROSSWORD: on a copy of it, the example prints the clues and adds a letter.
set -euo pipefail
scratch=$(mktemp --directory)
trap 'rm -r "$scratch"' EXIT
cp "$2" "$scratch/kopija.qvm"
"$1" "$scratch/kopija.qvm" >"$scratch/clues"
clues=$(tail -n +10 "$2" | grep -oE '^0[01]{2}' | cut -c2- | tr -d '0\n' | wc -c)
[[ $(wc -l <"$scratch/clues") == "$clues" ]]
[[ $(stat -c %s "$scratch/kopija.qvm") == $(($(stat -c %s "$2") + 1)) ]]
