"""What ezdxf reads in a DXF drawing, in the forms that recorded.py gives what a recording draws."""

import math
import re

from ezdxf.math import OCS, Vec3, fit_points_to_cad_cv

import recorded

NEAR = 1e-9
TOLERANCE = 1e-6  # of approximated curves, as a part of their size


def said(text):
    """Letters may be written as numbers, in versions too where ezdxf leaves them so."""
    return re.sub(r"\\U\+([0-9A-Fa-f]{4})", lambda found: chr(int(found[1], 16)), text)


def plane(entity):
    normal = Vec3(entity.dxf.extrusion) if entity.dxf.is_supported("extrusion") else None
    return OCS(normal or (0, 0, 1))


def level(ocs):
    """1 seen from above, -1 from below, 0 in a plane that is not the drawing's."""
    return round(ocs.uz.z) if abs(ocs.uz.z) > 1 - 1e-12 else 0


def turned(ocs, degrees):
    return ocs.to_wcs(Vec3.from_deg_angle(degrees))


def text(entity, ocs):
    align, *points = entity.get_placement()
    justify = align.name.replace("_", " ").title()
    first, second = (point and ocs.to_wcs(point) for point in points)
    return {"position": first if second or justify == "Left" else None,
            "aligned at": (second or first) if justify != "Left" else None,
            "height": entity.dxf.height, "justify": justify,
            "direction": turned(ocs, entity.dxf.rotation) if justify not in ("Aligned", "Fit") else None}


def polyline(ocs, points, closed, elevation=0):
    """Of vertices with their widths and bulges."""
    return {"vertices": [ocs.to_wcs((x, y, elevation)) for x, y, *_ in points], "closed": closed,
            "bulges": [bulge * (level(ocs) or 1) for *_, bulge in points],
            "widths": [[one[2] for one in points], [one[3] for one in points]] if level(ocs) else None}


def lwpolyline(e, ocs):
    width = e.dxf.get("const_width", 0)
    points = [(x, y, start or width, end or width, bulge) for x, y, start, end, bulge in e]
    return "Polyline", polyline(ocs, points, e.closed, e.dxf.elevation)


def old_polyline(e, ocs):
    drawn = [one for one in e.vertices if not (e.is_2d_polyline or e.is_3d_polyline) or not one.dxf.flags & 16]
    places = [one.dxf.location for one in drawn]
    if e.is_2d_polyline:
        points = [(one.x, one.y, vertex.dxf.get("start_width", e.dxf.default_start_width),
                   vertex.dxf.get("end_width", e.dxf.default_end_width), vertex.dxf.bulge)
                  for one, vertex in zip(places, drawn)]
        return "Polyline", polyline(ocs, points, e.is_closed, e.dxf.elevation.z)
    if e.is_3d_polyline:
        return "Polyline", {"vertices": places, "closed": e.is_closed}
    if e.is_polygon_mesh:
        return "PolygonMesh", {"vertices": places, "size": [e.dxf.m_count, e.dxf.n_count],
                               "closed": [e.is_m_closed, e.is_n_closed]}
    faces = [[one.dxf.get(f"vtx{n}", 0) for n in range(4)] for one in drawn if one.is_face_record]
    return "PolyFaceMesh", {"vertices": [one.dxf.location for one in drawn if not one.is_face_record],
                            "faces": [face if face[3] else face[:3] for face in faces]}


def arc(e, ocs):
    start, end = e.dxf.start_angle, e.dxf.end_angle
    if level(ocs) < 0:
        start, end = 180 - end, 180 - start
    center = ocs.to_wcs(e.dxf.center)
    return "Arc", {"arc": recorded.arc(center, e.dxf.radius, math.radians(start), math.radians(end)),
                   **tilted(ocs)}


def ellipse(e, _):
    if e.dxf.ratio > 1:  # the longer axis comes first
        e = e.copy()
        e.swap_axis()
    start, end = e.dxf.start_param, e.dxf.end_param
    axis = plane(e).uz
    if level(plane(e)) < 0:
        start, end = -end, -start
    whole = abs((end - start) % math.tau) < 1e-12
    return "Ellipse", {"center": e.dxf.center, "major": e.dxf.major_axis,
                       "minor": e.dxf.major_axis.magnitude * e.dxf.ratio, "whole": whole,
                       "range": None if whole else [recorded.direction(one) for one in (start, end)],
                       "turned": None if level(plane(e)) or axis.z > 0 else "lost"}


