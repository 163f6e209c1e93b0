#!/usr/bin/python3
"""Parses the scripts of the JavaScript pages with node, or runs the pages in a browser against a stub library and
compares the calls they make with the objects of their recordings.

    check_javascript.py PROGRAM SOURCE_DIR parse|run [repaired]

With `repaired`, as --repair writes them: nothing is excused, and the drawings that they make are compared too.
"""

import html.parser
import re
import sys

import browser
import drawing
import expected
import harness
import model

ERROR = re.compile(r"^.*?:(\d+)$.*?^(\w*Error: .*?)$", re.MULTILINE | re.DOTALL)


class Script(html.parser.HTMLParser):
    """The text of the page's own script, in the lines where it stands."""

    def __init__(self, page):
        super().__init__()
        self.text = ""
        self._inside = False
        self.feed(page)

    def handle_starttag(self, tag, attributes):
        self._inside = tag == "script" and "src" not in dict(attributes)

    def handle_endtag(self, tag):
        self._inside = False

    def handle_data(self, data):
        if self._inside:
            self.text += "\n" * (self.getpos()[0] - 1 - self.text.count("\n")) + data


def parse(node, macro, script):
    script.write_text(Script(macro.file.read_text(encoding="utf-8")).text, encoding="utf-8")
    result = harness.run(node, "--check", script)
    if result.returncode == 0:
        return []
    match = ERROR.search(result.stderr)
    return [harness.Rejection(macro.file, int(match[1]) if match else 0, match[2] if match else result.stderr)]


def check_syntax(checked, repaired, _):
    node, = harness.need("node")
    macros = checked.macros("javascript", *["--repair"] * repaired)
    verdict = harness.Verdict()
    for macro in macros:
        verdict.settle([macro], lambda macro=macro: parse(node, macro, checked.folder / "script.js"))
    verdict.report(f"{len(macros)} scripts parsed")


class Judge:
    """Runs pages."""

    def __init__(self, checked, macros):
        self.executable, = harness.need("chromium")
        self.folder, self.macros = checked.folder, macros
        self.calls = {}

    def __call__(self):
        self.calls, rejections = {}, []
        with browser.Browser(self.executable, self.folder) as window:
            for macro in self.macros:
                seen = window.run(macro.file.read_text(encoding="utf-8"), model.offered(macro.lines()))
                if error := seen["error"]:
                    rejections.append(harness.Rejection(macro.file, error["line"], error["message"]))
                self.calls[macro] = seen["calls"]
        return rejections


def check_run(checked, repaired, comparison):
    macros = checked.macros("javascript", *["--repair"] * repaired)
    count = len(macros)
    judge = Judge(checked, macros)
    verdict = harness.Verdict()
    verdict.settle(macros, judge)
    for macro, calls in judge.calls.items():
        comparison.add(macro, calls)
    summary = comparison.summary()
    verdict.complaints += comparison.complaints
    verdict.report(f"{count} pages run, {summary}")


def main():
    checked = harness.Checked()
    check = {"parse": check_syntax, "run": check_run}[sys.argv[3]]
    if sys.argv[4:] == ["repaired"]:
        check(checked, True, drawing.Comparison("javascript", checked.program))
    else:
        check(checked, False, expected.Comparison("javascript"))


if __name__ == "__main__":
    main()
