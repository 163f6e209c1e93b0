"""Pages of recordings, which the program writes and a browser shows."""

import base64
import html.parser
import json
import pathlib
import zlib

import chromium
import harness

OPEN = "document.body.classList.contains('isOpen') || !document.getElementById('trouble').hidden"


class Contents(html.parser.HTMLParser):
    """What a page consists of: scripts and styles, islands by their names as bytes and as the texts of their pieces,
    its policy, and what is around all of it."""

    def __init__(self, file):
        super().__init__(convert_charrefs=False)
        self.scripts, self.styles, self.policy, self.markup = [], [], "", ""
        self.pieces, self._within = {}, None
        self.feed(file.read_text(encoding="utf-8"))
        packed = {name: b"".join(map(base64.b64decode, pieces)) for name, pieces in self.pieces.items()}
        self.islands = {name: zlib.decompress(one) if one else b"" for name, one in packed.items()}

    def handle_starttag(self, tag, attributes):
        told = dict(attributes)
        self.markup += self.get_starttag_text()
        if told.get("http-equiv") == "Content-Security-Policy":
            self.policy = told["content"]
        if tag in ("script", "style"):
            # Pieces of one island have numbers behind its name.
            name, _, number = told.get("id", "").rpartition(".")
            self._within = self.scripts if tag == "script" and "type" not in told else self.styles \
                if tag == "style" else self.pieces.setdefault(name if number.isdigit() else told["id"], [])
            self._within.append("")

    def handle_endtag(self, tag):
        if tag in ("script", "style"):
            self._within = None

    def handle_data(self, text):
        if self._within is None:
            self.markup += text
        else:
            self._within[-1] += text


class Pages(harness.Checked):
    """The program under test and a browser, which the check begins in a context."""

    def __init__(self):
        super().__init__()
        executable, = harness.need("chromium")
        self.complaints = []
        self.browser = chromium.Chromium(executable)

    def complain(self, name, *words):
        self.complaints.append(f"{name}: {' '.join(map(str, words))}"[:2000])

    def chosen(self, *names):
        """The files of recordings by their names."""
        return [self.recordings()[name] for name in names]

    def write(self, recording, file, *options):
        """The page of a recording, with nothing in it of where the recording is."""
        ran = harness.run(self.program.absolute(), "view", pathlib.Path(recording).name, "--output", file, *options,
                          cwd=pathlib.Path(recording).parent)
        if ran.returncode != 0:
            self.complain(recording, ran.stderr)
        return file

    def open(self, file, fragment="", **view):
        """A page whose panes are open, or that has told what keeps them closed."""
        page = self.browser.open(file.as_uri() + fragment, **view)
        page.wait_for(OPEN)
        return page

    def read(self, page, file):
        """Gives scripts that are evaluated the page's data as `pageData`: it does not keep what it has read."""
        page.evaluate("(async pieces => { window.pageData = await new Data(name => pieces[name] || null).open(); })"
                      f"({js(Contents(file).pieces)})")

    def expect_peace(self, name, page, file):
        """Nothing to complain of, no dialog, and no request but for the file itself."""
        for words in page.complaints + [f"dialog {one}" for one in page.dialogs]:
            self.complain(name, words)
        for address in page.requests:
            if address.split("#")[0] != file.as_uri():
                self.complain(name, "asks for", address)

    def finish(self, summary):
        harness.finish(self.complaints, summary)


def js(value):
    """A value as a script has it."""
    return json.dumps(value).replace("<", "\\u003c")
