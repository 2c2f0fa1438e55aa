#!/usr/bin/env bash
# Installs the Debian packages the build needs, only those that are missing.
set -euo pipefail
pkgs=(cmake ninja-build g++ pkg-config libsqlite3-dev googletest libgtest-dev libgmock-dev
      libbenchmark-dev qt6-base-dev libgl-dev libenchant-2-dev libpoppler-cpp-dev hunspell-en-us xvfb xauth poppler-utils
      at-spi2-core python3-pyatspi dbus-x11
      clang libclang-rt-14-dev debhelper dpkg-dev lintian desktop-file-utils appstream
      postgresql libpq-dev libical-dev
      openbox xdotool x11-utils imagemagick sqlite3  # the keyboard walk under Xvfb
      gettext python3 locales qt6-translations-l10n)  # catalogues, their help check, and the German locale their tests run in
# Test tools that read the exported calendar files: their tests skip where
# these are missing, and a failed install of them stops nothing.
optional=(python3-icalendar todoman)
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
# The German locale, for the runs that check the German catalogue.
if ! locale -a 2>/dev/null | grep -qi '^de_DE\.utf-\?8$'; then
  SUDO=""; [ "$(id -u)" -eq 0 ] || SUDO="sudo"
  $SUDO localedef -i de_DE -f UTF-8 de_DE.UTF-8 || echo "Could not make the locale de_DE.UTF-8"
fi
optional_missing=()
for p in "${optional[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || optional_missing+=("$p")
done
if [ ${#optional_missing[@]} -gt 0 ]; then
  SUDO=""; [ "$(id -u)" -eq 0 ] || SUDO="sudo"
  DEBIAN_FRONTEND=noninteractive $SUDO apt-get install -y -qq "${optional_missing[@]}" >/dev/null ||
    echo "Not installed (optional test tools): ${optional_missing[*]}"
fi
