#!/usr/bin/python3
"""Edits drawings, and runs the recording of what changed on the old one: the new one has to come out.

    check_drawing_changes.py PROGRAM SOURCE_DIR
"""

import collections
import json
import logging
import re
import shutil
import sys

import harness

try:
    import ezdxf
    from ezdxf.math import Matrix44, Vec3
except ImportError:
    harness.skip("ezdxf is not installed")

import drawings
import expected
import recorded


VERSIONS = ("R12", "R2010")
MOST = 5  # complaints about one edit


class Unfit(Exception):
    """An edit of what the drawing does not have."""


AGAIN = (drawings.normals, drawings.polylines, drawings.curves, drawings.hatches)


def each(change):
    """An edit of all entities of model space that take it."""
    def edit(doc):
        done = 0
        for entity in list(doc.modelspace()):
            try:
                change(entity)
                done += 1
            except (ezdxf.DXFError, AttributeError, NotImplementedError, TypeError, ValueError, ZeroDivisionError):
                pass  # Not what every entity has.
        if not done:
            raise Unfit
    return edit


def setting(**attributes):
    def change(entity):
        for name, value in attributes.items():
            if entity.dxf.is_supported(name):
                old = entity.dxf.get_default(name)
                entity.dxf.set(name, value(old) if callable(value) else value)
    return each(change)


def on_layers(change):
    return lambda doc: [change(layer) for layer in doc.layers if layer.dxf.name != "0"]


def erase(step):
    def edit(doc):
        m = doc.modelspace()
        for entity in list(m)[::step]:
            m.delete_entity(entity)
    return edit


def longer(entity):
    entity.append((9, 9)) if entity.dxftype() == "LWPOLYLINE" else entity.append_vertex((9, 9))


def edited_block(doc):
    block = doc.blocks.get("Inner")
    block.add_line((0, 0), (7, 7))
    block.delete_entity(block[0])


def reversed_order(doc):
    doc.modelspace().entity_space.entities.reverse()


def upper_names(doc):
    for entity in doc.modelspace():
        entity.dxf.layer = entity.dxf.layer.upper()
        if entity.dxftype() == "INSERT":
            entity.dxf.name = entity.dxf.name.upper()


def seen_from_below(doc):
    for circle in doc.modelspace().query("CIRCLE[layer=='0']"):
        if not circle.dxf.hasattr("extrusion") and not circle.dxf.hasattr("thickness"):
            x, y, z = circle.dxf.center
            circle.dxf.center, circle.dxf.extrusion = (-x, y, -z), (0, 0, -1)


def other_handles(doc):
    """Groups that name an object, here with another handle."""
    lines = drawings.text_of(doc).split("\n")
    for place in range(0, len(lines) - 1, 2):
        code, value = int(lines[place]), lines[place + 1]
        names = code in (5, 105, 480, 481, 1005) or 320 <= code < 370 or 390 <= code < 400
        if names and re.fullmatch("[0-9A-F]*[1-9A-F][0-9A-F]*", value):
            lines[place + 1] = f"{int(value, 16) + 0x10000:X}"
    return "\n".join(lines)


def on_sheets(doc):
    for sheet in list(doc.layouts)[1:]:
        for entity in list(sheet):
            if entity.dxftype() != "VIEWPORT":
                entity.translate(3, 3, 0)
        sheet.add_circle((1, 1), 1)


def fewer_attributes(doc):
    for entity in doc.modelspace().query("INSERT"):
        for attribute in entity.attribs:
            attribute.dxf.text = ""


def attribute_texts(doc):
    for entity in doc.modelspace().query("INSERT"):
        for attribute in entity.attribs:
            attribute.dxf.text += " new"


