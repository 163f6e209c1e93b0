"""What a recording draws, as geometry in world coordinates."""

import collections
import dataclasses
import json
import math

from ezdxf.math import Vec3


@dataclasses.dataclass
class Object:
    cls: str
    space: str = ""
    properties: dict = dataclasses.field(default_factory=dict)
    data: dict = dataclasses.field(default_factory=dict)  # what its `object` line says

    def get(self, tag, default=None):
        return self.properties.get(tag, self.data.get(tag, default))

    def point(self, tag):
        """Three properties, or one."""
        whole = self.get(tag)
        return Vec3(whole) if whole else Vec3(*(self.get(f"{tag} {axis}", 0) for axis in "XYZ"))

    def points(self, tag="Vertex"):
        return [Vec3(point) for point in self.get(tag) or []]

    def yes(self, tag):
        return self.get(tag) in ("Yes", 1, True)

    def set(self, record):
        tag, value, index = record["tag"], value_of(record["value"]), value_of(record.get("index"))
        if record.get("group") == "BlockAttributes":
            self.properties.setdefault("attributes", {})[tag] = value
        elif tag[:-1].lower() in ("vertex ", "fit point ") and index is not None:
            points = self.properties["Vertex" if tag[0] == "V" else "Fit point"]
            points[int(index)]["xyz".index(tag[-1].lower())] = value
        elif index is not None:
            self.properties.setdefault(tag, {})[int(index)] = value
        elif tag == "Global width":
            for end in ("Start", "End"):
                self.properties[f"{end} segment width"] = dict.fromkeys(range(len(self.points())), value)
        elif tag == "Major radius":
            axis = self.point("Major axis vector").normalize(value)
            self.properties |= {f"Major axis vector {name}": length for name, length in zip("XYZ", axis)}
        else:
            self.properties[tag] = value


def value_of(value):
    """A choice is what was chosen, a list its values, a color its only key or name, an object ("id", handle)."""
    if not isinstance(value, dict):
        return value
    (form, content), = value.items()
    if form == "collection":
        elements = [value_of(one["value"]) for one in content["elements"]]
        return elements[content["chosen"]] if "chosen" in content else elements
    if form == "element":
        return value_of(content["value"])
    if form == "id":
        return ("id", content)
    if form == "color" and isinstance(content, dict):
        return next(iter(content.values()))
    return content


