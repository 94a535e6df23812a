"""What numbered actions of a journal have a macro do: the commands that change, hatch and arrange what is drawn.

Steps beside those of story.py:

    ["MoveEntities", numbers and lists of objects ...]    the call of a command, entities by their numbers
    ["window", [x, y, z], [x, y, z]]                      a selection of all that a small window crosses
    ["gradient", color, color, centred, tint]
    ["sheet", what, names ...], ["system", what, numbers or names ...], ["group", name], ["zoom", range, numbers ...]
"""
import math

import drawing
from journal import handle_of

EPSILON = 0.1  # half of the side of a window


def mirror(reader, data):
    yield ["MirrorEntities", *data[2]["point"], *data[3]["point"], data[4], reader.entities(data[0])]


def copy(reader, data):
    for item in data[2:]:
        yield ["CopyEntities", *item["vector"], reader.entities(data[0])]


def move(reader, data):
    yield ["MoveEntities", *data[2]["vector"], reader.entities(data[0])]


def trim(reader, data):
    yield ["option", "kvCommandOptionInt16_EnblEdgeExtd", reader.settings["EDGEMODE"]]
    yield ["TrimEntities", reader.entities(data[0]), reader.entities(data[2]),
           [c for point in data[4]["points"] for c in point]]
    yield from reader.trimmed(data)


def fillet(reader, data):
    yield ["option", "kvCommandOptionDouble_SetFltRad", reader.drawing["filletRadius"]]
    yield ["FilletEntities", data[2]["point"], reader.entities(data[0]), data[5]["point"], reader.entities(data[3])]


def coordinate_system(_, data):
    words = [item for item in data if isinstance(item, str)]
    points = [item["point"] for item in data if isinstance(item, dict)]
    if not words:
        yield ["system", "SetActiveCustomCoordinateSystemOrigin", *points[0]]
    elif words[0] == "NamedSave":
        yield ["system", "SaveActiveViewAs", words[1]]
    elif words[0] == "3POINT":
        yield ["system", "AlignActiveCustomCoordinateSystemXYPlane", *points]
    else:
        yield ["system", "Activate"]


def sheet(_, data):
    if data[0] == "New":
        yield ["sheet", "CreateSheet", data[1]]
    elif data[0] == "Copy":
        yield ["sheet", "CopySheet", *data[1:]]
    elif len(data) == 2:
        yield ["sheet", "put_Name", *data]
    else:
        yield ["sheet", "Activate", data[0]]


def polyline(reader, data):
    number = reader.insert(["PolyLine", [[c for point in data[0]["points"] for c in point[:2]], data[2]]],
                           handle_of(data[3]["handle"]))
    for vertex, (angle, *_) in enumerate(data[1]["points"]):
        if angle:
            yield ["SetSegmentAngle", number, vertex, angle, None]
    if data[7]:
        yield ["set", number, "GlobalWidth", data[8]]


def erase(reader, data):
    for number in reader.entities(data[0]):
        if number is not None:
            yield ["set", number, "Erased", True]


def hatch(reader, data):
    """A hatch of a boundary that is drawn for it, or around inner points, perhaps with two colours."""
    scale, angle = (float(f"{number:.6g}") for number in data[1:3])
    if data[3]:
        reader.insert(["HatchByInternalPoints", [[c for point in data[7]["points2d"] for c in point], scale, angle]])
        if data[6]:
            yield ["gradient", data[8]["color"], data[9]["color"], *data[10:12]]
        return
    outline = [c for point in data[8]["points2d"] for c in point]
    boundary = reader.insert(["PolyLine", [outline, True]])
    for vertex, bulge in enumerate(data[7]["doubles"]):
        if bulge:
            yield ["SetSegmentAngle", boundary, vertex, 4 * math.atan(bulge), None]
    reader.insert(["HatchByEntities", [[boundary], scale, angle]])
    if data[9]:
        yield ["set", boundary, "Erased", True]


def group(_, data):
    yield ["group", data[2]]


def zoom(_, data):
    yield ["zoom", data[0], *(item["point"] for item in data[1:])]


ACTIONS = {0: mirror, 2: copy, 3: move, drawing.TRIM: trim, 8: fillet, 12: coordinate_system, 13: sheet, 16: polyline,
           17: erase, 18: hatch, 35: group, 41: zoom}