EDITS = {
    "moved": each(lambda e: e.translate(1, 2, 3)), "turned": each(lambda e: e.rotate_z(0.3)),
    "scaled": each(lambda e: e.scale(2, 2, 2)), "mirrored": each(lambda e: e.transform(Matrix44.scale(-1, 1, 1))),
    "colored": setting(color=3), "colored truly": setting(true_color=0x112233), "layered": setting(layer="Locked"),
    "on a new layer": setting(layer="New one"), "lined": setting(linetype="DASHES", ltscale=3.5),
    "weighed": setting(lineweight=30), "thicker": setting(thickness=5), "closed": setting(flags=lambda old: old ^ 1),
    "named": setting(text=lambda text: text + " new"), "tagged": setting(tag="OTHER", prompt="Which?"),
    "higher": setting(height=lambda h: h * 2, char_height=lambda h: h * 2), "attached": setting(attachment_point=5),
    "turned texts": setting(rotation=lambda degrees: (degrees or 0) + 15), "other block": setting(name="Empty"),
    "raised": setting(elevation=lambda old: Vec3(0, 0, 9) if isinstance(old, Vec3) else 9), "longer": each(longer),
    "wide": setting(const_width=0.75), "dashed fill": setting(pattern_name="ANSI37", pattern_scale=3),
    "radius": setting(radius=lambda r: r + 1), "short arcs": setting(start_angle=10, end_angle=100),
    "edges": setting(invisible=5), "attributes": attribute_texts, "erased": erase(1), "half erased": erase(2),
    "drawn again": lambda doc: [topic(doc.modelspace()) for topic in drawings.TOPICS if topic in AGAIN],
    "block": edited_block, "new block": lambda doc: doc.blocks.new("Later").add_line((0, 0), (1, 1)),
    "new layer": lambda doc: doc.layers.add("Later", color=3),
    "layer's name": lambda doc: doc.layers.get("Dashes").rename("Strokes"),
    "layers' color": on_layers(lambda one: one.dxf.set("color", 5)), "layers off": on_layers(lambda one: one.off()),
    "layers on": on_layers(lambda one: one.on()), "layers frozen": on_layers(lambda one: one.freeze()),
    "other kind": lambda doc: drawings.text_of(doc).replace("\nCIRCLE\n", "\nPOINT\n").replace("dbCircle", "dbPoint"),
    "other handles": lambda doc: (erase(50)(doc), each(lambda e: e.translate(1, 0, 0) if e.dxftype() == "ARC" else 0),
                                  doc.modelspace().add_line((9, 9), (8, 7)), other_handles(doc))[-1],
    "font": lambda doc: doc.styles.get("Roman").dxf.update({"font": "isocp.shx", "width": 0.5, "height": 1}),
    "on sheets": on_sheets, "fewer attributes": fewer_attributes,
    "layers locked": on_layers(lambda one: one.lock()), "layers unlocked": on_layers(lambda one: one.unlock()),
}
# What R12 cannot hold.
NEWER = ("colored truly", "weighed", "attached", "wide", "dashed fill", "on sheets", "version")
# What draws the same, or has no statement.
SAME = {
    "untouched": lambda doc: None, "order": reversed_order, "names": upper_names, "below": seen_from_below,
    "version": lambda doc: setattr(doc, "dxfversion", "R2018"), "handles": other_handles,
    # The code that hides other entities hides edges of faces.
    "hidden": each(lambda e: e.dxftype() == "3DFACE" or e.dxf.set("invisible", 1)),
    "data": each(lambda e: e.set_xdata("ACAD", [(1000, "new")])),
}


def imported(checked, file, *options):
    done = harness.run(checked.program, "import", file, *options, timeout=120)
    if done.returncode:
        raise harness.subprocess.CalledProcessError(done.returncode, "import", done.stderr[-500:])
    return done.stdout


