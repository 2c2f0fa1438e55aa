#!/bin/sh
# Installs the build into a temporary prefix, checks the installed headers,
# then builds the smallest host (examples/embed) against the installed
# component through find_package and through pkg-config, and runs both on
# a store that the installed scenario driver made.
# Usage: installed-package.sh BUILD_DIR SOURCE_DIR CXX VERSION
set -eu
build=$1 src=$2 cxx=$3 version=$4
tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT
fail() { echo "FAILED: $*" >&2; exit 1; }

prefix=$tmp/prefix
cmake --install "$build" --prefix "$prefix" >/dev/null
lib=$(find "$prefix" -name 'libQuorvelTask2.so' | head -n 1)
[ -n "$lib" ] || fail "no libQuorvelTask2.so installed"
libdir=$(dirname "$lib")
# The files name the configured prefix: copies name this one.
mkdir "$tmp/pc"
for f in "$libdir"/pkgconfig/*.pc; do sed "s|^prefix=.*|prefix=$prefix|" "$f" >"$tmp/pc/${f##*/}"; done
grep -q "^prefix=/" "$libdir/pkgconfig/quorveltask2.pc" || fail "the pkg-config prefix is not absolute"
export PKG_CONFIG_PATH="$tmp/pc"
pc() { pkg-config "$@"; }
[ "$(pkg-config --modversion quorveltask2)" = "$version" ] || fail "pkg-config version"
pkg-config --print-variables quorveltask2 >/dev/null
[ "$(sed -n 's/^Description: //p' "$tmp/pc/quorveltask2.pc")" = "Quorvel Edit/New/Work Single Task" ] ||
    fail "pkg-config description"

# The component's own headers name neither SQLite nor Qt, and all of them
# compile against what is installed.
inc=$prefix/include/quorvel
if grep -rlE '#include *[<"](sqlite3|Q[A-Za-z]+)' "$inc" --exclude-dir=qt; then fail "a private header leaks"; fi
: >"$tmp/all.cpp"
: >"$tmp/all-qt.cpp"
for h in "$inc"/*.h; do
    if grep -q 'quorvel/qt/' "$h"; then echo "#include <quorvel/${h##*/}>" >>"$tmp/all-qt.cpp"
    else echo "#include <quorvel/${h##*/}>" >>"$tmp/all.cpp"; fi
done
# shellcheck disable=SC2046
"$cxx" -std=c++20 -fsyntax-only $(pc --cflags quorveltask2) "$tmp/all.cpp" || fail "the public headers do not compile"
if [ -s "$tmp/all-qt.cpp" ] && pkg-config --exists Qt6Widgets; then
    # shellcheck disable=SC2046
    "$cxx" -std=c++20 -fsyntax-only -fPIC $(pc --cflags quorveltask2-qt) "$tmp/all-qt.cpp" || fail "the Qt headers do not compile"
fi

# One include path, include/: the host names <quorvel/...> and nothing else.
[ "$(pc --cflags quorveltask2 | xargs)" = "-I$prefix/include" ] || fail "pkg-config --cflags: $(pc --cflags quorveltask2)"
echo '#include <quorvel/clsTask2.h>' >"$tmp/one.cpp"
"$cxx" -std=c++20 -fsyntax-only -I"$prefix/include" "$tmp/one.cpp" || fail "<quorvel/clsTask2.h> needs more than include/"
echo '#include <Event.h>' >"$tmp/generic.cpp"
if "$cxx" -std=c++20 -fsyntax-only $(pc --cflags quorveltask2) "$tmp/generic.cpp" 2>/dev/null; then fail "<Event.h> is reachable"; fi

# A store with one project, made by the installed driver.
key=11111111-2222-3333-4444-555555555555
printf '%s\n' "home $tmp/home" "sql \"INSERT INTO PROJECTS (prjGUIDID, prjProject) VALUES ('$key', 'Garden')\"" |
    "$prefix/bin/quorvel-script" - >/dev/null || fail "quorvel-script could not install a store"
[ -f "$tmp/home/QuorvelData.mdb" ] || fail "no store"

check() {  # the host's output names the saved task's events
    grep -q '^heard NewTask$' "$1" && grep -q '^heard DoCloseTaskForm$' "$1" || { cat "$1"; fail "$2"; }
}

cmake -S "$src/examples/embed" -B "$tmp/cmake" -G Ninja -DCMAKE_CXX_COMPILER="$cxx" \
    -DCMAKE_PREFIX_PATH="$prefix" >/dev/null || fail "find_package"
cmake --build "$tmp/cmake" >/dev/null || fail "the host does not build through find_package"
"$tmp/cmake/host" "$tmp/home" $key "Water the plants" >"$tmp/out1"
check "$tmp/out1" "the host built through find_package"

# shellcheck disable=SC2046
"$cxx" -std=c++20 "$src/examples/embed/host.cpp" $(pc --cflags --libs quorveltask2) -Wl,-rpath,"$libdir" \
    -o "$tmp/host2" || fail "the host does not build through pkg-config"
"$tmp/host2" "$tmp/home" $key "Repot the fern" >"$tmp/out2"
check "$tmp/out2" "the host built through pkg-config"
# The views library holds the whole component: the same host runs on it,
# and its views are there.
if pkg-config --exists Qt6Widgets; then
    # shellcheck disable=SC2046
    "$cxx" -std=c++20 -fPIC "$src/examples/embed/host.cpp" $(pc --cflags --libs quorveltask2-qt) \
        -Wl,-rpath,"$libdir" -o "$tmp/host3" || fail "the host does not build against the views library"
    "$tmp/host3" "$tmp/home" $key "Sow the beans" >"$tmp/out3"
    check "$tmp/out3" "the host built against the views library"
    printf '%s\n' '#include <quorvel/StandardViews.h>' \
        'int main() { return qv::StandardViews::make().has("frmTask3") ? 0 : 1; }' >"$tmp/views.cpp"
    # shellcheck disable=SC2046
    "$cxx" -std=c++20 -fPIC "$tmp/views.cpp" $(pc --cflags --libs quorveltask2-qt) -Wl,-rpath,"$libdir" \
        -o "$tmp/views" || fail "a host does not build against the views library"
    "$tmp/views" || fail "the views library has no New Task view"
    tasks=3
fi
cat "$tmp/out1" "$tmp/out2"
# The tasks are in the store, in the project.
printf '%s\n' "home $tmp/home" 'expect rows "SELECT * FROM TASKS WHERE tskProject = '"'Garden'"'" '"${tasks:-2}" |
    "$prefix/bin/quorvel-script" - >"$tmp/rows" || { cat "$tmp/rows"; fail "the tasks are not in the store"; }
