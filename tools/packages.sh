# shellcheck shell=bash
# SPDX-License-Identifier: MIT
# The Debian packages that the project needs, and how a script makes sure that they are there.
# shellcheck disable=SC2034  # The lists are for the scripts that read this file.

build_packages=(
  cmake
  g++
  libbenchmark-dev
  libglib2.0-dev
  libgtest-dev
  libzip-dev
  ninja-build
  pkg-config
  python3
  qt6-base-dev
  qt6-multimedia-dev
  qt6-svg-dev
)

# The plug-ins play sound, music and video; the music needs a General MIDI sound font as well.
runtime_packages=(
  fonts-dejavu-core
  fonts-liberation
  gstreamer1.0-alsa
  gstreamer1.0-libav
  gstreamer1.0-plugins-bad
  gstreamer1.0-plugins-base
  gstreamer1.0-plugins-good
  gstreamer1.0-pulseaudio
  timgm6mb-soundfont
)

wayland_packages=(
  qt6-wayland
)

virtual_display_packages=(
  openbox
  xvfb
)

screenshot_packages=(
  imagemagick
  xdotool
)

# For tools/accessible_tree.py.
accessibility_packages=(
  at-spi2-core
  dbus
  gir1.2-atspi-2.0
  python3-gi
  xvfb
)

keyboard_packages=(
  x11-xkb-utils
  xdotool
)

fuzz_packages=(
  clang
)

fault_packages=(
  strace
)

lint_packages=(
  appstream
  clang-format
  clang-tidy
  cppcheck
  desktop-file-utils
  libxml2-utils
  shellcheck
  tidy
)

# What could not be looked up, on a system whose packages have other names.
unchecked_packages=()

package_is_installed() {
  dpkg-query --show --showformat='${db:Status-Status}\n' "$1" 2>/dev/null | grep --quiet '^installed$'
}

# Installs those of the named packages that are missing, or ends the script.
require_packages() {
  if ! command -v apt-get >/dev/null || ! command -v dpkg-query >/dev/null; then
    unchecked_packages+=("$@")
    return
  fi

  local missing=() package
  for package in "$@"; do
    package_is_installed "$package" || missing+=("$package")
  done
  if ((${#missing[@]} == 0)); then
    return
  fi

  local as_root=(env DEBIAN_FRONTEND=noninteractive)
  if ((EUID != 0)); then
    if ! command -v sudo >/dev/null; then
      echo "Packages are missing, and only root can install them: ${missing[*]}" >&2
      exit 1
    fi
    as_root=(sudo "${as_root[@]}")
  fi
  echo "Installing packages: ${missing[*]}"
  if ! "${as_root[@]}" apt-get update --quiet ||
    ! "${as_root[@]}" apt-get install --quiet --yes --no-install-recommends "${missing[@]}"; then
    echo "The packages could not be installed: ${missing[*]}" >&2
    exit 1
  fi
}

# Ends the script; where packages could not be looked up, they may be the reason.
give_up() {
  echo "$1" >&2
  if ((${#unchecked_packages[@]} > 0)); then
    echo "This system has no apt, so nothing was installed. Please install what Debian calls:" \
      "${unchecked_packages[*]}" >&2
  fi
  exit 1
}

# Builds one preset.
build_preset() {
  cmake --preset "$1" || give_up "The build could not be configured."
  cmake --build --preset "$1" || give_up "The build failed."
}