class Recording:
    """The objects that stand when all of it has run."""

    def __init__(self, *texts):
        self.data, self.drawn, self.sheet = {}, {}, ""
        self.actions = 0
        for text in texts:
            self.actions = 0
            for line in text.splitlines():
                self._run(json.loads(line))

    def _run(self, action):
        for kind, content in action.items():
            if kind == "object":
                known = self.data.setdefault(content["handle"], {})
                known.update(content)
                continue
            if kind == "recording":
                self.sheet = "" if content.get("sheet", {}).get("model", True) else content["sheet"]["name"]
            elif kind == "command":
                self.actions += not content["actions"]
                for one in content["actions"]:
                    self._run(one)
            elif kind != "drawing":
                self.actions += 1
                getattr(self, f"_{kind}", lambda _: None)(content)

    def _object(self, handle, cls):
        """Changed objects may be those of the drawing."""
        if handle not in self.drawn:
            self.drawn[handle] = Object(cls, self.sheet, {}, self.data.setdefault(handle, {}))
        return self.drawn[handle]

    def _added(self, content):
        self.drawn.pop(content["handle"], None)
        one = self._object(content["handle"], content["class"])
        if one.cls == "AcDbHatch":
            one.properties["hatch"] = self.hatch
        for record in content["properties"]:
            one.set(record)
        self._make_block(one)

    def _make_block(self, one):
        """Of its objects, and of no others."""
        if one.cls != "AcDbBlockTableRecord":
            return
        space = f"block {one.get('Name', one.get('name'))}".lower()
        members = one.get("Objects") or []
        self.drawn = {handle: other for handle, other in self.drawn.items()
                      if other.space != space or handle in members}
        for handle in members:
            if handle in self.drawn:
                self.drawn[handle].space = space

    def _modified(self, content):
        one = self._object(content["handle"], content["class"])
        for record in content["properties"]:
            one.set(record)
        self._make_block(one)
        if one.get("Erased") == "Yes":
            del self.drawn[content["handle"]]

    def _property(self, content):
        self._modified(content | {"properties": [content]})

    def _custom(self, content):
        data = [value_of(one) for one in content["data"]]
        if content["kind"] == 13 and len(data) == 1:
            self.sheet = "" if data[0] == "Model" else data[0]
        elif content["kind"] == 16:
            one = self._object(data[3], data[4])
            one.properties |= {"Vertex": data[0], "bulges": [x for x, *_ in data[1]], "Closed": data[2]}
            if len(data) > 7:
                starts, ends = ([data[8]] * len(data[0]),) * 2 if data[7] else data[5:7]
                one.properties["Start segment width"] = dict(enumerate(starts))
                one.properties["End segment width"] = dict(enumerate(ends))
        elif content["kind"] == 17:
            for handle in data[0]:
                self.drawn.pop(handle, None)
        elif content["kind"] == 18:
            self.hatch = data
        elif content["kind"] == 39:
            self._object(data[0], data[1]).properties.setdefault("attributes", {})[data[2]] = data[3]
        elif content["kind"] == 46:
            self.sheet, before = data[5], self.sheet
            self._object(data[3], data[4]).properties["corners"] = data[0]
            self.sheet = before

    def name(self, value, default):
        """What a table calls the object of a property, in small letters; other values as they are."""
        if isinstance(value, tuple):
            one = self.drawn.get(value[1], Object(""))
            value = one.get("Name") or self.data.get(value[1], {}).get("name", f"unnamed {value[1]}")
        value = default if value is None else value
        return value.lower() if isinstance(value, str) else value

    def forms(self):
        """By space, the form of each object in order; objects of tables by their names."""
        spaces, tables = collections.defaultdict(list), {}
        for handle, one in self.drawn.items():
            if one.cls.endswith("TableRecord"):
                tables[one.cls, self.name(("id", handle), "")] = one
            else:
                spaces[one.space.lower()].append((one.cls, handle, self._form(one)))
        return spaces, tables

    def _form(self, one):
        form = FORMS.get(one.cls, lambda _: {})(one)
        if one.cls == "AcDbHatch":
            form |= self._hatch(one)
        return form | {
            "layer": self.name(one.get("Layer"), "0"), "color": one.get("LineColor", "bylayer"),
            "line style": self.name(one.get("LineStyle"), "bylayer"), "line scale": one.get("LineScale", 1),
            "weight": one.get("LineWeight", -1), "thickness": one.get("Thickness", 0)}

    def _hatch(self, one):
        """What bounds it is given in one of four forms."""
        data = one.get("hatch")
        loops = []
        if data[4]:
            loops = [part for handle in data[7] for part in primitives(self.data.get(handle, {"class": "nothing"}))]
        elif data[5]:
            loops = segments([Vec3(point) for point in data[8]], data[7], True)
        elif not data[3]:
            points = iter(data[8])
            for count in data[7]:
                loops += segments([Vec3(next(points)) for _ in range(count)], [], True)
        gradient = data[-4:] if data[6] else None
        name, scale, turn = (one.get(*of) for of in zip(("Pattern name", "Scale", "Angle"), data))
        return {"pattern": name.upper(), "pattern scale": scale, "pattern angle": angle(turn),
                "gradient": gradient, "boundary": ordered(loops)}


def angle(value):
    return round(value % math.tau, 12) % math.tau


def direction(value):
    return Vec3(math.cos(value), math.sin(value), 0)


def ordered(parts):
    """Primitives in an order that does not hang on who wrote them."""
    return sorted(parts, key=lambda part: [part[0], *(round(x, 5) + 0.0 for point in part[1:] for x in point)])


def segment(start, end, middle=None):
    start, end = sorted((start, end), key=lambda point: [round(x, 5) + 0.0 for x in point])
    return ("arc", start, end, middle) if middle is not None else ("line", start, end)


