#!/usr/bin/env bash
# Builds the Debian packages from the committed sources (a clean copy of
# HEAD, so local changes and build folders never leak in) into build/deb/:
# libquorveltask2-1.14, libquorveltask2qt1.14, libquorveltask2-dev, quorvel.
# Usage: scripts/package.sh        then: scripts/check-packages.sh
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/setup-deps.sh
out=build/deb
rm -rf "$out"
mkdir -p "$out/src"
git archive HEAD | tar -x -C "$out/src"
echo "Building the packages (log: $out/build.log)"
if ! (cd "$out/src" && DEB_BUILD_OPTIONS="noautodbgsym ${DEB_BUILD_OPTIONS:-}" dpkg-buildpackage -b -us -uc -Jauto) \
    >"$out/build.log" 2>&1; then
    tail -n 40 "$out/build.log"
    exit 1
fi
rm -rf "$out/src"
ls "$out"/*.deb
