"""Recorded texts that try to become elements, attributes or code of a page stay text, wherever the page shows them."""

import sys

import harness
import hostile
import page_data
import pages

ENDINGS = ["</script><img src=x onerror=alert(1)>", "<img src=http://localhost:1/a onerror=alert(2)>",
           "\"><svg onload=alert(3)>", "'><iframe srcdoc='<script>alert(4)</script>'>", "javascript:alert(5)",
           "</style><style>*{display:none}</style>", "<a href=javascript:alert(6)>x</a>", "</noscript><u>x</u>",
           "<!--<script>", "-->", "]]>", "&lt;b&gt;", "\"); alert(7); //", "*/ alert(8); /*", "${alert(9)}",
           "</textarea></title></select><object data=x>", "<base href=//x>", "<meta http-equiv=refresh content=0>",
           "\u202etxt.exe", "\u0000\u001b[31m"]
CHOSEN = ["title_block_stamped", "parts_list_edited", "notes_and_leaders", "site_plan_hatched", "replayed_session",
          "layers_and_blocks_changed", "editing_session", "sheets_and_views", "stairs_on_sheet", "parts_list_styled",
          "view_tile_changed", "dimensions_overridden"]
NAMES = ["\"><img src=x onerror=alert(1)>", "<u>under", "a'b&amp;c", "javascript:alert(1)", "{{x}}",
         "#step=1&target=cs"]
HARMLESS = str.maketrans("<>&", "()+")

# What elements lead to, or would show or run.
LINKS = """[].concat(...Array.from(document.querySelectorAll('*'), one => ['href', 'src', 'srcdoc', 'action', 'data',
    'formaction', 'xlink:href', 'target', 'http-equiv'].filter(name => one.hasAttribute(name)).map(name =>
    one.tagName + ' ' + name + ' ' + one.getAttribute(name))))"""

# How many of them there are depends on the width of letters, on where comments of a language end, on what is open by
# then, and on a text that ends the script of a macro, which is a fault more in the report.
ROWS = {"span", "div", "button", "svg", "path", "li", "p", "b", "table", "thead", "tbody", "tr", "th", "td", "code",
        "dl", "dt", "dd"}

HARMLESS_ATTRIBUTES = {"class", "disabled", "hidden", "title"}  # come and go with what is shown at the moment

# Shows everything that the page can show, one after the other. Gives elements by their names: how many there were at
# most, and which attributes they had.
SHOW = """(async () => {
    const found = {};
    const rest = async () => {
        await new Promise(done => setTimeout(done, 10));
        const counts = {};
        for (const one of document.querySelectorAll('*')) {
            const name = one.tagName.toLowerCase();
            counts[name] = (counts[name] || 0) + 1;
            found[name] = found[name] || {count: 0, attributes: {}};
            one.getAttributeNames().forEach(attribute => { found[name].attributes[attribute] = true; });
        }
        Object.keys(counts).forEach(name => { found[name].count = Math.max(found[name].count, counts[name]); });
    };
    for (const {name, forms} of pageData.index.targets) {
        for (const form of Object.keys(forms).concat('differences')) {
            state.set({target: name, form: form});
            await rest();
        }
    }
    state.set({target: 'javascript', form: 'repaired'});
    for (let step = 0; step < pageData.steps.count; step += Math.ceil(pageData.steps.count / 16)) {
        state.set({chosen: {step: step, object: pageData.objectOfStep(step)}, hover: {step: step, object: -1}});
        await rest();
    }
    for (const chip of ['lost', 'faults', 'assumed', 'changes', 'all']) {
        state.set({chip: chip});
        await rest();
    }
    for (let space = 0; space < pageData.index.spaces.length; ++space) {
        state.set({space: space});
        await rest();
    }
    document.querySelectorAll('details').forEach(one => { one.open = true; });
    const field = document.getElementById('search');
    for (const words of ['<', 'img', 'alert', 'a']) {
        field.value = words;
        field.dispatchEvent(new Event('input', {bubbles: true}));
        await rest();
        await rest();
    }
    dispatchEvent(new Event('beforeprint'));
    await rest();
    return found;
})()"""


