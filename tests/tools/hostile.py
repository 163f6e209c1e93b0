"""Recordings whose texts try to become code: every text that a user can enter gets an ending that closes the literals,
comments and tags of the targets, or that is read as something else there."""

import json
import re

ENDINGS = ['"; System.IO.File.Delete("x"); //', "</script><b>'", "a\nb\r\nc", "back\\slash\\", "%1 %2 %3 %L4 %11 %%5",
           "tab\tbell\a1", "\u201cquoted\u201d", '" & Kill("x") & "', "\u2028end\u2029\x85", "??/ ??=", "<!-- \\u0022 ${x}"]

# Of recordings and so of their macros.
NAMES = ["a b-1", "namespace", "1st", "Line", "System", "O'Neil & Sons", "math", "Run", "caf\u00e9", "100%1"]

# Keys and property tags under which users' texts stand.
KEYS = {"comments", "contents", "dimensionText", "pathName", "plotStyleName", "textString", "text", "prompt", "local",
        "global", "layoutName"}
TAGS = re.compile("Alt suffix|BigFont|Contents?(_.*)?|content|Description|.*[pP]refix|.*[sS]uffix|Font|Name|Path|"
                  "PrintStyle(InViewport|Table)?|Prompt|Tag|Text override|Value")


class Hostile:
    """One recording. Endings go round, so that each meets many kinds of statements."""

    def __init__(self, first=0):
        self._count = first

    def _text(self, text):
        if text.startswith("*"):  # the host's own names
            return text
        ending = ENDINGS[self._count % len(ENDINGS)]
        self._count += 1
        return text + ending

    def _within(self, value):
        if isinstance(value, str):
            return self._text(value)
        if isinstance(value, list):
            return [self._within(one) for one in value]
        return value

    def changed(self, node):
        if isinstance(node, list):
            return [self.changed(one) for one in node]
        if not isinstance(node, dict):
            return node
        told = isinstance(node.get("tag"), str) and TAGS.fullmatch(node["tag"])
        return {key: self._within(value) if key in KEYS or (told and key == "value" and isinstance(value, str))
                else self.changed(value) for key, value in node.items()}

    def recording(self, text):
        return "".join(json.dumps(self.changed(json.loads(line))) + "\n" for line in text.splitlines() if line.strip())