def spline(e, _):
    if e.dxf.degree == 1:
        return "Polyline", {"vertices": list(map(Vec3, e.control_points)), "closed": e.closed}
    return "Spline", {"curve": e}


def attributes(e):
    """Those that its block defines; others have no statement."""
    block = e.block()
    tags = {one.dxf.tag.upper() for one in block.query("ATTDEF")} if block else ()
    return {one.dxf.tag: said(one.dxf.text) for one in e.attribs if one.dxf.tag.upper() in tags}


def insert(e, _):
    forms = []
    for one in e.multi_insert() if e.mcount <= 10000 else [e]:
        ocs = plane(one)
        around = math.radians(one.dxf.rotation)
        factors = one.dxf.get("xscale", 1), one.dxf.get("yscale", 1), one.dxf.get("zscale", 1) or 1  # 0 in what is plane
        axes = recorded.direction(around), recorded.direction(around + math.pi / 2), Vec3(0, 0, 1)
        spread = [ocs.to_wcs(axis * factor) for axis, factor in zip(axes, factors)]
        forms.append({"name": block_name(one.dxf.get("name", "")), "position": ocs.to_wcs(one.dxf.insert),
                      "axes": spread, "attributes": attributes(e)})
    return "BlockReference", *forms


def dimension(e, _):
    point = lambda number: Vec3(e.dxf.get("defpoint" + str(number)[:number], (0, 0, 0)))  # noqa: E731
    cls, form = {
        0: lambda: ("RotatedDimension", {"xLine1Point": point(2), "xLine2Point": point(3), "dimLinePoint": point(0),
                                         "rotation": math.radians(e.dxf.angle)}),
        1: lambda: ("AlignedDimension", {"xLine1Point": point(2), "xLine2Point": point(3), "dimLinePoint": point(0)}),
        2: lambda: ("2LineAngularDimension", {"xLine1Start": point(2), "xLine1End": point(3), "xLine2Start": point(4),
                                              "xLine2End": point(0), "arcPoint": point(5)}),
        3: lambda: ("DiametricDimension", {"chordPoint": point(4), "farChordPoint": point(0)}),
        4: lambda: ("RadialDimension", {"center": point(0), "chordPoint": point(4)}),
        5: lambda: ("3PointAngularDimension", {"centerPoint": point(4), "xLine1Point": point(2),
                                               "xLine2Point": point(3), "arcPoint": point(0)}),
        6: lambda: ("OrdinateDimension", {"definingPoint": point(2), "leaderEndPoint": point(3),
                                          "x": int(bool(e.dxf.dimtype & 64))}),
        8: lambda: ("ArcDimension", {"xLine1Point": point(2), "xLine2Point": point(3), "arcPoint": point(0)}),
    }[8 if e.dxftype() == "ARC_DIMENSION" else e.dxf.dimtype & 15]()
    return cls, form | {"text": e.dxf.text.replace("<>", "", e.dxf.text == "<>")}


class Among(list):
    """What is found may hold more."""


def hatch(e, ocs):
    parts = []
    height = e.dxf.elevation.z
    at = lambda point: ocs.to_wcs(Vec3(point).replace(z=height))  # noqa: E731
    for path in e.paths:
        if path.type.name == "POLYLINE":
            parts += recorded.segments([at((x, y)) for x, y, _ in path.vertices],
                                       [bulge * level(ocs) for *_, bulge in path.vertices], path.is_closed)
            continue
        for edge in path.edges:
            kind = edge.type.name
            if kind == "LINE":
                parts.append(recorded.segment(at(edge.start), at(edge.end)))
            elif kind == "ARC":
                angles = math.radians(edge.start_angle), math.radians(edge.end_angle)
                parts.append(recorded.arc(at(edge.center), edge.radius, *angles))
            elif kind == "ELLIPSE":
                major = ocs.to_wcs(edge.major_axis)
                parts.append(recorded.ellipse(at(edge.center), major, ocs.uz.cross(major) * edge.ratio,
                                              *(math.radians(one) for one in (edge.start_angle, edge.end_angle))))
            else:
                parts.append(("spline",))
    curved = any(part[0] == "spline" for part in parts)
    parts = recorded.ordered([tuple(p.replace(z=0) if isinstance(p, Vec3) else p for p in part) for part in parts
                              if part[0] != "spline"])
    lined = not e.dxf.solid_fill
    return "Hatch", {"pattern": None if e.gradient else e.dxf.pattern_name.upper(),
                     "pattern scale": e.dxf.pattern_scale if lined else None,
                     "pattern angle": recorded.angle(math.radians(e.dxf.pattern_angle)) if lined else None,
                     "boundary": Among(parts) if curved else parts}


