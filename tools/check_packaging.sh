#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Checks the files of packaging/: each by its own linter, and that they name each other rightly.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

metainfo=packaging/rs.vostrand.kalvon.metainfo.xml
status=0

complain() {
  echo "$1" >&2
  status=1
}

# The texts that an XPath finds in the description, one a line.
described() {
  xmllint --xpath "$1" "$metainfo" | sort
}

# The values of a key in the menu entries.
entered() {
  sed --quiet "s/^$1=//p" packaging/*.desktop | sort
}

expect_same() {
  [[ $2 == "$3" ]] || complain "$1: '$2' is not '$3'"
}

xmllint --noout packaging/*.svg packaging/*.xml || status=1
# The validator is content with warnings; this check is not.
report=$(desktop-file-validate packaging/*.desktop 2>&1) || status=1
[[ -z $report ]] || complain "$report"
appstreamcli validate --no-net --explain packaging/*.xml || status=1

expect_same "Launchables and menu entries" "$(described '//launchable/text()')" \
  "$(cd packaging && printf '%s\n' *.desktop | sort)"
expect_same "Binaries and commands" "$(described '//binary/text()')" "$(entered Exec)"
expect_same "Release and project version" "$(described '//release[1]/@version')" \
  " version=\"$(sed --quiet 's/^ *VERSION \([0-9.]*\)$/\1/p' CMakeLists.txt)\""
for icon in $(entered Icon); do
  [[ -e packaging/$icon.svg ]] || complain "No picture for the icon '$icon'"
done

exit "$status"
