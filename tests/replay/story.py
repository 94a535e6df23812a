"""Says what a macro has to do, from its journal alone.

A story is a list of steps, the same in every language:

    ["start", sheet]                              the macro begins on a sheet
    ["insert", "Line", [numbers]]                 a new object; the stories' objects are counted from 1
    ["set", object, property, value]              a text, a number, true, a constant's name, {"index": 5},
                                                  {"rgb": [..]}, {"by": "layer"}, {"alpha": 49}
    ["coordinate", object, point, "X", number]    one coordinate changed, the others kept
    ["prompt", kind, text, default]               the question that the macro asks again
    ["option", constant, value]
    ["select", object or None, ...]               the objects that a selection names

and those of actions.py. Only what this reader knows is told. Everything else of a journal is passed over, here and by
those who tell a macro's story.
"""
import math
import re

import actions
import api
import drawing
import journal
from journal import handle_of

POINT = ("X", "Y", "Z")


def _names(prefix):
    return [f"{prefix} {axis}" for axis in POINT]


# The property of a changed object: name, step, property of the API or (point, coordinate), and how the value comes out.
def _point(prefix, point):
    return [(name, "coordinate", (point, axis), float) for name, axis in zip(_names(prefix), POINT)]


def _number(name, word, reckon=float):
    return [(name, "set", word, reckon)]


_CENTER = _point("Center", "Center")
_ENDS = _point("Base point", "FirstPoint") + _point("Second point", "SecondPoint")
CHANGES = {
    "AcDbLine": _point("Start", "FirstPoint") + _point("End", "SecondPoint"),
    "AcDbCircle": (_number("Area", "Radius", lambda area: math.sqrt(area / math.pi)) + _CENTER
                   + _number("Circumference", "Radius", lambda length: length / (2 * math.pi))
                   + _number("Diameter", "Radius", lambda diameter: diameter / 2) + _number("Radius", "Radius")),
    "AcDbPoint": _point("Position", "Position"),
    "AcDbRay": _point("Base point", "BasePoint") + _point("Second point", "ThroughPoint"),
    "AcDbArc": (_CENTER + _number("End Angle", "EndAngle") + _number("Radius", "Radius")
                + _number("Start Angle", "StartAngle")),
    "AcDbXline": _ENDS,
    "AcDbEllipse": (_CENTER + _number("End angle", "EndAngle") + _number("Major radius", "MajorRadius")
                    + _number("Minor radius", "MinorRadius") + _number("Radius ratio", "RadiusRatio")
                    + _number("Start angle", "StartAngle")),
}

# A new object: its type in the API and the properties that its insertion takes, with what a missing one counts as.
CREATIONS = {
    "AcDbLine": ("Line", [*_names("Start"), *_names("End")]),
    "AcDbCircle": ("Circle", [*_names("Center"), ("Radius", 1.0)]),
    "AcDbPoint": ("Point", _names("Position")),
    "AcDbRay": ("Ray", [*_names("Base point"), *_names("Second point")]),
    "AcDbArc": ("CircleArc", [*_names("Center"), ("Radius", 1.0), "Start Angle", "End Angle"]),
    "AcDbXline": ("InfiniteLine", [*_names("Base point"), *_names("Second point")]),
    "AcDbText": ("SimpleNote", [*_names("Text alignment"), ("Height", 2.5), "Rotation"]),
    "AcDbBlockReference": ("BlockInstance", [*_names("Position"), *((n, 1.0) for n in _names("Scale")), "Rotation"]),
}

# Insertions by points: kind, property, coordinates of each point, vectors behind.
VERTICES = {
    "AcDbPolyline": ("PolyLine", "Vertex", 2, ()),
    "AcDb3dPolyline": ("PolyLine3D", "Vertex", 3, ()),
    "AcDbSpline": ("Spline", "Fit point", 3, ("Start tangent vector", "End tangent vector")),
}

