"""A page with a macro that somebody has changed runs that one, and finds exactly what is different, as verify does.
What has no end can be stopped, what was changed in the page itself does not run, and a long run is asked for and tells
how far it is."""

import base64
import json
import re
import zlib

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


ENDLESS = "for (;;) { mApp.GetActiveDocument(); }\n"
MANY = 20001  # objects, from which on a run is asked for


def changed(checked, number, recording, pattern, text):
    macro, = checked.convert("javascript", [recording], checked.folder / "javascript", "--repair")
    before = macro.file.read_text(encoding="utf-8")
    after, count = re.subn(pattern, text, before, count=1)
    if count == 0:
        checked.complain(recording.stem, "has nothing like", pattern)
    file = checked.folder / f"{number} {recording.stem}.html"
    file.write_text(after, encoding="utf-8")
    return file


def check_stop(checked, recording):
    """The page answers while a macro runs that has no end, and stops it."""
    macro = changed(checked, "endless", recording, r"( *var line1 = )", ENDLESS + r"\1")
    file = checked.write(recording, checked.folder / "endless.view.html", "--macro", macro)
    with checked.open(file) as page:
        checked.read(page, file)
        page.evaluate("(document.getElementById('run').click(), null)")
        page.wait_for("state.get().run && state.get().run.progress > 2000")
        if page.evaluate("document.getElementById('run').textContent") != "Stop":
            checked.complain("endless", "no button stops it")
        page.evaluate("(document.getElementById('run').click(), null)")
        if page.evaluate("state.get().run.state") != "ended" or page.evaluate("document.querySelector('iframe')"):
            checked.complain("endless", "it is not stopped:", page.evaluate("state.get().run.state"))
        page_data.run_form(page, "repaired")
        if page.evaluate("state.get().run.verdict") != "equal":
            checked.complain("endless", "no other run behind it")
        checked.expect_peace("endless", page, file)


def check_tampering(checked, recording):
    """A macro that the program did not write has no hash in the policy."""
    macro = changed(checked, "tampered", recording, r"InsertLine\(", "InsertLine (")
    file = checked.write(recording, checked.folder / "tampered.view.html", "--macro", macro)
    text = file.read_text(encoding="utf-8")
    packed = re.search(r'id="macro\.javascript\.edited">([^<]*)', text)[1]
    other = zlib.compress(zlib.decompress(base64.b64decode(packed)).replace(b"InsertLine (", b"InsertLine(("))
    file.write_text(text.replace(packed, base64.b64encode(other).decode()), encoding="utf-8")
    with checked.open(file) as page:
        checked.read(page, file)
        page_data.run_form(page, "edited")
        if page.evaluate("state.get().run.state") != "refused" or not page.complaints:
            checked.complain("tampered", "it is", page.evaluate("state.get().run.state"))


def check_many(checked):
    recording = checked.folder / "many.jsonl"
    points = [{"added": {"class": "AcDbPoint", "handle": f"{256 + i:X}", "properties": [
        {"tag": "Position X", "value": i}, {"tag": "Position Y", "value": i % 7}, {"tag": "Position Z", "value": 0}]}}
        for i in range(MANY)]
    recording.write_text("\n".join(map(json.dumps, points)), encoding="utf-8")
    file = checked.write(recording, checked.folder / "many.view.html", "--target", "javascript")
    with checked.open(file) as page:
        page.evaluate("""(window.told = [], state.on(['run'], ({run}) => told.push(run.progress)),
            document.getElementById('run').click(), null)""")
        page.wait_for("state.get().run && state.get().run.state !== 'running'")
        found = page.evaluate("[state.get().run.verdict, state.get().run.objects.drawn]")
        if found != ["equal", MANY]:
            checked.complain("many", found)
        if len(page.dialogs) != 1 or f"{MANY:,} objects" not in page.dialogs[0]:
            checked.complain("many", "asks", page.dialogs)
        if max(page.evaluate("told")) < MANY * 0.9:
            checked.complain("many", "tells how far it is as", page.evaluate("told"))
        if page.complaints:
            checked.complain("many", page.complaints)


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
            checked.read(page, file)
            page_data.check_run(checked, title, page, "edited", expected)
            handles = page.evaluate("""Array.from(state.get().run.kinds).reduce((found, kind, i) =>
                kind === 2 || kind === 3 ? found.concat(pageData.objects.handle(i)) : found, [])""")
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
    check_stop(checked, files["line"])
    check_tampering(checked, files["line"])
    check_many(checked)
    return f"{len(CHANGES)} changed macros are found out"
