#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Builds the fuzz targets and runs each for some seconds, beginning with pieces of the samples:
#   tools/fuzz.sh SECONDS [TARGET...]
# An input that breaks a target stays in build/fuzz/found, and the script fails.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source tools/packages.sh

seconds=${1:?"the seconds for each target are missing"}
targets=("${@:2}")
((${#targets[@]} > 0)) ||
  targets=(crossword_file installments ipuz journal jpz media_pack picture puz settings xd)
corpus=build/fuzz/corpus
found=build/fuzz/found
samples=build/release/made_samples

# Joins files into one input that stands for all of them.
join() {
  local file
  cat "$1"
  for file in "${@:2}"; do
    printf '\0'
    cat "$file"
  done
}

# A medium's name, the table of a pack, and the pack.
pack_input() {
  printf '%s\0%s\0' "$1" "$(head -n 1 "$2.qvm")"
  head -c 20000 "$2.qvd"
}

# A crossword of three by three cells: the header, the grids, the texts, and a rebus.
puz_input() {
  printf '\0\0ACROSS&DOWN\0%10s2.0\0%16s\3\3\4\0\1\0\0\0' '' ''
  printf 'CATA.ORUN----.----title\0author\0\0one\0two\0three\0four\0note\0'
  printf 'GRBS\11\0\0\0\1\0\0\0\0\0\0\0\0\0RTBL\6\0\0\0 0:LJ;\0RUSR\13\0\0\0LJ\0\0\0\0\0\0\0\0\0\0'
}

xd_input() {
  printf '## Metadata\nTitle: x\nRebus: 1=LJ\nInstallments: 3 beside\nEntries: C.. .#. 1..\n'
  printf '## Grid\nCA1\nA#_\nR?N\n## Clues\nA1. {/x/} {@y|z@} {\\~\\} ~ CA LJ\nA1 ^Media: s.png\nD1. x // y\n'
  printf '## Design\nO { background: circle }\nO..\n## Start\nC..\n.#.\n...\n## Notes\nx\n'
}

make_seeds() {
  local target
  for target in "${targets[@]}"; do mkdir -p "$corpus/$target" "$found/$target"; done
  mkdir -p "$corpus"/{crossword_file,installments,ipuz,jpz,media_pack,picture,puz,settings,xd}
  cp "$samples"/*.qvm "$corpus/crossword_file"
  join "$samples"/zima100[123].qvm >"$corpus/installments/zima"
  join "$samples"/{leto1001,proba,leto1003}.qvm >"$corpus/installments/leto"
  local name
  for name in $(head -n 1 "$samples/zima1001.qvm" | grep -o '[a-z0-9_]*\.[a-z]\{3\}'); do
    pack_input "$name" "$samples/zima1001" >"$corpus/media_pack/$name"
  done
  cp tests/data/crosswords/*.ipuz "$corpus/ipuz"
  cp tests/data/crosswords/*.jpz "$corpus/jpz"
  cp src/shell/forms/pictures/*.bmp tests/data/bitmaps/*.bmp "$corpus/picture"
  puz_input >"$corpus/puz/seed"
  xd_input >"$corpus/xd/seed"
  printf 'Title: x\n\n\nCAT\nA.O\n\n\nA1. x ~ CAT ~ COT\n1. y\n\n\nnotes' >"$corpus/xd/plain"
  printf 'Vostrand Kalvon Multimedia\r\nStaza:c:\\home\r\nPismo:Latinica\r\nTastatura:Unikod\r\n' \
    >"$corpus/settings/settings"
}

# Prints a row of the table; fails if the target broke.
run_target() {
  local target=$1 log=build/fuzz/$1.log status=0
  build/fuzz/fuzz/fuzz-"$target" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=1500 \
    -max_len=40000 -print_final_stats=1 -artifact_prefix="$found/$target/" "$corpus/$target" >"$log" 2>&1 || status=$?
  local runs findings
  runs=$(grep -o 'number_of_executed_units: *[0-9]*' "$log" | grep -o '[0-9]*$')
  findings=$(find "$found/$target" -type f | wc -l)
  printf '| %-14s | %10s | %8s |\n' "$target" "$runs" "$findings"
  if ((status != 0)); then
    tail -n 40 "$log" >&2
    return 1
  fi
}
export -f run_target
export seconds found corpus

require_packages "${build_packages[@]}" "${fuzz_packages[@]}"
build_preset release
build_preset fuzz
make_seeds
# In memory, since a save waits for the disk.
[[ -d /dev/shm ]] && export TMPDIR=/dev/shm
export ASAN_OPTIONS=intercept_tls_get_addr=0
printf '| target         | executions | findings |\n|---|---|---|\n'
printf '%s\n' "${targets[@]}" | xargs -P "$(nproc)" -n 1 bash -c 'run_target "$@"' _
