#!/usr/bin/python3
"""Makes a corpus of DXF drawings, and tells of each what a reader has to find in it.

    drawings.py FOLDER
"""

import dataclasses
import io
import math
import pathlib
import re
import sys

import ezdxf
from ezdxf.enums import MTextEntityAlignment, TextEntityAlignment

VERSIONS = ("R12", "R2000", "R2004", "R2007", "R2010", "R2013", "R2018")
ZERO = (0, 0, 77.5)  # stands for a normal without a length, which ezdxf does not write
NORMALS = ((0, 0, 1), (0, 0, -1), ZERO, (0, 0, -5), (1, 2, 3), (1, 0, 0), (0.01, 0.01, 1), (-0.02, 0, -1))
SQUARE = ((0, 0), (4, 0), (4, 3), (0, 3))
ARCS = ((0, 0, 0.5), (4, 0, 0), (4, 3, -1.5), (0, 3, 1))


@dataclasses.dataclass(frozen=True)
class Drawing:
    """A file of the corpus. What ezdxf finds in `twin` (without one: in the file itself) is what is in it; of a `cut`
    file the first entities are, of a `torn` one some; where there is `nothing`, it is no drawing."""
    path: pathlib.Path
    twin: object = None  # a file, or a drawing of ezdxf
    rule: str = "whole"
    least: int = 0  # so many objects are found

    @property
    def name(self):
        return self.path.name


def turned(m, **normal):
    """What lies in a plane of its own, each in that plane."""
    m.add_circle((5, 3, 2), 4, dxfattribs={"thickness": 2, **normal})
    m.add_arc((5, 3, 2), 4, 30, 200, dxfattribs=normal)
    m.add_arc((5, 3, 2), 4, 300, 40, dxfattribs=normal)
    m.add_line((1, 2, 3), (4, 6, 9), dxfattribs={"thickness": 2, **normal})
    m.add_point((1, 2, 3), dxfattribs=normal)
    m.add_solid([(x, y, 2) for x, y in SQUARE], dxfattribs=normal)
    m.add_trace([(x, y, 2) for x, y in SQUARE[:3]], dxfattribs=normal)
    m.add_text("seen", height=2, rotation=30, dxfattribs={"insert": (5, 3, 2), **normal})
    aligned = m.add_text("seen", height=2, rotation=30, dxfattribs=normal)
    aligned.set_placement((5, 3), align=TextEntityAlignment.TOP_RIGHT)
    m.add_polyline2d(SQUARE, close=True, dxfattribs={"elevation": (0, 0, 2), **normal})
    m.add_polyline2d(ARCS, format="xyb", dxfattribs={"elevation": (0, 0, 2), **normal})
    m.add_blockref("PART", (5, 3, 2), dxfattribs={"xscale": 2, "yscale": 3, "zscale": 4, "rotation": 30, **normal})
    m.add_attdef("TAG", (5, 3, 2), "value", height=2, rotation=30, dxfattribs=normal)
    m.add_3dface([(0, 0, 0), (4, 0, 1), (4, 3, 2), (0, 3, 3)])
    if m.doc.dxfversion > "AC1009":
        m.add_lwpolyline(SQUARE, dxfattribs={"elevation": 2, **normal})
        m.add_lwpolyline(ARCS, format="xyb", close=True, dxfattribs={"elevation": 2, **normal})
        m.add_lwpolyline([(0, 0, 1, 2), (4, 0, 0, 1), (4, 3, 2, 2)], format="xyse", dxfattribs=normal)
        m.add_ellipse((5, 3, 2), perpendicular(normal), 0.5, 0.5, 4, dxfattribs=normal)
        m.add_mtext("seen", dxfattribs={"insert": (5, 3, 2), "text_direction": (0.6, 0.8, 0), **normal})
        m.add_hatch(dxfattribs={"elevation": (0, 0, 2), **normal}).paths.add_polyline_path(ARCS)


def perpendicular(normal):
    x, y, z = normal.get("extrusion", (0, 0, 1))
    return (4, 0, 0) if x == y == 0 else (-4 * y / math.hypot(x, y), 4 * x / math.hypot(x, y), 0)


def normals(m):
    turned(m)
    for normal in NORMALS:
        turned(m, extrusion=normal)


