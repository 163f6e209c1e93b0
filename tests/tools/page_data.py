"""Every page holds what the program tells elsewhere: counts, macros and their maps; its policy names what runs in it;
and its macro draws there what it draws in node."""

import base64
import hashlib
import json
import re

import drawing
import harness
import pages

LARGEST = 250_000  # bytes of a page of nothing
SHARE = 0.4  # of the recording and the macros
GUID = re.compile(r"[0-9a-f]{8}(?:-[0-9a-f]{4}){3}-[0-9a-f]{12}", re.IGNORECASE)  # a project has one of its own
MACRO_SCRIPT = re.compile(rb'.*<script type="text/javascript">(.*?)</script>', re.DOTALL)

# The ranges of a macro's map and the bytes of its text, in the forms of convert.
MACRO = """(async ([target, form]) => {
    const [lines, map] = await Promise.all([pageData.macro(target, form), pageData.map(target, form)]);
    const strange = [];
    for (let line = 1; line <= lines.count; ++line) {
        const range = map.rangeAt(line);
        if (!range || range.first > line || range.last < line
            || range.step >= 0 && !map.rangesOf(range.step).some(one => one.first === range.first)) {
            strange.push(line);
        }
    }
    return {text: lines.text(), ranges: mapFor(pageData, map).ranges, strange: strange};
})(%s)"""

# What a run has found, and what is expected of it, in the same form.
RUN = """(expected => {
    const {run} = state.get();
    const isOf = one => one.line === null ? one.step < 0 : pageData.steps.line[one.step] === one.line;
    const shown = one => [one.kind, one.class, one.handle, one.lines, one.what, one.recorded, one.drawn, one.reason];
    const wanted = expected.findings.map(one => [one.kind, one.class, one.handle, one.macroLines, one.what,
        asShown(one.recorded), asShown(one.drawn), one.reason]);
    const found = run.findings.map(shown);
    const different = wanted.findIndex((one, i) => JSON.stringify(one) !== JSON.stringify(found[i]));
    return {counts: run.counts, verdict: run.verdict, stopped: run.stopped && {macroLine: run.stopped.line || null,
        message: run.stopped.message}, length: found.length, different: different < 0 ? null
        : [wanted[different], found[different]],
        lost: run.findings.filter((one, i) => expected.findings[i] && !isOf(Object.assign({}, one,
            {line: expected.findings[i].line}))).length,
        equal: Array.from(run.kinds).filter(kind => kind === 1).length,
        frames: document.querySelectorAll('iframe').length, button: document.getElementById('run').textContent};
})(%s)"""


def hash_of(text):
    return f"'sha256-{base64.b64encode(hashlib.sha256(text).digest()).decode()}'"


def check_policy(checked, name, contents, macros):
    """Exactly what is to run has its hash there."""
    frame = re.findall(r"<script>(.*?)</script>", contents.islands["frame"].decode(), re.DOTALL)
    scripts = [text.encode() for text in contents.scripts + frame + json.loads(contents.islands["scripts"])]
    scripts += [MACRO_SCRIPT.match(macro.file.read_bytes())[1] for macro in macros]
    rules = {rule.split()[0]: rule.split()[1:] for rule in contents.policy.split(";")}
    if set(rules["script-src"]) != set(map(hash_of, scripts)):
        checked.complain(name, "the policy allows other scripts than there are")
    if rules["style-src"] != [hash_of(text.encode()) for text in contents.styles]:
        checked.complain(name, "the policy allows other styles than there are")
    wanted = {"default-src": ["'none'"], "frame-src": ["'none'"], "base-uri": ["'none'"], "form-action": ["'none'"],
              "require-trusted-types-for": ["'script'"], "trusted-types": ["page", "frame", "macro"]}
    if any(rules.get(rule) != words for rule, words in wanted.items()):
        checked.complain(name, "its policy is", contents.policy)


def check_size(checked, name, file, recording, macros):
    shown = recording.stat().st_size + sum(macro.file.stat().st_size for macro in macros)
    if file.stat().st_size > LARGEST + SHARE * shown:
        checked.complain(name, file.stat().st_size, "bytes of a page are too many for", shown)