def segments(points, bulges, closed):
    """The lines and arcs of a polyline in a plane."""
    parts = []
    bulges = list(bulges) + [0] * len(points)
    for place, start in enumerate(points if closed else points[:-1]):
        end, bulge = points[(place + 1) % len(points)], bulges[place]
        if start.distance(end) > 1e-9:
            half = (end - start) / 2
            parts.append(segment(start, end, start + half + Vec3(half.y, -half.x) * bulge if bulge else None))
    return parts


def arc(center, radius, start, end):
    """Anticlockwise from one angle to the other; a whole one has no ends."""
    if abs((end - start) % math.tau) < 1e-9:
        return ("circle", center, (radius, 0, 0))
    return segment(*(center + radius * direction(one) for one in (start, end, start + (end - start) % math.tau / 2)))


def primitives(data):
    """Of what an `object` line says about something that bounds a hatch."""
    cls = data["class"]
    if cls == "AcDbLine":
        return [segment(Vec3(data["startPoint"]), Vec3(data["endPoint"]))]
    if cls == "AcDbCircle":
        return [("circle", Vec3(data["center"]), (data["radius"], 0, 0))]
    if cls == "AcDbArc":
        return [arc(Vec3(data["center"]), data["radius"], data["startAngle"], data["endAngle"])]
    if cls == "AcDbEllipse":
        return [ellipse(*(Vec3(data[key]) for key in ("center", "majorAxis", "minorAxis")),
                        data.get("startAngle", 0), data.get("endAngle", 0))]
    if cls in ("AcDbPolyline", "AcDb3dPolyline"):
        points = [Vec3(one) for one in data.get("points", data.get("vertices"))]
        return segments(points, data.get("bulges", []), data.get("isClosed", False))
    return [("unknown", cls)]


def ellipse(center, major, minor, start, end):
    if abs((end - start) % math.tau) < 1e-9:
        return ("ellipse", center, major, minor)
    return segment(*(center + major * math.cos(one) + minor * math.sin(one)
                     for one in (start, end, start + (end - start) % math.tau / 2)))


def text(one):
    justify = one.get("Justify", "Left")
    return {"position": one.point("Position") if justify in ("Left", "Aligned", "Fit") else None,
            "aligned at": one.point("Text alignment") if justify != "Left" else None,
            "height": one.get("Height"), "direction": direction(one.get("Rotation", 0)), "justify": justify}


def polyline(one):
    points = one.points()
    if one.get("Elevation") is not None:
        points = [point.replace(z=one.get("Elevation")) for point in points]
    widths = [[value for _, value in sorted(one.get(f"{end} segment width", {}).items())] for end in ("Start", "End")]
    return {"vertices": points, "bulges": padded(one.get("bulges", []), len(points)), "closed": one.yes("Closed"),
            "widths": [padded(part, len(points)) for part in widths]}


def padded(values, count):
    return [*values, *[0.0] * (count - len(values))][:count]


def viewport(one):
    """Its corners are told, and what has changed since."""
    low, _, high, _ = map(Vec3, one.get("corners"))
    center, size = (low + high) / 2, high - low
    return {"center": [one.get(f"Center {axis}", getattr(center, axis.lower())) for axis in "XYZ"],
            "size": [one.get("Width", size.x), one.get("Height", size.y)]}


def keyed(*keys, **others):
    """The data of a dimension, by their names."""
    return lambda one: {key: one.point(key) for key in keys} | {key: one.get(tag) for key, tag in others.items()} | {
        "text": one.get("Text override", one.get("dimensionText", "")) or ""}