def looks(m):
    doc = m.doc
    doc.linetypes.add("DASHES", [0.75, 0.5, -0.25], description="dashes _ _")
    for name, attributes in {"Off": {"color": -3}, "Frozen": {"color": 4, "flags": 1}, "Locked": {"flags": 4},
                             "Dashes": {"linetype": "DASHES", "color": 2}, "Ünïcode Layer": {"color": 200}}.items():
        doc.layers.add(name).dxf.update(attributes)
        m.add_line((0, 0), (1, len(name)), dxfattribs={"layer": name})
    m.add_line((0, 0), (2, 1), dxfattribs={"layer": "dashes"})
    m.add_line((0, 0), (2, 1), dxfattribs={"layer": "In no table"})
    for attributes in ({"color": 0}, {"color": 1}, {"color": 7}, {"color": 256}, {"linetype": "dashes", "ltscale": 2.5},
                       {"linetype": "BYBLOCK"}, {"thickness": -3}, {"paperspace": 0}):
        m.add_line((0, 0), (3, 1), dxfattribs=attributes)
    m.add_line((0, 0), (3, 2)).set_xdata("ACAD", [(1000, "known"), (1040, 2.5), (1010, (1, 2, 3))])
    if doc.dxfversion > "AC1009":
        for attributes in ({"true_color": 0x102030}, {"lineweight": 50}, {"lineweight": -2}, {"invisible": 1}):
            m.add_line((0, 0), (4, 1), dxfattribs=attributes)
    if doc.dxfversion > "AC1015":
        m.add_line((0, 0), (5, 1)).transparency = 0.5


def texts(m):
    doc = m.doc
    doc.styles.add("Roman", font="romans.shx").dxf.update({"width": 0.8, "oblique": 10, "height": 3})
    for place, align in enumerate(TextEntityAlignment):
        m.add_text(f"align {place}", height=1 + place, dxfattribs={"style": "ROMAN"}).set_placement(
            (place, 2, 1), (place + 9, 2, 1), align)
    for attributes in ({"oblique": 15}, {"width": 0.5}, {"text_generation_flag": 2}, {"text_generation_flag": 4}):
        m.add_text("%%c50 %%d %%p %%u x%%u", height=2, dxfattribs=attributes)
    for flags in (0, 1, 2, 4, 8):
        m.add_attdef(f"T{flags}", (flags, 1), "preset", height=2, dxfattribs={"flags": flags, "prompt": "What?"})
    attdef = m.add_attdef("MIDDLE", text="v", height=2)
    attdef.set_placement((3, 4), align=TextEntityAlignment.MIDDLE_CENTER)
    if doc.dxfversion > "AC1009":
        for place, align in enumerate(MTextEntityAlignment):
            m.add_mtext(r"{\fArial|b1;Bold}\Pnext %%d \S1/2;" * (1 + 20 * place), dxfattribs={
                "insert": (place, 1, 2), "char_height": 1 + place, "width": 10 * place, "rotation": 10 * place,
                "attachment_point": align, "style": "Roman", "line_spacing_factor": 1.5})
        m.add_mtext("filled").set_bg_color((10, 20, 30), scale=1.2)
        for attributes in ({"flow_direction": 3}, {"line_spacing_style": 2}, {"char_height": 0.3, "width": 2}):
            m.add_mtext("way", dxfattribs=attributes)