def tilted(ocs):
    """No recording holds it."""
    return {"turned": None if level(ocs) else "lost"}


def flat(cls, **of):
    """Of a class whose points lie in a plane of their own: names in the form, and what makes them."""
    return lambda e, ocs: (cls, {key: make(e, ocs) for key, make in of.items()} | tilted(ocs))


def at(name):
    return lambda e, ocs: ocs.to_wcs(e.dxf.get(name, Vec3(0, 0, 0)))


def corners(e, ocs):
    return [ocs.to_wcs(e.dxf.get(f"vtx{n}", e.dxf.get("vtx2"))) for n in range(4)]


JUSTIFY = [f"{row} {column}" for row in ("Top", "Middle", "Bottom") for column in ("Left", "Center", "Right")]
# What a recording holds of each kind of entity: the end of the class's name, and the form.
KINDS = {
    "LINE": lambda e, _: ("Line", {"start": e.dxf.start, "end": e.dxf.end}),
    "POINT": lambda e, _: ("Point", {"position": e.dxf.location}),
    "CIRCLE": flat("Circle", center=at("center"), radius=lambda e, _: e.dxf.radius),
    "ARC": arc, "ELLIPSE": ellipse, "SPLINE": spline, "LWPOLYLINE": lwpolyline, "POLYLINE": old_polyline,
    "INSERT": insert, "DIMENSION": dimension, "ARC_DIMENSION": dimension, "HATCH": hatch,
    "SOLID": flat("Solid", vertices=corners), "TRACE": flat("Solid", vertices=corners),
    "3DFACE": lambda e, _: ("Face", {"vertices": corners(e, OCS()), "edges": [
        "Hidden" if e.dxf.invisible >> n & 1 else "Visible" for n in range(4)]}),
    "TEXT": lambda e, ocs: ("Text", {"contents": said(e.dxf.text), **text(e, ocs), **tilted(ocs)}),
    "ATTDEF": lambda e, ocs: ("AttributeDefinition", {
        "tag": e.dxf.tag, "value": said(e.dxf.text), "prompt": e.dxf.prompt, **text(e, ocs),
        "flags": [e.is_invisible, e.is_const, e.is_verify, e.is_preset], **tilted(ocs)}),
    "MTEXT": lambda e, ocs: ("MText", {
        "contents": said(e.text), "position": e.dxf.insert, "width": e.dxf.get("width", 0), "height": e.dxf.char_height,
        "justify": JUSTIFY[e.dxf.attachment_point - 1],
        "direction": Vec3(e.dxf.text_direction).normalize() if e.dxf.hasattr("text_direction")
        else turned(ocs, e.dxf.rotation)}),
    "LEADER": lambda e, _: ("Leader", {"vertices": list(map(Vec3, e.vertices))}),
    "MLINE": lambda e, _: ("Mline", {"vertices": [one.location for one in e.vertices], "scale": e.dxf.scale_factor,
                                     "closed": e.is_closed, "justify": ("Top", "Zero", "Bottom")[e.dxf.justification]}),
    "RAY": lambda e, _: ("Ray", {"base": e.dxf.start, "direction": e.dxf.unit_vector}),
    "XLINE": lambda e, _: ("Xline", {"base": e.dxf.start, "direction": e.dxf.unit_vector}),
    "SHAPE": flat("Shape", name=lambda e, _: e.dxf.name, position=at("insert"), size=lambda e, _: e.dxf.size,
                  direction=lambda e, ocs: turned(ocs, e.dxf.rotation)),
    "TOLERANCE": lambda e, _: ("Fcf", {"position": e.dxf.insert, "contents": e.dxf.content}),
    "IMAGE": lambda e, _: ("RasterImage", {"path": e.image_def.dxf.filename, "position": e.dxf.insert,
                                           "direction": e.dxf.u_pixel.normalize()}),
    "MESH": lambda e, _: ("PolyFaceMesh", {"vertices": [Vec3(one) for one in e.vertices],
                                           "faces": [[n + 1 for n in face] for face in e.faces]}),
    "VIEWPORT": lambda e, _: ("Viewport", {"center": e.dxf.center, "size": [e.dxf.width, e.dxf.height]}),
}


def color(e):
    """Of an entity or a layer."""
    if e.dxf.hasattr("true_color"):
        return list(e.rgb)
    return {0: "byblock", 256: "bylayer"}.get(abs(e.dxf.color), abs(e.dxf.color))


