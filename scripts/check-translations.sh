#!/usr/bin/env bash
# The template is current, and every catalogue of po/LINGUAS translates all
# of it (no entry missing, untranslated or fuzzy), and its help pages name
# the controls as it does. Prints the counts.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/update-translations.sh --check
total=$(msgattrib --no-obsolete po/quorvel.pot | grep -c '^msgid ' || true)
total=$((total - 1))  # the header entry
echo "template: $total texts"
status=0
for lang in $(grep -v '^#' po/LINGUAS); do
  stats=$(msgfmt --check --statistics -o /dev/null "po/$lang.po" 2>&1)
  echo "$lang: $stats"
  if ! msgcmp "po/$lang.po" po/quorvel.pot >/dev/null 2>&1; then
    echo "$lang: not every text of the template is translated:" >&2
    msgcmp "po/$lang.po" po/quorvel.pot 2>&1 | head -10 >&2
    status=1
  fi
  case "$stats" in *untranslated*|*fuzzy*) status=1 ;; esac
  if [ -d "share/help/$lang" ]; then scripts/check-help-terms.py "$lang" || status=1; fi
done
exit $status
