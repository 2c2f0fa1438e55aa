#!/usr/bin/env bash
# Writes debian/<package>.symbols for the two shared libraries from the
# packages scripts/package.sh built into build/deb/: C++ symbols by their
# demangled names, with the weak ones (inline functions and template
# instances, which another compiler may not emit) optional. Run it after a
# change to the libraries' interface, then build the packages again.
set -euo pipefail
cd "$(dirname "$0")/.."
version=$(dpkg-parsechangelog -S Version | sed 's/-.*//')
tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT
for pkg in libquorveltask2-1.14 libquorveltask2qt1.14; do
    dpkg-deb -x build/deb/${pkg}_*.deb "$tmp/$pkg"
    lib=$(find "$tmp/$pkg" -name 'libQuorvelTask2*.so.*' -type f | head -n 1)
    soname=$(objdump -p "$lib" | awk '/SONAME/ { print $2 }')
    weak=$(nm -D --defined-only "$lib" | awk '$2 ~ /^[VWvw]$/ { print $3 }' | sort -u)
    {
        echo "$soname $pkg #MINVER#"
        echo "* Build-Depends-Package: libquorveltask2-dev"
        nm -D --defined-only "$lib" | awk '$2 ~ /^[A-Za-z]$/ && $3 !~ /^_(init|fini)$/ { print $3 }' | sort -u |
            while read -r sym; do
                tags="c++"
                grep -qxF "$sym" <<<"$weak" && tags="c++|optional"
                if [[ $sym == _Z* ]]; then
                    printf ' (%s)"%s@Base" %s\n' "$tags" "$(c++filt "$sym")" "$version"
                else
                    printf ' %s@Base %s\n' "$sym" "$version"
                fi
            done
    } >"debian/$pkg.symbols"
    echo "debian/$pkg.symbols: $(($(wc -l <"debian/$pkg.symbols") - 2)) symbols"
done