FORMS = {
    "AcDbLine": lambda o: {"start": o.point("Start"), "end": o.point("End")},
    "AcDbPoint": lambda o: {"position": o.point("Position")},
    "AcDbCircle": lambda o: {"center": o.point("Center"), "radius": o.get("Radius")},
    "AcDbArc": lambda o: {"arc": arc(o.point("Center"), o.get("Radius"), o.get("Start Angle"), o.get("End Angle"))},
    "AcDbEllipse": lambda o: {
        "center": o.point("Center"), "major": o.point("Major axis vector"), "minor": o.get("Minor radius"),
        "whole": o.get("Start angle", 0) == 0 and o.get("End angle", 0) in (0, math.tau),
        "range": [direction(o.get("Start angle", 0)), direction(o.get("End angle", 0))]},
    "AcDbPolyline": polyline, "AcDb2dPolyline": polyline, "AcDb3dPolyline": polyline,
    "AcDbPolygonMesh": lambda o: {
        "vertices": o.points(), "size": [o.get("M vertex count"), o.get("N vertex count")],
        "closed": [o.yes("M closed") or o.yes("isMClosed"), o.yes("N closed") or o.yes("isNClosed")]},
    "AcDbPolyFaceMesh": lambda o: {"vertices": o.points(), "faces": o.get("faces")},
    "AcDbSolid": lambda o: {"vertices": o.points()}, "AcDbTrace": lambda o: {"vertices": o.points()},
    "AcDbFace": lambda o: {"vertices": o.points(), "edges": [o.get(f"Edge {n}", "Hidden") for n in (1, 2, 3, 4)]},
    "AcDbText": lambda o: {"contents": o.get("Contents"), **text(o)},
    "AcDbAttributeDefinition": lambda o: {
        "tag": o.get("Tag"), "value": o.get("Value", ""), "prompt": o.get("Prompt", ""), **text(o),
        "flags": [o.yes(tag) for tag in ("Invisible", "Constant", "Verify", "Preset")]},
    "AcDbMText": lambda o: {
        "contents": o.get("Contents"), "position": o.point("Position"), "width": o.get("Width", 0),
        "height": o.get("Text Height"), "justify": o.get("Justify", "Top Left"),
        "direction": direction(o.get("Rotation", 0))},
    "AcDbBlockReference": lambda o: {
        "name": o.get("Name").lower(), "position": o.point("Position"),
        "axes": [direction(o.get("Rotation", 0)) * o.get("Scale X", 1),
                 direction(o.get("Rotation", 0) + math.pi / 2) * o.get("Scale Y", 1), Vec3(0, 0, o.get("Scale Z", 1))],
        "attributes": o.get("attributes", {})},
    "AcDbSpline": lambda o: {"fit points": o.points("Fit point"), "closed": o.yes("Closed"), "tangents": [
        o.point("Start tangent vector"), o.point("End tangent vector")]},
    "AcDbLeader": lambda o: {"vertices": o.points()},
    "AcDbMline": lambda o: {"vertices": o.points("vertices"), "scale": o.get("RLine scale"),
                            "closed": o.yes("closedMline"), "justify": o.get("RLine justification")},
    "AcDbRay": lambda o: {"base": o.point("Base point"),
                          "direction": (o.point("Second point") - o.point("Base point")).normalize()},
    "AcDbXline": lambda o: FORMS["AcDbRay"](o),
    "AcDbShape": lambda o: {"name": o.get("Name"), "position": o.point("Position"), "size": o.get("Size"),
                            "direction": direction(o.get("Rotation", 0))},
    "AcDbFcf": lambda o: {"position": o.point("Position"), "contents": o.get("Content")},
    "AcDbRasterImage": lambda o: {"path": o.get("Path"), "position": o.point("Position"),
                                  "direction": direction(o.get("Rotation", 0))},
    "AcDbViewport": viewport,
    "AcDbRotatedDimension": keyed("xLine1Point", "xLine2Point", "dimLinePoint", rotation="rotation"),
    "AcDbAlignedDimension": keyed("xLine1Point", "xLine2Point", "dimLinePoint"),
    "AcDbRadialDimension": keyed("center", "chordPoint"),
    "AcDbDiametricDimension": keyed("chordPoint", "farChordPoint"),
    "AcDbOrdinateDimension": keyed("definingPoint", "leaderEndPoint", x="isUsingXAxis"),
    "AcDb2LineAngularDimension": keyed("xLine1Start", "xLine1End", "xLine2Start", "xLine2End", "arcPoint"),
    "AcDb3PointAngularDimension": keyed("centerPoint", "xLine1Point", "xLine2Point", "arcPoint"),
    "AcDbArcDimension": keyed("xLine1Point", "xLine2Point", "arcPoint"),
    "AcDbRadialDimensionLarge": keyed("center", "chordPoint"),
}