# Dimensions by points alone: kind, points, further value.
DIMENSIONS = {
    "AcDbAlignedDimension": ("AlignedDimension", ("xLine1Point", "xLine2Point", "dimLinePoint"), None),
    "AcDbRotatedDimension": ("RotatedDimension", ("xLine1Point", "xLine2Point", "dimLinePoint"), "rotation"),
    "AcDb3PointAngularDimension": ("AngularDimension3Point",
                                   ("centerPoint", "xLine1Point", "xLine2Point", "arcPoint"), None),
    "AcDbOrdinateDimension": ("OrdinateDimension", ("definingPoint", "leaderEndPoint"), "isUsingXAxis"),
}
# Dimensions of a circle or an arc: kind, points.
ON_CURVES = {
    "AcDbDiametricDimension": ("DiameterDimension", ("chordPoint",)),
    "AcDbRadialDimension": ("RadialDimension", ("chordPoint",)),
    "AcDbRadialDimensionLarge": ("JoggedDimension", ("overrideCenter", "jogPoint", "chordPoint")),
    "AcDbArcDimension": ("ArcLengthDimensionPartial", ("xLine1Point", "xLine2Point", "arcPoint")),
}

# Kind of a prompt: its name, the default, the codes of answers that count ("not text" for all but texts), its fallback.
POINT3D, REAL, ANGLE, TEXT = 5009, 5001, 5004, 5005
PROMPTS = [
    ("PointOrKeyword", [0.0, 0.0, 0.0], (POINT3D,), "Specify point: "),
    ("Angle", 0.0, (ANGLE,), "Specify angle: "),
    ("Distance", 1.0, (REAL,), "Specify distance: "),
    ("Orientation", 0.0, (ANGLE, REAL), "Specify orient: "),
    ("Point", [0.0, 0.0, 0.0], (POINT3D,), "Specify corner: "),
    ("Double", 1.0, "not text", "Specify scale: "),
    ("String", "", "all", "Specify string: "),
    ("Keyword", "", "all", "Specify keyword: "),
    ("Integer", 1, "not text", "Specify color: "),
    ("Integer", 1, "not text", "Specify integer: "),
    ("Double", 1.0, "not text", "Specify double: "),
]
KINDS = ("point", "angle", "distance", "orientation", "corner", "scale", "string", "keyword", "color", "integer",
         "double")
CODES = {"real": REAL, "double": REAL, "angle": ANGLE, "text": TEXT, "string": TEXT, "point": POINT3D,
         "point3d": POINT3D}
LAST_ACTION = 48


class Failure(Exception):
    """An event that can't be converted: it ends its command's block."""


def six_digits(number):
    """A number as prompts and options show it."""
    return float(f"{number:.6g}")


def buffer_of(value):
    """Code and content of an answer or an option's value."""
    if isinstance(value, bool):
        return None, value
    if isinstance(value, str):
        return TEXT, value
    if isinstance(value, (int, float)):
        return REAL, value
    (key, content), = value.items()
    return CODES.get(key), content


def number_in(content):
    return content if isinstance(content, (int, float)) else 0


def text_in(content):
    return content if isinstance(content, str) else ""


def point_in(content):
    return content if isinstance(content, list) else [0, 0, 0]


def clean(text, fallback):
    """What is left of a prompt of the command line: its last line, without the markup."""
    lines = [line for line in text.replace("<br>", "\n").split("\n") if line]
    last = lines[-1] if lines else text.replace("<br>", "\n")
    return re.sub("<[^>]*>", "", last).replace("&raquo; ", "") or fallback


