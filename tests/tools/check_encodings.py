#!/usr/bin/python3
"""Reads repaired macros in foreign encodings, in which the last byte of a letter may take what stands behind it: text
that the user entered has to stay text.

    check_encodings.py PROGRAM SOURCE_DIR
"""

import json
import re

import harness

ENCODINGS = ("utf-8", "gbk", "gb18030", "big5", "cp932", "cp949", "cp1252", "cp1251")
# What would be code where the text ends too early.
CODE = "CANARY"
ENDS = ('"); CANARY(); //', '\\"); CANARY(); //', '\nCANARY();//', "</script><script>CANARY()", "' CANARY", '" & CANARY() & "')
# One for each byte that a letter of UTF-8 can end with, in letters of two, three and four bytes.
LETTERS = [chr(first + last) for last in range(64) for first in (0x400, 0x4E00, 0x20000)]
TEXTS = {
    "cpp": re.compile(r'"(?:[^"\\\n]|\\.)*"|//[^\n]*'),
    "vbnet": re.compile(r'["\u201c\u201d\u201e\uff02](?:[^"\u201c\u201d\u201e\uff02\n]|"")*'
                        r'["\u201c\u201d\u201e\uff02]|\'[^\n]*'),
    "vba": re.compile(r'"(?:[^"\n]|"")*"|\'[^\n]*'),
    "python": re.compile(r'''"(?:[^"\\\n]|\\.)*"|'(?:[^'\\\n]|\\.)*'|#[^\n]*'''),
}
# Python reads its own files as UTF-8 wherever they are.
KNOWN = {"python": ENCODINGS[:1]}


def recording(file):
    """A note a letter and ending."""
    lines = [{"recording": {"version": 1, "sheet": {"name": "Model", "model": True}}}]
    for number, (letter, end) in enumerate((letter, end) for letter in LETTERS for end in ENDS):
        lines.append({"added": {"class": "AcDbText", "handle": f"{256 + number:X}",
                                "properties": [{"tag": "Contents", "value": letter + end}]}})
    file.write_text("\n".join(json.dumps(line) for line in lines) + "\n", encoding="utf-8")
    return file


def main():
    checked = harness.Checked()
    file = recording(checked.folder / "letters.jsonl")
    complaints = []
    for target in harness.EXTENSIONS:
        macro, = checked.convert(target, [file], checked.folder / target, "--repair")
        content = macro.file.read_bytes().removeprefix(b"\xef\xbb\xbf")
        if content.decode("utf-8").count(CODE) < len(LETTERS) * len(ENDS):
            complaints.append(f"{target}: the texts are not there")
        for encoding in KNOWN.get(target, ENCODINGS):
            rest = TEXTS.get(target, TEXTS["cpp"]).sub("", content.decode(encoding, "replace"))
            complaints += [f"{target} read as {encoding}: {line.strip()}" for line in rest.split("\n") if CODE in line][:3]
    harness.finish(complaints, f"{len(LETTERS) * len(ENDS)} texts read in {len(ENCODINGS)} encodings")


main()