def polylines(m):
    for close in (False, True):
        m.add_polyline2d([(0, 0, 1, 2, 0), (4, 0, 2, 3, 0.5), (4, 3, 0, 0, -1)], format="xyseb", close=close)
        m.add_polyline2d(SQUARE, close=close, dxfattribs={"default_start_width": 0.5, "default_end_width": 0.5})
        m.add_polyline3d([(0, 0, 1), (4, 0, 2), (4, 3, 5)], close=close)
        mesh = m.add_polymesh((3, 4), dxfattribs={"flags": 16 + 33 * close})
        for row in range(3):
            for column in range(4):
                mesh.set_mesh_vertex((row, column), (row, column, row * column))
    fitted = m.add_polyline2d([(0, 0), (1, 2), (3, 3), (5, 0)])
    fitted.dxf.flags, fitted.dxf.smooth_type = 4, 6
    for vertex, flags in zip(fitted.vertices, (16, 8, 8, 16)):
        vertex.dxf.flags = flags
    faces = m.add_polyface()
    faces.append_faces([[(0, 0, 0), (4, 0, 0), (4, 3, 0), (0, 3, 1)], [(0, 0, 0), (4, 0, 0), (2, 1, 5)]])
    for points in ([], [(1, 1)], [(1, 1), (1, 1)]):
        m.add_polyline2d(points)
    for edges in (0, 1, 6, 15):
        m.add_3dface([(0, 0), (4, 0), (4, 3)], dxfattribs={"invisible": edges})
    m.add_solid(SQUARE[:3], dxfattribs={"thickness": 3})
    if m.doc.dxfversion == "AC1009":
        return
    for flags, width in ((0, 0), (1, 0), (128, 2.5), (1, 2.5)):
        m.add_lwpolyline(SQUARE, dxfattribs={"flags": flags, "elevation": 7, "const_width": width})
        m.add_lwpolyline(ARCS, format="xyb", dxfattribs={"flags": flags, "thickness": 1})
        m.add_lwpolyline([(0, 0, 1, 2, 0), (4, 0, 2, 3, 0.5), (4, 3, 0, 0, 1)], dxfattribs={"flags": flags})
    m.add_lwpolyline([(1, 1)])


def curves(m):
    for start, end in ((0, 360), (350, 10), (-30, 30), (90, 90), (10, 730)):
        m.add_arc((1, 2, 3), 2.5, start, end)
    if m.doc.dxfversion == "AC1009":
        return
    for start, end in ((0, math.tau), (1, 4), (5, 7), (0, math.pi), (-1, 1), (0, 6.2831853)):
        m.add_ellipse((1, 2, 3), (3, 4, 0), 0.25, start, end)
    m.add_ellipse((1, 2, 3), (0, 0, 4), 1, dxfattribs={"extrusion": (1, 0, 0)})
    bent = [(0, 0, 0), (2, 5, 1), (5, -3, 2), (8, 4, 0), (9, 9, 3), (12, 0, 0)]
    for degree in (1, 2, 3, 5):
        m.add_open_spline(bent, degree=degree)
    m.add_spline(bent)
    spline = m.add_spline([(x, y) for x, y, _ in bent])
    spline.dxf.start_tangent, spline.dxf.end_tangent = (0, 1, 0), (1, 0, 0)
    m.add_cad_spline_control_frame(bent)
    half = math.sqrt(0.5)
    m.add_rational_spline([(1, 0), (1, 1), (0, 1), (-1, 1), (-1, 0)], [1, half, 1, half, 1], degree=2,
                          knots=[0, 0, 0, 1, 1, 2, 2, 2])
    m.add_spline().set_closed(bent)
    for scale in (1e6, 1e-4):
        m.add_open_spline([(x * scale, y * scale, z * scale) for x, y, z in bent])
    m.add_ray((1, 2, 3), (0.6, 0.8, 0))
    m.add_xline((1, 2, 3), (0, 0, 1))


def blocks(m):
    doc = m.doc
    inner = doc.blocks.new("Inner", base_point=(1, 1, 0), dxfattribs={"description": "what is in it"})
    turned(inner)
    outer = doc.blocks.new("OUTER")
    outer.add_blockref("INNER", (2, 2), dxfattribs={"xscale": -1})
    outer.add_attdef("NAME", (0, 0), "none", height=1)
    doc.blocks.new("Empty")
    doc.blocks.new("Unused").add_circle((0, 0), 1, dxfattribs={"layer": "0", "color": 0})
    doc.blocks.new("*U7").add_circle((0, 0), 3)
    for name in ("outer", "Empty", "*U7", "Nowhere"):
        m.add_blockref(name, (3, 4, 5), dxfattribs={"rotation": 400})
    for scale in ((1, 1, 1), (-2, 2, 2), (2, 3, -4), (0, 1, 1)):
        reference = m.add_blockref("Outer", (1, 2, 3), dxfattribs=dict(zip(("xscale", "yscale", "zscale"), scale)))
        reference.add_attrib("NAME", f"name {scale}", (1, 2), dxfattribs={"height": 1})
        reference.add_attrib("Rotation", "", (1, 3))
    m.add_blockref("Inner", (1, 2), dxfattribs={"row_count": 3, "column_count": 4, "row_spacing": 10,
                                                 "column_spacing": 5, "rotation": 30})
    m.add_blockref("Empty", (1, 2), dxfattribs={"row_count": 32767, "column_count": 32767, "row_spacing": 1,
                                                 "column_spacing": 1})
    doc.add_xref_def("site/plan of ground.dwg", "SITE")
    m.add_blockref("SITE", (7, 7))
    if doc.dxfversion > "AC1009":
        inner.add_hatch(color=2).paths.add_polyline_path(SQUARE)