def apart(run, new):
    """What stands when the changes have run on the old drawing, and in the new one, and is not the same."""
    (spaces, tables), (new_spaces, new_tables) = run.forms(), new.forms()
    for space in spaces.keys() | new_spaces.keys():
        left = collections.defaultdict(list)
        for cls, handle, form in spaces.get(space, []):
            left[cls].append((handle, form))
        for cls, handle, form in new_spaces.get(space, []):
            off = [expected.difference(form, other) for _, other in left[cls]]
            if None in off:
                del left[cls][off.index(None)]
            else:
                own = [why for why, (other, _) in zip(off, left[cls]) if other == handle]
                yield f"{space}: {cls} {handle} does not come out: {(own or off)[:1]}"
        gone = [(cls, handle) for cls, rest in left.items() for handle, _ in rest]
        if space in new_spaces or not space.startswith("block "):
            yield from (f"{space}: {cls} {handle} should be gone" for cls, handle in gone)
    for (cls, name), one in new_tables.items():
        other = tables.get((cls, name))
        tags = set(one.properties) - {"Name", "Objects"} if cls == "AcDbLayerTableRecord" else ()
        for tag in tags if other else ():
            was, wanted = (each.name(each_one.get(tag), "No") for each, each_one in ((run, other), (new, one)))
            if was != wanted:
                yield f"{cls} {name}: {tag} is {was}, not {wanted}"
        if not other:
            yield f"{cls} {name} does not come out"
    yield from (f"layer {name} should be gone" for cls, name in tables.keys() - new_tables.keys() if "Layer" in cls)


def records(text):
    """The properties that a recording changes, of objects that it did not draw itself."""
    drawn = set()
    for line in text.splitlines():
        (kind, content), = json.loads(line).items()
        for action in content["actions"] if kind == "command" else [{kind: content}]:
            drawn.add(action.get("added", {}).get("handle"))
            drawn |= {one.get("handle") for one in action.get("custom", {}).get("data", [])}
            changed = action.get("modified", {})
            if changed.get("handle") not in drawn:
                yield from changed.get("properties", [])


def without_arrays(doc):
    """Of references, which are one object in a drawing and many in its recording."""
    for array in doc.modelspace().query("INSERT"):
        if array.mcount > 1:
            doc.modelspace().delete_entity(array)
    return doc


def pairs(version, folder):
    """Each edit with the drawing before it and that behind it."""
    old = folder / f"{version}.dxf"
    old.write_bytes(drawings.bytes_of(without_arrays(drawings.new(version, *drawings.TOPICS))))
    for name, edit in (EDITS | SAME).items():
        if version == "R12" and name in NEWER:
            continue
        doc = ezdxf.readfile(old)
        try:
            text = edit(doc)
        except (Unfit, ezdxf.DXFError):
            continue  # Of a kind or a table that the version does not have.
        new = folder / f"{version} {name}.dxf"
        new.write_bytes(drawings.bytes_of(doc, text if isinstance(text, str) else None))
        yield name, old, new


def differences(checked, name, old, new):
    """What the change of a pair has wrong, and its actions."""
    change, after = imported(checked, new, "--since", old), imported(checked, new)
    run = recorded.Recording(imported(checked, old), change)
    off = [f"{run.actions} actions"] * ((run.actions > 0) == (name in SAME))
    off += list(apart(run, recorded.Recording(after))) if name in EDITS else []
    off += [f"{one['tag']} goes from {one.get('old')} to {one['value']}" for one in records(change)
            if one["tag"] != "Erased" and ("old" not in one or one["old"] == one["value"])]
    if shutil.which("node"):
        recording = new.with_suffix(".jsonl")
        recording.write_text(change, encoding="utf-8")
        done = harness.run(checked.program, "verify", recording)
        off += [f"verify: {done.stdout[-500:]}{done.stderr[-500:]}"] * (done.returncode != 0)
    return off, run.actions


def main():
    logging.disable()
    checked = harness.Checked()
    complaints, edits, actions = [], 0, 0
    for version in VERSIONS:
        for name, old, new in pairs(version, checked.folder):
            edits += 1
            try:
                off, count = differences(checked, name, old, new)
            except harness.subprocess.CalledProcessError as failed:
                off, count = [failed.output], 0
            actions += count
            complaints += [f"{version} {name}: {one}" for one in off[:MOST]]
            complaints += [f"{version} {name}: and {len(off) - MOST} more"] * (len(off) > MOST)
    harness.finish(complaints, f"{edits} edits, {actions} actions")


main()
