#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# authoring_test.sh PAGE PROGRAM_FOLDER MEDIA: what the page tells an author to do makes a whole
# crossword, which gives the author's text back. The page's last command tells of the media that it
# leaves behind, and nothing else is told.
set -euo pipefail
page=$1 media=$3
scratch=$(mktemp --directory)
trap 'rm -r "$scratch"' EXIT
export PATH="$2:$PATH"

blocks() {
  sed --quiet "/^\`\`\`$1\$/,/^\`\`\`\$/{/^\`\`\`/!p}" "$page"
}

mkdir "$scratch/media"
blocks xd >"$scratch/mala.xd"
blocks text >"$scratch/media/metar.txt"
blocks sh >"$scratch/commands"
cp "$media/ton.wav" "$scratch/media/zvono.wav"
# One pixel of a colour that can be looked through.
base64 --decode >"$scratch/media/zemlja.png" <<'PICTURE'
iVBORw0KGgoAAAANSUhEUgAAAAEAAAABCAYAAAAfFcSJAAAADUlEQVR42mNkYPhfDwAChwGA60e6kgAAAABJRU5ErkJggg==
PICTURE
cd "$scratch"
bash -eu commands 2>remarks
diff - remarks <<<'mala.qvm: Of a multimedia clue the text alone is left (3×)'

kalvon-convert mala.qvm again.xd --media again
sed --in-place 's/zemlja.bmp/zemlja.png/' again.xd
diff mala.xd again.xd
diff media/metar.txt again/metar.txt
cmp media/zvono.wav again/zvono.wav
[[ $(head --bytes 2 again/zemlja.bmp) == BM ]]
grep 'Мала укрштеница' mala.ipuz | grep --quiet 'Трећа планета'
