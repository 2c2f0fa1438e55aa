#!/usr/bin/env bash
# Checks the packages that scripts/package.sh built into build/deb/: the
# desktop entry and the AppStream metainfo validate, lintian finds no error
# and no warning, each package holds what it should, and the packages
# install into an empty root, where the installed program makes a store,
# the installed driver runs an example, and the smallest host builds
# against the installed -dev package and runs.
set -euo pipefail
cd "$(dirname "$0")/.."
deb=build/deb
fail() { echo "FAILED: $*" >&2; exit 1; }

desktop-file-validate share/applications/*.desktop
appstreamcli validate --no-net share/metainfo/*.metainfo.xml
echo
lintian --fail-on error,warning "$deb"/*.changes
# Pedantic: every shared library has its symbols file, the metainfo its id.
pedantic=$(lintian -I --pedantic --tag-display-limit 0 "$deb"/*.changes | grep -E 'symbols|appstream|metainfo' || true)
[ -z "$pedantic" ] || { echo "$pedantic"; fail "lintian --pedantic on the symbols or the AppStream id"; }

has() {  # has PACKAGE PATH-REGEX
    local files
    files=$(dpkg-deb -c "$deb/$1"_*.deb)
    grep -Eq " \./$2( -> .*)?\$" <<<"$files" || fail "$1 lacks $2"
}
lib='usr/lib/[^/]+'
has libquorveltask2-1.14 "$lib/libQuorvelTask2\.so\.1\.14"
has libquorveltask2qt1.14 "$lib/libQuorvelTask2Qt\.so\.1\.14"
has libquorveltask2-dev "$lib/libQuorvelTask2\.so"
has libquorveltask2-dev "$lib/libQuorvelTask2Qt\.so"
has libquorveltask2-dev "usr/include/quorvel/clsTask2\.h"
has libquorveltask2-dev "usr/include/quorvel/session/clsTask2\.h"
has libquorveltask2-dev "$lib/cmake/QuorvelTask2/QuorvelTask2Config\.cmake"
has libquorveltask2-dev "$lib/pkgconfig/quorveltask2\.pc"
has quorvel "usr/bin/quorvel"
has quorvel "usr/bin/quorvel-script"
has quorvel "usr/share/applications/org\.quorvel\.quorvel\.desktop"
has quorvel "usr/share/icons/hicolor/scalable/apps/org\.quorvel\.quorvel\.svg"
has quorvel "usr/share/metainfo/org\.quorvel\.quorvel\.metainfo\.xml"
has quorvel "usr/share/man/man1/quorvel\.1\.gz"
has quorvel "usr/share/man/man1/quorvel-script\.1\.gz"

# Their dependencies resolve on this system.
apt-get install --simulate -qq "$PWD/$deb"/*.deb >/dev/null || fail "the dependencies do not resolve"

# Installed into an empty root.
root=$(mktemp -d)
trap 'rm -rf "$root"' EXIT
mkdir -p "$root/var/lib/dpkg/info" "$root/var/lib/dpkg/updates"
touch "$root/var/lib/dpkg/status"
dpkg --root="$root" --force-depends --force-script-chrootless -i "$deb"/*.deb >"$root/dpkg.log" 2>&1 ||
    { cat "$root/dpkg.log"; fail "dpkg could not install the packages"; }
"$root/usr/bin/quorvel" --home "$root/home" --install-store
[ -f "$root/home/QuorvelData.mdb" ] || fail "the installed program made no store"
# The help pages come from beside the installed program, not from the sources.
if [ -d share/help ]; then
    [ -d "$root/usr/share/quorvel/help" ] || fail "the help pages are not installed"
    [ -d "$root/home/help" ] || fail "the installed program put no help pages in its folder"
    for lang in share/help/*/; do
        lang=$(basename "$lang")
        [ -f "$root/home/help/$lang/helpindex.htm" ] || fail "the installed program put no $lang help pages in its folder"
    done
fi
"$root/usr/bin/quorvel-script" "$root/usr/share/doc/quorvel/examples/add-task.qvs" | tail -n 1
libdir=$(dirname "$(find "$root/usr/lib" -name libQuorvelTask2.so)")
# shellcheck disable=SC2046
# The root's usr/include stands for /usr/include: a host needs no other
# include path to name <quorvel/clsTask2.h>.
echo '#include <quorvel/clsTask2.h>' >"$root/one.cpp"
c++ -std=c++20 -fsyntax-only -I"$root/usr/include" "$root/one.cpp" || fail "<quorvel/clsTask2.h> needs another include path"
c++ -std=c++20 examples/embed/host.cpp -I"$root/usr/include" \
    $(PKG_CONFIG_PATH="$libdir/pkgconfig" PKG_CONFIG_SYSROOT_DIR="$root" pkg-config --cflags --libs quorveltask2) \
    -Wl,-rpath,"$libdir" -o "$root/host"
"$root/usr/bin/quorvel-script" - <<<"home $root/home
sql \"INSERT INTO PROJECTS (prjGUIDID, prjProject) VALUES ('p-1', 'Garden')\"" >/dev/null
"$root/host" "$root/home" p-1 "Water the plants" | grep -q '^heard NewTask$' || fail "the smallest host heard no NewTask"
echo "Packages checked: $(ls "$deb"/*.deb | wc -l) packages, validators and installation pass"
