#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Puts the line that names the licence into each source that has none; with --check only says which have none.

    licence-lines.py [--check]
"""
import pathlib
import sys

LINE = "SPDX-License-Identifier: GPL-3.0-or-later"
HASH, SLASH, MARKUP, ROFF = "# {}", "// {}", "<!-- {} -->", '.\\" {}'
FORMS = {
    ".cpp": SLASH, ".h": SLASH, ".cmake": HASH, ".sh": HASH, ".py": HASH, ".bash": HASH, ".fish": HASH,
    ".zsh": HASH, ".svg": MARKUP, ".xml": MARKUP, ".1": ROFF, ".desktop": HASH,
}
FIRST = ("#!", "#compdef", "<?xml")  # What has to be the first line of its file.

check = "--check" in sys.argv
lacking = []
ours = [top for top in sorted(pathlib.Path().iterdir()) if top.name not in (".git", "build", "Examples")]
for path in [path for top in ours for path in ([top] if top.is_file() else sorted(top.rglob("*")))]:
    form = HASH if path.name == "CMakeLists.txt" else FORMS.get(path.suffix)
    if form is None or not path.is_file():
        continue
    text = path.read_text(encoding="utf-8")
    if LINE in text[:400]:
        continue
    lacking.append(str(path))
    if check:
        continue
    first = ""
    if text.startswith(FIRST):
        first, text = text.split("\n", 1)
        first += "\n"
    path.write_text(first + form.format(LINE) + "\n" + text, encoding="utf-8")
if check and lacking:
    sys.exit("without the line that names their licence: " + " ".join(lacking))
