"""A page can be used: by the keyboard alone, in both color schemes, in windows of all widths, on paper, and where it is
damaged or has no script it says so."""

import json
import re
import zlib

import harness
import pages

WIDTHS = [(360, 740), (390, 844), (900, 800), (1440, 900)]  # pixels
LEAST_CONTRAST, LEAST_OF_LARGE = 4.5, 3
OUTLINE = 2  # pixels
MOST_STOPS = 200  # of the key that goes on to the next element

# What the key goes to, as elements that are seen; a row of tabs or a list is one stop.
STOPS = """window.stops = Array.from(document.querySelectorAll('button, input, select, summary, a[href], [tabindex]'))
    .filter(one => one.tabIndex >= 0 && !one.disabled && one.getClientRects().length
        && getComputedStyle(one).visibility === 'visible' && !one.closest('details:not([open]) > :not(summary)'));
stops.length"""

# Where the focus is: number of the stop, its outline, and strips of the window over its upper and its left edge, and
# over those of the row that is active in a list.
FOCUS = """(() => {
    const one = document.activeElement;
    const row = document.getElementById(one.getAttribute('aria-activedescendant'));
    const strips = (row ? [one, row] : [one]).map(element => element.getBoundingClientRect()).map(box =>
        [[Math.max(0, box.x + 4), Math.max(0, box.y - 5), Math.max(1, Math.min(24, box.width - 8)), 10],
            [Math.max(0, box.x - 5), Math.max(0, box.y + box.height / 2 - 12), 10, Math.min(24, box.height)]]);
    const style = getComputedStyle(one);
    return {stop: one === document.body ? null : stops.indexOf(one), name: one.id || one.className || one.tagName,
        text: (one.getAttribute('aria-label') || one.textContent).slice(0, 40),
        outline: style.outlineStyle === 'none' ? 0 : parseFloat(style.outlineWidth),
        strips: [].concat(...strips)};
})()"""

# Texts whose contrast against what is behind them is too low.
CONTRAST = """(() => {
    const canvas = document.createElement('canvas').getContext('2d', {willReadFrequently: true});
    const known = new Map();
    const colorOf = text => {
        if (!known.has(text)) {
            canvas.clearRect(0, 0, 1, 1);
            canvas.fillStyle = text;
            canvas.fillRect(0, 0, 1, 1);
            known.set(text, Array.from(canvas.getImageData(0, 0, 1, 1).data));
        }
        return known.get(text);
    };
    const over = (top, bottom) => [0, 1, 2].map(i => (top[i] * top[3] + bottom[i] * (255 - top[3])) / 255).concat(255);
    const behind = element => {
        const layers = [];
        for (let at = element; at; at = at.parentElement) {
            layers.push(colorOf(getComputedStyle(at).backgroundColor));
        }
        return layers.reverse().reduce((bottom, top) => over(top, bottom), colorOf('Canvas'));
    };
    const light = color => color.slice(0, 3).map(one => one / 255)
        .map(one => one <= 0.04045 ? one / 12.92 : ((one + 0.055) / 1.055) ** 2.4)
        .reduce((sum, one, i) => sum + one * [0.2126, 0.7152, 0.0722][i], 0);
    const low = [];
    const compare = (element, style, text) => {
        const ground = behind(element);
        const [one, other] = [light(over(colorOf(style.color), ground)), light(ground)].sort((a, b) => b - a);
        const ratio = (one + 0.05) / (other + 0.05);
        const size = parseFloat(style.fontSize);
        const isLarge = size >= 24 || size >= 18.66 && style.fontWeight >= 700;
        if (ratio < (isLarge ? %s : %s)) {
            low.push([text.slice(0, 40), element.id || element.className || element.tagName, ratio.toFixed(2)]);
        }
    };
    const isSeen = one => one.getClientRects().length && one.getClientRects()[0].width > 1 && !one.closest(':disabled')
        && one.checkVisibility({opacityProperty: true, visibilityProperty: true});
    const walker = document.createTreeWalker(document.body, NodeFilter.SHOW_TEXT);
    for (let node; (node = walker.nextNode());) {
        const element = node.parentElement;
        if (node.data.trim() && isSeen(element)) {
            compare(element, getComputedStyle(element), node.data.trim());
        }
    }
    for (const field of document.querySelectorAll('input[placeholder]')) {
        if (isSeen(field)) {
            compare(field, getComputedStyle(field, '::placeholder'), field.placeholder);
        }
    }
    return low;
})()""" % (LEAST_OF_LARGE, LEAST_CONTRAST)

