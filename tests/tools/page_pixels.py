"""What a page draws is where it was recorded and as it is to be seen: at places reckoned from the recording, before and
behind the steps that draw and erase it, in the colors of a comparison, and in a browser's own pixels."""

import json
import math

import pages

NEAR = 0.55  # of the distance from the ground to a color: what is nearer to it counts as that color
REACH = 2  # pixels around a place
PATIENCE = 8  # pictures that are waited for until it is as it is to be

# They can be seen on the paper of both schemes, so that none is made lighter or darker.
RED, BLUE, GREEN = [210, 60, 60], [60, 110, 230], [0, 140, 60]


def added(cls, handle, color, properties):
    told = [{"tag": tag, "value": value} for tag, value in properties.items()]
    return {"added": {"class": cls, "handle": handle,
                      "properties": told + [{"tag": "LineColor", "value": {"color": {"rgb": color}}}]}}


def circle(handle, x, y, radius, color=None):
    return added("AcDbCircle", handle, color or BLUE, {"Center X": x, "Center Y": y, "Radius": radius})


def solid(handle, color, *corners):
    elements = [{"tag": {"int": i}, "value": {"point": [*corner, 0]}} for i, corner in enumerate(corners)]
    return added("AcDbSolid", handle, color, {"Vertex": {"collection": {"elements": elements}}})


def command(name, *actions):
    return {"command": {"name": name, "actions": list(actions)}}


# Large coordinates with digits behind them, as sites have.
X, Y = 123456700.125, 7654300.5
RECORDING = [
    {"recording": {"version": 1, "sheet": {"name": "Model", "model": True}}},
    {"object": {"class": "AcDbLayerTableRecord", "handle": "10", "name": "0"}},
    {"object": {"class": "AcDbLine", "handle": "A0", "startPoint": [X + 5, Y + 5, 0], "endPoint": [X + 95, Y + 5, 0]}},
    command("LINE", added("AcDbLine", "30", RED, {"Start X": X, "Start Y": Y + 20, "Start Z": 0, "End X": X + 100,
                                                  "End Y": Y + 60, "End Z": 0})),
    command("CIRCLE", circle("31", X + 30, Y + 60, 15)),
    command("SOLID", solid("32", GREEN, (X + 60, Y + 60), (X + 80, Y + 60), (X + 60, Y + 80), (X + 80, Y + 80))),
    command("CIRCLE", circle("33", X + 70, Y + 25, 12)),
    command("ERASE", {"custom": {"kind": 17, "data": [{"handles": ["33"]}, {"classes": ["AcDbCircle"]}]}}),
    command("CIRCLE", circle("34", X + 30, Y + 90, 6)),
    command("CIRCLE", circle("35", X + 90, Y + 90, 6)),
]

# The canvas within the window and the view that shows all of the space.
VIEW = """(() => {
    const canvas = document.querySelector('.pictureCanvas');
    const box = canvas.getBoundingClientRect();
    const view = fittingView(Scene.ofData(pageData).extentsOf(state.get().space), canvas.width, canvas.height);
    return {left: box.x, top: box.y, x: view.x, y: view.y, scale: view.scale};
})()"""
PALETTE = """(names => Object.fromEntries(names.map(name => {
    const context = document.createElement('canvas').getContext('2d');
    context.fillStyle = getComputedStyle(document.querySelector('.stage')).getPropertyValue('--' + name).trim();
    context.fillRect(0, 0, 1, 1);
    return [name, Array.from(context.getImageData(0, 0, 1, 1).data.slice(0, 3))];
})))(['pane', 'there', 'equal', 'missing', 'surplus', 'different'])"""
SHOWN = "new Promise(done => setTimeout(() => requestAnimationFrame(() => requestAnimationFrame(done)), 100))"


def distance(one, other):
    return math.dist(one, other)


def rim(x, y, radius, count=12):
    """Places around a circle."""
    angles = [2 * math.pi * (i + 0.3) / count for i in range(count)]
    return [(x + radius * math.cos(angle), y + radius * math.sin(angle)) for angle in angles]


class Canvas:
    """The pixels of one page."""

    def __init__(self, checked, name, page):
        self._checked, self._name, self._page = checked, name, page
        page.evaluate("document.querySelector('.stage').focus()")
        page.key("f")
        page.evaluate(SHOWN)
        self.view, self.palette = page.evaluate(VIEW), page.evaluate(PALETTE)

    def at(self, x, y):
        """A place of the drawing in the window."""
        view = self.view
        return view["left"] + (x - view["x"]) * view["scale"], view["top"] + (view["y"] - y) * view["scale"]

    def has(self, place, color, reach):
        """Whether there is a pixel of the color around the place."""
        x, y = self.at(*place)
        size = 2 * reach + 1
        rows = self._page.screenshot(math.floor(x) - reach, math.floor(y) - reach, size, size)
        limit = NEAR * distance(color, self.palette["pane"])
        return any(distance(pixel, color) < limit for row in rows for pixel in row)

    def expect(self, what, places, color, least=1.0, most=1.0, reach=REACH):
        for _ in range(PATIENCE):
            share = sum(self.has(place, color, reach) for place in places) / len(places)
            if least <= share <= most:
                return
            self._page.evaluate(SHOWN)
        self._checked.complain(self._name, what, f"{share:.0%} of its places have the color {color}")

    def expect_none(self, what, places, color):
        self.expect(what, places, color, 0, 0)

    def go_to(self, step):
        self._page.evaluate(f"state.set({{step: {step}}})")
        self._page.evaluate(SHOWN)


