#!/usr/bin/env bash
# Extracts the interface texts of src/, qt/ and host/ into po/quorvel.pot
# and merges the template into every catalogue of po/LINGUAS.
# With --check, writes nothing and fails when the template is not current.
set -euo pipefail
cd "$(dirname "$0")/.."
out=po/quorvel.pot
[ "${1:-}" = "--check" ] && out=$(mktemp --suffix=.pot)

find src qt host \( -name '*.cpp' -o -name '*.h' \) -print | LC_ALL=C sort |
  xgettext --files-from=- --output="$out" --from-code=UTF-8 --language=C++ \
    --keyword= --keyword=tr --keyword=trn:1,2 --keyword=QV_N --keyword=qtr --keyword=qtrn:1,2 \
    --add-comments=TRANSLATORS: --add-location=file --sort-output --no-wrap \
    --package-name=Quorvel --package-version=1.14 --msgid-bugs-address=quorvel@lists.quorvel.org
sed -i "s/charset=CHARSET/charset=UTF-8/" "$out"

if [ "${1:-}" = "--check" ]; then
  # Equal but for the creation date.
  if ! diff -q <(grep -v '^"POT-Creation-Date' "$out") <(grep -v '^"POT-Creation-Date' po/quorvel.pot) >/dev/null; then
    echo "po/quorvel.pot is not current: run scripts/update-translations.sh" >&2
    diff <(grep -v '^"POT-Creation-Date' po/quorvel.pot) <(grep -v '^"POT-Creation-Date' "$out") | head -20 >&2
    rm -f "$out"; exit 1
  fi
  rm -f "$out"; exit 0
fi
for lang in $(grep -v '^#' po/LINGUAS); do
  if [ -f "po/$lang.po" ]; then
    msgmerge --quiet --update --backup=none --no-wrap --no-fuzzy-matching "po/$lang.po" "$out"
  else
    msginit --no-translator --no-wrap --locale="$lang.UTF-8" --input="$out" --output-file="po/$lang.po"
  fi
done