# What is shown while contrasts and widths are measured. Behind each a picture of the window is waited for.
STATES = {
    "at first": "null",
    "a step that is lost": "(note => state.set({chosen: {step: note ? note.step : 0, object: -1}, chip: 'lost'}))"
                           "(pageData.notes[0])",
    "another step": "state.set({chosen: {step: Math.min(3, pageData.steps.count - 1), object: -1}, chip: 'all'})",
    "differences": "state.set({form: 'differences'})",
    "as recorded": "state.set({form: 'recorded'})",
    "a run": "document.getElementById('run').click()",
    "a search": "(field => { field.focus(); field.value = 'a'; field.dispatchEvent(new Event('input')); })"
                "(document.getElementById('search'))",
    "the help": "document.getElementById('helpButton').click()",
}
# How many pixels of the printed picture are not white.
INK = """(canvas => !canvas ? 0 : canvas.getContext('2d').getImageData(0, 0, canvas.width, canvas.height).data
    .filter((value, i) => i % 4 === 0 && value < 250).length)(document.querySelector('#printedPicture canvas'))"""
LEAST_INK = 1000
REST = "new Promise(done => setTimeout(() => requestAnimationFrame(() => requestAnimationFrame(done)), 60))"


def rest(page):
    """Until what has changed is shown, and a run has ended."""
    page.evaluate(REST)
    page.wait_for("!state.get().run || state.get().run.state !== 'running'")


# What is told where something is damaged: of all of the page, or of a macro or a run in its pane.
TROUBLE = """Array.from(document.querySelectorAll('#trouble, #macroPane p, .comparison p'))
    .filter(one => one.offsetHeight > 9).map(one => one.innerText).find(text => text.includes('damaged')) || ''"""


def strips(page, found):
    return [page.screenshot(*strip) for strip in found["strips"]]


def check_stops(checked, name, page):
    """The key reaches everything and leaves it again, forwards and backwards, and what has the focus shows it."""
    rest(page)
    count = page.evaluate(STOPS)
    page.evaluate("document.activeElement.blur()")
    for shift in (False, True):
        reached, before = set(), None
        for _ in range(MOST_STOPS):
            page.key("Tab", shift=shift)
            found = page.evaluate(FOCUS)
            if before and strips(page, before) == before["pixels"]:
                checked.complain(name, "the focus is not seen at", before["name"], before["text"])
            if found["stop"] is None or found["stop"] in reached:
                break
            if found["outline"] < OUTLINE:
                checked.complain(name, "no outline at", found["name"], found["text"])
            reached.add(found["stop"])
            before = None if shift else found | {"pixels": strips(page, found)}
        missed = [page.evaluate(f"(one => one.id || one.className || one.tagName)(stops[{stop}])")
                  for stop in set(range(count)) - reached]
        if missed or found["stop"] is not None and found["stop"] != 0 and not shift:
            checked.complain(name, "the key does not reach", missed, "and ends at", found["name"])


def check_keys(checked, name, page):
    """What single keys do, wherever the focus is."""
    def expect(condition, words):
        if not page.evaluate(condition):
            checked.complain(name, words, page.evaluate(FOCUS)["name"])
    page.evaluate("document.activeElement.blur()")
    for key, condition in (("2", "document.getElementById('stepsPane').contains(document.activeElement)"),
                           ("3", "document.getElementById('macroPane').contains(document.activeElement)"),
                           ("1", "document.getElementById('picture').contains(document.activeElement)"),
                           ("/", "document.activeElement.id === 'search'")):
        page.key(key)
        expect(condition, f"{key} goes to")
    page.key("Escape")
    page.evaluate("document.activeElement.blur()")
    page.key("?")
    expect("document.getElementById('help').open", "no help behind ?, the focus is at")
    page.key("Escape")
    expect("!document.getElementById('help').open", "the help stays open, the focus is at")
    page.key("2")
    page.key("Home")
    page.key("ArrowDown")
    first = page.evaluate("state.get().chosen.step")
    page.key("ArrowDown")
    if page.evaluate("state.get().chosen.step") <= first:
        checked.complain(name, "arrows do not go through the steps")
    page.evaluate("document.querySelector('input[type=range]').focus()")
    page.key("Home")
    expect("state.get().step === 0", "the slider does not go to its beginning, the focus is at")
    page.key("ArrowRight")
    expect("state.get().step === 1", "the slider does not go on, the focus is at")
    page.key("End")
    page.evaluate("document.getElementById('run').focus()")
    page.key("Enter")
    rest(page)
    expect("state.get().run && state.get().run.state === 'done'", "no run by the keyboard, the focus is at")


def check_looks(checked, name, page):
    for scheme in ("light", "dark"):
        page.show(scheme=scheme)
        for what, change in STATES.items():
            page.evaluate(f"({change}, null)")
            rest(page)
            for text, place, ratio in page.evaluate(CONTRAST):
                checked.complain(name, scheme, what, f"{place}: {text!r} has a contrast of {ratio}")
        page.key("Escape")
        page.evaluate("state.set({form: 'repaired', chip: 'all', mode: 'recorded'}); document.activeElement.blur()")


def check_widths(checked, name, page):
    for width, height in WIDTHS:
        page.show(width, height)
        for pane in ("picture", "steps", "macro") if width < 800 else ("picture",):
            page.evaluate(f"state.set({{pane: '{pane}'}})")
            rest(page)
            wide = page.evaluate("document.scrollingElement.scrollWidth")
            if wide > width:
                checked.complain(name, f"at {width} pixels {pane} is {wide} wide")