def check_counts(checked, name, page, recording):
    counts = json.loads(harness.run(checked.program, "inspect", recording, "--json").stdout)["counts"]
    told = page.evaluate("pageData.index.counts")
    wanted = {"commands": counts.get("command", 0), "steps": sum(counts.values()), "objects": counts.get("added", 0)}
    if {key: told[key] for key in wanted} != wanted or page.evaluate("pageData.steps.count") != wanted["steps"]:
        checked.complain(name, "counts", told, "in place of", wanted)
    shown = page.evaluate("document.getElementById('counts').textContent")
    if not re.search(rf"\b{wanted['objects']:,} object", shown):
        checked.complain(name, "its head tells", shown)


def check_macro(checked, name, page, target, form, macro):
    """Text and map are those of convert, and every line leads to its step and back."""
    found = page.evaluate(MACRO % pages.js([target, form]))
    wanted = macro.file.read_bytes().decode("utf-8-sig", "replace")
    if GUID.sub("", found["text"]) != GUID.sub("", wanted):
        checked.complain(name, target, form, "is another text")
    wanted = json.loads(macro.map.read_text(encoding="utf-8"))["ranges"]

    def of(ranges):
        return [[one["lines"], one.get("line"), one.get("path"), one.get("handles")] for one in ranges]
    if of(found["ranges"]) != of(wanted):
        first = next((pair for pair in zip(of(found["ranges"]), of(wanted)) if pair[0] != pair[1]), "their number")
        checked.complain(name, target, form, "has another map:", first)
    if found["strange"]:
        checked.complain(name, target, form, "leads nowhere from lines", found["strange"][:5])


def run_form(page, form):
    """By the button, as people do it."""
    page.evaluate(f"state.set({{target: 'javascript', form: '{form}', run: null}})")
    x, y = page.evaluate("(box => [box.x + box.width / 2, box.y + box.height / 2])"
                         "(document.getElementById('run').getBoundingClientRect())")
    page.click(x, y)
    page.wait_for("state.get().run && state.get().run.state !== 'running'")


def check_run(checked, name, page, form, expected):
    """The run has found what the scripts find without a browser."""
    run_form(page, form)
    found = page.evaluate(RUN % pages.js(expected))
    if form == "repaired" and expected["verdict"] != "equal":
        checked.complain(name, "something is lost and not told:", drawing.differences(expected))
    for key in ("counts", "verdict", "stopped"):
        if found[key] != expected[key]:
            checked.complain(name, form, key, found[key], "in place of", expected[key])
    if found["different"] or found["length"] != len(expected["findings"]) or found["lost"]:
        checked.complain(name, form, "has found otherwise:", found)
    if found["frames"] or found["button"] != "Run macro":
        checked.complain(name, form, "the run has not ended:", found)
    return found["equal"]


def check(checked):
    recordings = {file.stem: file for file in checked.named_recordings()}
    targets = [target for target in harness.EXTENSIONS if checked.has(target)]
    macros = {(target, form): dict(zip(recordings, checked.convert(
        target, list(recordings.values()), checked.folder / target / form, *options)))
        for target in targets for form, options in (("recorded", []), ("repaired", ["--repair"]))}
    results = {}
    for form in ("recorded", "repaired"):
        ours = list(macros["javascript", form].values())
        found, rejections = drawing.run(checked, "javascript", ours, list(recordings))
        results[form] = found
        if len(found) != len(ours):
            checked.complain("node", rejections)
    other = checked.folder / "again"
    other.mkdir()
    equal = 0
    for name, recording in recordings.items():
        file = checked.write(recording, checked.folder / f"{name}.html")
        copy = other / recording.name
        copy.write_bytes(recording.read_bytes())
        contents = pages.Contents(file)
        if checked.write(copy, other / "page.html").read_bytes() != file.read_bytes():
            checked.complain(name, "a second page is another one")
        shown = [macro[name] for (_, form), macro in macros.items() if form == "recorded"]
        ran = [macros["javascript", form][name] for form in results]
        check_policy(checked, name, contents, ran)
        check_size(checked, name, file, recording, shown)
        with checked.open(file, width=1000, height=500) as page:
            checked.read(page, file)
            check_counts(checked, name, page, recording)
            for (target, form), of_form in macros.items():
                check_macro(checked, name, page, target, form, of_form[name])
            for form, found in results.items():
                equal += check_run(checked, name, page, form, found[macros["javascript", form][name]])
            checked.expect_peace(name, page, file)
    if not equal:
        checked.complain("all", "no object is equal")
    return f"{len(recordings)} pages are what the program tells elsewhere, {equal} objects equal"