def common(e):
    thickness = e.dxf.thickness if e.dxf.is_supported("thickness") else 0
    return {"layer": e.dxf.layer.lower(), "color": color(e), "line style": e.dxf.linetype.lower(),
            "line scale": e.dxf.ltscale, "weight": e.dxf.get("lineweight", -1),
            "thickness": thickness * level(plane(e)) if level(plane(e)) else None}


def forms(entity):
    """The class of an entity with each of its forms; nothing where no recording holds its kind."""
    if entity.dxftype() not in KINDS or entity.dxf is None:
        return []
    cls, *found = KINDS[entity.dxftype()](entity, plane(entity))
    return [(cls, form | common(entity)) for form in found]


def off_curve(points, curve, enough):
    """How far the points are from it at most, and its ends from theirs; what is near enough is not told exactly."""
    tool = curve.construction_tool()
    first, last = (tool.knots()[place] for place in (tool.order - 1, tool.count))
    steps = 64 * tool.count
    params = [first + (last - first) * step / steps for step in range(steps + 1)]
    samples = list(tool.points(params))
    worst = max(points[0].distance(samples[0]), points[-1].distance(samples[-1]))
    for point in points:
        lengths = [math.inf, *map(point.distance, samples), math.inf]
        turns = [step for step in range(steps + 1) if lengths[step] >= lengths[step + 1] <= lengths[step + 2]]
        least = math.inf
        for step in sorted(turns, key=lambda step: lengths[step + 1])[:4]:
            least = min(least, nearest(tool, point, params[max(step - 1, 0)], params[min(step + 1, steps)]))
            if least < enough:
                break
        worst = max(worst, least)
    return worst


def nearest(tool, point, low, high):
    """How far a point is from a part of a curve that has one nearest place."""
    for _ in range(60):
        left, right = low + (high - low) / 3, high - (high - low) / 3
        if point.distance(tool.point(left)) < point.distance(tool.point(right)):
            high = right
        else:
            low = left
    return point.distance(tool.point((low + high) / 2))


def curve_difference(curve, found):
    """Of a spline and one that is drawn through points."""
    points, fits = found["fit points"], [Vec3(one) for one in curve.fit_points]
    if fits and not difference(fits, points):
        return None
    if not curve.control_points or len(points) < 2:
        return f"there are {len(points)} fit points"
    size = max(max(values) - min(values) for values in zip(*points))
    drawn = list(fit_points_to_cad_cv(points, found["tangents"]).approximate(97))
    for part, far in ((points, NEAR), (drawn, 2 * TOLERANCE)):
        off = off_curve(part, curve, far * size)
        if off > far * size:
            return f"it is off by {off / size} of its size"
    return None


def difference(wanted, found, path=""):
    """Where two values differ, or nothing. What is None counts as anything."""
    if wanted is None:
        return None
    if isinstance(wanted, dict):
        off = curve_difference(wanted["curve"], found) if "curve" in wanted else None
        if off:
            return off
        return next(filter(None, (difference(value, found.get(key), f"{path}.{key}")
                                  for key, value in wanted.items() if key != "curve")), None)
    if isinstance(wanted, (float, int)) and isinstance(found, (float, int)):
        return None if abs(wanted - found) <= NEAR * max(1, abs(wanted)) else f"{path}: {wanted} is {found}"
    if isinstance(wanted, Among):
        return next((f"{path}: no {one}" for one in wanted if all(difference(one, other) for other in found)), None)
    if isinstance(wanted, (list, tuple, Vec3)) and isinstance(found, (list, tuple, Vec3)):
        wanted, found = list(wanted), list(found)
        if len(wanted) != len(found):
            return f"{path}: {len(wanted)} are {len(found)}"
        return next(filter(None, (difference(*pair, f"{path}[{place}]")
                                  for place, pair in enumerate(zip(wanted, found)))), None)
    return None if found is not None and wanted == found else f"{path}: {wanted!r} is {found!r}"


def block_name(name):
    """A block without a name of its own gets one."""
    return name.lower().replace("*", "anonymous_")


def spaces_of(doc):
    """The entities of model space, sheets and blocks, by the names that recordings have for them."""
    for layout in doc.layouts:
        yield "" if layout.is_modelspace else layout.name, list(layout)
    for block in doc.blocks:
        if not block.is_any_layout:
            yield f"block {block_name(block.name)}", list(block)
