"""The objects of a recording's drawing as a macro finds them in the model when it runs: with the answers to what it asks
of them, and with points all along them, by which a window finds them."""

import dataclasses
import math

STEP = 0.05  # drawing units between points; less than any window
MOST = 200_000  # steps along one curve; of a longer one a window may miss what lies between two points


@dataclasses.dataclass(frozen=True)
class Offered:
    handle: str
    interface: str  # its class there
    type: str  # enumerator of iwObjectType_e
    number: int  # the same for a script
    answers: dict  # numbers by the call that they answer, such as "VertexCoordinate(0)"
    points: list

    @property
    def way(self):
        return way(self.handle)


def way(handle):
    return f"model {handle}"


def _steps(length):
    return max(1, math.ceil(min(length / STEP, MOST)))


def _along(points):
    """Points along a chain of segments."""
    found = []
    for start, end in zip(points, points[1:]):
        count = _steps(math.dist(start, end))
        found += [[a + (b - a) * i / count for a, b in zip(start, end)] for i in range(count + 1)]
    return found


def _around(center, major, minor, start, end):
    """Points along an arc of an ellipse, whose axes are vectors."""
    end += 2 * math.pi if end <= start else 0
    count = _steps((end - start) * math.hypot(*major))
    angles = [start + (end - start) * i / count for i in range(count + 1)]
    return [[c + a * math.cos(angle) + b * math.sin(angle) for c, a, b in zip(center, major, minor)]
            for angle in angles]


def _line(data):
    ends = [data["startPoint"], data["endPoint"]]
    return {"FirstPoint()": ends[0], "SecondPoint()": ends[1]}, _along(ends)


def _arc(data):
    center, radius, start, end = (data[key] for key in ("center", "radius", "startAngle", "endAngle"))
    return ({"Center()": center, "Radius()": [radius], "StartAngle()": [start], "EndAngle()": [end]},
            _around(center, [radius, 0, 0], [0, radius, 0], start, end))


def _ellipse(data):
    center, major, minor = (data[key] for key in ("center", "majorAxis", "minorAxis"))
    return ({"Center()": center, "MajorRadius()": [math.hypot(*major)],
             "MinorRadius()": [math.hypot(*minor)]},
            _around(center, major, minor, data.get("startAngle", 0), data.get("endAngle", 0)))


def _vertices(points):
    return {f"VertexCoordinate({index})": point for index, point in enumerate(points)}


def _polyline(data):
    return _vertices(data["points"]), _along([[*point, 0] for point in data["points"]])


def _polyline3d(data):
    return _vertices(data["vertices"]), _along(data["vertices"])


_CLASSES = {
    "AcDbLine": ("Line", "iwLineType", 21, _line),
    "AcDbArc": ("CircleArc", "iwCircleArcType", 23, _arc),
    "AcDbEllipse": ("EllipseArc", "iwEllipseArcType", 26, _ellipse),
    "AcDbPolyline": ("PolyLine", "iwPolyLineType", 27, _polyline),
    "AcDb3dPolyline": ("PolyLine3D", "iwPolyLine3DType", 65, _polyline3d),
}


def offered(recording):
    """The objects that are there; those without data are not."""
    records = [line["object"] for line in recording if "object" in line]
    for record in records:
        if record["class"] in _CLASSES and len(record) > 2:
            interface, type_, number, describe = _CLASSES[record["class"]]
            yield Offered(record["handle"], interface, type_, number, *describe(record))