def hatches(m):
    if m.doc.dxfversion == "AC1009":
        return
    fills = (lambda h: h.set_pattern_fill("ANSI31", scale=0.5, angle=30), lambda h: h.set_solid_fill(color=3),
             lambda h: h.set_gradient((10, 20, 30), (200, 210, 220), rotation=45, centered=1),
             lambda h: h.set_pattern_fill("MADE UP", definition=[[0, (0, 0), (0, 1), []]]))
    loops = (lambda p: p.add_polyline_path(SQUARE),
             lambda p: p.add_polyline_path(ARCS),
             lambda p: (p.add_polyline_path([(9 * x - 9, 9 * y - 9) for x, y in SQUARE], flags=1),
                        p.add_polyline_path(SQUARE, flags=16)),
             lambda p: (p.add_polyline_path(ARCS, flags=1), p.add_polyline_path([(1, 1), (2, 1), (2, 2)], flags=16)),
             edges)
    for fill in fills if m.doc.dxfversion > "AC1015" else fills[:2]:
        for loop in loops:
            hatch = m.add_hatch(dxfattribs={"layer": "0", "elevation": (0, 0, 4)})
            loop(hatch.paths)
            fill(hatch)
    for style in (0, 1, 2):
        m.add_hatch(dxfattribs={"hatch_style": style}).paths.add_polyline_path(SQUARE)
    m.add_hatch()


def edges(paths):
    one = paths.add_edge_path()
    one.add_line((0, 0), (6, 0))
    one.add_arc((6, 2), 2, -90, 90)
    one.add_ellipse((4, 4), (2, 0), 0.5, 0, 180)
    one.add_spline(control_points=[(2, 4), (-1, 3), (1, 1), (0, 0)], knot_values=[0, 0, 0, 0, 1, 1, 1, 1])
    two = paths.add_edge_path(flags=16)
    two.add_arc((3, 2), 1, 0, 360, ccw=False)
    three = paths.add_edge_path(flags=16)
    three.add_line((1, 1), (2, 1))
    three.add_arc((2, 1.5), 0.5, -90, 90)
    three.add_line((2, 2), (1, 2))
    three.add_arc((1, 1.5), 0.5, 90, 270)


def dimensions(m):
    for text in ("<>", "about <>", ""):
        m.add_linear_dim((3, 2), (0, 0), (3, 1), text=text, angle=20).render()
        m.add_aligned_dim((0, 0), (4, 3), 1, text=text).render()
    m.add_linear_dim((3, 2), (0, 0), (3, 1), text_rotation=30).render()
    m.add_radius_dim((1, 1), radius=2, angle=40).render()
    m.add_diameter_dim((1, 1), radius=2, angle=40).render()
    m.add_ordinate_dim((3, 2), (2, 1), 1, origin=(1, 1)).render()
    m.add_ordinate_dim((3, 2), (1, 2), 0).render()
    m.add_angular_dim_3p((5, 5), (0, 0), (4, 0), (0, 4)).render()
    m.add_angular_dim_2l((5, 5), ((0, 0), (4, 0)), ((0, 0), (0, 4))).render()
    flipped = m.add_linear_dim((3, 2), (0, 0), (3, 1), dxfattribs={"extrusion": (0, 0, -1)})
    flipped.dimension.dxf.insert = (0, 0, 0)
    if m.doc.dxfversion > "AC1009":
        m.add_arc_dim_3p((5, 5), (0, 0), (4, 0), (0, 4)).render()
        m.add_leader([(0, 0), (3, 3), (5, 3, 1)])
        leader = m.add_leader([(0, 0), (3, 3), (5, 3)])
        leader.dxf.annotation_handle = m.add_mtext("led to", dxfattribs={"insert": (5, 3)}).dxf.handle
        leader.dxf.annotation_type, leader.dxf.path_type = 0, 1
        m.new_entity("TOLERANCE", {"insert": (1, 2, 3), "content": r"{\Fgdt;j}%%v0.1%%vA", "dimstyle": "Standard"})