LINE = [(X + 100 * t, Y + 20 + 40 * t) for t in (0.1, 0.3, 0.55, 0.8)]
BESIDE = [(x - 3, y + 3) for x, y in LINE]
FILL = [(X + 63, Y + 63), (X + 70, Y + 70), (X + 77, Y + 66), (X + 66, Y + 77)]
THERE = [(X + t, Y + 5) for t in (10, 40, 70)]
FIRST, ERASED = rim(X + 30, Y + 60, 15), rim(X + 70, Y + 25, 12)


def check_picture(checked, name, page):
    """Before and behind each of the steps."""
    canvas = Canvas(checked, name, page)
    steps = page.evaluate("Array.from({length: pageData.steps.count}, (_, step) => pageData.stepName(step))")
    behind = {word: i + 2 for i, word in enumerate(steps) if word}  # the last one of the name
    first_circle = steps.index("CIRCLE") + 2
    for step, what, places, color, is_there in (
            (0, "the line before it is drawn", LINE, RED, False),
            (0, "what was there", THERE, canvas.palette["there"], True),
            (behind["LINE"], "the line", LINE, RED, True), (behind["LINE"], "beside the line", BESIDE, RED, False),
            (first_circle - 1, "the circle before it is drawn", FIRST, BLUE, False),
            (first_circle, "the circle's rim", FIRST, BLUE, True),
            (first_circle, "the circle's middle", [(X + 30, Y + 60)], BLUE, False),
            (behind["SOLID"], "within the fill", FILL, GREEN, True),
            (behind["SOLID"], "outside of the fill", [(x + 20, y) for x, y in FILL], GREEN, False),
            (behind["ERASE"] - 1, "the circle before it is erased", ERASED, BLUE, True),
            (behind["ERASE"], "the circle that is erased", ERASED, BLUE, False),
            (behind["ERASE"] - 1, "the circle that is erased, by the slider back", ERASED, BLUE, True)):
        canvas.go_to(step)
        canvas.expect(what, places, color, *((1, 1) if is_there else (0, 0)))


def check_choice(checked, name, page):
    """A click on what is drawn chooses it."""
    canvas = Canvas(checked, name, page)
    for handle, place in (("31", FIRST[0]), ("30", LINE[1]), ("32", FILL[1])):
        page.click(*canvas.at(*place))
        for _ in range(PATIENCE):
            page.evaluate(SHOWN)
            chosen = page.evaluate("(one => one < 0 ? '' : pageData.objects.handle(one))(state.get().chosen.object)")
            if chosen == handle:
                break
        else:
            checked.complain(name, "a click at", place, "chooses", chosen or "nothing", "in place of", handle)
    page.evaluate("state.set({chosen: nothingChosen})")


def check_comparison(checked, name, page):
    """In the edited macro the first circle is larger, the second to last is not drawn, and one more is."""
    page.evaluate("(document.getElementById('run').click(), null)")
    page.wait_for("state.get().run && state.get().run.kinds && state.get().run.state !== 'running'")
    canvas = Canvas(checked, name, page)
    palette = canvas.palette
    canvas.expect("the line, which is equal", LINE, palette["equal"])
    canvas.expect("the circle that is another", rim(X + 30, Y + 60, 15, 40), palette["different"], 0.4)
    canvas.expect("what is drawn in its place", rim(X + 30, Y + 60, 18, 40), palette["surplus"], 0.3)
    missing = rim(X + 30, Y + 90, 6, 40)
    canvas.expect("the circle that is missing", missing, palette["missing"], 0.2, 0.8, 0)
    canvas.expect_none("the circle that is missing", missing, palette["equal"])
    canvas.expect("the circle that is surplus", rim(X + 55, Y + 90, 5, 40), palette["surplus"], 0.3)
    page.evaluate("state.set({mode: 'recorded'})")
    Canvas(checked, name, page).expect("the circle without the comparison", FIRST, BLUE)


def edited(macro):
    """The macro with a circle changed, one left out and one added."""
    lines = macro.read_text(encoding="utf-8").split("\n")
    circles = [i for i, line in enumerate(lines) if "InsertCircle(" in line]
    first, left_out = circles[0], circles[2]
    lines[first] = lines[first].replace("15.00000000000000", "18.00000000000000")
    name = lines[left_out].split("=")[0].split()[-1]
    kept = [line for i, line in enumerate(lines) if f"{name}." not in line and i != left_out]
    last = max(i for i, line in enumerate(kept) if "InsertCircle(" in line)
    kept.insert(last + 1, f"mSkMgr.InsertCircle({X + 55}, {Y + 90}, 0, 5);")
    return "\n".join(kept)


def check(checked):
    recording = checked.folder / "places.jsonl"
    recording.write_text("".join(json.dumps(line) + "\n" for line in RECORDING), encoding="utf-8")
    macro, = checked.convert("javascript", [recording], checked.folder / "repaired", "--repair")
    changed = checked.folder / "changed.html"
    changed.write_text(edited(macro.file), encoding="utf-8")
    plain = checked.write(recording, checked.folder / "plain.view.html")
    other = checked.write(recording, checked.folder / "edited.view.html", "--macro", changed)
    for scheme in ("light", "dark"):
        for file, checks in ((plain, [check_picture, check_choice]), (other, [check_comparison])):
            with checked.open(file, scheme=scheme) as page:
                checked.read(page, file)
                for one in checks:
                    one(checked, f"{file.stem} {scheme}", page)
                checked.expect_peace(file.stem, page, file)
    return "pixels are where and as they are to be"
