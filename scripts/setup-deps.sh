#!/usr/bin/env bash
# Installs the Debian packages the build needs, only those that are missing.
set -euo pipefail
pkgs=(cmake ninja-build g++ pkg-config libsqlite3-dev googletest libgtest-dev libgmock-dev
      libbenchmark-dev qt6-base-dev libgl-dev libenchant-2-dev libpoppler-cpp-dev hunspell-en-us xvfb xauth poppler-utils
      at-spi2-core python3-pyatspi dbus-x11
      clang libclang-rt-14-dev debhelper dpkg-dev lintian desktop-file-utils appstream
      postgresql libpq-dev
      openbox xdotool x11-utils imagemagick sqlite3)  # the keyboard walk under Xvfb
missing=()
for p in "${pkgs[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
if [ ${#missing[@]} -gt 0 ]; then
  echo "Installing: ${missing[*]}"
  SUDO=""; [ "$(id -u)" -eq 0 ] || SUDO="sudo"
  $SUDO apt-get update -qq
  DEBIAN_FRONTEND=noninteractive $SUDO apt-get install -y -qq "${missing[@]}" >/dev/null
fi