def rare(m):
    doc = m.doc
    doc.styles.add_shx("ltypeshp.shx")
    m.add_shape("CIRC1", (1, 2, 3), 2.5, dxfattribs={"rotation": 40})
    if doc.dxfversion == "AC1009":
        return
    image = doc.add_image_def("pictures/site.png", (640, 480))
    m.add_image(image, (1, 2, 3), (6.4, 4.8), rotation=30)
    m.add_image(image, (1, 2, 3), (3, 9))
    m.add_wipeout([(0, 0), (3, 3)])
    for close in (False, True):
        m.add_mline([(0, 0, 1), (5, 0, 1), (5, 5, 1)], close=close, dxfattribs={"scale_factor": 2, "justification": 1})
    m.add_underlay(doc.add_underlay_def("plan.pdf"), (1, 1))
    for solid in (m.add_3dsolid, m.add_body, m.add_region):
        solid().sat = ["400 0 1 0", "empty"]
    m.add_helix(2, 1, 3)
    with m.add_mesh().edit_data() as mesh:
        mesh.vertices, mesh.faces = [(0, 0, 0), (1, 0, 0), (1, 1, 0), (0, 1, 5)], [(0, 1, 2), (0, 2, 3)]
    sheet = doc.layouts.new("Second sheet")
    for paper in (doc.layout(), sheet):
        paper.add_viewport((5, 5), (8, 6), (1, 2), 30, dxfattribs={"status": 1})
        paper.add_line((0, 0), (210, 297))
        paper.add_text("on paper", height=3, dxfattribs={"insert": (2, 2)})


# What no call of ezdxf draws.
RARE_TEXT = """\
0\nLARGE_RADIAL_DIMENSION\n5\nFA01\n100\nAcDbEntity\n8\n0\n100\nAcDbDimension\n10\n1.0\n20\n2.0\n30\n0.0\n11\n3.0
21\n3.0\n31\n0.0\n70\n41\n3\nStandard\n100\nAcDbRadialDimensionLarge\n13\n6.0\n23\n1.0\n33\n0.0\n14\n5.0\n24\n2.0
34\n0.0\n15\n8.0\n25\n9.0\n35\n0.0\n40\n0.7
0\nACAD_PROXY_ENTITY\n5\nFA02\n100\nAcDbEntity\n8\n0\n100\nAcDbProxyEntity\n90\n498
91\n500\n92\n16\n310\n0102030405060708
0\nACAD_TABLE\n5\nFA03\n100\nAcDbEntity\n8\n0\n100\nAcDbBlockReference\n2\nPART\n10\n1.0\n20\n1.0\n30\n0.0
100\nAcDbTable\n91\n1\n92\n1\n141\n2.0\n142\n9.0\n171\n1\n301\nCELL_VALUE\n93\n6\n90\n4\n1\ncell\n304\nACVALUE_END
0\nOLE2FRAME\n5\nFA04\n100\nAcDbEntity\n8\n0\n100\nAcDbOle2Frame\n70\n2\n3\nPaint\n10\n1.0\n20\n5.0\n30\n0.0
11\n4.0\n21\n1.0\n31\n0.0\n71\n2\n72\n0\n90\n4\n310\nCAFEBABE\n1\nOLE
0\nMADE_UP_KIND\n5\nFA05\n8\n0\n40\n1.0\n0\nMADE_UP_KIND\n5\nFA06
"""

TOPICS = (normals, looks, texts, polylines, curves, blocks, hatches, dimensions, rare)


def new(version, *topics):
    doc = ezdxf.new(version, setup=["dimstyles"] if dimensions in topics else False)
    part = doc.blocks.new("PART", base_point=(1, 0, 0))
    part.add_line((0, 0), (1, 1))
    part.add_attdef("TAG", (0, 0), height=1)
    for topic in topics:
        topic(doc.modelspace())
    return doc