def check_print(checked, name, page):
    """White paper whatever the screen has, with the picture as an image on one of several pages."""
    page.show(scheme="dark")
    rest(page)
    grounds = [page.evaluate(f"getComputedStyle(document.querySelector('{one}')).backgroundColor")
               for one in ("body", "#stepsPane")]
    pdf = page.pdf(landscape=True, printBackground=True)
    streams = b"\n".join(_inflated(stream) for stream in re.findall(rb"stream\r?\n(.*?)endstream", pdf, re.DOTALL))
    filled = {tuple(round(float(part) * 255) for part in color)
              for color in re.findall(rb"([\d.]+) ([\d.]+) ([\d.]+) rg", streams)}
    if dark := filled & {tuple(map(int, re.findall(r"\d+", ground)))[:3] for ground in grounds}:
        checked.complain(name, "prints in", dark)
    count = len(re.findall(rb"/Type\s*/Page\b", pdf))
    if count < 2:
        checked.complain(name, "prints on", count, "pages")
    page.do("Emulation.setEmulatedMedia", media="print", features=[{"name": "prefers-color-scheme", "value": "dark"}])
    ground = page.evaluate("getComputedStyle(document.body).backgroundColor")
    if ground not in ("rgb(255, 255, 255)", "rgba(0, 0, 0, 0)"):
        checked.complain(name, "prints on", ground)
    page.evaluate("dispatchEvent(new Event('beforeprint'))")
    for text, place, ratio in page.evaluate(CONTRAST):
        checked.complain(name, "printed", f"{place}: {text!r} has a contrast of {ratio}")
    if page.evaluate(INK) < LEAST_INK:
        checked.complain(name, "prints no picture")
    page.evaluate("dispatchEvent(new Event('afterprint'))")
    page.do("Emulation.setEmulatedMedia", media="")
    if text := harness.shutil.which("pdftotext"):
        file = checked.folder / "printed.pdf"
        file.write_bytes(pdf)
        words = harness.run(text, file, "-").stdout
        if name not in words or "function runMacro" not in words:
            checked.complain(name, "does not print its name and macro")


def _inflated(stream):
    try:
        return zlib.decompress(stream)
    except zlib.error:
        return b""


def check_damage(checked, file):
    """One line tells what is wrong, in place of a blank page."""
    text = file.read_text(encoding="utf-8")
    broken = checked.folder / "broken.html"
    for island in ("scripts", "index", "steps", "objects", "geometry", "texts", "recording", "macro.csharp",
                   "map.csharp.repaired", "frame", "tables"):
        begin, packed = re.search(rf'(<script type="application/octet-stream" id="{re.escape(island)}">)([^<]*)',
                                  text).groups()
        for what, change in {"cut off": packed[:len(packed) // 8 * 4], "other bytes": "AAAA" * (len(packed) // 4),
                             "no base64": "?" + packed[1:]}.items():
            broken.write_text(text.replace(begin + packed, begin + change), encoding="utf-8")
            with checked.open(broken) as page:
                if "." in island:
                    page.evaluate("(state.set({target: 'csharp', form: 'repaired'}), null)")
                elif island in ("frame", "tables"):
                    page.evaluate("(document.getElementById('run').click(), null)")
                    page.wait_for("state.get().run && state.get().run.state === 'failed'")
                    page.evaluate("(state.set({mode: 'compared'}), null)")
                page.evaluate(REST)
                told = page.evaluate(TROUBLE)
                if "damaged" not in told or "\n" in told:
                    checked.complain(f"{island} {what}", "is told as", json.dumps(told))


def check_without_script(checked, name, file):
    page = checked.browser.open("about:blank")
    with page:
        page.do("Emulation.setScriptExecutionDisabled", value=True)
        page.load(file.as_uri())
        root = page.do("DOM.getDocument")["root"]["nodeId"]
        node = page.do("DOM.querySelector", nodeId=root, selector="noscript")["nodeId"]
        told = page.do("DOM.getOuterHTML", nodeId=node)["outerHTML"]
        if not re.search(rf"{name}.*\d+ objects", told, re.DOTALL):
            checked.complain(name, "says without a script", told[:300])


def check(checked):
    recordings = checked.recordings()
    for name in ("plate_dimensioned", "title_block_stamped"):
        file = checked.write(recordings[name], checked.folder / f"{name}.html")
        with checked.open(file) as page:
            checked.read(page, file)
            check_stops(checked, name, page)
            check_keys(checked, name, page)
            check_looks(checked, name, page)
            check_widths(checked, name, page)
            check_print(checked, name, page)
            checked.expect_peace(name, page, file)
        check_without_script(checked, name, file)
    for name in ("nothing_done", "view_tile_changed", "floor_plan"):
        file = checked.write(recordings[name], checked.folder / f"{name}.html")
        with checked.open(file) as page:
            checked.read(page, file)
            check_widths(checked, name, page)
            checked.expect_peace(name, page, file)
    check_damage(checked, file)
    return "pages can be used by keys, in both schemes, on small windows and on paper, and tell what is damaged"
