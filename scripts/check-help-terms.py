#!/usr/bin/env python3
"""The help pages of each language name the controls as the catalogue does.

A page and its English original name the same controls in bold, in the same
order; where the English name is a text of the catalogue, the translated page
must show that text's translation (access-key marks left out).
Usage: scripts/check-help-terms.py LANG   (run from the top of the tree)
"""
import glob
import html
import os
import re
import sys

# Bold names that are not the catalogue text of the same English words:
# "Done" in the schedule page is the grid's "Done?" column.
NOT_THE_CONTROL = {("ManualSchedule.htm", "Done")}


def catalogue(path):
    text = open(path, encoding="utf-8").read()
    joined = lambda s: "".join(re.findall(r'"((?:[^"\\]|\\.)*)"', s)).replace('\\"', '"')
    out = {}
    for m in re.finditer(r'(?:^|\n)msgid ((?:"(?:[^"\\]|\\.)*"\s*)+)msgstr ((?:"(?:[^"\\]|\\.)*"\s*)+)', text):
        source, translated = joined(m.group(1)), joined(m.group(2))
        if source and translated:
            out[source.replace("&", "")] = translated.replace("&", "")
    return out


def bold(path):
    page = open(path, encoding="utf-8").read()
    return [re.sub(r"\s+", " ", html.unescape(b)).strip() for b in re.findall(r"<b>(.*?)</b>", page, re.S)]


def main(lang):
    names = catalogue(f"po/{lang}.po")
    wrong = 0
    for english in sorted(glob.glob("share/help/*.htm")):
        page = os.path.basename(english)
        translated = f"share/help/{lang}/{page}"
        if not os.path.exists(translated):
            continue
        ours, theirs = bold(english), bold(translated)
        if len(ours) != len(theirs):
            print(f"{translated}: {len(theirs)} names in bold, the English page has {len(ours)}")
            wrong += 1
            continue
        for name, shown in zip(ours, theirs):
            expected = names.get(name)
            if expected and expected != shown and (page, name) not in NOT_THE_CONTROL:
                print(f'{translated}: "{shown}" where the window says "{expected}" ({name})')
                wrong += 1
    print(f"{lang} help: {wrong} control names differ from the catalogue")
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1]))