def text_of(doc):
    stream = io.StringIO()
    doc.write(stream)
    return stream.getvalue().replace(f"230\n{ZERO[2]}\n", "230\n0.0\n")


def bytes_of(doc, text=None):
    """Of its text, or another one that has been made of that."""
    return (text or text_of(doc)).encode("utf-8" if doc.dxfversion >= "AC1021" else "cp1252", "dxfreplace")


def in_entities(text, more):
    return text.replace("  2\nENTITIES\n", "  2\nENTITIES\n" + more, 1)


def simple(m):
    """A drawing small enough to break."""
    m.add_line((0, 0), (1, 2))
    m.add_polyline2d(ARCS, format="xyb")
    m.add_blockref("PART", (1, 1)).add_attrib("TAG", "value", (2, 2))
    m.add_circle((3, 3), 2)
    m.add_text("letters", height=2)


def nested(depth):
    doc = ezdxf.new("R12")
    doc.blocks.new("N0").add_circle((0, 0), 1)
    for level in range(1, depth):
        doc.blocks.new(f"N{level}").add_blockref(f"N{level - 1}", (1, 0))
    doc.modelspace().add_blockref(f"N{depth - 1}", (0, 0))
    return doc


def cyclic():
    doc = ezdxf.new("R2000")
    for name, other in (("A", "B"), ("B", "C"), ("C", "A"), ("Itself", "itself")):
        block = doc.blocks.new(name)
        block.add_line((0, 0), (1, 1))
        block.add_blockref(other, (1, 1))
        doc.modelspace().add_blockref(name, (1, 2))
    return doc


# Of texts before the seventh version of 2000, by what the header calls their encoding: its name in Python, and letters.
CODE_PAGES = {
    "ANSI_1252": ("cp1252", "Größe – 5 €"), "ansi_1251": ("cp1251", "План этажа"), "ANSI_936": ("gbk", "平面图"),
    "dos932": ("cp932", "表示ソ能十 ﾊﾝｶｸ"), "ANSI_949": ("cp949", "평면도"), "big5": ("big5", "功許蓋"),
    "DOS850": ("cp850", "Größe ½ ×"), "MAC-ROMAN": ("mac_roman", "Größe – ∞"), "iso8859-2": ("iso8859_2", "Příčka"),
    "ASCII": ("cp1252", "é"), "": ("cp1252", "Größe €"),
}
# What is written, and what it says.
ESCAPES = {
    r"\U+00D8 \U+20AC": "Ø €", r"\u+00d8": "Ø", r"\U+D83D\U+DE00": "\U0001F600", r"\U+12": r"\U+12",
    r"\U+D83D x": "\ufffd x", r"\M+18341\M+5B0A1": "ア啊", "tab^Ihere": "tab\there", "hat^ here": "hat^here",
}


def with_texts(version, lines):
    doc = ezdxf.new(version)
    for line in lines:
        doc.modelspace().add_text(line, height=2)
    if version != "R12":
        doc.layers.add(lines[0].translate({ord(one): "_" for one in '<>/\\":;?*|,=`\n'}))
    return doc


def encoded():
    """Names of files, their bytes, and the drawings that they hold."""
    for page, (codec, letters) in CODE_PAGES.items():
        for version in ("R12", "R2000"):
            doc = with_texts(version, [letters, letters + "x"])
            text = re.sub(r"(\$DWGCODEPAGE\n *3\n)\w+", lambda m: m[1] + page, text_of(doc))
            if not page:
                text = re.sub(r" *9\n\$DWGCODEPAGE\n *3\n\n", "", text)
            yield f"page_{page or 'none'}_{version}.dxf", text.encode(codec), doc
    for version in ("R12", "R2000", "R2018"):
        text = text_of(with_texts(version, [f"TEXT{place}" for place in range(len(ESCAPES))]))
        for place, written in enumerate(ESCAPES):
            text = text.replace(f"TEXT{place}", written)
        yield f"escapes_{version}.dxf", text.encode(), with_texts(version, list(ESCAPES.values()))
    text = text_of(with_texts("R2010", ["plain", "no UTF-8: @"])).encode().replace(b"@", b"\xe9")
    yield "no_utf8.dxf", text, with_texts("R2010", ["plain", "no UTF-8: \ufffd"])


