"""Pages of recordings in a browser, each figure beside an empty canvas of the same size in the same run."""

import pathlib
import resource
import shutil
import subprocess
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "tests/tools"))
from chromium import Chromium  # pylint: disable=wrong-import-position

SMALL, MIDDLE, LARGE, RUN = 100, 20_000, 200_000, 50_000  # added lines
RUNS = 5

# What the page is asked. Each gives milliseconds, or pictures a second; the median is taken here.
TOOLS = """
const seconds = 1000;
const nextFrame = () => new Promise(requestAnimationFrame);
const settle = async () => {
    const kept = picture.keptPicture;
    while (!kept.kept || kept.painting || kept.isStale) await nextFrame();
};
const lasting = async act => {
    const begin = performance.now();
    await act();
    return performance.now() - begin;
};
const median = async (runs, act) => {
    const times = [];
    for (let i = 0; i < runs; ++i) times.push(await act(i));
    return times.sort((a, b) => a - b)[runs >> 1];
};
const rate = async act => {
    const begin = performance.now();
    let count = 0;
    for (; performance.now() - begin < 2 * seconds; ++count) {
        act(count);
        await nextFrame();
    }
    return count / (performance.now() - begin) * seconds;
};
"""
QUESTIONS = {
    "empty": "rate(() => {})",
    "pan": "settle().then(() => rate(n => picture.move(n % 60 < 30 ? 4 : -4, n % 40 < 20 ? 1 : -1)))",
    "zoom": "settle().then(() => rate(n => picture.zoom(n % 60 < 30 ? 1.03 : 1 / 1.03, 300, 300)))",
    "anew": "settle().then(() => median(RUNS, () => lasting(async () => { picture.keptPicture.renew(); await settle(); })))",
    "step": "settle().then(() => median(RUNS, i => lasting(async () => {"
            " state.set({step: data.steps.count - (i + 1) % 2}); await nextFrame(); })))",
    "choose": "settle().then(() => median(RUNS, i => lasting(async () => {"
              " picture.chooseObject(Math.floor(data.objects.count / (i + 2))); await nextFrame(); })))",
    "filter": "median(RUNS, i => lasting(() => state.set({filter: i % 2 ? '' : 'line'})))",
    "tab": "lasting(async () => { await data.macro('TARGET', 'repaired'); })",
    "run": "lasting(async () => { document.getElementById('run').click();"
           " while (!state.get().run || state.get().run.state === 'running') await nextFrame(); })",
}


class ShownPage:
    """A page that is open, with its picture and its data within reach of what is evaluated."""

    def __init__(self, browser, html):
        self._page = browser.open("about:blank")
        self._page.load(html.as_uri())
        self._page.wait_for("document.body.classList.contains('isOpen')")
        prototype = self._page.do("Runtime.evaluate", expression="Picture.prototype")["result"]["objectId"]
        found = self._page.do("Runtime.queryObjects", prototypeObjectId=prototype)["objects"]["objectId"]
        self._page.do("Runtime.callFunctionOn", objectId=found,
                      functionDeclaration="function() { window.picture = this[0]; window.data = this[0].data; }")
        self._page.wait_for("picture.keptPicture.kept")
        self.first_picture = self._page.evaluate("performance.now()")

    def close(self):
        self._page.__exit__()

    def ask(self, question, **names):
        text = QUESTIONS[question].replace("RUNS", str(RUNS))
        for name, value in names.items():
            text = text.replace(name, value)
        return self._page.evaluate(f"(async () => {{ {TOOLS} return {text}; }})()")

    def heap(self):
        self._page.do("Performance.enable")
        metrics = self._page.do("Performance.getMetrics")["metrics"]
        return next(one["value"] for one in metrics if one["name"] == "JSHeapUsedSize")


def processor_time(command):
    before = resource.getrusage(resource.RUSAGE_CHILDREN)
    subprocess.run(command, check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    after = resource.getrusage(resource.RUSAGE_CHILDREN)
    return after.ru_utime + after.ru_stime - before.ru_utime - before.ru_stime


def columns():
    return "Figure", "Aim", "Measured", "Beside", "Met"


def rows(program, maker, folder, verdict):
    """Of a folder that is there; `maker` makes recordings. Nothing without a browser."""
    executable = shutil.which("chromium")
    if not executable:
        return
    folder = pathlib.Path(folder)

    def recording(count):
        path = folder / f"{count}.jsonl"
        if not path.exists():
            subprocess.run([maker, str(count), path, "lines"], check=True)
        return path

    def page(count, *options):
        html = folder / f"{count}.html"
        subprocess.run([program, "view", recording(count), "--output", html, *options], check=True,
                       stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        return html

    def at_most(what, value, unit, aim):
        return what, f"at most {aim:,} {unit}", f"{value:,.0f} {unit}", "", verdict(value <= aim)

    whole = folder / "whole.html"
    converting = processor_time([program, "convert", recording(LARGE), "--target", "all", "--quiet", "--output",
                                 f"{folder}/macros/"])
    repairing = processor_time([program, "convert", recording(LARGE), "--target", "all", "--quiet", "--repair",
                                "--output", f"{folder}/macros/"])
    viewing = processor_time([program, "view", recording(LARGE), "--output", whole])
    yield ("`view` of 200,000 lines, six targets, processor time against `convert --target all`", "at most 2.5 times",
           f"{viewing / converting:.1f}", f"against it with and without `--repair`: {viewing / (converting + repairing):.1f}",
           verdict(viewing <= 2.5 * converting))
    texts = sum(file.stat().st_size for file in (folder / "macros").rglob("*") if file.stem == str(LARGE))
    share = (whole.stat().st_size - 250e3) / (texts + recording(LARGE).stat().st_size)
    yield ("size of the page beyond 250 KB, against the recording and the macros", "at most 40 %", f"{share:.0%}", "",
           verdict(share <= 0.4))
    shutil.rmtree(folder / "macros")

    with Chromium(executable) as browser:
        for count, aim in ((SMALL, 150), (MIDDLE, 400), (LARGE, 2500)):
            html = page(count, "--target", "csharp,javascript")
            shown = ShownPage(browser, html)
            empty = shown.ask("empty")
            yield at_most(f"first picture, {count:,} objects", shown.first_picture, "ms", aim)
            if count > SMALL:
                for name in ("pan", "zoom"):
                    value = shown.ask(name)
                    yield (f"{name}, {count:,}", "60 pictures a second", f"{value:.0f}", f"an empty canvas: {empty:.0f}",
                           verdict(value >= 0.97 * empty))
                yield at_most(f"new picture, {count:,}", shown.ask("anew"), "ms", 150)
                yield at_most(f"slider by one step, {count:,}", shown.ask("step"), "ms", 16)
                yield at_most(f"choosing an object, {count:,}", shown.ask("choose"), "ms", 50)
                yield at_most(f"filter, {count:,}", shown.ask("filter"), "ms", 150)
            if count == LARGE:
                yield at_most("opening a tab of 40 MB", shown.ask("tab", TARGET="csharp"), "ms", 500)
                heap = shown.heap() / 1e6
                yield ("memory of the scripts, 200,000", "at most 400 MB", f"{heap:.0f} MB", "", verdict(heap <= 400))
            shown.close()
        for count, aim in ((1000, 100), (RUN, 3000)):
            shown = ShownPage(browser, page(count, "--target", "javascript"))
            yield at_most(f"run of {count:,} objects", shown.ask("run"), "ms", aim)
            shown.close()