class Hostile(hostile.Hostile):
    """Also where names stand."""

    def _text(self, text):
        if text.startswith("*") or text == "0":  # the host's own names
            return text
        ending = ENDINGS[self._count % len(ENDINGS)]
        self._count += 1
        return text + ending

    def changed(self, node):
        changed = super().changed(node)
        if isinstance(changed, dict) and isinstance(changed.get("name"), str) and "value" not in changed:
            changed["name"] = self._text(node["name"])
        return changed


def twins(checked, folder, number, name, recording):
    """A hostile recording and one that differs in the letters that mean something in a page."""
    text = Hostile(number * 7).recording(recording.read_text(encoding="utf-8-sig"))
    for kind, title, own in (("hostile", f"{name} {NAMES[number % len(NAMES)]}", text),
                             ("harmless", f"{name} {NAMES[number % len(NAMES)]}".translate(HARMLESS),
                              text.translate(HARMLESS))):
        file = folder / kind / f"{title}.jsonl".replace("/", "\u2215")
        file.parent.mkdir(parents=True, exist_ok=True)
        file.write_text(own, encoding="utf-8")
        page = checked.folder / f"{number}.{kind}.html"
        ran = harness.run(checked.program, "view", file, "--output", page)
        if not page.is_file():  # of one that cannot be converted there is a page, too
            sys.exit(f"{file}: {ran.stderr}")
        yield page


def compare(checked, name, what, found, wanted):
    """Hostile texts have made no element and no attribute."""
    none = {"count": 0, "attributes": {}}
    for tag in set(found) | set(wanted) - ROWS:
        here, there = found.get(tag, none), wanted.get(tag, none)
        if tag not in ROWS and here["count"] != there["count"]:
            checked.complain(name, what, tag, here["count"], "in place of", there["count"])
        if strange := set(here["attributes"]) - set(there["attributes"]) - HARMLESS_ATTRIBUTES:
            checked.complain(name, what, tag, "has", strange)


def look(checked, name, file, is_hostile):
    with checked.open(file) as page:
        checked.read(page, file)
        found = page.evaluate(SHOW)
        for link in page.evaluate(LINKS):
            if not link.startswith("META http-equiv Content-Security-Policy"):
                checked.complain(name, "leads to", link)
        page.evaluate("dispatchEvent(new Event('afterprint'))")
        checked.expect_peace(name, page, file)
        if is_hostile:
            # As recorded, texts may become code, which runs in the frame and is refused what it asks for.
            for form in ("repaired", "recorded"):
                if page.evaluate(f"Boolean(pageData.formOf('javascript', '{form}'))"):
                    page_data.run_form(page, form)
                    if page.evaluate("state.get().run.state") in ("failed", "refused"):
                        checked.complain(name, form, page.evaluate("runLines(state.get().run)"))
            for words in page.dialogs + [one for one in page.requests if one.split("#")[0] != file.as_uri()]:
                checked.complain(name, "a run leads to", words)
        return found


def without_script(checked, file):
    with checked.browser.open("about:blank") as page:
        page.do("Emulation.setScriptExecutionDisabled", value=True)
        page.load(file.as_uri())
        found, nodes = {}, [page.do("DOM.getDocument", depth=-1)["root"]]
        while nodes:
            node = nodes.pop()
            nodes += node.get("children", [])
            if node["nodeType"] == 1:
                tag = found.setdefault(node["localName"], {"count": 0, "attributes": {}})
                tag["count"] += 1
                tag["attributes"] |= dict.fromkeys(node.get("attributes", [])[::2])
        checked.expect_peace(file.stem, page, file)
        return found


def check(checked):
    recordings = checked.recordings()
    for number, name in enumerate(CHOSEN):
        recording = recordings[name]
        files = list(twins(checked, checked.folder / "twins", number, name, recording))
        found, wanted = (look(checked, f"{name} {file.stem}", file, file is files[0]) for file in files)
        compare(checked, name, "in the page", found, wanted)
        compare(checked, name, "without script", *(without_script(checked, file) for file in files))
    return f"{len(CHOSEN)} hostile recordings stay text"