HANDLE = re.compile(r"(?m)(?<!\$HANDSEED\n)^(  5|105)\n([0-9A-F]+)\n")
# A text with what is wrong with it; a reader finds what it would find without.
HARMLESS = {
    "mixed_ends": lambda t: "".join(line + ("\n", "\r\n")[place % 3 == 0] for place, line in enumerate(t.split("\n"))),
    "windows_ends": lambda t: t.replace("\n", "\r\n"),
    "mark": lambda t: "\ufeff" + t,
    "comments": lambda t: "999\nmade by hand\n" + t.replace("  0\nCIRCLE", "999\nround\n  0\nCIRCLE"),
    "trash_behind": lambda t: t + "\x1a\0\0trash\n" * 3,
    "no_end": lambda t: t.replace("  0\nEOF\n", ""),
    "no_section_end": lambda t: re.sub(r"  0\nENDSEC\n(?=  0\nEOF\n)", "", t),
    "no_line_end": lambda t: t.rstrip("\n"),
    "no_seqend": lambda t: re.sub(r"  0\nSEQEND\n(?:(?! *0\n).*\n.*\n)*", "", t),
    "no_header": lambda t: t[t.index("  0\nSECTION\n  2\nTABLES"):],
    "only_entities": lambda t: re.search(r"(?s)  0\nSECTION\n  2\nBLOCKS\n.*", t)[0],
    "no_handles": lambda t: HANDLE.sub("", t),
    "doubled_handles": lambda t: HANDLE.sub(r"\1\n2F\n", t),
    "long_handles": lambda t: HANDLE.sub(lambda m: f"{m[1]}\n7FFFFFFFFFFF{m[2]:0>4}\n", t),
    "last_handle": lambda t: t.replace("  0\nCIRCLE\n  5\n", "  0\nCIRCLE\n  5\nFFFFFFFFFFFFFFFF\n999\n"),
    "no_seed": lambda t: re.sub(r"(\$HANDSEED\n  5\n).*", r"\g<1>1", t),
    "blanks": lambda t: "".join(("", "   ")[place % 2 == 0] + line + "\n" for place, line in enumerate(t.splitlines())),
    "unknown_header": lambda t: re.sub(r"AC1009", "AC9999", t),
    "future": lambda t: t.replace("AC1009", "AC1099"),
}
# Damage that takes something from the drawing: the file holds a part of what it was made of.
TORN = {
    "nan": lambda t: t.replace("  0\nCIRCLE\n", "  0\nCIRCLE\n 40\nnan\n", 1).replace("10\n3.0", "10\nnan"),
    "endless": lambda t: t.replace("10\n3.0", "10\n1e400"),
    "no_number": lambda t: t.replace("10\n3.0", "10\nthree"),
    "no_code": lambda t: t.replace("  0\nCIRCLE", "zero\nCIRCLE"),
    "far_code": lambda t: t.replace("  0\nCIRCLE", "99999999999\nx\n-5\ny\n  0\nCIRCLE"),
    "no_name": lambda t: t.replace("  2\nPART\n", "", 1),
    "lost_line": lambda t: t.replace("  0\nTEXT\n", "TEXT\n"),
}
LYING = {
    "lwpolyline": (r"(\n 90\n)4(?=\n)", polylines), "spline": (r"(\n 7[234]\n)\d+", curves),
    "hatch": (r"(\n 9[1378]\n)\d+", hatches), "mesh": (r"(\n 9[12345]\n)\d+", rare),
    "polymesh": (r"(\n 7[12]\n)[34](?=\n)", polylines),
}
OLD = """\
0\nSECTION\n2\nENTITIES\n0\n3DLINE\n8\n0\n10\n1.0\n20\n2.0\n30\n3.0\n11\n4.0\n21\n5.0\n31\n6.0
0\nLINE\n8\nOLD\n10\n1.0\n20\n2.0\n11\n4.0\n21\n5.0\n38\n2.5
0\nCIRCLE\n8\n0\n10\n1.0\n20\n1.0\n40\n2.0\n0\nPOINT\n8\n0\n10\n1.0\n20\n1.0
0\nENDSEC\n0\nEOF
"""


