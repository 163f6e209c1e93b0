"""A page with a macro that somebody has changed runs that one, and finds exactly what is different, as verify does."""

import json
import re

import harness
import page_data
import pages

# Recordings, and of the first statement that fits what is changed into what.
CHANGES = [
    ("plate_dimensioned", r"InsertCircle\(30\.0+", "InsertCircle(30.25"),
    ("plate_dimensioned", r'put_Layer \("Dimensions"\)', 'put_Layer ("0")'),
    ("plate_dimensioned", r"TextRotation\(0\.250+\)", "TextRotation(0.26)"),
    ("floor_plan", r"InsertLine\((-?[\d.]+)", r"InsertLine(\g<1>5"),
    ("title_block_stamped", r"put_Width\([\d.]+\)", "put_Width(77)"),
    ("sketch_edited", r"InsertPoint\(1\.", "InsertPoint(2."),
    ("layers_and_blocks_changed", r"put_Frozen\(false\)", "put_Frozen(true)"),
    ("line", r"var line1 = mSkMgr\.InsertLine\(.*\);\n", "throw new Error('no line');\n"),
    ("line", r"mSkMgr\.InsertLine\(", "draw("),
    ("line", r"(function runMacro\(\) \{)", "function draw() { throw new Error('far away'); }\n\\1 draw();"),
    ("walls", r"(?s)( *var \w+ = mSkMgr\.InsertLine\([^\n]*\n)", r"\1for (var n = 0; n < 2; ++n) {\n\1}\n"),
]


def changed(checked, number, recording, pattern, text):
    macro, = checked.convert("javascript", [recording], checked.folder / "javascript", "--repair")
    before = macro.file.read_text(encoding="utf-8")
    after, count = re.subn(pattern, text, before, count=1)
    if count == 0:
        checked.complain(recording.stem, "has nothing like", pattern)
    file = checked.folder / f"{number} {recording.stem}.html"
    file.write_text(after, encoding="utf-8")
    return file


def check(checked):
    files = {file.stem: file for file in checked.named_recordings()}
    told = 0
    for number, (name, pattern, text) in enumerate(CHANGES):
        macro = changed(checked, number, files[name], pattern, text)
        title = f"{name} with {text!r}"
        ran = harness.run(checked.program, "verify", files[name], "--macro", macro, "--json")
        expected = json.loads(ran.stdout)
        file = checked.write(files[name], checked.folder / f"{number}.view.html", "--macro", macro)
        with checked.open(file) as page:
            checked.read(page)
            page_data.check_run(checked, title, page, "edited", expected)
            handles = page.evaluate("Array.from(state.get().run.kinds).reduce((found, kind, i) => kind === 2 || kind === 3"
                                    " ? found.concat(pageData.objects.handle(i)) : found, [])")
            wanted = {one["handle"] for one in expected["findings"] if one["kind"] in ("different", "missing")} - {""}
            if set(handles) != wanted:
                checked.complain(title, "marks", handles, "in place of", wanted)
            told += len(wanted)
            # What the page was not made with does not run in it.
            page_data.run_form(page, "repaired")
            if page.evaluate("state.get().run.verdict") != "equal":
                checked.complain(title, "the written macro draws something else")
            checked.expect_peace(title, page, file)
    if not told:
        checked.complain("all", "nothing is different")
    return f"{len(CHANGES)} changed macros are found out"