class Reader:
    def __init__(self, records):
        self.records = records
        self.layouts = {}
        self.layout = "Model"
        self.mode = next((r["journal"].get("recordingMode", 1) for r in records if r and "journal" in r), 1)
        self.words = {}
        self.objects = {}
        for record in filter(None, records):
            for context, words in record.get("translations", {}).items():
                self.words.setdefault(context, {}).update(words)
            self.layout = record.get("drawing", {}).get("currentLayout", self.layout)
            if "object" in record:
                self.objects[handle_of(record["object"]["handle"])] = record["object"]
                if record["object"]["class"] == "AcDbLayout":
                    self.layouts[record["object"]["name"]] = record["object"].get("modelType", False)
        # The first object whose values are collected decides where the macro begins.
        collected = any(handle_of(event["handle"]) in self.objects for record in filter(None, records)
                        for key, event in record.items() if key in ("added", "modified"))
        in_model = self.layouts.get(self.layout, self.layout == "Model")
        for record in filter(None, records):
            if "added" in record:
                self.objects.setdefault(handle_of(record["added"]["handle"]), record["added"])
        self.weights = {name for name, _ in api.enumerations()["kvLineWeight_e"]}
        self.command_options = api.options("Command")
        self.application_options = api.options("Application")
        self.steps = [["start", self.layout]] if collected and not in_model else []
        self.count = 0
        self.classes = {}  # of the objects that the journal made
        self.numbers = {}  # handle -> number of the story's object
        self.windows = 0   # selections by a window
        self.drawing, self.settings = ({key: value for record in filter(None, records)
                                        for key, value in record.get(name, {}).items()}
                                       for name in ("drawing", "settings"))

    def story(self):
        block = None
        for record in self.records:
            key, value = next(iter(record.items())) if record else (None, None)
            if key == "command":
                block = []
            elif key == "end":
                self.command(block)
                block = None
            elif key in ("added", "modified", "changed", "prompt", "sysvar", "select", "action", "other"):
                if block is not None:
                    block.append((key, value))
                else:
                    self.register(key, value)
                    self.event(key, value)
        if block:
            self.command(block)
        return self.steps

    def command(self, events):
        for key, value in events:
            self.register(key, value)
        try:
            for key, value in events:
                self.event(key, value)
        except Failure:
            pass

    def register(self, key, value):
        if key == "added":
            self.classes[handle_of(value["handle"])] = value["class"]

    def event(self, key, value):
        if key == "other":
            raise Failure
        if key in ("prompt", "select") and self.mode != 1:
            return
        if key == "sysvar" and self.mode != 1 and value["name"].upper() != "CVPORT":
            return
        getattr(self, key)(value)

    # Objects.

    def find(self, name, properties):
        """The value of a property, by its name or the user's word for it."""
        wanted = (name, self.words.get("property_types", {}).get(name, name))
        return next((p["value"] for p in properties if p["name"] in wanted), None)

    def number(self, name, properties, default=0.0):
        value = self.find(name, properties)
        if isinstance(value, dict):
            value = value.get("int", 0)
        elif isinstance(value, str):
            value = 0
        return default if value is None else float(value)

    def added(self, event):
        properties = event["properties"]
        kind = event["class"]
        if kind == "AcDbEllipse":
            insertion = self.ellipse(properties)
        elif kind in VERTICES:
            insertion = self.vertices(*VERTICES[kind], properties)
        elif kind == "AcDbMText":
            insertion = self.note(event, properties)
        elif kind.endswith("Dimension") or kind in ON_CURVES:
            insertion = self.dimension(kind, handle_of(event["handle"]))
        elif kind == "AcDbTable":
            insertion = ["Table", [self.number(name, properties)
                                   for name in (*_names("Position"), "Rows", "Columns", "RowHeight_0", "ColumnWidth_0")]
                         + [False]]
        elif kind in CREATIONS:
            kind, wanted = CREATIONS[kind]
            insertion = [kind, [self.number(*((w, properties) if isinstance(w, str) else (w[0], properties, w[1])))
                                for w in wanted]]
        else:
            return
        number = self.insert(insertion, handle_of(event["handle"]))
        self.common(number, event.get("remaining", properties), new=True)

    def insert(self, insertion, handle=None):
        """The number of a new object."""
        self.count += 1
        if handle is not None:
            self.numbers[handle] = self.count
        self.steps.append(["insert", *insertion])
        return self.count

    def ellipse(self, properties):
        center = [self.number(name, properties) for name in _names("Center")]
        axis = [self.number(name, properties) for name in _names("Major axis vector")]
        start, end = self.number("Start angle", properties), self.number("End angle", properties)
        numbers = [center[0] + axis[0], center[1] + axis[1], center[0] - axis[0], center[1] - axis[1],
                   self.number("Minor radius", properties, 1.0)]
        whole = start == 0.0 and end == 6.283185307179586
        return ["Ellipse", numbers] if whole else ["EllipseArc", [*numbers, start, end]]

    def points(self, name, properties):
        value = self.find(name, properties) or {}
        if "points" in value:
            return value["points"]
        return [element["value"]["point"] for element in value.get("collection", {}).get("elements", [])]

    def chosen(self, name, properties):
        """The text of a property, or of the selected element of one."""
        value = self.find(name, properties)
        if isinstance(value, dict) and "collection" in value:
            value = value["collection"]["elements"][value["collection"]["index"]]["value"]
        return value if isinstance(value, str) else ""

    def vertices(self, kind, name, dimensions, vectors, properties):
        numbers = [c for point in self.points(name, properties) for c in point[:dimensions]]
        yes = self.words.get("property_values", {}).get("Yes", "Yes")
        closed = self.chosen("Closed", properties) == yes
        return [kind, [numbers, closed, *(self.number(w, properties) for v in vectors for w in _names(v))]]

    def note(self, event, properties):
        """The corners of the box that a note's text fills, from the point that it hangs on."""
        width = self.number("Width", properties)
        collected = self.objects[handle_of(event["handle"])].get("actualHeight", 0.0)
        height = self.number("TextBoxHeight", properties, collected)
        x, y, z = (self.number(name, properties) for name in _names("Position"))
        row, column = (self.chosen("Justify", properties) or "Top Left").split()
        x -= width * {"Left": 0.0, "Center": 0.5, "Right": 1.0}[column]
        y += height * {"Top": 0.0, "Middle": 0.5, "Bottom": 1.0}[row]
        return ["Note", [x, y, z, x + width, y - height, z]]

    def temporary(self, handle, kind, numbers):
        """The object that a dimension measures; one that the macro didn't draw is drawn for it."""
        if handle in self.numbers:
            return self.numbers[handle]
        return self.insert([kind, numbers])

    def dimension(self, kind, handle):
        dimension = self.objects[handle]
        associated = [handle_of(other) if other else None for other in dimension.get("associations", [])]
        if kind in DIMENSIONS:
            kind, points, more = DIMENSIONS[kind]
            return [kind, [*(dimension[point] for point in points), *([dimension[more]] if more else [])]]
        if kind in ON_CURVES:
            curve = self.objects[associated[0]]
            is_arc = curve["class"] == "AcDbArc"
            keys = ("center", "radius", "startAngle", "endAngle") if is_arc else ("center", "radius")
            numbers = [curve.get(key) for key in keys]
            kind, points = ON_CURVES[kind]
            measured = self.temporary(associated[0], "CircleArc" if is_arc else "Circle",
                                      [*(numbers.pop(0) or ()), *numbers])
            kind += "" if kind.startswith("ArcLength") else "Arc" if is_arc else "Circle"
            return [kind, [measured, *(dimension[point] for point in points)]]
        associated += [None] * (2 - len(associated))
        lines = [self.temporary(other, "Line", [*dimension[f"xLine{i}Start"], *dimension[f"xLine{i}End"]])
                 for i, other in enumerate(associated, 1)]
        return ["AngularDimension2Line", [*lines, dimension["arcPoint"]]]

    def modified(self, event):
        collected = self.objects.get(handle_of(event["handle"]), {})
        properties = list(event["properties"])
        if collected.get("erased") and all(p["name"] != "Erased" for p in properties):
            properties.append({"name": "Erased", "value": "YES"})
        self.change(event, properties)

    def changed(self, event):
        self.change(event, [event["property"]])

    def change(self, event, properties):
        number = self.numbers.get(handle_of(event["handle"]))
        if number is None or event["class"] not in CHANGES:
            return
        self.common(number, properties, new=False)
        for name, step, word, reckon in CHANGES[event["class"]]:
            if self.find(name, properties) is not None:
                value = reckon(self.number(name, properties))
                self.steps.append([step, number, *(word if step == "coordinate" else [word]), value])
        erased = self.find("Erased", properties)
        yes = self.words.get("property_values", {}).get("YES", "YES")
        if isinstance(erased, str) and erased.lower() == yes.lower():
            self.steps.append(["set", number, "Erased", True])

    def common(self, number, properties, new):
        """The properties that every entity has, in their order."""
        for name, reckon in (("LineColor", self.color), ("Layer", self.name_of), ("LineStyle", self.name_of),
                             ("LineScale", None), ("LineWeight", self.weight), ("Thickness", None),
                             ("PrintStyle", text_in)):
            value = self.find(name, properties)
            if value is not None:
                value = reckon(value) if reckon else self.number(name, properties)
                if value is not None:
                    self.steps.append(["set", number, "Color" if name == "LineColor" else name, value])
        transparency = self.find("Transparency", properties)
        if not new and isinstance(transparency, dict) and "transparency" in transparency:
            self.steps.append(["set", number, "Transparency", self.transparency(transparency["transparency"])])

    @staticmethod
    def color(value):
        color = value["color"]
        return {"byLayer": {"index": 256}, "byBlock": {"index": 0}}[color] if isinstance(color, str) else color

    @staticmethod
    def transparency(value):
        if isinstance(value, str):
            return {"by": value[2:].lower()}
        return {"alpha": int(100 - value["alpha"] / 255 * 100)}

    def name_of(self, value):
        found = self.objects.get(handle_of(value["id"])) if isinstance(value, dict) and "id" in value else None
        return None if found is None else found.get("name", "")

    def weight(self, value):
        value = value.get("int", 0) if isinstance(value, dict) else int(number_in(value))
        name = {-1: "kvLnWt_ByLayer", -2: "kvLnWt_ByBlock"}.get(value, f"kvLnWt_{value:03d}")
        return name if name in self.weights else "kvLnWt_ByLwDefault"

    # Prompts, options and selections.

    def prompt(self, event):
        kind = KINDS.index(event["kind"]) if isinstance(event["kind"], str) else event["kind"]
        if event.get("answer") is None:
            return
        if not 0 <= kind < len(PROMPTS):
            raise Failure
        name, default, codes, fallback = PROMPTS[kind]
        code, content = buffer_of(event["answer"])
        if codes == "all" or (code != TEXT if codes == "not text" else code in codes):
            if name == "Integer":
                default = int(number_in(content))
            elif isinstance(default, list):
                default = [six_digits(c) for c in point_in(content)]
            elif isinstance(default, str):
                default = text_in(content)
            else:
                default = six_digits(number_in(content))
        if name == "Keyword":
            local = event.get("keywords", {}).get("local", [])
            default = local[0] if local else ""
        self.steps.append(["prompt", name, clean(event.get("text", ""), fallback), default])

    def sysvar(self, event):
        if event["value"] is None:
            return
        name = event["name"]
        kind, constant = self.command_options.get(name) or self.application_options.get(name) or (None, None)
        if kind is None:
            return
        content = buffer_of(event["value"])[1]
        if name == "CECOLOR":
            text = text_in(content).strip()
            value = int(text) if re.fullmatch(r"[+-]?\d+", text) else 0
        elif kind == "Bool":
            value = bool(number_in(content))
        elif kind.startswith("Int"):
            value = int(number_in(content))
        elif kind == "Double":
            value = six_digits(number_in(content))
        elif kind == "String":
            value = text_in(content)
        else:
            value = [six_digits(c) for c in point_in(content)][:2 if kind == "Point2d" else 3]
        self.steps.append(["option", constant, value])

    def select(self, event):
        if event["handles"]:
            self.steps.append(["select", *(self.numbers.get(handle_of(h)) for h in event["handles"])])

    def action(self, event):
        if not 0 <= event["id"] <= LAST_ACTION:
            raise Failure
        for step in actions.ACTIONS.get(event["id"], lambda *_: ())(self, event["data"]):
            self.steps.append(step)

    def entities(self, item):
        return [self.numbers.get(handle_of(handle)) for handle in item["handles"]]

    def trimmed(self, data):
        """The windows in which the search of a trim looks for the new entities, which it has to find there."""
        for handle, kind, point, _ in drawing.made_by(data, self.classes):
            self.windows += 1
            yield ["window", *([c + side * actions.EPSILON for c in point[:2]] + [point[2]] for side in (1, -1))]
            self.numbers[handle] = f"{drawing.FOUND} of window {self.windows}"


def of_journal(path):
    return Reader(journal.read(path)).story()


def without_selected(steps):
    """The steps for a language whose calls don't show which objects a selection names."""
    return [step[:1] if step[0] == "select" else step for step in steps]


def same(expected, told):
    """True when two steps say the same, numbers to 1e-9."""
    if isinstance(expected, bool) or isinstance(told, bool):
        return expected is told
    if isinstance(expected, (int, float)) and isinstance(told, (int, float)):
        return math.isclose(expected, told, rel_tol=1e-9, abs_tol=1e-9)
    if isinstance(expected, list) and isinstance(told, list):
        return len(expected) == len(told) and all(map(same, expected, told))
    if isinstance(expected, dict) and isinstance(told, dict):
        return expected.keys() == told.keys() and all(same(expected[key], told[key]) for key in expected)
    return expected == told


def first_difference(expected, told):
    """None when two stories are the same, else what differs first, as text."""
    for number in range(max(len(expected), len(told))):
        left = expected[number] if number < len(expected) else "the end"
        right = told[number] if number < len(told) else "the end"
        if not same(left, right):
            return f"step {number + 1}: the journal says {left}, the macro does {right}"
    return None