def make(folder):
    """The drawings, most of them of one topic each."""
    folder = pathlib.Path(folder)
    folder.mkdir(parents=True, exist_ok=True)

    def file(name, content, *twin):
        path = folder / name
        path.write_bytes(content if isinstance(content, bytes) else content.encode("utf-8"))
        return Drawing(path, *twin)

    for topic in TOPICS:
        more = RARE_TEXT if topic is rare else ""
        yield file(f"{topic.__name__}.dxf", in_entities(text_of(new("R2010", topic)), more))
    for version in VERSIONS:
        whole = file(f"all_{version}.dxf", bytes_of(new(version, *TOPICS)))
        yield whole
        path = folder / f"all_{version}_binary.dxf"
        ezdxf.readfile(whole.path).saveas(path, fmt="bin")
        yield Drawing(path)
    for older, version in (("R13", "AC1012"), ("R14", "AC1014")):
        content = bytes_of(new("R2000", *TOPICS))
        yield file(f"all_{older}.dxf", content.replace(b"AC1015", version.encode()))

    for name, content, twin in encoded():
        yield file(name, content, twin)

    text = text_of(new("R12", simple))
    whole = file("simple.dxf", text)
    yield whole
    for name, change in HARMLESS.items():
        yield file(f"{name}.dxf", change(text), whole.path)
    for name, change in TORN.items():
        yield file(f"torn_{name}.dxf", change(text), whole.path, "torn")
    content = text.encode()
    ezdxf.readfile(whole.path).saveas(folder / "simple_binary.dxf", fmt="bin")
    short = folder.joinpath("simple_binary.dxf").read_bytes()
    yield Drawing(folder / "simple_binary.dxf")
    for name, bytes_ in (("text", content), ("binary", short)):
        start = bytes_.index(b"ENTITIES")
        step = (len(bytes_) - start) // 12
        for offset in range(start + 9, len(bytes_), step):
            begun = re.findall(rb"[\n\0](LINE|POLYLINE|INSERT|CIRCLE|TEXT)[\n\0]", bytes_[start:offset])
            yield file(f"cut_{name}_{offset}.dxf", bytes_[:offset], whole.path, "cut", max(len(begun) - 1, 0))
        yield file(f"cut_{name}_early.dxf", bytes_[:len(bytes_) // 4], whole.path, "cut")

    for name, (count, topic) in LYING.items():
        head, entities = text_of(new("R2010", topic)).split("  2\nENTITIES")
        for lie in (0, 2147483647, -1):
            lying = head + "  2\nENTITIES" + re.sub(count, rf"\g<1>{lie}", entities)
            yield file(f"lying_{name}_{lie}.dxf", lying, folder / f"{topic.__name__}.dxf", "torn")
    yield file("cycles.dxf", text_of(cyclic()))
    yield file("nested.dxf", text_of(nested(1800)))
    flat = "11\n4.0\n21\n5.0\n"
    later = OLD.replace("3DLINE", "LINE").replace(f"{flat}38\n2.5", f"30\n2.5\n{flat}31\n2.5")
    later = file("later.dxf", later).path
    for version in ("", "AC1.2", "AC1.40", "AC2.10", "AC1002", "AC1004", "AC1006"):
        header = f"0\nSECTION\n2\nHEADER\n9\n$ACADVER\n1\n{version}\n0\nENDSEC\n" * bool(version)
        yield file(f"old_{version or 'unnamed'}.dxf", header + OLD, later)
    repeat = "0\nREPEAT\n8\n0\n10\n1.0\n20\n1.0\n70\n3\n71\n2\n0\nENDREP\n8\n0\n"
    yield file("old_repeat.dxf", OLD.replace("0\nENDSEC", repeat + "0\nENDSEC"), later, "torn")
    for name, content in (("empty", b""), ("words", b"no drawing\n" * 9), ("zeros", bytes(4000)),
                          ("end", b"  0\nEOF\n"), ("mark", b"\xef\xbb\xbf"), ("sentinel", short[:22]),
                          ("picture", b"\x89PNG\r\n\x1a\n" + bytes(99))):
        yield file(f"nothing_{name}.dxf", content, None, "nothing")


if __name__ == "__main__":
    print(sum(1 for _ in make(sys.argv[1])), "drawings")
