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
  targets=(crossword_file installments ipuz journal jpz media_pack picture settings)
corpus=build/fuzz/corpus
found=build/fuzz/found

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

make_seeds() {
  local target
  for target in "${targets[@]}"; do mkdir -p "$corpus/$target" "$found/$target"; done
  mkdir -p "$corpus"/{crossword_file,installments,ipuz,jpz,media_pack,picture,settings}
  cp samples/*.qvm "$corpus/crossword_file"
  join samples/zima100[123].qvm >"$corpus/installments/zima"
  join samples/leto1001.qvm samples/proba.qvm samples/leto1003.qvm >"$corpus/installments/leto"
  local name
  for name in $(head -n 1 samples/zima1001.qvm | grep -o '[a-z0-9_]*\.[a-z]\{3\}'); do
    pack_input "$name" samples/zima1001 >"$corpus/media_pack/$name"
  done
  cp tests/data/crosswords/*.ipuz "$corpus/ipuz"
  cp tests/data/crosswords/*.jpz "$corpus/jpz"
  cp src/shell/forms/pictures/*.bmp tests/data/bitmaps/*.bmp "$corpus/picture"
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
build_preset fuzz
make_seeds
# In memory, since a save waits for the disk.
[[ -d /dev/shm ]] && export TMPDIR=/dev/shm
export ASAN_OPTIONS=intercept_tls_get_addr=0
printf '| target         | executions | findings |\n|---|---|---|\n'
printf '%s\n' "${targets[@]}" | xargs -P "$(nproc)" -n 1 bash -c 'run_target "$@"' _
